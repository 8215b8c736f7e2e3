// Several ways to the shortcut, of which the first that is offered is used.
#pragma once

#include "platform/OfferedHotKey.h"

#include <functional>
#include <memory>
#include <vector>

namespace vantle {

/// Which one that is may change while the program runs; one way is given up before the next is
/// taken. As long as an earlier one is unknown, no later one is used. The order is that of the
/// vector, but what takes the user's word comes last unless the user has given it. Without any the
/// shortcut is never offered. Main thread.
class FirstHotKey final : public HotKeyPort {
public:
    explicit FirstHotKey(std::vector<std::unique_ptr<OfferedHotKey>> ways);
    ~FirstHotKey() override;

    [[nodiscard]] int installHandler(std::function<void()> pressed) override;
    void removeHandler() override { m_pressed = nullptr; }
    [[nodiscard]] Outcome registerKey() override;
    void unregisterKey() override;

    [[nodiscard]] QString wayToAllow() const override;
    void recallAllowed(const QString& way) override { m_allowed = way; }
    [[nodiscard]] Outcome allow(bool allowed) override;

private:
    [[nodiscard]] Outcome choose();
    [[nodiscard]] bool isReady(const OfferedHotKey& way) const;
    [[nodiscard]] Outcome take(OfferedHotKey* way);
    void leave();
    void tell(const Outcome& outcome);

    std::vector<std::unique_ptr<OfferedHotKey>> m_ways;
    std::function<void()> m_pressed;
    QString m_allowed;                ///< way that the user has allowed
    bool m_isWanted = false;          ///< from `registerKey` to `unregisterKey`
    OfferedHotKey* m_taken = nullptr; ///< the way that is used
    Outcome m_outcome;                ///< as told last
};

} // namespace vantle

// The first of several ways to the shortcut that is offered.
#pragma once

#include "platform/OfferedHotKey.h"

#include <functional>
#include <memory>
#include <vector>

namespace vantle {

/// The way can change at run time; the old one is released before the new one is taken. While an
/// earlier way is unknown, no later one is used. Precedence is the vector's order, but ways that
/// need the user's consent come last until given. Without any way the shortcut is NotOffered. Main
/// thread.
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
    QString m_allowed;                ///< the way that the user has allowed
    bool m_isWanted = false;          ///< from `registerKey` to `unregisterKey`
    OfferedHotKey* m_taken = nullptr; ///< the way in use
    Outcome m_outcome;                ///< as reported last
};

} // namespace vantle

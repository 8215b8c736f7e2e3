// The shortcut, by KDE's service of global shortcuts.
#pragma once

#include "platform/HeldKey.h"
#include "platform/OfferedHotKey.h"
#include "platform/bus/FollowedService.h"
#include "platform/kde/BusKeySequence.h"

#include <QDBusConnection>
#include <QList>

#include <optional>

namespace vantle {

/// `org.kde.kglobalaccel` on the session bus, which KWin 5 and 6 answer in a Wayland session. The
/// service remembers the keys of each action, and the user can change them in the desktop's
/// settings: what it says was taken counts, and a change there is followed. At the end the action
/// is made inactive, which frees the keys and leaves them with the action.
///
/// A combination of another program is not asked for, since the service would remember the refusal
/// as the user's wish to have no keys. Nothing blocks. Main thread.
class KGlobalAccelHotKey final : public OfferedHotKey {
public:
    static constexpr int kNoAnswer = -1; ///< status: the service refused, or answered nonsense

    /// `clock` must outlive this.
    KGlobalAccelHotKey(const QDBusConnection& session, const Clock& clock);
    ~KGlobalAccelHotKey() override;

    [[nodiscard]] std::optional<bool> isOffered() const override { return m_isOffered; }

    [[nodiscard]] int installHandler(std::function<void()> pressed) override;
    void removeHandler() override { m_pressed = nullptr; }
    [[nodiscard]] Outcome registerKey() override;
    void unregisterKey() override;

private:
    using Keys = QList<BusKeySequence>;

    void hear();
    void setOffered(bool offered);
    void begin();
    void activate(bool mayBeHeldByAnother);
    void askWhetherFree(std::function<void()> isFree);
    template <typename Answer, typename Take>
    void ask(const QString& method, const QVariantList& arguments, Take take);
    void tell(const Outcome& outcome);

    QDBusConnection m_session;
    FollowedService m_service;
    HeldKey m_held;
    std::function<void()> m_pressed;
    std::optional<bool> m_isOffered;
    bool m_isWanted = false; ///< from `registerKey` to `unregisterKey`
    int m_attempt = 0;       ///< answers to former attempts are dropped
    Outcome m_outcome;       ///< as told last
};

} // namespace vantle

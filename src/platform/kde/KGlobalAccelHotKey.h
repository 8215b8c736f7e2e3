// The shortcut through KDE's global shortcut service.
#pragma once

#include "platform/HeldKey.h"
#include "platform/OfferedHotKey.h"
#include "platform/bus/FollowedService.h"
#include "platform/kde/BusKeySequence.h"

#include <QDBusConnection>
#include <QList>

#include <optional>

namespace vantle {

/// `org.kde.kglobalaccel` on the session bus, implemented by KWin 5 and 6 in a Wayland session. The
/// service remembers the keys of each action and the user can change them in the desktop's
/// settings, so its reply counts, and later changes are followed. At the end the action is
/// deactivated, which frees the keys but keeps them assigned.
///
/// A combination of another program is not requested: the service would remember the refusal as the
/// user's choice of no keys. Does not block. Main thread.
class KGlobalAccelHotKey final : public OfferedHotKey {
public:
    static constexpr int kNoAnswer = -1; ///< status: the service refused, or replied nonsense

    /// `clock` must outlive this object.
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
    int m_attempt = 0;       ///< replies to earlier attempts are dropped
    Outcome m_outcome;       ///< as reported last
};

} // namespace vantle

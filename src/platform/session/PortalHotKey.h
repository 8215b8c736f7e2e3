// The shortcut, by the portal for shortcuts.
#pragma once

#include "platform/HeldKey.h"
#include "platform/OfferedHotKey.h"
#include "platform/bus/FollowedService.h"
#include "platform/session/PortalShortcut.h"

#include <QByteArray>
#include <QDBusConnection>
#include <QString>
#include <QVariantMap>

#include <functional>
#include <memory>
#include <optional>

namespace vantle {

/// `org.freedesktop.portal.GlobalShortcuts`. The desktop asks the user in a dialog of its own, at
/// the first time or always, so nothing is asked before `allow(true)`; an allowance of a former run
/// is bound at once. Which keys were taken, the desktop says; the user may change them there. What
/// the user declines there is not allowed.
///
/// On a connection of its own to the bus, made with the first question: the portal wants to know
/// whose it is before anything else is asked on it. Nothing blocks. Main thread.
class PortalHotKey final : public OfferedHotKey {
public:
    static constexpr int kNoAnswer = -1; ///< status: the portal refused, or answered nonsense

    /// `address` of the session's bus; `clock` must outlive this.
    PortalHotKey(const QDBusConnection& session, QByteArray address, const Clock& clock);
    ~PortalHotKey() override;

    [[nodiscard]] std::optional<bool> isOffered() const override { return m_isOffered; }

    [[nodiscard]] int installHandler(std::function<void()> pressed) override;
    void removeHandler() override { m_pressed = nullptr; }
    [[nodiscard]] Outcome registerKey() override;
    void unregisterKey() override;

    [[nodiscard]] QString wayToAllow() const override { return QStringLiteral("portal"); }
    void recallAllowed(const QString& way) override { m_isAllowed = way == wayToAllow(); }
    [[nodiscard]] Outcome allow(bool allowed) override;

private:
    class Link;

    void askForVersion();
    void setOffered(bool offered);
    [[nodiscard]] Outcome begin();
    void takeShortcuts(const PortalShortcuts& shortcuts, Registration otherwise);
    void tell(const Outcome& outcome);

    FollowedService m_portal;
    const QByteArray m_address;
    HeldKey m_held;
    std::function<void()> m_pressed;
    std::optional<bool> m_isOffered;
    bool m_isAllowed = false;
    std::unique_ptr<Link> m_link; ///< from the first question to `unregisterKey`
    Outcome m_outcome;            ///< as told last
};

} // namespace vantle

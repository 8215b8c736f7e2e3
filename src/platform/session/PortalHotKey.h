// The shortcut through the desktop portal.
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

/// `org.freedesktop.portal.GlobalShortcuts`. The desktop asks the user in its own dialog, once or
/// each time, so nothing is requested before `allow(true)`; an allowance of an earlier run is bound
/// at once. The desktop reports the keys, and the user may change them there. Declining there
/// withdraws the allowance.
///
/// Uses its own bus connection, made on first use: the portal must learn the program's id before
/// any other call on it. Does not block. Main thread.
class PortalHotKey final : public OfferedHotKey {
public:
    static constexpr int kNoAnswer = -1; ///< status: the portal refused, or replied nonsense

    /// `address` is that of the session bus; `clock` must outlive this object.
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
    std::unique_ptr<Link> m_link; ///< from first use to `unregisterKey`
    Outcome m_outcome;            ///< as reported last
};

} // namespace vantle

// What the desktop's settings portal says about movement.
#pragma once

#include <QDBusConnection>
#include <QDBusVariant>
#include <QObject>

#include <optional>

namespace vantle {

/// Asks org.freedesktop.portal.Settings, follows its changes, and asks again when the portal comes
/// or comes back. Main thread; nothing blocks, the answer comes a moment after the construction.
class PortalMotionSetting final : public QObject {
    Q_OBJECT

public:
    explicit PortalMotionSetting(const QDBusConnection& session);

    /// Whether movement is to be reduced, as last heard. Empty while the portal has said nothing.
    [[nodiscard]] std::optional<bool> reduced() const {
        return m_reducedMotion ? m_reducedMotion : m_animationsOff;
    }

Q_SIGNALS:
    /// reduced() changed.
    void changed();

private Q_SLOTS:
    void takeChange(const QString& space, const QString& key, const QDBusVariant& value);

private:
    void ask();
    void ask(const QString& space, const QString& key);
    void take(const QString& space, const QString& key, QVariant value);

    QDBusConnection m_session;
    std::optional<bool> m_reducedMotion; ///< set to true at most: false there means "no wish"
    std::optional<bool> m_animationsOff;
};

} // namespace vantle

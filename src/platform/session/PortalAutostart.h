// The login item of a sandboxed program.
#pragma once

#include "platform/Autostart.h"
#include "platform/Preference.h"

#include <QDBusConnection>
#include <QObject>
#include <QString>
#include <QVariantMap>

namespace vantle {

/// org.freedesktop.portal.Background. In a sandbox the folder of autostart entries is the sandbox's
/// own, and no desktop reads it. The portal may ask the user, answers when that is done, and never
/// tells what it was asked before: so the last answer is kept in a preference. Until there is one,
/// what was asked for counts. Main thread; nothing is waited for.
class PortalAutostart final : public QObject, public Autostart {
    Q_OBJECT

public:
    /// `preferences` must outlive this.
    PortalAutostart(const QDBusConnection& session, Preferences& preferences,
                    const Preference<bool>& kept);

    [[nodiscard]] bool isRegistered() const override { return m_kept.read(m_preferences); }
    Result<> registerItem() override { return ask(true); }
    Result<> unregisterItem() override { return ask(false); }

private Q_SLOTS:
    void takeResponse(uint response, const QVariantMap& results);

private:
    Result<> ask(bool autostart);
    void listenAt(const QString& path);

    QDBusConnection m_session;
    Preferences& m_preferences;
    const Preference<bool> m_kept;
    QString m_request; ///< path of the object that reports the answer to the last question
};

} // namespace vantle

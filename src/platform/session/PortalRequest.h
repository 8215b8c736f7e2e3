// Requests to the desktop portal.
#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QString>
#include <QVariantList>
#include <QVariantMap>

namespace vantle {

namespace portal {

inline const QString kService = QStringLiteral("org.freedesktop.portal.Desktop");
inline const QString kPath = QStringLiteral("/org/freedesktop/portal/desktop");
inline const QString kRequest = QStringLiteral("org.freedesktop.portal.Request");

/// Response code; all others mean that the user turned the request away, or that it failed.
inline constexpr uint kGranted = 0;

/// Names a request or a session of ours; no two are the same.
[[nodiscard]] QString newToken();

/// The object that will report the answer to a request of the connection with that unique name.
/// Known before the call, so that none is missed.
[[nodiscard]] QString requestPath(const QString& connection, const QString& token);

} // namespace portal

/// One request, sent on construction. The answer may follow a dialog with the user. Main thread;
/// nothing is waited for. Deleted before the
/// answer, it reports nothing, and the dialog stays open unless it was closed.
class PortalRequest final : public QObject {
    Q_OBJECT

public:
    struct Call {
        QString interface;
        QString method;
        QVariantList arguments; ///< without the last one
        QVariantMap options;    ///< the last one, without the token
    };

    PortalRequest(const QDBusConnection& bus, const Call& call, QObject* parent = nullptr);

    /// Asks the portal to close the dialog.
    void close();

Q_SIGNALS:
    void answered(uint response, const QVariantMap& results);
    /// There is no portal, or it does not take such a request, or it did not answer in time.
    void refused();

private:
    void listenAt(const QString& path);

    QDBusConnection m_bus;
    QString m_path; ///< of the request object
};

} // namespace vantle

#include "platform/gnome/ShellFrontmostApp.h"

#include <QLatin1String>
#include <QString>

#include <utility>

namespace vantle {

ShellFrontmostApp::ShellFrontmostApp(const QDBusConnection& session, QStringList dataFolders,
                                     Reading reading)
    : ReportedFrontmostApp(reading)
    , m_shell(session, QStringLiteral("org.gnome.Shell"))
    , m_extension(m_shell, reading.scheduler, std::move(dataFolders))
    , m_reports(session, QStringLiteral("/local/vantle/Vantle/ShellFrontmost"),
                [this](const QDBusMessage& call) { take(call); }) {
    connect(&m_extension, &ShellExtension::helpChanged, this, &FrontmostApp::helpChanged);
    connect(&m_shell, &FollowedService::gone, this, [this] { end(); });
    connect(&m_shell, &FollowedService::came, this, [this] {
        if (const auto early = std::exchange(m_early, std::nullopt)) take(*early);
    });
}

void ShellFrontmostApp::take(const QDBusMessage& call) {
    if (!m_shell.isThere()) {
        m_early = call;
        return;
    }
    if (!m_shell.isOwnedBy(call.service())) return;
    if (call.member() == QLatin1String("end")) return end();
    if (call.member() != QLatin1String("report") || call.signature() != QLatin1String("s")) return;
    QString id = call.arguments().constFirst().toString();
    constexpr QLatin1String kSuffix(".desktop");
    if (id.endsWith(kSuffix)) id.chop(kSuffix.size());
    begin();
    if (id.isEmpty()) return reportNone();
    // Without a desktop entry the id is the window's class.
    report({.applicationId = id, .windowClass = id, .instance = {}, .processId = {}});
}

} // namespace vantle

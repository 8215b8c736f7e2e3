// The application in front, from KDE's window manager.
#pragma once

#include "platform/ReportedFrontmostApp.h"
#include "platform/bus/CalledObject.h"
#include "platform/bus/FollowedService.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QString>

#include <memory>

class QTemporaryFile;

namespace vantle {

/// KWin 5 and 6 on the session bus. Its task bar protocol is reserved for Plasma, but it runs
/// scripts of any program: this one reports the application of each activated window to an object
/// of this program, and nothing else. Only calls from KWin's connection count. The destructor
/// unloads the script; a killed program's script is unloaded before the next is loaded. KWin may
/// come and go. Does not block. Main thread.
class KWinFrontmostApp final : public ReportedFrontmostApp {
    Q_OBJECT

public:
    KWinFrontmostApp(const QDBusConnection& session, Reading reading);
    ~KWinFrontmostApp() override;

private:
    void meet();
    void load();
    void run(int script);
    void take(const QDBusMessage& call);
    [[nodiscard]] QDBusMessage scripting(const QString& method) const;

    QDBusConnection m_session;
    FollowedService m_kwin;
    CalledObject m_reports;
    std::unique_ptr<QTemporaryFile> m_script; ///< read by KWin when it runs it
};

} // namespace vantle

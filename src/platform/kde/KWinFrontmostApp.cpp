#include "platform/kde/KWinFrontmostApp.h"

#include <QDBusReply>
#include <QDir>
#include <QLatin1String>
#include <QStandardPaths>
#include <QStringList>
#include <QTemporaryFile>

#include <utility>

namespace vantle {

namespace {

const QString kKWin = QStringLiteral("org.kde.KWin");
const QString kScript = QStringLiteral("local.vantle.Frontmost"); // the script's name in KWin
const QString kReports = QStringLiteral("/local/vantle/Vantle/KWinFrontmost");

// KWin 5's texts are byte arrays, hence String(). A window may set its application after it is
// activated (some of X11). The desktop and panels are windows too.
constexpr const char* kSource = R"(
(function () {
    const isSix = typeof workspace.windowActivated !== "undefined";
    let followed = null;
    function text(value) { return value === undefined || value === null ? "" : String(value); }
    function report() {
        const it = followed && !followed.desktopWindow && !followed.dock ? followed : {};
        callDBus(service, path, "local.vantle.Frontmost", "report", text(it.desktopFileName),
                 text(it.resourceClass), text(it.resourceName), text(it.pid));
    }
    function each(window, call) {
        for (const name of ["desktopFileNameChanged", "windowClassChanged"])
            if (window && window[name]) window[name][call](report);
    }
    function follow(window) {
        each(followed, "disconnect");
        followed = window;
        each(followed, "connect");
        report();
    }
    (isSix ? workspace.windowActivated : workspace.clientActivated).connect(follow);
    follow(isSix ? workspace.activeWindow : workspace.activeClient);
})();
)";

/// The script with its destination: the unique connection name, since another program could own the
/// other name later.
QByteArray sourceFor(const QString& service) {
    return QStringLiteral("const service = \"%1\", path = \"%2\";")
               .arg(service, kReports)
               .toUtf8() +
           kSource;
}

} // namespace

KWinFrontmostApp::KWinFrontmostApp(const QDBusConnection& session, Reading reading)
    : ReportedFrontmostApp(std::move(reading))
    , m_session(session)
    , m_kwin(session, kKWin)
    , m_reports(session, kReports, [this](const QDBusMessage& call) { take(call); }) {
    connect(&m_kwin, &FollowedService::came, this, &KWinFrontmostApp::meet);
    connect(&m_kwin, &FollowedService::gone, this, [this] {
        m_script.reset();
        end();
    });
}

KWinFrontmostApp::~KWinFrontmostApp() {
    if (m_script) m_session.send(scripting(QStringLiteral("unloadScript")) << kScript);
}

QDBusMessage KWinFrontmostApp::scripting(const QString& method) const {
    return m_kwin.call(QStringLiteral("/Scripting"), QStringLiteral("org.kde.kwin.Scripting"),
                       method);
}

void KWinFrontmostApp::meet() {
    const auto next = [this] { load(); };
    m_kwin.ask<bool>(
        scripting(QStringLiteral("unloadScript")) << kScript, [next](bool) { next(); }, next);
}

void KWinFrontmostApp::load() {
    const QString runtime = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    m_script = std::make_unique<QTemporaryFile>((runtime.isEmpty() ? QDir::tempPath() : runtime) +
                                                QStringLiteral("/vantle-XXXXXX.js"));
    if (!m_script->open() || m_script->write(sourceFor(m_session.baseService())) < 0) return;
    m_script->close();
    m_kwin.ask<int>(scripting(QStringLiteral("loadScript")) << m_script->fileName() << kScript,
                    [this](int script) {
                        if (script >= 0) run(script); // otherwise it was not loaded
                    });
}

void KWinFrontmostApp::run(int script) {
    // The script's object has one path in KWin 6 and another in KWin 5; the call to the wrong one
    // fails. The script's first report is the reply.
    for (const auto* path : {"/Scripting/Script%1", "/%1"})
        m_session.send(m_kwin.call(QString::fromLatin1(path).arg(script),
                                   QStringLiteral("org.kde.kwin.Script"), QStringLiteral("run")));
}

void KWinFrontmostApp::take(const QDBusMessage& call) {
    if (!m_kwin.isOwnedBy(call.service()) || call.signature() != QLatin1String("ssss")) return;
    const QVariantList told = call.arguments();
    bool hasProcess = false;
    const qint64 process = told[3].toString().toLongLong(&hasProcess);
    const WindowHints hints{.applicationId = told[0].toString(),
                            .windowClass = told[1].toString(),
                            .instance = told[2].toString(),
                            .processId =
                                hasProcess && process > 0 ? std::optional(process) : std::nullopt};
    begin();
    if (hints == WindowHints{})
        reportNone();
    else
        report(hints);
}

} // namespace vantle

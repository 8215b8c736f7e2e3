#include "launch/Windows.h"

#include "app/AppModel.h"
#include "launch/PosterSharing.h"
#include "platform/FileManager.h"
#include "platform/FileSystem.h"
#include "platform/Platform.h"
#include "surfaces/dashboard/DashboardView.h"
#include "surfaces/notes/LogView.h"
#include "surfaces/quicklog/QuickLogView.h"
#include "surfaces/settings/SettingsView.h"
#include "surfaces/welcome/WelcomeView.h"
#include "surfaces/window/WindowRouter.h"
#include "surfaces/wrapped/WrappedView.h"
#include "surfaces/wrapped/poster/SharePng.h"
#include "tracking/SkillList.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QWindow>

namespace vantle {

namespace {

using Close = std::function<void()>;

QUrl viewAt(const char* place) {
    return QUrl(QStringLiteral("qrc:/qt/qml/Vantle/%1.qml").arg(QLatin1String(place)));
}

void copyText(const QString& text) { QGuiApplication::clipboard()->setText(text); }

std::unique_ptr<QObject> makeDashboard(const WindowParts& parts) {
    WindowRouter& router = parts.router;
    return std::make_unique<DashboardView>(DashboardView::Environment{
        .flow = parts.model.flow(),
        .skills = parts.skills,
        .notifications = parts.notifications,
        .preferences = parts.platform.preferences,
        .clock = parts.clock,
        .scheduler = parts.scheduler,
        .calendar = parts.calendar,
        .openQuickLog = [&router] { router.showQuickLog(); },
        // The review closes the window that asks for it.
        .openWrapped =
            [&router] {
                QMetaObject::invokeMethod(
                    &router, [&router] { router.showWrapped(); }, Qt::QueuedConnection);
            }});
}

std::unique_ptr<QObject> makeLog(const WindowParts& parts) {
    return std::make_unique<LogView>(LogView::Environment{.tracker = parts.model.tracker(),
                                                          .skills = parts.skills,
                                                          .notifications = parts.notifications,
                                                          .preferences = parts.platform.preferences,
                                                          .clock = parts.clock,
                                                          .scheduler = parts.scheduler,
                                                          .calendar = parts.calendar,
                                                          .copy = copyText});
}

std::unique_ptr<QObject> makeWrapped(const WindowParts& parts) {
    AppModel& model = parts.model;
    PosterSharing& sharing = parts.posterSharing;
    auto view = std::make_unique<WrappedView>(WrappedView::Environment{
        .notifications = parts.notifications,
        .preferences = parts.platform.preferences,
        .model = parts.platform.languageModel,
        .clock = parts.clock,
        .scheduler = parts.scheduler,
        .calendar = parts.calendar,
        .allSessions = [&model] { return model.tracker().allSessions(); },
        .skills = [&skills = parts.skills] { return skills.all(); },
        .initialPeriod = parts.router.wrappedInitialPeriod(),
        .enterVantle = [&model] { model.toggleVantle(); },
        .renderPng = renderSharePNG,
        .copyPng = [&sharing](const QByteArray& png) { sharing.copy(png); },
        .savePng =
            [&sharing, &router = parts.router](const QByteArray& png, const QString& name,
                                               std::function<void(WrappedView::Saved)> done) {
                sharing.save(png, name, router.window(WindowId::Wrapped), std::move(done));
            }});
    QObject::connect(&parts.skills, &SkillList::changed, view.get(), &WrappedView::open);
    const auto follow = [&tracker = model.tracker(), view = view.get()] {
        view->setTracking(tracker.state() != TrackerCore::State::Idle);
    };
    QObject::connect(&model.tracker(), &TrackerCore::stateChanged, view.get(), follow);
    follow();
    return view;
}

/// What is left is the program of a new person, whose sessions are practice until the welcome is
/// done. So it comes up again, once the settings have said what became of the erase.
std::optional<QString> eraseAndStartOver(AppModel& model, WindowRouter& router) {
    auto failure = model.eraseEverything();
    if (model.needsWelcome())
        QMetaObject::invokeMethod(
            &router, [&router] { router.showWelcome(); }, Qt::QueuedConnection);
    return failure;
}

/// Opens the folder of the user's shortcuts; makes it, private, if it is missing.
Result<> openShortcuts(const Platform& platform) {
    constexpr int kPrivateDirectory = 0700;
    const QString folder = platform.folders.config + QStringLiteral("/Vantle/shortcuts");
    if (auto made = platform.fileSystem.makeDirectories(folder, kPrivateDirectory); !made)
        return made;
    platform.fileManager.openFolder(folder);
    return {};
}

std::unique_ptr<QObject> makeSettings(const WindowParts& parts) {
    return std::make_unique<SettingsView>(SettingsView::Environment{
        .model = parts.model,
        .rules = parts.autoRules,
        .focusLink = parts.focusLink,
        .autostart = parts.platform.autostart,
        .preferences = parts.platform.preferences,
        .notifications = parts.notifications,
        .paths = parts.paths,
        .ioQueue = parts.ioQueue,
        .reveal = [&manager =
                       parts.platform.fileManager](const QString& path) { manager.reveal(path); },
        .openShortcuts = [&platform = parts.platform] { return openShortcuts(platform); },
        .tray = parts.platform.trayItem,
        .idleSource = parts.platform.idleSource,
        .frontmostApp = parts.platform.frontmostApp,
        .panelHost = parts.platform.panelHost,
        .copy = copyText,
        .eraseAllData = [&model = parts.model,
                         &router = parts.router] { return eraseAndStartOver(model, router); }});
}

std::unique_ptr<QObject> makeWelcome(const WindowParts& parts, const Close& close) {
    WindowRouter& router = parts.router;
    return std::make_unique<WelcomeView>(WelcomeView::Environment{
        .model = parts.model,
        .notifications = parts.notifications,
        .preferences = parts.platform.preferences,
        .reducedMotion = parts.platform.reducedMotion,
        .scheduler = parts.scheduler,
        .orderOut = [&router] { router.orderOut(WindowId::Welcome); },
        .bringForward = [&router] { router.showWelcome(); },
        .openWrapped = [&router] { router.showWrapped(); },
        .onClose = close,
        .isInFront =
            [&router] {
                const QWindow* const window = router.window(WindowId::Welcome);
                return window && window->isActive();
            }});
}

} // namespace

void registerWindows(const WindowParts& parts) {
    using Told = std::function<void(QObject&)>;
    const auto add = [&](WindowId id, const char* view, auto make, const Told& willClose = {}) {
        parts.router.registerWindow(
            id, {viewAt(view), [parts, make](const Close& close) { return make(parts, close); },
                 willClose});
    };
    add(WindowId::Dashboard, "Dashboard/DashboardPage",
        [](const WindowParts& p, const Close&) { return makeDashboard(p); });
    add(WindowId::Log, "Notes/NotesLogView",
        [](const WindowParts& p, const Close&) { return makeLog(p); });
    add(WindowId::QuickLog, "QuickLog/QuickLogForm",
        [](const WindowParts& p, const Close& close) -> std::unique_ptr<QObject> {
            return std::make_unique<QuickLogView>(p.model.flow(), p.skills, p.platform.preferences,
                                                  close);
        });
    add(WindowId::Wrapped, "Wrapped/WrappedPage",
        [](const WindowParts& p, const Close&) { return makeWrapped(p); });
    add(WindowId::Settings, "Settings/SettingsPage",
        [](const WindowParts& p, const Close&) { return makeSettings(p); });
    add(WindowId::Welcome, "Welcome/WelcomePage", makeWelcome,
        [](QObject& model) { static_cast<WelcomeView&>(model).finish(); });
}

} // namespace vantle

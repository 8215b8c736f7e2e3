#include "launch/AppDelegate.h"

#include "launch/Windows.h"
#include "platform/Autostart.h"
#include "platform/Preferences.h"
#include "platform/RunningCopy.h"
#include "platform/Screens.h"
#include "platform/TrayItem.h"
#include "surfaces/cards/RecoveryNoticeController.h"
#include "surfaces/cards/RetagToastController.h"
#include "surfaces/cards/StopSummaryController.h"
#include "surfaces/cards/TagPromptController.h"
#include "surfaces/window/WindowParts.h"
#include "tracking/Settings.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPointer>

#include <utility>

namespace vantle {

namespace {

/// How long a tray may take to place a new item; after that the panel opens in the corner.
constexpr Seconds kPlacePatience{0.5};

/// The bus holds back the call that it starts the program for and delivers it as soon as the
/// program owns its name. A later call is the user's own.
constexpr Seconds kFirstCallWithin{5.0};

/// The desktop's identity for the program's own windows.
const QString& ownBundleId() {
    static const QString id = QStringLiteral("local.vantle.Vantle");
    return id;
}

} // namespace

AppDelegate::AppDelegate(const Environment& environment)
    : m_env(environment)
    , m_platform(m_env.platform)
    , m_skills(m_env.paths, m_env.ioQueue, m_platform.preferences)
    , m_idleSource(m_env.clock, m_platform.preferences, m_platform.idleSource,
                   m_platform.idleInhibition)
    , m_autoSkill({m_env.clock, m_env.scheduler, m_env.autoSkillQueue, m_env.paths,
                   m_platform.preferences, m_skills, m_platform.frontmostApp, m_idleSource,
                   ownBundleId()})
    , m_focusLink(m_platform.preferences, m_platform.processRunner, m_env.shortcutsTool)
    , m_missingTray({m_env.scheduler, m_platform.preferences, m_platform.trayItem,
                     [this] { return m_commandCenter->isShown() && !m_model->lastActionNote(); },
                     [this](const QString& text) { m_model->report(text); }})
    , m_boundKey(m_env.clock) {}

AppDelegate::~AppDelegate() = default;

bool AppDelegate::applicationDidFinishLaunching() {
    if (m_env.offerMoveToApplications()) return false;
    // Before anything else reads the data.
    if (!m_lock.acquire(m_env.paths)) {
        // A start by hand asks for the panel of the running copy.
        if (m_env.startedUnasked || !m_platform.runningCopy.show()) m_env.alertAlreadyRunning();
        return false;
    }
    registerLoginItemOnce();
    makeModel();
    makeWindows();
    makeStatusItem();
    if (m_env.startedUnasked)
        m_firstCall =
            m_env.scheduler.scheduleOnce(kFirstCallWithin, [this] { m_firstCall.reset(); });
    if (m_model->needsWelcome()) {
        m_env.scheduler.post([router = QPointer(m_router.get())] {
            if (router) router->show(WindowId::Welcome);
        });
        return true;
    }
    if (m_env.startedUnasked) return true;
    m_env.scheduler.post([this, model = QPointer(m_model.get())] {
        if (model) showFirstPanel();
    });
    return true;
}

void AppDelegate::showFirstPanel() {
    // The panel drops from the tray item, which the tray takes a moment to place.
    if (!m_platform.trayItem.isPlacePending()) return m_model->showCommandCenter();
    const auto show = [this] {
        const TimerHandle spent = std::move(m_trayPatience);
        QObject::disconnect(m_trayPlaced);
        m_model->showCommandCenter();
    };
    m_trayPatience = m_env.scheduler.scheduleOnce(kPlacePatience, show);
    m_trayPlaced = QObject::connect(&m_platform.trayItem, &TrayItem::placeChanged, m_model.get(),
                                    [this, show] {
                                        if (!m_platform.trayItem.isPlacePending()) show();
                                    });
}

void AppDelegate::registerLoginItemOnce() {
    if (settings::loginAutoRegistered.read(m_platform.preferences)) return;
    settings::loginAutoRegistered.write(m_platform.preferences, true);
    if (!m_platform.autostart.isRegistered()) m_platform.autostart.registerItem().ignore();
}

void AppDelegate::makeModel() {
    Collaborators collaborators;
    makeCards(collaborators);
    if (m_env.makeNotch) collaborators.notch = m_env.makeNotch();
    if (m_env.makeRipple) collaborators.ripple = m_env.makeRipple();
    m_model =
        std::make_unique<AppModel>(AppModel::Environment{.clock = m_env.clock,
                                                         .scheduler = m_env.scheduler,
                                                         .ioQueue = m_env.ioQueue,
                                                         .paths = m_env.paths,
                                                         .preferences = m_platform.preferences,
                                                         .skills = m_skills,
                                                         .notifications = m_notifications,
                                                         .idleSource = m_idleSource,
                                                         .screenPower = m_platform.screenPower,
                                                         .hotKeyPort = m_platform.hotKeyPort,
                                                         .reducedMotion = m_platform.reducedMotion,
                                                         .cardSlot = m_cardSlot,
                                                         .autoSkill = m_autoSkill,
                                                         .focusLink = m_focusLink,
                                                         .frontmostApp = m_platform.frontmostApp,
                                                         .calendar = m_env.calendar,
                                                         .terminate = m_env.terminate},
                                   std::move(collaborators));
    m_model->showCommandCenter = [this] { showCommandCenter(); };
    m_spoken = std::make_unique<SpokenEvents>(
        SpokenEvents::Environment{*m_model, m_skills, m_questions, m_env.scheduler});
    m_report = std::make_unique<SessionReport>(
        SessionReport::Environment{m_env.clock, m_env.calendar, m_model->tracker(), m_skills,
                                   m_notifications, m_platform.sessionStatus});
}

void AppDelegate::makeCards(Collaborators& collaborators) {
    const CardEnvironment cards{
        m_env.scheduler, m_platform.preferences, m_skills,   m_notifications,
        m_cardSlot,      m_env.cardStage,        m_questions};
    auto recovery = std::make_unique<RecoveryNoticeController>(cards);
    m_recovery = recovery.get();
    QObject::connect(&m_platform.screens, &Screens::changed, m_recovery,
                     &RecoveryNoticeController::showWaiting);
    collaborators.recovery = std::move(recovery);
    auto summary = std::make_unique<StopSummaryController>(cards);
    m_summary = summary.get();
    collaborators.stopSummary = std::move(summary);
    collaborators.tagPrompt = std::make_unique<TagPromptController>(cards);
    collaborators.retagToast = std::make_unique<RetagToastController>(cards);
}

void AppDelegate::makeWindows() {
    m_router = std::make_unique<WindowRouter>(
        WindowEnvironment{m_env.viewEngine, m_platform.preferences, m_platform.screens,
                          m_platform.panelHost, m_platform.windowManager, m_env.scheduler,
                          [this] { m_model->quit(); }},
        m_notifications);
    addWindows({.platform = m_platform,
                .model = *m_model,
                .skills = m_skills,
                .notifications = m_notifications,
                .clock = m_env.clock,
                .scheduler = m_env.scheduler,
                .calendar = m_env.calendar,
                .router = *m_router,
                .autoRules = m_autoSkill.rules(),
                .focusLink = m_focusLink,
                .paths = m_env.paths,
                .ioQueue = m_env.ioQueue,
                .posterSharing = m_env.posterSharing,
                .copy = [](const QString& text) { QGuiApplication::clipboard()->setText(text); }});
    m_commandCenter =
        std::make_unique<CommandCenterController>(CommandCenterController::Environment{
            *m_model, m_skills, m_platform.preferences, m_env.clock, m_env.scheduler, *m_router,
            m_env.viewEngine, m_platform.panelHost, m_platform.screens, m_platform.pointerPresses,
            m_questions});
    m_commandCenter->statusItemGeometry = [this] { return m_statusItem->geometry(); };
}

void AppDelegate::makeStatusItem() {
    m_statusItem = std::make_unique<StatusItemController>(StatusItemController::Environment{
        m_model->tracker(), m_skills, m_platform.trayItem, m_env.scheduler,
        m_platform.reducedMotion, m_platform.screenPower});
    m_statusItem->onClick = [this](QPoint place) {
        m_commandCenter->toggle(place);
        m_model->ensureIdleNotch();
    };
    m_statusItem->onOpen = [this] {
        showCommandCenter();
        m_model->ensureIdleNotch();
    };
    m_statusItem->onToggle = [this] { m_model->toggleVantle(); };
    m_statusItem->onQuit = [this] { m_model->quit(); };
    StatusItemController* const item = m_statusItem.get();
    m_model->highlightStatusItem = [item = QPointer(item)](bool open) {
        if (item) item->setPanelOpen(open);
    };
    const auto show = [this] { showStatus(); };
    QObject::connect(m_model.get(), &AppModel::lastActionNoteChanged, item, show);
    QObject::connect(&m_model->tracker(), &TrackerCore::storageErrorChanged, item, show);
    QObject::connect(&m_model->hotKey(), &HotKey::registrationErrorChanged, item, show);
    showStatus();
}

void AppDelegate::showStatus() {
    const auto& note = m_model->lastActionNote();
    const auto& storage = m_model->tracker().storageError();
    const auto& hotKey = m_model->hotKey().registrationError();
    m_statusItem->setStatusText(note.value_or(storage.value_or(hotKey.value_or(QString()))));
}

void AppDelegate::showCommandCenter() {
    m_commandCenter->show();
    m_model->flashIdleNotchIntroIfNeeded();
    m_missingTray.panelOpened();
}

void AppDelegate::applicationShouldHandleReopen() {
    if (!m_model) return;
    // A start by the bus is followed by the call that it is for. A new user gets the welcome,
    // without the panel over it.
    const TimerHandle firstCall = std::exchange(m_firstCall, nullptr);
    if (firstCall && m_model->needsWelcome()) {
        m_router->show(WindowId::Welcome);
        return;
    }
    m_model->showCommandCenter();
    m_model->ensureIdleNotch();
}

void AppDelegate::applicationWillTerminate() {
    if (m_model) m_model->prepareForTermination();
}

void AppDelegate::applicationWillTerminateUnseen() {
    if (m_model) m_model->prepareForTerminationUnseen();
}

void AppDelegate::performAction(const QString& name) {
    if (!m_model) return;
    if (name == QLatin1String("toggle"))
        m_model->toggleVantle();
    else if (name == QLatin1String("toggle-by-key"))
        toggleByBoundKey();
    else if (name == QLatin1String("keep"))
        m_recovery->keep();
    else if (name == QLatin1String("discard"))
        m_recovery->discard();
    else if (name == QLatin1String("note"))
        m_summary->openNote();
    else if (name == QLatin1String("quit"))
        m_model->quit();
    else
        m_router->showByAction(name);
}

void AppDelegate::toggleByBoundKey() {
    if (m_boundKey.pressed()) m_model->toggleVantle();
}

} // namespace vantle

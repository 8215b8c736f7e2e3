// A machine on which the program is launched, with everything on it made up.
#pragma once

#include "app/PreferenceKeys.h"
#include "fakes/FakeAutostart.h"
#include "fakes/FakeCardStage.h"
#include "fakes/FakeFrontmostApp.h"
#include "fakes/FakeHotKeyPort.h"
#include "fakes/FakeIdleSource.h"
#include "fakes/FakeImageClipboard.h"
#include "fakes/FakeLanguageModel.h"
#include "fakes/FakePanelHost.h"
#include "fakes/FakePointerPresses.h"
#include "fakes/FakeProcessRunner.h"
#include "fakes/FakeReducedMotion.h"
#include "fakes/FakeSaveDialog.h"
#include "fakes/FakeScreenPower.h"
#include "fakes/FakeScreens.h"
#include "fakes/FakeTrayItem.h"
#include "fakes/FakeWindowManager.h"
#include "fakes/MemoryFileSystem.h"
#include "fakes/MemoryPreferences.h"
#include "fakes/VirtualTime.h"
#include "launch/AppDelegate.h"
#include "launch/PosterSharing.h"
#include "support/Text.h"
#include "surfaces/window/SharedEngine.h"
#include "tracking/AppPaths.h"

#include <QWindow>

#include <memory>
#include <vector>

namespace vantle::tests {

/// Writes down what the capsule shows.
class Capsule final : public collaborators::Notch {
public:
    explicit Capsule(QString& shown) : m_shown(shown) {}
    void show(TrackerCore&, const Skill& skill, const std::vector<Skill>&, bool,
              std::function<void()>, std::function<void(const QString&)>) override {
        m_shown = QStringLiteral("session ") + skill.id;
    }
    void showIdlePrompt(TrackerCore&, const Skill& skill, const std::vector<Skill>&, bool,
                        std::function<void()>, std::function<void(const QString&)>,
                        collaborators::SkillEditCallbacks) override {
        m_shown = QStringLiteral("idle ") + skill.id;
    }
    void hide() override { m_shown.clear(); }

private:
    QString& m_shown;
};

/// A machine on which copies of the program are started, by somebody who knows it already.
class AppDelegateWorld {
protected:
    AppDelegateWorld() {
        time.attach(ioQueue);
        time.attach(autoSkillQueue);
        preferences.setBoolean(preferencekeys::onboardDone, true);
        shapes.shapes.clear(); // nothing to show the panel on, which takes its time
    }

    std::unique_ptr<AppDelegate> makeCopy(bool atLogin = false) {
        return std::make_unique<AppDelegate>(AppDelegate::Environment{
            .clock = time,
            .scheduler = time,
            .ioQueue = ioQueue,
            .autoSkillQueue = autoSkillQueue,
            .paths = paths,
            .preferences = preferences,
            .idleSource = idleSource,
            .screenPower = screens,
            .hotKeyPort = hotKeyPort,
            .frontmostApp = frontmostApp,
            .processRunner = processRunner,
            .languageModel = languageModel,
            .posterSharing = posterSharing,
            .reducedMotion = reducedMotion,
            .autostart = autostart,
            .trayItem = tray,
            .cardStage = cardStage,
            .viewEngine = viewEngine,
            .panelHost = panelHost,
            .windowManager = windowManager,
            .screens = shapes,
            .pointerPresses = pointerPresses,
            .shortcutsTool = text("/bin/vantle-shortcuts"),
            .makeNotch = [this] { return std::make_unique<Capsule>(capsule); },
            .calendar =
                [] {
                    return Calendar{text("UTC"), 2, 4};
                },
            .offerMoveToApplications = [this] { return movesAway; },
            .terminate = [this] { ++terminations; },
            .alertAlreadyRunning = [this] { ++alerts; },
            .showRunningCopy = [this] { return ++calls > 0 && runningCopyAnswers; },
            .startedUnasked = atLogin});
    }

    /// The desktop gets its first screen.
    void connectScreen() { shapes.arrange(fakes::FakeScreens().shapes); }

    /// The titles of the windows that can be seen.
    [[nodiscard]] static QStringList openWindows(AppDelegate& app) {
        QStringList titles;
        for (const WindowId id : {WindowId::Dashboard, WindowId::Wrapped, WindowId::Log,
                                  WindowId::QuickLog, WindowId::Welcome, WindowId::Settings})
            if (const QWindow* const window = app.router()->window(id);
                window && window->isVisible())
                titles << window->title();
        return titles;
    }

    /// A copy that dies 130 s into a session.
    void leaveKilledSession() {
        const auto app = makeCopy(true);
        EXPECT_TRUE(app->applicationDidFinishLaunching());
        time.settle();
        app->performAction(text("toggle"));
        idleSource.touch();
        time.advance(130.0);
        ioQueue.runDry();
    }

    std::vector<Session> log() { return SessionLog(paths).readAll().sessions; }
    bool exists(const char* name) {
        return disk.exists(text("/data/Vantle/") + QLatin1String(name));
    }

    fakes::VirtualTime time;
    fakes::ManualQueue ioQueue;
    fakes::ManualQueue autoSkillQueue;
    fakes::MemoryFileSystem disk;
    fakes::MemoryPreferences preferences;
    fakes::FakeIdleSource idleSource{time};
    fakes::FakeScreenPower screens;
    fakes::FakeHotKeyPort hotKeyPort;
    fakes::FakeFrontmostApp frontmostApp;
    fakes::FakeProcessRunner processRunner;
    fakes::FakeLanguageModel languageModel;
    fakes::FakeReducedMotion reducedMotion;
    fakes::FakeTrayItem tray;
    fakes::FakeCardStage cardStage;
    SharedEngine viewEngine;
    fakes::FakePanelHost panelHost;
    fakes::FakeWindowManager windowManager;
    fakes::FakeScreens shapes;
    fakes::FakePointerPresses pointerPresses;
    fakes::FakeAutostart autostart;
    AppPaths paths{disk, text("/data")};
    fakes::FakeImageClipboard clipboard;
    fakes::FakeSaveDialog saveDialog;
    PosterSharing posterSharing{{clipboard, saveDialog, disk, time, ioQueue}};
    QString capsule; ///< what it shows; empty when there is none
    int terminations = 0;
    int alerts = 0;
    int calls = 0; ///< of the copy that runs
    bool runningCopyAnswers = false;
    bool movesAway = false;
};

} // namespace vantle::tests

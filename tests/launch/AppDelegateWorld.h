// A fake machine on which the program is launched.
#pragma once

#include "fakes/FakeCardStage.h"
#include "fakes/FakeDesktop.h"
#include "launch/AppDelegate.h"
#include "support/Text.h"
#include "surfaces/window/SharedEngine.h"
#include "surfaces/wrapped/PosterSharing.h"
#include "tracking/AppPaths.h"
#include "tracking/Settings.h"

#include <QWindow>

#include <memory>
#include <vector>

namespace vantle::tests {

/// Records what the capsule shows.
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

/// A machine on which copies of the program are started, by a user who has been through the
/// welcome.
class AppDelegateWorld : protected fakes::FakeDesktop {
protected:
    AppDelegateWorld() {
        time.attach(ioQueue);
        time.attach(autoSkillQueue);
        settings::welcomeDone.write(preferences, true);
        screens.shapes.clear(); // no screen, hence no panel, which is slow
    }

    std::unique_ptr<AppDelegate> makeCopy(bool atLogin = false) {
        return std::make_unique<AppDelegate>(AppDelegate::Environment{
            .platform = platform,
            .clock = time,
            .scheduler = time,
            .ioQueue = ioQueue,
            .autoSkillQueue = autoSkillQueue,
            .paths = paths,
            .posterSharing = posterSharing,
            .cardStage = cardStage,
            .viewEngine = viewEngine,
            .shortcutsTool = text("/bin/vantle-shortcuts"),
            .makeNotch = [this] { return std::make_unique<Capsule>(capsule); },
            .calendar =
                [] {
                    return Calendar{text("UTC"), 2, 4};
                },
            .offerMoveToApplications = [this] { return movesAway; },
            .terminate = [this] { ++terminations; },
            .alertAlreadyRunning = [this] { ++alerts; },
            .startedUnasked = atLogin});
    }

    /// Connects the first screen.
    void connectScreen() { screens.arrange(fakes::FakeScreens().shapes); }

    /// The titles of the visible windows.
    [[nodiscard]] static QStringList openWindows(AppDelegate& app) {
        QStringList titles;
        for (const WindowId id : {WindowId::Dashboard, WindowId::Wrapped, WindowId::Log,
                                  WindowId::QuickLog, WindowId::Welcome, WindowId::Settings})
            if (const QWindow* const window = app.router()->window(id);
                window && window->isVisible())
                titles << window->title();
        return titles;
    }

    /// A copy that was killed 130 s into a session.
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

    fakes::ManualQueue ioQueue;
    fakes::ManualQueue autoSkillQueue;
    fakes::FakeCardStage cardStage;
    SharedEngine viewEngine{time};
    AppPaths paths{disk, platform.folders.data};
    PosterSharing posterSharing{{clipboard, saveDialog, disk, time, ioQueue}};
    QString capsule; ///< what it shows; empty when there is none
    int terminations = 0;
    int alerts = 0;
    bool movesAway = false;
};

} // namespace vantle::tests

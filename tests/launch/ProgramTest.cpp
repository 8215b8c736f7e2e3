// The whole program, with every surface it has, on a desktop that is made up. What runs here needs
// no more of another desktop than what a Platform lists.
#include "launch/Program.h"

#include "fakes/FakeDesktop.h"
#include "support/QtPrinters.h"
#include "support/ShownItems.h"
#include "support/Text.h"
#include "surfaces/kit/tokens/ContrastPalette.h"
#include "surfaces/panel/FloatingPanel.h"
#include "tracking/Settings.h"

#include <QFont>
#include <QGuiApplication>
#include <QQuickWindow>
#include <QScreen>
#include <QWindow>

#include <gtest/gtest.h>

#include <cmath>
#include <list>

namespace vantle::tests {
namespace {

using State = TrackerCore::State;

/// Passes all on to a queue that lives longer.
class LentQueue final : public SerialQueue {
public:
    explicit LentQueue(SerialQueue& queue) : m_queue(queue) {}
    void async(std::function<void()> job) override { m_queue.async(std::move(job)); }
    void sync(const std::function<void()>& job) override { m_queue.sync(job); }

private:
    SerialQueue& m_queue;
};

class ProgramTest : public testing::Test, protected fakes::FakeDesktop {
protected:
    ProgramTest() {
        preferences.setBoolean(QLatin1String("onboard.done"), true);
        settings::skipInstallPrompt.write(preferences, true);
        // The ceremony covers a screen of the toolkit's.
        const QRectF screen = QGuiApplication::primaryScreen()->geometry();
        screens.shapes = {{.frame = screen, .available = screen}};
    }

    std::unique_ptr<Program> makeProgram() {
        return std::make_unique<Program>(
            platform, Program::Process{.clock = time,
                                       .scheduler = time,
                                       .makeQueue =
                                           [this](const QString&) {
                                               time.attach(queues.emplace_back());
                                               return std::make_unique<LentQueue>(queues.back());
                                           },
                                       .calendar =
                                           [] {
                                               return Calendar{text("UTC"), 2, 4};
                                           },
                                       .terminate = [] {}});
    }

    /// The user starts the program by hand.
    void start() {
        program = makeProgram();
        ASSERT_TRUE(program->start());
        time.settle();
    }

    /// What floats over the desktop now.
    static QStringList floating() {
        QStringList titles;
        for (const QWindow* window : QGuiApplication::allWindows())
            if (qobject_cast<const FloatingPanel*>(window) && window->isVisible())
                titles << window->title();
        titles.sort();
        return titles;
    }

    static QWindow* windowTitled(const char* title) {
        for (QWindow* window : QGuiApplication::allWindows())
            if (window->isVisible() && window->title() == text(title)) return window;
        return nullptr;
    }

    [[nodiscard]] State state() { return program->delegate().model()->tracker().state(); }

    std::list<fakes::ManualQueue> queues;
    std::unique_ptr<Program> program;
};

TEST_F(ProgramTest, ShowsThePanelAtAStartByHandAndTheCapsuleWhereThePointerRests) {
    start();
    EXPECT_EQ(floating(), QStringList{text("Vantle Command Center")});
    Q_EMIT trayItem.clicked({1000, 14});
    EXPECT_EQ(floating(), QStringList());
    ASSERT_TRUE(panelHost.sensor);
    panelHost.movePointer(panelHost.sensor->part.center());
    EXPECT_EQ(floating(), QStringList{text("Vantle Capsule")});
}

TEST_F(ProgramTest, WelcomesANewUser) {
    preferences.remove(QLatin1String("onboard.done"));
    start();
    EXPECT_TRUE(windowTitled("Welcome") != nullptr);
}

TEST_F(ProgramTest, WishesForContrastAndLargerTextAreFollowedWhileThePanelStands) {
    start();
    const auto* const panel = qobject_cast<QQuickWindow*>(windowTitled("Vantle Command Center"));
    ASSERT_NE(panel, nullptr);
    const QQuickItem* const words = shownItem(panel->contentItem(), [](const QQuickItem& item) {
        return item.property("text").toString() == text("Switch anytime");
    });
    ASSERT_NE(words, nullptr);
    const auto size = [&] { return words->property("font").value<QFont>().pixelSize(); };
    const auto color = [&] { return words->property("color").value<QColor>().rgba(); };
    EXPECT_EQ(size(), look::kType.small.size);
    readingWishes.setMoreContrast(true);
    EXPECT_EQ(color(), look::kContrasted.textTertiary.color().rgba());
    readingWishes.setTextScale(1.5);
    EXPECT_EQ(size(), std::lround(look::kType.small.size * 1.5));
    readingWishes.setMoreContrast(false);
    readingWishes.setTextScale(1.0);
    EXPECT_EQ(color(), look::kDark.textTertiary.color().rgba());
    EXPECT_EQ(size(), look::kType.small.size);
}

TEST_F(ProgramTest, RecordsASessionFromShortcutToLog) {
    start();
    ASSERT_TRUE(hotKeyPort.press());
    time.settle();
    EXPECT_EQ(state(), State::Running);
    time.advance(1.0);
    EXPECT_EQ(overlayStage.shown(), QList<QRect>{overlayStage.screens.front()});

    for (int minute = 0; minute < 10; ++minute) {
        idleSource.touch();
        time.advance(60.0);
    }
    ASSERT_TRUE(hotKeyPort.press());
    time.settle();
    EXPECT_EQ(state(), State::Idle);
    EXPECT_TRUE(floating().contains(text("Vantle Session Summary")));
    const AppPaths paths(disk, platform.folders.data);
    const auto sessions = SessionLog(paths).readAll().sessions;
    ASSERT_EQ(sessions.size(), 1U);
    EXPECT_EQ(sessions.front().activeSeconds, 601);
}

TEST_F(ProgramTest, OpensEachWindow) {
    start();
    for (const char* name : {"dashboard", "wrapped", "notes", "quick-log", "settings"}) {
        const auto before = QGuiApplication::allWindows().size();
        program->performAction(text(name));
        EXPECT_GT(QGuiApplication::allWindows().size(), before) << name;
    }
}

TEST_F(ProgramTest, LogsTheOpenSessionWhenTheProcessEnds) {
    start();
    ASSERT_TRUE(hotKeyPort.press());
    idleSource.touch();
    time.advance(120.0);
    program->stop();
    program.reset();
    const AppPaths paths(disk, platform.folders.data);
    EXPECT_EQ(SessionLog(paths).readAll().sessions.size(), 1U);
    EXPECT_EQ(floating(), QStringList());
    EXPECT_EQ(hotKeyPort.keys, 0);
}

TEST_F(ProgramTest, ASecondCopyAsksTheFirstToShowItself) {
    start();
    runningCopy.answers = true;
    EXPECT_FALSE(makeProgram()->start());
    EXPECT_EQ(runningCopy.calls, 1);
}

} // namespace
} // namespace vantle::tests

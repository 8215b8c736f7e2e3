#include "platform/wayland/WaylandToplevels.h"

#include "fakes/VirtualTime.h"
#include "platform/wayland/FakeCompositor.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <vector>

namespace vantle {
namespace {

using tests::FakeCompositor;

class WaylandToplevelsTest : public testing::Test {
protected:
    WaylandToplevelsTest() {
        m_compositor.offerToplevels();
        QObject::connect(&m_front, &FrontmostApp::activated, &m_front, [this](const auto& app) {
            m_told.append(app ? app->bundleId : QStringLiteral("none"));
        });
        m_compositor.settle();
    }
    int openInFront(const char* id) {
        const int window = m_compositor.open(id);
        m_compositor.activate(window, true);
        m_compositor.done(window);
        return window;
    }
    void front(int window, bool isActivated) {
        m_compositor.activate(window, isActivated);
        m_compositor.done(window);
    }

    FakeCompositor m_compositor;
    WaylandConnection m_connection{m_compositor.takeSocket()};
    fakes::VirtualTime m_time;
    bool m_oursHasTheKeyboard = false;
    WaylandToplevels m_front{m_connection,
                             {.scheduler = m_time,
                              .resolve =
                                  [](const WindowHints& hints) {
                                      return Application{hints.applicationId, {}};
                                  },
                              .oursHasTheKeyboard = [this] { return m_oursHasTheKeyboard; }}};
    QStringList m_told;
};

TEST_F(WaylandToplevelsTest, WhatIsToldCountsWhenItIsDone) {
    const int window = m_compositor.open("editor");
    m_compositor.activate(window, true);
    m_compositor.settle();
    EXPECT_EQ(m_front.frontmost(), std::nullopt);
    m_compositor.done(window);
    EXPECT_EQ(m_told, QStringList{QStringLiteral("editor")});
}

TEST_F(WaylandToplevelsTest, TheNewOneIsToldBeforeTheOldOneIsDeactivated) {
    const int editor = openInFront("editor");
    const int browser = openInFront("browser");
    front(editor, false);
    front(editor, true);
    front(browser, false);
    m_time.advance(1.0);
    EXPECT_EQ(m_told.join(QLatin1Char(' ')), QStringLiteral("editor browser editor"));
}

TEST_F(WaylandToplevelsTest, AMomentWithoutOneIsNoneOnlyOnceItLasts) {
    const int editor = openInFront("editor");
    front(editor, false);
    m_time.advance(0.15);
    front(editor, true);
    m_time.advance(1.0);
    EXPECT_EQ(m_told, QStringList{QStringLiteral("editor")});
    front(editor, false);
    m_time.advance(0.25);
    EXPECT_EQ(m_told.last(), QStringLiteral("none"));
}

TEST_F(WaylandToplevelsTest, APanelOfOursLeavesInFrontWhatWasThere) {
    const int editor = openInFront("editor");
    m_oursHasTheKeyboard = true;
    front(editor, false);
    m_time.advance(60.0);
    EXPECT_EQ(m_told, QStringList{QStringLiteral("editor")});
    m_oursHasTheKeyboard = false;
    m_time.advance(0.25);
    EXPECT_EQ(m_told.last(), QStringLiteral("none"));
}

TEST_F(WaylandToplevelsTest, AClosedWindowIsNotInFrontAndTheNextOneIs) {
    const int editor = openInFront("editor");
    const int browser = m_compositor.open("browser");
    m_compositor.done(browser);
    m_compositor.close(editor);
    front(browser, true);
    m_time.advance(1.0);
    EXPECT_EQ(m_told.join(QLatin1Char(' ')), QStringLiteral("editor browser"));
    m_compositor.close(browser);
    m_time.advance(1.0);
    EXPECT_EQ(m_told.last(), QStringLiteral("none"));
}

TEST_F(WaylandToplevelsTest, AnotherWindowOfTheSameApplicationIsNoSwitch) {
    openInFront("editor");
    openInFront("editor");
    EXPECT_EQ(m_told.size(), 1);
}

TEST_F(WaylandToplevelsTest, AWindowThatNamesItselfLaterIsThatApplicationThen) {
    const int window = openInFront("terminal");
    m_compositor.say(window, "monitor");
    m_compositor.done(window);
    EXPECT_EQ(m_told.last(), QStringLiteral("monitor"));
}

TEST_F(WaylandToplevelsTest, ACompositorThatStopsTellingCantTell) {
    openInFront("editor");
    EXPECT_EQ(m_front.coverage(), AppCoverage::All);
    int changes = 0;
    QObject::connect(&m_front, &FrontmostApp::coverageChanged, &m_front, [&] { ++changes; });
    m_compositor.finish();
    EXPECT_EQ(m_front.coverage(), AppCoverage::None);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(m_told.last(), QStringLiteral("none"));
}

} // namespace
} // namespace vantle

#include "surfaces/dashboard/DashboardView.h"

#include "app/ModelWorld.h"
#include "tracking/Samples.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

class DashboardViewTest : public testing::Test, protected tests::ModelWorld {
protected:
    DashboardView& open() {
        idleSource.fix(0);
        if (!model) launch();
        return m_view.emplace(
            DashboardView::Environment{*model, notifications, preferences, time, time,
                                       [] {
                                           return Calendar{QStringLiteral("UTC"), 1, 1};
                                       },
                                       [this] { ++m_quickLogs; }, [this] { ++m_reviews; }});
    }
    [[nodiscard]] StatBlock stat(int index) { return m_view->stats()[index].value<StatBlock>(); }

    int m_quickLogs = 0;
    int m_reviews = 0;
    std::optional<DashboardView> m_view;
};

TEST_F(DashboardViewTest, WithoutALogEverythingInvites) {
    DashboardView& view = open();
    EXPECT_EQ(stat(0).value, QString());
    EXPECT_TRUE(view.skillTotals().isEmpty());
    EXPECT_TRUE(view.recent().isEmpty());
    EXPECT_EQ(view.recentText(), QString());
    EXPECT_EQ(view.sliceFraction(), 0);
    EXPECT_EQ(view.sliceColor(), QColor::fromRgb(0x7A78FF));
    EXPECT_EQ(view.warning(), QString());
}

TEST_F(DashboardViewTest, ChipFollowsTheSessionSecondBySecond) {
    DashboardView& view = open();
    EXPECT_FALSE(view.isOpen());
    view.toggle();
    settle();
    ASSERT_TRUE(view.isOpen());
    int ticks = 0;
    QObject::connect(&view, &DashboardView::ticked, [&] { ++ticks; });
    time.advance(90);
    EXPECT_GE(ticks, 90);
    EXPECT_TRUE(view.chipText().endsWith(QStringLiteral(" · 1 min")))
        << view.chipText().toStdString();
    EXPECT_EQ(view.chipHoverText(), QStringLiteral("Stop · 1 min"));
    EXPECT_EQ(view.chipLabel(), view.chipText() + QStringLiteral(". Stops the session."));
    view.toggle();
    settle();
    EXPECT_FALSE(view.isOpen());
}

TEST_F(DashboardViewTest, PausedSessionSaysSo) {
    DashboardView& view = open();
    view.toggle();
    time.advance(120);
    model->tracker().pause(time.now());
    EXPECT_TRUE(view.isPaused());
    EXPECT_EQ(view.chipText(), QStringLiteral("Paused · 2 min"));
}

TEST_F(DashboardViewTest, WallFillsWhileTheSessionRunsAndStopsWithIt) {
    DashboardView& view = open();
    view.toggle();
    time.advance(1800);
    EXPECT_NEAR(view.partialFraction(), 0.5, 0.001);
    EXPECT_EQ(view.sliceColor(), view.chipColor());
    view.toggle();
    settle();
    EXPECT_NEAR(view.partialFraction(), 0.5, 0.001);
    EXPECT_EQ(view.recent().size(), 1);
    int ticks = 0;
    QObject::connect(&view, &DashboardView::ticked, [&] { ++ticks; });
    time.advance(60);
    EXPECT_EQ(ticks, 0);
}

TEST_F(DashboardViewTest, SessionThatEndsElsewhereIsInTheFiguresAtOnce) {
    open();
    press();
    time.advance(7200);
    press();
    EXPECT_EQ(stat(0).value, QStringLiteral("2"));
    EXPECT_EQ(m_view->wallText(), QStringLiteral("2 hours"));
}

TEST_F(DashboardViewTest, ChangedGoalCountsAtTheNextReload) {
    preferences.setNumber(QStringLiteral("goal.dailyHours"), 4);
    open();
    EXPECT_EQ(stat(1).invitation, QStringLiteral("28 h goal · a session starts the bar"));
}

TEST_F(DashboardViewTest, DamagedLogIsToldInTheBanner) {
    launch();
    disk.setContent(file("sessions.jsonl"), "this is no record\n");
    DashboardView& view = open();
    EXPECT_TRUE(view.warning().startsWith(QStringLiteral("Data warning: ")));
    EXPECT_TRUE(view.warning().contains(*model->tracker().dataWarning()));
}

TEST_F(DashboardViewTest, FailureToStoreGoesBeforeTheWarning) {
    launch();
    disk.setContent(file("sessions.jsonl"), "this is no record\n");
    DashboardView& view = open();
    view.toggle();
    time.advance(60);
    breakWrites(QStringLiteral("sessions.jsonl"), true);
    view.toggle();
    ASSERT_TRUE(model->tracker().storageError());
    EXPECT_EQ(view.warning(), QStringLiteral("Data warning: ") + *model->tracker().storageError());
}

TEST_F(DashboardViewTest, AtMidnightTodayBeginsAnew) {
    open();
    press();
    time.advance(3600);
    press();
    EXPECT_EQ(stat(0).value, QStringLiteral("1"));
    time.advance(24 * 3600);
    EXPECT_EQ(stat(0).value, QString());
    EXPECT_EQ(stat(2).value, QStringLiteral("1"));
}

TEST_F(DashboardViewTest, LeadsToTheOtherWindows) {
    DashboardView& view = open();
    view.openQuickLog();
    view.openWrapped();
    EXPECT_EQ(m_quickLogs, 1);
    EXPECT_EQ(m_reviews, 1);
}

} // namespace
} // namespace vantle

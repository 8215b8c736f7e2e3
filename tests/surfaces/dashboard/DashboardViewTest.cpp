#include "surfaces/dashboard/DashboardView.h"

#include "surfaces/dashboard/DashboardWorld.h"
#include "tracking/Samples.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

class DashboardViewTest : public testing::Test, protected tests::DashboardWorld {
protected:
    [[nodiscard]] StatBlock stat(int index) { return view->stats()[index].value<StatBlock>(); }
};

TEST_F(DashboardViewTest, WithoutALogEverythingInvites) {
    open();
    EXPECT_EQ(stat(0).value, QString());
    EXPECT_TRUE(view->skillTotals().isEmpty());
    EXPECT_TRUE(view->recent().isEmpty());
    EXPECT_EQ(view->recentText(), QString());
    EXPECT_EQ(view->sliceFraction(), 0);
    EXPECT_EQ(view->sliceColor(), QColor::fromRgb(0x7A78FF));
    EXPECT_EQ(view->warning(), QString());
}

TEST_F(DashboardViewTest, ChipFollowsTheSessionSecondBySecond) {
    open();
    EXPECT_FALSE(view->isOpen());
    view->toggle();
    settle();
    ASSERT_TRUE(view->isOpen());
    int ticks = 0;
    QObject::connect(&*view, &DashboardView::ticked, [&] { ++ticks; });
    time.advance(90);
    EXPECT_GE(ticks, 90);
    EXPECT_TRUE(view->chipText().endsWith(QStringLiteral(" · 1 min")))
        << view->chipText().toStdString();
    EXPECT_EQ(view->chipHoverText(), QStringLiteral("Stop · 1 min"));
    EXPECT_EQ(view->chipLabel(), view->chipText() + QStringLiteral(". Stops the session."));
    view->toggle();
    settle();
    EXPECT_FALSE(view->isOpen());
}

TEST_F(DashboardViewTest, PausedSessionSaysSo) {
    open();
    view->toggle();
    time.advance(120);
    model->tracker().pause(time.now());
    EXPECT_TRUE(view->isPaused());
    EXPECT_EQ(view->chipText(), QStringLiteral("Paused · 2 min"));
}

TEST_F(DashboardViewTest, WallFillsWhileTheSessionRunsAndStopsWithIt) {
    open();
    view->toggle();
    time.advance(1800);
    EXPECT_NEAR(view->partialFraction(), 0.5, 0.001);
    EXPECT_EQ(view->sliceColor(), view->chipColor());
    view->toggle();
    settle();
    EXPECT_NEAR(view->partialFraction(), 0.5, 0.001);
    EXPECT_EQ(view->recent().size(), 1);
    int ticks = 0;
    QObject::connect(&*view, &DashboardView::ticked, [&] { ++ticks; });
    time.advance(60);
    EXPECT_EQ(ticks, 0);
}

TEST_F(DashboardViewTest, SessionThatEndsElsewhereIsInTheFiguresAtOnce) {
    open();
    press();
    time.advance(7200);
    press();
    EXPECT_EQ(stat(0).value, QStringLiteral("2"));
    EXPECT_EQ(view->wallText(), QStringLiteral("2 hours"));
}

TEST_F(DashboardViewTest, ChangedGoalIsFollowedWhileTheWindowIsOpen) {
    open();
    EXPECT_EQ(stat(1).invitation, QStringLiteral("14 h goal · a session starts the bar"));
    preferences.setNumber(QStringLiteral("goal.dailyHours"), 4);
    EXPECT_EQ(stat(1).invitation, QStringLiteral("28 h goal · a session starts the bar"));
}

TEST_F(DashboardViewTest, RenamedModeIsFollowedWhileTheWindowIsOpen) {
    open();
    press();
    time.advance(3600);
    press();
    const Skill worked = model->skills().front();
    model->updateSkill(worked.id, QStringLiteral("Drafts"), worked.hexRGB);
    EXPECT_EQ(view->recent()[0].value<RecentLine>().skillName, QStringLiteral("Drafts"));
    EXPECT_EQ(view->skillTotals()[0].value<SkillTotalLine>().name, QStringLiteral("Drafts"));
}

TEST_F(DashboardViewTest, RecordOfAClockThatWasAheadCountsWithinAnHourOfItsTime) {
    launch();
    Session session = samples::session();
    session.startedAt = time.now() + Seconds(40 * 60);
    session.endedAt = session.startedAt + Seconds(1800);
    session.activeSeconds = 1800;
    disk.setContent(file("sessions.jsonl"), samples::line(session));
    open();
    EXPECT_EQ(stat(2).value, QString());
    time.advance(3600);
    EXPECT_EQ(stat(2).value, QStringLiteral("30"));
}

TEST_F(DashboardViewTest, DamagedLogIsToldInTheBanner) {
    launch();
    disk.setContent(file("sessions.jsonl"), "this is no record\n");
    open();
    EXPECT_TRUE(view->warning().startsWith(QStringLiteral("Data warning: ")));
    EXPECT_TRUE(view->warning().contains(*model->tracker().dataWarning()));
}

TEST_F(DashboardViewTest, FailureToStoreGoesBeforeTheWarning) {
    launch();
    disk.setContent(file("sessions.jsonl"), "this is no record\n");
    open();
    view->toggle();
    time.advance(60);
    breakWrites(QStringLiteral("sessions.jsonl"), true);
    view->toggle();
    ASSERT_TRUE(model->tracker().storageError());
    EXPECT_EQ(view->warning(), QStringLiteral("Data warning: ") + *model->tracker().storageError());
}

TEST_F(DashboardViewTest, AtMidnightTodayStartsAtZero) {
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
    open();
    view->openQuickLog();
    view->openWrapped();
    EXPECT_EQ(quickLogs, 1);
    EXPECT_EQ(reviews, 1);
}

} // namespace
} // namespace vantle

#include "app/SessionReport.h"

#include "app/ModelWorld.h"
#include "fakes/FakeSessionStatus.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

class SessionReportTest : public testing::Test {
protected:
    [[nodiscard]] SessionStatus::Values values() const { return m_status.read(); }
    /// Writes of the log are over.
    void settle() { m_world.settle(); }
    void workFor(double seconds) {
        m_world.idleSource.fix(0);
        m_world.time.advance(seconds);
    }

    tests::ModelWorld m_world;
    AppModel& m_model = m_world.launch();
    fakes::FakeSessionStatus m_status;
    SessionReport m_report{{m_world.time,
                            [] {
                                return Calendar{QStringLiteral("UTC"), 2, 4};
                            },
                            m_model.tracker(), *m_world.skills, m_world.notifications, m_status}};
};

TEST_F(SessionReportTest, WithoutASessionThereIsNoSkillAndNoCount) {
    const auto told = values();
    EXPECT_EQ(told.state, QStringLiteral("idle"));
    EXPECT_EQ(told.skillName, QString());
    EXPECT_EQ(told.skillColor, QString());
    EXPECT_EQ(told.activeSeconds, 0);
    EXPECT_EQ(told.todaySeconds, 0);
    EXPECT_EQ(told.asOf, static_cast<std::int64_t>(epochSeconds(m_world.time.now())));
}

TEST_F(SessionReportTest, CountsAreAsOfTheQuestion) {
    m_world.press();
    workFor(90);
    const auto told = values();
    EXPECT_EQ(told.state, QStringLiteral("running"));
    EXPECT_EQ(told.skillName, m_world.skills->all().front().name);
    EXPECT_TRUE(told.skillColor.startsWith(QLatin1Char('#'))) << told.skillColor.toStdString();
    EXPECT_EQ(told.skillColor.size(), 7);
    EXPECT_EQ(told.activeSeconds, 90);
    workFor(10);
    EXPECT_EQ(values().activeSeconds, 100);
    EXPECT_EQ(values().asOf - told.asOf, 10);
}

TEST_F(SessionReportTest, ClocksFromTwoReadingsOfARunAgree) {
    m_world.time.advance(0.7);
    m_world.press();
    const auto zero = [this] {
        const auto told = values();
        return told.asOf - told.activeSeconds;
    };
    const std::int64_t first = zero();
    for (int tenth = 0; tenth < 30; ++tenth) {
        workFor(0.1);
        EXPECT_EQ(zero(), first);
    }
}

TEST_F(SessionReportTest, SleepOfTheMachineIsNotInTheCount) {
    m_world.press();
    workFor(90);
    EXPECT_EQ(values().activeSeconds, 90);
    m_world.time.suspend(3600);
    workFor(10);
    EXPECT_EQ(m_model.tracker().state(), TrackerCore::State::Running);
    EXPECT_NEAR(static_cast<double>(values().activeSeconds), 100, 1) << "cut out to the second";
}

TEST_F(SessionReportTest, TodayHoldsWhatWasLoggedAndWhatRuns) {
    m_world.press();
    workFor(600);
    m_world.press();
    settle();
    EXPECT_EQ(values().todaySeconds, 600);
    m_world.press();
    workFor(60);
    EXPECT_EQ(values().activeSeconds, 60);
    EXPECT_EQ(values().todaySeconds, 660);
}

TEST_F(SessionReportTest, TimeAddedByHandCountsAtOnce) {
    EXPECT_EQ(values().todaySeconds, 0);
    const int before = m_status.changes;
    ASSERT_TRUE(
        m_world.model->quickLog(m_world.skills->all().front().id, 30, QStringLiteral("a note")));
    settle();
    EXPECT_GT(m_status.changes, before);
    EXPECT_EQ(values().todaySeconds, 1800);
}

TEST_F(SessionReportTest, YesterdayIsOverAtMidnight) {
    m_world.press();
    workFor(600);
    m_world.press();
    settle();
    ASSERT_EQ(values().todaySeconds, 600);
    workFor(86400);
    EXPECT_EQ(values().todaySeconds, 0);
}

TEST_F(SessionReportTest, TellsOfASkillThatIsRenamed) {
    m_world.press();
    const int before = m_status.changes;
    m_model.updateSkill(QStringLiteral("building"), QStringLiteral("Carpentry"), 0x30D158);
    EXPECT_GT(m_status.changes, before);
    EXPECT_EQ(values().skillName, QStringLiteral("Carpentry"));
}

TEST_F(SessionReportTest, TellsOfEachChangeOfStateAndOfNoSecond) {
    const int before = m_status.changes;
    m_world.press();
    const int started = m_status.changes;
    EXPECT_GT(started, before);
    workFor(60);
    EXPECT_EQ(m_status.changes, started);
    m_world.model->tracker().pause(m_world.time.now());
    EXPECT_GT(m_status.changes, started);
    EXPECT_EQ(values().state, QStringLiteral("paused"));
    const int paused = m_status.changes;
    m_world.press();
    EXPECT_GT(m_status.changes, paused);
}

} // namespace
} // namespace vantle

// What a screen reader is given to speak of a session, whatever has the keyboard.
#include "launch/SpokenEvents.h"

#include "app/ModelWorld.h"
#include "app/OpenQuestions.h"
#include "support/Text.h"

#include <gtest/gtest.h>

#include <optional>

namespace vantle {
namespace {

using tests::text;

class SpokenEventsTest : public testing::Test {
protected:
    /// Starts the program; what is said from then on is in `said`, each time once.
    AppModel& launch() {
        AppModel& model = world.launch();
        m_events.emplace(SpokenEvents::Environment{model, *world.skills, m_questions, world.time});
        QObject::connect(&m_events->announcer(), &Announcer::textChanged, &m_events->announcer(),
                         [this] { said << m_events->announcer().text(); });
        world.time.advance(3); // until the accessibility service is there
        return model;
    }

    tests::ModelWorld world;
    QStringList said;

private:
    OpenQuestions m_questions;
    std::optional<SpokenEvents> m_events;
};

TEST_F(SpokenEventsTest, PauseAndResumptionOfASessionAreSpoken) {
    launch();
    world.press();
    world.time.advance(60);
    world.screens.sleep();
    world.settle();
    EXPECT_EQ(said, QStringList({text("Session started, Build"), text("Paused, away")}));
    world.screens.wake();
    world.idleSource.touch();
    world.time.advance(20);
    EXPECT_EQ(said.last(), text("Resumed, Build"));
    EXPECT_EQ(said.size(), 3);
}

TEST_F(SpokenEventsTest, RunningClockIsSilent) {
    launch();
    world.press();
    for (int minute = 0; minute < 90; ++minute) {
        world.idleSource.touch();
        world.time.advance(60);
    }
    EXPECT_EQ(said, QStringList{text("Session started, Build")});
}

TEST_F(SpokenEventsTest, ChosenSkillIsSpoken) {
    AppModel& model = launch();
    model.selectSkill(model.skills().at(1).id, AppModel::SkillSelectionOrigin::Human);
    world.settle();
    EXPECT_EQ(said, QStringList{text("Design chosen")});
}

TEST_F(SpokenEventsTest, AnotherSkillInASessionIsSpoken) {
    AppModel& model = launch();
    world.press();
    world.time.advance(60);
    model.selectSkill(model.skills().at(1).id, AppModel::SkillSelectionOrigin::Human);
    world.settle();
    EXPECT_EQ(said, QStringList({text("Session started, Build"), text("Switched to Design")}));
}

} // namespace
} // namespace vantle

#include "surfaces/quicklog/QuickLogView.h"

#include "app/ModelWorld.h"
#include "tracking/Settings.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

class QuickLogViewTest : public testing::Test, protected tests::ModelWorld {
protected:
    QuickLogView& open() {
        if (!model) launch();
        return m_view.emplace(model->flow(), *skills, preferences, [this] { ++m_closed; });
    }
    void type(const char* hours, const char* minutes) {
        m_view->setHoursText(QString::fromUtf8(hours));
        m_view->setMinutesText(QString::fromUtf8(minutes));
    }

    int m_closed = 0;
    std::optional<QuickLogView> m_view;
};

TEST_F(QuickLogViewTest, OpensWithTheSkillThatWasUsedLast) {
    launch();
    settings::lastUsedSkill.write(preferences, model->skills()[2].id);
    EXPECT_EQ(open().skillIndex(), 2);
    settings::lastUsedSkill.write(preferences, QStringLiteral("gone"));
    EXPECT_EQ(open().skillIndex(), 0);
    settings::lastUsedSkill.remove(preferences);
    EXPECT_EQ(open().skillIndex(), 0);
}

TEST_F(QuickLogViewTest, EntryIsLoggedUnderItsSkillAndTheFormCloses) {
    QuickLogView& view = open();
    view.setSkillIndex(1);
    type("1", "30");
    view.setProperty("note", QStringLiteral(" Drafted the landing page "));
    view.logEntry();
    ASSERT_EQ(log().size(), 1U);
    EXPECT_EQ(log()[0].skillId, model->skills()[1].id);
    EXPECT_EQ(log()[0].activeSeconds, 5400);
    EXPECT_EQ(log()[0].note, QStringLiteral("Drafted the landing page"));
    EXPECT_EQ(log()[0].source, sourceManual());
    EXPECT_EQ(m_closed, 1);
}

TEST_F(QuickLogViewTest, NoTimeAtAllIsToldAtTheHours) {
    QuickLogView& view = open();
    int wanted = 0;
    QObject::connect(&view, &QuickLogView::hoursWanted, [&] { ++wanted; });
    type("0", "0");
    view.logEntry();
    EXPECT_EQ(view.errorMessage(), QStringLiteral("Enter a time between 1 minute and 16 hours."));
    EXPECT_TRUE(view.isTimeWrong());
    EXPECT_EQ(wanted, 1);
    EXPECT_EQ(m_closed, 0);
    EXPECT_TRUE(log().empty());
}

TEST_F(QuickLogViewTest, TooLongIsToldUnlessTheFieldWasLeftBefore) {
    QuickLogView& view = open();
    type("16", "1");
    view.logEntry();
    EXPECT_TRUE(view.isTimeWrong());
    view.normalizeDuration();
    EXPECT_EQ(view.hoursText(), QStringLiteral("16"));
    EXPECT_EQ(view.minutesText(), QStringLiteral("0"));
    EXPECT_EQ(view.errorMessage(), QString());
    view.logEntry();
    EXPECT_EQ(m_closed, 1);
}

TEST_F(QuickLogViewTest, RefusedEntryStaysAsTypedWithTheReason) {
    QuickLogView& view = open();
    type("2", "0");
    view.setProperty("note", QStringLiteral("work"));
    breakWrites(QStringLiteral("sessions.jsonl"), true);
    view.logEntry();
    EXPECT_EQ(view.errorMessage(), model->tracker().storageError().value_or(QString()));
    EXPECT_FALSE(view.errorMessage().isEmpty());
    EXPECT_FALSE(view.isTimeWrong());
    EXPECT_EQ(view.hoursText(), QStringLiteral("2"));
    EXPECT_EQ(view.property("note").toString(), QStringLiteral("work"));
    EXPECT_EQ(m_closed, 0);
    breakWrites(QStringLiteral("sessions.jsonl"), false);
    view.logEntry();
    EXPECT_EQ(m_closed, 1);
}

TEST_F(QuickLogViewTest, CancelClosesAndLogsNothing) {
    open().cancel();
    EXPECT_EQ(m_closed, 1);
    EXPECT_TRUE(log().empty());
}

TEST_F(QuickLogViewTest, ListFollowsTheModesWhileTheFormIsOpen) {
    QuickLogView& view = open();
    view.setSkillIndex(2);
    const Skill chosen = model->skills()[2];
    const Skill first = model->skills()[0];
    model->updateSkill(chosen.id, QStringLiteral("Drafts"), chosen.hexRGB);
    EXPECT_EQ(view.skillNames()[2], QStringLiteral("Drafts"));
    model->deleteSkill(first.id);
    EXPECT_EQ(view.skillNames()[view.skillIndex()], QStringLiteral("Drafts"));
    model->deleteSkill(chosen.id);
    EXPECT_EQ(view.skillIndex(), 0);
    EXPECT_FALSE(view.skillNames().contains(QStringLiteral("Drafts")));
}

} // namespace
} // namespace vantle

#include "surfaces/cards/StopSummaryModel.h"

#include "support/Text.h"
#include "surfaces/cards/CardWorld.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace vantle::tests {
namespace {

using Content = collaborators::StopSummary::Content;

Content afterMinutes(int minutes) {
    Content content;
    content.session = CardWorld::session(60 * minutes);
    content.carrySeconds = 60 * minutes;
    return content;
}

StopSummaryModel modelOf(const Content& content) {
    return {content, Skill::defaults().front(), DurationStyle::Natural};
}

TEST(StopSummaryModel, TheDurationIsWrittenInWordsAndReadWithItsSkill) {
    const StopSummaryModel model = modelOf(afterMinutes(144));
    EXPECT_EQ(model.durationWords(), QStringList({text("2"), text("h"), text("24"), text("min")}));
    EXPECT_EQ(model.durationLabel(), text("2 h 24 min of Build"));
}

TEST(StopSummaryModel, AsAClockTheDurationIsOneFigure) {
    const StopSummaryModel model(afterMinutes(65), Skill::defaults().front(), DurationStyle::Clock);
    EXPECT_EQ(model.durationWords(), QStringList(text("1:05:00")));
}

TEST(StopSummaryModel, NewHoursAreDotsAndAreNamed) {
    Content content = afterMinutes(144);
    content.newHours = 2;
    EXPECT_EQ(modelOf(content).dotCount(), 2);
    EXPECT_EQ(modelOf(content).resultText(), text("Completed 2 hours on your wall"));
    EXPECT_EQ(modelOf(content).sliceFraction(), 0) << "whole hours leave no room for a slice";
    content.newHours = 1;
    EXPECT_EQ(modelOf(content).resultText(), text("Completed an hour on your wall"));
}

TEST(StopSummaryModel, OfThirtyHoursTwelveAreShownAndAllAreNamed) {
    Content content = afterMinutes(1800);
    content.newHours = 30;
    EXPECT_EQ(modelOf(content).dotCount(), 12);
    EXPECT_EQ(modelOf(content).resultText(), text("Completed 30 hours on your wall"));
}

TEST(StopSummaryModel, LessThanAnHourIsASliceOfTheNextDot) {
    EXPECT_EQ(modelOf(afterMinutes(38)).resultText(), text("38 min into your next dot"));
    EXPECT_DOUBLE_EQ(modelOf(afterMinutes(38)).sliceFraction(), 38.0 / 60.0);
    EXPECT_EQ(modelOf(afterMinutes(38)).dotCount(), 0);
}

TEST(StopSummaryModel, TheSliceShowsWhatTheWallHoldsNotOnlyThisSession) {
    Content content = afterMinutes(5);
    content.carrySeconds = 1800;
    EXPECT_EQ(modelOf(content).resultText(), text("30 min into your next dot"));
    EXPECT_DOUBLE_EQ(modelOf(content).sliceFraction(), 0.5);
}

TEST(StopSummaryModel, NothingCarriedOverIsStillAdded) {
    Content content = afterMinutes(0);
    EXPECT_EQ(modelOf(content).resultText(), text("Added to your wall"));
    EXPECT_EQ(modelOf(content).sliceFraction(), 0);
}

TEST(StopSummaryModel, TheFirstSessionIsGreetedAndTheNoteIsInvited) {
    Content content = afterMinutes(1);
    EXPECT_EQ(modelOf(content).firstSessionText(), QString());
    EXPECT_EQ(modelOf(content).invitationText(), QString());
    EXPECT_EQ(modelOf(content).lockText(), text("Saved privately with this session."));
    EXPECT_EQ(modelOf(content).hintText(), text("Press Return to save"));
    content.isFirstSession = content.spotlightNote = content.showHotkeyHint = true;
    EXPECT_EQ(modelOf(content).firstSessionText(), text("Your first session is on the wall."));
    EXPECT_EQ(modelOf(content).invitationText(),
              text("Try the note: one line about what you just did. This first one is just "
                   "practice."));
    EXPECT_EQ(modelOf(content).lockText(),
              text("Notes save privately with each session, after this one."));
    EXPECT_EQ(modelOf(content).hintText(),
              text("Next time: press option command B to start and stop from anywhere."));
}

TEST(StopSummaryNote, OfSixHundredPastedCharactersFiveHundredStayAndTheCounterSaysSo) {
    StopSummaryModel model = modelOf(afterMinutes(5));
    EXPECT_EQ(model.takeNote(QString(600, QLatin1Char('a'))), QString(500, QLatin1Char('a')));
    EXPECT_EQ(model.note().size(), 500);
    EXPECT_EQ(model.counterText(), text("500/500"));
}

TEST(StopSummaryNote, ACharacterIsWhatTheUserSeesAsOne) {
    const QString family = text("👨‍👩‍👧"); // eight UTF-16 units
    StopSummaryModel model = modelOf(afterMinutes(5));
    EXPECT_EQ(model.takeNote(family.repeated(501)), family.repeated(500));
    EXPECT_EQ(model.counterText(), text("500/500"));
}

TEST(StopSummaryNote, TheCounterAppearsAtFourHundred) {
    StopSummaryModel model = modelOf(afterMinutes(5));
    (void)model.takeNote(QString(399, QLatin1Char('a')));
    EXPECT_EQ(model.counterText(), QString());
    (void)model.takeNote(QString(400, QLatin1Char('a')));
    EXPECT_EQ(model.counterText(), text("400/500"));
}

TEST(StopSummaryNote, TheButtonsSayWhetherANoteGoesWithThem) {
    StopSummaryModel model = modelOf(afterMinutes(5));
    EXPECT_EQ(model.doneText(), text("Done"));
    EXPECT_EQ(model.closeLabel(), text("Close"));
    (void)model.takeNote(text("x"));
    EXPECT_EQ(model.doneText(), text("Save note"));
    EXPECT_EQ(model.closeLabel(), text("Close and save note"));
    (void)model.takeNote(QString());
    EXPECT_EQ(model.doneText(), text("Done"));
}

TEST(StopSummaryNote, EscapeClosesACardWithoutANoteAndOnlyLeavesTheFieldOfOneWithANote) {
    StopSummaryModel model = modelOf(afterMinutes(5));
    const QSignalSpy done(&model, &StopSummaryModel::done);
    const QSignalSpy released(&model, &StopSummaryModel::keyboardReleased);
    (void)model.takeNote(text("half a thought"));
    model.turnAway();
    EXPECT_EQ(done.count(), 0);
    EXPECT_EQ(released.count(), 1);
    (void)model.takeNote(QString());
    model.turnAway();
    EXPECT_EQ(done.count(), 1);
    EXPECT_EQ(released.count(), 1);
}

} // namespace
} // namespace vantle::tests

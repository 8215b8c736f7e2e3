#include "surfaces/commandcenter/CommandCenterText.h"

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace vantle::commandcentertext {
namespace {

using State = TrackerCore::State;

Status status(State state) {
    return {state, QStringLiteral("Design"), {}, QStringLiteral("1 h 12 min")};
}

TEST(CommandCenterText, TheTitleSaysWhatTheSessionDoes) {
    EXPECT_EQ(title(status(State::Idle)).whole(), QStringLiteral("Ready to focus"));
    EXPECT_EQ(title(status(State::Running)).whole(), QStringLiteral("In Design mode · 1 h 12 min"));
    EXPECT_EQ(title(status(State::Paused)).whole(),
              QStringLiteral("Paused (away) · Design · 1 h 12 min"));
}

TEST(CommandCenterText, TheWordAfterAResumeTakesThePlaceOfTheMode) {
    Status resumed = status(State::Running);
    resumed.welcomeBack = QStringLiteral("Welcome back");
    EXPECT_EQ(title(resumed).whole(), QStringLiteral("Welcome back · 1 h 12 min"));
}

TEST(CommandCenterText, TheSubtitleGoesWithTheState) {
    EXPECT_EQ(subtitle(State::Idle), QStringLiteral("Choose where your effort should go."));
    EXPECT_EQ(subtitle(State::Running), QStringLiteral("Only active time counts."));
    EXPECT_EQ(subtitle(State::Paused), QStringLiteral("Time is paused while you’re away."));
}

TEST(CommandCenterText, TheButtonEntersTheMode) {
    EXPECT_EQ(enter(QStringLiteral("Design")), QStringLiteral("Enter Design Mode"));
    EXPECT_EQ(enter(QStringLiteral("Founder Ops")), QStringLiteral("Enter Founder Ops Mode"));
}

TEST(CommandCenterText, ANameThatEndsInTheWordModeDoesNotGetItTwice) {
    EXPECT_EQ(enter(QStringLiteral("Deep Mode")), QStringLiteral("Enter Deep Mode"));
    EXPECT_EQ(enter(QStringLiteral("deep mode")), QStringLiteral("Enter deep mode"));
    EXPECT_EQ(enter(QStringLiteral("DEEP MODE")), QStringLiteral("Enter DEEP MODE"));
    EXPECT_EQ(enter(QStringLiteral("Commode")), QStringLiteral("Enter Commode Mode"));
}

TEST(CommandCenterText, ThePlainBuildingSkillIsTheProgramsOwnMode) {
    EXPECT_EQ(enter(QStringLiteral("Build")), QStringLiteral("Enter Vantle"));
    EXPECT_EQ(enter(QStringLiteral("Building")), QStringLiteral("Enter Vantle"));
}

TEST(CommandCenterText, TheButtonStopsWhatRuns) {
    const QString name = QStringLiteral("Design");
    EXPECT_EQ(primary(status(State::Idle), name), QStringLiteral("Enter Design Mode"));
    EXPECT_EQ(primary(status(State::Running), name), QStringLiteral("Stop · 1 h 12 min"));
    EXPECT_EQ(primary(status(State::Paused), name), QStringLiteral("Stop · 1 h 12 min · paused"));
}

TEST(CommandCenterText, OnlyConfirmedMinutesCanBeCredited) {
    EXPECT_EQ(backfillChoices(0), QList<int>());
    EXPECT_EQ(backfillChoices(4), QList<int>());
    EXPECT_EQ(backfillChoices(5), QList<int>({5}));
    EXPECT_EQ(backfillChoices(12), QList<int>({5, 10}));
    EXPECT_EQ(backfillChoices(29), QList<int>({5, 10, 15}));
    EXPECT_EQ(backfillChoices(30), QList<int>({5, 10, 15, 30}));
}

} // namespace
} // namespace vantle::commandcentertext

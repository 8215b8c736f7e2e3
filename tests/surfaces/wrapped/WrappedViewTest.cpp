#include "surfaces/wrapped/WrappedView.h"

#include "surfaces/wrapped/ReviewWorld.h"

#include <QQmlEngine>

#include <gtest/gtest.h>

#include <map>

namespace vantle {
namespace {

using samples::worked;

class WrappedViewTest : public testing::Test, protected tests::ReviewWorld {};

TEST_F(WrappedViewTest, WithoutALogInvites) {
    open();
    EXPECT_TRUE(view->isEmpty());
    EXPECT_FALSE(view->hasPager());
    EXPECT_EQ(view->texts().emptyTitle, QStringLiteral("Ready when you are"));
    EXPECT_TRUE(view->canEnter());
    view->enterVantle();
    EXPECT_EQ(entered, 1);
}

TEST_F(WrappedViewTest, OpensOnLastWeekOnceAndOffersItWhileItIsShown) {
    log = {worked("2026-03-03T09:00:00Z", 60)};
    open();
    EXPECT_EQ(shown(), QStringLiteral("Last week"));
    EXPECT_EQ(view->segmentLabels().size(), 5);
    pick(QStringLiteral("Week"));
    EXPECT_EQ(shown(), QStringLiteral("Week"));
    EXPECT_EQ(view->segmentLabels().size(), 4);
    view->open();
    EXPECT_EQ(shown(), QStringLiteral("Week"));
    EXPECT_EQ(view->texts().emptyTitle, QStringLiteral("Nothing this week yet"));
}

TEST_F(WrappedViewTest, OpensOnThePeriodThatItIsAskedFor) {
    log = {worked("2026-03-10T09:00:00Z", 60)};
    open(WrappedPeriod::LastWeek);
    EXPECT_EQ(shown(), QStringLiteral("Last week"));
    EXPECT_EQ(view->texts().emptyTitle, QStringLiteral("Nothing tracked last week"));
}

TEST_F(WrappedViewTest, OpeningMarksLastWeekAsSeen) {
    open();
    EXPECT_EQ(preferences.boolean(QStringLiteral("wrapped.seen.2026-10")), true);
}

TEST_F(WrappedViewTest, PagesFromEndToEnd) {
    log = {worked("2026-03-10T09:00:00Z", 60)};
    open();
    EXPECT_EQ(view->card(), QStringLiteral("hero"));
    EXPECT_FALSE(view->canTurnBack());
    int turns = 0;
    QObject::connect(view.get(), &WrappedView::pageChanged, [&] { ++turns; });
    while (view->canTurnOn())
        view->turnOn();
    EXPECT_EQ(view->card(), QStringLiteral("summary"));
    EXPECT_EQ(turns, view->cards().size() - 1);
    view->turnOn();
    EXPECT_EQ(turns, view->cards().size() - 1);
    view->turnBack();
    EXPECT_EQ(view->pageDirection(), -1.0);
}

TEST_F(WrappedViewTest, ChangedLogIsReadAtOnce) {
    open();
    ASSERT_TRUE(view->isEmpty());
    log = {worked("2026-03-11T09:00:00Z", 90)};
    Q_EMIT notifications.HFSessionsChanged();
    EXPECT_FALSE(view->isEmpty());
    EXPECT_EQ(view->texts().hero.hoursText, QStringLiteral("1.5 h"));
    EXPECT_EQ(shown(), QStringLiteral("Week"));
}

TEST_F(WrappedViewTest, PeriodIsOfTheMomentWhenItIsPicked) {
    log = {worked("2026-03-11T09:00:00Z", 60)};
    open();
    time.advance(24 * 3600.0);
    pick(QStringLiteral("Today"));
    EXPECT_TRUE(view->isEmpty()) << "the work is yesterday's by now";
}

TEST_F(WrappedViewTest, DurationStyleIsTakenFromTheSettings) {
    log = {worked("2026-03-11T09:00:00Z", 90)};
    preferences.setString(QStringLiteral("format.duration"), QStringLiteral("hoursMinutes"));
    open();
    EXPECT_EQ(view->texts().hero.hoursText, QStringLiteral("1 h 30 min"));
    EXPECT_EQ(view->countedUp(0.8).value, view->texts().hero.figure.value);
}

TEST_F(WrappedViewTest, NarrativeCardComesWithTheAnswer) {
    logNotes();
    open();
    EXPECT_EQ(model.waiting(), 1U);
    EXPECT_FALSE(has("narrative"));
    answerModel();
    EXPECT_TRUE(has("narrative"));
    EXPECT_EQ(view->cards().indexOf(QStringLiteral("narrative")) + 1,
              view->cards().indexOf(QStringLiteral("notes")));
    EXPECT_EQ(view->texts().narrative.text,
              QStringLiteral("3 h this week, mostly Build. ") + sentence());
    EXPECT_EQ(view->texts().narrative.kicker, QStringLiteral("THIS WEEK, IN WORDS"));
}

TEST_F(WrappedViewTest, NarrativeThatComesLateLeavesTheReaderAtHisPage) {
    logNotes();
    open();
    while (view->card() != QLatin1String("notes"))
        view->turnOn();
    answerModel();
    EXPECT_TRUE(has("narrative"));
    EXPECT_EQ(view->card(), QStringLiteral("notes"));
    view->turnBack();
    EXPECT_EQ(view->card(), QStringLiteral("narrative"));
    view->turnOn();
    model.available = false;
    Q_EMIT notifications.HFSessionsChanged();
    EXPECT_FALSE(has("narrative"));
    EXPECT_EQ(view->card(), QStringLiteral("notes"));
}

TEST_F(WrappedViewTest, ChangedGoalIsFollowedWhileTheReviewIsOpen) {
    log = {worked("2026-03-10T09:00:00Z", 90)};
    open();
    EXPECT_EQ(view->review().stats().goalHitDays, 0);
    preferences.setNumber(QStringLiteral("goal.dailyHours"), 1);
    EXPECT_EQ(view->review().stats().goalHitDays, 1);
    EXPECT_TRUE(has("superlatives"));
}

TEST_F(WrappedViewTest, NarrativeThatComesAfterAChangeOfPeriodIsDropped) {
    logNotes();
    open();
    pick(QStringLiteral("Month"));
    EXPECT_EQ(model.openSessions(), 1) << "the question about the week was given up";
    pick(QStringLiteral("Today")); // without notes
    EXPECT_EQ(model.openSessions(), 0);
    answerModel();
    EXPECT_FALSE(has("narrative"));
    EXPECT_TRUE(view->texts().narrative.text.isEmpty());
}

TEST_F(WrappedViewTest, AnswerOnItsWayWhenThePeriodChangesIsDropped) {
    logNotes();
    open();
    model.answer(sentence()); // given, not yet told
    pick(QStringLiteral("Month"));
    time.settle();
    EXPECT_FALSE(has("narrative"));
    answerModel();
    EXPECT_EQ(view->texts().narrative.kicker, QStringLiteral("THIS MONTH, IN WORDS"));
    EXPECT_TRUE(has("narrative"));
}

TEST_F(WrappedViewTest, NarrativeGoesAtOnceWithItsPeriod) {
    logNotes();
    open();
    answerModel();
    ASSERT_TRUE(has("narrative"));
    pick(QStringLiteral("Month"));
    EXPECT_FALSE(has("narrative"));
    EXPECT_EQ(model.waiting(), 1U);
}

TEST_F(WrappedViewTest, SameNotesAreAskedAboutOnce) {
    logNotes();
    open();
    answerModel();
    Q_EMIT notifications.HFSessionsChanged();
    EXPECT_EQ(model.waiting(), 0U);
    EXPECT_TRUE(has("narrative"));
    logNotes(1);
    Q_EMIT notifications.HFSessionsChanged();
    EXPECT_EQ(model.waiting(), 1U);
}

TEST_F(WrappedViewTest, WithoutAModelTheRestOfTheReviewIsTheSame) {
    logNotes();
    model.available = false;
    open();
    EXPECT_FALSE(has("narrative"));
    EXPECT_TRUE(has("notes"));
    EXPECT_TRUE(model.calls.empty());
    model.available = true;
    Q_EMIT notifications.HFSessionsChanged();
    EXPECT_EQ(model.waiting(), 1U);
}

TEST_F(WrappedViewTest, ClosedWindowAsksNothingAnyMore) {
    logNotes();
    open();
    view.reset();
    EXPECT_EQ(model.openSessions(), 0);
    time.settle();
}

TEST_F(WrappedViewTest, ChosenYearHoldsForAsLongAsThePageStays) {
    log = {worked("2024-03-10T09:00:00Z", 60), worked("2026-03-10T09:00:00Z", 60)};
    open(WrappedPeriod::AllTime);
    EXPECT_EQ(view->texts().rhythm.picture.year, 2026);
    view->showYear(2024);
    EXPECT_EQ(view->texts().rhythm.picture.year, 2024);
    EXPECT_TRUE(view->texts().rhythm.caption.startsWith(QStringLiteral("2024, ")));
    view->turnOn();
    EXPECT_EQ(view->texts().rhythm.picture.year, 2026);
}

TEST_F(WrappedViewTest, WallTakesTheRoomThatThePageHas) {
    log = {worked("2026-03-10T01:00:00Z", 5 * 60)};
    open();
    EXPECT_EQ(view->texts().rhythm.wallColors.size(), 5);
    view->setWallCapacity(2);
    EXPECT_EQ(view->texts().rhythm.wallColors.size(), 2);
    EXPECT_EQ(view->texts().rhythm.wallCaption,
              QStringLiteral("One dot per finished hour. 3 earlier hours off the top."));
}

/// What a view reads by such an expression, as text.
QString readByAView(WrappedView& view, const char* expression) {
    QQmlEngine engine;
    QJSEngine::setObjectOwnership(&view, QJSEngine::CppOwnership);
    engine.globalObject().setProperty(QStringLiteral("view"), engine.newQObject(&view));
    return engine.evaluate(QLatin1String(expression)).toString();
}

TEST_F(WrappedViewTest, ViewsCanReadIntoEveryPage) {
    logNotes();
    log.push_back(worked("2026-03-09T09:00:00Z", 12 * 60, QStringLiteral("marketing")));
    open();
    const std::map<const char*, QString> pages = {
        {"view.texts.hero.figure.value", QStringLiteral("15")},
        {"view.texts.hero.quiet[0]", QStringLiteral("All of it tracked live")},
        {"view.texts.skills.top.name", QStringLiteral("Marketing")},
        {"view.texts.skills.others[0].share", QStringLiteral("20%")},
        {"view.texts.persona.facts[1]", QStringLiteral("2 / 2 days")},
        {"view.texts.rhythm.picture.isWeek", QStringLiteral("true")},
        {"view.texts.rhythm.picture.tiles[0].hasFill", QStringLiteral("true")},
        {"view.texts.rhythm.wallColors.length", QStringLiteral("15")},
        {"view.texts.when.bars.length", QStringLiteral("12")},
        {"view.texts.when.facts[1].value", QStringLiteral("12 h")},
        {"view.texts.highPoints.lines.length > 0", QStringLiteral("true")},
        {"view.texts.milestones.badges[0].hours", QStringLiteral("10")},
        {"view.texts.narrative.kicker", QStringLiteral("THIS WEEK, IN WORDS")},
        {"view.texts.notes.highlights[0].skillName", QStringLiteral("Build")},
        {"view.texts.summary.fileName", QStringLiteral("wrapped-this-week.png")},
        {"view.texts.poster.figures[1].figure.value", QStringLiteral("4")},
        {"view.texts.poster.rhythm.tiles[2].isToday", QStringLiteral("true")},
        {"view.countedUp(0.8).unit", QStringLiteral("h")}};
    for (const auto& [expression, text] : pages)
        EXPECT_EQ(readByAView(*view, expression), text) << expression;
}

} // namespace
} // namespace vantle

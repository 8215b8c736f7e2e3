// The view over the real state of a review: what is on it, and that keys and controls reach it.
#include "surfaces/wrapped/WrappedWorld.h"

#include <QAccessible>

namespace vantle {
namespace {

class WrappedPageTest : public testing::Test, protected tests::WrappedWorld {};

TEST_F(WrappedPageTest, IsAsWideAndHighAsItsWindow) {
    const QQuickItem& root = show();
    EXPECT_EQ(root.implicitWidth(), 440);
    EXPECT_EQ(root.implicitHeight(), 660);
}

TEST_F(WrappedPageTest, WithoutALogInvitesAndHasNoPager) {
    show();
    EXPECT_TRUE(shows("Ready when you are"));
    EXPECT_TRUE(shows("Track your first session and this fills in."));
    EXPECT_EQ(control("Next page"), nullptr);
    click("Enter Vantle");
    EXPECT_EQ(entered, 1);
}

TEST_F(WrappedPageTest, EveryPageComesByTheArrowKeyAndShowsItsHeading) {
    workAWeek();
    show();
    QStringList headings = {kicker()};
    while (view->canTurnOn()) {
        press(Qt::Key_Right);
        awaitTurned();
        headings << kicker();
    }
    EXPECT_EQ(headings.size(), view->cards().size());
    EXPECT_EQ(headings.mid(0, 4),
              QStringList({QStringLiteral("WRAPPED"), QStringLiteral("TOP SKILL"),
                           QStringLiteral("YOUR BUILDER TYPE"), QStringLiteral("YOUR RHYTHM")}));
    EXPECT_TRUE(headings.contains(QStringLiteral("WHAT MOVED FORWARD")));
    EXPECT_EQ(headings.last(), QStringLiteral("YOUR WEEK, IN FULL"));
}

TEST_F(WrappedPageTest, KeysLeadToBothEndsAndNotBeyond) {
    workAWeek();
    show();
    press(Qt::Key_Left);
    EXPECT_EQ(view->page(), 0);
    press(Qt::Key_End);
    EXPECT_EQ(view->card(), QStringLiteral("summary"));
    EXPECT_EQ(kicker(), QStringLiteral("YOUR WEEK, IN FULL"));
    press(Qt::Key_Right);
    EXPECT_FALSE(view->canTurnOn());
    press(Qt::Key_Home);
    EXPECT_EQ(kicker(), QStringLiteral("WRAPPED"));
}

TEST_F(WrappedPageTest, ChevronsTurnAndRestAtTheirEnds) {
    workAWeek();
    show();
    EXPECT_FALSE(control("Previous page")->isEnabled());
    click("Next page");
    EXPECT_EQ(kicker(), QStringLiteral("TOP SKILL"));
    EXPECT_TRUE(control("Previous page")->isEnabled());
    press(Qt::Key_End);
    EXPECT_FALSE(control("Next page")->isEnabled());
}

TEST_F(WrappedPageTest, PickerChangesThePeriodAndTellsWhichIsSelected) {
    workAWeek();
    show();
    click("All time");
    EXPECT_EQ(view->segmentIndex(), 3);
    EXPECT_TRUE(shows("all time"));
    const auto told = [this](const char* name) {
        return QAccessible::queryAccessibleInterface(control(name))->text(QAccessible::Description);
    };
    EXPECT_EQ(told("All time"), QStringLiteral("Selected"));
    EXPECT_EQ(told("Week"), QStringLiteral("Not selected"));
}

TEST_F(WrappedPageTest, ArrowKeysOnThePickerChooseThePeriodAndStayThere) {
    workAWeek();
    log.erase(log.begin() + 8, log.end()); // nothing this week yet
    show();
    constexpr int kMostStops = 8;
    for (int i = 0; i < kMostStops && !control("Last week")->hasActiveFocus(); ++i)
        press(Qt::Key_Tab);
    ASSERT_TRUE(control("Last week")->hasActiveFocus());
    press(Qt::Key_Right);
    EXPECT_EQ(control("Last week"), nullptr);
    EXPECT_TRUE(control("Today")->hasActiveFocus());
    press(Qt::Key_End);
    EXPECT_TRUE(control("All time")->hasActiveFocus());
    EXPECT_EQ(view->segmentIndex(), 3);
}

TEST_F(WrappedPageTest, EscapeClosesTheWindow) {
    show();
    press(Qt::Key_Escape);
    EXPECT_FALSE(window->isVisible());
}

TEST_F(WrappedPageTest, PageFollowsALogThatChanges) {
    workAWeek();
    show();
    EXPECT_TRUE(shows("3 sessions"));
    log.push_back(samples::worked("2026-03-11T12:00:00Z", 30));
    Q_EMIT notifications.HFSessionsChanged();
    settle();
    EXPECT_TRUE(shows("4 sessions"));
    EXPECT_TRUE(shows(view->hero().figure.value));
    EXPECT_FALSE(isTurning());
}

TEST_F(WrappedPageTest, YearsAreChosenOnTheCalendar) {
    workAWeek();
    show();
    click("All time");
    while (view->card() != QLatin1String("rhythm"))
        view->turnOn();
    settle();
    awaitTurned();
    EXPECT_TRUE(shows("2026, day by day. Brighter is more time."));
    click("Show 2025");
    EXPECT_TRUE(shows("2025, day by day. Brighter is more time."));
    EXPECT_FALSE(isTurning()) << "the page stays, and shows another year";
}

TEST_F(WrappedPageTest, NarrativeComesWithItsPageOnItsOwn) {
    model.available = true;
    workAWeek();
    show();
    const auto before = view->cards().size();
    model.answer(QStringLiteral("You <shipped> the landing page & drafted its importer."));
    time.settle();
    settle();
    ASSERT_EQ(view->cards().size(), before + 1);
    while (view->card() != QLatin1String("narrative"))
        view->turnOn();
    settle();
    EXPECT_EQ(kicker(), QStringLiteral("THIS WEEK, IN WORDS"));
    EXPECT_NE(tests::shownItem(page(),
                               [](const QQuickItem& item) {
                                   return item.property("text").toString().contains(
                                       QStringLiteral("&lt;shipped&gt;"));
                               }),
              nullptr)
        << "what the model wrote is no markup";
}

TEST_F(WrappedPageTest, PosterIsCopiedAndItsFailureStandsUnderTheButtons) {
    workAWeek();
    show();
    press(Qt::Key_End);
    click("Copy image");
    EXPECT_EQ(copied.size(), 1);
    EXPECT_TRUE(shows("Copied"));
    click("Save image…");
    EXPECT_TRUE(shows("Couldn't save there. Try a different folder."));
}

} // namespace
} // namespace vantle

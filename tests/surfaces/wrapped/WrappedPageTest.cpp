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
    EXPECT_TRUE(shows(view->texts().hero.figure.value));
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

TEST_F(WrappedPageTest, PosterIsCopied) {
    workAWeek();
    show();
    press(Qt::Key_End);
    awaitTurned();
    EXPECT_TRUE(copied.isEmpty());
    click("Copy image");
    EXPECT_EQ(copied, QList<QByteArray>{"png"});
    EXPECT_TRUE(shows("Copied"));
    EXPECT_FALSE(shows("Copy image"));
    time.advance(1.7);
    settle();
    EXPECT_TRUE(shows("Copy image"));
}

TEST_F(WrappedPageTest, PosterThatIsNotSavedSaysSoUnderTheButtonsUntilOneIs) {
    const QString failure = QStringLiteral("Couldn't save there. Try a different folder.");
    workAWeek();
    show();
    press(Qt::Key_End);
    awaitTurned();
    EXPECT_FALSE(shows(failure));
    click("Save image…");
    QQuickItem* const words = tests::shownItem(window->contentItem(), [&](const QQuickItem& item) {
        return item.property("text").toString() == failure;
    });
    ASSERT_NE(words, nullptr);
    EXPECT_GT(driver->frameOf(*words).top(), driver->frameOf(*control("Save image…")).bottom());
    EXPECT_LT(driver->frameOf(*words).bottom(), driver->frameOf(*control("Next page")).top());
    saved = WrappedView::Saved::Written;
    click("Save image…");
    EXPECT_FALSE(shows(failure));
}

TEST_F(WrappedPageTest, PeriodOfSessionsWithoutTimeSaysSoUnderItsHeading) {
    log = {samples::worked("2026-03-11T09:00:00Z", 0)};
    show();
    press(Qt::Key_Right);
    awaitTurned();
    EXPECT_EQ(kicker(), QStringLiteral("TOP SKILL"));
    EXPECT_TRUE(shows("Nothing this week yet"));
    EXPECT_TRUE(shows("0"));
}

TEST_F(WrappedPageTest, NarrativeThatComesLateLeavesThePageAsItIs) {
    model.available = true;
    workAWeek();
    show();
    while (view->card() != QLatin1String("notes"))
        press(Qt::Key_Right);
    awaitTurned();
    const QQuickItem* const before = page();
    model.answer(QStringLiteral("You shipped the landing page & drafted its importer."));
    time.settle();
    settle();
    ASSERT_TRUE(view->cards().contains(QStringLiteral("narrative")));
    EXPECT_FALSE(isTurning());
    EXPECT_EQ(page(), before);
    EXPECT_EQ(kicker(), QStringLiteral("WHAT MOVED FORWARD"));
    press(Qt::Key_Left);
    EXPECT_EQ(kicker(), QStringLiteral("THIS WEEK, IN WORDS"));
}

TEST_F(WrappedPageTest, SeventeenYearsScrollBesideTheHeading) {
    for (int year = 2010; year <= 2026; ++year)
        log.push_back(samples::worked(std::to_string(year) + "-02-03T10:00:00Z", 90));
    show();
    click("All time");
    while (view->card() != QLatin1String("rhythm"))
        press(Qt::Key_Right);
    awaitTurned();
    QQuickItem* const heading = tests::shownItem(page(), [this](const QQuickItem& item) {
        return item.property("text").toString() == kicker();
    });
    ASSERT_NE(heading, nullptr);
    QQuickItem* const years = tests::shownItem(
        page(), [](const QQuickItem& item) { return item.inherits("QQuickFlickable"); });
    ASSERT_NE(years, nullptr);
    const QRectF room = driver->frameOf(*years);
    EXPECT_GT(room.left(), driver->frameOf(*heading).right());
    EXPECT_LE(room.right(), window->width());
    const auto inSight = [&](const char* name) {
        const QRectF frame = driver->frameOf(*control(name));
        return frame.left() >= room.left() && frame.right() <= room.right();
    };
    EXPECT_TRUE(inSight("Show 2026"));
    EXPECT_FALSE(inSight("Show 2010"));
    driver->click(control("Show 2025"));
    EXPECT_TRUE(shows("2025, day by day. Brighter is more time."));
    constexpr int kMostStops = 8;
    QStringList stops;
    for (int i = 0; i < kMostStops && !control("Show 2026")->hasActiveFocus(); ++i) {
        press(Qt::Key_Tab);
        stops << driver->keyboardOwner()->property("name").toString();
    }
    ASSERT_TRUE(control("Show 2026")->hasActiveFocus())
        << stops.join(QStringLiteral(", ")).toStdString();
    press(Qt::Key_End);
    EXPECT_TRUE(shows("2010, day by day. Brighter is more time."));
    EXPECT_TRUE(inSight("Show 2010"));
    EXPECT_TRUE(control("Show 2010")->hasActiveFocus());
    press(Qt::Key_Left);
    EXPECT_TRUE(shows("2011, day by day. Brighter is more time."));
}

TEST_F(WrappedPageTest, LongThemesAndClosingLineStayInTheWindow) {
    workAWeek();
    const QString theme(80, QLatin1Char('w'));
    for (Session& session : log) {
        session.note = QStringLiteral("about ") + theme;
        session.skillId = QStringLiteral("founder_ops");
    }
    preferences.setString(QStringLiteral("format.duration"), QStringLiteral("hoursMinutes"));
    show();
    while (view->card() != QLatin1String("notes"))
        press(Qt::Key_Right);
    awaitTurned();
    QQuickItem* const chip = tests::shownItem(
        page(), [&](const QQuickItem& item) { return item.property("text").toString() == theme; });
    ASSERT_NE(chip, nullptr);
    EXPECT_LE(driver->frameOf(*chip).right(), window->width());
    press(Qt::Key_End);
    awaitTurned();
    driver->settle();
    EXPECT_FALSE(driver->cutTexts().contains(view->texts().summary.closing))
        << view->texts().summary.closing.toStdString();
}

} // namespace
} // namespace vantle

// How pages come and go, and what stands still.
#include "surfaces/wrapped/WrappedWorld.h"

#include <QPointer>

#include <algorithm>

namespace vantle {
namespace {

class WrappedMovementTest : public testing::Test, protected tests::WrappedWorld {
protected:
    [[nodiscard]] QQuickItem* field() {
        return tests::shownItem(window->contentItem(), [](const QQuickItem& item) {
            return item.property("hasStar").isValid();
        });
    }
    /// How many there are, shown or not.
    [[nodiscard]] int pages() {
        int count = 0;
        for (const QObject* one : window->rootObject()->findChildren<QObject*>())
            count += one->property("kicker").isValid() ? 1 : 0;
        return count;
    }
    [[nodiscard]] QQuickItem* reveal() {
        return tests::shownItem(window->contentItem(), [](const QQuickItem& item) {
            return item.property("typingDone").isValid();
        });
    }
    [[nodiscard]] QQuickItem* figure() {
        return tests::shownItem(window->contentItem(), [](const QQuickItem& item) {
            return item.property("counts").isValid();
        });
    }
};

TEST_F(WrappedMovementTest, PageOnItsWayOutKeepsWhatItShowed) {
    workAWeek();
    show(false);
    EXPECT_TRUE(shows("this week"));
    click("All time");
    EXPECT_TRUE(isTurning());
    EXPECT_TRUE(shows("this week"));
    EXPECT_TRUE(shows("all time"));
    awaitTurned();
    EXPECT_FALSE(shows("this week"));
    EXPECT_TRUE(shows("all time"));
}

TEST_F(WrappedMovementTest, OnlyTheShownPageAndTheOneOnItsWayOutAreThere) {
    workAWeek();
    show(false);
    ASSERT_GT(view->cards().size(), 5);
    EXPECT_EQ(pages(), 1);
    press(Qt::Key_Right);
    ASSERT_TRUE(isTurning());
    EXPECT_EQ(pages(), 2);
    awaitTurned();
    EXPECT_EQ(pages(), 1);
}

TEST_F(WrappedMovementTest, OnlyOnePageIsLeftAfterQuickTurns) {
    workAWeek();
    show(false);
    for (int i = 0; i < 4; ++i)
        press(Qt::Key_Right);
    press(Qt::Key_Left);
    awaitTurned();
    EXPECT_EQ(pages(), 1);
    EXPECT_EQ(page()->x(), 0);
    EXPECT_EQ(page()->opacity(), 1);
}

TEST_F(WrappedMovementTest, PartsOfAPageComeInTheFirstTimeOnly) {
    workAWeek();
    show(false);
    EXPECT_TRUE(page()->property("animated").toBool());
    press(Qt::Key_Right);
    press(Qt::Key_Left);
    EXPECT_EQ(kicker(), QStringLiteral("WRAPPED"));
    EXPECT_FALSE(page()->property("animated").toBool());
    click("All time");
    EXPECT_TRUE(page()->property("animated").toBool())
        << "a page of another period is another page";
}

TEST_F(WrappedMovementTest, HoursAreCountedUpToTheFigure) {
    workAWeek();
    show(false);
    const auto shown = [this] { return figure()->property("shown").value<ReviewFigure>(); };
    const ReviewFigure whole = view->texts().hero.figure;
    EXPECT_FALSE(shown() == whole);
    EXPECT_TRUE(tests::await([&] { return shown() == whole; }));
}

TEST_F(WrappedMovementTest, NameOfATypeIsWrittenLetterByLetter) {
    workAWeek();
    show(false);
    click("Month"); // a week is not enough for a type
    while (view->card() != QLatin1String("persona"))
        press(Qt::Key_Right);
    QQuickItem* const name = reveal();
    ASSERT_NE(name, nullptr);
    const auto shown = [&] { return name->property("shownCharacters").toInt(); };
    EXPECT_FALSE(name->property("typingDone").toBool());
    EXPECT_TRUE(tests::await([&] { return shown() == 3; }));
    EXPECT_TRUE(tests::await([&] { return name->property("typingDone").toBool(); }));
    EXPECT_EQ(shown(), view->texts().persona.name.size());
}

TEST_F(WrappedMovementTest, NameStopsWhereItIsWhenItsPageLeaves) {
    workAWeek();
    show(false);
    click("Month");
    while (view->card() != QLatin1String("persona"))
        press(Qt::Key_Right);
    const QPointer<QQuickItem> name = reveal();
    ASSERT_TRUE(name);
    const auto shown = [&] { return name->property("shownCharacters").toInt(); };
    EXPECT_TRUE(tests::await([&] { return shown() == 2; }));
    press(Qt::Key_Left);
    ASSERT_TRUE(name) << "it is on its way out";
    const int left = shown();
    int most = left;
    EXPECT_TRUE(tests::await([&] {
        if (name) most = std::max(most, shown());
        return !isTurning();
    }));
    EXPECT_EQ(most, left);
}

TEST_F(WrappedMovementTest, WithReducedMotionAllIsThereAtOnce) {
    workAWeek();
    show(true);
    EXPECT_EQ(figure()->property("shown").value<ReviewFigure>(), view->texts().hero.figure);
    press(Qt::Key_Right);
    EXPECT_EQ(page()->x(), 0) << "pages fade, and do not slide";
    awaitTurned();
    EXPECT_EQ(field()->property("seconds").toDouble(), 0);
}

TEST_F(WrappedMovementTest, NothingDriftsWhileAnotherWindowIsActive) {
    show(false);
    const auto age = [this] { return field()->property("seconds").toDouble(); };
    ASSERT_TRUE(tests::await([&] { return window->isActive() && age() > 0; }));
    QQuickView other;
    other.show();
    other.requestActivate();
    ASSERT_TRUE(tests::await([&] { return !window->isActive(); }));
    const double left = age();
    tests::runFor(250); // two steps and more
    EXPECT_EQ(age(), left);
}

} // namespace
} // namespace vantle

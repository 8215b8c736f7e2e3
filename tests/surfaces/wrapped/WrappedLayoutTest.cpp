// Where the parts of the review's pages stand.
#include "surfaces/kit/tokens/Look.h"
#include "surfaces/wrapped/WrappedWorld.h"

#include <algorithm>
#include <cmath>
#include <set>

namespace vantle {
namespace {

class WrappedLayoutTest : public testing::Test, protected tests::WrappedWorld {
protected:
    /// Opens the review on that period, and turns to that page.
    void showPage(const char* period, const char* card) {
        show();
        click(period);
        turnTo(card);
    }
    void turnTo(const char* card) {
        while (view->card() != QLatin1String(card) && view->canTurnOn())
            press(Qt::Key_Right);
        awaitTurned();
        driver->settle();
        ASSERT_EQ(view->card(), QLatin1String(card));
    }
    [[nodiscard]] QQuickItem* text(const QString& words) {
        return tests::shownItem(page(), [&](const QQuickItem& item) {
            return item.property("text").toString() == words;
        });
    }
    [[nodiscard]] QQuickItem* ofType(const char* type) {
        return tests::shownItem(page(),
                                [&](const QQuickItem& item) { return item.inherits(type); });
    }
    /// The rows of pixels, and the columns, in which something is brighter than the ground by far.
    [[nodiscard]] QRect litIn(const QRectF& area) {
        window->setColor(look::kDark.windowGround.color());
        const QImage picture = driver->picture();
        QRect lit;
        for (int y = static_cast<int>(area.top()); y < area.bottom(); ++y)
            for (int x = static_cast<int>(area.left()); x < area.right(); ++x)
                if (qGray(picture.pixel(x, y)) > 90) lit |= QRect(x, y, 1, 1);
        return lit;
    }
    void work(const char* day, int minutes, const QString& skill = QStringLiteral("building")) {
        log.push_back(samples::worked(day, minutes, skill));
    }
    void crossTenMilestones() {
        for (int day = 0; day < 440; ++day) {
            work("2024-01-02T00:00:00Z", 1440);
            log.back().startedAt += Seconds(86400.0 * day);
            log.back().endedAt += Seconds(86400.0 * day);
        }
    }
};

TEST_F(WrappedLayoutTest, WallReachesBothMargins) {
    for (const char* day : {"2026-03-09T20:00:00Z", "2026-03-10T20:00:00Z", "2026-03-11T12:00:00Z"})
        work(day, 480);
    showPage("Week", "rhythm");
    const QQuickItem* const wall = ofType("vantle::GlassDotWall");
    ASSERT_NE(wall, nullptr);
    const QRectF frame = driver->frameOf(*wall);
    const QRect dots = litIn(frame.adjusted(-8, 0, 8, 0));
    EXPECT_NEAR(dots.left(), frame.left(), 1.5);
    EXPECT_NEAR(dots.right() + 1, frame.right(), 1.5);
}

TEST_F(WrappedLayoutTest, TenMilestonesStandInTwoRowsOfFive) {
    crossTenMilestones();
    showPage("All time", "milestones");
    std::set<double> columns;
    std::set<double> rows;
    const QRectF column(36, 0, 440 - 2 * 36, 660); // px, between the margins
    (void)tests::shownItem(page(), [&](const QQuickItem& item) {
        if (!item.property("ringDot").isValid()) return false;
        const QRectF frame = driver->frameOf(item);
        EXPECT_TRUE(column.contains(frame)) << frame.left();
        columns.insert(std::round(frame.left()));
        rows.insert(std::round(frame.top()));
        return false;
    });
    EXPECT_EQ(columns.size(), 5U);
    EXPECT_EQ(rows.size(), 2U);
    EXPECT_EQ(driver->overlappingTexts(), QStringList());
    EXPECT_EQ(driver->cutTexts(), QStringList());
}

// Those of four and five digits are drawn smaller, to fit.
TEST_F(WrappedLayoutTest, FiguresOfMilestonesStandInTheMiddleOfTheirRings) {
    crossTenMilestones();
    showPage("All time", "milestones");
    for (const char* hours : {"500", "1000", "10000"}) {
        const QQuickItem* const figure = text(QLatin1String(hours));
        ASSERT_NE(figure, nullptr);
        const QRectF ring = driver->frameOf(*figure->parentItem());
        const QRectF inside = ring.marginsRemoved({14, 9, 14, 9}); // px, clear of the dots
        const QRect lit = litIn(inside.toRect());
        EXPECT_NEAR((lit.top() + lit.bottom() + 1) / 2.0, ring.center().y(), 0.75) << hours;
    }
}

TEST_F(WrappedLayoutTest, SentenceInWordsStandsWellAboveTheMiddle) {
    constexpr double kPlace = 0.38;
    model.available = true;
    workAWeek();
    show();
    model.answer(QStringLiteral("You shipped the landing page."));
    time.settle();
    settle();
    turnTo("narrative");
    const auto card = view->texts().narrative;
    const QQuickItem* const sentence = tests::shownItem(page(), [&](const QQuickItem& item) {
        return item.property("text").toString().contains(QStringLiteral("shipped the landing"));
    });
    const QQuickItem* const foot = text(card.quiet);
    ASSERT_NE(sentence, nullptr);
    ASSERT_NE(foot, nullptr);
    const double top = driver->frameOf(*page()).top() + look::kType.kicker.line;
    const double room = driver->frameOf(*foot).top() - top - sentence->height();
    EXPECT_NEAR(driver->frameOf(*sentence).top() - top, kPlace * room, 2);
}

TEST_F(WrappedLayoutTest, NotesThatHaveNoRoomForTwoLinesAllHaveOne) {
    for (int day = 1; day <= 11; ++day) {
        work("2026-03-01T10:00:00Z", 60);
        log.back().startedAt += Seconds(86400.0 * (day - 1));
        log.back().endedAt += Seconds(86400.0 * (day - 1));
        log.back().note = QStringLiteral("The importer %1 does what it should when the machine is "
                                         "switched off in its middle")
                              .arg(day);
    }
    showPage("Month", "notes");
    std::set<int> lines;
    (void)tests::shownItem(page(), [&](const QQuickItem& item) {
        if (item.property("text").toString().startsWith(QStringLiteral("The importer")))
            lines.insert(item.property("lineCount").toInt());
        return false;
    });
    EXPECT_EQ(lines, std::set<int>{1});
}

TEST_F(WrappedLayoutTest, QuietBlockOfTheHoursIsAsHighWithOneLineAsWithThree) {
    workAWeek();
    log.front().source = sourceManual();
    show();
    std::set<double> lines;
    std::set<double> figures;
    std::set<qsizetype> counts;
    for (const char* period : {"Week", "Month", "All time"}) {
        click(period);
        awaitTurned();
        driver->settle();
        counts.insert(view->texts().hero.quiet.size());
        const QQuickItem* const first = text(view->texts().hero.quiet.value(0));
        ASSERT_NE(first, nullptr) << period;
        lines.insert(driver->frameOf(*first).top());
        const QQuickItem* const figure = text(view->texts().hero.lead);
        ASSERT_NE(figure, nullptr) << period;
        figures.insert(driver->frameOf(*figure).top());
    }
    EXPECT_GT(counts.size(), 1U) << "of several numbers of lines";
    EXPECT_EQ(lines.size(), 1U);
    EXPECT_EQ(figures.size(), 1U);
}

TEST_F(WrappedLayoutTest, SkillThatIsAloneStandsWhereTheHoursDo) {
    workAWeek();
    showPage("Week", "hero");
    const QQuickItem* const lead = text(view->texts().hero.lead);
    const QQuickItem* const sessions = text(view->texts().hero.sessions);
    ASSERT_NE(lead, nullptr);
    ASSERT_NE(sessions, nullptr);
    const double middle = (driver->frameOf(*lead).top() + driver->frameOf(*sessions).bottom()) / 2;
    turnTo("skills");
    ASSERT_TRUE(view->texts().skills.others.empty());
    const QQuickItem* const name = text(view->texts().skills.top.name);
    const QQuickItem* const share = text(view->texts().skills.top.share);
    ASSERT_NE(name, nullptr);
    ASSERT_NE(share, nullptr);
    EXPECT_NEAR((driver->frameOf(*name).top() + driver->frameOf(*share).bottom()) / 2, middle, 2);
}

TEST_F(WrappedLayoutTest, NameThatIsSetSmallerStandsBesideItsDot) {
    for (const char* day : {"2026-03-10T09:00:00Z", "2026-03-11T09:00:00Z"})
        work(day, 120);
    skillNames[0] = QStringLiteral("MMMMMMMMMMMM");
    showPage("Week", "skills");
    const QQuickItem* const name = text(skillNames[0]);
    const QQuickItem* const dot = ofType("vantle::GlassDot");
    ASSERT_NE(name, nullptr);
    ASSERT_NE(dot, nullptr);
    const QRectF frame = driver->frameOf(*name);
    const double middle = driver->frameOf(*dot).center().y();
    constexpr double kHalfLine = 29; // px
    const QRect letters = litIn({frame.left(), middle - kHalfLine, frame.width(), 2 * kHalfLine});
    ASSERT_FALSE(letters.isEmpty());
    EXPECT_LT(letters.height(), 36) << "smaller";
    // In its usual size the middle of its capitals is 2 px above that of the dot.
    EXPECT_NEAR((letters.top() + letters.bottom() + 1) / 2.0, middle - 2, 1.5);
}

TEST_F(WrappedLayoutTest, PosterThatIsTooHighGetsTheRoomOfTheClosingLine) {
    workAWeek();
    work("2026-03-11T12:00:00Z", 60, QStringLiteral("marketing"));
    work("2026-03-11T13:00:00Z", 50, QStringLiteral("connections"));
    showPage("All time", "summary");
    const QQuickItem* const poster = ofType("vantle::SharePosterPicture");
    ASSERT_NE(poster, nullptr);
    ASSERT_LT(poster->width(), look::kLengths.posterWidth) << "it is too high";
    EXPECT_GE(poster->width(), 245);
    EXPECT_EQ(text(view->texts().summary.closing), nullptr);
    click("Week");
    turnTo("summary");
    EXPECT_NE(text(view->texts().summary.closing), nullptr);
}

} // namespace
} // namespace vantle

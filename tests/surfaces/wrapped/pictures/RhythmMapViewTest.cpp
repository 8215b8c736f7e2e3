#include "review/RhythmCard.h"
#include "review/stats/ReviewSamples.h"
#include "surfaces/wrapped/RhythmTiles.h"
#include "surfaces/wrapped/pictures/PictureWindow.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

using tests::PictureWindow;

/// On a Wednesday, after an hour and a half on the day before.
RhythmCard cardOf(WrappedPeriod period) {
    const WrappedSettings settings = samples::settingsAt("2026-03-11T14:00:00Z");
    const std::vector<Session> log = {samples::worked("2026-03-10T09:00:00Z", 90)};
    return reviewcards::rhythm(WrappedStats::compute(log, period, settings), settings, std::nullopt,
                               48);
}

class RhythmMapView : public testing::Test {
protected:
    QQuickItem& show(WrappedPeriod period, bool animated = false) {
        return m_window.show(QStringLiteral("RhythmMap"),
                             {{QStringLiteral("width"), 368},
                              {QStringLiteral("animated"), animated},
                              {QStringLiteral("rhythm"), QVariant::fromValue(cardOf(period))}});
    }
    static RhythmTiles& tiles(QQuickItem& map) {
        return *qobject_cast<RhythmTiles*>(
            PictureWindow::ofType(map, "vantle::RhythmTiles").value(0));
    }
    static double growing(QQuickItem& map) { return tiles(map).property("growing").toDouble(); }
    static QStringList daysRead(QQuickItem& map) {
        QStringList words;
        for (QQuickItem* child : map.childItems())
            if (const QString said = PictureWindow::spoken(*child); !said.isEmpty()) words << said;
        return words;
    }

    PictureWindow m_window;
};

TEST_F(RhythmMapView, IsAsHighAsItsPicture) {
    EXPECT_EQ(show(WrappedPeriod::Week).implicitHeight(), 69);
}

TEST_F(RhythmMapView, EachDayOfAWeekIsReadWithItsDateAndHours) {
    QQuickItem& map = show(WrappedPeriod::Week);
    const QStringList days = daysRead(map);
    ASSERT_EQ(days.size(), 7);
    EXPECT_EQ(days[0], QStringLiteral("Mon, Mar 9"));
    EXPECT_EQ(days[1], QStringLiteral("Tue, Mar 10 · 1.5 h"));
}

TEST_F(RhythmMapView, AYearIsReadAsAWhole) {
    QQuickItem& map = show(WrappedPeriod::AllTime);
    EXPECT_EQ(daysRead(map), QStringList());
    EXPECT_EQ(PictureWindow::spoken(map),
              QStringLiteral("Daily activity across 2026, week by week"));
    EXPECT_LT(PictureWindow::all(map, [](const QQuickItem&) { return true; }).size(), 10)
        << "one item, not one a day";
}

TEST_F(RhythmMapView, ThePointerFindsTheDayUnderItAndNoneBesideIt) {
    QQuickItem& map = show(WrappedPeriod::Month);
    const auto dayAt = [&](QPointF place) {
        m_window.pointAt(place);
        return map.property("pointedDay").toInt();
    };
    EXPECT_EQ(dayAt({76, 155}), 9);
    EXPECT_EQ(tiles(map).dayHelp(9), QStringLiteral("Tue, Mar 10 · 1.5 h"));
    EXPECT_EQ(dayAt({49, 155}), -1) << "a gap";
    EXPECT_EQ(dayAt({22, 47}), -1) << "a blank";
    EXPECT_EQ(tiles(map).dayHelp(-1), QString());
    EXPECT_TRUE(tiles(map).dayArea(31).isNull());
}

TEST_F(RhythmMapView, AWeekGrowsOnceWhenItsPageComes) {
    QQuickItem& map = show(WrappedPeriod::Week, true);
    EXPECT_GE(growing(map), 0);
    EXPECT_LT(growing(map), tiles(map).growTime());
    EXPECT_EQ(tiles(map).growTime(), 1100);
    EXPECT_TRUE(QTest::qWaitFor([&] { return growing(map) < 0; }, 10'000));
    map.setProperty("rhythm", QVariant::fromValue(cardOf(WrappedPeriod::LastWeek)));
    QCoreApplication::processEvents();
    EXPECT_LT(growing(map), 0) << "another picture is there at once";
}

TEST_F(RhythmMapView, StandsStillWithReducedMotionAndWhereItIsSeenAgain) {
    EXPECT_LT(growing(show(WrappedPeriod::Week)), 0) << "not for the first time";
    m_window.reduceMotion();
    EXPECT_LT(growing(show(WrappedPeriod::Week, true)), 0);
}

TEST_F(RhythmMapView, ShowsTheTilesWhereTheyAre) {
    show(WrappedPeriod::Week);
    const QImage picture = m_window.picture();
    EXPECT_EQ(picture.pixelColor(76, 47).name(), QStringLiteral("#6160ca")) << "Tuesday, 1.5 hours";
    EXPECT_EQ(picture.pixelColor(22, 47).name(), QStringLiteral("#16161b")) << "Monday, none";
    EXPECT_EQ(picture.pixelColor(49, 47).name(), QStringLiteral("#0a0a0f")) << "between them";
}

} // namespace
} // namespace vantle

#include "review/WhenCard.h"
#include "surfaces/wrapped/pictures/PictureWindow.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

using tests::PictureWindow;

WhenCard sample() {
    WhenCard card;
    card.bars = {0.5, 0.25, 0, 0, 0, 0.25, 0, 0.25, 0.25, 0.25, 0.01, 1};
    card.peakBar = 11;
    card.hourMarks = {QStringLiteral("12 AM"), QStringLiteral("6 AM"), QStringLiteral("12 PM"),
                      QStringLiteral("6 PM"), QStringLiteral("12 AM")};
    card.accent = QColor(0x7A, 0x78, 0xFF);
    card.chartLabel = QStringLiteral("Session starts by hour of day");
    return card;
}

class StartRhythmChart : public testing::Test {
protected:
    QQuickItem& show(bool animated = false) {
        return m_window.show(QStringLiteral("StartRhythmChart"),
                             {{QStringLiteral("width"), 368},
                              {QStringLiteral("animated"), animated},
                              {QStringLiteral("card"), QVariant::fromValue(sample())}});
    }
    /// Bars by their colour: what lies behind them is white.
    static QList<QQuickItem*> bars(QQuickItem& chart) {
        return PictureWindow::all(chart, [](const QQuickItem& item) {
            const QColor color = item.property("color").value<QColor>();
            return item.inherits("vantle::Plate") && color.blue() > color.red();
        });
    }

    PictureWindow m_window;
};

TEST_F(StartRhythmChart, ABarIsAsHighAsItsPartOfTheHighest) {
    const auto all = bars(show());
    ASSERT_EQ(all.size(), 12);
    EXPECT_EQ(all[11]->height(), 112);
    EXPECT_EQ(all[0]->height(), 56);
    EXPECT_EQ(all[1]->height(), 28);
    EXPECT_EQ(all[2]->height(), 0);
    EXPECT_EQ(all[10]->height(), 1);
    for (QQuickItem* bar : all)
        EXPECT_EQ(bar->mapToScene({0, bar->height()}).y(), 112) << "they stand on one line";
}

TEST_F(StartRhythmChart, TheBarsReachFromEdgeToEdgeAndTheHighestShines) {
    const auto all = bars(show());
    ASSERT_EQ(all.size(), 12);
    EXPECT_EQ(all[0]->mapToScene({}).x(), 0);
    EXPECT_EQ(all[11]->mapToScene({all[11]->width(), 0}).x(), 368);
    EXPECT_EQ(all[11]->property("color").value<QColor>(), QColor(0x7A, 0x78, 0xFF));
    EXPECT_NEAR(all[0]->property("color").value<QColor>().alphaF(), 0.62, 0.01);
    show();
    const QImage picture = m_window.picture();
    EXPECT_NEAR(picture.pixelColor(74, 110).red(), 0x1D, 2) << "no start";
    EXPECT_EQ(picture.pixelColor(74, 100).name(), QStringLiteral("#0a0a0f"));
}

TEST_F(StartRhythmChart, HoursStandUnderTheirPlaceInTheDay) {
    QQuickItem& chart = show();
    QList<QQuickItem*> marks = PictureWindow::all(chart, [](const QQuickItem& item) {
        return sample().hourMarks.contains(item.property("text").toString());
    });
    ASSERT_EQ(marks.size(), 5);
    EXPECT_EQ(marks[0]->x(), 0);
    EXPECT_NEAR(marks[2]->x() + marks[2]->width() / 2, 184, 1) << "noon";
    EXPECT_EQ(marks[4]->x() + marks[4]->width(), 368);
    EXPECT_EQ(PictureWindow::spoken(chart), QStringLiteral("Session starts by hour of day"));
}

TEST_F(StartRhythmChart, TheBarsGrowOneAfterTheOther) {
    const auto growing = bars(show(true));
    ASSERT_EQ(growing.size(), 12);
    EXPECT_LT(growing[11]->height(), 112);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return growing[11]->height() == 112 && growing[0]->height() == 56; }, 10'000));
}

TEST_F(StartRhythmChart, TheBarsStandStillWithReducedMotion) {
    m_window.reduceMotion();
    EXPECT_EQ(bars(show(true))[11]->height(), 112);
}

} // namespace
} // namespace vantle

#include "surfaces/window/WindowPlacement.h"

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace vantle::windowplacement {
namespace {

const std::vector<ScreenShape> kTwoScreens = {
    {.frame = QRectF(0, 0, 1440, 900), .available = QRectF(0, 28, 1440, 872)},
    {.frame = QRectF(1440, 0, 1024, 768), .available = QRectF(1440, 0, 1024, 768)}};

TEST(WindowPlacement, ASizeThatDoesNotFitShrinksToTheArea) {
    EXPECT_EQ(fitted({612, 548}, QRectF(0, 0, 512, 384)), QSize(512, 384));
    EXPECT_EQ(fitted({300, 200}, QRectF(0, 0, 512, 384)), QSize(300, 200));
}

TEST(WindowPlacement, AFrameBelongsToTheScreenThatShowsMostOfIt) {
    EXPECT_EQ(onScreen(QRect(1300, 100, 600, 400), kTwoScreens), QRect(1440, 100, 600, 400));
    EXPECT_EQ(onScreen(QRect(1000, 100, 600, 400), kTwoScreens), QRect(840, 100, 600, 400));
}

TEST(WindowPlacement, AFrameUnderABarComesOutBelowIt) {
    EXPECT_EQ(onScreen(QRect(100, 0, 600, 400), kTwoScreens), QRect(100, 28, 600, 400));
}

TEST(WindowPlacement, AFrameIsDraggedAsAWhole) {
    EXPECT_EQ(dragged({100, 100, 600, 400}, {}, {-30, 20}, {600, 400}, {600, 400}),
              QRect(70, 120, 600, 400));
}

TEST(WindowPlacement, ADraggedEdgeLeavesTheOppositeOneWhereItIs) {
    const QRect frame(100, 100, 600, 400);
    const QSize greatest(5000, 5000);
    EXPECT_EQ(dragged(frame, Qt::RightEdge | Qt::BottomEdge, {50, -60}, {}, greatest),
              QRect(100, 100, 650, 340));
    EXPECT_EQ(dragged(frame, Qt::LeftEdge, {50, 70}, {}, greatest), QRect(150, 100, 550, 400));
    EXPECT_EQ(dragged(frame, Qt::TopEdge, {50, 70}, {}, greatest), QRect(100, 170, 600, 330));
}

TEST(WindowPlacement, ADraggedEdgeStopsAtTheLeastAndTheGreatestSize) {
    const QRect frame(100, 100, 600, 400);
    EXPECT_EQ(dragged(frame, Qt::LeftEdge, {900, 0}, {380, 356}, {700, 500}),
              QRect(320, 100, 380, 400));
    EXPECT_EQ(dragged(frame, Qt::BottomEdge, {0, 900}, {380, 356}, {700, 500}),
              QRect(100, 100, 600, 500));
}

TEST(WindowPlacement, AFrameThatNoScreenShowsIsNone) {
    EXPECT_EQ(onScreen(QRect(4000, 100, 600, 400), kTwoScreens), std::nullopt);
    EXPECT_EQ(onScreen(QRect(0, 0, 600, 400), {}), std::nullopt);
}

TEST(WindowPlacement, AFrameSurvivesThePreferences) {
    const QRect frame(-20, 40, 612, 548);
    EXPECT_EQ(decode(encode(frame)), frame);
}

TEST(WindowPlacement, AnythingElseInThePreferencesIsNoFrame) {
    for (const char* text : {"", "1 2 3", "1 2 3 4 5", "a b c d", "1 2 0 4", "1 2 3 -4", "1,2,3,4"})
        EXPECT_EQ(decode(QString::fromLatin1(text)), std::nullopt) << text;
}

} // namespace
} // namespace vantle::windowplacement

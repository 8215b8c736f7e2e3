// Presses on a real X server, made by the test as another client.
#include "platform/x11/X11PointerPresses.h"

#include "support/Await.h"

#include <QGuiApplication>
#include <QWindow>

#include <gtest/gtest.h>

#include <vector>

namespace vantle::tests {
namespace {

class X11PointerPressesTest : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(x11.isAlive());
        QObject::connect(&presses, &PointerPresses::pressed,
                         [this](QPoint place) { places.push_back(place); });
    }
    static void click(QPoint place, int button) {
        ASSERT_TRUE(run(QStringLiteral("xdotool mousemove %1 %2 click %3")
                            .arg(place.x())
                            .arg(place.y())
                            .arg(button)));
    }

    X11Connection x11;
    X11RawPresses raw{x11};
    X11PointerPresses presses{raw};
    std::vector<QPoint> places;
};

TEST_F(X11PointerPressesTest, PressesOfBothButtonsAreToldWithTheirPlace) {
    presses.watch();
    click({700, 500}, 1);
    ASSERT_TRUE(await([&] { return places.size() == 1; }));
    EXPECT_EQ(places[0], QPoint(700, 500));
    click({300, 200}, 3);
    ASSERT_TRUE(await([&] { return places.size() == 2; }));
    EXPECT_EQ(places[1], QPoint(300, 200));
}

TEST_F(X11PointerPressesTest, TheWheelAndTheMiddleButtonAreNoPresses) {
    presses.watch();
    click({700, 500}, 2);
    click({700, 500}, 4);
    click({701, 501}, 1);
    ASSERT_TRUE(await([&] { return !places.empty(); }));
    EXPECT_EQ(places, std::vector<QPoint>{QPoint(701, 501)});
}

TEST_F(X11PointerPressesTest, ReportsNothingWhileUnwatched) {
    click({700, 500}, 1);
    presses.watch();
    presses.ignore();
    click({700, 500}, 1);
    presses.watch();
    click({710, 510}, 1);
    ASSERT_TRUE(await([&] { return !places.empty(); }));
    EXPECT_EQ(places, std::vector<QPoint>{QPoint(710, 510)});
}

TEST(X11PointerPresses, WithoutAServerNothingIsTold) {
    X11Connection nowhere(":no-such-server");
    X11RawPresses raw(nowhere);
    X11PointerPresses presses(raw);
    presses.watch();
    presses.ignore();
    EXPECT_FALSE(nowhere.isAlive());
}

} // namespace
} // namespace vantle::tests

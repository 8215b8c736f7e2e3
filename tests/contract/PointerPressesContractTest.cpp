// What everything that tells of presses promises.
#include "contract/Contract.h"
#include "fakes/FakePointerPresses.h"
#include "platform/x11/X11PointerPresses.h"
#include "support/Await.h"

#include <QGuiApplication>

#include <vector>

namespace vantle {
namespace {

/// A desktop with a user at its pointer.
class PressesWorld {
public:
    virtual ~PressesWorld() = default;
    [[nodiscard]] virtual PointerPresses& presses() = 0;
    virtual void press(QPoint place) = 0;
};

class FakeWorld final : public PressesWorld {
public:
    [[nodiscard]] PointerPresses& presses() override { return m_presses; }
    void press(QPoint place) override { m_presses.press(place); }

private:
    fakes::FakePointerPresses m_presses;
};

class X11World final : public PressesWorld {
public:
    [[nodiscard]] PointerPresses& presses() override { return m_presses; }
    void press(QPoint place) override {
        EXPECT_TRUE(tests::run(
            QStringLiteral("xdotool mousemove %1 %2 click 1").arg(place.x()).arg(place.y())));
    }

private:
    X11Connection m_x11;
    X11RawPresses m_raw{m_x11};
    X11PointerPresses m_presses{m_raw};
};

class PointerPressesContract : public contract::Contract<PressesWorld> {
protected:
    PointerPressesContract() {
        QObject::connect(&world().presses(), &PointerPresses::pressed,
                         [this](QPoint place) { m_places.push_back(place); });
    }
    [[nodiscard]] bool awaitPlaces(const std::vector<QPoint>& places) {
        return tests::await([&] { return m_places == places; });
    }

    std::vector<QPoint> m_places;
};

INSTANTIATE_TEST_SUITE_P(, PointerPressesContract,
                         testing::Values(contract::maker<PressesWorld, FakeWorld>("Fake"),
                                         contract::maker<PressesWorld, X11World>("X11")),
                         contract::kByName);

TEST_P(PointerPressesContract, TellsThePlaceOfEachPress) {
    world().presses().watch();
    world().press({700, 500});
    EXPECT_TRUE(awaitPlaces({{700, 500}}));
    world().press({300, 200});
    EXPECT_TRUE(awaitPlaces({{700, 500}, {300, 200}}));
}

TEST_P(PointerPressesContract, TellsNothingUnlessItIsToWatch) {
    world().press({700, 500});
    world().presses().watch();
    world().presses().ignore();
    world().press({710, 510});
    world().presses().watch();
    world().press({720, 520});
    EXPECT_TRUE(awaitPlaces({{720, 520}}));
}

TEST_P(PointerPressesContract, WatchingTwiceTellsOnceAndIgnoringTwiceIsAllowed) {
    world().presses().ignore();
    world().presses().watch();
    world().presses().watch();
    world().press({700, 500});
    EXPECT_TRUE(awaitPlaces({{700, 500}})); // the place is where the pointer is when it is told
    world().press({720, 520});
    EXPECT_TRUE(awaitPlaces({{700, 500}, {720, 520}}));
    world().presses().ignore();
    world().presses().ignore();
    world().press({730, 530});
    tests::runFor(50);
    EXPECT_EQ(m_places.size(), 2U);
}

TEST_P(PointerPressesContract, WatcherMayStopInTheCall) {
    QObject::connect(&world().presses(), &PointerPresses::pressed,
                     [this] { world().presses().ignore(); });
    world().presses().watch();
    world().press({700, 500});
    ASSERT_TRUE(awaitPlaces({{700, 500}}));
    world().press({720, 520});
    tests::runFor(50);
    EXPECT_EQ(m_places.size(), 1U);
}

} // namespace
} // namespace vantle

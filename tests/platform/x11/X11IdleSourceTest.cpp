#include "platform/x11/X11IdleSource.h"

#include "fakes/SleptClock.h"
#include "platform/x11/OwnServer.h"
#include "support/Await.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

using tests::await;

TEST(X11IdleSource, GrowsWithoutInputAndFallsAtMotionAndAtKeys) {
    X11Connection connection;
    const SystemClock clock;
    X11IdleSource source(connection, clock);
    for (const auto& input :
         {QStringLiteral("xdotool mousemove_relative 3 3"), QStringLiteral("xdotool key shift"),
          QStringLiteral("xdotool click 4")}) {
        ASSERT_TRUE(await([&] { return source.secondsSinceLastInput().value() > 0.4; }));
        ASSERT_TRUE(tests::run(input));
        EXPECT_LT(source.secondsSinceLastInput().value(), 0.3) << qPrintable(input);
    }
}

TEST(X11IdleSource, ShowingTheScreenSaverIsNoInput) {
    X11Connection connection;
    const SystemClock clock;
    X11IdleSource source(connection, clock);
    ASSERT_TRUE(await([&] { return source.secondsSinceLastInput().value() > 0.4; }));
    ASSERT_TRUE(tests::run(QStringLiteral("xset s activate")));
    EXPECT_GT(source.secondsSinceLastInput().value(), 0.4);
    ASSERT_TRUE(tests::run(QStringLiteral("xset s reset")));
}

TEST(X11IdleSource, SleepOfTheMachineIsPartOfTheTimeWithoutInput) {
    X11Connection connection;
    fakes::SleptClock clock;
    X11IdleSource source(connection, clock);
    ASSERT_TRUE(tests::run(QStringLiteral("xdotool mousemove_relative 3 3")));
    EXPECT_LT(source.secondsSinceLastInput().value(), 0.5);
    ASSERT_TRUE(await([&] { return source.secondsSinceLastInput().value() > 0.4; }));
    clock.slept = Seconds(3600);
    EXPECT_GT(source.secondsSinceLastInput().value(), 3600.4);
    EXPECT_GT(source.secondsSinceLastInput().value(), 3600.4) << "and stays so";
    clock.slept = Seconds(7200);
    EXPECT_GT(source.secondsSinceLastInput().value(), 7200.4);
    ASSERT_TRUE(await([&] { return source.secondsSinceLastInput().value() > 7201.5; }));
    ASSERT_TRUE(tests::run(QStringLiteral("xdotool mousemove_relative 3 3")));
    EXPECT_LT(source.secondsSinceLastInput().value(), 0.5);
}

TEST(X11IdleSource, IsEmptyWithoutTheExtension) {
    tests::OwnServer server({QStringLiteral("-extension"), QStringLiteral("MIT-SCREEN-SAVER")});
    X11Connection connection(server.display());
    ASSERT_TRUE(connection.isAlive());
    const SystemClock clock;
    X11IdleSource source(connection, clock);
    EXPECT_EQ(source.secondsSinceLastInput(), std::nullopt);
    EXPECT_FALSE(source.canTell());
}

TEST(X11IdleSource, IsEmptyWithoutAServer) {
    X11Connection connection(":4711");
    const SystemClock clock;
    X11IdleSource source(connection, clock);
    EXPECT_EQ(source.secondsSinceLastInput(), std::nullopt);
    EXPECT_FALSE(source.canTell());
}

TEST(X11IdleSource, IsEmptyAfterTheServerWentAway) {
    tests::OwnServer server;
    X11Connection connection(server.display());
    const SystemClock clock;
    X11IdleSource source(connection, clock);
    ASSERT_TRUE(source.secondsSinceLastInput().has_value());
    EXPECT_TRUE(source.canTell());
    int changes = 0;
    QObject::connect(&source, &IdleSource::canTellChanged, &source, [&] { ++changes; });
    server.stop();
    EXPECT_TRUE(await([&] { return changes == 1; }));
    EXPECT_FALSE(source.canTell());
    EXPECT_EQ(source.secondsSinceLastInput(), std::nullopt);
    EXPECT_EQ(source.secondsSinceLastInput(), std::nullopt);
}

} // namespace
} // namespace vantle

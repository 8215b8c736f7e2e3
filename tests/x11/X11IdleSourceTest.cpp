#include "platform/x11/X11IdleSource.h"

#include "support/Await.h"
#include "x11/OwnServer.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

using tests::await;

TEST(X11IdleSource, GrowsWithoutInputAndFallsAtMotionAndAtKeys) {
    X11Connection connection;
    X11IdleSource source(connection);
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
    X11IdleSource source(connection);
    ASSERT_TRUE(await([&] { return source.secondsSinceLastInput().value() > 0.4; }));
    ASSERT_TRUE(tests::run(QStringLiteral("xset s activate")));
    EXPECT_GT(source.secondsSinceLastInput().value(), 0.4);
    ASSERT_TRUE(tests::run(QStringLiteral("xset s reset")));
}

TEST(X11IdleSource, IsEmptyWithoutTheExtension) {
    tests::OwnServer server({QStringLiteral("-extension"), QStringLiteral("MIT-SCREEN-SAVER")});
    X11Connection connection(server.display());
    ASSERT_TRUE(connection.isAlive());
    EXPECT_EQ(X11IdleSource(connection).secondsSinceLastInput(), std::nullopt);
}

TEST(X11IdleSource, IsEmptyWithoutAServer) {
    X11Connection connection(":4711");
    EXPECT_EQ(X11IdleSource(connection).secondsSinceLastInput(), std::nullopt);
}

TEST(X11IdleSource, IsEmptyAfterTheServerWentAway) {
    tests::OwnServer server;
    X11Connection connection(server.display());
    X11IdleSource source(connection);
    ASSERT_TRUE(source.secondsSinceLastInput().has_value());
    server.stop();
    EXPECT_EQ(source.secondsSinceLastInput(), std::nullopt);
    EXPECT_EQ(source.secondsSinceLastInput(), std::nullopt);
}

} // namespace
} // namespace vantle

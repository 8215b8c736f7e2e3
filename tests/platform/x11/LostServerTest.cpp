#include "platform/x11/LostServer.h"

#include "platform/x11/OwnServer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <X11/Xlib.h>
#include <sys/socket.h>

namespace vantle {
namespace {

using tests::OwnServer;

TEST(LostServerDeathTest, XlibEndsTheProcessAndPrintsNothing) {
    OwnServer server;
    EXPECT_EXIT(
        {
            Display* const display = XOpenDisplay(server.display().constData());
            endSilentlyWithServer();
            shutdown(ConnectionNumber(display), SHUT_RDWR);
            XSync(display, 0);
        },
        testing::ExitedWithCode(1),
        // A sanitizer may have its word of what the process leaves behind.
        testing::Not(testing::ContainsRegex("XIO|X connection")));
}

} // namespace
} // namespace vantle

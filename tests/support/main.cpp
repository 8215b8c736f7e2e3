// The main function of every test program: an application object for the code under test that
// needs an event loop, and nothing else.
#include <QGuiApplication>

#include <gmock/gmock.h>

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}

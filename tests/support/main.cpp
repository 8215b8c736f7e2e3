// The main function of every test program: an application object for the code under test that
// needs an event loop, and nothing else.
#include <QGuiApplication>

#include <gmock/gmock.h>

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    testing::InitGoogleMock(&argc, argv);
    const int result = RUN_ALL_TESTS();
    // What deletes itself later does so now, as it would in an event loop.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return result;
}

// As the main function of the other tests, with the application object that tray windows need.
#include <QApplication>

#include <gmock/gmock.h>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}

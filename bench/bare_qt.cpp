// What any program of this kind costs to start: a widget application that ends at the first turn of
// its event loop. The bound for the program's own start.
#include <QApplication>
#include <QTimer>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QTimer::singleShot(0, &QCoreApplication::quit);
    return QApplication::exec();
}

// Runs the tests of views in a folder. With GTEST_OUTPUT=xml:<folder>/ it leaves its report where
// the other test programs leave theirs.
#include <QDir>
#include <QQmlEngine>
#include <QtQuickTest>

#include <vector>

namespace {

class Setup : public QObject {
    Q_OBJECT

public Q_SLOTS:
    void qmlEngineAvailable(QQmlEngine* engine) {
        engine->addImportPath(QStringLiteral("qrc:/qt/qml"));
    }
};

} // namespace

int main(int argc, char** argv) {
    std::vector<QByteArray> arguments(argv, argv + argc);
    const QByteArray wanted = qgetenv("GTEST_OUTPUT");
    if (wanted.startsWith("xml:") && wanted.endsWith('/')) {
        const QByteArray folder = wanted.mid(4);
        QDir().mkpath(QString::fromLocal8Bit(folder));
        arguments.insert(arguments.end(),
                         {"-o", folder + VANTLE_QML_TEST_NAME ".xml,junitxml", "-o", "-,txt"});
    }
    std::vector<char*> pointers;
    for (QByteArray& argument : arguments)
        pointers.push_back(argument.data());
    Setup setup;
    return quick_test_main_with_setup(static_cast<int>(pointers.size()), pointers.data(),
                                      VANTLE_QML_TEST_NAME, VANTLE_QML_TESTS, &setup);
}

#include "main.moc"

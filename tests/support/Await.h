// Waiting for other programs, in the few tests with real ones.
#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QProcess>
#include <QStringList>
#include <QTimer>

namespace vantle::tests {

/// Runs the event loop until the condition holds. Returns false after a limit, which only a failing
/// test reaches.
template <typename Condition>
[[nodiscard]] bool await(Condition condition, int limitMs = 10000) {
    const QDeadlineTimer deadline(limitMs);
    // Wakes the loop regularly, for conditions without an event.
    QTimer wake;
    wake.start(10);
    while (!condition()) {
        if (deadline.hasExpired()) return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return true;
}

/// Runs the event loop for that time, for events that must not come or that need real time.
inline void runFor(int ms) {
    const QDeadlineTimer deadline(ms);
    (void)await([&] { return deadline.hasExpired(); }, ms + 1000);
}

/// Runs a command to its end without the event loop. Returns whether it succeeded.
[[nodiscard]] inline bool run(const QString& commandLine) {
    QStringList words = QProcess::splitCommand(commandLine);
    const QString program = words.takeFirst();
    return QProcess::execute(program, words) == 0;
}

/// Returns a command's output.
[[nodiscard]] inline QString outputOf(const QString& commandLine) {
    QStringList words = QProcess::splitCommand(commandLine);
    const QString program = words.takeFirst();
    QProcess process;
    process.start(program, words);
    process.waitForFinished();
    return QString::fromUtf8(process.readAllStandardOutput());
}

} // namespace vantle::tests

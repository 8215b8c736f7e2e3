// Waiting for what other programs do, in the few tests that talk to real ones.
#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QProcess>
#include <QStringList>
#include <QTimer>

namespace vantle::tests {

/// Runs the event loop until the condition holds; false when it does not within the limit, which
/// is generous since it is only ever reached by a test that fails.
template <typename Condition>
[[nodiscard]] bool await(Condition condition, int limitMs = 10000) {
    const QDeadlineTimer deadline(limitMs);
    // Woken regularly, for conditions that no event of this program tells of.
    QTimer wake;
    wake.start(10);
    while (!condition()) {
        if (deadline.hasExpired()) return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return true;
}

/// Runs the event loop for that long, for what must not happen or only the world's clock brings.
inline void runFor(int ms) {
    const QDeadlineTimer deadline(ms);
    (void)await([&] { return deadline.hasExpired(); }, ms + 1000);
}

/// Runs a command to its end; whether it went well. Nothing of ours runs meanwhile.
[[nodiscard]] inline bool run(const QString& commandLine) {
    QStringList words = QProcess::splitCommand(commandLine);
    const QString program = words.takeFirst();
    return QProcess::execute(program, words) == 0;
}

/// What a command prints.
[[nodiscard]] inline QString outputOf(const QString& commandLine) {
    QStringList words = QProcess::splitCommand(commandLine);
    const QString program = words.takeFirst();
    QProcess process;
    process.start(program, words);
    process.waitForFinished();
    return QString::fromUtf8(process.readAllStandardOutput());
}

} // namespace vantle::tests

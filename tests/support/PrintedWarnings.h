// What the program would print, counted while this lives.
#pragma once

#include <QtGlobal>

namespace vantle::tests {

/// One at a time. The messages are not printed.
class PrintedWarnings {
public:
    PrintedWarnings() {
        s_count = 0;
        m_before = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext&, const QString&) { ++s_count; });
    }
    ~PrintedWarnings() { qInstallMessageHandler(m_before); }
    PrintedWarnings(const PrintedWarnings&) = delete;
    PrintedWarnings& operator=(const PrintedWarnings&) = delete;

    [[nodiscard]] int count() const { return s_count; }

private:
    static inline int s_count = 0;
    QtMessageHandler m_before = nullptr;
};

} // namespace vantle::tests

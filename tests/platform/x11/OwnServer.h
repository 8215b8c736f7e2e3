// A separate X server, for what cannot be done to the shared one.
#pragma once

#include "platform/x11/X11Connection.h"

#include <QCoreApplication>
#include <QProcess>
#include <QStringList>

namespace vantle::tests {

class OwnServer {
public:
    explicit OwnServer(const QStringList& options = {}) {
        m_process.start(QStringLiteral("Xvfb"),
                        QStringList{QStringLiteral("-displayfd"), QStringLiteral("1"),
                                    QStringLiteral("-nolisten"), QStringLiteral("tcp"),
                                    QStringLiteral("-noreset")} +
                            options);
        if (m_process.waitForStarted() && m_process.waitForReadyRead())
            m_display = ":" + m_process.readLine().trimmed();
    }
    ~OwnServer() { stop(); }
    OwnServer(const OwnServer&) = delete;
    OwnServer& operator=(const OwnServer&) = delete;

    /// Its display name, as in ":3".
    [[nodiscard]] const QByteArray& display() const { return m_display; }

    void stop() {
        m_process.kill();
        m_process.waitForFinished();
    }

private:
    QProcess m_process;
    QByteArray m_display;
};

/// Returns once all pending events are dispatched.
inline void catchUp(X11Connection& connection) {
    (void)connection.reply<xcb_get_input_focus_reply>(xcb_get_input_focus(connection.xcb()));
    QCoreApplication::processEvents();
}

} // namespace vantle::tests

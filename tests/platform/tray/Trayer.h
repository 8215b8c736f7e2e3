// A tray that takes windows in, which a test can have come and go.
#pragma once

#include "platform/x11/X11Connection.h"
#include "support/Await.h"

#include <QProcess>

#include <gtest/gtest.h>

namespace vantle::tests {

class Trayer {
public:
    /// Returns when it shows. An item that docks while trayer starts, as one that waits for a tray
    /// does, may leave it without a visible panel for good; then it is started again.
    explicit Trayer(const QString& options = {}) {
        for (int attempt = 0; attempt < 5; ++attempt) {
            start(options);
            if (await([] { return isVisible(); }, 2000)) return;
            stop();
        }
        ADD_FAILURE() << "trayer does not start";
    }
    ~Trayer() { stop(); }
    Trayer(const Trayer&) = delete;
    Trayer& operator=(const Trayer&) = delete;

    /// Returns when the server has noticed.
    void stop() {
        m_process.kill();
        m_process.waitForFinished();
        EXPECT_TRUE(await([this] { return !isThere(); }));
    }

private:
    void start(const QString& options) {
        m_process.setStandardErrorFile(QProcess::nullDevice());
        m_process.startCommand(
            QStringLiteral("trayer --edge top --align right --widthtype request --height 26 "
                           "--SetDockType true --expand true ") +
            options);
        m_process.waitForStarted();
    }
    static bool isVisible() {
        return !outputOf(QStringLiteral("xdotool search --onlyvisible --class trayer")).isEmpty();
    }

    /// Whether the server has a tray.
    bool isThere() {
        auto* xcb = m_connection.xcb();
        const QByteArray name("_NET_SYSTEM_TRAY_S0");
        const auto atom = m_connection.reply<xcb_intern_atom_reply>(
            xcb_intern_atom(xcb, 0, static_cast<std::uint16_t>(name.size()), name.constData()));
        const auto owner = m_connection.reply<xcb_get_selection_owner_reply>(
            xcb_get_selection_owner(xcb, atom->atom));
        return owner->owner != XCB_NONE;
    }

    X11Connection m_connection;
    QProcess m_process;
};

} // namespace vantle::tests

// A desktop with some applications, one of them in front.
#pragma once

#include "fakes/VirtualTime.h"
#include "platform/applications/DesktopApplications.h"
#include "platform/x11/OwnServer.h"
#include "platform/x11/X11FrontmostApp.h"
#include "support/Await.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace vantle::tests {

inline QString q(const char* text) { return QString::fromUtf8(text); }

/// A terminal window with that class.
class Terminal {
public:
    explicit Terminal(const QString& windowClass) {
        m_process.start(QStringLiteral("xterm"), {QStringLiteral("-class"), windowClass,
                                                  QStringLiteral("-e"), QStringLiteral("cat")});
        EXPECT_TRUE(await([&] {
            m_window =
                outputOf(
                    QStringLiteral("xdotool search --onlyvisible --class ^%1$").arg(windowClass))
                    .trimmed();
            return !m_window.isEmpty();
        }));
    }
    ~Terminal() { close(); }
    void activate() const {
        EXPECT_TRUE(run(QStringLiteral("xdotool windowactivate --sync ") + m_window));
    }
    void close() {
        m_process.kill();
        m_process.waitForFinished();
    }
    [[nodiscard]] const QString& window() const { return m_window; }
    [[nodiscard]] qint64 processId() const { return m_process.processId(); }

private:
    QProcess m_process;
    QString m_window;
};

/// A desktop with two applications that have entries, and some windows.
class FrontmostWorld : public testing::Test {
protected:
    FrontmostWorld() {
        writeEntry("alpha", "Name=Alpha\nStartupWMClass=Alpha\n");
        writeEntry("org.example.Beta", "Name=Beta\n");
        m_applications = std::make_unique<DesktopApplications>(QStringList{m_entries.path()});
        QObject::connect(&m_frontmost, &FrontmostApp::activated, &m_frontmost,
                         [this](const auto& app) { m_told.push_back(app); });
    }

    void writeEntry(const char* id, const QByteArray& lines) {
        QFile file(m_entries.filePath(q(id) + QStringLiteral(".desktop")));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("[Desktop Entry]\nType=Application\n" + lines);
    }
    [[nodiscard]] QString frontmostId() {
        const auto app = m_frontmost.frontmost();
        return app ? app->bundleId : QStringLiteral("none");
    }
    /// Returns once the server has set it and all events are dispatched.
    [[nodiscard]] bool comesToFront(const char* id) {
        const bool came = await([&] { return frontmostId() == q(id); });
        catchUp(m_connection);
        return came;
    }

    /// Creates and maps a window of this test.
    xcb_window_t makeWindow(const char* windowClass) {
        auto* const xcb = m_client.xcb();
        const xcb_window_t window = xcb_generate_id(xcb);
        xcb_create_window(xcb, XCB_COPY_FROM_PARENT, window, m_client.root(), 0, 0, 100, 100, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
        if (*windowClass != '\0') {
            const QByteArray both = QByteArray("instance\0", 9) + windowClass + '\0';
            xcb_change_property(xcb, XCB_PROP_MODE_REPLACE, window, XCB_ATOM_WM_CLASS,
                                XCB_ATOM_STRING, 8, static_cast<std::uint32_t>(both.size()),
                                both.constData());
        }
        return window;
    }
    xcb_atom_t atom(const char* name) {
        const auto answer = m_client.reply<xcb_intern_atom_reply>(
            xcb_intern_atom(m_client.xcb(), 0, static_cast<std::uint16_t>(qstrlen(name)), name));
        return answer->atom;
    }
    void set(xcb_window_t window, xcb_atom_t name, xcb_atom_t type, std::uint32_t value) {
        xcb_change_property(m_client.xcb(), XCB_PROP_MODE_REPLACE, window, name, type, 32, 1,
                            &value);
    }
    void setText(xcb_window_t window, xcb_atom_t name, xcb_atom_t type, const QByteArray& text) {
        xcb_change_property(m_client.xcb(), XCB_PROP_MODE_REPLACE, window, name, type, 8,
                            static_cast<std::uint32_t>(text.size()), text.constData());
    }
    /// Returns once all requests of the test's windows are dispatched.
    void settleClient() {
        (void)m_client.reply<xcb_get_input_focus_reply>(xcb_get_input_focus(m_client.xcb()));
        catchUp(m_connection);
    }
    /// Marks the window as active, as a window manager does.
    void callActive(xcb_window_t window) {
        set(m_client.root(), atom("_NET_ACTIVE_WINDOW"), XCB_ATOM_WINDOW, window);
        settleClient();
    }

    QTemporaryDir m_entries;
    std::unique_ptr<DesktopApplications> m_applications;
    X11Connection m_connection;
    X11Connection m_client; ///< for the windows that the test creates
    std::vector<WindowHints> m_resolved;
    fakes::VirtualTime m_time;
    X11FrontmostApp m_frontmost{m_connection, m_time, [this](const WindowHints& hints) {
                                    m_resolved.push_back(hints);
                                    return m_applications ? m_applications->identify(hints)
                                                          : Application();
                                }};
    std::vector<std::optional<Application>> m_told;
};

} // namespace vantle::tests

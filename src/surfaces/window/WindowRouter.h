// Owns the program's windows and opens them.
#pragma once

#include "review/stats/WrappedPeriod.h"
#include "surfaces/window/ManagedWindow.h"

#include <map>
#include <memory>
#include <optional>

namespace vantle {

class NotificationCenter;

/// A window that nobody has registered does not open, and nothing else happens. Main thread.
class WindowRouter : public QObject {
    Q_OBJECT

public:
    WindowRouter(const WindowEnvironment& environment, NotificationCenter& notifications);
    ~WindowRouter() override;

    /// What the window shows from its next opening on.
    void registerWindow(WindowId id, WindowContent content);

    void showDashboard(); ///< closes the review: the two large windows are never open together
    void showWrapped();   ///< closes the dashboard
    void showWrapped(std::optional<WrappedPeriod> startingOn);
    void showLog();
    void showQuickLog();
    void showWelcome();
    void showSettings();

    /// The period on which the review was asked to open; its view model reads it when it is made.
    [[nodiscard]] std::optional<WrappedPeriod> wrappedInitialPeriod() const {
        return m_wrappedInitialPeriod;
    }

    /// Takes an open window from the screen with all that it holds; to show it brings it back.
    void orderOut(WindowId id);
    void close(WindowId id);
    [[nodiscard]] bool isOpen(WindowId id) const;
    /// Null while it is closed.
    [[nodiscard]] QWindow* window(WindowId id) const;

Q_SIGNALS:
    /// A window has opened, or came to the front.
    void shown(WindowId id);

private:
    void show(WindowId id);

    WindowEnvironment m_env;
    std::map<WindowId, std::unique_ptr<ManagedWindow>> m_windows;
    std::optional<WrappedPeriod> m_wrappedInitialPeriod;
};

} // namespace vantle

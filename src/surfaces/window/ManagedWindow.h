// One of the program's windows, open or closed.
#pragma once

#include "base/Scheduler.h"
#include "surfaces/window/WindowSpec.h"

#include <QPointer>
#include <QRect>

class QWindow;

namespace vantle {

class PanelHost;
class Preferences;
class Screens;
class SharedEngine;
class WindowManager;
class WindowShell;

/// The services of windows. All of them must outlive them.
struct WindowEnvironment {
    SharedEngine& engine;
    Preferences& preferences;
    const Screens& screens;
    PanelHost& host;
    WindowManager& windowManager;
    Scheduler& scheduler;
    std::function<void()> quit = {}; ///< runs on the Quit key
};

/// Only a record while closed; window, view tree and view model are created at each opening. Main
/// thread.
class ManagedWindow : public QObject {
    Q_OBJECT

public:
    /// `rules` must outlive the window.
    ManagedWindow(const WindowEnvironment& environment, const WindowRules& rules,
                  WindowContent content);
    ~ManagedWindow() override;

    /// Opens the window, or raises it. Returns false for an invalid view.
    bool show();

    /// Closes the window and frees its memory. Has no effect while closed.
    void close();

    [[nodiscard]] bool isOpen() const { return m_shell != nullptr; }
    /// Null while closed.
    [[nodiscard]] QWindow* window() const;

Q_SIGNALS:
    void closed();

private:
    [[nodiscard]] bool open();
    void place();
    void refit();
    void keepFrame();
    void keepFrameSoon();
    [[nodiscard]] QSize wantedSize() const;

    WindowEnvironment m_env;
    const WindowRules& m_rules;
    WindowContent m_content;
    WindowShell* m_shell = nullptr; ///< deletes itself after closing
    QRect m_placedFrame;            ///< the frame as opened, or as last saved
    TimerHandle m_frameTimer;
};

} // namespace vantle

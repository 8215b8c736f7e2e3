// One of the program's windows: opened, brought to the front, closed.
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

/// What windows work with. All of it must outlive them.
struct WindowEnvironment {
    SharedEngine& engine;
    Preferences& preferences;
    const Screens& screens;
    PanelHost& host;
    WindowManager& windowManager;
    Scheduler& scheduler;
    std::function<void()> quit = {}; ///< what the program's own key for its end does
};

/// Closed there is nothing but this record; open there is a window, a view tree and a view model,
/// all made anew at each opening. Main thread.
class ManagedWindow : public QObject {
    Q_OBJECT

public:
    /// `rules` must outlive the window.
    ManagedWindow(const WindowEnvironment& environment, const WindowRules& rules,
                  WindowContent content);
    ~ManagedWindow() override;

    /// Opens the window, or brings it to the front. False when its view is no good.
    bool show();

    /// Closes the window and gives its memory back. Nothing while it is closed.
    void close();

    [[nodiscard]] bool isOpen() const { return m_shell != nullptr; }
    /// Null while it is closed.
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
    QRect m_placedFrame;            ///< where it was put when it opened, or kept last
    TimerHandle m_frameTimer;
};

} // namespace vantle

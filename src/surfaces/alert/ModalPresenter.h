// The one way in which the program asks something that can't wait.
#pragma once

#include <QString>
#include <QStringList>

namespace vantle {

class PanelHost;
class Screens;
class WindowManager;

/// What an alert says.
struct Alert {
    QString message;
    QString informativeText;
    QStringList buttons; ///< at least one; the main one first
};

namespace modalpresenter {

/// Shows the alert in front of everything, in a window with a place in the task bar and the frame
/// of all windows, on the screen in use, and returns the index of the chosen button. Escape and
/// closing the window choose the last one. Runs the event loop until then; the program's other
/// windows wait. Any thread, after the application object: off the main thread it waits for the
/// answer there.
[[nodiscard]] int runAlert(const Alert& alert, PanelHost& host, WindowManager& windowManager,
                           const Screens& screens);

} // namespace modalpresenter
} // namespace vantle

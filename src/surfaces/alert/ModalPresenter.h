// The presentation of modal alerts.
#pragma once

#include <QString>
#include <QStringList>

namespace vantle {

class PanelHost;
class Screens;
class WindowManager;

/// The content of an alert.
struct Alert {
    QString message;
    QString informativeText;
    QStringList buttons; ///< at least one; the default one first
};

namespace modalpresenter {

/// Shows the alert above all windows, in a framed window with a task bar entry on the screen in
/// use. Returns the index of the chosen button; Escape and closing the window choose the last one.
/// Runs a nested event loop; the program's other windows are blocked. Requires the application
/// object. Any thread: off the main thread it blocks that thread until the answer.
[[nodiscard]] int runAlert(const Alert& alert, PanelHost& host, WindowManager& windowManager,
                           const Screens& screens);

} // namespace modalpresenter
} // namespace vantle

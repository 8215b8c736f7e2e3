// The hint for desktops without a tray: how to reopen the panel.
#pragma once

#include "base/Scheduler.h"

#include <QLatin1String>
#include <QString>

#include <functional>

namespace vantle {

class Preferences;
class TrayItem;

/// Shown in the open panel, where the user misses the icon, once per installation. Main thread.
class MissingTray {
public:
    /// All of it must outlive this.
    struct Environment {
        Scheduler& scheduler;
        Preferences& preferences;
        const TrayItem& tray;
        std::function<bool()> canBeTold; ///< whether the panel is open and shows no other note
        std::function<void(const QString& text)> tell;
    };

    explicit MissingTray(Environment environment);

    /// The panel has opened. Shows the hint a little later, since a tray takes a moment.
    void panelOpened();

private:
    const Environment m_env;
    TimerHandle m_check;
};

} // namespace vantle

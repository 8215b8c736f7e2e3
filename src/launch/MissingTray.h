// Tells a person whose desktop has no tray how to get the panel back.
#pragma once

#include "base/Scheduler.h"

#include <QLatin1String>
#include <QString>

#include <functional>

namespace vantle {

class Preferences;
class TrayItem;

/// They look for the icon while the panel is open in front of them, so it is told there, once in an
/// installation's life. Main thread.
class MissingTray {
public:
    /// All of it must outlive this.
    struct Environment {
        Scheduler& scheduler;
        Preferences& preferences;
        const TrayItem& tray;
        std::function<bool()> canBeTold; ///< the panel is open, and says nothing else
        std::function<void(const QString& text)> tell;
    };

    explicit MissingTray(Environment environment);

    /// The panel has just opened. Tells a little later, since a tray takes a moment.
    void panelOpened();

private:
    const Environment m_env;
    TimerHandle m_check;
};

} // namespace vantle

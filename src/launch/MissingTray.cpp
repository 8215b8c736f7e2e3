#include "launch/MissingTray.h"

#include "base/Words.h"
#include "platform/Preferences.h"
#include "platform/TrayItem.h"
#include "tracking/Settings.h"

#include <utility>

namespace vantle {

namespace {

/// How long a tray may take to show a new item.
constexpr Seconds kTrayPatience{2};

} // namespace

MissingTray::MissingTray(Environment environment) : m_env(std::move(environment)) {}

void MissingTray::panelOpened() {
    if (settings::trayAbsenceTold.read(m_env.preferences)) return;
    m_check = m_env.scheduler.scheduleOnce(kTrayPatience, [this] {
        if (m_env.tray.isShown() || !m_env.canBeTold()) return;
        settings::trayAbsenceTold.write(m_env.preferences, true);
        m_env.tell(Words::tr("No tray here: open Vantle again to get this panel back"));
    });
}

} // namespace vantle

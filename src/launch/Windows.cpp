#include "launch/Windows.h"

#include "surfaces/dashboard/DashboardWindow.h"
#include "surfaces/notes/NotesWindow.h"
#include "surfaces/quicklog/QuickLogWindow.h"
#include "surfaces/settings/SettingsWindow.h"
#include "surfaces/welcome/WelcomeWindow.h"
#include "surfaces/window/WindowParts.h"
#include "surfaces/window/WindowRouter.h"
#include "surfaces/wrapped/WrappedWindow.h"

namespace vantle {

void addWindows(const WindowParts& parts) {
    for (const auto window : {dashboardWindow, wrappedWindow, notesWindow, quickLogWindow,
                              settingsWindow, welcomeWindow})
        parts.router.add(window(parts));
}

} // namespace vantle

// The texts of the settings outside the table.
#include "app/AppModel.h"
#include "base/Words.h"
#include "sensing/HotKey.h"
#include "surfaces/settings/SettingsView.h"

namespace vantle {

QString SettingsView::title(Row row) {
    switch (row) {
    case FocusLinkRow:
        return Words::tr("Focus with sessions");
    case StartShortcutRow:
        return Words::tr("When a session starts");
    case StopShortcutRow:
        return Words::tr("When it stops");
    case LoginRow:
        return Words::tr("Launch at login");
    case HotKeyRow:
        return Words::tr("Global hotkey");
    case TrayRow:
        return Words::tr("Tray");
    case DurationRow:
        return Words::tr("How time reads");
    case WelcomeRow:
        return Words::tr("Welcome");
    case ExportRow:
    case EraseRow:
        return {};
    }
    return {};
}

QString SettingsView::caption(Row row) {
    switch (row) {
    case FocusLinkRow:
        return Words::tr(
            "Runs a Shortcut of yours when a session starts, and another when it stops. Make them "
            "in the Shortcuts app with the Set Focus action; macOS does the silencing, and Vantle "
            "never sees your notifications. Nothing is blocked.");
    case LoginRow:
        return Words::tr("Registers with macOS as a login item (you'll see the standard "
                         "\"background item added\" notice once).");
    case HotKeyRow:
        return Words::tr("Starts or stops vantle from inside any app. Fixed in this version.");
    case DurationRow:
        return Words::tr(
            "Every duration in Vantle reads this way: the dashboard, the notch, Wrapped, and the "
            "card after each session. Clock is the only one that counts seconds while you work.");
    case ExportRow:
        return Words::tr("Your whole log, one JSON line per session.");
    case EraseRow:
        return Words::tr("Deletes all local sessions, skills, app categories, and preferences. "
                         "Everything this app knows lives on this Mac, so this removes all of it.");
    case StartShortcutRow:
    case StopShortcutRow:
    case TrayRow:    // has a text for what is missing
    case WelcomeRow: // has a text per state
        return {};
    }
    return {};
}

QString SettingsView::action(Row row) {
    switch (row) {
    case FocusLinkRow:
        return Words::tr("Open Shortcuts");
    case WelcomeRow:
        return Words::tr("Show the welcome again");
    case ExportRow:
        return Words::tr("Export my data");
    case EraseRow:
        return Words::tr("Erase everything");
    default:
        return {};
    }
}

QString SettingsView::help(Row row) {
    switch (row) {
    case DurationRow:
        return Words::tr("How durations are written");
    case ExportRow:
        return Words::tr("Reveal the local session log in Finder");
    case EraseRow:
        return Words::tr("Delete every local data file this app has written");
    default:
        return {};
    }
}

QString SettingsView::eraseQuestion() {
    return Words::tr("Erase everything? This cannot be undone.");
}

QString SettingsView::hotKeyText() const {
    const HotKey& hotKey = m_env.model.hotKey();
    switch (hotKey.registration()) {
    case HotKeyPort::Registration::Registered:
        return hotKey.keys().isEmpty() ? Words::tr("⌥⌘B · active")
                                       : Words::tr("%1 · active").arg(hotKey.keys());
    case HotKeyPort::Registration::Waiting:
        return Words::tr("The desktop has not answered yet");
    default:
        return Words::tr("⌥⌘B unavailable");
    }
}

QString SettingsView::welcomeCaption() const {
    return m_welcomeReplayArmed
               ? Words::tr("The welcome window is open.")
               : Words::tr("Opens the welcome again, right away. Your log is untouched.");
}

QString SettingsView::versionLine() {
    return Words::tr("Vantle %1 (%2)")
        .arg(QLatin1String(VANTLE_VERSION), QLatin1String(VANTLE_BUILD));
}

} // namespace vantle

// The words of the settings, apart from those of the table.
#include "app/AppModel.h"
#include "surfaces/settings/SettingsView.h"

namespace vantle {

QString SettingsView::title(Row row) {
    switch (row) {
    case FocusLinkRow:
        return QStringLiteral("Focus with sessions");
    case StartShortcutRow:
        return QStringLiteral("When a session starts");
    case StopShortcutRow:
        return QStringLiteral("When it stops");
    case LoginRow:
        return QStringLiteral("Launch at login");
    case HotKeyRow:
        return QStringLiteral("Global hotkey");
    case TrayRow:
        return QStringLiteral("Tray");
    case DurationRow:
        return QStringLiteral("How time reads");
    case WelcomeRow:
        return QStringLiteral("Welcome");
    case ExportRow:
    case EraseRow:
        return {};
    }
    return {};
}

QString SettingsView::caption(Row row) {
    switch (row) {
    case FocusLinkRow:
        return QStringLiteral("Runs a Shortcut of yours when a session starts, and another when it "
                              "stops. Make them in the Shortcuts app with the Set Focus action; "
                              "macOS does the silencing, and Vantle never sees your notifications. "
                              "Nothing is blocked.");
    case LoginRow:
        return QStringLiteral("Registers with macOS as a login item (you'll see the standard "
                              "\"background item added\" notice once).");
    case HotKeyRow:
        return QStringLiteral("Starts or stops vantle from inside any app. Fixed in this version.");
    case DurationRow:
        return QStringLiteral("Every duration in Vantle reads this way: the dashboard, the notch, "
                              "Wrapped, and the card after each session. Clock is the only one "
                              "that counts seconds while you work.");
    case ExportRow:
        return QStringLiteral("Your whole log, one JSON line per session.");
    case EraseRow:
        return QStringLiteral("Deletes all local sessions, skills, app categories, and "
                              "preferences. Everything this app knows lives on this Mac, so this "
                              "removes all of it.");
    case StartShortcutRow:
    case StopShortcutRow:
    case TrayRow:    // says what is missing
    case WelcomeRow: // has one for each state
        return {};
    }
    return {};
}

QString SettingsView::action(Row row) {
    switch (row) {
    case FocusLinkRow:
        return QStringLiteral("Open Shortcuts");
    case WelcomeRow:
        return QStringLiteral("Show the welcome again");
    case ExportRow:
        return QStringLiteral("Export my data");
    case EraseRow:
        return QStringLiteral("Erase everything");
    default:
        return {};
    }
}

QString SettingsView::help(Row row) {
    switch (row) {
    case DurationRow:
        return QStringLiteral("How durations are written");
    case ExportRow:
        return QStringLiteral("Reveal the local session log in Finder");
    case EraseRow:
        return QStringLiteral("Delete every local data file this app has written");
    default:
        return {};
    }
}

QString SettingsView::eraseQuestion() {
    return QStringLiteral("Erase everything? This cannot be undone.");
}

QString SettingsView::hotKeyText() const {
    if (isHotKeyActive()) return QStringLiteral("⌥⌘B · active");
    return m_env.model.hotKey().isRegistered() ? QStringLiteral("⌥⌘B · only over some apps")
                                               : QStringLiteral("⌥⌘B unavailable");
}

QString SettingsView::welcomeCaption() const {
    return m_welcomeReplayArmed
               ? QStringLiteral("The welcome window is open.")
               : QStringLiteral("Opens the welcome again, right away. Your log is untouched.");
}

QString SettingsView::versionLine() {
    return QStringLiteral("Vantle %1 (%2)")
        .arg(QLatin1String(VANTLE_VERSION), QLatin1String(VANTLE_BUILD));
}

} // namespace vantle

// The words of the settings.
#include "app/AppModel.h"
#include "surfaces/settings/SettingsView.h"

#include <algorithm>
#include <cmath>

namespace vantle {

namespace {

/// Whole minutes as they are told; there are none below one.
int toldMinutes(double minutes) { return std::max(static_cast<int>(std::lround(minutes)), 1); }

} // namespace

QString SettingsView::title(Row row) {
    switch (row) {
    case GoalRow:
        return QStringLiteral("Daily goal");
    case FocusLinkRow:
        return QStringLiteral("Focus with sessions");
    case StartShortcutRow:
        return QStringLiteral("When a session starts");
    case StopShortcutRow:
        return QStringLiteral("When it stops");
    case RippleRow:
        return QStringLiteral("Ripple ceremony");
    case BlackoutRow:
        return QStringLiteral("Black out the screen");
    case AutoModeRow:
        return QStringLiteral("Auto mode");
    case AutoStartRow:
        return QStringLiteral("Start sessions automatically");
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
    case AutoModePrivacyRow:
    case ExportRow:
    case EraseRow:
        return {};
    }
    return {};
}

QString SettingsView::caption(Row row) {
    switch (row) {
    case GoalRow:
        return QStringLiteral("The dashboard's Today card measures against this goal, and This "
                              "week against seven of it. Default is 2 hours.");
    case FocusLinkRow:
        return QStringLiteral("Runs a Shortcut of yours when a session starts, and another when it "
                              "stops. Make them in the Shortcuts app with the Set Focus action; "
                              "macOS does the silencing, and Vantle never sees your notifications. "
                              "Nothing is blocked.");
    case RippleRow:
        return QStringLiteral("Presenter mode: turn this off before a screen share and the "
                              "ceremony never crashes your call. It's a manual switch on purpose: "
                              "macOS can only detect screen sharing through an API that itself "
                              "triggers the Screen Recording permission prompt, the exact pop-up "
                              "this app promises never to show.");
    case BlackoutRow:
        return QStringLiteral("The ritual plays on a fully black screen instead of over your "
                              "dimmed desktop. Your windows come back the moment it ends. Turn "
                              "this on when the apps behind the dots feel busy.");
    case AutoModeRow:
        return QStringLiteral(
            "On from the first launch; this switch turns it off. Vantle notices which app is in "
            "front and files the time under the right category on its own. It already knows the "
            "common tools: Claude, Codex and Xcode count as Build, Figma as Design, Slack and Mail "
            "as Connections, Notion and Linear as Founder Ops, and dozens more. Anything it does "
            "not recognize, it asks you about once, right when you are in it. Stay in a mapped app "
            "for about 45 seconds and a running session switches by itself. Every mapping is yours "
            "to change below.");
    case AutoModePrivacyRow:
        return QStringLiteral("It reads only the app's name. No window titles, no tabs, no "
                              "documents, no screen. App names never leave this Mac.");
    case AutoStartRow:
        return QStringLiteral("After about 2 minutes in a mapped app, vantle starts on its own.");
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

QString SettingsView::idleTitle() const {
    return QStringLiteral("Auto-pause after %1 min").arg(toldMinutes(m_idleMinutes));
}

QString SettingsView::idleCaption() const {
    if (QString gap = m_gaps.idleAdvice(); !gap.isEmpty()) return gap;
    const int minutes = toldMinutes(m_idleMinutes);
    return QStringLiteral("No input for %1 minute%2 pauses the clock, backdated to your last "
                          "keystroke or click so away time is never counted. Default is 3.")
        .arg(minutes)
        .arg(minutes == 1 ? QString() : QStringLiteral("s"));
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

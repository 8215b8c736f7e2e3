#include "surfaces/settings/DesktopGaps.h"

#include "base/Words.h"
#include "platform/FrontmostApp.h"
#include "platform/GuestSession.h"
#include "platform/IdleInhibition.h"
#include "platform/IdleSource.h"
#include "platform/OverlayStage.h"
#include "platform/ToggleCommand.h"
#include "platform/TrayItem.h"
#include "sensing/HotKey.h"

#include <utility>

namespace vantle {

DesktopGaps::DesktopGaps(Environment environment) : m_env(std::move(environment)) {
    connect(&m_env.hotKey, &HotKey::outcomeChanged, this, &DesktopGaps::hotKeyChanged);
    connect(&m_env.tray, &TrayItem::shownChanged, this, &DesktopGaps::trayChanged);
    connect(&m_env.idleSource, &IdleSource::canTellChanged, this, &DesktopGaps::idleChanged);
    connect(&m_env.idleSource, &IdleSource::canTellChanged, this, &DesktopGaps::autoModeChanged);
    connect(&m_env.idleInhibition, &IdleInhibition::changed, this, &DesktopGaps::idleChanged);
    connect(&m_env.frontmostApp, &FrontmostApp::coverageChanged, this,
            &DesktopGaps::autoModeChanged);
    connect(&m_env.frontmostApp, &FrontmostApp::helpChanged, this, &DesktopGaps::autoModeChanged);
}

QString DesktopGaps::hotKeyAdvice() const {
    switch (m_env.hotKey.registration()) {
    case HotKeyPort::Registration::Registered:
    case HotKeyPort::Registration::Waiting:
        return {};
    case HotKeyPort::Registration::HeldByAnother:
    case HotKeyPort::Registration::Failed:
        return Words::tr("Another key does as well. In your desktop's keyboard settings, bind "
                         "one to this command:");
    case HotKeyPort::Registration::NotAllowed:
        return Words::tr("This desktop gives Vantle the shortcut only if you say so: set it up, "
                         "or bind a key to this command:");
    case HotKeyPort::Registration::KeysRemoved:
        return Words::tr("Your desktop's settings leave Vantle without keys. Choose some "
                         "there, or bind a key to this command:");
    case HotKeyPort::Registration::NotOffered:
        return Words::tr("In this %1 no app can take keys by itself. In your desktop's "
                         "keyboard settings, bind a key to this command, and it works over "
                         "all apps:")
            .arg(guestSession());
    }
    return {};
}

QString DesktopGaps::hotKeyAction() const {
    const auto registration = m_env.hotKey.registration();
    if (!m_env.hotKey.takesAllowance() || registration == HotKeyPort::Registration::Waiting)
        return {};
    return registration == HotKeyPort::Registration::Registered
               ? Words::tr("Switch the shortcut off")
               : Words::tr("Set up the shortcut");
}

void DesktopGaps::pressHotKeyAction() { m_env.hotKey.allow(!m_env.hotKey.isRegistered()); }

QString DesktopGaps::command() { return toggleCommand(); }

void DesktopGaps::copyCommand() {
    m_env.copy(command());
    m_commandCopied = true;
    Q_EMIT commandCopiedChanged();
}

QString DesktopGaps::trayAdvice() const {
    if (m_env.tray.isShown()) return {};
    return Words::tr("This desktop shows no tray, so there is no icon to click. Open Vantle from "
                     "your applications once more, and its panel comes up.");
}

QString DesktopGaps::idleAdvice() const {
    if (m_env.idleSource.canTell()) return {};
    return Words::tr("This desktop doesn't tell apps when you last used keyboard or mouse, so "
                     "Vantle can't pause by that. Stop the session when you step away.");
}

QString DesktopGaps::callsAdvice() const {
    if (m_env.idleInhibition.canTell() || m_env.idleSource.isInhibited()) return {};
    return Words::tr("This desktop doesn't tell apps most of what keeps the screen awake, so calls "
                     "and videos may count as being away all the same.");
}

QString DesktopGaps::autoModeAdvice() const {
    const QString help = frontmostHelp();
    switch (m_env.frontmostApp.coverage()) {
    case AppCoverage::All:
        return {};
    case AppCoverage::Some:
        return Words::tr("This desktop tells Vantle about some apps only. In all others Auto mode "
                         "does nothing, and time stays under the category it has.") +
               help;
    case AppCoverage::None:
        return help.isEmpty()
                   ? Words::tr("This desktop doesn't tell Vantle which app is in front, so Auto "
                               "mode has nothing to go by. Choose the category by hand.")
                   : Words::tr("This desktop doesn't tell Vantle which app is in front, so Auto "
                               "mode has nothing to go by.") +
                         help;
    }
    return {};
}

QString DesktopGaps::frontmostHelp() const {
    const auto sentence = [](const QString& text) { return QLatin1Char(' ') + text; };
    switch (m_env.frontmostApp.help()) {
    case FrontmostHelp::None:
        return {};
    case FrontmostHelp::Offered:
    case FrontmostHelp::Asked:
        return sentence(Words::tr("A small GNOME extension came with Vantle: it tells Vantle the "
                                  "name of the app in front, and nothing else."));
    case FrontmostHelp::Refused:
        return sentence(Words::tr("GNOME did not switch Vantle's extension on. Allow extensions in "
                                  "GNOME's Extensions app, and try again."));
    case FrontmostHelp::AtLogin:
        return sentence(Words::tr("A small GNOME extension came with Vantle since you logged in. "
                                  "Log out and in again, and you can switch it on here."));
    }
    return {};
}

QString DesktopGaps::autoModeRemedy() const {
    switch (m_env.frontmostApp.help()) {
    case FrontmostHelp::None:
    case FrontmostHelp::AtLogin:
        return {};
    case FrontmostHelp::Offered:
        return Words::tr("Switch the extension on");
    case FrontmostHelp::Asked:
        return Words::tr("Switching it on…");
    case FrontmostHelp::Refused:
        return Words::tr("Try again");
    }
    return {};
}

void DesktopGaps::applyAutoModeRemedy() { m_env.frontmostApp.acceptHelp(); }

QString DesktopGaps::autoStartAdvice() const {
    if (m_env.frontmostApp.coverage() == AppCoverage::None)
        return Words::tr("This desktop doesn't tell Vantle which app is in front, so nothing "
                         "starts on its own.");
    if (m_env.idleSource.canTell()) return {};
    return Words::tr(
        "This desktop doesn't tell apps when you last used keyboard or mouse, so Vantle can't know "
        "that you are there: it starts nothing on its own, and asks about no app.");
}

QString DesktopGaps::ceremonyAdvice() const {
    if (m_env.overlayStage.isAvailable()) return {};
    return Words::tr("In this %1 a ceremony would catch every click while it plays, so none plays.")
        .arg(guestSession());
}

} // namespace vantle

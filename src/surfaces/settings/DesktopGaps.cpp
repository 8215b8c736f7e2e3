#include "surfaces/settings/DesktopGaps.h"

#include "base/Words.h"
#include "platform/FrontmostApp.h"
#include "platform/GuestSession.h"
#include "platform/IdleSource.h"
#include "platform/OverlayStage.h"
#include "platform/TrayItem.h"
#include "sensing/HotKey.h"

#include <utility>

namespace vantle {

DesktopGaps::DesktopGaps(Environment environment) : m_env(std::move(environment)) {
    connect(&m_env.hotKey, &HotKey::isRegisteredChanged, this, &DesktopGaps::hotKeyChanged);
    connect(&m_env.hotKey, &HotKey::registrationErrorChanged, this, &DesktopGaps::hotKeyChanged);
    connect(&m_env.tray, &TrayItem::shownChanged, this, &DesktopGaps::trayChanged);
    connect(&m_env.idleSource, &IdleSource::canTellChanged, this, &DesktopGaps::idleChanged);
    connect(&m_env.idleSource, &IdleSource::canTellChanged, this, &DesktopGaps::autoModeChanged);
    connect(&m_env.frontmostApp, &FrontmostApp::coverageChanged, this,
            &DesktopGaps::autoModeChanged);
}

QString DesktopGaps::hotKeyAdvice() const {
    if (!m_env.hotKey.isRegistered())
        return Words::tr("Another key does as well. In your desktop's keyboard settings, bind one "
                         "to this command:");
    if (!m_env.hotKey.hearsEveryApp())
        return Words::tr(
                   "In a %1 Vantle hears these keys only over some apps. In your desktop's "
                   "keyboard settings, bind a key to this command, and it works over all of them:")
            .arg(guestSession());
    return {};
}

QString DesktopGaps::command() {
    return QStringLiteral("gdbus call --session --dest local.vantle.Vantle "
                          "--object-path /local/vantle/Vantle "
                          "--method org.freedesktop.Application.ActivateAction toggle '[]' '{}'");
}

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

QString DesktopGaps::autoModeAdvice() const {
    switch (m_env.frontmostApp.coverage()) {
    case AppCoverage::All:
        return {};
    case AppCoverage::Some:
        return Words::tr("This desktop tells Vantle about some apps only. In all others Auto mode "
                         "does nothing, and time stays under the category it has.");
    case AppCoverage::None:
        return Words::tr("This desktop doesn't tell Vantle which app is in front, so Auto mode has "
                         "nothing to go by. Choose the category by hand.");
    }
    return {};
}

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

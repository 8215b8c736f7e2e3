#include "surfaces/settings/DesktopGaps.h"

#include "platform/TrayItem.h"
#include "sensing/HotKey.h"

#include <utility>

namespace vantle {

DesktopGaps::DesktopGaps(const HotKey& hotKey, const TrayItem& tray,
                         std::function<void(const QString& text)> copy)
    : m_hotKey(hotKey)
    , m_tray(tray)
    , m_copy(std::move(copy)) {
    connect(&hotKey, &HotKey::isRegisteredChanged, this, &DesktopGaps::hotKeyChanged);
    connect(&hotKey, &HotKey::registrationErrorChanged, this, &DesktopGaps::hotKeyChanged);
    connect(&tray, &TrayItem::shownChanged, this, &DesktopGaps::trayChanged);
}

QString DesktopGaps::hotKeyAdvice() const {
    if (!m_hotKey.isRegistered())
        return QStringLiteral("Another key does as well. In your desktop's keyboard settings, bind "
                              "one to this command:");
    if (!m_hotKey.hearsEveryApp())
        return QStringLiteral("In a Wayland session Vantle hears these keys only over some apps. "
                              "In your desktop's keyboard settings, bind a key to this command, "
                              "and it works over all of them:");
    return {};
}

QString DesktopGaps::command() {
    return QStringLiteral("gdbus call --session --dest local.vantle.Vantle "
                          "--object-path /local/vantle/Vantle "
                          "--method org.freedesktop.Application.ActivateAction toggle '[]' '{}'");
}

void DesktopGaps::copyCommand() {
    m_copy(command());
    m_commandCopied = true;
    Q_EMIT commandCopiedChanged();
}

QString DesktopGaps::trayAdvice() const {
    if (m_tray.isShown()) return {};
    return QStringLiteral("This desktop shows no tray, so there is no icon to click. Open Vantle "
                          "from your applications once more, and its panel comes up.");
}

} // namespace vantle

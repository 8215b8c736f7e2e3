#include "platform/gnome/ShellExtension.h"

#include <QDBusVariant>
#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace vantle {

namespace {

const QString kShell = QStringLiteral("org.gnome.Shell");
const QString kShellPath = QStringLiteral("/org/gnome/Shell");
const QString kExtensions = QStringLiteral("org.gnome.Shell.Extensions");

constexpr int kFirstOfModules = 45; ///< first shell version that loads JavaScript modules

/// The shell's states of an extension; all others mean off.
enum State { On = 1, Failed = 3, ForAnotherVersion = 4 };

} // namespace

ShellExtension::ShellExtension(FollowedService& shell, Scheduler& scheduler,
                               QStringList dataFolders)
    : m_shell(shell)
    , m_scheduler(scheduler)
    , m_dataFolders(std::move(dataFolders)) {
    connect(&m_shell, &FollowedService::came, this, &ShellExtension::meet);
    connect(&m_shell, &FollowedService::gone, this, [this] {
        m_uuid.clear();
        setHelp(FrontmostHelp::None);
    });
    m_shell.hear(kShellPath, kExtensions, QStringLiteral("ExtensionStateChanged"),
                 [this](const QDBusMessage& signal) {
                     if (!m_uuid.isEmpty() && signal.arguments().value(0) == m_uuid) look();
                 });
}

QDBusMessage ShellExtension::extensions(const QString& method) const {
    // The shell's own interface: org.gnome.Shell.Extensions would have to be started.
    return m_shell.call(kShellPath, kExtensions, method) << m_uuid;
}

void ShellExtension::meet() {
    m_shell.ask<QDBusVariant>(m_shell.get(kShellPath, kShell, QStringLiteral("ShellVersion")),
                              [this](const QDBusVariant& version) {
                                  const int major =
                                      version.variant().toString().section(u'.', 0, 0).toInt();
                                  m_uuid = major < kFirstOfModules
                                               ? QStringLiteral("frontmost-44@vantle.local")
                                               : QStringLiteral("frontmost@vantle.local");
                                  look();
                              });
}

void ShellExtension::look() {
    m_shell.ask<QVariantMap>(extensions(QStringLiteral("GetExtensionInfo")),
                             [this](const QVariantMap& info) { takeInfo(info); });
}

void ShellExtension::takeInfo(const QVariantMap& info) {
    const int state = info.value(QStringLiteral("state")).toInt();
    if (info.isEmpty())
        setHelp(isInstalled() ? FrontmostHelp::AtLogin : FrontmostHelp::None);
    else if (state == On || state == ForAnotherVersion)
        setHelp(FrontmostHelp::None);
    else if (state == Failed)
        setHelp(FrontmostHelp::Refused);
    else if (m_help != FrontmostHelp::Asked && m_help != FrontmostHelp::Refused)
        setHelp(FrontmostHelp::Offered);
}

void ShellExtension::enable() {
    if (m_help != FrontmostHelp::Offered && m_help != FrontmostHelp::Refused) return;
    setHelp(FrontmostHelp::Asked);
    const auto refuse = [this] { setHelp(FrontmostHelp::Refused); };
    // The call succeeds before it takes effect, and has none where extensions are disabled
    // altogether.
    m_limit = m_scheduler.scheduleOnce(patience, refuse);
    m_shell.ask<bool>(
        extensions(QStringLiteral("EnableExtension")),
        [this, refuse](bool isDone) { isDone ? look() : refuse(); }, refuse);
}

void ShellExtension::setHelp(FrontmostHelp help) {
    if (help != FrontmostHelp::Asked) m_limit.reset();
    if (std::exchange(m_help, help) != help) Q_EMIT helpChanged();
}

bool ShellExtension::isInstalled() const {
    return std::ranges::any_of(m_dataFolders, [this](const QString& folder) {
        return QFileInfo::exists(folder + QStringLiteral("/gnome-shell/extensions/") + m_uuid +
                                 QStringLiteral("/metadata.json"));
    });
}

} // namespace vantle

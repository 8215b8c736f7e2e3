#include "platform/applications/DesktopAutostart.h"

#include "base/Words.h"
#include "platform/WholeFile.h"
#include "platform/applications/DesktopEntry.h"

namespace vantle {

namespace {

QByteArray entryFor(const QString& programPath) {
    DesktopEntry entry;
    entry.setText("Type", QStringLiteral("Application"));
    entry.setText("Version", QStringLiteral("1.4"));
    entry.setText("Name", QStringLiteral("Vantle"));
    entry.setText("Comment", Words::tr("Count the time you really work"));
    entry.setText("Icon", QStringLiteral("local.vantle.Vantle"));
    // Makes desktops ignore the entry once the program is uninstalled.
    entry.setText("TryExec", programPath);
    entry.setText("Exec", QStringLiteral("env VANTLE_AUTOSTART=1 ") +
                              DesktopEntry::quotedArgument(programPath));
    entry.setText("Terminal", QStringLiteral("false"));
    entry.setText("StartupNotify", QStringLiteral("false"));
    return entry.content();
}

} // namespace

DesktopAutostart::DesktopAutostart(FileSystem& files, QString entryPath, QString programPath)
    : m_files(files)
    , m_entryPath(std::move(entryPath))
    , m_programPath(std::move(programPath)) {}

bool DesktopAutostart::isRegistered() const {
    const auto content = m_files.readAll(m_entryPath);
    if (!content) return false;
    const auto entry = DesktopEntry::read(content.value());
    return entry && !entry->is("Hidden", "true") &&
           !entry->is("X-GNOME-Autostart-enabled", "false");
}

Result<> DesktopAutostart::registerItem() {
    return replaceFile(m_files, m_entryPath, entryFor(m_programPath));
}

Result<> DesktopAutostart::unregisterItem() {
    if (!m_files.exists(m_entryPath)) return {};
    return m_files.remove(m_entryPath);
}

} // namespace vantle

#include "platform/applications/DesktopAutostart.h"

#include "platform/WholeFile.h"
#include "platform/applications/DesktopEntry.h"

namespace vantle {

namespace {

/// TryExec makes desktops pass over the entry in silence once the program is gone.
QString entryFor(const QString& programPath) {
    const QString command =
        QStringLiteral("env VANTLE_AUTOSTART=1 ") + desktopentry::quotedArgument(programPath);
    return QStringLiteral("[Desktop Entry]\n"
                          "Type=Application\n"
                          "Version=1.4\n"
                          "Name=Vantle\n"
                          "Comment=Counts the time you actually work\n"
                          "Icon=local.vantle.Vantle\n"
                          "TryExec=") +
           desktopentry::escaped(programPath) + QStringLiteral("\nExec=") +
           desktopentry::escaped(command) +
           QStringLiteral("\nTerminal=false\nStartupNotify=false\n");
}

} // namespace

DesktopAutostart::DesktopAutostart(FileSystem& files, QString entryPath, QString programPath)
    : m_files(files)
    , m_entryPath(std::move(entryPath))
    , m_programPath(std::move(programPath)) {}

bool DesktopAutostart::isRegistered() const {
    const auto content = m_files.readAll(m_entryPath);
    if (!content) return false;
    const auto is = [&](const QString& key, QLatin1String text) {
        const auto value = desktopentry::value(content.value(), key);
        return value && value->compare(text, Qt::CaseInsensitive) == 0;
    };
    return !is(QStringLiteral("Hidden"), QLatin1String("true")) &&
           !is(QStringLiteral("X-GNOME-Autostart-enabled"), QLatin1String("false"));
}

Result<> DesktopAutostart::registerItem() {
    return replaceFile(m_files, m_entryPath, entryFor(m_programPath).toUtf8());
}

Result<> DesktopAutostart::unregisterItem() {
    if (!m_files.exists(m_entryPath)) return {};
    return m_files.remove(m_entryPath);
}

} // namespace vantle

#include "sensing/shortcuts/ShortcutsFolder.h"

#include <QFile>
#include <QFileInfo>
#include <QUtf8StringView>

#include <algorithm>
#include <array>
#include <dirent.h>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace vantle {

std::vector<ShortcutsFolder> ShortcutsFolder::all() {
    QByteArray config = qgetenv("XDG_CONFIG_HOME");
    if (!config.startsWith('/')) config = qgetenv("HOME") + "/.config";
    const QString bin = QFileInfo(QStringLiteral("/proc/self/exe")).canonicalPath();
    std::vector<ShortcutsFolder> folders{
        ShortcutsFolder(config + "/Vantle/shortcuts"),
        ShortcutsFolder(QFile::encodeName(bin) + "/../share/vantle/shortcuts")};
#ifdef VANTLE_SOURCE_RESOURCES
    folders.emplace_back(VANTLE_SOURCE_RESOURCES "/shortcuts");
#endif
    return folders;
}

bool ShortcutsFolder::isName(const QByteArray& name) {
    if (name.isEmpty() || name.startsWith('.') || name.contains('/')) return false;
    if (name.contains('\n') || name.contains('\0')) return false;
    return QUtf8StringView(name).isValidUtf8();
}

bool ShortcutsFolder::isShortcut(const QByteArray& name) const {
    struct stat status {};
    const QByteArray path = pathOf(name);
    return isName(name) && ::stat(path.constData(), &status) == 0 && S_ISREG(status.st_mode) &&
           ::access(path.constData(), X_OK) == 0;
}

QList<QByteArray> ShortcutsFolder::names() const {
    struct Close {
        void operator()(DIR* folder) const { ::closedir(folder); }
    };
    QList<QByteArray> names;
    const std::unique_ptr<DIR, Close> folder(::opendir(m_path.constData()));
    if (!folder) return names;
    while (const auto* entry = ::readdir(folder.get()))
        if (isShortcut(entry->d_name)) names.append(entry->d_name);
    std::sort(names.begin(), names.end());
    return names;
}

void ShortcutsFolder::become(const QByteArray& name) const {
    if (!isShortcut(name)) return;
    QByteArray path = pathOf(name);
    const std::array<char*, 2> arguments{path.data(), nullptr};
    ::execv(path.constData(), arguments.data());
}

} // namespace vantle

#include "app/launch/InstallLocation.h"

#include "platform/FileSystem.h"

#include <QStringList>

#include <algorithm>

namespace vantle::installlocation {

namespace {

/// Folders of which the system or a package manager takes care.
constexpr const char* kSystemFolders[] = {"/usr/", "/opt/",       "/app/",      "/snap/",
                                          "/bin/", "/nix/store/", "/gnu/store/"};

QString local(const QString& home) { return home + QStringLiteral("/.local/"); }

} // namespace

bool isProper(const QString& program, const QString& home) {
    const auto isWithin = [&](const char* folder) {
        return program.startsWith(QLatin1String(folder));
    };
    if (std::any_of(std::begin(kSystemFolders), std::end(kSystemFolders), isWithin)) return true;
    return program.startsWith(local(home)) &&
           !program.startsWith(local(home) + QStringLiteral("share/Trash/"));
}

bool isOnPurpose(FileSystem& files, const QString& folder) {
    const QString prefix = folder.section(QLatin1Char('/'), 0, -2);
    return files.exists(folder + QStringLiteral("/CMakeCache.txt")) ||
           files.exists(prefix + QStringLiteral("/share/applications/local.vantle.Vantle.desktop"));
}

QString target(const QString& home) { return local(home) + QStringLiteral("bin/vantle"); }

} // namespace vantle::installlocation

#include "launch/InstallLocation.h"

#include "platform/FileSystem.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

#include <algorithm>

namespace vantle::installlocation {

namespace {

/// Folders managed by the system or a package manager.
constexpr const char* kSystemFolders[] = {"/usr/", "/opt/",       "/app/",      "/snap/",
                                          "/bin/", "/nix/store/", "/gnu/store/"};

/// Folders of a home that users install programs into.
constexpr const char* kOwnFolders[] = {"/Applications/", "/bin/"};

QString local(const QString& home) { return home + QStringLiteral("/.local/"); }

} // namespace

bool isProper(const QString& program, const QString& home) {
    const auto isWithin = [&](const char* folder) {
        return program.startsWith(QLatin1String(folder));
    };
    if (std::any_of(std::begin(kSystemFolders), std::end(kSystemFolders), isWithin)) return true;
    for (const char* folder : kOwnFolders)
        if (program.startsWith(home + QLatin1String(folder))) return true;
    return program.startsWith(local(home)) &&
           !program.startsWith(local(home) + QStringLiteral("share/Trash/"));
}

bool isOnPurpose(FileSystem& files, const QString& folder) {
    const QString prefix = folder.section(QLatin1Char('/'), 0, -2);
    return files.exists(folder + QStringLiteral("/CMakeCache.txt")) ||
           files.exists(prefix + QStringLiteral("/share/applications/local.vantle.Vantle.desktop"));
}

QString target(const QString& home) { return local(home) + QStringLiteral("bin/vantle"); }

Companions companions(const QString& folder, const QString& home) {
    Companions found;
    const auto take = [&](const QString& source, const QString& target, bool isProgram) {
        if (!QFileInfo(source).isFile()) return false;
        found.files.push_back({source, local(home) + target, isProgram});
        return true;
    };
    const auto takeWhole = [&](const QString& source, const QString& target, bool isProgram) {
        if (take(source, target, isProgram)) found.sources += source;
    };
    const QString prefix = QFileInfo(folder).path();
    takeWhole(folder + QStringLiteral("/vantle-shortcuts"), QStringLiteral("bin/vantle-shortcuts"),
              true);
    // The program searches its own folder first.
    const QString name = QStringLiteral("/vantle-webceremony.so");
    const QString modules = QStringLiteral("lib/vantle/plugins");
    const QString beside = folder + name;
    takeWhole(QFileInfo::exists(beside) ? beside : prefix + QLatin1Char('/') + modules + name,
              modules + name, false);

    const QString resources = prefix + QStringLiteral("/share/vantle");
    QDirIterator files(resources, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    bool hasResources = false;
    while (files.hasNext()) {
        const QString source = files.next();
        hasResources |=
            take(source, source.sliced(prefix.size() + 1), QFileInfo(source).isExecutable());
    }
    if (hasResources) found.sources += resources;
    return found;
}

} // namespace vantle::installlocation

#include "app/launch/AppInstaller.h"

#include "app/launch/InstallLocation.h"
#include "platform/FileSystem.h"
#include "platform/Preferences.h"
#include "platform/WholeFile.h"

#include <QUuid>

namespace vantle {

namespace {

constexpr int kProgramMode = 0755;

QString folderOf(const QString& path) { return path.section(QLatin1Char('/'), 0, -2); }

/// Puts a copy of the program at `to` in one step, over what may stand there; on failure that stays
/// and nothing else does.
Result<> copyProgram(FileSystem& files, const QString& from, const QString& to) {
    const auto content = files.readAll(from);
    if (!content) return content.error();
    const QString temporary = folderOf(to) + QStringLiteral("/.vantle.") +
                              QUuid::createUuid().toString(QUuid::WithoutBraces) +
                              QStringLiteral(".tmp");
    if (auto created = createFile(files, temporary, content.value()); !created) return created;
    auto result = files.setMode(temporary, kProgramMode);
    if (result) result = files.rename(temporary, to);
    if (!result) files.remove(temporary).ignore();
    return result;
}

Alert moveOffer() {
    return {QStringLiteral("Move Vantle to Applications?"),
            QStringLiteral("Vantle runs best from your Applications folder — it keeps it out of "
                           "Downloads and lets it update cleanly. Move it there now?"),
            {QStringLiteral("Move to Applications"), QStringLiteral("Not Now")}};
}

Alert replaceQuestion() {
    return {QStringLiteral("Vantle is already in Applications."),
            QStringLiteral("Replace it with this version?"),
            {QStringLiteral("Replace"), QStringLiteral("Cancel")}};
}

Alert dragNotice() {
    return {QStringLiteral("Couldn't move it automatically."),
            QStringLiteral("Drag Vantle into Applications yourself — it's selected in Finder now."),
            {QStringLiteral("OK")}};
}

} // namespace

AppInstaller::AppInstaller(const Preferences& preferences, FileSystem& files, Place place,
                           Operations operations)
    : m_preferences(preferences)
    , m_files(files)
    , m_place(std::move(place))
    , m_operations(std::move(operations)) {}

bool AppInstaller::offerMoveToApplicationsIfNeeded() {
    if (m_preferences.flag(skipPromptKey)) return false;
    if (installlocation::isProper(m_place.program, m_place.home)) return false;
    const QString target = installlocation::target(m_place.home);
    if (!wantsMove() || !mayReplace(target)) return false;
    if (!copyAll(target)) return fail();
    // The copy is started before the source goes: one that can't be started leaves all as it was.
    if (!m_operations.start(target)) return fail();
    giveUpSources();
    m_operations.terminate();
    return true;
}

bool AppInstaller::wantsMove() const { return m_operations.runAlert(moveOffer()) == 0; }

bool AppInstaller::mayReplace(const QString& target) const {
    return !m_files.exists(target) || m_operations.runAlert(replaceQuestion()) == 0;
}

Result<> AppInstaller::copyAll(const QString& target) {
    const QString folder = folderOf(target);
    if (auto made = m_files.makeDirectories(folder, std::nullopt); !made) return made;
    // The program last: where it stands, what it needs stands too.
    for (const QString& path : presentCompanions()) {
        const QString to = folder + QLatin1Char('/') + path.section(QLatin1Char('/'), -1);
        if (auto copied = copyProgram(m_files, path, to); !copied) return copied;
    }
    if (auto copied = copyProgram(m_files, m_place.program, target); !copied) return copied;
    m_files.syncDirectory(folder).ignore(); // it is there, if not yet proof against a power cut
    return {};
}

void AppInstaller::giveUpSources() {
    if (m_place.isReadOnly) return;
    for (const QString& path : presentCompanions() + QStringList{m_place.program})
        m_operations.moveToTrash(path).ignore();
}

bool AppInstaller::fail() {
    m_operations.reveal(m_place.program);
    (void)m_operations.runAlert(dragNotice());
    return false;
}

QStringList AppInstaller::presentCompanions() const {
    QStringList present;
    for (const QString& name : m_place.companions) {
        const QString path = folderOf(m_place.program) + QLatin1Char('/') + name;
        if (m_files.exists(path)) present.append(path);
    }
    return present;
}

} // namespace vantle

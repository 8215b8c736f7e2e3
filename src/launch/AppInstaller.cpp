#include "launch/AppInstaller.h"

#include "base/Words.h"
#include "platform/FileSystem.h"
#include "platform/Preferences.h"
#include "platform/WholeFile.h"
#include "tracking/Settings.h"

#include <QUuid>

namespace vantle {

namespace {

constexpr int kProgramMode = 0755;

QString folderOf(const QString& path) { return path.section(QLatin1Char('/'), 0, -2); }

/// Copies the file to `to` atomically and replaces what is there; on failure that stays.
Result<> copyFile(FileSystem& files, const QString& from, const QString& to, int mode) {
    if (auto made = files.makeDirectories(folderOf(to), std::nullopt); !made) return made;
    const auto content = files.readAll(from);
    if (!content) return content.error();
    const QString temporary = folderOf(to) + QStringLiteral("/.vantle.") +
                              QUuid::createUuid().toString(QUuid::WithoutBraces) +
                              QStringLiteral(".tmp");
    if (auto created = createFile(files, temporary, content.value()); !created) return created;
    auto result = files.setMode(temporary, mode);
    if (result) result = files.rename(temporary, to);
    if (!result) files.remove(temporary).ignore();
    return result;
}

Alert moveOffer() {
    return {Words::tr("Move Vantle to Applications?"),
            Words::tr("Vantle runs best from your Applications folder — it keeps it out of "
                      "Downloads and lets it update cleanly. Move it there now?"),
            {Words::tr("Move to Applications"), Words::tr("Not Now")}};
}

Alert replaceQuestion() {
    return {Words::tr("Vantle is already in Applications."),
            Words::tr("Replace it with this version?"),
            {Words::tr("Replace"), Words::tr("Cancel")}};
}

Alert dragNotice() {
    return {Words::tr("Couldn't move it automatically."),
            Words::tr("Drag Vantle into Applications yourself — it's selected in Finder now."),
            {Words::tr("OK")}};
}

} // namespace

AppInstaller::AppInstaller(const Preferences& preferences, FileSystem& files, Place place,
                           Operations operations)
    : m_preferences(preferences)
    , m_files(files)
    , m_place(std::move(place))
    , m_operations(std::move(operations)) {}

bool AppInstaller::offerMoveToApplicationsIfNeeded() {
    if (settings::skipInstallPrompt.read(m_preferences)) return false;
    if (installlocation::isProper(m_place.program, m_place.home)) return false;
    const QString target = installlocation::target(m_place.home);
    if (!wantsMove() || !mayReplace(target)) return false;
    if (!copyAll(target)) return fail();
    // Starts the copy before it deletes the source: when starting fails, everything stays.
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
    // The program last: a copied program has all of its companions.
    for (const auto& [source, to, isProgram] : m_place.companions.files) {
        const int mode = isProgram ? kProgramMode : m_files.usualMode();
        if (auto copied = copyFile(m_files, source, to, mode); !copied) return copied;
    }
    if (auto copied = copyFile(m_files, m_place.program, target, kProgramMode); !copied)
        return copied;
    // copied, though perhaps not yet safe from a power loss
    m_files.syncDirectory(folderOf(target)).ignore();
    return {};
}

void AppInstaller::giveUpSources() {
    if (m_place.isReadOnly) return;
    for (const QString& path : m_place.companions.sources + QStringList{m_place.program})
        m_operations.moveToTrash(path).ignore();
}

bool AppInstaller::fail() {
    m_operations.reveal(m_place.program);
    (void)m_operations.runAlert(dragNotice());
    return false;
}

} // namespace vantle

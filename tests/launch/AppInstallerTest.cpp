#include "launch/AppInstaller.h"

#include "fakes/FaultyFileSystem.h"
#include "fakes/MemoryFileSystem.h"
#include "fakes/MemoryPreferences.h"
#include "launch/InstallLocation.h"
#include "platform/WholeFile.h"
#include "support/QtPrinters.h"
#include "tracking/Settings.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <deque>
#include <utility>
#include <vector>

namespace vantle {
namespace {

QString q(const char* text) { return QString::fromUtf8(text); }

bool isProper(const char* program) { return installlocation::isProper(q(program), q("/home/ada")); }

TEST(InstallLocation, SystemsFoldersAndTheUsersOwnAreProper) {
    for (const char* program :
         {"/usr/bin/vantle", "/usr/local/bin/vantle", "/opt/vantle/bin/vantle",
          "/home/ada/.local/bin/vantle", "/home/ada/.local/lib/vantle/vantle", "/app/bin/vantle",
          "/home/ada/Applications/vantle", "/home/ada/bin/vantle", "/home/ada/bin/vantle-1/vantle",
          "/snap/vantle/4/bin/vantle"})
        EXPECT_TRUE(isProper(program)) << program;
}

TEST(InstallLocation, AnyOtherFolderIsNot) {
    for (const char* program :
         {"/home/ada/Downloads/vantle", "/home/ada/vantle", "/home/ada/src/build/release/vantle",
          "/tmp/.mount_vantle/usr/bin/vantle", "/media/ada/stick/vantle", "/usrlocal/vantle",
          "/home/eve/.local/bin/vantle", "/home/eve/bin/vantle", "/home/ada/binaries/vantle",
          "/home/ada/Applications.old/vantle", "/home/ada/src/bin/vantle",
          "/home/ada/.localized/vantle", "/home/ada/.local/share/Trash/files/vantle"})
        EXPECT_FALSE(isProper(program)) << program;
}

TEST(InstallLocation, ABuildTreeAndAPrefixWithTheWholeOfItAreOnPurpose) {
    fakes::MemoryFileSystem disk;
    disk.setContent(q("/work/build/CMakeCache.txt"), "x");
    disk.setContent(q("/srv/tools/share/applications/local.vantle.Vantle.desktop"), "x");
    EXPECT_TRUE(installlocation::isOnPurpose(disk, q("/work/build")));
    EXPECT_TRUE(installlocation::isOnPurpose(disk, q("/srv/tools/bin")));
    EXPECT_FALSE(installlocation::isOnPurpose(disk, q("/work")));
    EXPECT_FALSE(installlocation::isOnPurpose(disk, q("/srv/tools")));
    EXPECT_FALSE(installlocation::isOnPurpose(disk, q("/home/ada/Downloads")));
}

/// A download, a disk, and a person who answers alerts.
class AppInstallerTest : public testing::Test {
protected:
    AppInstallerTest() { put(m_place.program, "new program"); }

    void put(const QString& path, const char* content) {
        ASSERT_TRUE(m_disk.makeDirectories(path.section(QLatin1Char('/'), 0, -2), {}));
        ASSERT_TRUE(replaceFile(m_disk, path, content));
    }
    [[nodiscard]] QByteArray at(const QString& path) {
        const auto content = m_disk.readAll(path);
        return content ? content.value() : QByteArray("nothing");
    }
    /// One launch, with the index of the button pressed at each alert.
    [[nodiscard]] bool launch(std::initializer_list<int> answers) {
        m_answers = answers;
        m_alerts.clear();
        AppInstaller installer(m_preferences, m_files, m_place, operations());
        const bool moved = installer.offerMoveToApplicationsIfNeeded();
        EXPECT_TRUE(m_answers.empty()) << "alerts that were expected";
        return moved;
    }
    [[nodiscard]] AppInstaller::Operations operations() {
        AppInstaller::Operations operations;
        operations.runAlert = [this](const Alert& alert) {
            m_alerts.push_back(alert);
            if (m_answers.empty()) return static_cast<int>(alert.buttons.size()) - 1;
            const int answer = m_answers.front();
            m_answers.pop_front();
            return answer;
        };
        operations.moveToTrash = [this](const QString& path) {
            m_calls.append(q("trash ") + path);
            return m_trashWorks ? Result<>() : Error{13, q("trash"), path, q("denied")};
        };
        operations.reveal = [this](const QString& path) { m_calls.append(q("reveal ") + path); };
        operations.start = [this](const QString& path) {
            m_calls.append(q("start ") + path);
            return m_startWorks;
        };
        operations.terminate = [this] { m_calls.append(q("terminate")); };
        return operations;
    }
    void expectMoveFailed() {
        EXPECT_EQ(m_alerts.back().message, q("Couldn't move it automatically."));
        EXPECT_EQ(m_alerts.back().informativeText,
                  q("Drag Vantle into Applications yourself — it's selected in Finder now."));
        EXPECT_EQ(m_calls.last(), q("reveal ") + m_place.program);
        EXPECT_FALSE(m_calls.contains(q("terminate")));
        EXPECT_FALSE(m_calls.contains(q("trash ") + m_place.program));
    }

    const QString m_target = q("/home/ada/.local/bin/vantle");
    AppInstaller::Place m_place{
        q("/home/ada/Downloads/new vérsion/vantle"), q("/home/ada"), {}, false};
    fakes::MemoryPreferences m_preferences;
    fakes::MemoryFileSystem m_disk;
    fakes::FaultyFileSystem m_files{m_disk};
    std::deque<int> m_answers;
    std::vector<Alert> m_alerts;
    QStringList m_calls;
    bool m_trashWorks = true;
    bool m_startWorks = true;
};

TEST_F(AppInstallerTest, FromItsProperPlaceNothingIsAsked) {
    for (const char* program : {"/usr/bin/vantle", "/home/ada/.local/bin/vantle"}) {
        m_place.program = q(program);
        EXPECT_FALSE(launch({}));
        EXPECT_TRUE(m_alerts.empty());
    }
}

TEST_F(AppInstallerTest, ThePreferenceOfDevelopersAsksNothing) {
    settings::skipInstallPrompt.write(m_preferences, true);
    EXPECT_FALSE(launch({}));
    EXPECT_TRUE(m_alerts.empty());
}

TEST_F(AppInstallerTest, OffersTheMoveInItsWords) {
    EXPECT_FALSE(launch({1}));
    ASSERT_EQ(m_alerts.size(), 1U);
    EXPECT_EQ(m_alerts[0].message, q("Move Vantle to Applications?"));
    EXPECT_EQ(m_alerts[0].informativeText,
              q("Vantle runs best from your Applications folder — it keeps it out of Downloads and "
                "lets it update cleanly. Move it there now?"));
    EXPECT_EQ(m_alerts[0].buttons, (QStringList{q("Move to Applications"), q("Not Now")}));
}

TEST_F(AppInstallerTest, NotNowChangesNothingAndOffersAgainAtTheNextLaunch) {
    EXPECT_FALSE(launch({1}));
    EXPECT_FALSE(launch({1}));
    EXPECT_EQ(m_alerts.size(), 1U);
    EXPECT_EQ(m_calls, QStringList());
    EXPECT_EQ(m_preferences.keys(), QStringList());
    EXPECT_FALSE(m_disk.exists(m_target));
}

TEST_F(AppInstallerTest, MoveCopiesStartsTheCopyTrashesTheSourceAndEnds) {
    EXPECT_TRUE(launch({0}));
    EXPECT_EQ(at(m_target), "new program");
    EXPECT_EQ(m_disk.mode(m_target).value(), 0755);
    EXPECT_EQ(m_calls,
              (QStringList{q("start ") + m_target, q("trash ") + m_place.program, q("terminate")}));
}

TEST_F(AppInstallerTest, CompanionsMoveAlong) {
    const QString folder = q("/home/ada/Downloads/new vérsion/");
    const QString local = q("/home/ada/.local/");
    m_place.companions = {
        {{folder + q("vantle-shortcuts"), local + q("bin/vantle-shortcuts"), true},
         {folder + q("share/vantle/art/star.png"), local + q("share/vantle/art/star.png"), false}},
        {folder + q("vantle-shortcuts"), folder + q("share/vantle")}};
    put(folder + q("vantle-shortcuts"), "tool");
    put(folder + q("share/vantle/art/star.png"), "star");
    EXPECT_TRUE(launch({0}));
    EXPECT_EQ(at(local + q("bin/vantle-shortcuts")), "tool");
    EXPECT_EQ(m_disk.mode(local + q("bin/vantle-shortcuts")).value(), 0755);
    EXPECT_EQ(at(local + q("share/vantle/art/star.png")), "star");
    EXPECT_EQ(m_disk.mode(local + q("share/vantle/art/star.png")).value(), 0644);
    EXPECT_TRUE(m_calls.contains(q("trash ") + folder + q("vantle-shortcuts")));
    EXPECT_TRUE(m_calls.contains(q("trash ") + folder + q("share/vantle")));
}

TEST_F(AppInstallerTest, CompanionThatCannotBeCopiedLeavesTheProgramWhereItIs) {
    m_place.companions.files = {{q("/home/ada/Downloads/gone"), q("/home/ada/.local/gone"), false}};
    EXPECT_FALSE(launch({0, 0}));
    expectMoveFailed();
    EXPECT_FALSE(m_disk.exists(m_target));
}

/// A folder with a program and what came with it.
class CompanionsTest : public testing::Test {
protected:
    void put(const char* name) {
        QDir().mkpath(QFileInfo(at(name)).path());
        QFile file(at(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    [[nodiscard]] QString at(const char* name) const { return m_root.filePath(q(name)); }
    [[nodiscard]] installlocation::Companions found() const {
        return installlocation::companions(at("bin"), q("/home/ada"));
    }

    const QTemporaryDir m_root;
};

TEST_F(CompanionsTest, AProgramByItselfHasNone) {
    put("bin/vantle");
    put("bin/readme");
    EXPECT_TRUE(found().files.empty());
    EXPECT_EQ(found().sources, QStringList());
}

TEST_F(CompanionsTest, ToolModuleAndAllResourcesBelongToIt) {
    put("bin/vantle-shortcuts");
    put("lib/vantle/plugins/vantle-webceremony.so");
    put("share/vantle/ceremony.html");
    put("share/vantle/art/star.png");
    put("share/doc/readme");
    auto companions = found();
    std::sort(companions.files.begin(), companions.files.end(),
              [](const auto& one, const auto& other) { return one.target < other.target; });
    EXPECT_EQ(companions.files,
              (std::vector<installlocation::Companion>{
                  {at("bin/vantle-shortcuts"), q("/home/ada/.local/bin/vantle-shortcuts"), true},
                  {at("lib/vantle/plugins/vantle-webceremony.so"),
                   q("/home/ada/.local/lib/vantle/plugins/vantle-webceremony.so"), false},
                  {at("share/vantle/art/star.png"), q("/home/ada/.local/share/vantle/art/star.png"),
                   false},
                  {at("share/vantle/ceremony.html"),
                   q("/home/ada/.local/share/vantle/ceremony.html"), false}}));
    EXPECT_EQ(companions.sources,
              (QStringList{at("bin/vantle-shortcuts"),
                           at("lib/vantle/plugins/vantle-webceremony.so"), at("share/vantle")}));
}

TEST_F(CompanionsTest, ShortcutsThatComeAlongStayExecutable) {
    put("share/vantle/shortcuts/Quiet");
    ASSERT_TRUE(QFile::setPermissions(at("share/vantle/shortcuts/Quiet"),
                                      QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    EXPECT_EQ(found().files, (std::vector<installlocation::Companion>{
                                 {at("share/vantle/shortcuts/Quiet"),
                                  q("/home/ada/.local/share/vantle/shortcuts/Quiet"), true}}));
}

TEST_F(CompanionsTest, ModuleBesideTheProgramGoesToItsInstalledPlace) {
    put("bin/vantle-webceremony.so");
    EXPECT_EQ(found().files,
              (std::vector<installlocation::Companion>{
                  {at("bin/vantle-webceremony.so"),
                   q("/home/ada/.local/lib/vantle/plugins/vantle-webceremony.so"), false}}));
}

TEST_F(AppInstallerTest, CopyThatIsThereIsReplacedOnlyWhenTheUserSaysSo) {
    put(m_target, "old program");
    EXPECT_FALSE(launch({0, 1}));
    ASSERT_EQ(m_alerts.size(), 2U);
    EXPECT_EQ(m_alerts[1].message, q("Vantle is already in Applications."));
    EXPECT_EQ(m_alerts[1].informativeText, q("Replace it with this version?"));
    EXPECT_EQ(m_alerts[1].buttons, (QStringList{q("Replace"), q("Cancel")}));
    EXPECT_EQ(at(m_target), "old program");
    EXPECT_EQ(m_calls, QStringList());

    EXPECT_TRUE(launch({0, 0}));
    EXPECT_EQ(at(m_target), "new program");
}

TEST_F(AppInstallerTest, ReplacementThatFailsLeavesTheOldCopyAndShowsTheFolder) {
    using Operation = fakes::FaultyFileSystem::Operation;
    put(m_target, "old program");
    const QString temporary = q(".vantle.*.tmp");
    const std::vector<std::pair<Operation, QString>> faults{
        {Operation::MakeDirectories, q("bin")}, {Operation::Open, q("vantle")},
        {Operation::Create, temporary},         {Operation::Write, temporary},
        {Operation::Sync, temporary},           {Operation::SetMode, temporary},
        {Operation::Rename, temporary}};
    for (const auto& [operation, name] : faults) {
        m_calls.clear();
        m_files.fail(operation, name, ENOSPC);
        EXPECT_FALSE(launch({0, 0, 0})) << static_cast<int>(operation);
        m_files.healAll();
        expectMoveFailed();
        EXPECT_EQ(at(m_target), "old program") << static_cast<int>(operation);
    }
    EXPECT_TRUE(launch({0, 0}));
    EXPECT_EQ(at(m_target), "new program");
}

TEST_F(AppInstallerTest, FolderInTheWayEndsInTheNotice) {
    ASSERT_TRUE(m_disk.makeDirectories(m_target, {}));
    EXPECT_FALSE(launch({0, 0, 0}));
    expectMoveFailed();
}

TEST_F(AppInstallerTest, FromAReadOnlyMountTheSourceIsLeftAlone) {
    m_place.isReadOnly = true;
    EXPECT_TRUE(launch({0}));
    EXPECT_EQ(at(m_target), "new program");
    EXPECT_EQ(m_calls, (QStringList{q("start ") + m_target, q("terminate")}));
}

TEST_F(AppInstallerTest, SourceThatCannotBeTrashedDoesNotHoldUpTheMove) {
    m_trashWorks = false;
    EXPECT_TRUE(launch({0}));
    EXPECT_EQ(m_calls.last(), q("terminate"));
}

TEST_F(AppInstallerTest, CopyThatCannotBeStartedLeavesThisOneRunning) {
    m_startWorks = false;
    EXPECT_FALSE(launch({0, 0}));
    expectMoveFailed();
}

} // namespace
} // namespace vantle

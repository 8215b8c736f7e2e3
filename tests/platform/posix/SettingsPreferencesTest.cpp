// What stands in the preferences file, and what becomes of it when it is damaged.
#include "platform/posix/SettingsPreferences.h"

#include "fakes/FaultyFileSystem.h"
#include "platform/posix/PosixFileSystem.h"
#include "support/QtPrinters.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QLockFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <cerrno>

namespace vantle {
namespace {

using fakes::FaultyFileSystem;
using Operation = FaultyFileSystem::Operation;

const QString kKey = QStringLiteral("skill.lastUsed");
const QString kValue = QStringLiteral("building");
constexpr char kDamaged[] = "[General]\ngoal.dailyHours=3\nthis line is no entry\n";

class SettingsPreferencesTest : public testing::Test {
protected:
    [[nodiscard]] QString at(const char* name) const {
        return m_directory.path() + QStringLiteral("/Vantle/") + QLatin1String(name);
    }
    [[nodiscard]] std::unique_ptr<SettingsPreferences> opened() {
        return std::make_unique<SettingsPreferences>(m_files, m_path);
    }
    void put(const QByteArray& content, const char* name = "preferences.ini") {
        ASSERT_TRUE(m_disk.makeDirectories(at(""), 0700));
        const auto file = m_disk.open(at(name), FileSystem::OpenMode::CreateNew);
        ASSERT_TRUE(file);
        ASSERT_TRUE(file.value()->write(content));
    }
    [[nodiscard]] QByteArray contentOf(const char* name) {
        const auto content = m_disk.readAll(at(name));
        EXPECT_TRUE(content) << content.error().description().toStdString();
        return content ? content.value() : QByteArray();
    }
    [[nodiscard]] QStringList names() const {
        return QDir(at("")).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }
    void writeAValue() {
        const auto preferences = opened();
        preferences->setString(kKey, kValue);
        preferences->synchronize();
        EXPECT_EQ(preferences->string(kKey), kValue) << "whatever becomes of the file";
    }

    const QTemporaryDir m_directory;
    const QString m_path = at("preferences.ini");
    PosixFileSystem m_disk;
    FaultyFileSystem m_files{m_disk};
};

TEST_F(SettingsPreferencesTest, WritesKeysAsTheyAreNamedInOneGroup) {
    const auto preferences = opened();
    preferences->setString(kKey, kValue);
    preferences->setNumber(QStringLiteral("goal.dailyHours"), 2.5);
    preferences->setBoolean(QStringLiteral("wrapped.seen.2026-9"), true);
    preferences->synchronize();
    EXPECT_EQ(contentOf("preferences.ini"), "[General]\ngoal.dailyHours=2.5\n"
                                            "skill.lastUsed=building\nwrapped.seen.2026-9=true\n");
}

TEST_F(SettingsPreferencesTest, DoNotWaitForTheLockOfACrash) {
    writeAValue();
    QLockFile other(at("preferences.ini.lock")); // of a process that had this one's number
    ASSERT_TRUE(other.lock());
    const QByteArray signedByIt = contentOf("preferences.ini.lock");
    other.unlock();
    for (const QByteArray& signature : {QByteArray(), signedByIt}) {
        put(signature, "preferences.ini.lock");
        QElapsedTimer taken;
        taken.start();
        writeAValue();
        EXPECT_LT(taken.elapsed(), 10'000) << "half a minute, were it someone's";
        EXPECT_EQ(contentOf("preferences.ini"), "[General]\nskill.lastUsed=building\n");
        EXPECT_EQ(names(), QStringList{QStringLiteral("preferences.ini")});
        ASSERT_TRUE(m_disk.remove(m_path));
    }
}

TEST_F(SettingsPreferencesTest, AreForTheirOwnerOnly) {
    writeAValue();
    EXPECT_EQ(m_disk.mode(m_path).value(), 0600);
    EXPECT_EQ(m_disk.mode(at("")).value(), 0700);
    EXPECT_EQ(names(), QStringList{QStringLiteral("preferences.ini")});

    ASSERT_TRUE(m_disk.setMode(m_path, 0644));
    writeAValue();
    EXPECT_EQ(m_disk.mode(m_path).value(), 0600) << "also when the file was there";
}

TEST_F(SettingsPreferencesTest, AreWrittenFromTheEventLoopWithoutBeingAsked) {
    const auto preferences = opened();
    preferences->setString(kKey, kValue);
    QCoreApplication::processEvents();
    EXPECT_EQ(contentOf("preferences.ini"), "[General]\nskill.lastUsed=building\n");
}

TEST_F(SettingsPreferencesTest, WriteNothingUntilSomethingChanges) {
    opened()->synchronize();
    EXPECT_FALSE(m_disk.exists(at("")));
    put(kDamaged);
    opened()->synchronize();
    EXPECT_EQ(contentOf("preferences.ini"), kDamaged);
    EXPECT_EQ(names().size(), 1);
}

TEST_F(SettingsPreferencesTest, KeepWhatAnEditorAddsMeanwhile) {
    put("[General]\nskill.lastUsed=research\n\n[Other]\nx=1\n");
    const auto preferences = opened();
    ASSERT_TRUE(m_disk.remove(m_path));
    put("[General]\nproject.name=Wall\nskill.lastUsed=research\n\n[Other]\nx=1\n");
    preferences->setString(kKey, kValue);
    preferences->synchronize();
    EXPECT_EQ(contentOf("preferences.ini"), "[General]\nproject.name=Wall\n"
                                            "skill.lastUsed=building\n\n[Other]\nx=1\n");
}

TEST_F(SettingsPreferencesTest, ReadValuesThatAreNoTextAsAbsent) {
    put("[General]\nlist=a, b\nvariant=@Variant(\\0\\0\\0\\x1\\0\\0\\0)\nproject.name=\"a, b\"\n");
    const auto preferences = opened();
    EXPECT_EQ(preferences->string(QStringLiteral("list")), std::nullopt);
    EXPECT_EQ(preferences->string(QStringLiteral("variant")), std::nullopt);
    EXPECT_EQ(preferences->string(QStringLiteral("project.name")), QStringLiteral("a, b"));
    preferences->remove(QStringLiteral("list"));
    preferences->synchronize();
    EXPECT_FALSE(contentOf("preferences.ini").contains("list"));
}

TEST_F(SettingsPreferencesTest, ADamagedFileIsKeptBeforeItIsReplaced) {
    put(kDamaged);
    writeAValue();
    EXPECT_EQ(contentOf("preferences.ini.damaged"), kDamaged);
    EXPECT_EQ(m_disk.mode(at("preferences.ini.damaged")).value(), 0600);
    EXPECT_EQ(contentOf("preferences.ini"),
              "[General]\ngoal.dailyHours=3\nskill.lastUsed=building\n")
        << "what could be read of it stays";
    writeAValue();
    EXPECT_EQ(names().size(), 2) << "it is sound now";
}

TEST_F(SettingsPreferencesTest, FilesThatACrashFilledWithZerosCountAsDamaged) {
    const QByteArray zeros(512, '\0');
    put(zeros);
    writeAValue();
    EXPECT_EQ(contentOf("preferences.ini.damaged"), zeros);
    EXPECT_EQ(contentOf("preferences.ini"), "[General]\nskill.lastUsed=building\n");
}

TEST_F(SettingsPreferencesTest, AnOlderKeptCopyIsNeverOverwritten) {
    put("first", "preferences.ini.damaged");
    put("second", "preferences.ini.damaged.2");
    put(kDamaged);
    writeAValue();
    EXPECT_EQ(contentOf("preferences.ini.damaged"), "first");
    EXPECT_EQ(contentOf("preferences.ini.damaged.2"), "second");
    EXPECT_EQ(contentOf("preferences.ini.damaged.3"), kDamaged);
}

TEST_F(SettingsPreferencesTest, ADamagedFileThatCannotBeKeptIsLeftAlone) {
    put(kDamaged);
    m_files.fail(Operation::Write, QStringLiteral("preferences.ini.damaged"), ENOSPC);
    const auto preferences = opened();
    preferences->setString(kKey, kValue);
    preferences->synchronize();
    QCoreApplication::processEvents();
    EXPECT_EQ(preferences->string(kKey), kValue);
    EXPECT_EQ(contentOf("preferences.ini"), kDamaged);
    EXPECT_EQ(names().size(), 1) << "no half copy";

    m_files.healAll();
    preferences->synchronize();
    EXPECT_EQ(contentOf("preferences.ini.damaged"), kDamaged);
    EXPECT_EQ(contentOf("preferences.ini"),
              "[General]\ngoal.dailyHours=3\nskill.lastUsed=building\n")
        << "the change reaches the file once there is room";
}

TEST_F(SettingsPreferencesTest, ADamagedFileIsNeverLostWhereverItsKeepingFails) {
    for (int n = 1; n <= 16; ++n) {
        QDir(at("")).removeRecursively();
        put(kDamaged);
        m_files.failNthCall(n, EIO);
        writeAValue();
        m_files.healAll();
        const bool isInPlace = contentOf("preferences.ini") == kDamaged;
        const bool isKept = m_disk.exists(at("preferences.ini.damaged")) &&
                            contentOf("preferences.ini.damaged") == kDamaged;
        EXPECT_TRUE(isInPlace || isKept) << "call " << n;
        EXPECT_EQ(opened()->number(QStringLiteral("goal.dailyHours")), 3.0) << "call " << n;
    }
    EXPECT_EQ(names().size(), 2) << "the last round met no fault any more";
}

TEST_F(SettingsPreferencesTest, WhatCannotBeReadIsMovedAside) {
    ASSERT_TRUE(m_disk.makeDirectories(at("preferences.ini/inside"), 0700));
    writeAValue();
    EXPECT_TRUE(m_disk.exists(at("preferences.ini.damaged/inside")));
    EXPECT_EQ(contentOf("preferences.ini"), "[General]\nskill.lastUsed=building\n");
    EXPECT_EQ(m_disk.mode(m_path).value(), 0600);
}

TEST_F(SettingsPreferencesTest, WhatCannotBeReadNorMovedIsLeftAlone) {
    ASSERT_TRUE(m_disk.makeDirectories(at("preferences.ini/inside"), 0700));
    m_files.fail(Operation::Rename, QStringLiteral("preferences.ini"), EACCES);
    writeAValue();
    EXPECT_TRUE(m_disk.exists(at("preferences.ini/inside")));
    EXPECT_EQ(names().size(), 1);
}

TEST_F(SettingsPreferencesTest, HoldForThisRunWhereTheDirectoryCannotBeMade) {
    ASSERT_TRUE(m_disk.open(m_directory.path() + QStringLiteral("/Vantle"),
                            FileSystem::OpenMode::CreateNew));
    writeAValue();
    EXPECT_EQ(m_disk.readAll(m_directory.path() + QStringLiteral("/Vantle")).value(), "");
}

TEST_F(SettingsPreferencesTest, RemovingAllRemovesTheFileAndItsKeptCopies) {
    put(kDamaged);
    const auto preferences = opened();
    preferences->setString(kKey, kValue);
    preferences->synchronize();
    EXPECT_EQ(names().size(), 2);
    preferences->removeAll();
    QCoreApplication::processEvents();
    EXPECT_EQ(names(), QStringList());
}

TEST_F(SettingsPreferencesTest, RemovingAllOfADamagedFileKeepsNothing) {
    put(kDamaged);
    const auto preferences = opened();
    preferences->removeAll();
    preferences->setString(kKey, kValue);
    preferences->synchronize();
    EXPECT_EQ(names(), QStringList{QStringLiteral("preferences.ini")});
    EXPECT_EQ(contentOf("preferences.ini"), "[General]\nskill.lastUsed=building\n");
    EXPECT_EQ(m_disk.mode(m_path).value(), 0600);
}

} // namespace
} // namespace vantle

#include "platform/applications/DesktopAutostart.h"

#include "fakes/FaultyFileSystem.h"
#include "fakes/MemoryFileSystem.h"
#include "platform/applications/DesktopEntry.h"
#include "platform/posix/PosixFileSystem.h"
#include "support/QtPrinters.h"

#include <QProcess>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <cerrno>

namespace vantle {
namespace {

using fakes::FaultyFileSystem;
using fakes::MemoryFileSystem;

const QString kEntry = QStringLiteral("/home/ada/.config/autostart/local.vantle.Vantle.desktop");
const QString kProgram = QStringLiteral("/usr/bin/vantle");

class DesktopAutostartTest : public testing::Test {
protected:
    [[nodiscard]] QByteArray written() const { return m_disk.content(kEntry).value_or("none"); }

    MemoryFileSystem m_disk;
    FaultyFileSystem m_files{m_disk};
    DesktopAutostart m_autostart{m_files, kEntry, kProgram};
};

TEST_F(DesktopAutostartTest, RegistersAPrivateEntryThatMarksTheStart) {
    EXPECT_TRUE(m_autostart.registerItem());
    EXPECT_TRUE(m_autostart.isRegistered());
    EXPECT_THAT(written().toStdString(),
                testing::HasSubstr("\nExec=env VANTLE_AUTOSTART=1 /usr/bin/vantle\n"));
    EXPECT_EQ(m_disk.mode(kEntry).value(), 0600);
    EXPECT_EQ(m_disk.paths(), QStringList{kEntry});
}

TEST_F(DesktopAutostartTest, UnregistersByRemovingTheEntry) {
    EXPECT_TRUE(m_autostart.registerItem());
    EXPECT_TRUE(m_autostart.unregisterItem());
    EXPECT_FALSE(m_autostart.isRegistered());
    EXPECT_EQ(m_disk.paths(), QStringList());
}

TEST_F(DesktopAutostartTest, RespectsThatTheUserSwitchedItOffInTheDesktop) {
    for (const char* line : {"Hidden=true", "Hidden = True", "X-GNOME-Autostart-enabled=false",
                             "X-GNOME-Autostart-enabled=false\r"}) {
        EXPECT_TRUE(m_autostart.registerItem());
        m_disk.setContent(kEntry, written() + line + '\n');
        EXPECT_FALSE(m_autostart.isRegistered()) << line;
    }
    EXPECT_TRUE(m_autostart.registerItem()) << "asked anew, it comes back";
    EXPECT_TRUE(m_autostart.isRegistered());
}

TEST_F(DesktopAutostartTest, IsNotConfusedByOtherValuesKeysAndGroups) {
    for (const char* line :
         {"Hidden=false", "X-GNOME-Autostart-enabled=true", "# Hidden=true", "Hidden[de]=true",
          "[Desktop Action x]\nHidden=true", "NotHidden=true"}) {
        EXPECT_TRUE(m_autostart.registerItem());
        m_disk.setContent(kEntry, written() + line + '\n');
        EXPECT_TRUE(m_autostart.isRegistered()) << line;
    }
}

TEST_F(DesktopAutostartTest, TellsWhenTheEntryCannotBeWritten) {
    m_files.fail(FaultyFileSystem::Operation::Write, QStringLiteral(".local.vantle.Vantle.*"),
                 ENOSPC);
    EXPECT_EQ(m_autostart.registerItem().error().code, ENOSPC);
    EXPECT_FALSE(m_autostart.isRegistered());
    EXPECT_EQ(m_disk.paths(), QStringList());
}

TEST_F(DesktopAutostartTest, TellsWhenTheEntryCannotBeRemoved) {
    EXPECT_TRUE(m_autostart.registerItem());
    m_files.fail(FaultyFileSystem::Operation::Remove, kEntry, EACCES);
    EXPECT_EQ(m_autostart.unregisterItem().error().code, EACCES);
    EXPECT_TRUE(m_autostart.isRegistered());
}

TEST_F(DesktopAutostartTest, ADirectoryInThePlaceOfTheEntryIsNoRegistration) {
    m_disk.setDirectory(kEntry);
    EXPECT_FALSE(m_autostart.isRegistered());
    EXPECT_EQ(m_autostart.registerItem().error().code, EISDIR);
    EXPECT_EQ(m_autostart.unregisterItem().error().code, EISDIR);
}

TEST(DesktopEntry, QuotesArgumentsAsTheExecKeyAsksForIt) {
    const auto quoted = [](const char* text) {
        return DesktopEntry::quotedArgument(QString::fromUtf8(text)).toStdString();
    };
    EXPECT_EQ(quoted("/usr/bin/vantle"), "/usr/bin/vantle");
    EXPECT_EQ(quoted("/opt/my apps/vantle"), "\"/opt/my apps/vantle\"");
    EXPECT_EQ(quoted("/opt/100%/vantle"), "/opt/100%%/vantle");
    EXPECT_EQ(quoted("/opt/$x/`y`/\"z\"/\\"), "\"/opt/\\$x/\\`y\\`/\\\"z\\\"/\\\\\"");
    EXPECT_EQ(quoted("/opt/it's"), "\"/opt/it's\"");
    EXPECT_EQ(quoted("/home/Zo\u00eb/vantle"), "/home/Zo\u00eb/vantle");
    EXPECT_EQ(quoted(""), "\"\"");
}

TEST(DesktopEntry, ReadsBackWhatItWrote) {
    const QString text = QStringLiteral("  a\\b\nc\td\re f");
    DesktopEntry entry;
    entry.setText("Name", text);
    EXPECT_EQ(DesktopEntry::read(entry.content())->text("Name"), text);
}

TEST(DesktopEntry, WhatIsNoKeyFileIsNone) {
    EXPECT_FALSE(DesktopEntry::read("[Desktop Entry]\nName=Tool\nneither key nor comment\n"));
    EXPECT_FALSE(DesktopEntry::read("Name=Tool\n"));
    EXPECT_TRUE(DesktopEntry::read("# a comment\n\n[Desktop Entry]\nName=Tool\n"));
}

/// The desktop's own checker has the last word, for ordinary and for nasty places alike.
TEST(DesktopAutostartEntry, IsValidForTheDesktop) {
    const QTemporaryDir directory;
    const QString entry = directory.path() + QStringLiteral("/local.vantle.Vantle.desktop");
    PosixFileSystem files;
    for (const QString& program :
         {kProgram, QStringLiteral("/opt/my apps (new)/100% \"$HOME\" `x` \\ it's/vantle"),
          QStringLiteral("/home/Zo\u00eb/\U0001F9F1/vantle")}) {
        ASSERT_TRUE(DesktopAutostart(files, entry, program).registerItem());
        QProcess validator;
        validator.setProcessChannelMode(QProcess::MergedChannels);
        validator.start(QStringLiteral("desktop-file-validate"), {entry});
        ASSERT_TRUE(validator.waitForFinished())
            << "desktop-file-validate of the package desktop-file-utils is needed";
        EXPECT_EQ(validator.exitCode(), 0) << program.toStdString();
        EXPECT_EQ(validator.readAll(), "") << program.toStdString();
    }
}

} // namespace
} // namespace vantle

#include "platform/applications/DesktopApplications.h"

#include "support/Await.h"
#include "support/EnvironmentVariable.h"
#include "support/QtPrinters.h"
#include "support/Text.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace vantle {
namespace {

using tests::EnvironmentVariable;
using tests::text;

/// A user's folder of entries before the system's, on the real disk.
class DesktopApplicationsTest : public testing::Test {
protected:
    [[nodiscard]] QString path(const char* name) const { return m_root.filePath(text(name)); }
    void write(const char* name, const QByteArray& lines) {
        ASSERT_TRUE(QDir().mkpath(QFileInfo(path(name)).path()));
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("[Desktop Entry]\nType=Application\n" + lines);
    }
    [[nodiscard]] Application identify(const char* windowClass) {
        return m_applications.identify({{}, text(windowClass), {}, {}});
    }

    QTemporaryDir m_root;
    DesktopApplications m_applications{{path("mine"), path("system")}};
};

TEST_F(DesktopApplicationsTest, NameIsThatOfTheEntryInTheUsersLanguage) {
    const EnvironmentVariable language("LANGUAGE", "de");
    write("system/tool.desktop", "Name=Files\nName[de]=Dateien\nStartupWMClass=Window\n");
    EXPECT_EQ(identify("Window"), (Application{text("tool"), text("Dateien")}));
}

TEST_F(DesktopApplicationsTest, SubfoldersAreJoinedToTheIdByDashes) {
    write("system/kde/office/tool.desktop", "Name=Tool\nStartupWMClass=Window\n");
    EXPECT_EQ(identify("Window").bundleId, text("kde-office-tool"));
}

TEST_F(DesktopApplicationsTest, PersonsEntryGoesBeforeTheSystems) {
    write("mine/tool.desktop", "Name=Mine\n");
    write("system/tool.desktop", "Name=System's\n");
    EXPECT_EQ(identify("tool").name, text("Mine"));
}

TEST_F(DesktopApplicationsTest, EntryThatTheUserDeletedHidesTheSystems) {
    write("mine/tool.desktop", "Name=Tool\nHidden=true\n");
    write("system/tool.desktop", "Name=System's\nStartupWMClass=Window\n");
    EXPECT_EQ(identify("Window").bundleId, text("Window"));
}

TEST_F(DesktopApplicationsTest, FoldersThatLinkInACircleAreReadOnce) {
    write("system/tool.desktop", "Name=Tool\nStartupWMClass=Window\n");
    ASSERT_TRUE(QFile::link(path("system"), path("system/again")));
    ASSERT_TRUE(QFile::link(path("system/self.desktop"), path("system/self.desktop")));
    EXPECT_EQ(identify("Window").bundleId, text("tool"));
    EXPECT_EQ(identify("self").bundleId, text("self"));
}

TEST_F(DesktopApplicationsTest, EntriesAreReadOnceForAllSwitches) {
    write("system/tool.desktop", "Name=Tool\n");
    EXPECT_EQ(m_applications.timesRead(), 0) << "nobody has asked yet";
    for (int i = 0; i < 100; ++i)
        EXPECT_EQ(identify("tool").name, text("Tool"));
    EXPECT_EQ(m_applications.timesRead(), 1);
}

TEST_F(DesktopApplicationsTest, EntryThatIsInstalledLaterIsSeen) {
    write("system/other.desktop", "Name=Other\n");
    EXPECT_EQ(identify("Window").bundleId, text("Window"));
    write("system/tool.desktop", "Name=Tool\nStartupWMClass=Window\n");
    EXPECT_TRUE(tests::await([&] { return identify("Window").bundleId == text("tool"); }));
}

TEST_F(DesktopApplicationsTest, FolderThatComesLaterIsSeen) {
    EXPECT_EQ(identify("Window").bundleId, text("Window"));
    write("mine/tool.desktop", "Name=Tool\nStartupWMClass=Window\n");
    EXPECT_TRUE(tests::await([&] { return identify("Window").bundleId == text("tool"); }));
}

TEST_F(DesktopApplicationsTest, ChangesBesideAMissingFolderCauseNoSecondRead) {
    write("system/tool.desktop", "Name=Tool\n");
    EXPECT_EQ(identify("tool").name, text("Tool"));
    write("beside.txt", "");
    write("elsewhere/tool.desktop", "Name=Other\n");
    tests::runFor(100);
    EXPECT_EQ(identify("tool").name, text("Tool"));
    EXPECT_EQ(m_applications.timesRead(), 1);
}

TEST(DesktopApplications, StandardFoldersAreTheUsersThenTheSystems) {
    const EnvironmentVariable home("XDG_DATA_HOME", "/home/ada/data");
    const EnvironmentVariable dirs("XDG_DATA_DIRS", "/one::relative:/two/:/one");
    const QStringList folders = DesktopApplications::standardFolders();
    EXPECT_EQ(folders.first(3),
              (QStringList{text("/home/ada/data/applications"), text("/one/applications"),
                           text("/two/applications")}));
    EXPECT_EQ(folders.filter(text("relative")), QStringList());
    EXPECT_EQ(folders.count(text("/one/applications")), 1);
    const EnvironmentVariable none("XDG_DATA_DIRS", "");
    EXPECT_EQ(
        DesktopApplications::standardFolders().mid(1, 2),
        (QStringList{text("/usr/local/share/applications"), text("/usr/share/applications")}));
}

} // namespace
} // namespace vantle

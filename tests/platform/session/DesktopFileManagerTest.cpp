#include "platform/session/DesktopFileManager.h"

#include "fakes/FakeProcessRunner.h"
#include "support/Await.h"
#include "support/Buses.h"
#include "support/EnvironmentVariable.h"
#include "support/QtPrinters.h"

#include <QDBusContext>
#include <QDBusMessage>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace vantle {
namespace {

using tests::await;
using tests::EnvironmentVariable;

/// A file manager on the bus, in the same thread: a call that blocks would never return.
class FakeFileManager final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.FileManager1")

public:
    FakeFileManager() {
        m_client.bus().registerObject(QStringLiteral("/org/freedesktop/FileManager1"), this,
                                      QDBusConnection::ExportAllInvokables);
        EXPECT_TRUE(m_client.takeName(QStringLiteral("org.freedesktop.FileManager1")));
    }

    Q_INVOKABLE void ShowItems(const QStringList& uris, const QString& /*startupId*/) {
        take(shown, uris);
    }

    Q_INVOKABLE void ShowFolders(const QStringList& uris, const QString& /*startupId*/) {
        take(opened, uris);
    }

    bool isSlow = false;  ///< does as it was asked, and never says so
    bool refuses = false; ///< does nothing, and says so
    QStringList shown;
    QStringList opened;

    void end() { m_client.leave(); }

private:
    void take(QStringList& to, const QStringList& uris) {
        if (isSlow) setDelayedReply(true);
        if (refuses)
            sendErrorReply(QDBusError::AccessDenied, QStringLiteral("not today"));
        else
            to += uris;
    }

    tests::BusClient m_client;
};

class DesktopFileManagerTest : public testing::Test {
protected:
    DesktopFileManagerTest() {
        QFile opener(m_programs.filePath(QStringLiteral("xdg-open")));
        EXPECT_TRUE(opener.open(QIODevice::WriteOnly));
        EXPECT_TRUE(opener.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
    }

    /// The desktop's opener was started for that folder, and for no other.
    [[nodiscard]] bool wasOpenedByDesktop(const char* folder) const {
        return m_runner.detached ==
               std::vector<Command>{
                   {m_programs.filePath(QStringLiteral("xdg-open")), {QString::fromUtf8(folder)}}};
    }

    const QTemporaryDir m_programs;
    const EnvironmentVariable m_path{"PATH", QFile::encodeName(m_programs.path())};
    tests::BusClient m_client;
    fakes::FakeProcessRunner m_runner;
    DesktopFileManager m_files{m_client.bus(), m_runner};
};

TEST_F(DesktopFileManagerTest, ShowsTheFileUnderAnAddressThatAnyNameFitsIn) {
    FakeFileManager manager;
    m_files.reveal(QStringLiteral("/tmp/Füße & 100 %/log#1.jsonl"));
    ASSERT_TRUE(await([&] { return !manager.shown.isEmpty(); }));
    EXPECT_EQ(manager.shown, QStringList{QStringLiteral(
                                 "file:///tmp/F%C3%BC%C3%9Fe%20&%20100%20%25/log%231.jsonl")});
    tests::runFor(50);
    EXPECT_TRUE(m_runner.detached.empty());
}

TEST_F(DesktopFileManagerTest, OpensAFolderRatherThanShowingItInTheOneAbove) {
    FakeFileManager manager;
    m_files.openFolder(QStringLiteral("/tmp/short cuts"));
    ASSERT_TRUE(await([&] { return !manager.opened.isEmpty(); }));
    EXPECT_EQ(manager.opened, QStringList{QStringLiteral("file:///tmp/short%20cuts")});
    EXPECT_TRUE(manager.shown.isEmpty());
}

TEST_F(DesktopFileManagerTest, SlowFileManagerIsWaitedForAndTheFolderOpensOnce) {
    FakeFileManager manager;
    manager.isSlow = true;
    QElapsedTimer timer;
    timer.start();
    m_files.reveal(QStringLiteral("/srv/data/log"));
    EXPECT_LT(timer.elapsed(), 500) << "the program goes on";
    ASSERT_TRUE(await([&] { return !manager.shown.isEmpty(); }));
    tests::runFor(2300); // longer than any time limit elsewhere
    EXPECT_EQ(manager.shown.size(), 1);
    EXPECT_TRUE(m_runner.detached.empty());
}

TEST_F(DesktopFileManagerTest, WithoutAFileManagerTheDesktopOpensTheFolder) {
    m_files.reveal(QStringLiteral("/srv/data/log"));
    EXPECT_TRUE(await([&] { return wasOpenedByDesktop("/srv/data"); }));
    m_runner.detached.clear();
    m_files.openFolder(QStringLiteral("/srv/data"));
    EXPECT_TRUE(await([&] { return wasOpenedByDesktop("/srv/data"); }));
}

TEST_F(DesktopFileManagerTest, FileManagerThatRefusesLeavesItToTheDesktop) {
    FakeFileManager manager;
    manager.refuses = true;
    m_files.reveal(QStringLiteral("/srv/data/log"));
    EXPECT_TRUE(await([&] { return wasOpenedByDesktop("/srv/data"); }));
}

TEST_F(DesktopFileManagerTest, FileManagerThatEndsOverTheQuestionLeavesItToTheDesktop) {
    FakeFileManager manager;
    manager.isSlow = true;
    m_files.reveal(QStringLiteral("/srv/data/log"));
    ASSERT_TRUE(await([&] { return !manager.shown.isEmpty(); }));
    manager.end();
    EXPECT_TRUE(await([&] { return wasOpenedByDesktop("/srv/data"); }));
}

TEST_F(DesktopFileManagerTest, WithoutABusTheDesktopOpensTheFolder) {
    DesktopFileManager files(tests::noBus(), m_runner);
    files.openFolder(QStringLiteral("/srv/data"));
    EXPECT_TRUE(await([&] { return wasOpenedByDesktop("/srv/data"); }));
}

TEST_F(DesktopFileManagerTest, WithoutAnyOpenerNothingHappens) {
    ASSERT_TRUE(QFile::remove(m_programs.filePath(QStringLiteral("xdg-open"))));
    m_files.openFolder(QStringLiteral("/srv/data"));
    tests::runFor(100);
    EXPECT_TRUE(m_runner.detached.empty());
}

Result<> moveToTrash(const QString& path) {
    fakes::FakeProcessRunner runner;
    return DesktopFileManager(tests::noBus(), runner).moveToTrash(path);
}

TEST(FileManagerTrash, TrashedFileIsGoneFromItsPlaceAndKeptInTheTrash) {
    const QTemporaryDir home;
    const EnvironmentVariable data("XDG_DATA_HOME",
                                   QFile::encodeName(home.filePath(QStringLiteral("data"))));
    const QString path = home.filePath(QStringLiteral("an old copy"));
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("program");
    }
    EXPECT_TRUE(moveToTrash(path));
    EXPECT_FALSE(QFile::exists(path));
    EXPECT_TRUE(QFile::exists(home.filePath(QStringLiteral("data/Trash/files/an old copy"))));
}

TEST(FileManagerTrash, FileThatIsNotThereCannotBeTrashed) {
    const auto trashed = moveToTrash(QStringLiteral("/nowhere/at all"));
    ASSERT_FALSE(trashed);
    EXPECT_TRUE(trashed.error().description().contains(QStringLiteral("/nowhere/at all")));
}

} // namespace
} // namespace vantle

#include "DesktopFileManagerTest.moc"

#include "platform/desktop/FileManager.h"

#include "support/Await.h"
#include "support/Buses.h"
#include "support/QtPrinters.h"

#include <QFile>
#include <QTemporaryDir>
#include <QThread>

#include <gtest/gtest.h>

namespace vantle {
namespace {

/// A file manager on the bus. It answers on a thread of its own: who asks waits for it.
class FakeFileManager final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.FileManager1")

public:
    FakeFileManager() {
        moveToThread(&m_thread);
        m_thread.start();
        m_client.bus().registerObject(QStringLiteral("/org/freedesktop/FileManager1"), this,
                                      QDBusConnection::ExportAllInvokables);
        EXPECT_TRUE(m_client.takeName(QStringLiteral("org.freedesktop.FileManager1")));
    }
    ~FakeFileManager() override {
        m_client.leave();
        m_thread.quit();
        m_thread.wait();
    }

    Q_INVOKABLE void ShowItems(const QStringList& uris, const QString& /*startupId*/) {
        shown += uris;
    }

    Q_INVOKABLE void ShowFolders(const QStringList& uris, const QString& /*startupId*/) {
        opened += uris;
    }

    QStringList shown;  ///< read it once the call has returned
    QStringList opened; ///< likewise

private:
    tests::BusClient m_client;
    QThread m_thread;
};

TEST(FileManager, ShowsTheFileUnderAnAddressThatAnyNameFitsIn) {
    FakeFileManager manager;
    tests::BusClient client;
    filemanager::reveal(client.bus(), QStringLiteral("/tmp/Füße & 100 %/log#1.jsonl"));
    EXPECT_EQ(manager.shown, QStringList{QStringLiteral(
                                 "file:///tmp/F%C3%BC%C3%9Fe%20&%20100%20%25/log%231.jsonl")});
}

TEST(FileManager, OpensAFolderRatherThanShowingItInTheOneAbove) {
    FakeFileManager manager;
    tests::BusClient client;
    filemanager::openFolder(client.bus(), QStringLiteral("/tmp/short cuts"));
    EXPECT_EQ(manager.opened, QStringList{QStringLiteral("file:///tmp/short%20cuts")});
    EXPECT_TRUE(manager.shown.isEmpty());
}

TEST(FileManager, TrashedFileIsGoneFromItsPlaceAndKeptInTheTrash) {
    const QTemporaryDir home;
    const QByteArray before = qgetenv("XDG_DATA_HOME");
    qputenv("XDG_DATA_HOME", QFile::encodeName(home.filePath(QStringLiteral("data"))));
    const QString path = home.filePath(QStringLiteral("an old copy"));
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("program");
    }
    EXPECT_TRUE(filemanager::moveToTrash(path));
    EXPECT_FALSE(QFile::exists(path));
    EXPECT_TRUE(QFile::exists(home.filePath(QStringLiteral("data/Trash/files/an old copy"))));
    if (before.isNull())
        qunsetenv("XDG_DATA_HOME");
    else
        qputenv("XDG_DATA_HOME", before);
}

TEST(FileManager, FileThatIsNotThereCannotBeTrashed) {
    const auto trashed = filemanager::moveToTrash(QStringLiteral("/nowhere/at all"));
    ASSERT_FALSE(trashed);
    EXPECT_TRUE(trashed.error().description().contains(QStringLiteral("/nowhere/at all")));
}

} // namespace
} // namespace vantle

#include "FileManagerTest.moc"

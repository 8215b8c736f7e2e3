// What every login item promises.
#include "contract/Contract.h"
#include "fakes/FakeAutostart.h"
#include "fakes/FaultyFileSystem.h"
#include "fakes/MemoryFileSystem.h"
#include "platform/WholeFile.h"
#include "platform/applications/DesktopAutostart.h"
#include "platform/posix/PosixFileSystem.h"

#include <QTemporaryDir>

#include <cerrno>

namespace vantle {
namespace {

using fakes::FaultyFileSystem;

class AutostartWorld {
public:
    virtual ~AutostartWorld() = default;
    [[nodiscard]] virtual Autostart& autostart() = 0;
    /// The user switches the item off in the settings of the desktop, which keeps its file.
    virtual void switchOffInDesktop() = 0;
    /// From now on the desktop takes no change.
    virtual void refuse() = 0;
};

class FakeWorld final : public AutostartWorld {
public:
    [[nodiscard]] Autostart& autostart() override { return m_autostart; }
    void switchOffInDesktop() override { m_autostart.registered = false; }
    void refuse() override { m_autostart.refuses = true; }

private:
    fakes::FakeAutostart m_autostart;
};

/// An entry on a disk that the derived world brings.
class EntryWorld : public AutostartWorld {
public:
    EntryWorld(FileSystem& disk, const QString& folder)
        : m_entry(folder + QStringLiteral("/autostart/local.vantle.Vantle.desktop"))
        , m_files(disk)
        , m_autostart(m_files, m_entry, QStringLiteral("/usr/bin/vantle")) {}

    [[nodiscard]] Autostart& autostart() override { return m_autostart; }
    void switchOffInDesktop() override {
        const QByteArray entry = m_files.readAll(m_entry).value();
        EXPECT_TRUE(replaceFile(m_files, m_entry, entry + "Hidden=true\n"));
    }
    void refuse() override {
        m_files.fail(FaultyFileSystem::Operation::Create, QStringLiteral("*.tmp"), EACCES);
        m_files.fail(FaultyFileSystem::Operation::Remove, m_entry, EACCES);
    }

private:
    const QString m_entry;
    FaultyFileSystem m_files;
    DesktopAutostart m_autostart;
};

struct MemoryDisk {
    fakes::MemoryFileSystem disk;
    const QString folder = QStringLiteral("/home/ada/.config");
};
struct RealDisk {
    PosixFileSystem disk;
    const QTemporaryDir directory;
    const QString folder = directory.path();
};

template <typename Disk>
class EntryOn final : private Disk, public EntryWorld {
public:
    EntryOn() : EntryWorld(Disk::disk, Disk::folder) {}
};

class AutostartContract : public contract::Contract<AutostartWorld> {
protected:
    [[nodiscard]] Autostart& autostart() const { return world().autostart(); }
};

INSTANTIATE_TEST_SUITE_P(
    , AutostartContract,
    testing::Values(contract::maker<AutostartWorld, FakeWorld>("Fake"),
                    contract::maker<AutostartWorld, EntryOn<MemoryDisk>>("EntryInMemory"),
                    contract::maker<AutostartWorld, EntryOn<RealDisk>>("EntryOnDisk")),
    contract::kByName);

TEST_P(AutostartContract, IsNotRegisteredAtFirst) { EXPECT_FALSE(autostart().isRegistered()); }

TEST_P(AutostartContract, RegistersAndUnregisters) {
    EXPECT_TRUE(autostart().registerItem());
    EXPECT_TRUE(autostart().registerItem()) << "what is registered can be registered";
    EXPECT_TRUE(autostart().isRegistered());
    EXPECT_TRUE(autostart().unregisterItem());
    EXPECT_FALSE(autostart().isRegistered());
}

TEST_P(AutostartContract, UnregisteringNothingIsNoFailureEvenWhereNothingCanBeChanged) {
    EXPECT_TRUE(autostart().unregisterItem());
    world().refuse();
    EXPECT_TRUE(autostart().unregisterItem());
}

TEST_P(AutostartContract, ItemThatTheDesktopSwitchedOffComesBackOnRequest) {
    EXPECT_TRUE(autostart().registerItem());
    world().switchOffInDesktop();
    EXPECT_FALSE(autostart().isRegistered());
    EXPECT_TRUE(autostart().registerItem());
    EXPECT_TRUE(autostart().isRegistered());
}

TEST_P(AutostartContract, RefusedChangesTellTheirReasonAndChangeNothing) {
    world().refuse();
    EXPECT_EQ(autostart().registerItem().error().code, EACCES);
    EXPECT_FALSE(autostart().isRegistered());
}

TEST_P(AutostartContract, RefusedRemovalTellsItsReasonAndLeavesTheItem) {
    EXPECT_TRUE(autostart().registerItem());
    world().refuse();
    EXPECT_EQ(autostart().unregisterItem().error().code, EACCES);
    EXPECT_TRUE(autostart().isRegistered());
}

} // namespace
} // namespace vantle

// Loss of power on the file systems of real disks: the image of a mounted one is copied at calls of
// a life, and the program is started on each copy. A copy holds what the file system had sent to
// its device, and nothing of what it still kept in memory.
//
// Mounts by loop devices, so it needs root, and a mount namespace of its own, with which the mounts
// end even if this process is killed: `unshare -m --propagation private`. ./prove runs it where
// that is possible; VANTLE_LAB_FILE_SYSTEMS names what to try, as in "ext4 xfs btrfs".
#include "lab/Effort.h"
#include "lab/RealLife.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace vantle::tests {
namespace {

/// As small as xfs allows. The images have holes.
constexpr qint64 kImageSize = 320 << 20; // bytes

bool succeeds(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished(-1);
    const bool isSuccess = process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    if (!isSuccess)
        ADD_FAILURE() << program.toStdString() << ": " << process.errorString().toStdString()
                      << ", " << process.readAllStandardError().toStdString();
    return isSuccess;
}

/// Mounted while it lives.
class Mounted {
public:
    Mounted(const QString& image, QString place) : m_place(std::move(place)) {
        QDir().mkpath(m_place);
        isMounted = succeeds(QStringLiteral("mount"),
                             {QStringLiteral("-o"), QStringLiteral("loop"), image, m_place});
    }
    ~Mounted() {
        if (isMounted) succeeds(QStringLiteral("umount"), {m_place});
    }
    Mounted(const Mounted&) = delete;
    Mounted& operator=(const Mounted&) = delete;

    bool isMounted = false; ///< and its loop device goes with the mount

private:
    const QString m_place;
};

bool copyImage(const QString& from, const QString& to) {
    return succeeds(QStringLiteral("cp"), {QStringLiteral("--sparse=always"), from, to});
}

class PowerLoss : public testing::TestWithParam<QString> {
protected:
    void SetUp() override {
        // In memory, and gone with the namespace.
        ASSERT_TRUE(
            succeeds(QStringLiteral("mount"), {QStringLiteral("-t"), QStringLiteral("tmpfs"),
                                               QStringLiteral("lab"), m_directory.path()}));
        QFile image(at("empty"));
        ASSERT_TRUE(image.open(QIODevice::WriteOnly) && image.resize(kImageSize));
        image.close();
        ASSERT_TRUE(
            succeeds(QStringLiteral("mkfs.") + GetParam(), {QStringLiteral("-q"), at("empty")}));
    }
    void TearDown() override { succeeds(QStringLiteral("umount"), {m_directory.path()}); }

    [[nodiscard]] QString at(const char* name) const {
        return m_directory.filePath(QLatin1String(name));
    }

    /// What a loss of power left.
    struct Left {
        QString image;
        Moment moment;
        std::size_t deed = 0;
        QString call;
    };

    /// Lives a life, in which each call is the last before a loss of power with that chance.
    std::vector<Left> live(std::uint32_t seed, double chance,
                           const std::function<Verdict(const SystemCall&)>& decide) {
        std::vector<Left> states;
        if (!copyImage(at("empty"), at("image"))) return states;
        const Mounted disk(at("image"), at("disk"));
        if (!disk.isMounted) return states;
        std::mt19937 random(seed);
        RealLife life(at("disk"), seed);
        const Ending ending = life.live([&](const SystemCall& call, std::size_t deed) {
            if (std::uniform_real_distribution(0.0, 1.0)(random) < chance) {
                const QString image = m_directory.filePath(QString::number(states.size()));
                if (copyImage(at("image"), image))
                    states.push_back({image, life.moment(), deed,
                                      QStringLiteral("%1 %2 %3")
                                          .arg(call.number)
                                          .arg(QLatin1String(call.name), call.path)});
            }
            return decide(call);
        });
        EXPECT_EQ(ending, Ending::Done);
        return states;
    }

    /// Mounts a state, which replays the journal, and starts the program there. Returns the
    /// promises that do not hold.
    QStringList afterLoss(const Left& left, const std::vector<Step>& steps) {
        QStringList broken;
        const Step& step = steps[std::min(left.deed, steps.size() - 1)];
        if (const Mounted disk(left.image, at("disk")); disk.isMounted) {
            RootedFileSystem files(at("disk"));
            Restart restart(step, left.moment, files);
            broken = restart.run();
            m_isTorn = restart.isTorn();
            if (restart.isHidden()) broken.clear();
            if (!broken.isEmpty())
                broken << QLatin1String(step.deed) << left.call
                       << QString::fromUtf8(restart.story());
        }
        QFile::remove(left.image);
        return broken;
    }

    [[nodiscard]] bool isTorn() const { return m_isTorn; }

private:
    const QTemporaryDir m_directory;
    bool m_isTorn = false;
};

TEST_P(PowerLoss, KeepsWhatWasAcknowledged) {
    Effort effort("loss of power");
    qint64 states = 0;
    qint64 torn = 0;
    while (effort.goesOn(ScriptedLife::kHomes) && !testing::Test::HasFailure()) {
        const std::uint32_t seed = effort.nextSeed();
        const std::vector<Step> steps = stepsOf(seed);
        const double chance = Effort::isOneLife() ? 1.0 : 0.1;
        for (const Left& left : live(seed, chance, [](const SystemCall&) { return Verdict(); })) {
            ++states;
            const QStringList promises = afterLoss(left, steps);
            EXPECT_TRUE(promises.isEmpty()) << "VANTLE_LAB_SEED=" << seed << "\n"
                                            << promises.join(QLatin1Char('\n')).toStdString();
            if (isTorn()) ++torn;
        }
    }
    const QByteArray name = GetParam().toUtf8();
    effort.tell("states on " + name, states);
    if (torn > 0) effort.tell("of them with half a line on " + name, torn);
    EXPECT_GE(states, 1);
}

// A sync that never was, of which the program knows nothing.
TEST_P(PowerLoss, CheckerFindsALostSyncOfTheLog) {
    QStringList found;
    for (std::uint32_t seed = ScriptedLife::kHomes;
         found.isEmpty() && seed < 10 * ScriptedLife::kHomes;
         seed += std::uint32_t(ScriptedLife::kHomes)) {
        const std::vector<Step> steps = stepsOf(seed);
        const auto states = live(seed, 0.1, [](const SystemCall& call) -> Verdict {
            const bool isSync = QLatin1String(call.name) == QLatin1String("sync") &&
                                call.path.endsWith(QLatin1String("/sessions.jsonl"));
            return {isSync ? Verdict::Kind::Pretend : Verdict::Kind::Pass, 0};
        });
        for (const Left& left : states)
            found += afterLoss(left, steps).filter(QStringLiteral("is lost"));
    }
    EXPECT_FALSE(found.isEmpty());
}

QStringList fileSystems() {
    return qEnvironmentVariable("VANTLE_LAB_FILE_SYSTEMS")
        .split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(PowerLoss);
INSTANTIATE_TEST_SUITE_P(Lab, PowerLoss, testing::ValuesIn(fileSystems()),
                         [](const auto& test) { return test.param.toStdString(); });

} // namespace
} // namespace vantle::tests

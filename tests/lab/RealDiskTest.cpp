// The life on a real file system, by the program's own port: killed at any of its calls to the
// kernel, and with any of them failing. On a file system in memory, where there is one, and with
// more time on that of the temporary directory too.
#include "lab/Effort.h"
#include "lab/RealLife.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <random>

namespace vantle::tests {
namespace {

using Act = Verdict::Kind;

constexpr std::array kErrors{ENOSPC, EDQUOT, EIO, EACCES, EROFS, EMFILE, EINTR};

/// A directory for one life.
class Place {
public:
    explicit Place(std::uint32_t seed)
        : m_directory((isInMemory(seed) ? QStringLiteral("/dev/shm") : QDir::tempPath()) +
                      QStringLiteral("/lab-XXXXXX")) {}
    [[nodiscard]] QString path() const { return m_directory.path(); }

private:
    [[nodiscard]] static bool isInMemory(std::uint32_t seed) {
        return QFileInfo(QStringLiteral("/dev/shm")).isWritable() &&
               (seed % 2 == 0 || !Effort::isLong());
    }
    const QTemporaryDir m_directory;
};

/// The calls of a life to which nothing happens. It ends as the one in memory does.
int soundCalls(std::uint32_t seed, const std::vector<Step>& steps) {
    const Place place(seed);
    int calls = 0;
    RealLife life(place.path(), seed);
    const Ending ending = life.live([&](const SystemCall& call, std::size_t) {
        calls = call.number;
        return Verdict();
    });
    EXPECT_EQ(ending, Ending::Done) << "a sandbox without seccomp's user notification?";
    RootedFileSystem disk(place.path());
    const Account account = Account::of(disk);
    EXPECT_EQ(account.log, steps.back().after.log);
    EXPECT_EQ(account.skills, steps.back().after.skills);
    EXPECT_EQ(account.rules, steps.back().after.rules);
    EXPECT_EQ(account.exported, steps.back().after.exported);
    EXPECT_EQ(account.temporaries, QStringList());
    return calls;
}

/// The promises that do not hold after a life that was cut off at a call.
QStringList afterKill(std::uint32_t seed, const std::vector<Step>& steps,
                      const RealLife::Decide& decide) {
    const Place place(seed);
    RealLife life(place.path(), seed);
    const Ending ending = life.live(decide);
    if (ending != Ending::Killed) return {QStringLiteral("the life was killed")};
    RootedFileSystem disk(place.path());
    const Moment moment = life.moment();
    const Step& step = steps[std::min(life.deed(), steps.size() - 1)];
    Restart restart(step, moment, disk);
    QStringList broken = restart.run();
    if (!broken.isEmpty()) broken << QLatin1String(step.deed) << QString::fromUtf8(restart.story());
    return broken;
}

TEST(RealDisk, KillAtAnyCallKeepsWhatWasAcknowledged) {
    Effort effort("kills at a call");
    qint64 kills = 0;
    while (effort.goesOn(ScriptedLife::kHomes) && !testing::Test::HasFailure()) {
        const std::uint32_t seed = effort.nextSeed();
        const std::vector<Step> steps = stepsOf(seed);
        const int calls = soundCalls(seed, steps);
        std::mt19937 random(seed);
        const int tries = Effort::isOneLife() ? 2 * calls : Effort::isLong() ? 60 : 6;
        for (int i = 0; i < tries && calls > 0 && !testing::Test::HasFailure(); ++i) {
            const int last =
                Effort::isOneLife() ? i / 2 + 1 : std::uniform_int_distribution(1, calls)(random);
            const Verdict verdict{i % 2 == 0 ? Act::Kill : Act::Race};
            const QStringList broken =
                afterKill(seed, steps, [&](const SystemCall& call, std::size_t) {
                    return call.number == last ? verdict : Verdict();
                });
            ++kills;
            EXPECT_TRUE(broken.isEmpty()) << "VANTLE_LAB_SEED=" << seed << ", call " << last
                                          << (i % 2 == 0 ? "" : ", race") << "\n"
                                          << broken.join(QLatin1Char('\n')).toStdString();
        }
    }
    effort.tell("lives", effort.lives());
    effort.tell("kills", kills);
    EXPECT_GE(kills, 20);
}

/// What happens to the calls of one life.
struct Disturbance {
    enum class Extent {
        Call,      ///< one call fails
        Deed,      ///< all calls of a name fail while one deed is done
        Half,      ///< one write is half done, and the program has to do the rest
        HalfFails, ///< the same, and the rest fails
    };
    Extent extent = Extent::Call;
    int code = 0;
    int first = 0; ///< number of the call, or of the first that may be it
    std::size_t deed = 0;
    const char* name = "";

    [[nodiscard]] static Disturbance byLot(std::mt19937& random, int calls, std::size_t deeds) {
        static constexpr std::array kNames{"open",  "rename", "unlink",   "mkdir",
                                           "chmod", "write",  "truncate", "sync"};
        const auto lot = [&](std::size_t count) {
            return std::uniform_int_distribution<std::size_t>(0, count - 1)(random);
        };
        Disturbance one;
        one.extent = Extent(lot(4));
        one.code = kErrors[lot(kErrors.size())];
        // A call that is interrupted is made again, without end if it always is.
        if (one.extent != Extent::Call && one.code == EINTR) one.code = ENOSPC;
        one.first = 1 + int(lot(std::size_t(calls)));
        one.deed = lot(deeds);
        one.name = kNames[lot(kNames.size())];
        return one;
    }

    /// Follows the calls; `hits` counts those that were not made as they were meant.
    [[nodiscard]] Verdict decide(const SystemCall& call, std::size_t now, int& hits) {
        const bool isWrite = QLatin1String(call.name) == QLatin1String("write");
        bool isHit = false;
        Verdict verdict{Act::Fail, code};
        switch (extent) {
        case Extent::Call:
            isHit = call.number == first;
            break;
        case Extent::Deed:
            isHit = now == deed && QLatin1String(call.name) == QLatin1String(name);
            break;
        case Extent::Half:
        case Extent::HalfFails:
            isHit = isWrite && call.number >= first && hits == 0;
            if (isHit) {
                verdict = {Act::Shorten};
            } else if (hits == 1 && extent == Extent::HalfFails) {
                isHit = true;
            }
            break;
        }
        if (!isHit) return {};
        ++hits;
        return verdict;
    }
};

TEST(RealDisk, ErrorAtAnyCallLeavesTheClockRunningAndTheFilesTrue) {
    Effort effort("errors of the kernel");
    qint64 injections = 0;
    while (effort.goesOn(ScriptedLife::kHomes) && !testing::Test::HasFailure()) {
        const std::uint32_t seed = effort.nextSeed();
        const std::vector<Step> steps = stepsOf(seed);
        const int calls = soundCalls(seed, steps);
        std::mt19937 random(seed);
        const int tries = Effort::isOneLife() ? 1000 : Effort::isLong() ? 60 : 6;
        for (int i = 0; i < tries && calls > 0 && !testing::Test::HasFailure(); ++i) {
            Disturbance disturbance = Disturbance::byLot(random, calls, steps.size());
            const Place place(seed);
            RealLife life(place.path(), seed);
            int hits = 0;
            QString story;
            const Ending ending = life.liveWithFaults(
                disturbance.code, [&](const SystemCall& call, std::size_t deed) {
                    // After the last deed everything works, and the text has to go.
                    if (deed == steps.size()) return Verdict();
                    const Verdict verdict = disturbance.decide(call, deed, hits);
                    if (verdict.kind != Act::Pass && hits == 1)
                        story = QLatin1String(call.name) + QLatin1Char(' ') + call.path;
                    return verdict;
                });
            injections += hits;
            EXPECT_EQ(ending, Ending::Done);
            EXPECT_EQ(life.broken(), QString())
                << "VANTLE_LAB_SEED=" << seed << ", try " << i << ": " << story.toStdString()
                << ", error " << disturbance.code << ", extent " << int(disturbance.extent);
        }
    }
    effort.tell("lives", effort.lives());
    effort.tell("injections", injections);
    EXPECT_GE(injections, 20);
}

// A write that never was, of which the program knows nothing: both checkers have to report it.

bool isAppend(const SystemCall& call) {
    return QLatin1String(call.name) == QLatin1String("write") &&
           call.path.endsWith(QLatin1String("/sessions.jsonl"));
}

TEST(RealDisk, CheckerOfKillsFindsALostWrite) {
    constexpr std::uint32_t seed = ScriptedLife::kHomes;
    const std::vector<Step> steps = stepsOf(seed);
    bool isPlanted = false;
    const QStringList broken =
        afterKill(seed, steps, [&](const SystemCall& call, std::size_t deed) -> Verdict {
            if (deed + 1 == steps.size()) return {Act::Kill};
            if (isPlanted || !isAppend(call)) return {};
            isPlanted = true;
            return {Act::Pretend};
        });
    EXPECT_TRUE(isPlanted);
    EXPECT_TRUE(broken.join(QLatin1Char('\n')).contains(QLatin1String("no record is lost")))
        << broken.join(QLatin1Char('\n')).toStdString();
}

TEST(RealDisk, CheckerOfErrorsFindsALostWrite) {
    constexpr std::uint32_t seed = ScriptedLife::kHomes;
    const Place place(seed);
    RealLife life(place.path(), seed);
    bool isPlanted = false;
    const Ending ending =
        life.liveWithFaults(EIO, [&](const SystemCall& call, std::size_t) -> Verdict {
            if (isPlanted || !isAppend(call)) return {};
            isPlanted = true;
            return {Act::Pretend};
        });
    EXPECT_EQ(ending, Ending::Done);
    EXPECT_TRUE(life.broken().contains(QLatin1String("the log holds what was acknowledged")))
        << life.broken().toStdString();
}

} // namespace
} // namespace vantle::tests

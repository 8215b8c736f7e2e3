// Every error of the file system at every call of a whole life: the clock goes on, the user reads
// the system's own words, the next success takes them away, and memory and disk agree.
#include "lab/Effort.h"
#include "lab/FaultyLife.h"

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <random>

namespace vantle::tests {
namespace {

using Operation = fakes::FaultyFileSystem::Operation;
using Fault = FaultyLife::Fault;

constexpr std::array kCodes{ENOSPC, EDQUOT, EIO, EACCES, EROFS, EMFILE, EINTR};

constexpr std::array kOperations{
    Operation::Open,
    Operation::Create,
    Operation::Read,
    Operation::Write,
    Operation::Size,
    Operation::Sync,
    Operation::Truncate,
    Operation::Close,
    Operation::Names,
    Operation::Rename,
    Operation::MakeDirectories,
    Operation::Remove,
    Operation::SetMode,
    Operation::Mode,
    Operation::SyncDirectory,
};

/// The faults of one life by number: each code at each call, then each operation through each deed.
Fault faultAt(std::size_t number, std::size_t calls, std::size_t deeds) {
    const int code = kCodes[number % kCodes.size()];
    const std::size_t rest = number / kCodes.size();
    if (rest < calls) return {code, int(rest) + 1, 0, {}};
    const std::size_t standing = (rest - calls) % (deeds * kOperations.size());
    return {code, 0, standing / kOperations.size(), kOperations[standing % kOperations.size()]};
}

TEST(Lab, EveryErrorLeavesTheClockRunningAndTheFilesTrue) {
    Effort effort("injected errors");
    qint64 injections = 0;
    const std::uint32_t few = 3 * ScriptedLife::kHomes;
    while (effort.goesOn(few) && !testing::Test::HasFailure()) {
        const std::uint32_t seed = effort.nextSeed();
        FaultyLife sound(seed, {ENOSPC, -1, 0, {}});
        EXPECT_EQ(sound.run(), QStringList());
        const std::size_t deeds = sound.life.deeds().size();
        const std::size_t all = (sound.calls() + deeds * kOperations.size()) * kCodes.size();
        const std::size_t tries = Effort::isLong() ? 400 : Effort::isOneLife() ? all : 8;
        std::mt19937 random(seed);
        for (std::size_t i = 0; i < tries && !testing::Test::HasFailure(); ++i) {
            const std::size_t number =
                Effort::isOneLife()
                    ? i
                    : std::uniform_int_distribution(std::size_t{0}, all - 1)(random);
            FaultyLife life(seed, faultAt(number, sound.calls(), deeds));
            const QStringList broken = life.run();
            if (life.hit()) ++injections;
            EXPECT_TRUE(broken.isEmpty())
                << broken.join(QStringLiteral("; ")).toStdString() << "\nVANTLE_LAB_SEED=" << seed
                << ", fault " << number << ": " << life.story().toStdString();
        }
    }
    effort.tell("lives", effort.lives());
    effort.tell("injections", injections);
    EXPECT_GE(injections, 20);
}

} // namespace
} // namespace vantle::tests

// Every state in which a crash may leave the disk, at every change of it in a whole life: the next
// start finds all that was acknowledged, nothing twice, and of the open session all but its last
// minute.
//
// Two kinds of state are counted apart, as the format of the log makes them: where half a line is
// left at its end, the next record is appended to that line and can't be read, though all bytes are
// kept; and where a character is torn, the log can't be read until the byte is gone.
#include "lab/CrashedLife.h"
#include "lab/Effort.h"

#include <gtest/gtest.h>

namespace vantle::tests {
namespace {

TEST(Lab, EveryCrashStateKeepsWhatWasAcknowledged) {
    Effort effort("crash states");
    CrashedLife::Counts counts;
    while (effort.goesOn(ScriptedLife::kHomes) && counts.violations == 0) {
        const std::uint32_t seed = effort.nextSeed();
        const auto report = [seed](const QStringList& broken, const QByteArray& story) {
            ADD_FAILURE() << "VANTLE_LAB_SEED=" << seed << "\n"
                          << broken.join(QStringLiteral("; ")).toStdString() << "\n"
                          << story.toStdString();
            return true;
        };
        CrashedLife(seed, counts, report).run(Effort::isLong() || Effort::isOneLife() ? 1.0 : 0.1);
    }
    effort.tell("lives", effort.lives());
    effort.tell("states", counts.states);
    effort.tell("states with half a line", counts.torn);
    effort.tell("states with half a character", counts.hidden);
    effort.tell("violations", counts.violations);
    EXPECT_GE(counts.states, 200) << "a life without states shows nothing";
}

} // namespace
} // namespace vantle::tests

// The layout of the capsule's chips, which is done again each time a capsule is built. The bound is
// the measuring of the names alone.
#include "Comparison.h"
#include "surfaces/capsule/CapsuleText.h"
#include "surfaces/capsule/SkillChipLayout.h"

namespace vantle::bench {
namespace {

constexpr int kRounds = 200;
constexpr double kRowWidth = 420;

std::vector<Skill> eightSkills() {
    std::vector<Skill> skills{Skill::defaults().begin(), Skill::defaults().end()};
    skills.push_back({QStringLiteral("a"), QStringLiteral("Writing letters"), 0xFFD60A, false});
    skills.push_back(
        {QStringLiteral("b"), QStringLiteral("Ende der Kümmernisse"), 0x40C8E0, false});
    return skills;
}

void chipLayout(benchmark::State& state) {
    constexpr double kNanoseconds = 50'000;
    const CapsuleText text;
    const std::vector<Skill> skills = eightSkills();
    const auto measure = [&](const QString& name) { return text.chipNameWidth(name); };
    compareComputing(
        state, {Goal::Kind::NanosecondsEach, kNanoseconds, kRounds},
        [&] {
            for (int i = 0; i < kRounds; ++i) {
                const auto layout = SkillChipLayout::compute(skills, kRowWidth, false, measure);
                benchmark::DoNotOptimize(layout.size.width());
            }
        },
        [&] {
            for (int i = 0; i < kRounds; ++i)
                for (const Skill& skill : skills)
                    benchmark::DoNotOptimize(measure(skill.name));
        });
}
BENCHMARK(chipLayout)->Name("layout of the chips of eight skills")->UseManualTime()->Iterations(40);

} // namespace
} // namespace vantle::bench

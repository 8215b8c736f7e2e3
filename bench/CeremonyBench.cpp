// The ceremony on a screen of 1440 x 900, as its overlay has it: all scripts, 60 frames a second.
// The frames are as cold as a show's; the bound is a memset of a frame that lies in the cache.
#include "Comparison.h"
#include "base/RandomSource.h"
#include "ceremony/show/CeremonyFrameRenderer.h"
#include "ceremony/show/FieldStretch.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <vector>

namespace vantle::bench {
namespace {

constexpr QSizeF kScreen(1440, 900);
constexpr double kFrame = 1.0 / 60;
constexpr int kFrames = 187; // until the show ends
const QString kSkill = QStringLiteral("Writing");

CeremonyFrameRenderer rendererOf(CeremonyVariant variant) {
    SystemRandom random;
    return CeremonyFrameRenderer(CeremonyGridModel::build(variant, kScreen, kSkill, random),
                                 PixelOrder::Bgra);
}

CeremonyFrameRenderer& shown(CeremonyVariant variant) {
    static std::map<CeremonyVariant, CeremonyFrameRenderer> renderers;
    const auto known = renderers.find(variant);
    if (known != renderers.end()) return known->second;
    return renderers.emplace(variant, rendererOf(variant)).first->second;
}

/// What a frame is at the least: its memory written once.
void clearFrame() {
    static std::vector<std::uint32_t> frame(shown(CeremonyVariant::Nova).fieldBuffer().size());
    std::memset(frame.data(), 1, frame.size() * sizeof(frame.front()));
    benchmark::DoNotOptimize(frame.data());
    benchmark::ClobberMemory();
}

/// Between two frames the picture is stretched over the window, which takes it out of the near
/// cache.
void stretchOverWindow() {
    static std::vector<std::uint32_t> window(
        static_cast<std::size_t>(kScreen.width() * kScreen.height()));
    std::ranges::fill(window, 1U);
    benchmark::DoNotOptimize(window.data());
    benchmark::ClobberMemory();
}

/// The fastest of several runs: what else the machine does is not our own.
class Fastest {
public:
    template <typename Work>
    void time(Work work) {
        m_seconds = std::min(m_seconds, processorSecondsFor(work));
    }
    [[nodiscard]] double seconds() const { return m_seconds; }

private:
    double m_seconds = 1;
};

/// The frames of a show, each by its fastest run, and in turn with each a memset of one.
struct Show {
    std::vector<Fastest> frames = std::vector<Fastest>(static_cast<std::size_t>(kFrames));
    std::vector<Fastest> bounds = frames;

    void play(CeremonyFrameRenderer& renderer) {
        for (std::size_t i = 0; i < frames.size(); ++i) {
            stretchOverWindow();
            frames[i].time([&] { renderer.fillField(static_cast<double>(i) * kFrame); });
            clearFrame();
            bounds[i].time(clearFrame);
        }
    }
};

double meanOf(const std::vector<Fastest>& all) {
    double sum = 0;
    for (const Fastest& one : all)
        sum += one.seconds();
    return sum / static_cast<double>(all.size());
}

double longestOf(const std::vector<Fastest>& all) {
    return std::ranges::max_element(all, {}, &Fastest::seconds)->seconds();
}

using Summary = double (*)(const std::vector<Fastest>&);

void frames(benchmark::State& state, CeremonyVariant variant, const Goal& goal, Summary summary) {
    CeremonyFrameRenderer& renderer = shown(variant);
    Show show;
    for (auto _ : state) {
        show.play(renderer);
        state.SetIterationTime(meanOf(show.frames));
    }
    report(state, summary(show.frames), meanOf(show.bounds), goal);
}

void meanFrame(benchmark::State& state, CeremonyVariant variant, const Goal& goal) {
    frames(state, variant, goal, meanOf);
}

void worstFrame(benchmark::State& state, CeremonyVariant variant, const Goal& goal) {
    frames(state, variant, goal, longestOf);
}

void construction(benchmark::State& state, CeremonyVariant variant, const Goal& goal) {
    compareComputing(
        state, goal, [&] { benchmark::DoNotOptimize(rendererOf(variant).fieldBuffer().data()); },
        clearFrame);
}

/// The frame over a screen of 3840 x 2160; the bound is a memset of that.
void stretchOverLargeScreen(benchmark::State& state, const Goal& goal) {
    constexpr QSize kLarge(3840, 2160);
    SystemRandom random;
    CeremonyFrameRenderer renderer(
        CeremonyGridModel::build(CeremonyVariant::Nova, kLarge, kSkill, random), PixelOrder::Bgra);
    renderer.fillField(0.62);
    const QSize size(renderer.bufferWidth(), renderer.bufferHeight());
    QImage window(kLarge, QImage::Format_ARGB32_Premultiplied);
    window.fill(Qt::transparent);
    FieldStretch stretch;
    compareComputing(
        state, goal,
        [&] {
            stretch.stretch(renderer.fieldBuffer(), size, renderer.bufferScale(), {}, window);
            benchmark::ClobberMemory();
        },
        [&] {
            std::memset(window.bits(), 1, static_cast<std::size_t>(window.sizeInBytes()));
            benchmark::ClobberMemory();
        });
}

template <typename Function>
void add(const char* what, CeremonyVariant variant, Function function, const Goal& goal) {
    const std::string name = ceremonyvariant::name(variant).data() + std::string(": ") + what;
    benchmark::RegisterBenchmark(name.c_str(), function, variant, goal)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond)
        ->Iterations(15);
}

[[maybe_unused]] const bool kRegistered = [] {
    constexpr double kMillisecond = 1e6; // nanoseconds
    for (const CeremonyVariant variant : ceremonyvariant::all) {
        const double memsets = variant == CeremonyVariant::Nova ? 13 : 10;
        add("frame, mean of a show", variant, meanFrame, {Goal::Kind::Ratio, memsets, 1});
        add("worst frame", variant, worstFrame,
            {Goal::Kind::NanosecondsEach, 2.5 * kMillisecond, 1});
        add("model and renderer", variant, construction,
            {Goal::Kind::NanosecondsEach, 12 * kMillisecond, 1});
    }
    benchmark::RegisterBenchmark("ceremony: a frame over 3840 x 2160", stretchOverLargeScreen,
                                 Goal{Goal::Kind::Ratio, 3, 1})
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond)
        ->Iterations(60);
    return true;
}();

} // namespace
} // namespace vantle::bench

// The poster of a year as a PNG, from the press of a button to the bytes for the clipboard. The
// bound is the encoding of the finished picture alone.
#include "Comparison.h"
#include "SampleLog.h"
#include "surfaces/wrapped/poster/SharePng.h"

#include <QBuffer>
#include <QImage>
#include <QImageWriter>

namespace vantle::bench {
namespace {

constexpr int kSessions = 1000;

SharePoster samplePoster() {
    std::vector<Session> log;
    for (int i = 0; i < kSessions; ++i)
        log.push_back(sampleSession(i));
    WrappedSettings settings;
    settings.now = log.back().endedAt;
    settings.calendar = {QStringLiteral("Europe/Berlin"), 2, 4};
    settings.skills.assign(Skill::defaults().begin(), Skill::defaults().end());
    return reviewcards::poster(WrappedStats::compute(log, WrappedPeriod::AllTime, settings),
                               settings);
}

void poster(benchmark::State& state) {
    constexpr double kNanoseconds = 120e6;
    const SharePoster sample = samplePoster();
    const QImage finished = QImage::fromData(renderSharePNG(sample).value_or(QByteArray()));
    compareComputing(
        state, {Goal::Kind::NanosecondsEach, kNanoseconds},
        [&] { benchmark::DoNotOptimize(renderSharePNG(sample)); },
        [&] {
            QBuffer buffer;
            QImageWriter(&buffer, "png").write(finished);
            benchmark::DoNotOptimize(buffer.size());
        });
}
BENCHMARK(poster)->Name("poster of a year, as a PNG")->UseManualTime()->Iterations(20);

} // namespace
} // namespace vantle::bench

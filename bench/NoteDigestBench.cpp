// What the notes of a period say, over up to a million of them. The bound is a walk over the same
// texts that asks of each character whether it is a letter.
#include "Comparison.h"
#include "SampleLog.h"
#include "review/stats/NoteDigest.h"

#include <QByteArray>

#include <array>
#include <map>

namespace vantle::bench {
namespace {

constexpr int kMany = 1'000'000;

/// A line of some forty characters, of a few thousand words, one in twenty not plain ASCII.
QString sampleNote(std::uint64_t random) {
    static const std::array<QString, 8> verbs = {
        QStringLiteral("fixed"),    QStringLiteral("wrote"),    QStringLiteral("Reviewed"),
        QStringLiteral("planning"), QStringLiteral("API"),      QStringLiteral("shipped"),
        QStringLiteral("drafted"),  QStringLiteral("Caf\u00E9")};
    static const std::array<QString, 8> ends = {
        QStringLiteral("for the launch"),    QStringLiteral("with tests"),
        QStringLiteral("and the login"),     QStringLiteral("before v2"),
        QStringLiteral("on the new page"),   QStringLiteral("again, really"),
        QStringLiteral("don't ship \u2013"), QStringLiteral("of 2026")};
    const auto word = [&](int shift) {
        return QString::number(0x10000 + (random >> shift) % 2000, 36); // letters and digits
    };
    return verbs[random % 8] + QLatin1String(" the ") + word(8) + QLatin1String("er and ") +
           word(24) + QLatin1Char(' ') + ends[(random >> 40) % 8];
}

struct Notes {
    std::vector<Session> sessions;
    std::vector<const Session*> refs;
    double bytes = 0; ///< as they stand in the log
};

const Notes& notes(int count) {
    static std::map<int, Notes> made;
    Notes& result = made[count];
    for (int i = static_cast<int>(result.sessions.size()); i < count; ++i) {
        Session session = sampleSession(i);
        session.note = sampleNote(static_cast<std::uint64_t>(i) * 0x9E3779B97F4A7C15u);
        result.bytes += static_cast<double>(session.note.toUtf8().size());
        result.sessions.push_back(std::move(session));
    }
    result.refs = refsTo(result.sessions);
    return result;
}

void digest(const Notes& over) {
    static const std::vector<Skill> skills(Skill::defaults().begin(), Skill::defaults().end());
    benchmark::DoNotOptimize(WrappedNoteDigest::compute(over.refs, skills));
}

void bareWalk(const Notes& over) {
    int letters = 0;
    for (const Session& session : over.sessions)
        for (const QChar unit : session.note)
            letters += unit.isLetterOrNumber() ? 1 : 0;
    benchmark::DoNotOptimize(letters);
}

/// 100 MB/s are 10 ns a byte.
void eachByte(benchmark::State& state) {
    const Notes& many = notes(kMany);
    compare(
        state, {Goal::Kind::NanosecondsEach, 10, many.bytes}, [&] { digest(many); },
        [&] { bareWalk(many); });
}

/// A note among `count` of them, beside a note among a thousand.
void growth(benchmark::State& state) {
    constexpr int kFew = 1000;
    const auto count = static_cast<int>(state.range(0));
    const Notes& many = notes(count);
    const Notes& few = notes(kFew);
    compare(
        state, {Goal::Kind::Ratio, 2, static_cast<double>(count)}, [&] { digest(many); },
        [&] {
            for (int i = 0; i < count / kFew; ++i)
                digest(few);
        });
}

[[maybe_unused]] const bool kRegistered = [] {
    benchmark::RegisterBenchmark("note digest of 1,000,000 notes, a byte", eachByte)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond)
        ->Iterations(5);
    const std::array<std::pair<const char*, int>, 3> sizes = {
        {{"a note of 10,000, against one of 1,000", 10'000},
         {"a note of 100,000, against one of 1,000", 100'000},
         {"a note of 1,000,000, against one of 1,000", kMany}}};
    for (const auto& [name, count] : sizes)
        benchmark::RegisterBenchmark(name, growth)
            ->Arg(count)
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond)
            ->Iterations(5);
    return true;
}();

} // namespace
} // namespace vantle::bench

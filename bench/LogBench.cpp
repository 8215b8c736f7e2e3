// Reading, adding to and changing a log on a real disk.
#include "BareParse.h"
#include "Comparison.h"
#include "SampleLog.h"
#include "Workshop.h"

#include <fcntl.h>
#include <malloc.h>
#include <unistd.h>

namespace vantle::bench {
namespace {

constexpr int kMany = 1'000'000;
constexpr int kSome = 100'000;

void readAMillion(benchmark::State& state) {
    Workshop workshop(kMany);
    const QString path = workshop.log();
    std::vector<Session> sessions;
    compare(
        state, {Goal::Kind::Ratio, 1.0}, [&] { sessions = workshop.tracker().allSessions(); },
        [&] { benchmark::DoNotOptimize(bareParse(path)); },
        [&] {
            if (sessions.size() != kMany) state.SkipWithError("records are missing");
            sessions = {};
        });
}

/// The bytes that are allocated now, large blocks included.
double allocatedBytes() {
    const struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
}

/// Bytes a record without its note; the bound is that of a bare record.
void holdAMillion(benchmark::State& state) {
    Workshop workshop(kMany);
    double perRecord = 0;
    for (auto _ : state) {
        state.SetIterationTime(1);
        const double empty = allocatedBytes();
        const std::vector<Session> sessions = workshop.tracker().allSessions();
        const double filled = allocatedBytes();
        std::vector<QString> notes;
        notes.reserve(sessions.size());
        for (const Session& session : sessions)
            notes.push_back(session.note.isEmpty()
                                ? QString()
                                : QString(session.note.constData(), session.note.size()));
        const double list = static_cast<double>(sizeof(QString) * notes.capacity());
        const double inNotes = allocatedBytes() - filled - list;
        perRecord = (filled - empty - inNotes) / kMany;
    }
    report(state, perRecord, sizeof(Session), {Goal::Kind::BytesEach, 120});
}

void appendOne(benchmark::State& state) {
    Workshop workshop(1000);
    const QByteArray line(183, 'x');
    const int fd = ::open(qPrintable(workshop.file(QStringLiteral("bound"))),
                          O_CREAT | O_WRONLY | O_APPEND | O_CLOEXEC, 0600);
    int next = 1000;
    compare(
        state, {Goal::Kind::Ratio, 1.1},
        [&] {
            if (!workshop.tracker().appendToLog(sampleSession(next++)))
                state.SkipWithError("can't append");
        },
        [&] {
            if (::write(fd, line.constData(), 183) != 183 || ::fsync(fd) != 0)
                state.SkipWithError("can't write");
        });
    ::close(fd);
}

/// Read the file, write it to another, one fsync.
bool copyAndSync(const QString& from, const QString& to) {
    const int in = ::open(qPrintable(from), O_RDONLY | O_CLOEXEC);
    const int out = ::open(qPrintable(to), O_CREAT | O_WRONLY | O_TRUNC | O_CLOEXEC, 0600);
    QByteArray bytes(::lseek(in, 0, SEEK_END), Qt::Uninitialized);
    const auto size = static_cast<std::size_t>(bytes.size());
    const bool done = ::pread(in, bytes.data(), size, 0) == bytes.size() &&
                      ::write(out, bytes.constData(), size) == bytes.size() && ::fsync(out) == 0;
    ::close(in);
    ::close(out);
    return done;
}

void changeANote(benchmark::State& state) {
    Workshop workshop(kSome);
    const QString copy = workshop.file(QStringLiteral("bound"));
    int turn = 0;
    compare(
        state, {Goal::Kind::Ratio, 2.0},
        [&] {
            const QUuid id = sampleSession(turn * 7919 % kSome).id;
            if (!workshop.tracker().updateNote(id, QString::number(++turn)))
                state.SkipWithError("can't change the note");
        },
        [&] {
            if (!copyAndSync(workshop.log(), copy)) state.SkipWithError("can't copy");
        });
}

BENCHMARK(readAMillion)
    ->Name("allSessions() of 1,000,000 lines, against a bare parse")
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(9);
BENCHMARK(holdAMillion)
    ->Name("memory of a record, without its note")
    ->UseManualTime()
    ->Iterations(1);
BENCHMARK(appendOne)
    ->Name("appendToLog, against one write and one fsync")
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond)
    ->Iterations(500);
BENCHMARK(changeANote)
    ->Name("updateNote in 100,000 lines, against read, write and one fsync")
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(40);

} // namespace
} // namespace vantle::bench

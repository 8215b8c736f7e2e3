// Reading, adding to and changing a log on a real disk.
#include "BareParse.h"
#include "Comparison.h"
#include "FormatScan.h"
#include "SampleLog.h"
#include "Workshop.h"
#include "tracking/LogReader.h"
#include "tracking/SessionLog.h"

#include <fcntl.h>
#include <malloc.h>
#include <unistd.h>

namespace vantle::bench {
namespace {

constexpr int kMany = 1'000'000;
constexpr int kSome = 100'000;

/// The whole log, on this thread; the bounds drop what they read.
void readWhole(benchmark::State& state, int count, double limit,
               std::uint64_t (*bound)(const QString&)) {
    Workshop workshop(count);
    const QString path = workshop.log();
    const SessionLog log(workshop.paths());
    std::vector<Session> sessions;
    compareComputing(
        state, {Goal::Kind::Ratio, limit, static_cast<double>(count)},
        [&] { sessions = log.readAll().sessions; }, [&] { benchmark::DoNotOptimize(bound(path)); },
        [&] {
            if (static_cast<int>(sessions.size()) != count)
                state.SkipWithError("records are missing");
            sessions = {};
        });
}

/// A log that is known and has not changed for long, against opening a file and taking its state.
void readUnchanged(benchmark::State& state) {
    Workshop workshop(kSome);
    LogReader reader(workshop.paths());
    static_cast<void>(reader.read());
    ::sleep(3); // until the time of the last change is certain
    static_cast<void>(reader.read());
    compareComputing(
        state, {Goal::Kind::NanosecondsEach, 100'000},
        [&] { benchmark::DoNotOptimize(reader.read()); },
        [&] {
            PosixFileSystem files;
            const auto file = files.open(workshop.log(), FileSystem::OpenMode::Read);
            benchmark::DoNotOptimize(file.value()->stamp());
        });
}

/// A known log with one more line, against reading all of it.
void readGrown(benchmark::State& state) {
    Workshop workshop(kSome);
    LogReader reader(workshop.paths());
    const SessionLog log(workshop.paths());
    static_cast<void>(reader.read());
    int count = kSome;
    std::vector<Session> whole;
    std::vector<double> ours;
    std::vector<double> bound;
    const auto again = [&] {
        if (static_cast<int>(reader.read().sessions.size()) != count)
            state.SkipWithError("records are missing");
    };
    const auto all = [&] { whole = log.readAll().sessions; };
    for (auto _ : state) {
        log.append(sampleSession(count++)).ignore();
        ours.push_back(processorSecondsFor(again));
        whole = {};
        bound.push_back(processorSecondsFor(all));
        state.SetIterationTime(ours.back());
    }
    report(state, medianOf(ours), medianOf(bound), {Goal::Kind::Ratio, 0.25});
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
        const std::vector<Session> sessions = SessionLog(workshop.paths()).readAll().sessions;
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
    report(state, perRecord, sizeof(Session), {Goal::Kind::BytesEach, 100});
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

[[maybe_unused]] const bool kRegistered = [] {
    const auto add = [](const std::string& name, auto measure) {
        benchmark::RegisterBenchmark(name.c_str(), measure)
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond)
            ->Iterations(9);
    };
    const auto addWhole = [&](const std::string& name, int count, double limit, auto bound) {
        add(name, [=](benchmark::State& state) { readWhole(state, count, limit, bound); });
    };
    addWhole("reading 1,000,000 lines, a line, against a bare parse", kMany, 1.0, bareParse);
    addWhole("reading 1,000,000 lines, a line, against a scan of their form", kMany, 2.0,
             formatScan);
    addWhole("reading 10,000 lines, a line, against a scan of their form", 10'000, 2.0, formatScan);
    add("reading 100,000 lines again, none changed", readUnchanged);
    add("reading 100,000 lines again, one added, against reading all", readGrown);
    return true;
}();

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

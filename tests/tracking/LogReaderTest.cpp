// A log that changes under its reader in every way: each reading is compared with one of a fresh
// reader, which knows nothing.
#include "tracking/LogReader.h"

#include "tracking/SessionLog.h"
#include "tracking/TrackingWorld.h"

#include <gmock/gmock.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <functional>

namespace vantle {
namespace {

using namespace std::chrono_literals;
using samples::id;
using samples::line;
using samples::session;
using std::chrono::nanoseconds;
using testing::ElementsAre;

using Operation = fakes::FaultyFileSystem::Operation;

struct ReaderWorld : TrackingWorld {
    ReaderWorld() { disk.passTime(1'000'000s); }

    [[nodiscard]] QString path() const { return QString::fromLatin1(log); }
    [[nodiscard]] QByteArray bytes() const { return content(log).value(); }

    /// Changes the file without another node, as a program that keeps it open does.
    void edit(qsizetype at, QByteArrayView part) {
        put(log, bytes().replace(at, part.size(), part));
    }
    void append(QByteArrayView part) {
        auto file = disk.open(path(), FileSystem::OpenMode::Append);
        ASSERT_TRUE(file && file.value()->write(part));
    }
    void truncate(qint64 size) {
        auto file = disk.open(path(), FileSystem::OpenMode::Append);
        ASSERT_TRUE(file && file.value()->truncate(size));
    }
    /// Puts another file in the log's place.
    void replace(const QByteArray& content) {
        put("/data/Vantle/other", content);
        ASSERT_TRUE(disk.rename(QStringLiteral("/data/Vantle/other"), path()));
    }

    LogReader reader{paths};
};

class LogReaderTest : public testing::Test, protected ReaderWorld {
protected:
    LogReaderTest() {
        put(log, first);
        settle();
    }

    /// Lets the last change become older than the clock's ticks.
    void settle() { disk.passTime(5s); }

    LogReader::Log read() {
        LogReader::Log known = reader.read();
        const LogRead fresh = SessionLog(paths).readAll();
        EXPECT_EQ(known.sessions, SessionList(fresh.sessions));
        EXPECT_EQ(known.unreadable, fresh.unreadable);
        return known;
    }
    /// Reads before and after `change`, which comes within the tick of the first reading, soon
    /// after it, or long after it.
    void expectSeen(const std::function<void()>& change) {
        const std::vector<nanoseconds> ages = {0ns, 1ns, 1'999'999'999ns, 2s, 59s};
        const std::vector<nanoseconds> rests = {0ns, 1ns, 3s, 3600s};
        for (const nanoseconds age : ages)
            for (const nanoseconds rest : rests) {
                SCOPED_TRACE(testing::Message() << age.count() << ", " << rest.count());
                put(log, first);
                disk.passTime(age);
                read();
                read();
                change();
                read();
                disk.passTime(rest);
                read();
                read();
            }
    }
    /// Returns how often a reading reads bytes of the file.
    [[nodiscard]] int readsOfAReading() {
        files.forgetCalls();
        static_cast<void>(reader.read());
        return static_cast<int>(std::ranges::count(files.calls(), Operation::Read,
                                                   &fakes::FaultyFileSystem::Call::operation));
    }

    const QByteArray first = line(session(1)) + line(session(2)) + line(session(3));
};

TEST_F(LogReaderTest, AnUnchangedLogIsNotReadAgain) {
    const SessionList before = read().sessions;
    EXPECT_THAT(before, ElementsAre(session(1), session(2), session(3)));
    EXPECT_EQ(readsOfAReading(), 0);
    EXPECT_TRUE(read().sessions.isSharedWith(before));
}

TEST_F(LogReaderTest, AnUnchangedLogIsComparedWhenItsLastChangeIsRecent) {
    put(log, first);
    const SessionList before = read().sessions;
    EXPECT_GT(readsOfAReading(), 0);
    EXPECT_TRUE(read().sessions.isSharedWith(before));
    settle();
    read();
    EXPECT_EQ(readsOfAReading(), 0);
    EXPECT_TRUE(read().sessions.isSharedWith(before));
}

TEST_F(LogReaderTest, AnUnchangedLogIsComparedOnceAMinute) {
    read();
    disk.passTime(59s);
    EXPECT_EQ(readsOfAReading(), 0);
    disk.passTime(1s);
    EXPECT_GT(readsOfAReading(), 0);
    EXPECT_EQ(readsOfAReading(), 0);
}

TEST_F(LogReaderTest, AClockSetBackIsNoReasonToTrustTheStamp) {
    read();
    disk.passTime(-10s);
    EXPECT_GT(readsOfAReading(), 0);
    disk.passTime(-1000s);
    edit(20, "7");
    read();
    edit(20, "6");
    read();
}

TEST_F(LogReaderTest, AnAppendedRecordIsAddedToTheOnesThatAreKnown) {
    read();
    append(line(session(4)));
    EXPECT_THAT(read().sessions, ElementsAre(session(1), session(2), session(3), session(4)));
    append("garbage\n" + line(session(5)) + line(session(6)));
    EXPECT_EQ(read().unreadable, 1);
}

TEST_F(LogReaderTest, AListThatWasHandedOutKeepsItsRecords) {
    const SessionList before = read().sessions;
    append(line(session(4)));
    const SessionList after = read().sessions;
    EXPECT_EQ(before.size(), 3u);
    EXPECT_EQ(after.size(), 4u);
}

TEST_F(LogReaderTest, AppendedRecordsTakeTheirPlaceByTheirEnds) {
    Session tie = session(2);
    tie.id = id(22);
    Session early = session(0);
    expectSeen([&] { append(line(tie) + line(session(9)) + line(early) + line(session(4))); });
    EXPECT_THAT(read().sessions, ElementsAre(early, session(1), session(2), tie, session(3),
                                             session(4), session(9)));
}

TEST_F(LogReaderTest, AnEditOfEqualLengthIsSeen) {
    expectSeen([&] { edit(bytes().indexOf("1800"), "1801"); });
    expectSeen([&] { edit(bytes().lastIndexOf("1800"), "1801"); });
    expectSeen([&] { edit(first.size() - 1, " "); });
    expectSeen([&] { edit(0, "x"); });
    EXPECT_EQ(read().unreadable, 1);
}

TEST_F(LogReaderTest, AnEditBehindWhichTheOldTimesArePutBackIsSeen) {
    expectSeen([&] {
        const auto modified = disk.modified(path());
        edit(bytes().indexOf("1800"), "1801");
        disk.setModified(path(), modified);
    });
}

TEST_F(LogReaderTest, AnEditTogetherWithAnAppendIsSeen) {
    expectSeen([&] {
        edit(bytes().indexOf("1800"), "1801");
        append(line(session(4)));
    });
    expectSeen([&] {
        append(line(session(4)));
        edit(bytes().lastIndexOf("1800"), "1801");
    });
}

TEST_F(LogReaderTest, ATruncationIsSeenAndSoIsWhatGrowsBehindIt) {
    const auto two = line(session(1)).size() * 2;
    expectSeen([&] { truncate(two); });
    expectSeen([&] { truncate(0); });
    expectSeen([&] { truncate(two - 5); });
    expectSeen([&] {
        truncate(two);
        append(line(session(4)));
    });
    expectSeen([&] {
        truncate(0);
        append(line(session(7)) + line(session(8)) + line(session(9)) + line(session(10)));
    });
    expectSeen([&] { truncate(first.size() + 10); });
}

TEST_F(LogReaderTest, AReplacedFileIsSeen) {
    const QByteArray other = line(session(4)) + line(session(5)) + line(session(6));
    ASSERT_EQ(other.size(), first.size());
    expectSeen([&] { replace(other); });
    expectSeen([&] { replace(first); });
    expectSeen([&] { replace(first + line(session(4))); });
    expectSeen([&] { replace(line(session(4)) + first); });
    expectSeen([&] { replace({}); });
}

TEST_F(LogReaderTest, ARemovedLogIsEmptyAndANewOneIsRead) {
    expectSeen([&] { ASSERT_TRUE(disk.remove(path())); });
    EXPECT_TRUE(read().sessions.empty());
    put(log, first);
    EXPECT_EQ(read().sessions.size(), 3u);
}

TEST_F(LogReaderTest, ATornLastLineIsReadOnceItIsComplete) {
    const QByteArray fourth = line(session(4));
    for (const qsizetype torn : {qsizetype(1), fourth.size() / 2, fourth.size() - 2, //
                                 fourth.size() - 1}) {
        expectSeen([&] {
            append(fourth.first(torn));
            read();
            append(fourth.sliced(torn));
        });
        EXPECT_EQ(read().sessions.size(), 4u);
        EXPECT_EQ(read().unreadable, 0);
    }
}

TEST_F(LogReaderTest, ALineThatGoesOnBehindAWholeRecordIsNoRecordAnyMore) {
    expectSeen([&] {
        truncate(first.size() - 1);
        EXPECT_EQ(read().sessions.size(), 3u);
        append("x\n" + line(session(4)));
    });
    EXPECT_THAT(read().sessions, ElementsAre(session(1), session(2), session(4)));
}

TEST_F(LogReaderTest, ALogThatMayNotBeReadIsEmptyUntilItMay) {
    expectSeen([&] { ASSERT_TRUE(disk.setMode(path(), 0)); });
    EXPECT_TRUE(read().sessions.empty());
    ASSERT_TRUE(disk.setMode(path(), 0600));
    EXPECT_EQ(read().sessions.size(), 3u);
    expectSeen([&] { ASSERT_TRUE(disk.setMode(path(), 0644)); });
    EXPECT_EQ(read().sessions.size(), 3u);
}

TEST_F(LogReaderTest, ABadByteHidesTheLogUntilItIsGone) {
    expectSeen([&] { append("\xFF\n"); });
    EXPECT_TRUE(read().sessions.empty());
    truncate(first.size());
    EXPECT_EQ(read().sessions.size(), 3u);
    expectSeen([&] { append("\xC3"); });
    append("\xA9\n");
    EXPECT_EQ(read().unreadable, 1);
    expectSeen([&] { edit(20, "\xFF"); });
}

TEST_F(LogReaderTest, AWriteThroughAMemoryMapIsSeenWithinAMinute) {
    read();
    disk.setBytesUnnoticed(path(), bytes().indexOf("1800"), "1801");
    disk.passTime(1min);
    EXPECT_EQ(read().sessions.front().activeSeconds, 1801);
}

TEST_F(LogReaderTest, WithoutStampsEveryChangeIsSeen) {
    files.fail(Operation::Stamp, path(), EIO);
    read();
    disk.setBytesUnnoticed(path(), bytes().indexOf("1800"), "1801");
    EXPECT_EQ(read().sessions.front().activeSeconds, 1801);
    append(line(session(4)));
    EXPECT_EQ(read().sessions.size(), 4u);
    replace(first);
    EXPECT_EQ(read().sessions.size(), 3u);
}

TEST_F(LogReaderTest, AFailingReadGivesNothingAndTheNextReadsAll) {
    put(log, first);
    read();
    for (int n = 1; n <= 12; ++n) {
        files.failNthCall(n, EIO);
        const auto failed = reader.read();
        EXPECT_TRUE(failed.sessions.empty() || failed.sessions.size() == 3) << "call " << n;
        files.healAll();
        EXPECT_EQ(read().sessions.size(), 3u);
        append(line(session(4)));
        files.failNthCall(n, EIO);
        static_cast<void>(reader.read());
        files.healAll();
        EXPECT_EQ(read().sessions.size(), 4u);
        put(log, first);
        read();
    }
}

TEST_F(LogReaderTest, ALogOfManyBlocksIsComparedWhole) {
    QByteArray text;
    Session record = session();
    record.note = QString(1900, QLatin1Char('n'));
    for (int i = 0; i < 1500; ++i) {
        record.id = id(i);
        text += line(record);
    }
    for (const qsizetype at : {qsizetype(900), text.size() / 2, text.size() - 900}) {
        put(log, text);
        const SessionList before = read().sessions;
        EXPECT_TRUE(read().sessions.isSharedWith(before));
        edit(at, "m");
        read();
        append(line(session(1)));
        read();
    }
}

TEST_F(LogReaderTest, AForgottenLogIsReadWhole) {
    read();
    reader.forget();
    EXPECT_GT(readsOfAReading(), 0);
}

/// One thing that happens to the log between two readings.
void happens(ReaderWorld& world) {
    const QByteArray before = world.content(ReaderWorld::log).value_or(QByteArray());
    const auto any = [&] { return *rc::gen::inRange<qsizetype>(0, before.size() + 1); };
    const QByteArray more = line(session(*rc::gen::inRange(0, 30)));
    const bool exists = world.disk.exists(world.path());
    switch (exists ? *rc::gen::inRange(0, 10) : 0) {
    case 0:
        return world.put(ReaderWorld::log, *rc::gen::arbitrary<bool>() ? before : more + before);
    case 1:
        return world.append(more);
    case 2:
        return world.append(more.first(*rc::gen::inRange<qsizetype>(0, more.size())));
    case 3:
        return world.truncate(any());
    case 4:
        return world.replace(*rc::gen::arbitrary<bool>() ? before : before + more);
    case 5: {
        const qsizetype at = any();
        const char* const byte = *rc::gen::element("\n", "0", "9", "\"", "\xFF", " ");
        if (at < before.size()) world.edit(at, byte);
        return;
    }
    case 6:
        world.disk.setModified(world.path(), *rc::gen::inRange<std::int64_t>(0, 3));
        return;
    case 7:
        world.disk.remove(world.path()).ignore();
        return;
    case 8:
        world.append(*rc::gen::element("\n", "x", "\xC3", "\xA9", "\r\n", "\xE2\x80\xA8"));
        return;
    default:
        world.disk.passTime(*rc::gen::element<nanoseconds>(1ns, 1s, 2s, 5s, 1min));
    }
}

RC_GTEST_PROP(LogReaderProperties, AnyHistoryReadsLikeAFreshReader, ()) {
    ReaderWorld world;
    world.put(ReaderWorld::log, line(session(1)) + line(session(2)));
    const int steps = *rc::gen::inRange(1, 30);
    for (int i = 0; i < steps; ++i) {
        happens(world);
        if (*rc::gen::inRange(0, 3) == 0) continue;
        const LogReader::Log known = world.reader.read();
        const LogRead fresh = SessionLog(world.paths).readAll();
        RC_ASSERT(known.sessions == SessionList(fresh.sessions));
        RC_ASSERT(known.unreadable == fresh.unreadable);
    }
}

} // namespace
} // namespace vantle

// What others and accidents can put into a log, and that it costs only the damaged line.
#include "tracking/TrackingWorld.h"

#include <gmock/gmock.h>

namespace vantle {
namespace {

using samples::id;
using samples::line;
using samples::session;
using testing::ElementsAre;
using testing::IsEmpty;

class SessionLogDamageTest : public testing::Test, protected TrackingWorld {
protected:
    /// Reads a log of two good lines with `damage` between, and changes the note of the second.
    void expectOneBadLine(const QByteArray& damage) {
        put(log, line(session(1)) + damage + '\n' + line(session(2)));
        EXPECT_THAT(tracker.allSessions(), ElementsAre(session(1), session(2)));
        EXPECT_EQ(tracker.dataWarning(), singular);
        ASSERT_TRUE(tracker.updateNote(id(2), QStringLiteral("new")));
        Session changed = session(2);
        changed.note = QStringLiteral("new");
        EXPECT_EQ(content(log), line(session(1)) + damage + '\n' + line(changed));
    }

    const std::optional<QString> singular = QStringLiteral(
        "1 unreadable session record is preserved in the export but excluded from totals.");
};

TEST_F(SessionLogDamageTest, OneLineOfGarbageIsCountedAndKept) { expectOneBadLine("garbage"); }

TEST_F(SessionLogDamageTest, TwoBadLinesAreSpokenOfInThePlural) {
    put(log, line(session(1)) + "garbage\n" + line(session(2)) + "{}\n" + line(session(3)));
    EXPECT_THAT(tracker.allSessions(), ElementsAre(session(1), session(2), session(3)));
    EXPECT_EQ(tracker.dataWarning(),
              QStringLiteral("2 unreadable session records are preserved in the export but "
                             "excluded from totals."));
}

TEST_F(SessionLogDamageTest, GarbageKeepsItsPlaceWhenARecordIsDeleted) {
    put(log, line(session(1)) + line(session(2)) + "garbage\n" + line(session(3)));
    EXPECT_TRUE(tracker.deleteSession(id(1)));
    EXPECT_EQ(content(log), line(session(2)) + "garbage\n" + line(session(3)));
    EXPECT_TRUE(tracker.deleteSession(id(3)));
    EXPECT_TRUE(tracker.deleteSession(id(2)));
    EXPECT_EQ(content(log), "garbage\n");
}

TEST_F(SessionLogDamageTest, WrongTypesMakeALineUnreadable) {
    const QByteArray good = line(session(9)).chopped(1);
    expectOneBadLine(QByteArray(good).replace("1800", "\"1800\""));
    expectOneBadLine(QByteArray(good).replace("1800", "1800.0"));
    expectOneBadLine(QByteArray(good).replace("\"note\":\"note\"", "\"note\":7"));
    expectOneBadLine(QByteArray(good).replace("\"note\":\"note\",", ""));
}

TEST_F(SessionLogDamageTest, ARecordThatBreaksTheRulesCountsAsUnreadable) {
    Session bad = session(9);
    bad.activeSeconds = 604801;
    expectOneBadLine(line(bad).chopped(1));
    bad = session(9);
    bad.source = QStringLiteral("import");
    expectOneBadLine(line(bad).chopped(1));
    bad = session(9);
    bad.endedAt = bad.startedAt - Seconds(60);
    expectOneBadLine(line(bad).chopped(1));
    bad = session(9);
    bad.note = QString(2001, QLatin1Char('x'));
    expectOneBadLine(line(bad).chopped(1));
}

TEST_F(SessionLogDamageTest, ARecordThatBreaksTheRulesCanBeDeletedButNotGivenANote) {
    Session bad = session(9);
    bad.source = QStringLiteral("import");
    const QByteArray text = line(session(1)) + line(bad);
    put(log, text);
    EXPECT_FALSE(tracker.updateNote(id(9), QStringLiteral("x")));
    EXPECT_TRUE(tracker.storageError().has_value());
    EXPECT_EQ(content(log), text);
    EXPECT_TRUE(tracker.deleteSession(id(9)));
    EXPECT_EQ(content(log), line(session(1)));
    EXPECT_EQ(tracker.storageError(), std::nullopt);
}

TEST_F(SessionLogDamageTest, ANoteThatIsTooLongCanBeReplacedByAGoodOne) {
    Session bad = session(9);
    bad.note = QString(2001, QLatin1Char('x'));
    put(log, line(bad));
    EXPECT_TRUE(tracker.updateNote(id(9), QStringLiteral("short")));
    EXPECT_EQ(tracker.allSessions().front().note, QStringLiteral("short"));
}

TEST_F(SessionLogDamageTest, OneBadByteHidesTheWholeLogAndStopsEveryChange) {
    const QByteArray text = line(session(1)) + "\xFF\n" + line(session(2));
    put(log, "garbage\n");
    static_cast<void>(tracker.allSessions());
    put(log, text);
    EXPECT_THAT(tracker.allSessions(), IsEmpty());
    EXPECT_EQ(tracker.dataWarning(), std::nullopt);
    EXPECT_FALSE(tracker.updateNote(id(1), QStringLiteral("x")));
    EXPECT_FALSE(tracker.deleteSession(id(1)));
    EXPECT_EQ(tracker.storageError(), std::nullopt);
    EXPECT_EQ(content(log), text);
}

TEST_F(SessionLogDamageTest, ABadByteAtTheVeryEndHidesTheLogToo) {
    put(log, line(session(1)) + "\xE2\x80");
    EXPECT_THAT(tracker.allSessions(), IsEmpty());
    QByteArray long1;
    for (int i = 0; i < 10'000; ++i)
        long1 += line(session(i));
    put(log, long1 + "\xC3");
    EXPECT_THAT(tracker.allSessions(), IsEmpty());
    put(log, "\xC3" + long1);
    EXPECT_THAT(tracker.allSessions(), IsEmpty());
}

TEST_F(SessionLogDamageTest, NulBytesAreOnlyABadLine) {
    expectOneBadLine(QByteArray(4096, '\0'));
    expectOneBadLine(
        QByteArray(line(session(9)).chopped(1)).replace("note\"", QByteArray("n\0\"", 3)));
}

TEST_F(SessionLogDamageTest, ALogOfNulBytesAloneReadsAsOneBadLine) {
    put(log, QByteArray(100'000, '\0'));
    EXPECT_THAT(tracker.allSessions(), IsEmpty());
    EXPECT_EQ(tracker.dataWarning(), singular);
}

TEST_F(SessionLogDamageTest, ALineOfTenMegabytesIsOnlyABadLine) {
    expectOneBadLine(QByteArray(10 << 20, 'x'));
}

TEST_F(SessionLogDamageTest, ARecordWithAnUnknownKeyOfTenMegabytesIsAGoodOne) {
    const QByteArray big = "{\"x\":\"" + QByteArray(10 << 20, 'y') + "\",";
    put(log, line(session(1)) + line(session(2)).replace("{", big) + line(session(3)));
    EXPECT_THAT(tracker.allSessions(), ElementsAre(session(1), session(2), session(3)));
}

TEST_F(SessionLogDamageTest, UnknownKeysOfAChangedRecordAreLostAndThoseOfOthersStay) {
    const QByteArray other = line(session(1)).replace("{", "{\"x\":1,");
    put(log, other + line(session(2)).replace("{", "{\"x\":1,"));
    EXPECT_TRUE(tracker.updateNote(id(2), QStringLiteral("note")));
    EXPECT_EQ(content(log), other + line(session(2)));
}

TEST_F(SessionLogDamageTest, LineEndsOfOtherSystemsAreReadAndBecomeOursWithTheNextChange) {
    const QByteArray one = line(session(1)).chopped(1);
    const QByteArray two = line(session(2)).chopped(1);
    put(log, one + "\r\n\r\n" + "garbage\r\n" + two + "\r\n");
    EXPECT_THAT(tracker.allSessions(), ElementsAre(session(1), session(2)));
    EXPECT_EQ(tracker.dataWarning(), singular);
    EXPECT_TRUE(tracker.updateNote(id(1), QStringLiteral("note")));
    EXPECT_EQ(content(log), one + "\ngarbage\n" + two + "\n");
}

TEST_F(SessionLogDamageTest, ALineSeparatorBetweenRecordsIsANewline) {
    const QByteArray one = line(session(1)).chopped(1);
    const QByteArray two = line(session(2)).chopped(1);
    put(log, one + "\u2028" + two + "\u2029");
    EXPECT_THAT(tracker.allSessions(), ElementsAre(session(1), session(2)));
    EXPECT_TRUE(tracker.deleteSession(id(1)));
    EXPECT_EQ(content(log), two + "\n");
}

TEST_F(SessionLogDamageTest, ALineSeparatorInsideARecordSplitsItAndBothHalvesAreKept) {
    const QByteArray left = line(session(9)).left(150);
    const QByteArray right = line(session(9)).sliced(150).chopped(1);
    put(log, line(session(1)) + left + "\u2028" + right + "\n");
    EXPECT_THAT(tracker.allSessions(), ElementsAre(session(1)));
    EXPECT_TRUE(tracker.dataWarning()->startsWith(QLatin1String("2 unreadable")));
    EXPECT_TRUE(tracker.updateNote(id(1), QStringLiteral("note")));
    EXPECT_EQ(content(log), line(session(1)) + left + "\n" + right + "\n");
}

TEST_F(SessionLogDamageTest, ATornLastLineFusesWithTheNextRecord) {
    const QByteArray torn = line(session(2)).left(60);
    put(log, line(session(1)) + torn);
    EXPECT_TRUE(tracker.appendToLog(session(3)));
    EXPECT_EQ(content(log), line(session(1)) + torn + line(session(3)));
    EXPECT_THAT(tracker.allSessions(), ElementsAre(session(1)));
    EXPECT_EQ(tracker.dataWarning(), singular);
}

TEST_F(SessionLogDamageTest, ALastLineThatLacksOnlyItsLineFeedIsReadAndMendedByTheNextChange) {
    put(log, line(session(1)) + line(session(2)).chopped(1));
    EXPECT_THAT(tracker.allSessions(), ElementsAre(session(1), session(2)));
    EXPECT_TRUE(tracker.updateNote(id(1), QStringLiteral("note")));
    EXPECT_EQ(content(log), line(session(1)) + line(session(2)));
}

TEST_F(SessionLogDamageTest, AByteOrderMarkCostsTheFirstLine) {
    put(log, "\xEF\xBB\xBF" + line(session(1)) + line(session(2)));
    EXPECT_THAT(tracker.allSessions(), ElementsAre(session(2)));
    EXPECT_EQ(tracker.dataWarning(), singular);
}

TEST_F(SessionLogDamageTest, ADirectoryInThePlaceOfTheLogReadsAsNothingAndRefusesRecords) {
    disk.setDirectory(paths.sessionsFile());
    EXPECT_THAT(tracker.allSessions(), IsEmpty());
    EXPECT_EQ(tracker.dataWarning(), std::nullopt);
    EXPECT_FALSE(tracker.appendToLog(session(1)));
    EXPECT_TRUE(tracker.storageError().has_value());
    EXPECT_FALSE(tracker.deleteSession(id(1)));
    EXPECT_TRUE(disk.exists(paths.sessionsFile()));
}

TEST_F(SessionLogDamageTest, TheRetiredQueueFileIsNoPartOfTheLog) {
    disk.setContent(QStringLiteral("/data/Vantle/sync-queue.json"), line(session(5)));
    disk.setContent(paths.corruptSessionsFile(), line(session(6)));
    EXPECT_THAT(tracker.allSessions(), IsEmpty());
    EXPECT_TRUE(tracker.appendToLog(session(1)));
    EXPECT_THAT(tracker.allSessions(), ElementsAre(session(1)));
    EXPECT_EQ(disk.content(QStringLiteral("/data/Vantle/sync-queue.json")), line(session(5)));
}

} // namespace
} // namespace vantle

#include "tracking/SessionLines.h"

#include "tracking/Samples.h"

#include <gmock/gmock.h>
#include <simdjson.h>

namespace vantle {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> linesOf(const QByteArray& text) {
    std::vector<std::string> lines;
    sessionlines::forEachLine(
        text, [&](QByteArrayView line) { lines.push_back(line.toByteArray().toStdString()); });
    return lines;
}

/// What the reader of whole logs gives, line by line.
std::vector<std::optional<Session>> recordsOf(const QByteArray& text) {
    std::vector<std::optional<Session>> records;
    sessionlines::Reader().read(text, [&](QByteArrayView, std::optional<Session> session) {
        records.push_back(std::move(session));
    });
    return records;
}

TEST(SessionLines, EveryNewlineOfUnicodeEndsALine) {
    EXPECT_THAT(linesOf("a\nb\vc\fd\re\u0085f\u2028g\u2029h"),
                ElementsAre("a", "b", "c", "d", "e", "f", "g", "h"));
}

TEST(SessionLines, EmptyLinesAreLeftOut) {
    EXPECT_THAT(linesOf(""), IsEmpty());
    EXPECT_THAT(linesOf("\n\r\n\u2028\n"), IsEmpty());
    EXPECT_THAT(linesOf("\r\na\r\n\r\nb\n"), ElementsAre("a", "b"));
}

TEST(SessionLines, CharactersThatShareBytesWithNewlinesStay) {
    const char* text = "\u0084\u0086\u2027\u202A\u00E2";
    EXPECT_THAT(linesOf(text), ElementsAre(text));
    EXPECT_THAT(linesOf("\xC2"), ElementsAre("\xC2"));
    EXPECT_THAT(linesOf("\xE2\x80"), ElementsAre("\xE2\x80"));
}

TEST(SessionLines, ALineInOurFormIsReadWhereverItEnds) {
    const QByteArray line = samples::line(samples::session(1)).chopped(1);
    for (const char* end : {"", "\n", "\r\n", "\u2028", "\v\n", "\u0085"})
        EXPECT_THAT(recordsOf(line + end), ElementsAre(samples::session(1))) << end;
}

TEST(SessionLines, ARawSeparatorInsideARecordSplitsItIntoUnreadableHalves) {
    Session session = samples::session();
    session.note = QStringLiteral("left|right");
    for (const char* separator : {"\u2028", "\u2029", "\u0085", "\n", "\f"}) {
        const QByteArray line = samples::line(session).replace("|", separator);
        EXPECT_THAT(recordsOf(line), ElementsAre(std::nullopt, std::nullopt)) << separator;
    }
}

TEST(SessionLines, TheQuickWayRefusesWhatTheFullDecoderRefuses) {
    const QByteArray good = samples::line(samples::session()).chopped(1);
    ASSERT_TRUE(sessionlines::decode(good));
    const std::vector<std::pair<QByteArray, QByteArray>> damages = {
        {"1800", "01800"},
        {"1800", "-0"},
        {"1800", "1800.0"},
        {"1800", "+1800"},
        {"1800", ""},
        {"1800", "99999999999999999999"},
        {"note\"", "no\te"},
        {"T11:", "T24:"},
        {"mac_app", "mac\\u005fapp"},
        {"}", "}x"},
        {"}", "} "},
        {"}", ""},
        {"A52-4", "A5G-4"},
        {"-000000000001", "-00000000001"}};
    for (const auto& [part, other] : damages) {
        QByteArray line = good;
        ASSERT_TRUE(line.contains(part)) << part.toStdString();
        line.replace(part, other);
        EXPECT_EQ(sessionlines::decode(line), json::decodeSession(line)) << line.toStdString();
    }
}

TEST(SessionLines, NumbersAreReadToTheLastDigit) {
    for (const char* number : {"0", "9", "604800", "604801", "999999999999999999",
                               "1000000000000000000", "9223372036854775807"}) {
        const QByteArray line =
            samples::line(samples::session()).chopped(1).replace("1800", number);
        const auto session = sessionlines::decode(line);
        ASSERT_TRUE(session.has_value()) << number;
        EXPECT_EQ(session->activeSeconds, QByteArray(number).toLongLong());
    }
}

/// Compares the quick way with the full decoder, alone and between two good lines.
void expectOneResult(const QByteArray& line) {
    if (!simdjson::validate_utf8(line.constData(), std::size_t(line.size()))) return;
    if (linesOf(line) != std::vector{line.toStdString()}) return;
    const auto expected = json::decodeSession(line);
    ASSERT_EQ(sessionlines::decode(line), expected) << line.toStdString();
    const Session other = samples::session(2);
    ASSERT_THAT(recordsOf(samples::line(other) + line + '\n' + samples::line(other)),
                ElementsAre(other, expected, other))
        << line.toStdString();
}

TEST(SessionLines, AnyOtherByteAnywhereGivesWhatTheFullDecoderGives) {
    const QByteArray good = samples::line(samples::session()).chopped(1);
    for (qsizetype at = 0; at < good.size(); ++at) {
        QByteArray line = good;
        for (int byte = 0; byte < 256; ++byte) {
            line[at] = static_cast<char>(byte);
            expectOneResult(line);
        }
    }
}

TEST(SessionLines, AMissingOrAnAddedByteAnywhereGivesWhatTheFullDecoderGives) {
    const QByteArray good = samples::line(samples::session()).chopped(1);
    for (qsizetype at = 0; at <= good.size(); ++at) {
        expectOneResult(good.first(at));
        expectOneResult(QByteArray(good).remove(at, 1));
        for (const char byte : {'0', '"', ' ', '\\', '}', 'a'})
            expectOneResult(QByteArray(good).insert(at, byte));
    }
}

TEST(SessionLines, ANoteOfAnyLengthIsReadUpToItsQuote) {
    const std::vector<QByteArray> parts = {
        "",       "\\n",    "\\\"",   "\"",         "\\",     "\t",      "\x7F",    "\u00E9",
        "\u0086", "\u2027", "\u65E5", "\U0001F600", "\uFEFF", "\\u0041", "\\ud800", "\0x"};
    for (qsizetype before = 0; before < 18; ++before)
        for (const QByteArray& part : parts)
            for (qsizetype after = 0; after < 10; ++after) {
                const QByteArray note = QByteArray(before, 'b') + part + QByteArray(after, 'a');
                expectOneResult(samples::line(samples::session())
                                    .chopped(1)
                                    .replace("\"note\":\"note\"", "\"note\":\"" + note + "\""));
            }
}

TEST(SessionLines, EveryDigitOfAnIdIsRead) {
    const QByteArray good = samples::line(samples::session()).chopped(1);
    const qsizetype id = good.indexOf("\"id\":\"") + 6;
    for (qsizetype at = id; at < id + 36; ++at)
        for (const char digit : QByteArrayView("0123456789abcdefABCDEF")) {
            QByteArray line = good;
            line[at] = digit;
            expectOneResult(line);
        }
    const auto session = sessionlines::decode(
        QByteArray(good).replace(id, 36, "01234567-89ab-CDEF-fedc-BA9876543210"));
    ASSERT_TRUE(session.has_value());
    EXPECT_EQ(session->id.toByteArray(QUuid::WithoutBraces),
              "01234567-89ab-cdef-fedc-ba9876543210");
}

TEST(SessionLines, EveryTimeOfADayIsReadAndNoOther) {
    const QByteArray good = samples::line(samples::session()).chopped(1);
    const qsizetype time = good.indexOf('T') + 1;
    for (int hour = 0; hour < 100; ++hour)
        for (int minute = 0; minute < 100; minute += 7)
            expectOneResult(
                QByteArray(good).replace(time, 8,
                                         QStringLiteral("%1:%2:%3")
                                             .arg(hour, 2, 10, QLatin1Char('0'))
                                             .arg(minute, 2, 10, QLatin1Char('0'))
                                             .arg((hour + minute) % 100, 2, 10, QLatin1Char('0'))
                                             .toLatin1()));
}

/// Records as the program writes them, without a character that JSON escapes.
std::vector<Session> plainRecords() {
    std::vector<Session> records;
    int number = 0;
    const auto add = [&](std::int64_t seconds, const QString& note, const SessionSource& source) {
        Session session = samples::session(++number);
        session.activeSeconds = seconds;
        session.note = note;
        session.source = source;
        records.push_back(session);
    };
    for (const std::int64_t seconds : {0, 1, 9, 10, 59, 1800, 43'200, 999'999'999})
        add(seconds, QStringLiteral("note"), sourceApp());
    for (qsizetype length = 0; length < 20; ++length)
        add(1800, QString(length, QLatin1Char('n')), sourceManual());
    // A space, and characters that begin with the same bytes as a newline, or end the ASCII range.
    for (const char* note : {" ", "a b", "~", "\u007F", "\u00A9", "\u00E9", "\u0084\u0086",
                             "\u2026", "\u2027\u202A", "\u65E5\u672C", "\U0001F600"})
        for (int before = 0; before < 9; ++before)
            add(1800, QString(before, QLatin1Char('n')) + QString::fromUtf8(note), sourceApp());
    return records;
}

TEST(SessionLines, WhatTheProgramWritesTakesTheFastPath) {
    sessionlines::Reader reader;
    for (const Session& session : plainRecords()) {
        const QByteArray line = samples::line(session);
        for (const QByteArray& text : {line, line.chopped(1), line + line}) {
            qsizetype length = 0;
            ASSERT_EQ(reader.decodeCanonical(text, length), session) << text.toStdString();
            ASSERT_EQ(length, line.size() - 1);
        }
        ASSERT_EQ(json::decodeSession(line), session);
    }
}

TEST(SessionLines, IdsOfEitherCaseAndTheLargestNumberTakeTheFastPath) {
    const QByteArray good = samples::line(samples::session()).chopped(1);
    const QByteArray id = good.sliced(good.indexOf("\"id\":\"") + 6, 36);
    for (const char* other :
         {"01234567-89ab-cdef-fedc-ba9876543210", "01234567-89AB-CDEF-FEDC-BA9876543210"}) {
        qsizetype length = 0;
        const QByteArray line = QByteArray(good).replace(id, other);
        const auto session = sessionlines::Reader().decodeCanonical(line, length);
        ASSERT_EQ(session, json::decodeSession(line));
        EXPECT_EQ(session->id, QUuid::fromString(QLatin1String(other)));
    }
    qsizetype length = 0;
    const auto session = sessionlines::Reader().decodeCanonical(
        QByteArray(good).replace("1800", "999999999999999999"), length);
    ASSERT_TRUE(session.has_value());
    EXPECT_EQ(session->activeSeconds, 999'999'999'999'999'999);
}

TEST(SessionLines, WhatTheFastPathMayNotTakeIsLeftToTheFullDecoder) {
    const QByteArray good = samples::line(samples::session()).chopped(1);
    const auto with = [&](const char* part, const char* other) {
        return QByteArray(good).replace(part, other);
    };
    for (const QByteArray& line :
         {with("1800", "01800"), with("1800", "1000000000000000000"), with("1800", "-1"),
          with("1800", "1800.0"), with("1800", ""), with("note\":\"note", "note\":\"no\\u0074e"),
          with("note\":\"note", "note\":\"no\tte"), with("note\":\"note", "note\":\"no\u2028te"),
          with("note\":\"note", "note\":\"no\u0085te"), with("mac_app", "other"),
          with("\"}", "\"} "), with("{", " {"), with("-4A52-", "-4AX2-"), with("-4A52-", "04A52-"),
          with("T1", "T9"), with("}", "")}) {
        qsizetype length = 0;
        EXPECT_FALSE(sessionlines::Reader().decodeCanonical(line, length)) << line.toStdString();
    }
}

TEST(SessionLines, RecordsOfOneSkillShareItsTextAmongManySkills) {
    sessionlines::Reader reader;
    const auto idOf = [&reader](int skill) {
        Session session = samples::session();
        session.skillId = QStringLiteral("skill %1").arg(skill);
        const auto read = reader.decode(samples::line(session).chopped(1));
        EXPECT_EQ(read, session);
        return read ? read->skillId : QString();
    };
    constexpr int kKept = 16;
    std::vector<QString> ids;
    for (int skill = 0; skill < kKept; ++skill)
        ids.push_back(idOf(skill));
    for (int round = 0; round < 3; ++round)
        for (int skill = 0; skill < kKept; ++skill)
            EXPECT_EQ(idOf(skill).constData(), ids[std::size_t(skill)].constData()) << skill;
    // More than are kept: the oldest makes room for one, and the others stay.
    static_cast<void>(idOf(kKept));
    int shared = 0;
    for (int skill = 0; skill < kKept; ++skill)
        shared += idOf(skill).constData() == ids[std::size_t(skill)].constData() ? 1 : 0;
    EXPECT_GE(shared, kKept - 2);
}

TEST(SessionLines, AReaderKeepsRecordsOfManySkillsApart) {
    Session first = samples::session(1);
    Session second = samples::session(2);
    second.skillId = QStringLiteral("übung");
    Session third = samples::session(3);
    third.skillId.clear();
    const QByteArray text = samples::line(first) + samples::line(second) + samples::line(second) +
                            samples::line(third) + samples::line(first);
    EXPECT_THAT(recordsOf(text), ElementsAre(first, second, second, third, first));
}

} // namespace
} // namespace vantle

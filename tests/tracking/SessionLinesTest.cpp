#include "tracking/SessionLines.h"

#include "tracking/Samples.h"

#include <gmock/gmock.h>

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

#include "tracking/JsonForm.h"

#include "tracking/Samples.h"
#include "tracking/SessionLines.h"

#include <gtest/gtest.h>

#include <limits>

namespace vantle {
namespace {

const QByteArray kGood =
    R"({"activeSeconds":1500,"endedAt":"2026-03-01T10:25:00Z",)"
    R"("id":"0F6B1D1E-4A52-4C1B-9A1E-7F3B2C5D8E90","note":"","skillId":"building",)"
    R"("source":"mac_app","startedAt":"2026-03-01T10:00:00Z"})";

/// The good line with one stretch replaced by another.
QByteArray goodBut(const QByteArray& part, const QByteArray& other) {
    QByteArray text = kGood;
    EXPECT_TRUE(text.contains(part));
    return text.replace(part, other);
}

Session goodSession() {
    Session session = samples::session();
    session.id = QUuid::fromString(QStringLiteral("0F6B1D1E-4A52-4C1B-9A1E-7F3B2C5D8E90"));
    session.startedAt = samples::at("2026-03-01T10:00:00Z");
    session.endedAt = samples::at("2026-03-01T10:25:00Z");
    session.activeSeconds = 1500;
    session.note.clear();
    return session;
}

QByteArray encodedNote(const QString& note) {
    Session session = goodSession();
    session.note = note;
    const QByteArray text = json::encode(session).value();
    const qsizetype begin = text.indexOf("\"note\":") + 7;
    return text.sliced(begin, text.indexOf(",\"skillId\"") - begin);
}

TEST(JsonForm, WritesASessionCompactAndWithSortedKeys) {
    EXPECT_EQ(json::encode(goodSession()).value(), kGood);
}

TEST(JsonForm, ReadsWhatItWrites) {
    const auto session = json::decodeSession(kGood);
    ASSERT_TRUE(session.has_value());
    EXPECT_EQ(*session, goodSession());
}

TEST(JsonForm, WritesAMarkerWithSortedKeys) {
    EXPECT_EQ(json::encode(samples::marker()).value(),
              R"({"activeSeconds":1800,"id":"0F6B1D1E-4A52-4C1B-9A1E-000000000007",)"
              R"("lastSeenAt":"2026-03-01T10:30:00Z","skillId":"building",)"
              R"("startedAt":"2026-03-01T10:00:00Z"})");
    EXPECT_EQ(json::decodeMarker(json::encode(samples::marker()).value()), samples::marker());
}

TEST(JsonForm, WritesSkillsWithSortedKeysAndDecimalColours) {
    const std::vector<Skill> skills = {{QStringLiteral("a"), QStringLiteral("A/é"), 0x7A78FF, true},
                                       {QStringLiteral("b"), QStringLiteral("B"), 0, false}};
    EXPECT_EQ(json::encode(skills),
              "[{\"builtin\":true,\"hexRGB\":8026367,\"id\":\"a\",\"name\":\"A\\/é\"},"
              "{\"builtin\":false,\"hexRGB\":0,\"id\":\"b\",\"name\":\"B\"}]");
    EXPECT_EQ(json::decodeSkills(json::encode(skills)), skills);
    EXPECT_EQ(json::encode(std::vector<Skill>()), "[]");
}

TEST(JsonForm, KeepsANoteWithALineFeedOnOneLine) {
    EXPECT_EQ(encodedNote(QStringLiteral("one\ntwo")), R"("one\ntwo")");
    Session session = goodSession();
    session.note = QStringLiteral("one\ntwo\r\n\u2028three\u0085\u2029");
    EXPECT_EQ(json::decodeSession(json::encode(session).value()), session);
}

TEST(JsonForm, EscapesWhatNeedsItAndNothingElse) {
    EXPECT_EQ(encodedNote(QStringLiteral("\"\\/\b\f\n\r\t")), R"("\"\\\/\b\f\n\r\t")");
    EXPECT_EQ(encodedNote(QString(QChar(0)) + QChar(0x1F)), R"("\u0000\u001f")");
    EXPECT_EQ(encodedNote(QStringLiteral("\u007F é 😀")), "\"\u007F é 😀\"");
    EXPECT_EQ(encodedNote(QStringLiteral("\u0085\u2028\u2029")), R"("\u0085\u2028\u2029")");
    // Neighbours of the line separators, which share their first bytes.
    EXPECT_EQ(encodedNote(QStringLiteral("\u0084\u0086\u2027\u202A")),
              "\"\u0084\u0086\u2027\u202A\"");
}

TEST(JsonForm, AByteOrderMarkInATextIsACharacterLikeOthers) {
    Session session = goodSession();
    session.note = QStringLiteral("\uFEFFmarked\uFEFF");
    session.skillId = QStringLiteral("\uFEFF");
    EXPECT_EQ(json::decodeSession(json::encode(session).value()), session);
    EXPECT_EQ(sessionlines::decode(json::encode(session).value()), session);
}

TEST(JsonForm, DropsFractionsOfASecond) {
    Session session = goodSession();
    session.startedAt += Seconds(0.75);
    session.endedAt += Seconds(0.999);
    EXPECT_EQ(json::encode(session).value(), kGood);
}

TEST(JsonForm, ADateWithoutAWrittenFormCannotBeEncoded) {
    Session session = goodSession();
    session.startedAt = dateFromEpoch(std::numeric_limits<double>::infinity());
    EXPECT_FALSE(json::encode(session).ok());
    OpenSessionMarker marker = samples::marker();
    marker.lastSeenAt = dateFromEpoch(1e15);
    EXPECT_FALSE(json::encode(marker).ok());
    EXPECT_FALSE(json::encode(marker).error().description().isEmpty());
}

TEST(JsonForm, ADateWithAFractionIsUnreadable) {
    EXPECT_FALSE(json::decodeSession(goodBut("10:25:00Z", "10:25:00.250Z")));
}

TEST(JsonForm, OtherWaysOfWritingADateAreUnreadable) {
    for (const char* date : {"2026-03-01T10:25:00+00:00", "2026-03-01t10:25:00z", "2026-03-01",
                             "2026-02-30T10:25:00Z", "2026-03-01T24:00:00Z", "2026-03-01T10:25:60Z",
                             "0000-03-01T10:25:00Z", " 2026-03-01T10:25:00Z", ""})
        EXPECT_FALSE(json::decodeSession(goodBut("2026-03-01T10:25:00Z", date))) << date;
}

TEST(JsonForm, EveryKeyIsRequiredWithItsType) {
    for (const char* key :
         {"activeSeconds", "endedAt", "id", "note", "skillId", "source", "startedAt"})
        EXPECT_FALSE(json::decodeSession(goodBut(key, "other"))) << key;
    EXPECT_FALSE(json::decodeSession(goodBut("1500", "\"1500\"")));
    EXPECT_FALSE(json::decodeSession(goodBut("1500", "null")));
    EXPECT_FALSE(json::decodeSession(goodBut("1500", "1500.0")));
    EXPECT_FALSE(json::decodeSession(goodBut("1500", "15e2")));
    EXPECT_FALSE(json::decodeSession(goodBut("1500", "true")));
    EXPECT_FALSE(json::decodeSession(goodBut("1500", "9223372036854775808")));
    EXPECT_FALSE(json::decodeSession(goodBut("\"building\"", "7")));
    EXPECT_FALSE(json::decodeSession(goodBut("\"note\":\"\"", "\"note\":null")));
}

TEST(JsonForm, UnknownKeysAreIgnoredAndOfARepeatedOneTheLastCounts) {
    EXPECT_EQ(json::decodeSession(goodBut("{", "{\"x\":[{\"id\":1}],")), goodSession());
    EXPECT_EQ(json::decodeSession(goodBut("{", "{\"activeSeconds\":1,")), goodSession());
    EXPECT_FALSE(json::decodeSession(goodBut("1500", "1500,\"activeSeconds\":null")));
}

TEST(JsonForm, WhiteSpaceAndTheOrderOfKeysDoNotMatter) {
    EXPECT_EQ(json::decodeSession(" { \"startedAt\" : \"2026-03-01T10:00:00Z\",\t"
                                  "\"source\":\"mac_app\",\"skillId\":\"building\",\"note\":\"\","
                                  "\"id\":\"0f6b1d1e-4a52-4c1b-9a1e-7f3b2c5d8e90\",\r\n"
                                  "\"endedAt\":\"2026-03-01T10:25:00Z\",\"activeSeconds\":1500 } "),
              goodSession());
}

TEST(JsonForm, AnIdIsTheCanonicalFormInEitherCase) {
    const QByteArray id = "0F6B1D1E-4A52-4C1B-9A1E-7F3B2C5D8E90";
    EXPECT_EQ(json::decodeSession(goodBut(id, id.toLower())), goodSession());
    for (const QByteArray& other :
         {"{" + id + "}", QByteArray(id).replace("-", ""), id.chopped(1), id + "0",
          QByteArray(id).replace('F', 'G'), "urn:uuid:" + id, " " + id.sliced(1)})
        EXPECT_FALSE(json::decodeSession(goodBut(id, other))) << other.toStdString();
}

TEST(JsonForm, WhatFollowsTheRecordOnItsLineMakesItUnreadable) {
    EXPECT_FALSE(json::decodeSession(kGood + kGood));
    EXPECT_FALSE(json::decodeSession(kGood + "x"));
    EXPECT_FALSE(json::decodeSession(kGood.chopped(1)));
    EXPECT_FALSE(json::decodeSession("\xEF\xBB\xBF" + kGood));
    EXPECT_FALSE(json::decodeSession(""));
    EXPECT_FALSE(json::decodeSession("[" + kGood + "]"));
}

TEST(JsonForm, BytesThatAreNoTextMakeTheRecordUnreadable) {
    EXPECT_FALSE(json::decodeSession(goodBut("\"note\":\"\"", "\"note\":\"\xFF\"")));
    EXPECT_FALSE(json::decodeSession(goodBut("\"note\":\"\"", "\"note\":\"\xED\xA0\x80\"")));
    EXPECT_FALSE(json::decodeSession(goodBut("\"note\":\"\"", R"("note":"\ud83d")")));
    EXPECT_FALSE(json::decodeSession(goodBut("\"note\":\"\"", "\"note\":\"\n\"")));
    QByteArray withNul = goodBut("\"note\":\"\"", "\"note\":\"x\"");
    withNul.replace("\"x\"", QByteArray("\"\0\"", 3));
    EXPECT_FALSE(json::decodeSession(withNul));
}

TEST(JsonForm, NegativeAndHugeCountsAreReadHere) {
    // Whether they are acceptable is for the rules of records.
    EXPECT_EQ(json::decodeSession(goodBut("1500", "-1"))->activeSeconds, -1);
    EXPECT_EQ(json::decodeSession(goodBut("1500", "9223372036854775807"))->activeSeconds,
              std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(json::decodeSession(goodBut("1500", "-0"))->activeSeconds, 0);
}

TEST(JsonForm, OneBadSkillMakesTheWholeListUnreadable) {
    const QByteArray good = R"({"builtin":true,"hexRGB":1,"id":"a","name":"A"})";
    EXPECT_TRUE(json::decodeSkills("[" + good + "]"));
    EXPECT_FALSE(
        json::decodeSkills("[" + good + R"(,{"builtin":1,"hexRGB":1,"id":"a","name":""}])"));
    EXPECT_FALSE(json::decodeSkills("[" + good + ",7]"));
    EXPECT_FALSE(json::decodeSkills(good));
    EXPECT_FALSE(json::decodeSkills(R"([{"builtin":true,"hexRGB":-1,"id":"a","name":"A"}])"));
    EXPECT_FALSE(
        json::decodeSkills(R"([{"builtin":true,"hexRGB":4294967296,"id":"a","name":"A"}])"));
    EXPECT_EQ(json::decodeSkills(R"([{"builtin":true,"hexRGB":4294967295,"id":"a","name":"A"}])")
                  ->front()
                  .hexRGB,
              0xFFFFFFFFu);
}

TEST(JsonForm, ATextAsDeepAsTheLineIsLongIsOnlyUnreadable) {
    const QByteArray deep = QByteArray(100'000, '[') + QByteArray(100'000, ']');
    EXPECT_FALSE(json::decodeSession(deep));
    EXPECT_FALSE(json::decodeSkills(deep));
    EXPECT_EQ(json::decodeSession(kGood), goodSession());
}

} // namespace
} // namespace vantle

#include "tracking/Session.h"

#include "tracking/Samples.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace vantle {
namespace {

QString repeated(const char* character, int times) {
    return QString::fromUtf8(character).repeated(times);
}

Session with(auto&& change) {
    Session session = samples::session();
    change(session);
    return session;
}

TEST(SessionRules, AnOrdinaryRecordIsAcceptable) {
    EXPECT_EQ(firstFailingRule(samples::session()), 0);
    EXPECT_TRUE(isAcceptable(samples::session()));
}

TEST(SessionRules, SevenDaysAreAcceptableAndASecondMoreIsNot) {
    Session session = samples::session();
    session.endedAt = session.startedAt + Seconds(604800);
    session.activeSeconds = 604800;
    EXPECT_TRUE(isAcceptable(session));
    session.activeSeconds = 604801;
    EXPECT_EQ(firstFailingRule(session), 2);
    session.activeSeconds = -1;
    EXPECT_EQ(firstFailingRule(session), 2);
    session.activeSeconds = 0;
    EXPECT_TRUE(isAcceptable(session));
}

TEST(SessionRules, ASkillIdHasOneToSixtyFourCharactersAsPeopleCountThem) {
    EXPECT_EQ(firstFailingRule(with([](Session& s) { s.skillId = QString(); })), 1);
    EXPECT_TRUE(isAcceptable(with([](Session& s) { s.skillId = repeated("a", 64); })));
    EXPECT_EQ(firstFailingRule(with([](Session& s) { s.skillId = repeated("a", 65); })), 1);
    // Each family is one character of eleven code units.
    const char* family = "👩‍👩‍👧‍👦";
    EXPECT_TRUE(isAcceptable(with([&](Session& s) { s.skillId = repeated(family, 64); })));
    EXPECT_EQ(firstFailingRule(with([&](Session& s) { s.skillId = repeated(family, 65); })), 1);
}

TEST(SessionRules, AnEndBeforeTheStartIsRefused) {
    EXPECT_EQ(firstFailingRule(with([](Session& s) { s.endedAt = s.startedAt - Seconds(1); })), 3);
    EXPECT_TRUE(isAcceptable(with([](Session& s) { s.endedAt = s.startedAt; })));
}

TEST(SessionRules, DatesThatAreNoNumbersAreRefused) {
    const Date never = dateFromEpoch(std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(firstFailingRule(with([&](Session& s) { s.endedAt = never; })), 3);
    EXPECT_EQ(firstFailingRule(with([&](Session& s) { s.startedAt = never; })), 3);
}

TEST(SessionRules, ASpanOfMoreThanSevenDaysIsRefused) {
    const auto spanning = [](double seconds) {
        return with([&](Session& s) { s.endedAt = s.startedAt + Seconds(seconds); });
    };
    EXPECT_TRUE(isAcceptable(spanning(604800)));
    EXPECT_EQ(firstFailingRule(spanning(604800.125)), 4);
}

TEST(SessionRules, ANoteHasAtMostTwoThousandCharacters) {
    EXPECT_TRUE(isAcceptable(with([](Session& s) { s.note = repeated("é", 2000); })));
    EXPECT_TRUE(isAcceptable(with([](Session& s) { s.note = repeated("e\u0301", 2000); })));
    EXPECT_EQ(firstFailingRule(with([](Session& s) { s.note = repeated("x", 2001); })), 5);
}

TEST(SessionRules, OnlyTheTwoKnownSourcesAreAcceptable) {
    EXPECT_TRUE(isAcceptable(with([](Session& s) { s.source = sourceManual(); })));
    EXPECT_EQ(firstFailingRule(with([](Session& s) { s.source = QStringLiteral("import"); })), 6);
    EXPECT_EQ(firstFailingRule(with([](Session& s) { s.source = QStringLiteral("Manual"); })), 6);
    EXPECT_EQ(firstFailingRule(with([](Session& s) { s.source = QString(); })), 6);
}

TEST(SessionSource, AnyTextIsKeptAsItIs) {
    EXPECT_EQ(SessionSource().text(), QStringLiteral("mac_app"));
    EXPECT_EQ(sourceManual().text(), QStringLiteral("manual"));
    for (const QString& text : {QStringLiteral("mac_app"), QStringLiteral("manual"),
                                QStringLiteral("Manual"), QStringLiteral("café\u0000☃"), QString()})
        EXPECT_EQ(SessionSource(text).text(), text);
}

TEST(SessionSource, EqualTextsAreEqualSources) {
    EXPECT_EQ(SessionSource(QStringLiteral("mac_app")), sourceApp());
    EXPECT_EQ(SessionSource(QStringLiteral("manual")), sourceManual());
    EXPECT_EQ(SessionSource(QStringLiteral("import")), SessionSource(QStringLiteral("import")));
    EXPECT_FALSE(SessionSource(QStringLiteral("import")) == SessionSource(QString()));
    EXPECT_FALSE(sourceApp() == sourceManual());
    EXPECT_FALSE(sourceApp() == SessionSource(QString()));
}

TEST(SessionRules, TheFirstBrokenRuleIsNamed) {
    Session session = samples::session();
    session.source = QString();
    session.note = repeated("x", 2001);
    EXPECT_EQ(firstFailingRule(session), 5);
    session.skillId.clear();
    EXPECT_EQ(firstFailingRule(session), 1);
}

TEST(CleanedNote, IsTrimmedFirstAndCutToFiveHundredCharactersThen) {
    const QString padded = QStringLiteral(" \n\t") + repeated("x", 600) + QStringLiteral("  ");
    EXPECT_EQ(cleanedNote(padded), repeated("x", 500));
    EXPECT_EQ(cleanedNote(QStringLiteral(" \u2028\u3000 ")), QString());
    EXPECT_EQ(cleanedNote(QStringLiteral("a  b")), QStringLiteral("a  b"));
}

TEST(CleanedNote, NeverCutsACharacterInTwo) {
    const char* flag = "🇩🇪";
    EXPECT_EQ(cleanedNote(repeated(flag, 501)), repeated(flag, 500));
    EXPECT_EQ(cleanedNote(repeated("e\u0301", 501)), repeated("e\u0301", 500));
}

} // namespace
} // namespace vantle

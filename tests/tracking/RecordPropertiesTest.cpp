// What holds for every record and every line, whatever is in it.
#include "tracking/CrashRecovery.h"
#include "tracking/Generators.h"
#include "tracking/JsonForm.h"
#include "tracking/SessionLines.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>

namespace vantle {
namespace {

int lineCount(const QByteArray& text) {
    int count = 0;
    sessionlines::forEachLine(text, [&](QByteArrayView) { ++count; });
    return count;
}

RC_GTEST_PROP(RecordProperties, ASessionReadsBackAsItWasWritten, ()) {
    const Session session = *generators::session();
    RC_ASSERT(json::decodeSession(json::encode(session).value()) == session);
}

RC_GTEST_PROP(RecordProperties, FractionsOfASecondAreDroppedTowardThePast, ()) {
    Session session = *generators::session();
    const Date start = session.startedAt;
    session.startedAt += Seconds(*rc::gen::inRange(0, 8) / 8.0);
    const auto read = json::decodeSession(json::encode(session).value());
    RC_ASSERT(read.has_value());
    RC_ASSERT(read->startedAt == start);
}

RC_GTEST_PROP(RecordProperties, AWrittenSessionIsOneLine, ()) {
    RC_ASSERT(lineCount(json::encode(*generators::session()).value() + '\n') == 1);
}

RC_GTEST_PROP(RecordProperties, AMarkerReadsBackAsItWasWritten, ()) {
    const OpenSessionMarker marker = *generators::marker();
    RC_ASSERT(json::decodeMarker(json::encode(marker).value()) == marker);
}

RC_GTEST_PROP(RecordProperties, SkillsReadBackAsTheyWereWritten, ()) {
    const auto skills = *rc::gen::container<std::vector<Skill>>(generators::skill());
    RC_ASSERT(json::decodeSkills(json::encode(skills)) == skills);
}

RC_GTEST_PROP(RecordProperties, TheQuickReaderAnswersAsTheFullDecoder, ()) {
    const QByteArray line = *generators::line();
    const auto full = json::decodeSession(line);
    RC_CLASSIFY(full.has_value(), "readable");
    RC_ASSERT(sessionlines::decode(line) == full);
}

RC_GTEST_PROP(RecordProperties, AReaderOfManyLinesAnswersAsOneOfEach, ()) {
    const auto lines = *rc::gen::container<std::vector<QByteArray>>(generators::line());
    QByteArray text;
    std::vector<std::optional<Session>> expected;
    for (const QByteArray& line : lines) {
        text += line + *rc::gen::elementOf(std::vector<QByteArray>{"\n", "\r\n", "\n\n", "\u2028"});
        expected.push_back(json::decodeSession(line));
    }
    std::vector<std::optional<Session>> got;
    sessionlines::Reader().read(text, [&](QByteArrayView, std::optional<Session> session) {
        got.push_back(std::move(session));
    });
    RC_ASSERT(got == expected);
}

RC_GTEST_PROP(RecordProperties, ARecoveryNeverCreditsMoreThanClaimedOrThanTheDatesAllow, ()) {
    const OpenSessionMarker marker = *generators::marker();
    const std::int64_t seconds = recovery::recoverableSeconds(marker);
    RC_ASSERT(seconds >= 0);
    RC_ASSERT(seconds <= std::max<std::int64_t>(marker.activeSeconds, 0));
    const double span = (marker.lastSeenAt - marker.startedAt).count();
    RC_ASSERT(static_cast<double>(seconds) <= std::max(span, 0.0));
}

RC_GTEST_PROP(RecordProperties, WhatARecoveryOffersCanBeLogged, ()) {
    const OpenSessionMarker marker = *generators::marker();
    const auto candidate = recovery::recoveryCandidate(marker);
    RC_CLASSIFY(candidate.has_value(), "offered");
    if (!candidate) return;
    RC_ASSERT(isAcceptable(*candidate));
    RC_ASSERT(candidate->activeSeconds >= 60);
    RC_ASSERT(candidate->id == marker.id);
}

RC_GTEST_PROP(RecordProperties, ACleanedNoteIsTheBeginningOfTheTrimmedOne, ()) {
    const QString note = *generators::text(600);
    const QString cleaned = cleanedNote(note);
    RC_ASSERT(note.contains(cleaned));
    Session session;
    session.note = cleaned;
    RC_ASSERT(firstFailingRule(session) != 5);
    RC_ASSERT(cleanedNote(QStringLiteral(" \n") + note + QStringLiteral("\u2003")) == cleaned);
}

} // namespace
} // namespace vantle

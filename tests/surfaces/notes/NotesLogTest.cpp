#include "surfaces/notes/NotesLog.h"

#include "support/QtPrinters.h"
#include "surfaces/notes/DayLabels.h"
#include "tracking/Samples.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace vantle {
namespace {

using noteslog::Places;

const Calendar kUtc{QStringLiteral("UTC"), 1, 1};

Session noted(int number, const char* start, const char* note, const char* skill = "building") {
    Session session = samples::session(number);
    session.startedAt = samples::at(start);
    session.endedAt = session.startedAt + Seconds(1800);
    session.note = QString::fromUtf8(note);
    session.skillId = QString::fromLatin1(skill);
    return session;
}

/// Skills that are named after their ids, in capitals.
Skill skillOf(const QString& id) { return {id, id.toUpper(), 0x7A78FF, false}; }

NotesLog logOf(const std::vector<Session>& sessions) { return noteslog::read(sessions, skillOf); }

QStringList notes(const NotesLog& log, const Places& places) {
    QStringList texts;
    for (const std::size_t place : places)
        texts << log.entries[place].note;
    return texts;
}

QStringList found(const NotesLog& log, const char* query,
                  const std::optional<QString>& skillId = std::nullopt) {
    return notes(log, noteslog::visible(log, {QString::fromUtf8(query), skillId}));
}

NotesLog threeNotes() {
    return logOf({noted(1, "2026-02-01T09:00:00Z", "first"),
                  noted(2, "2026-02-03T09:00:00Z", "third Café", "design"),
                  noted(3, "2026-02-02T09:00:00Z", "Second")});
}

TEST(NotesLog, ListsTheNewestStartFirstWhateverTheOrderOfTheLog) {
    EXPECT_EQ(found(threeNotes(), ""),
              (QStringList{QStringLiteral("third Café"), QStringLiteral("Second"),
                           QStringLiteral("first")}));
}

TEST(NotesLog, NoteOfBlanksAloneIsNeverListed) {
    EXPECT_TRUE(
        logOf({noted(1, "2026-02-01T09:00:00Z", " \n\t "), noted(2, "2026-02-01T10:00:00Z", "")})
            .entries.empty());
}

TEST(NotesLog, NotesStandWithoutTheBlanksAtTheirEnds) {
    const NotesLog log = logOf({noted(1, "2026-02-01T09:00:00Z", "\n  a  b  ")});
    EXPECT_EQ(log.entries.at(0).note, QStringLiteral("a  b"));
}

TEST(NotesLog, SessionThatCountsForNothingIsListedAllTheSame) {
    Session session = noted(1, "2026-02-01T09:00:00Z", "from the future");
    session.startedAt = samples::at("2099-01-01T00:00:00Z");
    session.endedAt = session.startedAt;
    session.activeSeconds = 0;
    EXPECT_EQ(logOf({session}).entries.size(), 1U);
}

TEST(NotesLog, SearchDoesNotTellCaseButTellsMarks) {
    const NotesLog log = threeNotes();
    EXPECT_EQ(found(log, "SECOND"), QStringList{QStringLiteral("Second")});
    EXPECT_EQ(found(log, "CAFÉ"), QStringList{QStringLiteral("third Café")});
    EXPECT_TRUE(found(log, "cafe").isEmpty());
}

TEST(NotesLog, SearchForASkillsNameFindsEveryNoteOfIt) {
    EXPECT_EQ(found(threeNotes(), "buildi"),
              (QStringList{QStringLiteral("Second"), QStringLiteral("first")}));
}

TEST(NotesLog, SearchTextIsTrimmedAndBlanksAloneAreNoSearch) {
    EXPECT_EQ(found(threeNotes(), "  second \n").size(), 1);
    EXPECT_EQ(found(threeNotes(), " \t ").size(), 3);
    EXPECT_FALSE((LogFilter{QStringLiteral(" \n "), std::nullopt}).isFiltering());
    EXPECT_TRUE((LogFilter{QStringLiteral("a"), std::nullopt}).isFiltering());
    EXPECT_TRUE((LogFilter{QString(), QStringLiteral("design")}).isFiltering());
}

TEST(NotesLog, FilterAndSearchHaveToFitBoth) {
    const NotesLog log = threeNotes();
    EXPECT_EQ(found(log, "", QStringLiteral("design")).size(), 1);
    EXPECT_TRUE(found(log, "second", QStringLiteral("design")).isEmpty());
    EXPECT_TRUE(found(log, "", QStringLiteral("gone")).isEmpty());
}

// A letter more looks only at what was found before.
TEST(NotesLog, SearchAfterAnotherFindsTheSameAsTheFirst) {
    const NotesLog log = threeNotes();
    std::vector<LogFilter> filters;
    for (const char* query :
         {"", " ", "i", "ir", "second", "sec", "café", "é", "design", "sign", "d"})
        for (const std::optional<QString>& skill :
             {std::optional<QString>(), std::optional(QStringLiteral("design"))})
            filters.push_back({QString::fromUtf8(query), skill});
    for (const LogFilter& before : filters)
        for (const LogFilter& filter : filters)
            EXPECT_EQ(noteslog::visible(log, filter, before, noteslog::visible(log, before)),
                      noteslog::visible(log, filter))
                << before.query.toStdString() << " then " << filter.query.toStdString();
}

TEST(NotesLog, SkillsStandInTheOrderOfTheirNewestNotes) {
    const NotesLog log = threeNotes();
    ASSERT_EQ(log.skills.size(), 2U);
    EXPECT_EQ(log.skills[0].id, QStringLiteral("design"));
    EXPECT_EQ(log.skills[1].id, QStringLiteral("building"));
}

TEST(NotesLog, SessionThatBeganBeforeMidnightStandsUnderTheDayItBegan) {
    Session session = noted(1, "2026-02-01T23:50:00Z", "late");
    session.endedAt = samples::at("2026-02-02T00:30:00Z");
    const NotesLog log = logOf({session});
    const auto days = noteslog::days(log, {0}, kUtc);
    ASSERT_EQ(days.size(), 1U);
    EXPECT_EQ(days[0].day, samples::at("2026-02-01T00:00:00Z"));
}

TEST(NotesLog, DaysGoDownAndEachStandsThereOnce) {
    const NotesLog log =
        logOf({noted(1, "2026-02-01T09:00:00Z", "a"), noted(2, "2026-02-01T11:00:00Z", "b"),
               noted(3, "2026-02-03T09:00:00Z", "c")});
    const auto days = noteslog::days(log, noteslog::visible(log, {}), kUtc);
    ASSERT_EQ(days.size(), 2U);
    EXPECT_EQ(notes(log, days[0].entries), QStringList{QStringLiteral("c")});
    EXPECT_EQ(notes(log, days[1].entries), (QStringList{QStringLiteral("b"), QStringLiteral("a")}));
}

TEST(NotesLog, ClockSetBackOverMidnightReturnsToTheSameDay) {
    // In this zone the clock went back from 00:01 to 23:01 on 2007-11-04.
    const Calendar calendar{QStringLiteral("America/St_Johns"), 1, 1};
    const NotesLog log = logOf({noted(1, "2007-11-04T02:00:00Z", "23:30 the first time"),
                                noted(2, "2007-11-04T02:30:30Z", "half a minute past midnight"),
                                noted(3, "2007-11-04T03:00:00Z", "23:30 again")});
    const auto days = noteslog::days(log, noteslog::visible(log, {}), calendar);
    ASSERT_EQ(days.size(), 2U);
    EXPECT_GT(days[0].day, days[1].day);
    EXPECT_EQ(days[0].entries.size(), 1U);
    EXPECT_EQ(days[1].entries.size(), 2U);
}

TEST(NotesLog, DayIsCalledByWhatItIsToday) {
    const Date now = samples::at("2026-01-02T10:00:00Z");
    const auto label = [&](const char* day) { return DayLabels(now, kUtc)(samples::at(day)); };
    EXPECT_EQ(label("2026-01-02T00:00:00Z"), QStringLiteral("Today"));
    EXPECT_EQ(label("2026-01-01T00:00:00Z"), QStringLiteral("Yesterday"));
    EXPECT_EQ(label("2025-12-31T00:00:00Z"), QStringLiteral("Dec 31, 2025"));
    EXPECT_EQ(label("2026-01-03T00:00:00Z"), QStringLiteral("Sat, Jan 3"));
}

TEST(NotesLog, SubtitleSumsWhatIsShown) {
    const NotesLog log = threeNotes();
    EXPECT_EQ(noteslog::subtitleText(log, {0, 1, 2}, false, DurationStyle::Natural),
              QStringLiteral("Across 1 h 30 min of tracked work."));
    EXPECT_EQ(noteslog::subtitleText(log, {0}, true, DurationStyle::Natural),
              QStringLiteral("Across 30 min of the work you filtered to."));
}

TEST(NotesLog, FooterNamesTheFirstOfTheLongestAndTheSmallerNameOfTheMostNoted) {
    std::vector<Session> sessions = {noted(1, "2026-02-01T09:00:00Z", "a", "zebra"),
                                     noted(2, "2026-02-02T09:00:00Z", "b", "ape")};
    sessions[0].activeSeconds = 7500;
    const NotesLog log = logOf(sessions);
    EXPECT_EQ(noteslog::footerText(log, {0, 1}, DurationStyle::Natural),
              QStringLiteral("Longest noted session: 2 h 5 min. Most noted: APE."));
    EXPECT_EQ(noteslog::footerText(log, {1}, DurationStyle::Natural),
              QStringLiteral("Longest noted session: 2 h 5 min. Most noted: ZEBRA."));
    EXPECT_EQ(noteslog::footerText(log, {}, DurationStyle::Natural), QString());
}

TEST(NotesLog, NameWithAPlaceholderInItIsWrittenAsItStands) {
    const NotesLog log = logOf({noted(1, "2026-02-01T09:00:00Z", "a", "%1%2")});
    EXPECT_TRUE(noteslog::footerText(log, {0}, DurationStyle::Natural)
                    .endsWith(QStringLiteral("Most noted: %1%2.")));
}

TEST(NotesLog, OneNoteIsSingular) {
    EXPECT_EQ(noteslog::countWord(1), QStringLiteral("note"));
    EXPECT_EQ(noteslog::countWord(0), QStringLiteral("notes"));
    EXPECT_EQ(noteslog::countWord(2), QStringLiteral("notes"));
}

} // namespace
} // namespace vantle

// What the pages say where the recorded cases don't reach.
#include "review/CardSamples.h"
#include "review/HoursCards.h"
#include "review/NotesCards.h"
#include "review/PersonaCard.h"
#include "review/RhythmCard.h"
#include "review/WhenCard.h"
#include "review/stats/ReviewSamples.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

using samples::settings;
using samples::week;
using samples::worked;

/// Six skills, an hour more each.
std::vector<Session> sixSkills() {
    std::vector<Session> log;
    int hours = 0;
    for (const Skill& skill : settings().skills)
        log.push_back(worked("2026-03-10T01:00:00Z", 60 * ++hours, skill.id));
    return log;
}

TEST(HeroCard, TellsTheWeekBeforeByTheNameItHasFromThere) {
    const std::vector<Session> log = {worked("2026-02-24T09:00:00Z", 60),
                                      worked("2026-03-03T09:00:00Z", 120),
                                      worked("2026-03-10T09:00:00Z", 60)};
    EXPECT_EQ(reviewcards::hero(week(log), settings()).quiet.value(0),
              QStringLiteral("Last week: 2 h"));
    const auto last = WrappedStats::compute(log, WrappedPeriod::LastWeek, settings());
    EXPECT_EQ(reviewcards::hero(last, settings()).quiet.value(0),
              QStringLiteral("The week before: 1 h"));
}

TEST(HeroCard, SessionsOfNoTimeAreNeitherTrackedNorLogged) {
    EXPECT_TRUE(
        reviewcards::hero(week({worked("2026-03-10T09:00:00Z", 0)}), settings()).quiet.isEmpty());
}

TEST(HeroCard, TellsHowTheTimeCameIntoTheLog) {
    const Session tracked = worked("2026-03-10T09:00:00Z", 60);
    Session logged = worked("2026-03-10T12:00:00Z", 120);
    logged.source = sourceManual();
    const auto quiet = [](const std::vector<Session>& log) {
        return reviewcards::hero(week(log), settings()).quiet;
    };
    EXPECT_EQ(quiet({tracked}), QStringList{QStringLiteral("All of it tracked live")});
    EXPECT_EQ(quiet({logged}), QStringList{QStringLiteral("All of it logged by hand")});
    EXPECT_EQ(quiet({tracked, logged}),
              QStringList{QStringLiteral("1 h tracked live · 2 h logged by hand")});
}

TEST(HeroCard, CountsTheSessionsWithANote) {
    Session first = worked("2026-03-10T09:00:00Z", 60);
    first.note = QStringLiteral("one");
    Session second = worked("2026-03-10T12:00:00Z", 60);
    second.note = QStringLiteral("two");
    const auto noted = [](const std::vector<Session>& log) {
        return reviewcards::hero(week(log), settings()).quiet.value(1);
    };
    EXPECT_EQ(noted({first}), QStringLiteral("1 session has a note"));
    EXPECT_EQ(noted({first, second}), QStringLiteral("2 sessions have notes"));
}

TEST(SkillsCard, ShowsTheTopSkillAndTheOthersBelowIt) {
    const auto stats = week(sixSkills());
    const auto card = reviewcards::skills(stats, settings(), 6).value();
    EXPECT_EQ(card.top.name, settings().skills.back().name);
    EXPECT_EQ(card.topFigure.value, QStringLiteral("6"));
    ASSERT_EQ(card.others.size(), 5U);
    EXPECT_EQ(card.others.front().name, settings().skills[4].name);
    EXPECT_DOUBLE_EQ(card.others.front().fraction, 5.0 / 6);
    EXPECT_EQ(card.others.front().share, QStringLiteral("24%")) << "5 of 21 hours";
    EXPECT_TRUE(card.more.isEmpty());
    EXPECT_EQ(reviewcards::skills(stats, settings(), 4)->more, QStringLiteral("+2 more"));
}

TEST(SkillsCard, SingleSkillHasNoBreakdown) {
    const auto card =
        reviewcards::skills(week({worked("2026-03-10T09:00:00Z", 60)}), settings(), 6).value();
    EXPECT_TRUE(card.breakdownKicker.isEmpty());
    EXPECT_TRUE(card.others.empty());
    EXPECT_EQ(card.top.share, QStringLiteral("100%"));
}

TEST(SkillsCard, IsNotThereWithoutHours) {
    EXPECT_FALSE(reviewcards::skills(week({worked("2026-03-10T09:00:00Z", 0)}), settings(), 6));
}

TEST(PersonaCard, TakingShapeTellsHowFarItIs) {
    const auto card = reviewcards::persona(week({worked("2026-03-10T09:00:00Z", 60)}));
    EXPECT_TRUE(card.name.isEmpty());
    EXPECT_EQ(card.facts,
              (QStringList{QStringLiteral("1 / 5 sessions"), QStringLiteral("1 / 2 days")}));
    EXPECT_TRUE(card.celebrationColors.isEmpty());
}

TEST(PersonaCard, CelebratesInItsOwnColoursAndThoseOfTheTopSkills) {
    auto log = sixSkills();
    log.push_back(worked("2026-03-11T09:00:00Z", 60));
    const auto stats = week(log);
    ASSERT_TRUE(stats.persona);
    const auto card = reviewcards::persona(stats);
    EXPECT_EQ(card.celebrationColors,
              (QList<QColor>{QColor::fromRgb(stats.persona->startHex),
                             QColor::fromRgb(stats.persona->endHex),
                             QColor::fromRgb(stats.skillHours[0].skill.hexRGB),
                             QColor::fromRgb(stats.skillHours[1].skill.hexRGB),
                             QColor::fromRgb(stats.skillHours[2].skill.hexRGB)}));
    EXPECT_EQ(card.facts.value(2), QStringLiteral("7 sessions"));
    EXPECT_EQ(card.quiet, QStringLiteral("From this week"));
}

TEST(WhenCard, NeedsThreeStarts) {
    std::vector<Session> log = {worked("2026-03-09T09:00:00Z", 60),
                                worked("2026-03-10T09:00:00Z", 30)};
    EXPECT_FALSE(reviewcards::when(week(log), settings()));
    log.push_back(worked("2026-03-10T14:00:00Z", 90));
    const auto card = reviewcards::when(week(log), settings()).value();
    ASSERT_EQ(card.bars.size(), 12);
    EXPECT_EQ(card.bars[4], 1);
    EXPECT_EQ(card.bars[7], 0.5);
    EXPECT_EQ(card.peakBar, 4);
    ASSERT_EQ(card.facts.size(), 3U);
    EXPECT_EQ(card.facts[1].value, QStringLiteral("1 h 30 min"));
    EXPECT_EQ(card.facts[2].value, QStringLiteral("2 h"));
    EXPECT_EQ(card.facts[2].detail, QStringLiteral("Tue, Mar 10"));
    EXPECT_EQ(card.factList().value(2).value<FactBox>().detail, card.facts[2].detail);
}

TEST(WhenCard, FactThatIsNotKnownHasNoBox) {
    WrappedStats stats = week(std::vector<Session>(3, worked("2026-03-09T09:00:00Z", 60)));
    const auto titles = [&stats] {
        QStringList titles;
        const auto card = reviewcards::when(stats, settings()).value();
        for (const FactBox& box : card.facts)
            titles << box.title;
        return titles.join(QStringLiteral(", "));
    };
    EXPECT_EQ(titles(), QStringLiteral("TYPICAL START, LONGEST SESSION, BIGGEST DAY"));
    stats.longest.reset();
    EXPECT_EQ(titles(), QStringLiteral("TYPICAL START, BIGGEST DAY"));
    stats.typicalStart.reset();
    stats.biggestDay.reset();
    EXPECT_EQ(titles(), QString());
}

TEST(HighPointsCard, EachHighPointIsALineWithItsSymbolAndColour) {
    const auto stats = week(sixSkills());
    ASSERT_FALSE(stats.superlatives.empty());
    const auto card = reviewcards::highPoints(stats);
    EXPECT_EQ(card.sentence, QStringLiteral("The numbers worth saying out loud this week"));
    const QVariantList lines = card.lineList();
    ASSERT_EQ(static_cast<std::size_t>(lines.size()), stats.superlatives.size());
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const auto line = lines[i].value<HighPoint>();
        const SuperlativeLine& told = stats.superlatives[static_cast<std::size_t>(i)];
        EXPECT_EQ(line.text, told.text);
        EXPECT_EQ(line.icon, told.icon);
        EXPECT_EQ(line.tint, QColor::fromRgb(told.tintHex));
    }
}

TEST(WhenCard, HoursHaveASpaceThatCloseLettersLeave) {
    WrappedSettings there = settings();
    there.calendar.locale = QStringLiteral("en_US");
    std::vector<Session> log;
    for (int i = 0; i < 4; ++i)
        log.push_back(worked("2026-03-10T22:00:00Z", 30));
    const auto stats = WrappedStats::compute(log, WrappedPeriod::Week, there);
    const auto card = reviewcards::when(stats, there).value();
    const QChar space(QChar::Nbsp);
    EXPECT_EQ(card.hourMarks[1], QStringLiteral("6") + space + QStringLiteral("AM"));
    EXPECT_TRUE(card.peak.endsWith(space + QStringLiteral("PM"))) << card.peak.toStdString();
    EXPECT_TRUE(card.facts[0].value.endsWith(space + QStringLiteral("PM")))
        << card.facts[0].value.toStdString();
    EXPECT_FALSE(card.detail.contains(QChar(0x202F))) << card.detail.toStdString();
}

TEST(WhenCard, MarksADayFromOneMidnightToTheNextAsTheLocaleWritesHours) {
    WrappedSettings there = settings();
    there.calendar.locale = QStringLiteral("de_DE");
    const std::vector<Session> log(3, worked("2026-03-09T09:00:00Z", 60));
    const auto stats = WrappedStats::compute(log, WrappedPeriod::Week, there);
    EXPECT_EQ(
        reviewcards::when(stats, there)->hourMarks,
        (QStringList{QStringLiteral("00 Uhr"), QStringLiteral("06 Uhr"), QStringLiteral("12 Uhr"),
                     QStringLiteral("18 Uhr"), QStringLiteral("00 Uhr")}));
}

TEST(NotesCard, NotesHaveTheirSkillAndTheirDay) {
    Session session = worked("2026-03-10T09:00:00Z", 60, QStringLiteral("marketing"));
    session.note = QStringLiteral("Drafted the landing page");
    const auto card = reviewcards::notes(week({session}), settings(), 4).value();
    ASSERT_EQ(card.highlights.size(), 1U);
    EXPECT_EQ(card.highlights[0].text, session.note);
    EXPECT_EQ(card.highlights[0].skillName, QStringLiteral("Marketing"));
    EXPECT_EQ(card.highlights[0].skillColor, QColor::fromRgb(0xFF375F));
    EXPECT_EQ(card.highlights[0].date, QStringLiteral("Mar 10"));
    EXPECT_TRUE(card.more.isEmpty());
}

TEST(NotesCard, NotesThatSayTheSameAreInTheLogNevertheless) {
    std::vector<Session> log;
    for (int i = 0; i < 3; ++i) {
        log.push_back(worked("2026-03-10T09:00:00Z", 60));
        log.back().note = QStringLiteral("again");
    }
    const auto card = reviewcards::notes(week(log), settings(), 4).value();
    EXPECT_EQ(card.highlights.size(), 1U);
    EXPECT_EQ(card.more, QStringLiteral("2 more notes are in your log"));
}

TEST(NotesCard, IsNotThereWithoutNotesAndTellsOfASingleOneBeyond) {
    EXPECT_FALSE(reviewcards::notes(week({worked("2026-03-10T09:00:00Z", 60)}), settings(), 4));
    std::vector<Session> log;
    for (const char* note : {"drew the map", "called the bank", "fixed the door"}) {
        log.push_back(worked("2026-03-10T09:00:00Z", 60));
        log.back().note = QString::fromUtf8(note);
    }
    EXPECT_EQ(reviewcards::notes(week(log), settings(), 2)->more,
              QStringLiteral("1 more note is in your log"));
}

TEST(NarrativeCard, NamesItsPeriodInCapitals) {
    const auto card = reviewcards::narrative(WrappedPeriod::AllTime, QStringLiteral("You did."));
    EXPECT_EQ(card.kicker, QStringLiteral("ALL TIME, IN WORDS"));
    EXPECT_EQ(card.text, QStringLiteral("You did."));
}

TEST(NarrativeCard, FirstSentenceStandsOutAndAPointInAFigureEndsNone) {
    const auto card = reviewcards::narrative(
        WrappedPeriod::Week, QStringLiteral("9.2 h this week, mostly Build. You shipped it."));
    EXPECT_EQ(card.opening, QStringLiteral("9.2 h this week, mostly Build. "));
    EXPECT_EQ(card.rest, QStringLiteral("You shipped it."));
    const auto none = reviewcards::narrative(WrappedPeriod::Week, QString());
    EXPECT_EQ(none.opening + none.rest, QString());
}

TEST(SkillsCard, WithoutTimeSaysSoUnderItsHeading) {
    const auto card =
        reviewcards::skillsWithoutTime(week({worked("2026-03-10T09:00:00Z", 0)}), settings());
    EXPECT_EQ(card.kicker, QStringLiteral("TOP SKILL"));
    EXPECT_EQ(card.top.name, QStringLiteral("Nothing this week yet"));
    EXPECT_EQ(card.topFigure.value, QStringLiteral("0"));
    EXPECT_TRUE(card.others.empty());
}

TEST(MilestonesCard, RingGoesThroughTheHoursThatMadeTheMilestone) {
    // Ten hours long ago, and hundreds since: the ring of ten hours shows the ten.
    const std::vector<Session> log = {
        worked("2026-01-05T09:00:00Z", 5 * 60),
        worked("2026-03-09T01:00:00Z", 5 * 60, QStringLiteral("marketing")),
        worked("2026-03-10T01:00:00Z", 20 * 60, QStringLiteral("founder_ops"))};
    const auto card = reviewcards::milestones(week(log), settings()).value();
    ASSERT_FALSE(card.badges.empty());
    EXPECT_EQ(card.badges[0].hours, 10);
    QList<QColor> half(10, QColor::fromRgb(0x7A78FF));
    half += QList<QColor>(10, QColor::fromRgb(0xFF375F));
    EXPECT_EQ(card.badges[0].ring, half);
}

TEST(MilestonesCard, CountsWhatWasCrossedAndIsNotThereWithoutAny) {
    EXPECT_FALSE(reviewcards::milestones(week({worked("2026-03-10T09:00:00Z", 60)}), settings()));
    const auto one =
        reviewcards::milestones(week({worked("2026-03-09T01:00:00Z", 11 * 60)}), settings());
    ASSERT_TRUE(one);
    EXPECT_EQ(one->badges.size(), 1U);
    EXPECT_EQ(one->sentence, QStringLiteral("You crossed a milestone this week"));
}

TEST(ReviewWords, NamesAndNotesAreSpokenAsTheyStand) {
    EXPECT_EQ(
        (NoteHighlight{
             QStringLiteral("100%2 of %1"), QStringLiteral("%3"), {}, QStringLiteral("Mar 9")})
            .spoken(),
        QStringLiteral("100%2 of %1, %3, Mar 9"));
    SkillLine line;
    line.name = QStringLiteral("50%1");
    line.hours = QStringLiteral("2 h");
    line.share = QStringLiteral("20%");
    EXPECT_EQ(line.spoken(), QStringLiteral("50%1, 2 h, 20%"));
}

TEST(ReviewWords, SentencesAreReadFromTheLeftWhateverTheLanguageOfTheMonths) {
    WrappedSettings there = settings();
    there.calendar.locale = QStringLiteral("he_IL");
    Session session = worked("2026-03-10T09:00:00Z", 60);
    session.note = QStringLiteral("Drafted the landing page");
    const auto month = WrappedStats::compute({session}, WrappedPeriod::Month, there);
    const QString caption = reviewcards::rhythm(month, there, std::nullopt, 9).caption;
    EXPECT_TRUE(caption.contains(QStringLiteral("מרץ"))) << caption.toStdString();
    EXPECT_FALSE(caption.isRightToLeft()) << caption.toStdString();
    const QString date = reviewcards::notes(month, there, 4).value().highlights[0].date;
    EXPECT_FALSE((QStringLiteral("·  ") + date).isRightToLeft()) << date.toStdString();
}

} // namespace
} // namespace vantle

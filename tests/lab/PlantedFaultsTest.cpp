// Faults that are planted on purpose, each of which the checkers of the lab must find: a checker
// that nothing can trip proves nothing.
#include "lab/CrashedLife.h"
#include "lab/FaultyLife.h"
#include "support/QtPrinters.h"
#include "tracking/JsonForm.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <ostream>

namespace vantle::tests {
namespace {

using Kind = fakes::DiskChange::Kind;
using At = Sabotage::At;
using Effect = Sabotage::Effect;

constexpr auto kLog = "sessions.jsonl";
constexpr auto kMarker = "open-session.json";

/// More lives than any fault needs, all of them with data of this version.
constexpr std::uint32_t kMostLives = 40;
/// Few states of many lives show more than many states of few.
constexpr double kShare = 0.05;
constexpr std::size_t kMost = 3;

struct PlantedFault {
    const char* name;
    Sabotage sabotage;
    const char* promise; ///< the one that must be reported
    friend void PrintTo(const PlantedFault& fault, std::ostream* out) { *out << fault.name; }
};

QByteArray withoutFirstLine(const QByteArray& content) {
    return content.sliced(content.indexOf('\n') + 1);
}

QByteArray withLastLineTwice(const QByteArray& content) {
    return content + content.sliced(content.chopped(1).lastIndexOf('\n') + 1);
}

QByteArray withoutForeignLines(const QByteArray& content) {
    QByteArrayList lines = content.split('\n');
    lines.removeIf([](const QByteArray& line) { return line.startsWith("a line of another"); });
    return lines.join('\n');
}

QByteArray withoutLastLine(const QByteArray& content) {
    return content.first(content.chopped(std::min<qsizetype>(1, content.size())).lastIndexOf('\n') +
                         1);
}

/// A marker that tells of so many seconds more.
QByteArray withSeconds(const QByteArray& content, int seconds) {
    auto marker = json::decodeMarker(content);
    if (!marker) return content;
    marker->activeSeconds = std::max<std::int64_t>(marker->activeSeconds + seconds, 0);
    if (seconds > 0) marker->lastSeenAt += Seconds(seconds);
    return json::encode(*marker).value();
}

std::vector<PlantedFault> faults() {
    const auto less = [](const QByteArray& content) { return withSeconds(content, -90); };
    const auto more = [](const QByteArray& content) { return withSeconds(content, 300); };
    const auto halved = [](const QByteArray& content) { return content.first(content.size() / 2); };
    const auto otherSkill = [](const QByteArray& content) {
        return QByteArray(content).replace("building", "founder_ops");
    };
    const auto longer = [](const QByteArray& content) {
        return QByteArray(content).replace("\"activeSeconds\":", "\"activeSeconds\":9");
    };
    return {
        {"NoSyncOfTheLog", {Effect::Unsafe, Kind::SyncFile, kLog, {}}, "no record is lost"},
        {"NoSyncOfDirectories",
         {Effect::Unsafe, Kind::SyncDirectory, "", {}},
         "nothing comes back"},
        {"NoSyncOfTheMarker",
         {Effect::Unsafe, Kind::SyncFile, kMarker, {}},
         "the open session is kept"},
        {"NoSyncOfTheSkills",
         {Effect::Unsafe, Kind::SyncFile, "skills.json", {}},
         "the skills are the old or the new ones"},
        {"RulesOfNoTime",
         {Effect::Altered, Kind::Write, "auto-rules.json", otherSkill, At::Crash},
         "the rules are the old or the new ones"},
        {"NoSyncOfTheExport",
         {Effect::Unsafe, Kind::SyncFile, "review.png", {}},
         "the exported file is the old or the new one"},
        {"RecordWrittenTwice",
         {Effect::Altered, Kind::Write, kLog, withLastLineTwice},
         "a record is logged once"},
        {"RecordNotWritten",
         {Effect::Altered, Kind::Write, kLog, withoutLastLine},
         "every acknowledged record is in the log"},
        {"FirstRecordOverwritten",
         {Effect::Altered, Kind::Write, kLog, withoutFirstLine},
         "every acknowledged record is in the log"},
        {"SecondsInvented",
         {Effect::Altered, Kind::Write, kLog, longer},
         "a record counts what was worked"},
        {"ForeignLinesDropped",
         {Effect::Altered, Kind::Write, kLog, withoutForeignLines, At::Restart},
         "what others wrote stays"},
        {"LogCutAtTheStart",
         {Effect::Altered, Kind::Write, kLog, withoutFirstLine, At::Restart},
         "what is in the log stays"},
        {"NextRecordNotWritten",
         {Effect::Altered, Kind::Write, kLog, withoutLastLine, At::Restart},
         "the next session is logged"},
        {"MarkerBehind",
         {Effect::Altered, Kind::Write, kMarker, less},
         "all but the last minute is kept"},
        {"MarkerAhead", {Effect::Altered, Kind::Write, kMarker, more}, "nothing is added"},
        {"MarkerTorn", {Effect::Altered, Kind::Write, kMarker, halved}, "the open session is kept"},
        {"MarkerNotRemoved",
         {Effect::Undone, Kind::Leave, kMarker, {}, At::Restart},
         "an answered offer leaves no marker"},
        {"HalfWrittenFilesNotSwept",
         {Effect::Undone, Kind::Leave, ".tmp", {}, At::Restart},
         "half-written files are swept"},
    };
}

class PlantedFaultTest : public testing::TestWithParam<PlantedFault> {};

TEST_P(PlantedFaultTest, IsFound) {
    const PlantedFault& fault = GetParam();
    CrashedLife::Counts counts;
    QStringList others;
    bool isFound = false;
    const auto report = [&](const QStringList& broken, const QByteArray&) {
        for (const QString& promise : broken)
            isFound = isFound || promise.startsWith(QLatin1String(fault.promise));
        if (others.size() < 5) others += broken;
        return !isFound;
    };
    for (std::uint32_t life = 1; life <= kMostLives && !isFound; ++life)
        CrashedLife(life * ScriptedLife::kHomes, counts, report, fault.sabotage).run(kShare, kMost);
    EXPECT_TRUE(isFound) << "not reported: " << fault.promise << "\nbut after " << counts.states
                         << " states: " << others.join(QStringLiteral("; ")).toStdString();
}

INSTANTIATE_TEST_SUITE_P(Lab, PlantedFaultTest, testing::ValuesIn(faults()),
                         [](const auto& test) { return std::string(test.param.name); });

/// A fault for the checker of lives in which the file system fails.
struct PlantedError {
    using Fault = FaultyLife::Fault;

    const char* name;
    const char* promise; ///< the one that must be reported
    Sabotage sabotage;
    Fault fault{EIO, -1, 0, {}}; ///< one that the checker knows of
    /// Anything else; lasts as long as what it returns.
    std::function<TimerHandle(FaultyLife&)> plant = [](auto&) { return TimerHandle(); };
    ScriptedLife::Home home = ScriptedLife::Home::Used;
    friend void PrintTo(const PlantedError& error, std::ostream* out) { *out << error.name; }
};

/// The clock is set back by what passes, second for second.
TimerHandle stopClock(FaultyLife& life) {
    fakes::VirtualTime& time = life.life.world.time;
    return time.scheduleRepeatingTimer(Seconds(1), Seconds(0), [&time] { time.shiftWall(-1.0); });
}

/// Fails by itself, with other words than those of the error that the checker knows of.
TimerHandle failUnknown(FaultyLife& life) {
    life.life.world.files.fail(FaultyLife::Operation::Sync, QLatin1String(kLog), ENOSPC);
    return {};
}

/// Fails after everything was healed too.
TimerHandle failForGood(FaultyLife& life) {
    fakes::FaultyFileSystem& files = life.life.world.files;
    files.onCall = [&files](auto) {
        files.fail(FaultyLife::Operation::Sync, QLatin1String(kLog), EIO);
    };
    return {};
}

/// Empties the log that an upgrade had to leave behind.
TimerHandle emptyOldLog(FaultyLife& life) {
    life.onDeed = [&life](std::size_t deed) {
        if (deed + 1 == life.life.deeds().size())
            life.life.world.disk.setContent(
                QStringLiteral("/home/ada/.local/share/Hourfold/sessions.jsonl"), QByteArray());
    };
    return {};
}

std::vector<PlantedError> errors() {
    const auto otherName = [](const QByteArray& content) {
        return QByteArray(content).replace("Mine", "Ours").replace("Called", "Named");
    };
    const auto otherApplication = [](const QByteArray& content) {
        return QByteArray(content).replace("org.example.", "com.example.");
    };
    return {
        {"ClockStandsStill", "the clock goes on", {}, {EIO, -1, 0, {}}, stopClock},
        {"WordsOfAnotherError",
         "the text has the system's own words",
         {},
         {EIO, -1, 0, {}},
         failUnknown},
        {"TextStays", "the next success takes the text away", {}, {EIO, -1, 0, {}}, failForGood},
        {"RecordWrittenTwice",
         "a record is logged once",
         {Effect::Altered, Kind::Write, kLog, withLastLineTwice}},
        {"RecordNotWritten",
         "the log holds what was acknowledged",
         {Effect::Altered, Kind::Write, kLog, withoutLastLine}},
        {"OldLogEmptied",
         "an older log stays",
         {},
         {EACCES, 0, 0, FaultyLife::Operation::Rename},
         emptyOldLog,
         ScriptedLife::Home::Upgrade},
        {"SkillsAltered",
         "the skills in memory are those of the file",
         {Effect::Altered, Kind::Write, "skills.json", otherName}},
        {"RulesAltered",
         "the rules in memory are those of the file",
         {Effect::Altered, Kind::Write, "auto-rules.json", otherApplication}},
        {"HalfWrittenFileNotRemoved",
         "half-written files are removed",
         {Effect::Undone, Kind::Leave, ".tmp", {}},
         {ENOSPC, 0, 1, FaultyLife::Operation::Write}},
    };
}

class PlantedErrorTest : public testing::TestWithParam<PlantedError> {};

TEST_P(PlantedErrorTest, IsFound) {
    const PlantedError& error = GetParam();
    QStringList others;
    bool isFound = false;
    for (std::uint32_t number = 0; number < kMostLives && !isFound; ++number) {
        PlantedError::Fault fault = error.fault;
        // One that lasts for a deed is tried at each deed but the first, if that is not its own.
        if (fault.call == 0 && fault.deed > 0) fault.deed += number;
        std::optional<Saboteur> saboteur; // outlives the life
        const auto seed = std::uint32_t(number * ScriptedLife::kHomes + std::size_t(error.home));
        FaultyLife life(seed, fault);
        saboteur.emplace(error.sabotage, life.life.world.disk);
        life.life.world.disk.observe(
            [&](fakes::DiskChange change) { static_cast<void>(saboteur->pass(change)); });
        const TimerHandle lasting = error.plant(life);
        const QStringList broken = life.run();
        for (const QString& promise : broken)
            isFound = isFound || promise.startsWith(QLatin1String(error.promise));
        if (others.size() < 5) others += broken;
    }
    EXPECT_TRUE(isFound) << "not reported: " << error.promise
                         << "\nbut: " << others.join(QStringLiteral("; ")).toStdString();
}

INSTANTIATE_TEST_SUITE_P(Lab, PlantedErrorTest, testing::ValuesIn(errors()),
                         [](const auto& test) { return std::string(test.param.name); });

} // namespace
} // namespace vantle::tests

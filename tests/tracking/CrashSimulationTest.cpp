// The process dies, or the power fails, at every single call to the file system. After a fresh
// start nothing that was logged is lost, nothing is logged twice, and of the open session at most
// what its last marker did not know yet.
#include "tracking/Settings.h"
#include "tracking/TrackingWorld.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace vantle {
namespace {

using samples::line;
using samples::session;

/// How the world goes on after the death of the process. Without a value the machine keeps
/// running; else the power fails and so many bytes of an unsynced append reach the disk.
using PowerFailure = std::optional<qsizetype>;

const std::vector<PowerFailure> kFailures = {std::nullopt, 0, 1, 60, 186, 1'000'000};

/// One life of the program, told in steps between which it can be looked at.
using Story = std::vector<std::function<void(TrackingProcess&)>>;

/// A session with a pause in it, so long that markers are written by the clock too, and a second
/// one right after it.
Story twoSessions() {
    return {
        [](TrackingProcess& p) { p.paths.enforcePrivatePermissions(); },
        [](TrackingProcess& p) { p.tracker.start(samples::skill(QStringLiteral("building")), 5); },
        [](TrackingProcess& p) { p.time.advance(130); },
        [](TrackingProcess& p) { p.tracker.pause(p.time.now() - Seconds(20)); },
        [](TrackingProcess& p) { p.time.advance(50); },
        [](TrackingProcess& p) { p.tracker.resume(); },
        [](TrackingProcess& p) { p.time.advance(70); },
        [](TrackingProcess& p) { p.tracker.stop(); },
        [](TrackingProcess& p) { p.tracker.start(samples::skill(QStringLiteral("marketing")), 0); },
        [](TrackingProcess& p) { p.time.advance(70); },
        [](TrackingProcess& p) { p.tracker.stop(); },
    };
}

class CrashSimulation : public testing::Test {
protected:
    /// Puts on the disk what was there before the story; called again for each crash.
    std::function<void(fakes::MemoryFileSystem&)> prepare = [](fakes::MemoryFileSystem& disk) {
        disk.setContent(QStringLiteral("/data/Vantle/sessions.jsonl"), kOldLog);
    };

    /// Lets the story end at the n-th call, n = 1, 2, ... up to its last, and checks what a fresh
    /// start finds, for each way in which the world goes on.
    void dieEverywhere(const Story& story) {
        for (const PowerFailure& failure : kFailures) {
            for (int n = 1;; ++n) {
                Life life;
                prepare(life.disk);
                const bool died = live(story, n, life);
                if (failure) life.disk.crash(*failure);
                SCOPED_TRACE(testing::Message() << "death at call " << n << ", power failure "
                                                << failure.value_or(-1));
                checkFreshStart(life);
                if (HasFatalFailure() || HasNonfatalFailure() || !died) break;
            }
        }
    }

    static inline const QByteArray kOldLog = line(session(1)) + "garbage\n" + line(session(2));

private:
    struct Life {
        fakes::MemoryFileSystem disk;
        fakes::MemoryPreferences preferences;
        std::vector<Session> logged; ///< what `stop` has returned
        std::int64_t secured = 0;    ///< seconds of the open session that its marker on disk has
        std::int64_t worked = 0;     ///< seconds of the open session, the most it ever had
        Date deathAt;
    };

    /// False when the story was over before the n-th call.
    static bool live(const Story& story, int n, Life& life) {
        fakes::FaultyFileSystem files(life.disk);
        TrackingProcess process(files, life.preferences, samples::morning());
        std::optional<Session> ended;
        process.tracker.onSessionEnded = [&](const Session& session) { ended = session; };
        files.dieAtNthCall(n);
        bool died = false;
        for (auto step = story.begin(); step != story.end() && !died; ++step) {
            ended.reset();
            (*step)(process);
            process.time.settle();
            died = files.calls().size() >= std::size_t(n);
            observe(process.tracker, ended, died, life);
        }
        life.deathAt = process.time.now();
        process.queue.dropAll();
        return died;
    }

    static void observe(const TrackerCore& tracker, const std::optional<Session>& ended, bool died,
                        Life& life) {
        const std::int64_t count = ended ? ended->activeSeconds : tracker.displayActiveSeconds();
        life.worked = std::max(life.worked, count);
        // A pause goes back to the last input, so its marker may tell of less.
        if (tracker.state() == TrackerCore::State::Paused)
            life.secured = std::min(life.secured, count);
        if (died) return; // a call that has not returned has promised nothing
        const auto bytes = life.disk.contentOnDisk(QLatin1String(TrackingWorld::marker));
        const auto marker = bytes ? json::decodeMarker(*bytes) : std::nullopt;
        if (tracker.state() != TrackerCore::State::Idle && marker)
            life.secured = marker->activeSeconds;
        if (ended) {
            life.logged.push_back(*ended);
            life.secured = life.worked = 0;
        }
    }

    static void checkFreshStart(Life& life) {
        const QString logFile = QLatin1String(TrackingWorld::log);
        TrackingProcess process(life.disk, life.preferences, life.deathAt + Seconds(3600));
        process.paths.enforcePrivatePermissions();
        const QByteArray logBefore = life.disk.content(logFile).value_or(QByteArray());
        const bool torn = !logBefore.isEmpty() && !logBefore.endsWith('\n');
        const auto offered = process.tracker.takeOrphanedMarker();
        if (offered) {
            ASSERT_TRUE(process.tracker.recoverSession(*offered).has_value());
        }
        EXPECT_FALSE(life.disk.exists(QLatin1String(TrackingWorld::marker)));

        const QByteArray logAfter = life.disk.content(logFile).value_or(QByteArray());
        ASSERT_TRUE(logAfter.startsWith(logBefore)) << "what was in the log has changed";
        // Behind half a line the recovered record is in the file, but can't be read.
        const bool fused = torn && logAfter != logBefore;
        checkRecords(life, process.tracker.allSessions(), fused);
        if (!torn) checkThatWorkGoesOn(process);
    }

    static void checkRecords(const Life& life, const std::vector<Session>& sessions, bool fused) {
        std::vector<Session> unconfirmed;
        for (const Session& record : sessions) {
            EXPECT_EQ(std::ranges::count(sessions, record.id, &Session::id), 1) << "logged twice";
            const bool old = record.id == session(1).id || record.id == session(2).id;
            if (!old && !std::ranges::count(life.logged, record)) unconfirmed.push_back(record);
        }
        for (const Session& record : life.logged)
            EXPECT_EQ(std::ranges::count(sessions, record.id, &Session::id), 1) << "lost";
        ASSERT_LE(unconfirmed.size(), 1u);
        if (fused) {
            EXPECT_TRUE(unconfirmed.empty());
        } else if (life.secured >= 60) {
            ASSERT_EQ(unconfirmed.size(), 1u) << "a recoverable session is lost";
            EXPECT_GE(unconfirmed[0].activeSeconds, life.secured);
        }
        if (!unconfirmed.empty()) {
            EXPECT_LE(unconfirmed[0].activeSeconds, life.worked);
        }
    }

    static void checkThatWorkGoesOn(TrackingProcess& process) {
        const std::size_t before = process.tracker.allSessions().size();
        ASSERT_TRUE(
            process.tracker.start(samples::skill(QStringLiteral("building")), 0).has_value());
        process.time.advance(100);
        ASSERT_TRUE(process.tracker.stop().has_value());
        EXPECT_EQ(process.tracker.allSessions().size(), before + 1);
    }
};

TEST_F(CrashSimulation, ASessionOnALogThatIsThere) { dieEverywhere(twoSessions()); }

TEST_F(CrashSimulation, TheFirstSessionOfAnEmptyLog) {
    prepare = [](fakes::MemoryFileSystem& disk) {
        disk.setDirectory(QStringLiteral("/data/Vantle"), 0700);
    };
    dieEverywhere(twoSessions());
}

TEST_F(CrashSimulation, TheFirstSessionOfANewPerson) {
    prepare = [](fakes::MemoryFileSystem& disk) { disk.setDirectory(QStringLiteral("/data")); };
    dieEverywhere(twoSessions());
}

TEST_F(CrashSimulation, TheFirstSessionAfterTheDirectoryGotItsNewName) {
    prepare = [](fakes::MemoryFileSystem& disk) {
        disk.setContent(QStringLiteral("/data/Hourfold/sessions.jsonl"), kOldLog);
    };
    dieEverywhere(twoSessions());
}

TEST_F(CrashSimulation, TheRecoveryItself) {
    const OpenSessionMarker left = samples::marker();
    const PowerFailure dying[] = {std::nullopt, 0};
    for (const PowerFailure& failure : dying) {
        bool died = true;
        for (int n = 1; died; ++n) {
            SCOPED_TRACE(testing::Message() << "death at call " << n);
            fakes::MemoryFileSystem disk;
            fakes::MemoryPreferences preferences;
            disk.setContent(QStringLiteral("/data/Vantle/sessions.jsonl"), kOldLog);
            disk.setContent(QStringLiteral("/data/Vantle/open-session.json"),
                            json::encode(left).value());
            {
                fakes::FaultyFileSystem files(disk);
                TrackingProcess process(files, preferences, samples::morning());
                files.dieAtNthCall(n);
                if (const auto marker = process.tracker.takeOrphanedMarker())
                    process.tracker.recoverSession(*marker);
                died = files.calls().size() >= std::size_t(n);
            }
            if (failure) disk.crash(*failure);
            // Half a line that only the death of the process has left behind is told elsewhere.
            const QByteArray log = *disk.content(QStringLiteral("/data/Vantle/sessions.jsonl"));
            if (!log.endsWith('\n')) continue;

            TrackingProcess next(disk, preferences, samples::morning() + Seconds(7200));
            if (const auto marker = next.tracker.takeOrphanedMarker()) {
                ASSERT_TRUE(next.tracker.recoverSession(*marker).has_value());
            }
            const auto sessions = next.tracker.allSessions();
            EXPECT_EQ(sessions.size(), 3u);
            EXPECT_EQ(std::ranges::count(sessions, left.id, &Session::id), 1);
        }
    }
}

/// Runs `change` on a log of old records with a death at every call, and checks that the log is
/// wholly the old or wholly the new one.
void expectOldOrNew(const QByteArray& after, const std::function<bool(TrackerCore&)>& change) {
    const QByteArray before = line(session(1)) + "garbage\n" + line(session(2));
    const QString path = QStringLiteral("/data/Vantle/sessions.jsonl");
    bool died = true;
    for (int n = 1; died; ++n) {
        for (const bool power : {false, true}) {
            SCOPED_TRACE(testing::Message() << "death at call " << n << ", power " << power);
            fakes::MemoryFileSystem disk;
            fakes::MemoryPreferences preferences;
            disk.setContent(path, before);
            fakes::FaultyFileSystem files(disk);
            TrackingProcess process(files, preferences, samples::morning());
            files.dieAtNthCall(n);
            const bool done = change(process.tracker);
            died = files.calls().size() >= std::size_t(n);
            if (power) disk.crash();
            EXPECT_TRUE(disk.content(path) == before || disk.content(path) == after);
            if (done && !died) {
                EXPECT_EQ(disk.content(path), after);
            }
        }
    }
}

TEST(CrashInARewrite, LeavesTheOldLogOrTheNewOne) {
    Session changed = session(2);
    changed.note = QStringLiteral("new");
    expectOldOrNew(line(session(1)) + "garbage\n" + line(changed), [](TrackerCore& tracker) {
        return tracker.updateNote(samples::id(2), QStringLiteral("new"));
    });
    expectOldOrNew("garbage\n" + line(session(2)),
                   [](TrackerCore& tracker) { return tracker.deleteSession(samples::id(1)); });
}

TEST(CrashAfterADeletion, DoesNotBringTheOnlyRecordBack) {
    TrackingWorld world;
    world.put(TrackingWorld::log, line(session(1)));
    ASSERT_TRUE(world.tracker.deleteSession(samples::id(1)));
    world.disk.crash();
    EXPECT_EQ(world.content(TrackingWorld::log), std::nullopt);
}

TEST(CrashAfterADiscard, DoesNotOfferTheSessionAgain) {
    TrackingWorld world;
    world.put(TrackingWorld::marker, json::encode(samples::marker()).value());
    const auto offered = world.tracker.takeOrphanedMarker();
    ASSERT_TRUE(offered);
    world.tracker.discardRecovery(*offered);
    world.disk.crash();
    EXPECT_EQ(world.content(TrackingWorld::marker), std::nullopt);
}

TEST(CrashInAChangeOfSkills, LeavesTheOldListOrTheNewOne) {
    const QString path = QStringLiteral("/data/Vantle/skills.json");
    const std::vector<Skill> before = samples::seeds();
    std::vector<Skill> after = before;
    after.push_back({QStringLiteral("mine"), QStringLiteral("Mine"), 7, false});
    bool died = true;
    for (int n = 1; died; ++n) {
        fakes::MemoryFileSystem disk;
        fakes::MemoryPreferences preferences;
        settings::skillsMigrationVersion.write(preferences, 1);
        disk.setContent(path, json::encode(before));
        fakes::FaultyFileSystem files(disk);
        TrackingProcess process(files, preferences, samples::morning());
        ASSERT_EQ(process.skills.all(), before);
        files.forgetCalls();
        files.dieAtNthCall(n);
        process.skills.addCustom(QStringLiteral("Mine"), 7);
        died = files.calls().size() >= std::size_t(n);
        disk.crash();
        TrackingProcess next(disk, preferences, samples::morning());
        EXPECT_THAT(next.skills.all(), testing::AnyOf(before, after)) << "death at call " << n;
    }
}

} // namespace
} // namespace vantle

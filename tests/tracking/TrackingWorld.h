// The program's tracking classes on a disk in memory.
#pragma once

#include "fakes/FaultyFileSystem.h"
#include "fakes/MemoryFileSystem.h"
#include "fakes/MemoryPreferences.h"
#include "fakes/VirtualTime.h"
#include "tracking/AppPaths.h"
#include "tracking/NotificationCenter.h"
#include "tracking/Samples.h"
#include "tracking/SkillList.h"
#include "tracking/TrackerCore.h"

#include <QStringList>

namespace vantle {

/// Confirms up to that many minutes, and records the questions.
class FakeEvidence final : public ActivityEvidence {
public:
    bool wasActiveForLast(int minutes) override {
        asked.push_back(minutes);
        return minutes <= activeMinutes;
    }
    int activeMinutes = 1'000'000;
    std::vector<int> asked;
};

/// One run of the program, which a crash ends. Disk and preferences outlive it.
struct TrackingProcess {
    TrackingProcess(FileSystem& fileSystem, Preferences& preferences, Date now)
        : time(now)
        , paths(fileSystem, QStringLiteral("/data"))
        , skills(paths, queue, preferences)
        , tracker({time, time, queue, paths, preferences, skills, notifications}) {
        time.attach(queue);
        tracker.setIdleMonitor(&evidence);
    }

    fakes::ManualQueue queue;
    fakes::VirtualTime time;
    AppPaths paths;
    SkillList skills;
    NotificationCenter notifications;
    FakeEvidence evidence;
    TrackerCore tracker;
};

/// A world with one process.
struct TrackingWorld {
    TrackingWorld() { disk.setDirectory(QStringLiteral("/data/Vantle"), 0700); }

    static constexpr const char* log = "/data/Vantle/sessions.jsonl";
    static constexpr const char* marker = "/data/Vantle/open-session.json";
    static constexpr const char* skillsFile = "/data/Vantle/skills.json";

    void put(const char* path, const QByteArray& bytes, int mode = 0600) {
        disk.setContent(QString::fromLatin1(path), bytes, mode);
    }
    [[nodiscard]] std::optional<QByteArray> content(const char* path) const {
        return disk.content(QString::fromLatin1(path));
    }
    [[nodiscard]] int mode(const char* path) {
        return disk.mode(QString::fromLatin1(path)).value();
    }
    /// The files that no operation may leave behind.
    [[nodiscard]] QStringList temporaryFiles() const {
        return disk.paths().filter(QStringLiteral(".tmp"));
    }

    fakes::MemoryFileSystem disk;
    fakes::FaultyFileSystem files{disk};
    fakes::MemoryPreferences preferences;
    TrackingProcess process{files, preferences, samples::morning()};

    // Shortcuts to parts of the process.
    fakes::VirtualTime& time = process.time;
    AppPaths& paths = process.paths;
    TrackerCore& tracker = process.tracker;
    SkillList& skills = process.skills;
    FakeEvidence& evidence = process.evidence;
};

} // namespace vantle

// The real tracker over a directory on a real disk.
#pragma once

#include "app/AppModel.h"
#include "base/Clock.h"
#include "base/Scheduler.h"
#include "base/SerialQueue.h"
#include "fakes/FakeFrontmostApp.h"
#include "fakes/FakeHotKeyPort.h"
#include "fakes/FakeProcessRunner.h"
#include "fakes/FakeReducedMotion.h"
#include "fakes/FakeScreenPower.h"
#include "platform/CannotTell.h"
#include "platform/posix/PosixFileSystem.h"
#include "platform/posix/SettingsPreferences.h"
#include "sensing/AutoSkillMonitor.h"
#include "sensing/FocusLink.h"
#include "tracking/AppPaths.h"
#include "tracking/NotificationCenter.h"
#include "tracking/SkillList.h"
#include "tracking/TrackerCore.h"

#include <QTemporaryDir>

namespace vantle::bench {

/// All services of the program, with a log of `count` sample records. The directory is below the
/// current one and is removed with this object.
class Workshop {
public:
    explicit Workshop(int count);

    [[nodiscard]] TrackerCore& tracker() { return m_tracker; }
    [[nodiscard]] SkillList& skills() { return m_skills; }
    [[nodiscard]] NotificationCenter& notifications() { return m_notifications; }
    [[nodiscard]] Preferences& preferences() { return m_preferences; }
    [[nodiscard]] const Clock& clock() const { return m_clock; }
    [[nodiscard]] Scheduler& scheduler() { return m_scheduler; }
    [[nodiscard]] const AppPaths& paths() const { return m_paths; }
    [[nodiscard]] QString log() const { return m_paths.sessionsFile(); }
    /// Makes a model over them, on fake ports and without surfaces.
    [[nodiscard]] std::unique_ptr<AppModel> makeModel(std::function<Calendar()> calendar);
    /// A file beside the log, for the bound.
    [[nodiscard]] QString file(const QString& name) const {
        return m_paths.supportDir() + QLatin1Char('/') + name;
    }

private:
    QTemporaryDir m_directory;
    PosixFileSystem m_files;
    AppPaths m_paths;
    SystemClock m_clock;
    QtScheduler m_scheduler;
    ThreadQueue m_queue{QStringLiteral("bench-io")};
    SettingsPreferences m_preferences;
    SkillList m_skills;
    NotificationCenter m_notifications;
    TrackerCore m_tracker;
    NoIdleSource m_idleSource;
    fakes::FakeScreenPower m_screenPower;
    fakes::FakeHotKeyPort m_hotKeyPort;
    fakes::FakeReducedMotion m_reducedMotion;
    TopRightCardSlot m_cardSlot;
    fakes::FakeFrontmostApp m_frontmost;
    AutoSkillMonitor m_autoSkill{{m_clock, m_scheduler, m_queue, m_paths, m_preferences, m_skills,
                                  m_frontmost, m_idleSource, QString()}};
    fakes::FakeProcessRunner m_runner;
    FocusLink m_focusLink{m_preferences, m_runner, QString()};
};

} // namespace vantle::bench

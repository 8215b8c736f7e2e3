// The whole application model on a virtual disk, clock and desktop.
#pragma once

#include "app/AppModel.h"
#include "fakes/FakeFrontmostApp.h"
#include "fakes/FakeHotKeyPort.h"
#include "fakes/FakeIdleSource.h"
#include "fakes/FakeProcessRunner.h"
#include "fakes/FakeReducedMotion.h"
#include "fakes/FakeScreenPower.h"
#include "fakes/FaultyFileSystem.h"
#include "fakes/MemoryFileSystem.h"
#include "fakes/MemoryPreferences.h"
#include "fakes/VirtualTime.h"
#include "sensing/AutoSkillMonitor.h"
#include "sensing/FocusLink.h"
#include "support/QtPrinters.h"
#include "tracking/AppPaths.h"
#include "tracking/NotificationCenter.h"
#include "tracking/Settings.h"
#include "tracking/SkillList.h"

#include <QStringList>

#include <memory>

namespace vantle::tests {

/// What the model told its surfaces, one line per call, with the last callbacks.
struct Told {
    QStringList calls;
    std::function<void()> notchStop;
    std::function<void(const QString&)> notchPick;
    std::function<void()> idleStart;
    std::function<void(const QString&)> idlePick;
    collaborators::SkillEditCallbacks edit;
    std::optional<collaborators::StopSummary::Content> summary;
    std::function<void(const std::optional<QString>&)> closeSummary;
    std::function<void()> recoveryDiscard;
    std::function<void()> recoveryKeep;
    std::function<void(const collaborators::TagPrompt::Outcome&)> resolveTag;
    std::function<void(bool)> resolveCorrection;
    bool promptsTaken = true; ///< whether cards may show prompts
    int notesForgotten = 0;   ///< how often the summary had to drop what was typed into it

    [[nodiscard]] int count(const QString& call) const {
        return static_cast<int>(calls.count(call));
    }
    [[nodiscard]] bool has(const QString& call) const { return calls.contains(call); }
};

/// Surfaces that record calls.
[[nodiscard]] Collaborators recordingCollaborators(Told& told);

class ModelWorld {
public:
    ModelWorld();
    /// On that file system in place of `disk`, which stays empty. It must outlive the world.
    explicit ModelWorld(FileSystem& other);
    ~ModelWorld();

    /// Starts the program on the disk as it is now.
    AppModel& launch();
    /// Starts the program as far as its first turn of the event loop.
    void construct();
    /// Kills the program: queued work is lost.
    void kill();
    /// Runs work posted to the main loop.
    void settle() { time.settle(); }

    void press() {
        hotKeyPort.press();
        settle();
    }
    /// The user brings the application to the front and works in it for that time.
    void workIn(const Application& application, double seconds);
    /// Links a shortcut to each end of a session; `told` has "focus started" and "focus ended".
    void linkShortcuts();
    /// Makes every write of the file fail or work again, temporary files included.
    void breakWrites(const QString& fileName, bool broken);

    [[nodiscard]] std::vector<Session> log();
    [[nodiscard]] bool hasMarker() const;
    [[nodiscard]] QString note() const;
    [[nodiscard]] static QString file(const char* name);

    fakes::VirtualTime time;
    fakes::ManualQueue ioQueue;
    fakes::ManualQueue autoQueue; ///< for auto mode's file
    fakes::MemoryFileSystem disk;
    FileSystem& storage; ///< what the program's files are on: `disk` or the other one
    fakes::FaultyFileSystem files{storage};
    fakes::MemoryPreferences preferences;
    fakes::FakeIdleSource idleSource{time};
    fakes::FakeScreenPower screens;
    fakes::FakeHotKeyPort hotKeyPort;
    fakes::FakeReducedMotion reducedMotion;
    fakes::FakeFrontmostApp frontmost;
    fakes::FakeProcessRunner runner;
    FocusLink focusLink{preferences, runner, QStringLiteral("/opt/vantle-shortcuts")};
    NotificationCenter notifications;
    TopRightCardSlot cardSlot;
    AppPaths paths{files, QStringLiteral("/home/ada/.local/share")};
    Told told;
    int terminations = 0;
    Calendar calendar{QStringLiteral("UTC"), 2, 4};

    std::unique_ptr<SkillList> skills;
    std::unique_ptr<AutoSkillMonitor> autoSkill;
    std::unique_ptr<AppModel> model;
};

} // namespace vantle::tests

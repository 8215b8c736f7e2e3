// The whole application model on a disk, a clock and a desktop of its own.
#pragma once

#include "app/AppModel.h"
#include "app/PreferenceKeys.h"
#include "fakes/FakeFrontmostApp.h"
#include "fakes/FakeHotKeyPort.h"
#include "fakes/FakeIdleSource.h"
#include "fakes/FakeReducedMotion.h"
#include "fakes/FakeScreenPower.h"
#include "fakes/FaultyFileSystem.h"
#include "fakes/MemoryFileSystem.h"
#include "fakes/MemoryPreferences.h"
#include "fakes/VirtualTime.h"
#include "support/QtPrinters.h"
#include "tracking/AppPaths.h"
#include "tracking/NotificationCenter.h"
#include "tracking/SkillList.h"

#include <QStringList>

#include <memory>

namespace vantle::tests {

/// What the model told its surfaces, a line a call, with the last callbacks at hand.
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
    collaborators::AutoSkill::Hooks hooks;
    std::function<void()> onAutoDrain; ///< stands for a write of auto mode that is still queued
    bool promptsTaken = true;          ///< whether the corner is free for prompts
    std::optional<Application> correctionApp;
    std::optional<QString> correctionRuling;
    bool mayOfferCorrection = true;

    [[nodiscard]] int count(const QString& call) const {
        return static_cast<int>(calls.count(call));
    }
    [[nodiscard]] bool has(const QString& call) const { return calls.contains(call); }
};

/// Surfaces that only write down what they are told.
[[nodiscard]] Collaborators recordingCollaborators(Told& told);

class ModelWorld {
public:
    ModelWorld();
    ~ModelWorld();

    /// Starts the program: a model and all below it, on the disk as it is now.
    AppModel& launch();
    /// The program dies: what is queued is lost, the model is gone.
    void kill();
    /// Runs what the model has put off to the next turn of the main loop.
    void settle() { time.settle(); }

    void press() {
        hotKeyPort.press();
        settle();
    }
    /// Fails or heals every write of the file, new files beside it included.
    void breakWrites(const QString& fileName, bool broken);

    [[nodiscard]] std::vector<Session> log();
    [[nodiscard]] bool hasMarker() const;
    [[nodiscard]] QString note() const;
    [[nodiscard]] static QString file(const char* name);

    fakes::VirtualTime time;
    fakes::ManualQueue ioQueue;
    fakes::MemoryFileSystem disk;
    fakes::FaultyFileSystem files{disk};
    fakes::MemoryPreferences preferences;
    fakes::FakeIdleSource idleSource{time};
    fakes::FakeScreenPower screens;
    fakes::FakeHotKeyPort hotKeyPort;
    fakes::FakeReducedMotion reducedMotion;
    fakes::FakeFrontmostApp frontmost;
    NotificationCenter notifications;
    TopRightCardSlot cardSlot;
    AppPaths paths{files, QStringLiteral("/home/ada/.local/share")};
    Told told;
    int terminations = 0;
    /// Puts something else in the place of collaborators that only write down, at each launch.
    std::function<void(Collaborators&)> furnish;

    std::unique_ptr<SkillList> skills;
    std::unique_ptr<AppModel> model;
};

} // namespace vantle::tests

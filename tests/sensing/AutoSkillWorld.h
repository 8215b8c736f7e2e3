// Auto mode with a session and desktop under the test's control.
#pragma once

#include "sensing/AutoSkillMonitor.h"
#include "sensing/AutoWorld.h"
#include "tracking/Settings.h"

#include <string>
#include <utility>
#include <vector>

namespace vantle {

struct AutoSkillWorld : AutoWorld {
    using State = TrackerCore::State;

    AutoSkillWorld() {
        source.fix(0);
        monitor->sessionState = [this] { return state; };
        monitor->sessionSkillId = [this] { return skillId; };
        monitor->sessionBundleId = [this] { return bundleId; };
        monitor->onRetagSuggested = [this](const QString& skill) {
            calls.push_back("retag " + skill.toStdString());
        };
        monitor->onAutoStart = [this](const QString& skill) {
            calls.push_back("start " + skill.toStdString());
        };
        monitor->onTagPromptSuggested = [this](const QString& id, const QString& name) {
            calls.push_back("ask " + id.toStdString() + ' ' + name.toStdString());
        };
    }

    /// Returns and clears the suggestions.
    std::vector<std::string> takeCalls() { return std::exchange(calls, {}); }

    void beRunning(const char* skill) {
        state = State::Running;
        skillId = text(skill);
    }
    void set(const Preference<bool>& preference, bool value) {
        preference.write(preferences, value);
        time.settle();
    }
    void turnOnAutoStart() { set(settings::autoStart, true); }
    void start() { monitor->refreshFromDefaults(); }
    void activate(const Application& app) { frontmost.activate(app); }

    const Application xcode{text("com.apple.dt.Xcode"), text("Xcode")};
    const Application figma{text("com.figma.Desktop"), text("Figma")};
    const Application slack{text("com.tinyspeck.slackmacgap"), text("Slack")};
    const Application finder{text("org.files"), text("Files")};
    const Application viewer{text("org.viewer"), text("Viewer")};
    const Application safari{text("com.apple.Safari"), text("Safari")};
    const Application own{text("local.vantle.Vantle"), text("Vantle")};

    fakes::MemoryPreferences preferences;
    fakes::FakeFrontmostApp frontmost;
    fakes::FakeIdleSource source{time};
    State state = State::Idle;
    std::optional<QString> skillId;
    std::optional<QString> bundleId;
    std::vector<std::string> calls;
    std::optional<AutoSkillMonitor> monitor{
        std::in_place, AutoSkillMonitor::Environment{time, time, queue, paths, preferences, *skills,
                                                     frontmost, source, own.bundleId}};
};

} // namespace vantle

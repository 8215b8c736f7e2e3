// Auto mode against random switches, sessions, answers and preferences.
#include "sensing/AutoSkillWorld.h"
#include "tracking/Settings.h"

#include <rapidcheck/gtest.h>

#include <set>

namespace vantle {
namespace {

/// A choice among all that `gen` has, from the first case on.
template <typename Value>
Value any(rc::Gen<Value> gen) {
    return *rc::gen::resize(rc::kNominalSize, std::move(gen));
}

/// The world, with what must hold at every moment of it.
class RandomLife : public AutoSkillWorld {
public:
    RandomLife() {
        monitor->onRetagSuggested = [this](const QString& skill) {
            ++retags;
            RC_ASSERT(state == State::Running);
            RC_ASSERT(skillId != skill);
            RC_ASSERT(time.timerClock() - lastSwitchAt <= 45.0);
            checkCause(skill);
            skillId = skill;
        };
        monitor->onAutoStart = [this](const QString& skill) {
            ++starts;
            RC_ASSERT(state == State::Idle);
            RC_ASSERT(settings::autoStart.read(preferences));
            RC_ASSERT(time.timerClock() - lastSwitchAt == 120.0);
            checkCause(skill);
            state = State::Running;
            skillId = skill;
        };
        monitor->onTagPromptSuggested = [this](const QString& id, const QString&) {
            ++prompts;
            RC_ASSERT(asked.insert(id).second);
            RC_ASSERT(time.timerClock() - lastSwitchAt == 90.0);
            RC_ASSERT(!monitor->rules().ruling(id));
            if (lastAnswerAt) RC_ASSERT(time.timerClock() - *lastAnswerAt >= 900.0);
        };
        start();
    }

    void step() {
        switch (any(rc::gen::inRange(0, 12))) {
        case 0:
        case 1:
        case 2:
            switchApplication();
            break;
        case 3:
            state = any(rc::gen::element(State::Idle, State::Running, State::Paused));
            skillId = state == State::Idle ? std::nullopt : std::optional(anySkill());
            break;
        case 4:
            set(settings::autoMode, any(rc::gen::weightedElement<bool>({{5, true}, {1, false}})));
            // Switched on, it takes what is in front for just activated.
            if (!wasRunning && monitor->isRunning()) lastSwitchAt = time.timerClock();
            break;
        case 5:
            set(settings::autoStart, any(rc::gen::arbitrary<bool>()));
            break;
        case 6:
            answer();
            break;
        case 7:
            monitor->rules().setRule(
                anyApplication().bundleId,
                any(rc::gen::element(std::optional(anySkill()), std::optional(text("ignore")),
                                     std::optional<QString>())));
            break;
        default:
            time.advance(any(rc::gen::element(0.125, 10.0, 20.0, 45.0, 90.0, 120.0, 900.0)));
        }
        wasRunning = monitor->isRunning();
        RC_ASSERT(time.timerCount() <= (wasRunning ? 1u : 0u));
        checkMemory();
    }

    int retags = 0;
    int starts = 0;
    int prompts = 0;
    std::set<QString> asked; ///< or answered about

private:
    Application anyApplication() {
        return any(rc::gen::element(xcode, figma, slack, finder, viewer, safari, own));
    }
    QString anySkill() {
        return any(rc::gen::element(text("building"), text("marketing"), text("connections")));
    }
    void switchApplication() {
        activate(anyApplication());
        lastSwitchAt = time.timerClock();
    }
    void answer() {
        const QString id = anyApplication().bundleId;
        monitor->noteTagPromptResolved(id);
        asked.insert(id);
        lastAnswerAt = time.timerClock();
    }
    void checkCause(const QString& skill) {
        RC_ASSERT(monitor->isRunning());
        RC_ASSERT(monitor->rules().ruling(frontmost.application->bundleId) == skill);
        RC_ASSERT(frontmost.application != own);
    }
    void checkMemory() {
        const AutoRules& rules = monitor->rules();
        for (const QString& id : rules.automaticRuleBundleIds())
            RC_ASSERT(rules.rules().contains(id));
        RC_ASSERT(rules.seenApps().size() <= 40u);
        RC_ASSERT(stored().rules == rules.rules());
        RC_ASSERT(stored().automaticRuleBundleIds == rules.automaticRuleBundleIds());
    }

    double lastSwitchAt = 0;
    bool wasRunning = true;
    std::optional<double> lastAnswerAt;
};

RC_GTEST_PROP(AutoSkillProperties, WaitsForOneThingAtATimeAndAsksAboutNothingTwice, ()) {
    RandomLife life;
    const int steps = any(rc::gen::inRange(1, 80));
    for (int i = 0; i < steps; ++i)
        life.step();
    RC_CLASSIFY(life.retags > 0, "retag");
    RC_CLASSIFY(life.starts > 0, "start");
    RC_CLASSIFY(life.prompts > 0, "prompt");
}

} // namespace
} // namespace vantle

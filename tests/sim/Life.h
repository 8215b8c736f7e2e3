// Months of a user's days with the program, chosen by a seed.
#pragma once

#include "app/ModelWorld.h"
#include "sensing/AutoSkillMonitor.h"
#include "sim/Promises.h"

#include <functional>
#include <random>

namespace vantle::tests {

/// A machine, a user and the whole model with the real auto mode, on a disk in memory. Overnight
/// the machine sleeps, is switched off, loses power, or stays on.
class Life {
public:
    explicit Life(std::uint32_t seed);
    ~Life();
    Life(const Life&) = delete;
    Life& operator=(const Life&) = delete;

    /// Simulates a day and a night. Returns the promises broken at the first failing step; empty
    /// when none was.
    [[nodiscard]] QStringList day();

    /// The recent actions, latest last.
    [[nodiscard]] QString story() const { return m_story.join(QStringLiteral(", ")); }

    ModelWorld world;
    Promises promises{world};
    int sessionsByItself = 0; ///< started by auto mode
    int splits = 0;           ///< made by auto mode

    // Actions that tests of the promises use directly.
    void press();
    void work();
    void touch();
    void launch();
    /// Kills and restarts the program; `meanwhile` may change the disk. Returns the promises that
    /// this broke.
    [[nodiscard]] QStringList killAndReturn(const std::function<void()>& meanwhile = {});

private:
    struct Deed {
        const char* name;
        void (Life::*act)();
    };
    [[nodiscard]] QStringList perform(const Deed& deed);
    void night();

    void switchApplication();
    void beAway();
    void changeSkill();
    void lock();
    void lockAndSuspend();
    void suspend();
    void freeze();
    void loseCounter();
    void setClock();
    void breakDisk();
    void failOneOperation();
    void changePreferences();
    void changeTimeZone();
    void die();
    void answerOffer();
    void answerPrompt();
    void logByHand();
    void editLog();
    void writeGarbage();
    void quitAndReturn();
    void sleepThroughNight();
    void stayOn();
    void switchOff();
    void loseOffer();

    void end();
    void countSuggestions();
    void healDisk();
    [[nodiscard]] TrackerCore& tracker() { return world.model->tracker(); }
    [[nodiscard]] std::size_t pick(std::size_t count);
    [[nodiscard]] double seconds(double least, double most);

    std::mt19937 m_random;
    QStringList m_story;
    QStringList m_brokenByDeed; ///< promises about the action itself
    int m_garbageCount = 0;
};

} // namespace vantle::tests

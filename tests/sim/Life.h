// Months of a user's days with the program, chosen by a seed.
#pragma once

#include "app/ModelWorld.h"
#include "sensing/AutoSkillMonitor.h"
#include "sim/Promises.h"

#include <functional>
#include <random>

namespace vantle::tests {

/// A machine, a user and the whole model with the real auto mode, over a disk in memory. Days have
/// mornings and nights: the machine sleeps, is switched off, loses its power or is left on.
class Life {
public:
    explicit Life(std::uint32_t seed);
    ~Life();
    Life(const Life&) = delete;
    Life& operator=(const Life&) = delete;

    /// Lives one day and the night after it. Returns the promises that were broken, at the first
    /// step at which one was; empty when none was.
    [[nodiscard]] QStringList day();

    /// What was done last, the latest at the end.
    [[nodiscard]] QString story() const { return m_story.join(QStringLiteral(", ")); }

    ModelWorld world;
    Promises promises{world};
    int sessionsByItself = 0; ///< that auto mode started
    int splits = 0;           ///< that auto mode made

    // Deeds that tests of the promises call by themselves.
    void press();
    void work();
    void launch();
    /// Kills the program and starts it again; `meanwhile` does something to the disk in between.
    /// Returns what the kill broke.
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
    QStringList m_brokenByDeed; ///< promises about what a deed itself did
    int m_garbageCount = 0;
};

} // namespace vantle::tests

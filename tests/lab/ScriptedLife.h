// A life with the whole model in which every kind of change of the data happens, in an order that a
// seed chooses.
#pragma once

#include "app/ModelWorld.h"
#include "lab/Account.h"

#include <random>
#include <vector>

namespace vantle::tests {

class ScriptedLife {
public:
    /// What stands on the disk before the first launch.
    enum class Home {
        Used,    ///< data of this version, with lines of other programs in the log
        Empty,   ///< a support directory without a file
        New,     ///< the data home alone
        Nothing, ///< not even that
        Upgrade, ///< data of a version that used another directory name
    };
    static constexpr std::size_t kHomes = 5;
    /// Lives of as many seeds in a row begin with each.
    [[nodiscard]] static Home homeOf(std::uint32_t seed) { return Home(seed % kHomes); }

    struct Deed {
        const char* name;
        void (ScriptedLife::*act)();
    };

    /// Prepares the disk; `launch` is the first of the deeds. The same seed gives the same life
    /// down to the ids of its records.
    ScriptedLife(std::uint32_t seed, Home begins);
    /// On that file system in place of the one in memory.
    ScriptedLife(std::uint32_t seed, Home begins, FileSystem& storage);
    ~ScriptedLife();
    ScriptedLife(const ScriptedLife&) = delete;
    ScriptedLife& operator=(const ScriptedLife&) = delete;

    /// In the order in which they are to be performed.
    [[nodiscard]] const std::vector<Deed>& deeds() const { return m_deeds; }
    void perform(const Deed& deed);
    [[nodiscard]] static Deed logSomeTime() { return {"log by hand", &ScriptedLife::logByHand}; }

    /// A session that the user knows of: the open one, or the one that a kill left.
    struct OpenSession {
        qint64 start = 0;   ///< whole seconds since the epoch
        double counted = 0; ///< seconds
    };
    [[nodiscard]] std::optional<OpenSession> openSession() const;
    [[nodiscard]] bool isOpen() const;

    /// As they are now, by key.
    [[nodiscard]] QMap<QString, QString> preferences() const;

    /// What the program acknowledged, as the life itself counted it.
    struct Worked {
        qint64 start = 0;
        double seconds = 0;
        double tolerance = 0;
    };
    struct Acknowledged {
        int records = 0;           ///< all of them, those from before and by hand as well
        std::vector<Worked> ended; ///< the sessions among them
    };
    [[nodiscard]] const Acknowledged& acknowledged() const { return m_acknowledged; }
    /// Whether an older directory that could not be moved has its log byte for byte.
    [[nodiscard]] bool hasOldLog() const;

    ModelWorld world;
    const Home home;

private:
    void prepare(std::uint32_t seed);
    void prepareDisk();
    void chooseDeeds();
    void followSessions();
    void noteStart();
    void noteEnd();
    [[nodiscard]] std::size_t pick(std::size_t count);
    [[nodiscard]] QString noteText();
    /// The id of the session that the marker on the disk is of.
    [[nodiscard]] QString offeredId() const;
    [[nodiscard]] TrackerCore& tracker() const { return world.model->tracker(); }

    void launch();
    void start();
    void work();
    void beAway();
    void changeSkill();
    void stop();
    void logByHand();
    void editNote();
    void deleteRecord();
    void addSkill();
    void updateSkill();
    void deleteSkill();
    void setRule();
    void dropRule();
    void exportPicture();
    void quitAndReturn();
    void killAndAnswer();
    void erase();

    std::mt19937 m_random;
    std::vector<Deed> m_deeds;
    Acknowledged m_acknowledged;
    std::optional<OpenSession> m_offered; ///< after a kill, until it is answered
    std::optional<Worked> m_open;         ///< by the life's own clock
    QByteArray m_oldLog;                  ///< of an upgrade, as it was before
    bool m_isLeftBehind = false;
    bool m_isErasing = false;
    int m_skillsMade = 0;
};

} // namespace vantle::tests

// The commands about skills, with the change of skill during a session.
#pragma once

#include <QString>

#include <cstdint>
#include <functional>

namespace vantle {

class ActionNote;
class AutoSkillMonitor;
class SessionFlow;
class SessionSurfaces;
class SkillList;

/// Every command clears the note and ends with what became of it there. Main thread.
class SkillCommands {
public:
    /// Who chose a skill.
    enum class Origin { Human, Auto };

    /// All of it must outlive this object.
    struct Environment {
        SkillList& list;
        AutoSkillMonitor& autoSkill;
        ActionNote& note;
        SessionFlow& flow;
        SessionSurfaces& surfaces;
    };
    explicit SkillCommands(const Environment& environment) : m_env(environment) {}

    /// Reads the list for the first time, and the choice of the last run.
    void load();
    /// Brings the list of a new user back, after the erase of all data, and chooses its first
    /// skill.
    void resetAfterErase();

    /// Chooses the skill. During a session under another one this splits it into two records; when
    /// the first can't be saved the choice is taken back.
    void select(const QString& id, Origin origin);
    void add(const QString& name, std::uint32_t hexRGB);
    // By value: the caller's id may stand in the list that these replace.
    void update(QString id, const QString& name, std::uint32_t hexRGB);
    void remove(QString id);

    /// The user has split the session onto that skill. Called before the saved time is shown. Set
    /// once by the owner, which it must hold weakly.
    std::function<void(const QString& chosenSkillId)> onSplitByHand;

private:
    void split(const QString& id, Origin origin, const QString& previousId);
    /// Returns whether the file of skills could not be read, which refuses every change to them.
    bool reportUnreadable();

    const Environment m_env;
};

} // namespace vantle

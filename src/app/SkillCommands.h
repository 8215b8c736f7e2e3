// The commands on skills, including a change of skill during a session.
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

/// Each command clears the note first and shows its own failure there. Main thread.
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

    /// Loads the list and the choice of the last run.
    void load();
    /// Loads the list of a new user, after the erase of all data, and selects its first skill.
    void resetAfterErase();

    /// Selects the skill. During a session under another skill this splits the session into two
    /// records; when the first cannot be saved, the selection is reverted.
    void select(const QString& id, Origin origin);
    void add(const QString& name, std::uint32_t hexRGB);
    // `id` by value: the caller may pass a reference into the list that this call replaces.
    void update(QString id, const QString& name, std::uint32_t hexRGB);
    void remove(QString id);

    /// Called when the user split the session onto the skill, before the saved time is shown. Set
    /// once by the owner; it must hold the owner weakly.
    std::function<void(const QString& chosenSkillId)> onSplitByHand;

private:
    void split(const QString& id, Origin origin, const QString& previousId);
    /// Shows the read error of the skills file, if any. Returns true then: every change is refused.
    bool reportUnreadable();

    const Environment m_env;
};

} // namespace vantle

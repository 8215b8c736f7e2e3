// The commands about skills, with the change of skill during a session.
#pragma once

#include "tracking/Skill.h"

#include <QObject>

#include <functional>
#include <vector>

namespace vantle {

class ActionNote;
class AutoSkillMonitor;
class SessionFlow;
class SessionSurfaces;
class SkillList;

/// Every command clears the note and ends with what became of it there. Main thread.
class SkillCommands final : public QObject {
    Q_OBJECT

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
    /// Takes the list as the erase of all data left it, and chooses its first skill.
    void reloadAfterErase();

    /// The skills in the user's order; never empty after load().
    [[nodiscard]] const std::vector<Skill>& all() const { return m_all; }

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

Q_SIGNALS:
    void changed();

private:
    void split(const QString& id, Origin origin, const QString& previousId);
    void publish();
    /// Returns whether the file of skills could not be read, which refuses every change to them.
    bool reportUnreadable();

    const Environment m_env;
    std::vector<Skill> m_all; ///< mirror of the list, for surfaces
};

} // namespace vantle

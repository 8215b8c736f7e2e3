// The person's list of skills: in memory, in "skills.json", and the rules for changing it.
#pragma once

#include "base/Result.h"
#include "tracking/Skill.h"

#include <QObject>

#include <optional>
#include <vector>

namespace vantle {

class AppPaths;
class Preferences;
class SerialQueue;

/// The process-wide list, in the order in which skills are shown; never empty. Read from the file
/// on first use, and from then on changed only here, so that memory and file agree; a change that
/// can't be saved is rolled back. A file that is there but can't be read is left as it is: the list
/// is that of a new user then, and every change is refused, since saving it would replace skills
/// that were never read. No operation has words of its own: the caller finds them.
///
/// Main thread. File work runs on the I/O queue, and the calls that need it wait for it.
class SkillList final : public QObject {
    Q_OBJECT

public:
    /// All three must outlive the list.
    SkillList(const AppPaths& paths, SerialQueue& ioQueue, Preferences& preferences);

    /// The version that the one migration of the seed skills leaves in the preferences.
    static constexpr int currentMigrationVersion = 1;

    [[nodiscard]] const std::vector<Skill>& all();

    /// Why the file could not be read; empty when it could, or is missing.
    [[nodiscard]] const std::optional<Error>& readError();

    /// The skill with that id, or none.
    [[nodiscard]] std::optional<Skill> find(const QString& id);
    [[nodiscard]] bool contains(const QString& id) { return find(id).has_value(); }

    /// A skill to work with: the one with that id, else the first.
    [[nodiscard]] Skill by(const QString& id);

    /// A skill to show that may no longer exist: the one with that id, else its seed, else a grey
    /// one named after the id. Never changes the list.
    [[nodiscard]] Skill display(const QString& id);

    /// The same over any list; a pure function.
    [[nodiscard]] static Skill display(const QString& id, const std::vector<Skill>& skills);

    /// Adds a skill. Empty when the name is not 1 to 20 characters or already taken, when there
    /// are eight, or when it can't be saved.
    std::optional<Skill> addCustom(const QString& name, std::uint32_t hexRGB);

    /// Renames and recolours; the id stays. Empty, and nothing changed, on a bad or taken name, an
    /// unknown id, or when it can't be saved.
    std::optional<Skill> update(const QString& id, const QString& name, std::uint32_t hexRGB);

    /// Removes a skill. False for the last one, an unknown one, or when it can't be saved.
    bool remove(const QString& id);

    /// The list of a new person, after all data was erased. Writes no file.
    void resetAfterErase();

Q_SIGNALS:
    /// A skill was added, changed or removed, or the list is that of a new user again. Emitted once
    /// the change is saved.
    void changed();

private:
    std::vector<Skill> loadSkills();
    bool saveSkills(const std::vector<Skill>& skills);
    void migrate(std::vector<Skill>& skills);
    [[nodiscard]] bool isTaken(const QString& name, const QString& exceptId);
    [[nodiscard]] QString freeIdFor(const QString& cleanedName);

    const AppPaths& m_paths;
    SerialQueue& m_ioQueue;
    Preferences& m_preferences;
    std::optional<std::vector<Skill>> m_all; ///< empty until first used
    std::optional<Error> m_readError;
};

} // namespace vantle

// The user's skills, with their file and the rules for changes.
//
// The file is "skills.json".
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

/// The process-wide list, in display order, never empty. Loaded on first use and changed only here;
/// a change that cannot be saved is rolled back, so memory and file agree. With an unreadable file
/// the list is that of a new user and every change is refused, since saving would replace skills
/// that were never read. Errors carry no text for the user: the caller chooses it.
///
/// Main thread. File work runs on the I/O queue; calls that need it wait for it.
class SkillList final : public QObject {
    Q_OBJECT

public:
    /// All three must outlive the list.
    SkillList(const AppPaths& paths, SerialQueue& ioQueue, Preferences& preferences);

    /// The version that the migration of the seed skills stores in the preferences.
    static constexpr int currentMigrationVersion = 1;

    [[nodiscard]] const std::vector<Skill>& all();

    /// Why the file could not be read; empty when it was, or is missing.
    [[nodiscard]] const std::optional<Error>& readError();

    /// Returns the skill with that id; empty when there is none.
    [[nodiscard]] std::optional<Skill> find(const QString& id);
    [[nodiscard]] bool contains(const QString& id) { return find(id).has_value(); }

    /// Returns the skill with that id, else the first: a skill to work with.
    [[nodiscard]] Skill by(const QString& id);

    /// Returns the skill with that id, else its seed, else a grey one named after the id: a skill
    /// to show. Does not change the list.
    [[nodiscard]] Skill display(const QString& id);

    /// The same for any list; a pure function.
    [[nodiscard]] static Skill display(const QString& id, const std::vector<Skill>& skills);

    /// Adds a skill. Empty when the name is not 1 to 20 characters or is taken, when there are
    /// eight skills, or when saving fails.
    std::optional<Skill> addCustom(const QString& name, std::uint32_t hexRGB);

    /// Renames and recolours; keeps the id. Empty, without a change, for an invalid or taken name,
    /// an unknown id, or when saving fails.
    std::optional<Skill> update(const QString& id, const QString& name, std::uint32_t hexRGB);

    /// Removes a skill. Returns false for the last one, an unknown one, or when saving fails.
    bool remove(const QString& id);

    /// Resets to the list of a new user, after the erase of all data. Writes no file.
    void resetAfterErase();

Q_SIGNALS:
    /// The list changed. Emitted once the change is saved.
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
    std::optional<std::vector<Skill>> m_all; ///< empty until first use
    std::optional<Error> m_readError;
};

} // namespace vantle

// The common operations of the scripts on auto mode and its rules.
#pragma once

#include "fakes/MemoryPreferences.h"
#include "fakes/VirtualTime.h"
#include "sensing/AutoRules.h"
#include "tracking/SkillList.h"
#include "vectors/DataFolder.h"

#include <QJsonObject>

#include <optional>

namespace vantle::vectors {

/// The user's skills as given by a case.
class GivenSkills {
public:
    GivenSkills(DataFolder& folder, SerialQueue& queue) : m_folder(folder), m_queue(queue) {}
    void set(const QJsonValue& skills);
    [[nodiscard]] SkillList& list() { return *m_skills; }

private:
    DataFolder& m_folder;
    SerialQueue& m_queue;
    fakes::MemoryPreferences m_preferences; ///< separate, so that no other object sees it
    std::optional<SkillList> m_skills;      ///< replaced in place
};

/// Performs an event on the rules. Undefined when it has no result; empty for another event.
[[nodiscard]] std::optional<QJsonValue> performOnRules(AutoRules& rules, const QJsonObject& event);

[[nodiscard]] QJsonValue toJson(const std::vector<SeenApp>& apps);

/// Returns the rules' part of a step's description.
[[nodiscard]] QJsonObject describedRules(const AutoRules& rules);

/// Adds the members of `now` that differ from `known` to `step`, and updates `known`.
void addChanges(const QJsonObject& now, QJsonObject& known, QJsonObject& step);

} // namespace vantle::vectors

// What the scripts over auto mode's memory and those over auto mode itself have in common.
#pragma once

#include "fakes/MemoryPreferences.h"
#include "fakes/VirtualTime.h"
#include "sensing/AutoRules.h"
#include "tracking/SkillList.h"
#include "vectors/DataFolder.h"

#include <QJsonObject>

#include <optional>

namespace vantle::vectors {

/// A person's list of skills, as a case gives it.
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

/// Does the event if it is one on the rules. Undefined when it gives no result; empty when it is
/// none of those.
[[nodiscard]] std::optional<QJsonValue> performOnRules(AutoRules& rules, const QJsonObject& event);

[[nodiscard]] QJsonValue toJson(const std::vector<SeenApp>& apps);

/// The members that the rules add to the description of a step.
[[nodiscard]] QJsonObject describedRules(const AutoRules& rules);

/// Puts those members of `now` into `step` that differ from what `known` holds, and into `known`.
void addChanges(const QJsonObject& now, QJsonObject& known, QJsonObject& step);

} // namespace vantle::vectors

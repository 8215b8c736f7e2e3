// What an application that has no rule yet is probably for, by its identity and name alone.
//
// Pure functions, any thread. Words are looked for anywhere in the text, with no regard to where a
// word begins: that catches identifiers of all sorts, at the price of a wrong guess now and then.
#pragma once

#include "tracking/Skill.h"

#include <QString>

#include <optional>
#include <vector>

namespace vantle::autosuggestion {

/// Whether it is a browser. What somebody does in a browser can't be told from outside, so it is
/// never guessed, and asked about in other words.
[[nodiscard]] bool isBrowser(const QString& bundleId, const QString& appName);

/// The id of the skill among `skills` that it is probably for. Empty when nothing fits.
[[nodiscard]] std::optional<QString>
suggestedSkillId(const QString& bundleId, const QString& appName, const std::vector<Skill>& skills);

} // namespace vantle::autosuggestion

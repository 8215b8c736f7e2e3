// The guess which skill an unknown application belongs to.
//
// Pure functions of identity and name, any thread. Words match anywhere in the text, not just at
// the start of a word: that catches all sorts of identifiers, at the price of an occasional wrong
// guess.
#pragma once

#include "tracking/Skill.h"

#include <QString>

#include <optional>
#include <vector>

namespace vantle::autosuggestion {

/// Whether it is a browser. Its use cannot be told from outside, so it is never guessed, and the
/// question about it has its own wording.
[[nodiscard]] bool isBrowser(const QString& bundleId, const QString& appName);

/// Returns the id of the most probable of `skills`; empty when none fits.
[[nodiscard]] std::optional<QString>
suggestedSkillId(const QString& bundleId, const QString& appName, const std::vector<Skill>& skills);

} // namespace vantle::autosuggestion

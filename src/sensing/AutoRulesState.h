// Auto mode's memory as a value.
//
// Plain values and pure functions, any thread.
#pragma once

#include "base/Date.h"
#include "tracking/Skill.h"

#include <QMap>
#include <QSet>
#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

namespace vantle {

/// An application that was in front recently.
struct SeenApp {
    QString bundleId;
    QString name; ///< as shown to the user
    Date lastSeenAt;
    friend bool operator==(const SeenApp&, const SeenApp&) = default;
};

struct AutoRulesState {
    /// Ruling by the application's identity: the id of a skill, or "ignore".
    QMap<QString, QString> rules;

    /// At most 40, without repeats.
    std::vector<SeenApp> seenApps;

    /// The rules that the user neither chose nor confirmed. A subset of the keys of `rules`.
    QSet<QString> automaticRuleBundleIds;

    friend bool operator==(const AutoRulesState&, const AutoRulesState&) = default;
};

/// The content of the file, which another program may have written.
struct StoredAutoRules {
    AutoRulesState state; ///< unchecked: none of the invariants hold yet
    /// Version of the skill set that the automatic rules refer to.
    std::optional<std::int64_t> taxonomyVersion;
    static constexpr int currentTaxonomyVersion = 1;
    friend bool operator==(const StoredAutoRules&, const StoredAutoRules&) = default;
};

namespace autorules {

inline constexpr const char* ignoreRuling = "ignore";
inline constexpr std::size_t maxSeenApps = 40;

/// Whether a ruling is "ignore" or an existing skill.
[[nodiscard]] bool isValidRuling(const QString& ruling, const std::vector<Skill>& skills);

/// The state of a new user: the well-known applications whose skills exist.
[[nodiscard]] AutoRulesState seeded(const std::vector<Skill>& skills);

/// Returns the stored state without rules for deleted skills and applications not seen for 90 days,
/// with automatic rules of an older taxonomy moved to the current one.
[[nodiscard]] AutoRulesState cleaned(const StoredAutoRules& stored, Date now,
                                     const std::vector<Skill>& skills);

} // namespace autorules
} // namespace vantle

// What auto mode remembers, and how a stored state becomes one to work with.
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

/// An application that was in front lately.
struct SeenApp {
    QString bundleId;
    QString name; ///< as people call it
    Date lastSeenAt;
    friend bool operator==(const SeenApp&, const SeenApp&) = default;
};

struct AutoRulesState {
    /// Ruling by the application's identity: the id of a skill, or "ignore".
    QMap<QString, QString> rules;

    /// At most 40, each application once.
    std::vector<SeenApp> seenApps;

    /// The rules that nobody has chosen or confirmed. Always keys of `rules`.
    QSet<QString> automaticRuleBundleIds;

    friend bool operator==(const AutoRulesState&, const AutoRulesState&) = default;
};

/// The state as it stands in the file, with whatever else may have written it.
struct StoredAutoRules {
    AutoRulesState state;                        ///< none of its promises hold yet
    std::optional<std::int64_t> taxonomyVersion; ///< of the skills that automatic rules are for
    static constexpr int currentTaxonomyVersion = 1;
    friend bool operator==(const StoredAutoRules&, const StoredAutoRules&) = default;
};

namespace autorules {

inline constexpr const char* ignoreRuling = "ignore";
inline constexpr std::size_t maxSeenApps = 40;

/// Whether a ruling means anything: "ignore", or a skill that exists.
[[nodiscard]] bool isValidRuling(const QString& ruling, const std::vector<Skill>& skills);

/// The state of somebody who has none: the well-known applications whose skills exist.
[[nodiscard]] AutoRulesState seeded(const std::vector<Skill>& skills);

/// The stored state without what has no meaning any more: rules for skills that are gone,
/// applications not seen for 90 days. Automatic rules of an older taxonomy move to the new one.
[[nodiscard]] AutoRulesState cleaned(const StoredAutoRules& stored, Date now,
                                     const std::vector<Skill>& skills);

} // namespace autorules
} // namespace vantle

#include "sensing/AutoRulesState.h"

#include "sensing/AutoSeedTables.h"
#include "sensing/AutoSuggestion.h"

#include <algorithm>

namespace vantle::autorules {

namespace {

constexpr Seconds kSeenAppLife{90.0 * 24 * 60 * 60};

bool hasSkill(const std::vector<Skill>& skills, QLatin1String id) {
    return std::ranges::any_of(skills, [&](const Skill& skill) { return skill.id == id; });
}

/// Returns the entries newest first, without repeats, entries older than the limit and entries
/// without a name.
std::vector<SeenApp> cleanedSeenApps(std::vector<SeenApp> stored, Date now) {
    std::ranges::stable_sort(stored, std::ranges::greater{}, &SeenApp::lastSeenAt);
    const Date cutoff = now - kSeenAppLife;
    std::vector<SeenApp> kept;
    QSet<QString> keptIds;
    for (SeenApp& app : stored) {
        if (kept.size() == maxSeenApps || app.lastSeenAt < cutoff) break;
        if (app.bundleId.isEmpty() || app.name.isEmpty() || keptIds.contains(app.bundleId))
            continue;
        keptIds.insert(app.bundleId);
        kept.push_back(std::move(app));
    }
    return kept;
}

QString nameOf(const QString& bundleId, const std::vector<SeenApp>& apps) {
    const auto app = std::ranges::find(apps, bundleId, &SeenApp::bundleId);
    return app == apps.end() ? bundleId : app->name;
}

/// Moves automatic rules to the skill "building" where today's seed names it, which it does only
/// while that skill exists. Leaves the user's choices alone.
void moveToBuilding(AutoRulesState& state, const std::vector<Skill>& skills) {
    const QLatin1String building("building");
    for (const QString& bundleId : std::as_const(state.automaticRuleBundleIds)) {
        QString& ruling = state.rules[bundleId];
        if (ruling == QLatin1String(ignoreRuling)) continue;
        const auto suggestion =
            autosuggestion::suggestedSkillId(bundleId, nameOf(bundleId, state.seenApps), skills);
        if (suggestion == building) ruling = building;
    }
}

} // namespace

bool isValidRuling(const QString& ruling, const std::vector<Skill>& skills) {
    return ruling == QLatin1String(ignoreRuling) ||
           std::ranges::find(skills, ruling, &Skill::id) != skills.end();
}

AutoRulesState seeded(const std::vector<Skill>& skills) {
    const bool olderTaxonomy = hasSkill(skills, QLatin1String("design")) ||
                               hasSkill(skills, QLatin1String("code")) ||
                               hasSkill(skills, QLatin1String("business"));
    AutoRulesState state;
    for (const autoseeds::Row& row : olderTaxonomy ? autoseeds::legacy() : autoseeds::current()) {
        const QLatin1String skillId(row.skillId);
        if (!hasSkill(skills, skillId)) continue;
        for (const char* bundleId : row.bundleIds)
            state.rules.insert(QLatin1String(bundleId), skillId);
    }
    for (auto rule = state.rules.keyBegin(); rule != state.rules.keyEnd(); ++rule)
        state.automaticRuleBundleIds.insert(*rule);
    return state;
}

AutoRulesState cleaned(const StoredAutoRules& stored, Date now, const std::vector<Skill>& skills) {
    AutoRulesState state;
    const AutoRulesState& from = stored.state;
    for (auto rule = from.rules.begin(); rule != from.rules.end(); ++rule)
        if (isValidRuling(rule.value(), skills)) state.rules.insert(rule.key(), rule.value());
    for (const QString& bundleId : from.automaticRuleBundleIds)
        if (state.rules.contains(bundleId)) state.automaticRuleBundleIds.insert(bundleId);
    state.seenApps = cleanedSeenApps(from.seenApps, now);
    if (stored.taxonomyVersion.value_or(0) < StoredAutoRules::currentTaxonomyVersion)
        moveToBuilding(state, skills);
    return state;
}

} // namespace vantle::autorules

#include "sensing/AutoSuggestion.h"

#include "base/Text.h"
#include "sensing/SuggestionTables.h"

#include <algorithm>

namespace vantle::autosuggestion {

namespace {

using suggestiontables::Group;

/// The text in which the words, which are ASCII, are looked for.
QByteArray searchText(const QString& bundleId, const QString& appName) {
    return text::lowerCased(bundleId + QLatin1Char(' ') + appName).toUtf8();
}

bool holds(QByteArrayView text, std::string_view word) {
    return std::string_view(text.data(), static_cast<std::size_t>(text.size())).find(word) !=
           std::string_view::npos;
}

bool holdsAny(QByteArrayView text, std::span<const std::string_view> words) {
    return std::ranges::any_of(words, [&](std::string_view word) { return holds(text, word); });
}

std::optional<QString> skillOfId(std::string_view id, const std::vector<Skill>& skills) {
    const QLatin1String wanted(id.data(), static_cast<qsizetype>(id.size()));
    const auto found =
        std::ranges::find_if(skills, [&](const Skill& skill) { return skill.id == wanted; });
    return found == skills.end() ? std::nullopt : std::optional(found->id);
}

/// The order of the hints outranks that of the skills.
std::optional<QString> skillByHints(std::span<const std::string_view> hints,
                                    const std::vector<Skill>& skills) {
    std::vector<QByteArray> labels;
    labels.reserve(skills.size());
    for (const Skill& skill : skills) {
        QString id = skill.id;
        labels.push_back(searchText(id.replace(QLatin1Char('_'), QLatin1Char(' ')), skill.name));
    }
    for (const std::string_view hint : hints)
        for (std::size_t i = 0; i < skills.size(); ++i)
            if (holds(labels[i], hint)) return skills[i].id;
    return std::nullopt;
}

} // namespace

bool isBrowser(const QString& bundleId, const QString& appName) {
    return holdsAny(searchText(bundleId, appName), suggestiontables::browserWords());
}

std::optional<QString> suggestedSkillId(const QString& bundleId, const QString& appName,
                                        const std::vector<Skill>& skills) {
    const QByteArray text = searchText(bundleId, appName);
    if (holdsAny(text, suggestiontables::browserWords())) return std::nullopt;
    const auto groups = suggestiontables::groups();
    const auto group = std::ranges::find_if(
        groups, [&](const Group& candidate) { return holdsAny(text, candidate.words); });
    if (group == groups.end()) return std::nullopt;
    if (auto first = skillOfId(group->firstChoice, skills)) return first;
    if (auto second = skillOfId(group->secondChoice, skills)) return second;
    return skillByHints(group->hints, skills);
}

} // namespace vantle::autosuggestion

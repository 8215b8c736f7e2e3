#include "sensing/AutoSuggestion.h"

#include "base/Text.h"
#include "sensing/SuggestionTables.h"

#include <algorithm>
#include <bitset>

namespace vantle::autosuggestion {

namespace {

using suggestiontables::Group;

/// A lower-case text to be searched for words of at least two ASCII letters.
class SearchText {
public:
    SearchText(const QString& first, const QString& second)
        : m_utf8(lowerCased(first + QLatin1Char(' ') + second)) {
        for (qsizetype i = 1; i < m_utf8.size(); ++i)
            m_pairs.set(pairAt(m_utf8.data() + i - 1));
    }

    [[nodiscard]] bool holds(std::string_view word) const {
        // The first two letters rule most words out.
        return m_pairs.test(pairAt(word.data())) &&
               std::string_view(m_utf8.data(), static_cast<std::size_t>(m_utf8.size()))
                       .find(word) != std::string_view::npos;
    }

    [[nodiscard]] bool holdsAny(std::span<const std::string_view> words) const {
        return std::ranges::any_of(words, [&](std::string_view word) { return holds(word); });
    }

private:
    static QByteArray lowerCased(const QString& text) {
        const QByteArray utf8 = text.toUtf8();
        // As many bytes as UTF-16 units means pure ASCII, which needs no ICU tables.
        return utf8.size() == text.size() ? utf8.toLower() : text::lowerCased(text).toUtf8();
    }

    /// A hash of two letters; other pairs may share it.
    static std::size_t pairAt(const char* letters) {
        const auto low = [](char letter) { return static_cast<unsigned char>(letter) & 0x1Fu; };
        return low(letters[0]) << 5 | low(letters[1]);
    }

    QByteArray m_utf8;
    std::bitset<1024> m_pairs; ///< the pairs that occur
};

QString withoutHost(const QString& bundleId) {
    for (const std::string_view prefix : suggestiontables::hostPrefixes()) {
        const QLatin1String text(prefix.data(), static_cast<qsizetype>(prefix.size()));
        if (bundleId.startsWith(text, Qt::CaseInsensitive)) return bundleId.sliced(text.size());
    }
    return bundleId;
}

std::optional<QString> skillOfId(std::string_view id, const std::vector<Skill>& skills) {
    const QLatin1String wanted(id.data(), static_cast<qsizetype>(id.size()));
    const auto found =
        std::ranges::find_if(skills, [&](const Skill& skill) { return skill.id == wanted; });
    return found == skills.end() ? std::nullopt : std::optional(found->id);
}

/// An earlier hint wins over an earlier skill.
std::optional<QString> skillByHints(std::span<const std::string_view> hints,
                                    const std::vector<Skill>& skills) {
    std::vector<SearchText> labels;
    labels.reserve(skills.size());
    for (const Skill& skill : skills) {
        QString id = skill.id;
        labels.emplace_back(id.replace(QLatin1Char('_'), QLatin1Char(' ')), skill.name);
    }
    for (const std::string_view hint : hints)
        for (std::size_t i = 0; i < skills.size(); ++i)
            if (labels[i].holds(hint)) return skills[i].id;
    return std::nullopt;
}

} // namespace

bool isBrowser(const QString& bundleId, const QString& appName) {
    return SearchText(withoutHost(bundleId), appName).holdsAny(suggestiontables::browserWords());
}

std::optional<QString> suggestedSkillId(const QString& bundleId, const QString& appName,
                                        const std::vector<Skill>& skills) {
    const SearchText text(withoutHost(bundleId), appName);
    if (text.holdsAny(suggestiontables::browserWords())) return std::nullopt;
    const auto groups = suggestiontables::groups();
    const auto group = std::ranges::find_if(
        groups, [&](const Group& candidate) { return text.holdsAny(candidate.words); });
    if (group == groups.end()) return std::nullopt;
    if (auto first = skillOfId(group->firstChoice, skills)) return first;
    if (auto second = skillOfId(group->secondChoice, skills)) return second;
    return skillByHints(group->hints, skills);
}

} // namespace vantle::autosuggestion

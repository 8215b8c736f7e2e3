#include "tracking/Skill.h"

#include "base/Text.h"

#include <algorithm>

namespace vantle {

std::span<const Skill> Skill::defaults() {
    static const std::array<Skill, 6> seeds = {{
        {QStringLiteral("building"), QStringLiteral("Build"), 0x7A78FF, true},
        {QStringLiteral("product_design"), QStringLiteral("Design"), 0xBF5AF2, true},
        {QStringLiteral("marketing"), QStringLiteral("Marketing"), 0xFF375F, true},
        {QStringLiteral("distribution"), QStringLiteral("Distribution"), 0xFF9F0A, true},
        {QStringLiteral("founder_ops"), QStringLiteral("Founder Ops"), 0x64D2FF, true},
        {QStringLiteral("connections"), QStringLiteral("Connections"), 0x30D158, true},
    }};
    return seeds;
}

std::span<const Skill> Skill::legacyDefaults() {
    static const std::array<Skill, 6> seeds = {{
        {QStringLiteral("design"), QStringLiteral("Design"), 0x7A78FF, true},
        {QStringLiteral("code"), QStringLiteral("Code"), 0x64D2FF, true},
        {QStringLiteral("writing"), QStringLiteral("Writing"), 0xFF9F0A, true},
        {QStringLiteral("study"), QStringLiteral("Study"), 0x30D158, true},
        {QStringLiteral("business"), QStringLiteral("Business"), 0xFF375F, true},
        {QStringLiteral("product_design"), QStringLiteral("Product Design"), 0xBF5AF2, true},
    }};
    return seeds;
}

std::optional<Skill> Skill::seedDefinition(const QString& id) {
    for (const auto seeds : {defaults(), legacyDefaults()})
        for (const Skill& seed : seeds)
            if (seed.id == id) return seed;
    return std::nullopt;
}

QString Skill::cleanedName(const QString& name) { return text::withSingleBlanks(name); }

bool Skill::isAcceptableName(const QString& cleaned) {
    return !cleaned.isEmpty() && text::hasAtMost(cleaned, maxNameLength);
}

bool Skill::isAcceptableId(const QString& id) {
    if (id.isEmpty() || !text::hasAtMost(id, maxIdLength)) return false;
    bool acceptable = true;
    text::forEachCharacter(id, [&](QStringView character) {
        const bool joiner = character == QLatin1String("_") || character == QLatin1String("-");
        acceptable = acceptable && (joiner || text::isLetterOrNumber(character));
    });
    return acceptable;
}

QString Skill::comparisonKey(const QString& name) {
    const QString key = text::lowerCased(text::foldedCaseAndDiacritics(cleanedName(name)));
    return key == QLatin1String("building") ? QStringLiteral("build") : key;
}

} // namespace vantle

#include "ceremony/show/VantleCopy.h"

#include "base/Text.h"
#include "tracking/Skill.h"

namespace vantle::vantlecopy {

QString modeName(const QString& skillName) {
    const QString cleaned = Skill::cleanedName(skillName);
    if (cleaned.isEmpty() || Skill::comparisonKey(cleaned) == QLatin1String("build"))
        return QStringLiteral("Vantle");
    if (text::lowerCased(cleaned).endsWith(QLatin1String(" mode"))) return cleaned;
    return cleaned + QLatin1String(" mode");
}

QString ceremonyTitle(const QString& skillName) {
    return QLatin1String("You are in ") + modeName(skillName);
}

QString activeStatus(const QString& skillName) {
    return QLatin1String("In ") + modeName(skillName);
}

} // namespace vantle::vantlecopy

#include "ceremony/show/VantleCopy.h"

#include "base/Bidi.h"
#include "base/Text.h"
#include "base/Words.h"
#include "tracking/Skill.h"

namespace vantle::vantlecopy {

bool addsMode(const QString& skillName) {
    const QString cleaned = Skill::cleanedName(skillName);
    return !cleaned.isEmpty() && Skill::comparisonKey(cleaned) != QLatin1String("build") &&
           !text::lowerCased(cleaned).endsWith(QLatin1String(" mode"));
}

QString modeName(const QString& skillName) {
    const QString cleaned = Skill::cleanedName(skillName);
    if (addsMode(skillName)) return Words::tr("%1 mode").arg(cleaned);
    return text::lowerCased(cleaned).endsWith(QLatin1String(" mode")) ? cleaned
                                                                      : QStringLiteral("Vantle");
}

QString ceremonyTitle(const QString& skillName) {
    return Words::tr("You are in %1").arg(modeName(skillName));
}

QString activeStatus(const QString& skillName) {
    return Words::tr("In %1").arg(bidi::isolated(modeName(skillName)));
}

} // namespace vantle::vantlecopy

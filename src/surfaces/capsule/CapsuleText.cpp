#include "surfaces/capsule/CapsuleText.h"

#include "surfaces/kit/text/Typeface.h"

#include <QFont>

#include <algorithm>

namespace vantle {

CapsuleText::CapsuleText()
    : m_chip(fontOf(look::kType.capsuleChip))
    , m_skillLine(fontOf(look::kType.capsuleSkill))
    , m_clock(fontOf(look::kType.capsuleClock)) {}

QString CapsuleText::skillLine(const QString& skillName, bool paused) {
    const QString name = skillName.toUpper();
    return paused ? name + QStringLiteral("  \u00B7  PAUSED") : name;
}

QString CapsuleText::startPrompt() { return QStringLiteral("Start vantle"); }

QString CapsuleText::toolTip(bool idlePrompt, bool hasSkills) {
    if (idlePrompt) return QStringLiteral("Click a skill to start vantle");
    if (hasSkills) return QStringLiteral("Click a skill to switch. Click anywhere else to stop.");
    return QStringLiteral("Click to end the session");
}

double CapsuleText::chipNameWidth(const QString& name) const {
    return m_chip.horizontalAdvance(name);
}

double CapsuleText::skillLineWidth(const QString& line) const {
    return m_skillLine.horizontalAdvance(line);
}

double CapsuleText::clockWidth(const QString& clock) const {
    QString widest = clock;
    const auto isDigit = [](QChar character) { return character.isDigit(); };
    std::replace_if(widest.begin(), widest.end(), isDigit, QLatin1Char('0'));
    return m_clock.horizontalAdvance(widest);
}

} // namespace vantle

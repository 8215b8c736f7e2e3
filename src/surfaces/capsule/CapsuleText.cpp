#include "surfaces/capsule/CapsuleText.h"

#include "base/Bidi.h"
#include "base/Words.h"
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
    return paused ? Words::tr("%1  ·  PAUSED").arg(bidi::isolated(name)) : name;
}

QString CapsuleText::startPrompt() { return Words::tr("Start vantle"); }

QString CapsuleText::toolTip(bool idlePrompt, bool hasSkills) {
    if (idlePrompt) return Words::tr("Click a skill to start vantle");
    if (hasSkills) return Words::tr("Click a skill to switch. Click anywhere else to stop.");
    return Words::tr("Click to end the session");
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

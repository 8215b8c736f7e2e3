#include "surfaces/capsule/CapsuleText.h"

#include "surfaces/kit/text/Typeface.h"

#include <QFont>

#include <algorithm>

namespace vantle {

namespace {

// As the type scale of the kit has them.
constexpr int kChipSize = 11;
constexpr int kSkillLineSize = 10;
constexpr double kSkillLineSpacing = 0.9;
constexpr int kClockSize = 23;
constexpr double kClockTracking = -0.010; // em

QFont font(const QString& family, int size, QFont::Weight weight, double spacing = 0) {
    QFont font(family);
    font.setPixelSize(size);
    font.setWeight(weight);
    font.setLetterSpacing(QFont::AbsoluteSpacing, spacing);
    font.setHintingPreference(QFont::PreferVerticalHinting);
    return font;
}

} // namespace

CapsuleText::CapsuleText()
    : m_chip(font(Typeface::text().family, kChipSize, QFont::Medium))
    , m_skillLine(font(Typeface::text().family, kSkillLineSize, QFont::Normal, kSkillLineSpacing))
    , m_clock(font(Typeface::display().family, kClockSize, QFont::DemiBold,
                   (kClockTracking + Typeface::display().tracking) * kClockSize)) {}

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

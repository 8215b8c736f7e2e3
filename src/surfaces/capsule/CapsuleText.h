// The words of the capsule and the widths that they take.
#pragma once

#include <QFontMetricsF>
#include <QString>

namespace vantle {

/// Measures with the fonts that the views draw with. After the application object, main thread.
class CapsuleText {
public:
    CapsuleText();

    /// A skill's name in upper case; the word for a pause follows it.
    [[nodiscard]] static QString skillLine(const QString& skillName, bool paused);
    /// What stands in the clock's place while no session is open.
    [[nodiscard]] static QString startPrompt();
    [[nodiscard]] static QString toolTip(bool idlePrompt, bool hasSkills);

    [[nodiscard]] double chipNameWidth(const QString& name) const;
    [[nodiscard]] double skillLineWidth(const QString& line) const;
    /// With all digits of one width, so that the capsule doesn't breathe with the seconds.
    [[nodiscard]] double clockWidth(const QString& clock) const;

private:
    QFontMetricsF m_chip;
    QFontMetricsF m_skillLine;
    QFontMetricsF m_clock;
};

} // namespace vantle

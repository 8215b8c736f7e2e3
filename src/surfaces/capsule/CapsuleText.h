// The texts of the capsule and their widths.
#pragma once

#include <QFontMetricsF>
#include <QString>

namespace vantle {

/// Measures with the fonts of the views. Requires the application object. Main thread.
class CapsuleText {
public:
    CapsuleText();

    /// Returns the skill's name in upper case, followed by the word for a pause.
    [[nodiscard]] static QString skillLine(const QString& skillName, bool paused);
    /// Shown in place of the clock while no session is open.
    [[nodiscard]] static QString startPrompt();
    [[nodiscard]] static QString toolTip(bool idlePrompt, bool hasSkills);

    [[nodiscard]] double chipNameWidth(const QString& name) const;
    [[nodiscard]] double skillLineWidth(const QString& line) const;
    /// With digits of equal width, so that the capsule keeps its width.
    [[nodiscard]] double clockWidth(const QString& clock) const;

private:
    QFontMetricsF m_chip;
    QFontMetricsF m_skillLine;
    QFontMetricsF m_clock;
};

} // namespace vantle

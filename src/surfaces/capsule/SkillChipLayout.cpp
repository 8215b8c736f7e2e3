#include "surfaces/capsule/SkillChipLayout.h"

#include <algorithm>
#include <cmath>

namespace vantle {

namespace {

constexpr double kNameSlack = 3; // measured and drawn widths differ slightly
constexpr double kNameLeft = 23;
constexpr double kNameRight = 10;

/// Places chips in rows, with a new row when one does not fit.
class Rows {
public:
    explicit Rows(double maxWidth) : m_maxWidth(maxWidth) {}

    [[nodiscard]] QRectF place(double width) {
        if (m_x > 0 && m_x + width > m_maxWidth) {
            ++m_row;
            m_x = 0;
        }
        constexpr double kPitch = SkillChipLayout::chipHeight + SkillChipLayout::vGap;
        const QRectF frame(m_x, m_row * kPitch, width, SkillChipLayout::chipHeight);
        m_widest = std::max(m_widest, m_x + width);
        m_x += width + SkillChipLayout::hGap;
        return frame;
    }

    [[nodiscard]] QSizeF size() const {
        return {m_widest,
                (m_row + 1) * SkillChipLayout::chipHeight + m_row * SkillChipLayout::vGap};
    }

private:
    double m_maxWidth;
    double m_x = 0;
    int m_row = 0;
    double m_widest = 0;
};

} // namespace

SkillChipLayout SkillChipLayout::compute(const std::vector<Skill>& skills, double maxRowWidth,
                                         bool includeAdd, const Measure& measure) {
    SkillChipLayout layout;
    Rows rows(maxRowWidth);
    layout.items.reserve(skills.size() + 1);
    for (const Skill& skill : skills) {
        const double width = std::ceil(measure(skill.name)) + kNameSlack + kNameLeft + kNameRight;
        layout.items.push_back({skill, rows.place(width)});
    }
    if (includeAdd) layout.items.push_back({std::nullopt, rows.place(addChipWidth)});
    if (!layout.items.empty()) layout.size = rows.size();
    return layout;
}

} // namespace vantle

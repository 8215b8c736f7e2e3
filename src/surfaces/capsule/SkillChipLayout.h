// The wrapped layout of the skill chips.
//
// Plain values and pure functions, any thread. Lengths in px, relative to the top left of the
// chips.
#pragma once

#include "tracking/Skill.h"

#include <QRectF>
#include <QSizeF>

#include <functional>
#include <optional>
#include <vector>

namespace vantle {

struct SkillChipLayout {
    struct Item {
        std::optional<Skill> skill; ///< empty for the chip that adds a skill
        QRectF frame;
        [[nodiscard]] bool isAdd() const { return !skill.has_value(); }
    };

    std::vector<Item> items;
    QSizeF size{0, 0}; ///< total; height 0 without items

    static constexpr double chipHeight = 24;
    static constexpr double hGap = 6;
    static constexpr double vGap = 6;
    static constexpr double addChipWidth = 30;

    /// Measures a name in the chips' font, Inter 11 medium.
    using Measure = std::function<double(const QString& name)>;

    /// Fills rows from the left. A chip wider than the limit gets its own row.
    [[nodiscard]] static SkillChipLayout compute(const std::vector<Skill>& skills,
                                                 double maxRowWidth, bool includeAdd,
                                                 const Measure& measure);
};

} // namespace vantle

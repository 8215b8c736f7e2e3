// Which well-known applications belong to which of the skills that people start with. Plain data.
#pragma once

#include <span>

namespace vantle::autoseeds {

/// Applications that belong to a skill. Rows are applied in order: where two name the same
/// application, the later one whose skill exists wins.
struct Row {
    const char* skillId;
    std::span<const char* const> bundleIds;
};

/// For the skills that people start with now.
[[nodiscard]] std::span<const Row> current();

/// For the skills of earlier versions.
[[nodiscard]] std::span<const Row> legacy();

} // namespace vantle::autoseeds

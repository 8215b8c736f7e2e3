// The well-known applications of each seed skill.
//
// Plain data, any thread.
#pragma once

#include <span>

namespace vantle::autoseeds {

/// Applications of one skill. Rows apply in order: of two rows that name an application, the later
/// one whose skill exists wins.
struct Row {
    const char* skillId;
    std::span<const char* const> bundleIds;
};

/// For the seeds of this version.
[[nodiscard]] std::span<const Row> current();

/// For the seeds of earlier versions.
[[nodiscard]] std::span<const Row> legacy();

} // namespace vantle::autoseeds

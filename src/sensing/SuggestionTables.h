// The words from which auto mode guesses an application's skill.
//
// Plain data, lower-case ASCII. Any thread.
#pragma once

#include <span>
#include <string_view>

namespace vantle::suggestiontables {

/// A browser has one of these in its identity or name.
[[nodiscard]] std::span<const std::string_view> browserWords();

/// Prefixes of identities that name a hosting site. They say nothing about the application, though
/// they may contain one of the words.
[[nodiscard]] std::span<const std::string_view> hostPrefixes();

/// Applications of one kind, and their skill.
struct Group {
    std::span<const std::string_view> words; ///< any match puts the application into the group
    std::string_view firstChoice;            ///< skill id
    std::string_view secondChoice;           ///< skill id
    std::span<const std::string_view> hints; ///< words in the names of skills that the user made
};

/// In order; the first match counts, so "mailchimp" precedes "mail".
[[nodiscard]] std::span<const Group> groups();

} // namespace vantle::suggestiontables

// The words by which auto mode guesses what an unknown application is for. Plain data, all in lower
// case and ASCII.
#pragma once

#include <span>
#include <string_view>

namespace vantle::suggestiontables {

/// Any of these in an application's identity or name makes it a browser.
[[nodiscard]] std::span<const std::string_view> browserWords();

/// What an identity begins with where a project is named after the site that hosts it. It says
/// nothing of what the application is for, though it may hold one of the words.
[[nodiscard]] std::span<const std::string_view> hostPrefixes();

/// Applications of one sort, and the skill that they are for.
struct Group {
    std::span<const std::string_view> words; ///< any one of them makes it one of the group
    std::string_view firstChoice;            ///< skill id
    std::string_view secondChoice;           ///< skill id
    std::span<const std::string_view> hints; ///< what a person's own skill may be called
};

/// In the order in which they are tried; the first with a word that fits counts, so "mailchimp" has
/// to come before "mail".
[[nodiscard]] std::span<const Group> groups();

} // namespace vantle::suggestiontables

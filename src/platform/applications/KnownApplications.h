// The well-known tools of Linux desktops and their identities.
#pragma once

#include <QLatin1String>
#include <QString>

#include <span>

namespace vantle::knownapplications {

struct Row {
    QLatin1String entryId;  ///< desktop entry id without suffix, or window class
    QLatin1String identity; ///< the tool, or one like it, in auto mode's tables
};

/// Returns the identity of an application: that of its row, ignoring case, else the id itself.
/// Pure, any thread.
[[nodiscard]] QString identityOf(const QString& entryId);

/// The table, for tests.
[[nodiscard]] std::span<const Row> rows();

} // namespace vantle::knownapplications

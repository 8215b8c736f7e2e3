// The well-known tools of Linux desktops, as the tables of auto mode name them.
#pragma once

#include <QLatin1String>
#include <QString>

#include <span>

namespace vantle::knownapplications {

struct Row {
    QLatin1String entryId;  ///< of the desktop entry, without suffix, or a window class
    QLatin1String identity; ///< by which auto mode's tables know that tool or its like
};

/// The identity of an application: that of its row, letters of either case being the same, else the
/// id itself. Pure, any thread.
[[nodiscard]] QString identityOf(const QString& entryId);

/// The table, for tests.
[[nodiscard]] std::span<const Row> rows();

} // namespace vantle::knownapplications

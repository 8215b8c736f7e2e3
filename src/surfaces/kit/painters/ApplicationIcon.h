// The program's icon for task bars and switchers.
#pragma once

#include <QIcon>

namespace vantle {

/// Returns the icon in 16 to 128 px. Set on each managed window before it is shown, so it needs no
/// installed file. Not for panels: Qt draws all sizes for each window, which takes 6 to 10 ms. Main
/// thread.
[[nodiscard]] QIcon applicationIcon();

} // namespace vantle

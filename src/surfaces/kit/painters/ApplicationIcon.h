// The program's icon, as window managers show it in task bars and switchers.
#pragma once

#include <QIcon>

namespace vantle {

/// The icon in the sizes that task bars and switchers ask for, 16 to 128 px. It goes with each
/// window, so it needs no installed file. For managed windows only, before they are shown: Qt draws
/// all sizes for each window that has it, which takes 6 to 10 ms. Nothing of it is kept.
[[nodiscard]] QIcon applicationIcon();

} // namespace vantle

// What people see in their file manager. Main thread.
#pragma once

#include "base/Result.h"

#include <QDBusConnection>
#include <QString>

namespace vantle::filemanager {

/// Puts a file into the trash, of its disk if it is not that of the home. Blocks.
[[nodiscard]] Result<> moveToTrash(const QString& path);

/// Asks the file manager on the bus to show the file's folder with the file selected; where there
/// is none, asks the desktop to open the folder. Waits for the file manager two seconds at most.
/// What goes wrong shows nothing.
void reveal(const QDBusConnection& bus, const QString& path);

/// The same for a folder, of which the content is shown.
void openFolder(const QDBusConnection& bus, const QString& path);

} // namespace vantle::filemanager

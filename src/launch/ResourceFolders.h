// The folders of optional files: pictures, a font, a page.
#pragma once

#include <QStringList>

namespace vantle::resourcefolders {

/// Returns the folders, in order: `share/vantle` of the installation prefix, then the resources of
/// the build tree, except in package builds. They need not exist. Works without an application
/// object. Any thread.
[[nodiscard]] QStringList all();

/// Returns the path in the first folder that has the file; empty when none has.
[[nodiscard]] QString find(const QString& name);

/// Returns the folder of the running program.
[[nodiscard]] QString ofProgram();

} // namespace vantle::resourcefolders

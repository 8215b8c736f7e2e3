// Where the files that the program only may have are looked for: pictures, a font, a page.
#pragma once

#include <QStringList>

namespace vantle::resourcefolders {

/// The folders, the first of them first: `share/vantle` of the place that the program is installed
/// in, then the resources of the tree that it was built from, unless it was built for a package.
/// They need not exist. May be asked before there is an application object.
[[nodiscard]] QStringList all();

/// The path of that file in the first folder that holds it; empty where none does.
[[nodiscard]] QString find(const QString& name);

/// The folder that the running program lies in.
[[nodiscard]] QString ofProgram();

} // namespace vantle::resourcefolders

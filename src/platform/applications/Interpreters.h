// Programs that run other programs' scripts.
//
// Pure functions, any thread.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

namespace vantle::interpreters {

/// Whether that is the base name of an interpreter, of any version.
[[nodiscard]] bool isOne(const QString& program);

/// Returns the script or module that an interpreter's process runs; `arguments` begins with its own
/// name. A common name ("main.py") includes its folder. Empty when it runs no file.
[[nodiscard]] QString scriptOf(const QList<QByteArray>& arguments);

} // namespace vantle::interpreters

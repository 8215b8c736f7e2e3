// Programs that run the programs of others.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

namespace vantle::interpreters {

/// Whether that is the base name of an interpreter, of whatever version.
[[nodiscard]] bool isOne(const QString& program);

/// What an interpreter runs, by the arguments of its process, its own name first: the base name of
/// a script or the name of a module. A script of a name that many have ("main.py") goes by its
/// folder as well. Empty for one that runs no file.
[[nodiscard]] QString scriptOf(const QList<QByteArray>& arguments);

} // namespace vantle::interpreters

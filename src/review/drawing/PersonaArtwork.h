// The pictures of personas, where the resources have any.
#pragma once

#include <QImage>
#include <QString>

namespace vantle::personaartwork {

/// The prefix of Qt's search paths in which "personas/<name>.png" is looked up. Set the paths
/// before the first lookup.
[[nodiscard]] QString searchPrefix();

/// Returns the picture "persona-night-owl"; null when there is none. Caches both results until the
/// program ends. Main thread.
[[nodiscard]] QImage image(const QString& name);

} // namespace vantle::personaartwork

// The pictures of kinds of builders, where the program has any among its files.
#pragma once

#include <QImage>
#include <QString>

namespace vantle::personaartwork {

/// Where pictures are looked for: a file "personas/<name>.png" below the search paths that Qt knows
/// by this prefix. They have to be set before the first question.
[[nodiscard]] QString searchPrefix();

/// The picture "persona-night-owl"; null for none. What was looked for once is kept, found or not,
/// for as long as the program runs. Main thread.
[[nodiscard]] QImage image(const QString& name);

} // namespace vantle::personaartwork

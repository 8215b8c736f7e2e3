// What the made-up figures of the welcome are written with.
#pragma once

#include "tracking/Skill.h"

#include <QString>

namespace vantle::samples {

/// A literal as it is shown.
[[nodiscard]] inline QString words(const char* utf8) { return QString::fromUtf8(utf8); }

/// The skill that every first start has under the id; the first of them for an id that none has.
[[nodiscard]] inline Skill seed(const char* id) {
    return Skill::seedDefinition(QLatin1String(id)).value_or(Skill::defaults().front());
}

} // namespace vantle::samples

// The JSON form of a note digest in cases.
#pragma once

#include "review/stats/NoteDigest.h"

#include <QJsonValue>

#include <optional>

namespace vantle::vectors {

[[nodiscard]] QJsonValue toJson(const std::optional<WrappedNoteDigest>& digest);

} // namespace vantle::vectors

// A digest of notes as cases have it.
#pragma once

#include "review/stats/NoteDigest.h"

#include <QJsonValue>

#include <optional>

namespace vantle::vectors {

[[nodiscard]] QJsonValue toJson(const std::optional<WrappedNoteDigest>& digest);

} // namespace vantle::vectors

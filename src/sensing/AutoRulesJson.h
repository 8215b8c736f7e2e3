// The JSON form of auto mode's memory, "auto-rules.json".
//
// Encoding: compact, keys in byte order, the set of automatic rules likewise. Decoding: the whole
// text is validated; one value of another type makes all of it unreadable, unknown keys are
// ignored, of a repeated key the last counts. Pure functions, any thread.
#pragma once

#include "base/Result.h"
#include "sensing/AutoRulesState.h"

#include <QByteArray>

#include <optional>

namespace vantle::json {

/// Always at the current version. Fails only when a date has no written form.
[[nodiscard]] Result<QByteArray> encode(const AutoRulesState& state);

/// Empty when the text is no such state.
[[nodiscard]] std::optional<StoredAutoRules> decodeAutoRules(QByteArrayView text);

} // namespace vantle::json

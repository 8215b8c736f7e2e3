// The JSON form of auto mode's memory, "auto-rules.json".
//
// Encoding: compact, keys and the set of automatic rules in byte order. Decoding validates the
// whole text: one value of a wrong type makes all of it unreadable, unknown keys are ignored, the
// last of repeated keys counts. Pure functions, any thread.
#pragma once

#include "base/Result.h"
#include "sensing/AutoRulesState.h"

#include <QByteArray>

#include <optional>

namespace vantle::json {

/// Encodes at the current version. Fails only when a date cannot be written.
[[nodiscard]] Result<QByteArray> encode(const AutoRulesState& state);

/// Returns the state; empty when the text is not one.
[[nodiscard]] std::optional<StoredAutoRules> decodeAutoRules(QByteArrayView text);

} // namespace vantle::json

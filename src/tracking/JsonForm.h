// The JSON form of the records: one encoder and one decoder for all files of the tracker.
//
// Encoding: compact, keys in byte order, `/` escaped, dates as iso8601 has them, ids in upper case,
// and no raw line separator of any kind inside a string. Decoding: the whole text is validated;
// every key is required, unknown keys are ignored, of a repeated key the last counts.
// Pure functions, any thread (each thread keeps a parser of its own).
#pragma once

#include "base/Result.h"
#include "tracking/Session.h"
#include "tracking/Skill.h"

#include <QByteArray>

#include <optional>
#include <vector>

namespace vantle::json {

/// Fails only when a date has no written form.
[[nodiscard]] Result<QByteArray> encode(const Session& session);
[[nodiscard]] Result<QByteArray> encode(const OpenSessionMarker& marker);
[[nodiscard]] QByteArray encode(const std::vector<Skill>& skills);

/// Empty when the text is no such record. The record rules are not applied here.
[[nodiscard]] std::optional<Session> decodeSession(QByteArrayView text);
[[nodiscard]] std::optional<OpenSessionMarker> decodeMarker(QByteArrayView text);
[[nodiscard]] std::optional<std::vector<Skill>> decodeSkills(QByteArrayView text);

} // namespace vantle::json

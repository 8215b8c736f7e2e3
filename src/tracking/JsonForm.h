// The JSON form of the tracker's records.
//
// Encoding: compact, keys in byte order, `/` escaped, dates by Iso8601.h, ids in upper case, no raw
// line separator inside a string. Decoding validates the whole text: every key is required, unknown
// keys are ignored, the last of repeated keys counts. Pure functions, any thread (one parser per
// thread).
#pragma once

#include "base/Result.h"
#include "tracking/Session.h"
#include "tracking/Skill.h"

#include <QByteArray>

#include <optional>
#include <vector>

namespace vantle::json {

/// Fails only when a date cannot be written.
[[nodiscard]] Result<QByteArray> encode(const Session& session);
[[nodiscard]] Result<QByteArray> encode(const OpenSessionMarker& marker);
[[nodiscard]] QByteArray encode(const std::vector<Skill>& skills);

/// Returns the record; empty when the text is not one. Does not apply the rules of
/// firstFailingRule().
[[nodiscard]] std::optional<Session> decodeSession(QByteArrayView text);
[[nodiscard]] std::optional<OpenSessionMarker> decodeMarker(QByteArrayView text);
[[nodiscard]] std::optional<std::vector<Skill>> decodeSkills(QByteArrayView text);

} // namespace vantle::json

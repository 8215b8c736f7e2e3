// Generators of records, texts and damaged lines for property tests.
#pragma once

#include "tracking/Session.h"
#include "tracking/Skill.h"

#include <QByteArray>

#include <rapidcheck.h>

#include <ostream>
#include <vector>

namespace vantle {

/// Prints generated values in failures.
std::ostream& operator<<(std::ostream& out, const Session& session);
std::ostream& operator<<(std::ostream& out, const OpenSessionMarker& marker);
std::ostream& operator<<(std::ostream& out, const Skill& skill);

namespace generators {

/// Up to `maxLength` scalars: letters, characters that JSON escapes, all newlines, white space,
/// marks, joiners, emoji, and any other non-surrogate.
[[nodiscard]] rc::Gen<QString> text(int maxLength = 40);

/// A whole second within the years of the file format.
[[nodiscard]] rc::Gen<Date> date();

/// Any encodable record, mostly invalid.
[[nodiscard]] rc::Gen<Session> session();

/// A valid record, of a few skills and within some weeks.
[[nodiscard]] rc::Gen<Session> acceptableSession();

/// Several valid records, oldest end first.
[[nodiscard]] rc::Gen<std::vector<Session>> history();

[[nodiscard]] rc::Gen<OpenSessionMarker> marker();
[[nodiscard]] rc::Gen<Skill> skill();

/// A log line without newline: a valid record, a damaged one or garbage. Always UTF-8 and not
/// empty.
[[nodiscard]] rc::Gen<QByteArray> line();

} // namespace generators
} // namespace vantle

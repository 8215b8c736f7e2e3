// Random records, texts and damaged lines for properties.
#pragma once

#include "tracking/Session.h"
#include "tracking/Skill.h"

#include <QByteArray>

#include <rapidcheck.h>

#include <ostream>
#include <vector>

namespace vantle {

/// How failures show what was generated.
std::ostream& operator<<(std::ostream& out, const Session& session);
std::ostream& operator<<(std::ostream& out, const OpenSessionMarker& marker);
std::ostream& operator<<(std::ostream& out, const Skill& skill);

namespace generators {

/// Up to `maxLength` scalars: letters, characters that JSON escapes, every newline, white space,
/// marks, joiners, emoji, and anything else that is not a surrogate.
[[nodiscard]] rc::Gen<QString> text(int maxLength = 40);

/// A moment at a whole second within the years that files can hold.
[[nodiscard]] rc::Gen<Date> date();

/// Any record that can be written, mostly without meaning.
[[nodiscard]] rc::Gen<Session> session();

/// A record that keeps the rules, of one of a few skills and within some weeks.
[[nodiscard]] rc::Gen<Session> acceptableSession();

/// Several of them, oldest end first, as a log is read.
[[nodiscard]] rc::Gen<std::vector<Session>> history();

[[nodiscard]] rc::Gen<OpenSessionMarker> marker();
[[nodiscard]] rc::Gen<Skill> skill();

/// One line of a log without its newline: a good record, a damaged one or garbage. Always UTF-8,
/// never empty and without a newline inside.
[[nodiscard]] rc::Gen<QByteArray> line();

} // namespace generators
} // namespace vantle

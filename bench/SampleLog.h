// The log that is measured: always the same records, like those of years of work.
#pragma once

#include "tracking/Session.h"

#include <QByteArray>

namespace vantle::bench {

/// The i-th record: a session of minutes to hours, half of them with a note, some by hand.
[[nodiscard]] Session sampleSession(int i);

/// The lines of the first `count` records.
[[nodiscard]] QByteArray sampleLog(int count);

} // namespace vantle::bench

// A made-up log: some weeks of a user who builds, designs and talks to people.
#pragma once

#include "tracking/Session.h"

#include <QByteArray>

namespace vantle {

/// The moment at which the pictures are taken: a Friday afternoon, 2025-11-21 in UTC.
[[nodiscard]] Date sampleNow();

/// A moment as it stands in records: "2025-11-21T15:30:00Z".
[[nodiscard]] Date sampleMoment(const char* text);

/// Sessions of so many days, 58 hours of 32, the newest of them with notes, as the log file holds
/// them.
[[nodiscard]] QByteArray sampleLog(int days = 32);

/// The locale of dates where a scene is not of one in particular: that of the language in which the
/// pictures are drawn.
[[nodiscard]] QString sampleLocale();

} // namespace vantle

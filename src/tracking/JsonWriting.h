// What the encoders of all data files are made of: compact JSON, piece by piece.
//
// For the encoders alone. Pure functions, any thread.
#pragma once

#include "base/Date.h"
#include "base/Result.h"

#include <QByteArray>
#include <QString>

namespace vantle::json::writing {

/// Appends `text` quoted. The separators of lines beyond ASCII are escaped as well, so that no text
/// can split the line that it stands on.
void appendString(QByteArray& out, const QString& text);

/// Appends a key of ASCII letters with its colon, and a comma before it unless the object has just
/// been opened.
void appendKey(QByteArray& out, const char* key);

/// Appends the quoted date. False when it has no written form.
[[nodiscard]] bool appendDate(QByteArray& out, Date date);

/// The failure to tell when `appendDate` gave false.
[[nodiscard]] Error unwritableDate();

} // namespace vantle::json::writing

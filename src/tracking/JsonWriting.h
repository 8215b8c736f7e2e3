// The parts of compact JSON, for the encoders.
//
// Pure functions, any thread.
#pragma once

#include "base/Date.h"
#include "base/Result.h"

#include <QByteArray>
#include <QString>

namespace vantle::json::writing {

/// Appends `text` quoted. Escapes the line separators beyond ASCII too, so that a text cannot split
/// its line.
void appendString(QByteArray& out, const QString& text);

/// Appends an ASCII key with its colon, and a comma before it unless the object is empty so far.
void appendKey(QByteArray& out, const char* key);

/// Appends the quoted date. Returns false when it cannot be written.
[[nodiscard]] bool appendDate(QByteArray& out, Date date);

/// The error to return when `appendDate` returns false.
[[nodiscard]] Error unwritableDate();

} // namespace vantle::json::writing

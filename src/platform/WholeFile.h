// Writing a file in one piece: all of it, or as if nothing had been tried.
//
// On top of FileSystem; blocks until the content is on the disk. Files get mode 0600 but
// where it is said otherwise.
#pragma once

#include "platform/FileSystem.h"

namespace vantle {

/// Creates the file with that content. Fails when something stands at the path. A file that could
/// not be filled is removed again.
Result<> createFile(FileSystem& files, const QString& path, QByteArrayView content);

/// Puts the content at the path in one step, over what may stand there: a temporary file beside it,
/// `.{name}.{uuid}.tmp`, is filled and renamed. Missing directories above are made with mode 0700.
/// On failure the path holds what it held before, and no temporary file stays.
Result<> replaceFile(FileSystem& files, const QString& path, QByteArrayView content);

/// As replaceFile, for a file that the person takes away: it has the mode of what stood there, else
/// that of the person's other new files.
Result<> exportFile(FileSystem& files, const QString& path, QByteArrayView content);

} // namespace vantle

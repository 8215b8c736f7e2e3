// Atomic writes of whole files.
//
// Built on FileSystem; returns once the content is on disk. Files get mode 0600 unless stated.
// Blocks; any thread.
#pragma once

#include "platform/FileSystem.h"

namespace vantle {

/// Creates the file with that content. Fails when the path exists. Removes a file that it could not
/// fill.
Result<> createFile(FileSystem& files, const QString& path, QByteArrayView content);

/// Replaces the file atomically: fills a temporary file `.{name}.{uuid}.tmp` beside it and renames
/// it. Creates missing directories with mode 0700. On failure the old content stays and no
/// temporary file is left.
Result<> replaceFile(FileSystem& files, const QString& path, QByteArrayView content);

/// Returns which file a temporary file of that name was to replace; empty when the name does not
/// have the form that replaceFile gives.
[[nodiscard]] QString temporaryFileTarget(const QString& name);

/// Like replaceFile for a file that the user exports: keeps the mode of an existing file, else uses
/// that of the user's new files.
Result<> exportFile(FileSystem& files, const QString& path, QByteArrayView content);

} // namespace vantle

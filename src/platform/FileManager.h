// The user's file manager and trash.
#pragma once

#include "base/Result.h"

#include <QString>

namespace vantle {

/// Main thread. Opening returns at once; a desktop without a file manager shows nothing.
class FileManager {
public:
    virtual ~FileManager() = default;

    /// Shows the file's folder, with the file selected where the file manager can.
    virtual void reveal(const QString& path) = 0;

    /// Shows the content of the folder.
    virtual void openFolder(const QString& path) = 0;

    /// Puts a file or folder into the trash. Blocks.
    [[nodiscard]] virtual Result<> moveToTrash(const QString& path) = 0;
};

} // namespace vantle

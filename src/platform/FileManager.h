// The user's file manager and trash.
#pragma once

#include "base/Result.h"

#include <QString>

namespace vantle {

/// Main thread. Opening returns immediately; without a file manager nothing is shown.
class FileManager {
public:
    virtual ~FileManager() = default;

    /// Shows the file's folder, with the file selected where supported.
    virtual void reveal(const QString& path) = 0;

    /// Shows the content of the folder.
    virtual void openFolder(const QString& path) = 0;

    /// Moves a file or folder to the trash. Blocks.
    [[nodiscard]] virtual Result<> moveToTrash(const QString& path) = 0;
};

} // namespace vantle

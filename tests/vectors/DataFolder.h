// The program's data directory in memory, with the faults that cases name.
#pragma once

#include "fakes/FaultyFileSystem.h"
#include "fakes/MemoryFileSystem.h"
#include "tracking/AppPaths.h"
#include "vectors/FileImage.h"

#include <QMap>

namespace vantle::vectors {

/// An empty support directory, and what a case does to its files from outside.
class DataFolder {
public:
    DataFolder();

    [[nodiscard]] const AppPaths& paths() const { return m_paths; }
    [[nodiscard]] FileSystem& files() { return m_faulty; }

    /// Makes the file what the image says, none meaning that it is not there.
    void put(const QString& name, const std::optional<FileImage>& image);
    [[nodiscard]] std::optional<FileImage> image(const QString& name);

    /// Switches a fault: write:FILE, chmod:FILE, read:FILE, remove:FILE, or "disk full".
    void setFault(const QString& fault, bool on);

    /// Whether `setFault` knows it.
    [[nodiscard]] static bool knows(const QString& fault);

    /// Names of all files that the directory holds, temporary ones too.
    [[nodiscard]] QStringList names() const;

private:
    fakes::MemoryFileSystem m_memory;
    fakes::FaultyFileSystem m_faulty{m_memory};
    AppPaths m_paths{m_faulty, QStringLiteral("/data")};
};

} // namespace vantle::vectors

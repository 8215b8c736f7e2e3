// The data directory in memory, with the faults of cases.
#pragma once

#include "fakes/FaultyFileSystem.h"
#include "fakes/MemoryFileSystem.h"
#include "tracking/AppPaths.h"
#include "vectors/FileImage.h"

#include <QMap>

namespace vantle::vectors {

/// An empty data directory that a case changes from outside.
class DataFolder {
public:
    DataFolder();

    [[nodiscard]] const AppPaths& paths() const { return m_paths; }
    [[nodiscard]] FileSystem& files() { return m_faulty; }

    /// Sets the file to the image; an empty one removes it.
    void put(const QString& name, const std::optional<FileImage>& image);
    [[nodiscard]] std::optional<FileImage> image(const QString& name);

    /// Sets a fault: write:FILE, chmod:FILE, read:FILE, remove:FILE, or "disk full".
    void setFault(const QString& fault, bool on);

    /// Whether `setFault` knows it.
    [[nodiscard]] static bool knows(const QString& fault);

    /// The names of all files, temporary ones too.
    [[nodiscard]] QStringList names() const;

private:
    fakes::MemoryFileSystem m_memory;
    fakes::FaultyFileSystem m_faulty{m_memory};
    AppPaths m_paths{m_faulty, QStringLiteral("/data")};
};

} // namespace vantle::vectors

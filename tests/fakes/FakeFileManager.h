// A file manager that records requests.
#pragma once

#include "platform/FileManager.h"

#include <QStringList>

namespace vantle::fakes {

class FakeFileManager final : public FileManager {
public:
    void reveal(const QString& path) override { revealed << path; }
    void openFolder(const QString& path) override { opened << path; }
    [[nodiscard]] Result<> moveToTrash(const QString& path) override {
        trashed << path;
        return {};
    }

    QStringList revealed;
    QStringList opened;
    QStringList trashed;
};

} // namespace vantle::fakes

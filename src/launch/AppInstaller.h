// Offers to move a program that runs from a download folder to its proper place.
#pragma once

#include "base/Result.h"
#include "launch/InstallLocation.h"
#include "surfaces/alert/ModalPresenter.h"

#include <QLatin1String>
#include <QString>
#include <QStringList>

#include <functional>

namespace vantle {

class FileSystem;
class Preferences;

/// Main thread, once a launch, before anything else of the program is there. Nothing here keeps the
/// program from running: what fails ends in words and a folder shown.
class AppInstaller {
public:
    struct Place {
        QString program; ///< this program's own file, absolute and free of links
        QString home;    ///< the person's home, likewise
        installlocation::Companions companions; ///< what moves along
        bool isReadOnly = false; ///< a mount that can't give the file up, as of a disk image
    };
    struct Operations {
        std::function<int(const Alert&)> runAlert; ///< the index of the chosen button
        std::function<Result<>(const QString& path)> moveToTrash;
        std::function<void(const QString& path)> reveal; ///< in the file manager
        std::function<bool(const QString& program)> start;
        std::function<void()> terminate; ///< this process, soon
    };

    /// The references must outlive this.
    AppInstaller(const Preferences& preferences, FileSystem& files, Place place,
                 Operations operations);

    /// True when a copy in the proper place was started: this process ends, and must not go on with
    /// its launch. The answer is remembered nowhere. Reads and writes whole programs, and blocks
    /// while an alert stands.
    [[nodiscard]] bool offerMoveToApplicationsIfNeeded();

private:
    [[nodiscard]] bool wantsMove() const;
    [[nodiscard]] bool mayReplace(const QString& target) const;
    [[nodiscard]] Result<> copyAll(const QString& target);
    void giveUpSources();
    [[nodiscard]] bool fail();

    const Preferences& m_preferences;
    FileSystem& m_files;
    const Place m_place;
    const Operations m_operations;
};

} // namespace vantle

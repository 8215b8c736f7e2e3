// The offer to move a downloaded program to its proper place.
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

/// Called once per launch, before the rest of the program is constructed. Failures end in an alert
/// and an opened folder; the program starts anyway. Main thread.
class AppInstaller {
public:
    struct Place {
        QString program; ///< the program's own file, absolute, links resolved
        QString home;    ///< the user's home, absolute, links resolved
        installlocation::Companions companions; ///< files to move along
        bool isReadOnly = false; ///< on a mount that cannot delete the file, such as a disk image
    };
    struct Operations {
        std::function<int(const Alert&)> runAlert; ///< returns the index of the chosen button
        std::function<Result<>(const QString& path)> moveToTrash;
        std::function<void(const QString& path)> reveal; ///< in the file manager
        std::function<bool(const QString& program)> start;
        std::function<void()> terminate; ///< ends this process soon
    };

    /// All references must outlive this object.
    AppInstaller(const Preferences& preferences, FileSystem& files, Place place,
                 Operations operations);

    /// Returns true when a copy in the proper place was started: this process must end without
    /// launching. The answer is not stored. Copies whole programs, and blocks while an alert is
    /// open.
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

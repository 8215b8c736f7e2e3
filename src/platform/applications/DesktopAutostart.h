// The login item as a freedesktop.org autostart entry.
#pragma once

#include "platform/Autostart.h"
#include "platform/FileSystem.h"

namespace vantle {

/// The desktop and its settings use the entry too: `Hidden=true` or
/// `X-GNOME-Autostart-enabled=false` in it count as switched off, and registering again replaces
/// it. The entry starts the program with VANTLE_AUTOSTART=1. Reads or writes one small file per
/// call. Main thread.
class DesktopAutostart final : public Autostart {
public:
    /// `entryPath` is the entry, usually `$XDG_CONFIG_HOME/autostart/local.vantle.Vantle.desktop`;
    /// `programPath` the absolute path of the program. `files` must outlive this object.
    DesktopAutostart(FileSystem& files, QString entryPath, QString programPath);

    [[nodiscard]] bool isRegistered() const override;
    Result<> registerItem() override;

    /// Succeeds when nothing is registered.
    Result<> unregisterItem() override;

private:
    FileSystem& m_files;
    const QString m_entryPath;
    const QString m_programPath;
};

} // namespace vantle

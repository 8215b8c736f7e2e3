// The login item of desktops with autostart entries as freedesktop.org describes them.
#pragma once

#include "platform/Autostart.h"
#include "platform/FileSystem.h"

namespace vantle {

/// An entry in the person's autostart directory. The desktop and its settings read it too: an entry
/// that they marked `Hidden=true` or `X-GNOME-Autostart-enabled=false` counts as switched off, and
/// registering again replaces it. The program is started with VANTLE_AUTOSTART=1 in its
/// environment. Main thread; reads or writes one small file a call.
class DesktopAutostart final : public Autostart {
public:
    /// `entryPath` is the entry, usually `$XDG_CONFIG_HOME/autostart/local.vantle.Vantle.desktop`;
    /// `programPath` the absolute path of the program. `files` must outlive this object.
    DesktopAutostart(FileSystem& files, QString entryPath, QString programPath);

    [[nodiscard]] bool isRegistered() const override;
    Result<> registerItem() override;

    /// One that is not registered is no failure.
    Result<> unregisterItem() override;

private:
    FileSystem& m_files;
    const QString m_entryPath;
    const QString m_programPath;
};

} // namespace vantle

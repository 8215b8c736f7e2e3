// The export of a review's poster: clipboard or file.
#pragma once

#include "base/SerialQueue.h"
#include "platform/SaveDialog.h"
#include "surfaces/wrapped/WrappedView.h"

namespace vantle {

class FileSystem;
class ImageClipboard;

/// One save dialog at a time: a new one closes the previous. Writes the file on its own queue,
/// since the folder may be on a slow disk; clock and log do not wait for it. Main thread.
class PosterSharing {
public:
    /// All of it must outlive this object.
    struct Environment {
        ImageClipboard& clipboard;
        SaveDialog& dialog;
        FileSystem& files;
        Scheduler& scheduler;
        SerialQueue& queue; ///< for the file alone
    };

    explicit PosterSharing(const Environment& environment) : m_env(environment) {}

    void copy(const QByteArray& png);

    /// Opens a save dialog above the window and writes the file. Calls `done` from the event loop,
    /// or never when the dialog is closed by another.
    void save(const QByteArray& png, const QString& name, QWindow* above,
              std::function<void(WrappedView::Saved)> done);

private:
    void write(const QByteArray& png, const QString& path,
               std::function<void(WrappedView::Saved)> done);

    const Environment m_env;
    std::unique_ptr<OpenSaveDialog> m_open;
    /// The folder of the last file in this run, where the next dialog starts.
    std::shared_ptr<QString> m_folder = std::make_shared<QString>();
};

} // namespace vantle

// Where the review's poster goes: into the clipboard, or into a file of the person's choice.
#pragma once

#include "base/SerialQueue.h"
#include "platform/SaveDialog.h"
#include "surfaces/wrapped/WrappedView.h"

namespace vantle {

class FileSystem;
class ImageClipboard;

/// One save dialog at a time: asking again takes the one before away. The file is written on a
/// queue of its own, since the chosen folder may be on a disk that takes its time; the session log
/// doesn't wait for that, and neither does the clock. Main thread.
class PosterSharing {
public:
    /// All of it must outlive this.
    struct Environment {
        ImageClipboard& clipboard;
        SaveDialog& dialog;
        FileSystem& files;
        Scheduler& scheduler;
        SerialQueue& queue; ///< for the file alone
    };

    explicit PosterSharing(const Environment& environment) : m_env(environment) {}

    void copy(const QByteArray& png);

    /// Asks for a place in a dialog above the window, and writes there. `done` is called from the
    /// event loop, or never when the dialog is taken away.
    void save(const QByteArray& png, const QString& name, QWindow* above,
              std::function<void(WrappedView::Saved)> done);

private:
    void write(const QByteArray& png, const QString& path,
               std::function<void(WrappedView::Saved)> done);

    const Environment m_env;
    std::unique_ptr<OpenSaveDialog> m_open;
    /// Of the last file in this run; the next dialog begins there.
    std::shared_ptr<QString> m_folder = std::make_shared<QString>();
};

} // namespace vantle

// The port of the dialog that saves a file.
#pragma once

#include <QString>

#include <functional>
#include <memory>
#include <optional>

class QWindow;

namespace vantle {

/// The dialog's content.
struct SaveQuestion {
    QString title;         ///< of the dialog
    QString suggestedName; ///< with its suffix: "poster.png"
    QString folder;        ///< initial folder, absolute; empty for the desktop's choice
    QString kind;          ///< the file type: "PNG image"
    QString ending;        ///< "png"
};

/// An open dialog. Destroying it closes it without an answer; also allowed inside the answer.
class OpenSaveDialog {
public:
    virtual ~OpenSaveDialog() = default;
};

/// The desktop's own dialog. Does not block. Main thread.
class SaveDialog {
public:
    virtual ~SaveDialog() = default;

    /// The absolute path, which may exist: the user confirmed to replace it. Empty when the user
    /// cancelled.
    using Answer = std::function<void(std::optional<QString> path)>;

    /// Opens a dialog for the window `above`, or a free-standing one. Answers once, from the event
    /// loop, unless the dialog or the window is destroyed.
    [[nodiscard]] virtual std::unique_ptr<OpenSaveDialog> ask(const SaveQuestion& question,
                                                              QWindow* above, Answer answer) = 0;
};

} // namespace vantle

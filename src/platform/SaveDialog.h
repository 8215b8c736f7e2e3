// Asking the person for a place to save a file.
#pragma once

#include <QString>

#include <functional>
#include <memory>
#include <optional>

class QWindow;

namespace vantle {

/// What is to be saved.
struct SaveQuestion {
    QString title;         ///< of the dialog
    QString suggestedName; ///< with its ending: "poster.png"
    QString folder;        ///< where to begin, absolute; empty for the desktop's choice
    QString kind;          ///< what such files are called: "PNG image"
    QString ending;        ///< "png"
};

/// A dialog that is open. To destroy it is to take it away: no answer comes afterwards. It may be
/// destroyed inside of its answer.
class OpenSaveDialog {
public:
    virtual ~OpenSaveDialog() = default;
};

/// The desktop's own way of asking. Main thread, which goes on with its work while the person
/// chooses.
class SaveDialog {
public:
    virtual ~SaveDialog() = default;

    /// The absolute path of a file, which may be there already: the person was asked whether it may
    /// be replaced. Nothing when the person turned away.
    using Answer = std::function<void(std::optional<QString> path)>;

    /// Opens a dialog that belongs to the window `above`; without one it stands for itself. Answers
    /// from the event loop, once, unless the dialog is taken away or the window goes.
    [[nodiscard]] virtual std::unique_ptr<OpenSaveDialog> ask(const SaveQuestion& question,
                                                              QWindow* above, Answer answer) = 0;
};

} // namespace vantle

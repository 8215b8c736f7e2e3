// The toolkit's save dialog.
//
// Qt shows the desktop's own where the desktop provides it to Qt.
#pragma once

#include "platform/SaveDialog.h"

namespace vantle {

/// Otherwise it is Qt's dialog in dark colours. Requires a QApplication. Main thread.
class QtSaveDialog final : public SaveDialog {
public:
    [[nodiscard]] std::unique_ptr<OpenSaveDialog> ask(const SaveQuestion& question, QWindow* above,
                                                      Answer answer) override;
};

} // namespace vantle

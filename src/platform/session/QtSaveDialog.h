// The save dialog as Qt has it: the desktop's own where the desktop offers one to Qt.
#pragma once

#include "platform/SaveDialog.h"

namespace vantle {

/// Where the desktop offers none, Qt's own dialog in dark colours. Needs a QApplication.
class QtSaveDialog final : public SaveDialog {
public:
    [[nodiscard]] std::unique_ptr<OpenSaveDialog> ask(const SaveQuestion& question, QWindow* above,
                                                      Answer answer) override;
};

} // namespace vantle

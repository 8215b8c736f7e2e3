// The save dialog of the desktop portal.
#pragma once

#include "platform/SaveDialog.h"

#include <QDBusConnection>

namespace vantle {

/// Uses `otherwise` where the portal or its dialog is missing. The connection and `otherwise` must
/// outlive this object and the dialogs. Main thread.
class PortalSaveDialog final : public SaveDialog {
public:
    PortalSaveDialog(const QDBusConnection& session, SaveDialog& otherwise);

    [[nodiscard]] std::unique_ptr<OpenSaveDialog> ask(const SaveQuestion& question, QWindow* above,
                                                      Answer answer) override;

private:
    QDBusConnection m_session;
    SaveDialog& m_otherwise;
};

} // namespace vantle

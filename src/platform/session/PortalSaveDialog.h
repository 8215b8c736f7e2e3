// The save dialog of the desktop portal, which looks as the desktop's own programs do.
#pragma once

#include "platform/SaveDialog.h"

#include <QDBusConnection>

namespace vantle {

/// Asks the portal, and `otherwise` where there is none or it has no such dialog. The connection
/// and `otherwise` must outlive this and the dialogs.
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

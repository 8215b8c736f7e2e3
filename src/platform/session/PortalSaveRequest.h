// One request to the portal's file chooser.
#pragma once

#include "platform/SaveDialog.h"
#include "platform/session/PortalRequest.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QPointer>

#include <memory>
#include <optional>

namespace vantle {

/// Sent on construction; deletes itself after answering or when abandoned. Main thread.
class PortalSaveRequest final : public QObject {
    Q_OBJECT

public:
    PortalSaveRequest(const QDBusConnection& session, SaveDialog& otherwise, SaveQuestion question,
                      QWindow* above, SaveDialog::Answer answer);

    /// Closes the dialog without an answer.
    void abandon();

private:
    void askOtherwise();
    void finish(const std::optional<QString>& path);
    [[nodiscard]] PortalRequest::Call call() const;

    SaveDialog& m_otherwise;
    const SaveQuestion m_question;
    const QPointer<QWindow> m_above;
    SaveDialog::Answer m_answer; ///< empty when no answer is due
    PortalRequest m_request;
    const QDBusServiceWatcher m_portal;
    std::unique_ptr<OpenSaveDialog> m_other; ///< set where there is no portal
};

} // namespace vantle

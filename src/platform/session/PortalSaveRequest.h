// One request to the portal's file chooser.
#pragma once

#include "platform/SaveDialog.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QPointer>
#include <QVariantMap>

namespace vantle {

/// Sent on construction; deletes itself after answering or when abandoned. Main thread.
class PortalSaveRequest final : public QObject {
    Q_OBJECT

public:
    PortalSaveRequest(const QDBusConnection& session, SaveDialog& otherwise, SaveQuestion question,
                      QWindow* above, SaveDialog::Answer answer);

    /// Closes the dialog without an answer.
    void abandon();

private Q_SLOTS:
    void takeResponse(uint response, const QVariantMap& results);

private:
    void ask(const QString& token);
    void listenAt(const QString& path);
    void askOtherwise();
    void finish(const std::optional<QString>& path);
    [[nodiscard]] QVariantMap options(const QString& token) const;

    QDBusConnection m_session;
    SaveDialog& m_otherwise;
    const SaveQuestion m_question;
    const QPointer<QWindow> m_above;
    SaveDialog::Answer m_answer; ///< empty when no answer is due
    QString m_path;              ///< of the request object
    QDBusServiceWatcher m_portal;
    std::unique_ptr<OpenSaveDialog> m_other; ///< set where there is no portal
};

} // namespace vantle

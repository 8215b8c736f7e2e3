// One question to the portal's file chooser.
#pragma once

#include "platform/SaveDialog.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QPointer>
#include <QVariantMap>

namespace vantle {

/// Asks when it is made, and deletes itself once it has answered or is abandoned. Main thread.
class PortalSaveRequest final : public QObject {
    Q_OBJECT

public:
    PortalSaveRequest(const QDBusConnection& session, SaveDialog& otherwise, SaveQuestion question,
                      QWindow* above, SaveDialog::Answer answer);

    /// Takes the dialog away; no answer comes.
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
    SaveDialog::Answer m_answer; ///< empty once nothing is waited for
    QString m_path;              ///< of the question on the bus
    QDBusServiceWatcher m_portal;
    std::unique_ptr<OpenSaveDialog> m_other; ///< where there is no portal
};

} // namespace vantle

// The notifications of changes for history views and the welcome.
#pragma once

#include <QObject>

namespace vantle {

/// One object per process, made by the launch code. Main thread.
class NotificationCenter : public QObject {
    Q_OBJECT

Q_SIGNALS:
    /// The log or the duration style changed: reload.
    void HFSessionsChanged();

    /// The card after a session closed, for any reason.
    void HFStopSummaryResolved();

    /// The user asks for the welcome again.
    void HFShowWelcome();
};

} // namespace vantle

// News for whoever watches: history views, and the welcome.
#pragma once

#include <QObject>

namespace vantle {

/// One for the process, made by the composition root. Main thread.
class NotificationCenter : public QObject {
    Q_OBJECT

Q_SIGNALS:
    /// The log, or the way in which durations are written, has changed: reload.
    void HFSessionsChanged();

    /// The card after a session has closed, whichever way.
    void HFStopSummaryResolved();

    /// The person asks for the welcome again.
    void HFShowWelcome();
};

} // namespace vantle

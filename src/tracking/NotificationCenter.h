// News for every history view.
#pragma once

#include <QObject>

namespace vantle {

/// One for the process, made by the composition root. Main thread.
class NotificationCenter : public QObject {
    Q_OBJECT

Q_SIGNALS:
    /// The log, or the way in which durations are written, has changed: reload.
    void HFSessionsChanged();
};

} // namespace vantle

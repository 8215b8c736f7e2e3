// The evidence for time credited before the start.
#pragma once

#include <QObject>

namespace vantle {

/// Tells whether the user was at the machine. A QObject, so that the tracker can hold it weakly.
/// Main thread.
class ActivityEvidence : public QObject {
    Q_OBJECT

public:
    /// Returns true when input is proven throughout the last `minutes` minutes; false when it is
    /// unknown.
    [[nodiscard]] virtual bool wasActiveForLast(int minutes) = 0;
};

} // namespace vantle

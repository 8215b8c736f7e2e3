// What the tracker asks before it credits time that lies before the press.
#pragma once

#include <QObject>

namespace vantle {

/// Answers whether the person was at the machine. A QObject so that the tracker can hold it weakly.
/// Main thread.
class ActivityEvidence : public QObject {
    Q_OBJECT

public:
    /// True when the machine saw input all through the last `minutes` minutes, as far as can be
    /// told. Lack of knowledge is false.
    [[nodiscard]] virtual bool wasActiveForLast(int minutes) = 0;
};

} // namespace vantle

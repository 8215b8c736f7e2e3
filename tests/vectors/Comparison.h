// Whether an answer is the expected one.
#pragma once

#include <QJsonValue>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

namespace vantle::vectors {

/// How exact a form compares. The default is exact but for the last digits of a double: dates are
/// seconds since 1970, of which a relative 1e-9 would already be almost two seconds.
struct Comparison {
    double relativeTolerance = 1e-12;
    double absoluteTolerance = 0;

    /// Members of objects that are never compared, wherever they stand.
    QStringList ignoredKeys;

    /// Members whose objects count only as far as the expected one names members.
    QStringList partialObjects;

    /// Applied to both sides first, where two texts of one meaning have to become one.
    std::function<QJsonValue(const QJsonValue&)> normalized;
};

/// One place at which an answer differs. What is not there at all is an undefined value.
struct Difference {
    QString path; ///< as in "steps[3].state.now"
    QJsonValue expected;
    QJsonValue got;
};

[[nodiscard]] QList<Difference> differences(const QJsonValue& expected, const QJsonValue& got,
                                            const Comparison& comparison);

/// `value` as compact JSON; "(absent)" for an undefined one.
[[nodiscard]] QString jsonText(const QJsonValue& value);

} // namespace vantle::vectors

// The comparison of an answer with the expected one.
#pragma once

#include <QJsonValue>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

namespace vantle::vectors {

/// The precision of a form. The default allows only the last digits of a double to differ: dates
/// are seconds since 1970, where a relative 1e-9 would be almost two seconds.
struct Comparison {
    double relativeTolerance = 1e-12;
    double absoluteTolerance = 0;

    /// Object members that are never compared.
    QStringList ignoredKeys;

    /// Members whose objects are compared only in the members that are expected.
    QStringList partialObjects;

    /// Applied to both sides first, to unify texts of equal meaning.
    std::function<QJsonValue(const QJsonValue&)> normalized;
};

/// One difference. A missing value is undefined.
struct Difference {
    QString path; ///< as in "steps[3].state.now"
    QJsonValue expected;
    QJsonValue got;
};

[[nodiscard]] QList<Difference> differences(const QJsonValue& expected, const QJsonValue& got,
                                            const Comparison& comparison);

/// Returns `value` as compact JSON; "(absent)" if undefined.
[[nodiscard]] QString jsonText(const QJsonValue& value);

} // namespace vantle::vectors

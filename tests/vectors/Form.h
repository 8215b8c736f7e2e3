// The interface of drivers: a form of cases.
#pragma once

#include "vectors/Case.h"
#include "vectors/Comparison.h"

#include <QJsonValue>
#include <QString>

#include <functional>

namespace vantle::vectors {

/// A kind of vector file and its driver.
struct Form {
    QString name; ///< as in the file name

    /// Runs the code under test on the case. Returns the answer in the shape of `expect`, with the
    /// case's symbolic ids. A fresh world for every call.
    std::function<QJsonValue(const Case&)> answer;

    Comparison comparison;

    /// Whether the driver can inject that fault; cases with other faults are skipped. Empty: none.
    std::function<bool(const QString& fault)> injects;
};

/// All forms with a driver.
[[nodiscard]] const QList<Form>& allForms();

/// The answer to an unknown case or event, which matches no expectation.
[[nodiscard]] QJsonValue unknown(const QString& what);

} // namespace vantle::vectors

// The frame for drivers: what a form of cases is made of.
#pragma once

#include "vectors/Case.h"
#include "vectors/Comparison.h"

#include <QJsonValue>
#include <QString>

#include <functional>

namespace vantle::vectors {

/// A kind of vector file and the driver that answers its cases.
struct Form {
    QString name; ///< as in the file name

    /// What the code under test makes of the case, in the shape of its `expect`, with symbolic ids
    /// where the case has them. A fresh world for every call.
    std::function<QJsonValue(const Case&)> answer;

    Comparison comparison;

    /// Whether the driver can inject that fault; a case that needs another is skipped. No function:
    /// it can inject none.
    std::function<bool(const QString& fault)> injects;
};

/// Every form that has a driver.
[[nodiscard]] const QList<Form>& allForms();

/// The answer to a case or an event that the driver doesn't know: equal to nothing expected.
[[nodiscard]] QJsonValue unknown(const QString& what);

} // namespace vantle::vectors

// A recorded case: input and expected output, as data.
#pragma once

#include "base/Result.h"

#include <QJsonObject>
#include <QJsonValue>
#include <QList>
#include <QString>
#include <QStringList>

namespace vantle::vectors {

struct Case {
    QString name;
    QString kind; ///< kind within its form; empty for forms with one kind
    QJsonObject input;
    QJsonValue expect;
    QList<QJsonValue> alternatives; ///< other correct answers
    bool doubtful = false;          ///< depends on an interpretation that the rules leave open
    QString reading;                ///< the interpretation, for the report
    QStringList needs;              ///< faults that the case injects
    QString folder;                 ///< folder of its file, for references
};

/// Loads the cases of `form` at `path`: from that file, or from the folder's `<form>.json` and all
/// `.json` files in its subfolder `<form>`. Fails when a file is unreadable or no list of cases.
Result<QList<Case>> loadCases(const QString& form, const QString& path);

} // namespace vantle::vectors

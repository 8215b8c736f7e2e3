// One recorded case: what goes in and what has to come out, as data.
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
    QString kind; ///< which sort of case within its form; empty where the form has one sort only
    QJsonObject input;
    QJsonValue expect;
    QList<QJsonValue> alternatives; ///< other answers that are as good as `expect`
    bool doubtful = false;          ///< hangs on a reading that the rules leave open
    QString reading;                ///< which reading, for the report
    QStringList needs;              ///< faults that the case injects
    QString folder;                 ///< where its file lies, for files that it refers to
};

/// The cases of `form` at `path`: of that file, or of the folder's `<form>.json` and of every
/// `.json` file in its subfolder `<form>`. Fails when a file can't be read or is no list of cases.
Result<QList<Case>> loadCases(const QString& form, const QString& path);

} // namespace vantle::vectors

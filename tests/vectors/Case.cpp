#include "vectors/Case.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

namespace vantle::vectors {
namespace {

QStringList filesAt(const QString& form, const QString& path) {
    if (!QFileInfo(path).isDir()) return {path};
    QStringList files;
    const QString single = QDir(path).filePath(form + QLatin1String(".json"));
    if (QFileInfo::exists(single)) files << single;
    const QDir many(QDir(path).filePath(form));
    for (const QString& name : many.entryList({QStringLiteral("*.json")}, QDir::Files, QDir::Name))
        files << many.filePath(name);
    return files;
}

QString compact(const QJsonValue& value) {
    if (value.isString()) return value.toString();
    return QString::fromUtf8(QJsonDocument(value.toArray()).toJson(QJsonDocument::Compact));
}

Case caseFrom(const QJsonObject& object, const QString& folder) {
    Case result;
    result.name = object[QLatin1String("name")].toString();
    result.input = object[QLatin1String("input")].toObject();
    const QJsonValue kind = object[QLatin1String("kind")];
    result.kind = (kind.isString() ? kind : result.input[QLatin1String("kind")]).toString();
    result.expect = object[QLatin1String("expect")];
    for (const QJsonValue other : object[QLatin1String("alternatives")].toArray())
        result.alternatives << other.toObject()[QLatin1String("expect")];
    result.doubtful = object.contains(QLatin1String("doubtful"));
    if (result.doubtful) result.reading = compact(object[QLatin1String("doubtful")]);
    for (const QJsonValue need : object[QLatin1String("needs")].toArray())
        result.needs << need.toString();
    result.folder = folder;
    return result;
}

} // namespace

Result<QList<Case>> loadCases(const QString& form, const QString& path) {
    QList<Case> cases;
    for (const QString& name : filesAt(form, path)) {
        QFile file(name);
        if (!file.open(QIODevice::ReadOnly))
            return Error{0, QStringLiteral("open"), name, file.errorString()};
        QJsonParseError problem;
        const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &problem);
        if (problem.error != QJsonParseError::NoError)
            return Error{0, QStringLiteral("parse"), name, problem.errorString()};
        if (!document.isArray())
            return Error{0, QStringLiteral("parse"), name, QStringLiteral("not a list of cases")};
        const QString folder = QFileInfo(name).absolutePath();
        for (const QJsonValue item : document.array())
            cases << caseFrom(item.toObject(), folder);
    }
    return cases;
}

} // namespace vantle::vectors

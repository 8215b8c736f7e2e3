#include "lab/Account.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QStringDecoder>

namespace vantle::tests {

namespace {

std::optional<QByteArray> content(FileSystem& disk, const QString& path) {
    if (auto read = disk.readAll(path)) return read.value();
    return std::nullopt;
}

std::optional<QByteArray> dataFile(FileSystem& disk, const QString& name) {
    const QString base = QStringLiteral("/home/ada/.local/share/");
    if (auto found = content(disk, base + QStringLiteral("Vantle/") + name)) return found;
    return content(disk, base + QStringLiteral("Hourfold/") + name);
}

void list(FileSystem& disk, const QString& directory, QStringList& files) {
    auto names = disk.names(directory);
    if (!names) {
        files.append(directory);
        return;
    }
    names.value().sort();
    for (const QString& name : names.value())
        list(disk, directory + QLatin1Char('/') + name, files);
}

} // namespace

Account Account::of(FileSystem& disk) {
    Account account;
    account.log = dataFile(disk, QStringLiteral("sessions.jsonl")).value_or(QByteArray());
    for (const QByteArray& line : account.log.split('\n')) {
        if (line.isEmpty()) continue;
        const QJsonObject record = QJsonDocument::fromJson(line).object();
        const QString id = record.value(QStringLiteral("id")).toString();
        // Qt's reader lets zeros within a text pass, which a lost sector leaves there.
        if (id.isEmpty() || line.contains('\0')) {
            account.foreign.append(line);
            continue;
        }
        if (account.records.contains(id)) account.doubled.append(id);
        account.records.insert(id, record);
    }
    if (const auto skills = dataFile(disk, QStringLiteral("skills.json")))
        account.skills = QJsonDocument::fromJson(*skills).array();
    else
        account.skills = QJsonValue(QJsonValue::Undefined);
    account.rules = QJsonValue(QJsonValue::Undefined);
    if (const auto rules = dataFile(disk, QStringLiteral("auto-rules.json")))
        account.rules = QJsonDocument::fromJson(*rules).object().value(QStringLiteral("rules"));
    account.exported = content(disk, QLatin1String(kExportedFile));
    list(disk, QStringLiteral("/home/ada"), account.files);
    account.temporaries = account.files.filter(QStringLiteral(".tmp"));
    return account;
}

QList<QJsonObject> Account::startingAt(qint64 second) const {
    QList<QJsonObject> found;
    for (const QJsonObject& record : records) {
        const QString start = record.value(QStringLiteral("startedAt")).toString();
        if (QDateTime::fromString(start, Qt::ISODate).toSecsSinceEpoch() == second)
            found.append(record);
    }
    return found;
}

bool Account::isHidden() const {
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder(log);
    return decoder.hasError() || text.contains(QChar::ReplacementCharacter);
}

} // namespace vantle::tests

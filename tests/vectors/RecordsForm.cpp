// The records, their JSON form, and the files they lie in.
#include "base/Iso8601.h"
#include "base/Text.h"
#include "tracking/JsonForm.h"
#include "tracking/SessionLines.h"
#include "vectors/DataFolder.h"
#include "vectors/NeutralRecords.h"
#include "vectors/forms.h"

#include <QFileInfo>
#include <QMap>

#include <cerrno>

namespace vantle::vectors {

namespace {

using Operation = fakes::FaultyFileSystem::Operation;

QByteArray bytesOf(const QJsonObject& input) {
    const auto image = imageFromJson(input[QLatin1String("bytes")]);
    return image ? image->bytes : QByteArray();
}

QJsonObject one(const char* key, const QJsonValue& value) {
    return {{QString::fromLatin1(key), value}};
}

QJsonValue textOf(const Result<QByteArray>& encoded) {
    return encoded ? QJsonValue(QString::fromUtf8(encoded.value())) : QJsonValue::Null;
}

QJsonValue acceptable(const QJsonObject& input) {
    const Session session = sessionFromJson(input[QLatin1String("session")]);
    return QJsonObject{{QStringLiteral("ok"), isAcceptable(session)},
                       {QStringLiteral("firstFailingRule"), firstFailingRule(session)}};
}

QJsonValue splitLines(const QJsonObject& input) {
    QJsonArray pieces;
    sessionlines::forEachLine(input[QLatin1String("text")].toString().toUtf8(),
                              [&](QByteArrayView line) { pieces << QString::fromUtf8(line); });
    return one("pieces", pieces);
}

QJsonValue formatDate(const QJsonObject& input) {
    const auto text = iso8601::format(dateFromJson(input[QLatin1String("epoch")]));
    if (!text) return one("text", QJsonValue::Null);
    return one("text", QString::fromLatin1(text->data(), qsizetype(text->size())));
}

QJsonValue parseDate(const QJsonObject& input) {
    return one("epoch", toJson(iso8601::parse(
                            input[QLatin1String("text")].toString().toUtf8().toStdString())));
}

/// Each directory holds a file that tells where it came from.
QJsonValue supportDir(const QJsonObject& input) {
    fakes::MemoryFileSystem memory;
    fakes::FaultyFileSystem faulty(memory);
    const QString primary = QStringLiteral("/data/Vantle");
    const QString old = QStringLiteral("/data/Hourfold");
    const auto mark = [](const QString& directory) { return directory + QLatin1String("/origin"); };
    memory.setDirectory(QStringLiteral("/data"));
    const bool hadPrimary = input[QLatin1String("primary")].toBool();
    const bool hadOld = input[QLatin1String("old")].toBool();
    if (hadPrimary) memory.setContent(mark(primary), "primary");
    if (hadOld) memory.setContent(mark(old), "old");
    if (input[QLatin1String("moveFails")].toBool()) faulty.fail(Operation::Rename, old, EACCES);
    if (input[QLatin1String("createFails")].toBool())
        faulty.fail(Operation::MakeDirectories, primary, EACCES);

    const QString returned = AppPaths(faulty, QStringLiteral("/data")).supportDir();
    const bool hasPrimary = memory.exists(primary);
    const bool moved = hadOld && !memory.exists(old);
    const QString content = QString::fromUtf8(memory.content(mark(primary)).value_or("empty"));
    return QJsonObject{{QStringLiteral("primaryExists"), hasPrimary},
                       {QStringLiteral("oldExists"), memory.exists(old)},
                       {QStringLiteral("moved"), moved},
                       {QStringLiteral("created"), !hadPrimary && hasPrimary && !moved},
                       {QStringLiteral("primaryContent"),
                        hasPrimary ? QJsonValue(content) : QJsonValue(QJsonValue::Null)},
                       {QStringLiteral("returns"), QFileInfo(returned).fileName()}};
}

QJsonValue dataFiles() {
    DataFolder folder;
    QJsonArray names;
    for (const QString& path : folder.paths().allDataFiles())
        names << QFileInfo(path).fileName();
    return one("names", names);
}

QJsonValue writeProtected(const QJsonObject& input) {
    const QString name = QStringLiteral("target.json");
    DataFolder folder;
    auto existing = imageFromJson(input[QLatin1String("existing")]);
    const QString mode = input[QLatin1String("existingMode")].toString();
    if (existing && !mode.isEmpty()) existing->mode = mode.toInt(nullptr, 8);
    folder.put(name, existing);
    folder.setFault(QStringLiteral("disk full"), input[QLatin1String("diskFull")].toBool());

    const auto data = imageFromJson(input[QLatin1String("data")]);
    const Result<> written = folder.paths().writeProtected(
        data ? data->bytes : QByteArray(), folder.paths().supportDir() + QLatin1Char('/') + name);
    // In the answer the mode stands beside the content.
    QJsonValue content = imageToJson(folder.image(name));
    QJsonValue modeAfter = QJsonValue::Null;
    if (content.isObject()) {
        QJsonObject image = content.toObject();
        modeAfter = image.take(QLatin1String("mode"));
        content = image;
    }
    QStringList others = folder.names();
    others.removeAll(name);
    return QJsonObject{{QStringLiteral("threw"), !written.ok()},
                       {QStringLiteral("content"), content},
                       {QStringLiteral("mode"), modeAfter},
                       {QStringLiteral("temporaryFileLeft"), !others.isEmpty()}};
}

QJsonValue answer(const Case& item) {
    const QJsonObject& input = item.input;
    const QString given = input[QLatin1String("text")].toString();
    const QMap<QString, std::function<QJsonValue()>> kinds = {
        {QStringLiteral("acceptable"), [&] { return acceptable(input); }},
        {QStringLiteral("encodeSession"),
         [&] {
             return one("text",
                        textOf(json::encode(sessionFromJson(input[QLatin1String("session")]))));
         }},
        {QStringLiteral("encodeMarker"),
         [&] {
             return one("text",
                        textOf(json::encode(markerFromJson(input[QLatin1String("marker")]))));
         }},
        {QStringLiteral("encodeSkills"),
         [&] {
             return one("text",
                        textOf(json::encode(skillsFromJson(input[QLatin1String("skills")]))));
         }},
        {QStringLiteral("decodeSession"),
         [&] { return one("session", toJson(json::decodeSession(bytesOf(input)))); }},
        {QStringLiteral("decodeMarker"),
         [&] { return one("marker", toJson(json::decodeMarker(bytesOf(input)))); }},
        {QStringLiteral("decodeSkills"),
         [&] { return one("skills", toJson(json::decodeSkills(bytesOf(input)))); }},
        {QStringLiteral("splitLines"), [&] { return splitLines(input); }},
        {QStringLiteral("formatDate"), [&] { return formatDate(input); }},
        {QStringLiteral("parseDate"), [&] { return parseDate(input); }},
        {QStringLiteral("characters"),
         [&] { return one("count", toJson(std::int64_t{text::characterCount(given)})); }},
        {QStringLiteral("trim"), [&] { return one("text", text::trimmed(given)); }},
        {QStringLiteral("supportDir"), [&] { return supportDir(input); }},
        {QStringLiteral("dataFiles"), [] { return dataFiles(); }},
        {QStringLiteral("writeProtected"), [&] { return writeProtected(input); }}};
    const auto kind = kinds.find(item.kind);
    return kind == kinds.end() ? unknown(item.kind) : (*kind)();
}

} // namespace

Form recordsForm() {
    Form form;
    form.name = QStringLiteral("records");
    form.answer = answer;
    form.injects = DataFolder::knows;
    return form;
}

} // namespace vantle::vectors

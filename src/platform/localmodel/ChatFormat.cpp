#include "platform/localmodel/ChatFormat.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace vantle::chatformat {

namespace {

QString nameOf(Role role) {
    switch (role) {
    case Role::System:
        return QStringLiteral("system");
    case Role::User:
        return QStringLiteral("user");
    case Role::Assistant:
        return QStringLiteral("assistant");
    }
    return {};
}

QByteArray requestBody(const QString& model, const std::vector<Message>& conversation) {
    QJsonArray messages;
    for (const Message& message : conversation)
        messages << QJsonObject{{QStringLiteral("role"), nameOf(message.role)},
                                {QStringLiteral("content"), message.text}};
    QJsonObject body{{QStringLiteral("messages"), messages}, {QStringLiteral("stream"), false}};
    if (!model.isEmpty()) body[QLatin1String("model")] = model;
    return QJsonDocument(body).toJson(QJsonDocument::Compact);
}

} // namespace

QByteArray request(const QString& model, const std::vector<Message>& conversation) {
    const QByteArray body = requestBody(model, conversation);
    return "POST /v1/chat/completions HTTP/1.1\r\n"
           "Host: localhost\r\n"
           "Accept: application/json\r\n"
           "Content-Type: application/json\r\n"
           "Content-Length: " +
           QByteArray::number(body.size()) +
           "\r\n"
           "Connection: close\r\n"
           "\r\n" +
           body;
}

std::optional<QString> answer(const QByteArray& body) {
    const QJsonValue content = QJsonDocument::fromJson(body)
                                   .object()[QLatin1String("choices")]
                                   .toArray()
                                   .first()
                                   .toObject()[QLatin1String("message")]
                                   .toObject()[QLatin1String("content")];
    if (!content.isString()) return std::nullopt;
    return content.toString();
}

} // namespace vantle::chatformat

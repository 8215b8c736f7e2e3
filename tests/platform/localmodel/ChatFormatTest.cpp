#include "platform/localmodel/ChatFormat.h"

#include "support/QtPrinters.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

namespace vantle::chatformat {
namespace {

QString q(const char* text) { return QString::fromUtf8(text); }

/// The body of a request, whose length is as its head says.
QByteArray bodyOf(const QByteArray& request) {
    const qsizetype end = request.indexOf("\r\n\r\n") + 4;
    const QByteArray body = request.sliced(end);
    EXPECT_TRUE(
        request.contains("\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n"));
    return body;
}

TEST(ChatFormat, RequestIsOnePostOfTheWholeConversation) {
    const QByteArray asked = request(QString(), {{Role::System, q("Be short.")},
                                                 {Role::User, q("Why?\n\"So\"")},
                                                 {Role::Assistant, q("Caf\u00E9.")},
                                                 {Role::User, q("Again.")}});
    EXPECT_TRUE(asked.startsWith("POST /v1/chat/completions HTTP/1.1\r\nHost: localhost\r\n"));
    EXPECT_TRUE(asked.contains("\r\nContent-Type: application/json\r\n"));
    EXPECT_TRUE(asked.contains("\r\nConnection: close\r\n"));
    EXPECT_EQ(bodyOf(asked), "{\"messages\":["
                             "{\"content\":\"Be short.\",\"role\":\"system\"},"
                             "{\"content\":\"Why?\\n\\\"So\\\"\",\"role\":\"user\"},"
                             "{\"content\":\"Caf\u00E9.\",\"role\":\"assistant\"},"
                             "{\"content\":\"Again.\",\"role\":\"user\"}],\"stream\":false}");
}

TEST(ChatFormat, RequestNamesTheModelThatWasChosen) {
    const auto body = QJsonDocument::fromJson(bodyOf(request(q("small"), {}))).object();
    EXPECT_EQ(body[QLatin1String("model")].toString(), q("small"));
    EXPECT_EQ(body.keys(), (QStringList{q("messages"), q("model"), q("stream")}))
        << "no sampling, temperature or limit";
}

TEST(ChatFormat, AnswerIsTheContentOfTheFirstChoice) {
    EXPECT_EQ(answer("{\"id\":\"x\",\"choices\":[{\"index\":0,\"message\":{\"role\":\"assistant\","
                     "\"content\":\"You did \\u00e9.\"}},{\"message\":{\"content\":\"no\"}}]}"),
              q("You did \u00E9."));
    EXPECT_EQ(answer("{\"choices\":[{\"message\":{\"content\":\"\"}}]}"), QString());
}

TEST(ChatFormat, OtherBodiesHoldNone) {
    for (const char* body :
         {"", "null", "[]", "{}", "\"text\"", "not json", "{\"error\":{\"message\":\"busy\"}}",
          "{\"choices\":[]}", "{\"choices\":{}}", "{\"choices\":[null]}", "{\"choices\":[{}]}",
          "{\"choices\":[{\"message\":{\"content\":null}}]}",
          "{\"choices\":[{\"message\":{\"content\":7}}]}",
          "{\"choices\":[{\"message\":{\"content\":\"cut off",
          "{\"choices\":[{\"message\":{\"content\":\"\xFF\"}}]}"})
        EXPECT_EQ(answer(body), std::nullopt) << body;
    EXPECT_EQ(answer(QByteArray(100000, '[')), std::nullopt) << "deeper than a parser may go";
}

} // namespace
} // namespace vantle::chatformat

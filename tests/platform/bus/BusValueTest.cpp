#include "platform/bus/BusValue.h"

#include "support/AnsweringObject.h"
#include "support/Buses.h"

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QList>
#include <QMap>
#include <QStringList>
#include <QVariantMap>

#include <gtest/gtest.h>

namespace vantle {
namespace {

/// A program that sends back what it gets.
class BusValueTest : public testing::Test {
protected:
    BusValueTest() { qDBusRegisterMetaType<QMap<QString, QString>>(); }

    /// Returns the value as it arrives over a bus.
    [[nodiscard]] QVariant sent(const QVariant& value) {
        auto call = QDBusMessage::createMethodCall(m_other.bus().baseService(), kPath, {},
                                                   QStringLiteral("Echo"));
        call << value;
        const QDBusMessage answer = m_client.bus().call(call, QDBus::BlockWithGui);
        EXPECT_EQ(answer.type(), QDBusMessage::ReplyMessage);
        return answer.arguments().value(0);
    }

    const QString kPath = QStringLiteral("/echo");
    tests::BusClient m_other;
    tests::BusClient m_client;
    tests::AnsweringObject m_echo{m_other.bus(), kPath, [this](const QDBusMessage& call) {
                                      m_other.bus().send(call.createReply(call.arguments()));
                                  }};
};

const QVariantMap kMap{{QStringLiteral("state"), 1.0}};
const QStringList kTexts{QStringLiteral("one"), QStringLiteral("two")};

TEST_F(BusValueTest, ValueOfTheTypeIsRead) {
    EXPECT_EQ(busValue<bool>(sent(true)), true);
    EXPECT_EQ(busValue<bool>(sent(false)), false);
    EXPECT_EQ(busValue<uint>(sent(7U)), 7U);
    EXPECT_EQ(busValue<QString>(sent(kTexts[0])), kTexts[0]);
    EXPECT_EQ(busValue<QStringList>(sent(kTexts)), kTexts);
    EXPECT_EQ(busValue<QVariantMap>(sent(kMap)), kMap);
    EXPECT_EQ(busValue<QList<int>>(sent(QVariant::fromValue(QList<int>{1, 2}))),
              (QList<int>{1, 2}));
}

TEST_F(BusValueTest, ValueOfAnotherTypeIsNone) {
    const QVariantList others{
        1,
        kTexts[0],
        kTexts,
        QVariant::fromValue(QDBusObjectPath(kPath)),
        QVariant::fromValue(QList<int>{1, 2}),
        QVariant::fromValue(QDBusVariant(kMap)),
        QVariant::fromValue(QMap<QString, QString>{{kTexts[0], kTexts[1]}}),
    };
    for (const QVariant& other : others) {
        const QVariant arrived = sent(other);
        EXPECT_EQ(busValue<bool>(arrived), std::nullopt) << arrived.typeName();
        EXPECT_EQ(busValue<uint>(arrived), std::nullopt) << arrived.typeName();
        EXPECT_EQ(busValue<QVariantMap>(arrived), std::nullopt) << arrived.typeName();
        EXPECT_EQ(busValue<QList<bool>>(arrived), std::nullopt) << arrived.typeName();
    }
}

TEST_F(BusValueTest, MissingArgumentIsNone) {
    EXPECT_EQ(busValue<bool>({}), std::nullopt);
    EXPECT_EQ(busValue<QVariantMap>({}), std::nullopt);
}

TEST(ObjectPath, HasASlashBeforeEachName) {
    for (const char* path : {"/", "/a", "/org/freedesktop/portal/desktop/session/1_2"})
        EXPECT_TRUE(isObjectPath(QString::fromLatin1(path))) << path;
    for (const char* text : {"", "a", "//", "/a/", "/a b", "/a-b", "/a\n", "/\n"})
        EXPECT_FALSE(isObjectPath(QString::fromLatin1(text))) << text;
}

} // namespace
} // namespace vantle

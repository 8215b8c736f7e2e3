#include "platform/bus/FollowedService.h"

#include "support/Await.h"
#include "support/Buses.h"

#include <QDBusContext>
#include <QDBusVariant>

#include <gtest/gtest.h>

#include <utility>

namespace vantle {
namespace {

using tests::await;
using tests::BusClient;

const QString kName = QStringLiteral("local.vantle.test.Shop");
const QString kPath = QStringLiteral("/shop");

/// The service. Answers at once, or when it is told to.
class Shop final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "local.vantle.test.Shop")
    Q_PROPERTY(int Stock MEMBER stock)

public:
    int stock = 7;
    bool hesitates = false;
    int asked = 0;

    void open() {
        m_client.bus().registerObject(kPath, this,
                                      QDBusConnection::ExportAllInvokables |
                                          QDBusConnection::ExportAllProperties);
        ASSERT_TRUE(m_client.takeName(kName));
    }
    void giveNameUp() { m_client.bus().interface()->unregisterService(kName); }
    void close() { m_client.leave(); }
    void answer() { m_client.bus().send(m_question.createReply(stock)); }
    void ring(const QString& customer) { ring(m_client, customer); }
    static void ring(BusClient& who, const QString& customer) {
        auto signal = QDBusMessage::createSignal(kPath, kName, QStringLiteral("Bell"));
        who.bus().send(signal << customer);
    }

    Q_INVOKABLE int Count() {
        ++asked;
        if (hesitates) {
            setDelayedReply(true);
            m_question = message();
        }
        return stock;
    }
    Q_INVOKABLE void Refuse() const { sendErrorReply(QDBusError::AccessDenied); }

private:
    BusClient m_client;
    QDBusMessage m_question;
};

class FollowedServiceTest : public testing::Test {
protected:
    FollowedServiceTest() {
        QObject::connect(&m_service, &FollowedService::came, &m_service, [this] { ++m_came; });
        QObject::connect(&m_service, &FollowedService::gone, &m_service, [this] { ++m_gone; });
    }
    [[nodiscard]] bool meet() {
        m_shop.open();
        return await([this] { return m_service.isThere(); });
    }
    void count() {
        m_service.ask<int>(
            m_service.call(kPath, kName, QStringLiteral("Count")),
            [this](int stock) { m_counted << stock; }, [this] { ++m_failed; });
    }

    Shop m_shop;
    BusClient m_client;
    FollowedService m_service{m_client.bus(), kName};
    int m_came = 0, m_gone = 0, m_failed = 0;
    QList<int> m_counted;
};

TEST_F(FollowedServiceTest, TellsOfAServiceThatIsThereAlready) {
    m_shop.open();
    FollowedService service(m_client.bus(), kName);
    EXPECT_FALSE(service.isThere()) << "nothing is waited for";
    int came = 0;
    QObject::connect(&service, &FollowedService::came, &service, [&] { ++came; });
    EXPECT_TRUE(await([&] { return service.isThere(); }));
    tests::runFor(50);
    EXPECT_EQ(came, 1);
}

TEST_F(FollowedServiceTest, TellsThatAServiceIsNotThere) {
    EXPECT_TRUE(await([&] { return m_gone == 1; }));
    EXPECT_EQ(m_came, 0);
    EXPECT_FALSE(m_service.isThere());
}

TEST_F(FollowedServiceTest, FollowsAServiceThatComesGoesAndComesBack) {
    ASSERT_TRUE(await([&] { return m_gone == 1; }));
    ASSERT_TRUE(meet());
    m_shop.close();
    EXPECT_TRUE(await([&] { return !m_service.isThere(); }));
    Shop again;
    again.open();
    EXPECT_TRUE(await([&] { return m_service.isThere(); }));
    EXPECT_EQ(m_came, 2);
    EXPECT_EQ(m_gone, 2);
}

TEST_F(FollowedServiceTest, AsksForAnswersAndProperties) {
    ASSERT_TRUE(meet());
    count();
    EXPECT_TRUE(await([&] { return m_counted == QList<int>{7}; }));
    int stock = 0;
    m_service.ask<QDBusVariant>(
        m_service.get(kPath, kName, QStringLiteral("Stock")),
        [&](const QDBusVariant& value) { stock = value.variant().toInt(); });
    EXPECT_TRUE(await([&] { return stock == 7; }));
    EXPECT_EQ(m_failed, 0);
}

TEST_F(FollowedServiceTest, AnErrorAndAnAnswerOfAnotherTypeAreFailures) {
    ASSERT_TRUE(meet());
    int taken = 0, failed = 0;
    m_service.ask<int>(
        m_service.call(kPath, kName, QStringLiteral("Refuse")), [&](int) { ++taken; },
        [&] { ++failed; });
    m_service.ask<QString>(
        m_service.call(kPath, kName, QStringLiteral("Count")), [&](const QString&) { ++taken; },
        [&] { ++failed; });
    EXPECT_TRUE(await([&] { return failed == 2; }));
    EXPECT_EQ(taken, 0);
}

TEST_F(FollowedServiceTest, AnAnswerOfAFormerOwnerIsDropped) {
    ASSERT_TRUE(meet());
    m_shop.hesitates = true;
    count();
    ASSERT_TRUE(await([&] { return m_shop.asked == 1; }));
    m_shop.giveNameUp();
    Shop next;
    next.stock = 3;
    next.open();
    ASSERT_TRUE(await([&] { return m_came == 2; }));
    m_shop.answer();
    count();
    EXPECT_TRUE(await([&] { return !m_counted.isEmpty(); }));
    tests::runFor(50);
    EXPECT_EQ(m_counted, QList<int>{3});
    EXPECT_EQ(m_failed, 0);
}

TEST_F(FollowedServiceTest, HearsTheServiceAlone) {
    QStringList heard, forAda;
    const auto into = [](QStringList& list) {
        return [&list](const QDBusMessage& signal) {
            list << signal.arguments().constFirst().toString();
        };
    };
    m_service.hear(kPath, kName, QStringLiteral("Bell"), into(heard));
    m_service.hear(QString(), kName, QStringLiteral("Bell"), into(forAda), QStringLiteral("Ada"));
    ASSERT_TRUE(meet());
    BusClient stranger;
    Shop::ring(stranger, QStringLiteral("stranger"));
    tests::runFor(50);
    m_shop.ring(QStringLiteral("Ada"));
    m_shop.ring(QStringLiteral("Ben"));
    EXPECT_TRUE(await([&] { return heard.size() == 2; }));
    EXPECT_EQ(heard, (QStringList{QStringLiteral("Ada"), QStringLiteral("Ben")}));
    EXPECT_EQ(forAda, QStringList{QStringLiteral("Ada")});
}

TEST(FollowedService, WithoutABusNothingIsTold) {
    FollowedService service(tests::noBus(), kName);
    int told = 0;
    QObject::connect(&service, &FollowedService::came, &service, [&] { ++told; });
    QObject::connect(&service, &FollowedService::gone, &service, [&] { ++told; });
    service.start();
    service.hear(kPath, kName, QStringLiteral("Bell"), [&](const QDBusMessage&) { ++told; });
    service.ask<int>(
        service.call(kPath, kName, QStringLiteral("Count")), [&](int) { ++told; }, [&] { ++told; });
    tests::runFor(20);
    EXPECT_EQ(told, 0);
    EXPECT_FALSE(service.isThere());
}

} // namespace
} // namespace vantle

#include "FollowedServiceTest.moc"

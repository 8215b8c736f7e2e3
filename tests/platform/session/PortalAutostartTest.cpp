#include "platform/session/PortalAutostart.h"

#include "fakes/MemoryPreferences.h"
#include "support/AnsweringObject.h"
#include "support/Await.h"
#include "support/Buses.h"
#include "tracking/Settings.h"

#include <QDBusArgument>
#include <QDBusObjectPath>

#include <gtest/gtest.h>

namespace vantle {
namespace {

using tests::await;

class PortalAutostartTest : public testing::Test {
protected:
    void appear() {
        ASSERT_TRUE(m_client.takeName(QStringLiteral("org.freedesktop.portal.Desktop")));
    }
    /// The portal's answer, once the question has come.
    void answer(uint response, bool autostart) {
        ASSERT_TRUE(await([this] { return !m_asked.isEmpty(); }));
        auto signal =
            QDBusMessage::createSignal(m_request, QStringLiteral("org.freedesktop.portal.Request"),
                                       QStringLiteral("Response"));
        signal << response << QVariantMap{{QStringLiteral("autostart"), autostart}};
        m_client.bus().send(signal);
    }
    [[nodiscard]] bool becomes(bool registered) {
        return await([&] { return m_autostart.isRegistered() == registered; });
    }

    tests::BusClient m_program;
    tests::BusClient m_client;
    fakes::MemoryPreferences m_preferences;
    PortalAutostart m_autostart{m_program.bus(), m_preferences, settings::loginByPortal};
    QVariantMap m_asked; ///< of the last question
    QString m_request;
    tests::AnsweringObject m_portal{
        m_client.bus(), QStringLiteral("/org/freedesktop/portal/desktop"),
        [this](const QDBusMessage& call) {
            if (call.member() != QLatin1String("RequestBackground")) return;
            m_asked = qdbus_cast<QVariantMap>(call.arguments().at(1));
            QString sender = call.service().mid(1);
            sender.replace(QLatin1Char('.'), QLatin1Char('_'));
            m_request = QStringLiteral("/org/freedesktop/portal/desktop/request/%1/%2")
                            .arg(sender, m_asked[QStringLiteral("handle_token")].toString());
            m_client.bus().send(call.createReply(QVariant::fromValue(QDBusObjectPath(m_request))));
        }};
};

TEST_F(PortalAutostartTest, AsksForAStartThatShowsNothing) {
    appear();
    EXPECT_FALSE(m_autostart.isRegistered());
    EXPECT_TRUE(m_autostart.registerItem());
    answer(0, true);
    EXPECT_TRUE(m_asked[QStringLiteral("autostart")].toBool());
    EXPECT_EQ(m_asked[QStringLiteral("commandline")].toStringList(),
              (QStringList{QStringLiteral("env"), QStringLiteral("VANTLE_AUTOSTART=1"),
                           QStringLiteral("vantle")}));
    EXPECT_TRUE(becomes(true));
    m_asked.clear();
    EXPECT_TRUE(m_autostart.unregisterItem());
    answer(0, false);
    EXPECT_FALSE(m_asked[QStringLiteral("autostart")].toBool());
    EXPECT_TRUE(becomes(false));
}

TEST_F(PortalAutostartTest, RefusedByTheUserItIsNotRegistered) {
    appear();
    EXPECT_TRUE(m_autostart.registerItem());
    answer(1, false);
    EXPECT_TRUE(becomes(false));
}

TEST_F(PortalAutostartTest, WithoutAPortalNothingIsRegistered) {
    EXPECT_TRUE(m_autostart.registerItem());
    EXPECT_TRUE(becomes(false));
}

TEST_F(PortalAutostartTest, WithoutABusItFails) {
    PortalAutostart autostart(tests::noBus(), m_preferences, settings::loginByPortal);
    EXPECT_FALSE(autostart.registerItem());
    EXPECT_FALSE(autostart.isRegistered());
}

TEST_F(PortalAutostartTest, UntilThePortalAnswersWhatWasAskedForCounts) {
    appear();
    EXPECT_TRUE(m_autostart.registerItem());
    ASSERT_TRUE(await([this] { return !m_asked.isEmpty(); }));
    EXPECT_TRUE(m_autostart.isRegistered());
    answer(0, true);
    EXPECT_TRUE(m_autostart.unregisterItem());
    EXPECT_FALSE(m_autostart.isRegistered());
}

TEST_F(PortalAutostartTest, TheAnswerHoldsInTheNextRun) {
    appear();
    EXPECT_TRUE(m_autostart.registerItem());
    answer(0, true);
    EXPECT_TRUE(becomes(true));
    const PortalAutostart later(m_program.bus(), m_preferences, settings::loginByPortal);
    EXPECT_TRUE(later.isRegistered());
}

} // namespace
} // namespace vantle

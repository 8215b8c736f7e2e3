#include "platform/session/BusSessionStatus.h"

#include "platform/bus/FollowedService.h"
#include "platform/session/ApplicationService.h"
#include "support/Await.h"
#include "support/Buses.h"

#include <QDBusPendingCall>
#include <QDBusVariant>
#include <QFile>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace vantle {
namespace {

using tests::await;

const QString kName = QStringLiteral("local.vantle.Vantle");
const QString kPath = QStringLiteral("/local/vantle/Vantle");
const QString kSession = QStringLiteral("local.vantle.Session1");
const QString kProperties = QStringLiteral("org.freedesktop.DBus.Properties");

class BusSessionStatusTest : public testing::Test {
protected:
    BusSessionStatusTest() {
        m_object.start();
        EXPECT_TRUE(
            await([this] { return m_object.state() == ApplicationService::State::Serving; }));
    }
    void publish() {
        m_status.publish([this] {
            ++m_reads;
            return SessionStatus::Values{QStringLiteral("running"),
                                         QStringLiteral("Build"),
                                         QStringLiteral("#ff375f"),
                                         90 + m_reads,
                                         1000,
                                         3690};
        });
    }
    [[nodiscard]] QDBusMessage call(const QString& interface, const QString& method,
                                    const QVariantList& arguments) {
        auto message = QDBusMessage::createMethodCall(kName, kPath, interface, method);
        message.setArguments(arguments);
        const QDBusPendingCall answer = m_reader.bus().asyncCall(message);
        EXPECT_TRUE(await([&] { return answer.isFinished(); }));
        return answer.reply();
    }
    [[nodiscard]] QVariantMap all() {
        const auto answer = call(kProperties, QStringLiteral("GetAll"), {kSession});
        return qdbus_cast<QVariantMap>(answer.arguments().value(0));
    }

    tests::BusClient m_program;
    tests::BusClient m_reader;
    ApplicationService m_object{m_program.bus()};
    BusSessionStatus m_status{m_program.bus(), m_object};
    int m_reads = 0;
};

TEST_F(BusSessionStatusTest, AllPropertiesAreOfOneMoment) {
    publish();
    EXPECT_EQ(all(), (QVariantMap{{QStringLiteral("State"), QStringLiteral("running")},
                                  {QStringLiteral("SkillName"), QStringLiteral("Build")},
                                  {QStringLiteral("SkillColor"), QStringLiteral("#ff375f")},
                                  {QStringLiteral("ActiveSeconds"), 91LL},
                                  {QStringLiteral("AsOf"), 1000LL},
                                  {QStringLiteral("TodaySeconds"), 3690LL}}));
    EXPECT_EQ(m_reads, 1);
    EXPECT_EQ(all().value(QStringLiteral("ActiveSeconds")), 92LL)
        << "the next question reads again";
}

TEST_F(BusSessionStatusTest, BeforeThereIsAModelNothingRuns) {
    EXPECT_EQ(all().value(QStringLiteral("State")), QStringLiteral("idle"));
}

TEST_F(BusSessionStatusTest, ChangeIsTellingWithoutReadingAnything) {
    publish();
    FollowedService program(m_reader.bus(), kName);
    QVariantList told;
    int times = 0;
    program.hear(kPath, kProperties, QStringLiteral("PropertiesChanged"),
                 [&](const QDBusMessage& signal) {
                     told = signal.arguments();
                     ++times;
                 });
    ASSERT_TRUE(await([&] { return program.isThere(); }));
    for (int change = 0; change < 3; ++change)
        m_status.noteChange();
    ASSERT_TRUE(await([&] { return told.size() == 3; }));
    EXPECT_EQ(told[0], kSession);
    EXPECT_EQ(qdbus_cast<QVariantMap>(told[1]), QVariantMap());
    EXPECT_EQ(told[2].toStringList().size(), 6);
    EXPECT_EQ(m_reads, 0);
    (void)all(); // answered after the signals before it
    EXPECT_EQ(times, 1);
}

TEST_F(BusSessionStatusTest, NothingCanBeChangedThroughIt) {
    publish();
    const auto answer = call(kProperties, QStringLiteral("Set"),
                             {kSession, QStringLiteral("State"),
                              QVariant::fromValue(QDBusVariant(QStringLiteral("idle")))});
    EXPECT_EQ(answer.type(), QDBusMessage::ErrorMessage);
    EXPECT_EQ(all().value(QStringLiteral("State")), QStringLiteral("running"));
}

TEST_F(BusSessionStatusTest, IntrospectionIsWhatIsInstalled) {
    const auto answer = call(QStringLiteral("org.freedesktop.DBus.Introspectable"),
                             QStringLiteral("Introspect"), {});
    const QString told = answer.arguments().value(0).toString();
    QFile file(QStringLiteral(VANTLE_INTERFACE));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const auto properties = [](const QString& xml) {
        QStringList found;
        const qsizetype begin = xml.indexOf(QStringLiteral("local.vantle.Session1"));
        const QString interface =
            xml.mid(begin, xml.indexOf(QStringLiteral("</interface>"), begin) - begin);
        const QRegularExpression form(QStringLiteral("<(?:property|method|signal)[^>]*?(?=/?>)"));
        for (auto match = form.globalMatch(interface); match.hasNext();)
            found << match.next().captured();
        found.sort();
        return found;
    };
    EXPECT_EQ(properties(told), properties(QString::fromUtf8(file.readAll())));
}

} // namespace
} // namespace vantle

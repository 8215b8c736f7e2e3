#include "platform/dbus/ApplicationService.h"

#include "support/Await.h"
#include "support/Buses.h"

#include <QDBusPendingCall>
#include <QElapsedTimer>

#include <gtest/gtest.h>

#include <optional>

namespace vantle {
namespace {

using Outcome = ApplicationService::Outcome;
using tests::await;
using tests::BusClient;

class ApplicationServiceTest : public testing::Test {
protected:
    ApplicationServiceTest() : m_service(std::in_place, m_client.bus()) {
        QObject::connect(&*m_service, &ApplicationService::activated, [this] { ++m_activated; });
        QObject::connect(&*m_service, &ApplicationService::actionActivated,
                         [this](const QString& name) { m_actions << name; });
    }

    /// Calls as another program does.
    [[nodiscard]] QDBusMessage call(const QString& method, const QVariantList& arguments) {
        auto message = QDBusMessage::createMethodCall(
            QStringLiteral("local.vantle.Vantle"), QStringLiteral("/local/vantle/Vantle"),
            QStringLiteral("org.freedesktop.Application"), method);
        message.setArguments(arguments);
        const QDBusPendingCall answer = m_caller.bus().asyncCall(message);
        EXPECT_TRUE(await([&] { return answer.isFinished(); }));
        return answer.reply();
    }
    [[nodiscard]] bool answers(const QString& method, const QVariantList& arguments) {
        return call(method, arguments).type() == QDBusMessage::ReplyMessage;
    }

    BusClient m_client;
    BusClient m_caller;
    std::optional<ApplicationService> m_service;
    int m_activated = 0;
    QStringList m_actions;
};

TEST_F(ApplicationServiceTest, IsActivated) {
    ASSERT_EQ(m_service->start(), Outcome::Serving);
    EXPECT_TRUE(answers(QStringLiteral("Activate"), {QVariantMap()}));
    EXPECT_TRUE(await([&] { return m_activated == 1; }));
}

TEST_F(ApplicationServiceTest, OpeningFilesIsActivation) {
    ASSERT_EQ(m_service->start(), Outcome::Serving);
    EXPECT_TRUE(answers(QStringLiteral("Open"),
                        {QStringList{QStringLiteral("file:///tmp/a")}, QVariantMap()}));
    EXPECT_TRUE(await([&] { return m_activated == 1; }));
}

TEST_F(ApplicationServiceTest, ActionsArriveByNameAndInOrder) {
    ASSERT_EQ(m_service->start(), Outcome::Serving);
    const QVariantMap platformData{
        {QStringLiteral("desktop-startup-id"), QStringLiteral("x_TIME1")}};
    EXPECT_TRUE(answers(QStringLiteral("ActivateAction"),
                        {QStringLiteral("toggle"), QVariantList(), platformData}));
    EXPECT_TRUE(answers(QStringLiteral("ActivateAction"),
                        {QStringLiteral("settings"), QVariantList{1}, platformData}));
    EXPECT_TRUE(await([&] { return m_actions.size() == 2; }));
    EXPECT_EQ(m_actions, (QStringList{QStringLiteral("toggle"), QStringLiteral("settings")}));
    EXPECT_EQ(m_activated, 0);
}

TEST_F(ApplicationServiceTest, CommandLineThatPeopleBindToKeysReachesIt) {
    ASSERT_EQ(m_service->start(), Outcome::Serving);
    QProcess command;
    command.startCommand(QStringLiteral(
        "gdbus call --session --dest local.vantle.Vantle --object-path /local/vantle/Vantle "
        "--method org.freedesktop.Application.ActivateAction toggle [] {}"));
    EXPECT_TRUE(await([&] { return command.state() == QProcess::NotRunning; }));
    EXPECT_EQ(command.exitCode(), 0);
    EXPECT_TRUE(await([&] { return m_actions == QStringList{QStringLiteral("toggle")}; }));
}

TEST_F(ApplicationServiceTest, UnknownMethodIsRefused) {
    ASSERT_EQ(m_service->start(), Outcome::Serving);
    EXPECT_EQ(call(QStringLiteral("Quit"), {}).errorName(),
              QStringLiteral("org.freedesktop.DBus.Error.UnknownMethod"));
}

TEST_F(ApplicationServiceTest, NameOfACopyThatRunsIsLeftToIt) {
    ASSERT_EQ(m_service->start(), Outcome::Serving);
    BusClient second;
    ApplicationService copy(second.bus());
    EXPECT_EQ(copy.start(), Outcome::NameTaken);
    EXPECT_TRUE(answers(QStringLiteral("Activate"), {QVariantMap()}));
    EXPECT_TRUE(await([&] { return m_activated == 1; }));
}

TEST_F(ApplicationServiceTest, NameIsFreeAfterItsEnd) {
    ASSERT_EQ(m_service->start(), Outcome::Serving);
    EXPECT_EQ(m_service->start(), Outcome::Serving) << "a second time";
    m_service.reset();
    BusClient second;
    ApplicationService next(second.bus());
    EXPECT_TRUE(await([&] { return next.start() == Outcome::Serving; }));
}

TEST(ApplicationService, MissingBusIsAnAnswerAndTakesNoTime) {
    QElapsedTimer timer;
    timer.start();
    ApplicationService service(tests::noBus());
    EXPECT_EQ(service.start(), Outcome::NoBus);
    EXPECT_LT(timer.elapsed(), 100);
}

} // namespace
} // namespace vantle

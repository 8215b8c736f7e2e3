#include "platform/session/ApplicationService.h"

#include "base/Scheduler.h"
#include "support/Await.h"
#include "support/Buses.h"

#include <QDBusPendingCall>
#include <QElapsedTimer>

#include <gtest/gtest.h>

#include <optional>

namespace vantle {
namespace {

using State = ApplicationService::State;
using tests::await;
using tests::BusClient;

class ApplicationServiceTest : public testing::Test {
protected:
    ApplicationServiceTest() : m_service(std::in_place, m_client.bus()) {
        QObject::connect(&*m_service, &ApplicationService::activated, [this] { ++m_activated; });
        QObject::connect(&*m_service, &ApplicationService::actionActivated,
                         [this](const QString& name) { m_actions << name; });
    }

    /// Starts the service and waits for what comes of it.
    [[nodiscard]] static State startedState(ApplicationService& service) {
        service.start();
        EXPECT_TRUE(await([&] { return service.state() != State::Asking; }));
        return service.state();
    }
    void serve() { ASSERT_EQ(startedState(*m_service), State::Serving); }

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
    serve();
    EXPECT_TRUE(answers(QStringLiteral("Activate"), {QVariantMap()}));
    EXPECT_TRUE(await([&] { return m_activated == 1; }));
}

TEST_F(ApplicationServiceTest, OpeningFilesIsActivation) {
    serve();
    EXPECT_TRUE(answers(QStringLiteral("Open"),
                        {QStringList{QStringLiteral("file:///tmp/a")}, QVariantMap()}));
    EXPECT_TRUE(await([&] { return m_activated == 1; }));
}

TEST_F(ApplicationServiceTest, ActionsArriveByNameAndInOrder) {
    serve();
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
    serve();
    QProcess command;
    command.startCommand(QStringLiteral(
        "gdbus call --session --dest local.vantle.Vantle --object-path /local/vantle/Vantle "
        "--method org.freedesktop.Application.ActivateAction toggle [] {}"));
    EXPECT_TRUE(await([&] { return command.state() == QProcess::NotRunning; }));
    EXPECT_EQ(command.exitCode(), 0);
    EXPECT_TRUE(await([&] { return m_actions == QStringList{QStringLiteral("toggle")}; }));
}

TEST_F(ApplicationServiceTest, StartDoesNotWaitForTheBus) {
    m_service->start();
    EXPECT_EQ(m_service->state(), State::Asking);
    EXPECT_TRUE(await([&] { return m_service->state() == State::Serving; }));
}

TEST_F(ApplicationServiceTest, ServiceThatEndsBeforeTheAnswerLeavesTheNameFree) {
    m_service->start();
    m_service.reset();
    BusClient second;
    ApplicationService next(second.bus());
    EXPECT_EQ(startedState(next), State::Serving);
}

TEST_F(ApplicationServiceTest, UnknownMethodIsRefused) {
    serve();
    EXPECT_EQ(call(QStringLiteral("Quit"), {}).errorName(),
              QStringLiteral("org.freedesktop.DBus.Error.UnknownMethod"));
}

TEST_F(ApplicationServiceTest, NameOfACopyThatRunsIsLeftToIt) {
    serve();
    BusClient second;
    ApplicationService copy(second.bus());
    EXPECT_EQ(startedState(copy), State::NameTaken);
    EXPECT_TRUE(answers(QStringLiteral("Activate"), {QVariantMap()}));
    EXPECT_TRUE(await([&] { return m_activated == 1; }));
}

TEST_F(ApplicationServiceTest, NameIsFreeAfterItsEnd) {
    serve();
    EXPECT_EQ(startedState(*m_service), State::Serving) << "a second time";
    m_service.reset();
    BusClient second;
    ApplicationService next(second.bus());
    EXPECT_TRUE(await([&] { return startedState(next) == State::Serving; }));
}

TEST(ApplicationService, MissingBusIsAnAnswerAndTakesNoTime) {
    QElapsedTimer timer;
    timer.start();
    ApplicationService service(tests::noBus());
    service.start();
    EXPECT_EQ(service.state(), State::NoBus);
    EXPECT_LT(timer.elapsed(), 100);
}

// A second copy asks, while the running one is a process of its own; here it has a thread's worth
// of the event loop that the asking runs.

TEST_F(ApplicationServiceTest, RunningCopyThatAnswersIsShown) {
    serve();
    QtScheduler scheduler;
    EXPECT_TRUE(ApplicationService::showRunningCopy(m_caller.bus(), scheduler));
    EXPECT_TRUE(await([&] { return m_activated == 1; }));
}

TEST_F(ApplicationServiceTest, CopyThatHasJustBeenStartedIsWaitedFor) {
    QtScheduler scheduler;
    const TimerHandle start = scheduler.scheduleOnce(Seconds(0.3), [this] { m_service->start(); });
    EXPECT_TRUE(ApplicationService::showRunningCopy(m_caller.bus(), scheduler));
    EXPECT_TRUE(await([&] { return m_activated == 1; }));
}

TEST_F(ApplicationServiceTest, CopyThatNeverAnswersIsGivenUpAfterTwoSeconds) {
    QtScheduler scheduler;
    QElapsedTimer timer;
    for (const bool isThere : {false, true}) {
        timer.start();
        BusClient mute;
        // Nothing is registered there, and no event loop reads its calls.
        EXPECT_EQ(
            mute.takeName(QStringLiteral("local.vantle.%1")
                              .arg(isThere ? QStringLiteral("Vantle") : QStringLiteral("Other"))),
            true);
        EXPECT_FALSE(ApplicationService::showRunningCopy(m_caller.bus(), scheduler));
        EXPECT_GE(timer.elapsed(), 1900);
        EXPECT_LT(timer.elapsed(), 5000);
    }
    EXPECT_FALSE(ApplicationService::showRunningCopy(tests::noBus(), scheduler));
}

} // namespace
} // namespace vantle

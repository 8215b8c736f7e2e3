#include "surfaces/alert/ModalPresenter.h"

#include "fakes/FakePanelHost.h"
#include "fakes/FakeScreens.h"
#include "fakes/FakeWindowManager.h"
#include "support/ShownItems.h"
#include "support/Text.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <QThread>
#include <QTimer>

#include <gtest/gtest.h>

namespace vantle {
namespace {

/// What a person does with the alert, once its window is up.
int runWhile(const std::function<void(QQuickWindow&)>& person, bool composited = true,
             const fakes::FakeScreens& screens = {}) {
    fakes::FakePanelHost host;
    fakes::FakeWindowManager windowManager;
    host.composited = composited;
    QTimer glance;
    QObject::connect(&glance, &QTimer::timeout, [&] {
        for (QWindow* window : QGuiApplication::topLevelWindows())
            if (auto* view = qobject_cast<QQuickWindow*>(window); view && view->isVisible()) {
                glance.stop();
                person(*view);
                return;
            }
    });
    glance.start(5);
    return modalpresenter::runAlert({QStringLiteral("Something happened"),
                                     QStringLiteral("It means this."),
                                     {QStringLiteral("Replace"), QStringLiteral("Cancel")}},
                                    host, windowManager, screens);
}

void press(QQuickWindow& view, Qt::Key key) {
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease})
        QCoreApplication::postEvent(&view, new QKeyEvent(type, key, Qt::NoModifier));
}

TEST(ModalPresenter, ReturnChoosesTheMainButton) {
    EXPECT_EQ(runWhile([](QQuickWindow& view) { press(view, Qt::Key_Return); }), 0);
}

TEST(ModalPresenter, EscapeChoosesTheLastButton) {
    EXPECT_EQ(runWhile([](QQuickWindow& view) { press(view, Qt::Key_Escape); }), 1);
}

TEST(ModalPresenter, ClosingTheWindowChoosesTheLastButton) {
    EXPECT_EQ(runWhile([](QQuickWindow& view) { view.close(); }), 1);
}

TEST(ModalPresenter, TabReachesTheOtherButton) {
    EXPECT_EQ(runWhile([](QQuickWindow& view) {
                  press(view, Qt::Key_Tab);
                  press(view, Qt::Key_Space);
              }),
              1);
}

TEST(ModalPresenter, StandsInTheProgramsOwnFrame) {
    const int chosen = runWhile([](QQuickWindow& view) {
        EXPECT_TRUE(view.flags().testFlag(Qt::FramelessWindowHint));
        EXPECT_EQ(tests::shownControl(view, tests::text("Minimise")), nullptr);
        const QImage picture = view.grabWindow();
        EXPECT_NE(picture.pixelColor(1, 1).name(), tests::text("#0a0a0f")) << "round corners";
        EXPECT_EQ(picture.pixelColor(picture.width() / 2, 12).name(), tests::text("#0a0a0f"));
        QQuickItem* const close = tests::shownControl(view, tests::text("Close"));
        ASSERT_NE(close, nullptr);
        const QPoint place = close->mapToScene({close->width() / 2, close->height() / 2}).toPoint();
        EXPECT_GT(place.x(), view.width() - 40);
        EXPECT_LT(place.y(), 40);
        QTest::mouseClick(&view, Qt::LeftButton, {}, place);
    });
    EXPECT_EQ(chosen, 1);
}

TEST(ModalPresenter, CornersAreSquareWithoutACompositor) {
    (void)runWhile(
        [](QQuickWindow& view) {
            EXPECT_EQ(view.grabWindow().pixelColor(1, 1).name(), tests::text("#0a0a0f"));
            press(view, Qt::Key_Escape);
        },
        false);
}

TEST(ModalPresenter, StandsInTheMiddleOfTheScreenInUse) {
    fakes::FakeScreens screens;
    screens.shapes.push_back(
        {.frame = QRectF(1440, 0, 1024, 768), .available = QRectF(1440, 30, 1024, 738)});
    screens.inUse = 1;
    QRect frame;
    (void)runWhile(
        [&frame](QQuickWindow& view) {
            frame = view.geometry();
            press(view, Qt::Key_Escape);
        },
        true, screens);
    EXPECT_NEAR(frame.center().x(), 1440 + 512, 1);
    EXPECT_NEAR(frame.center().y(), 30 + 369, 1);
}

TEST(ModalPresenter, OffTheMainThreadTheQuestionIsAskedOnIt) {
    fakes::FakePanelHost host;
    fakes::FakeWindowManager windowManager;
    const fakes::FakeScreens screens;
    const QThread* askedOn = nullptr;
    int chosen = -1;
    QTimer glance;
    QObject::connect(&glance, &QTimer::timeout, [&] {
        for (QWindow* window : QGuiApplication::topLevelWindows())
            if (auto* view = qobject_cast<QQuickWindow*>(window); view && view->isVisible()) {
                askedOn = view->thread();
                press(*view, Qt::Key_Escape);
            }
    });
    glance.start(5);
    const std::unique_ptr<QThread> worker(QThread::create([&] {
        chosen = modalpresenter::runAlert({QStringLiteral("Something happened"),
                                           QStringLiteral("It means this."),
                                           {QStringLiteral("Replace"), QStringLiteral("Cancel")}},
                                          host, windowManager, screens);
    }));
    QEventLoop loop;
    QObject::connect(worker.get(), &QThread::finished, &loop, &QEventLoop::quit);
    worker->start();
    loop.exec();
    worker->wait();
    EXPECT_EQ(chosen, 1);
    EXPECT_EQ(askedOn, QCoreApplication::instance()->thread());
}

} // namespace
} // namespace vantle

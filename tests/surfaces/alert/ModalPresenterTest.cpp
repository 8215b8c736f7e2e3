#include "surfaces/alert/ModalPresenter.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QQuickItem>
#include <QQuickView>
#include <QThread>
#include <QTimer>

#include <gtest/gtest.h>

namespace vantle {
namespace {

/// What a person does with the alert, once its window is up.
int runWhile(const std::function<void(QQuickView&)>& person) {
    QTimer glance;
    QObject::connect(&glance, &QTimer::timeout, [&] {
        for (QWindow* window : QGuiApplication::topLevelWindows())
            if (auto* view = qobject_cast<QQuickView*>(window); view && view->isVisible()) {
                glance.stop();
                person(*view);
                return;
            }
    });
    glance.start(5);
    return modalpresenter::runAlert({QStringLiteral("Something happened"),
                                     QStringLiteral("It means this."),
                                     {QStringLiteral("Replace"), QStringLiteral("Cancel")}});
}

void press(QQuickView& view, Qt::Key key) {
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease})
        QCoreApplication::postEvent(&view, new QKeyEvent(type, key, Qt::NoModifier));
}

TEST(ModalPresenter, ReturnChoosesTheMainButton) {
    EXPECT_EQ(runWhile([](QQuickView& view) { press(view, Qt::Key_Return); }), 0);
}

TEST(ModalPresenter, EscapeChoosesTheLastButton) {
    EXPECT_EQ(runWhile([](QQuickView& view) { press(view, Qt::Key_Escape); }), 1);
}

TEST(ModalPresenter, ClosingTheWindowChoosesTheLastButton) {
    EXPECT_EQ(runWhile([](QQuickView& view) { view.close(); }), 1);
}

TEST(ModalPresenter, TabReachesTheOtherButton) {
    EXPECT_EQ(runWhile([](QQuickView& view) {
                  press(view, Qt::Key_Tab);
                  press(view, Qt::Key_Space);
              }),
              1);
}

TEST(ModalPresenter, OffTheMainThreadTheQuestionIsAskedOnIt) {
    const QThread* askedOn = nullptr;
    int chosen = -1;
    QTimer glance;
    QObject::connect(&glance, &QTimer::timeout, [&] {
        for (QWindow* window : QGuiApplication::topLevelWindows())
            if (auto* view = qobject_cast<QQuickView*>(window); view && view->isVisible()) {
                askedOn = view->thread();
                press(*view, Qt::Key_Escape);
            }
    });
    glance.start(5);
    const std::unique_ptr<QThread> worker(QThread::create([&] {
        chosen = modalpresenter::runAlert({QStringLiteral("Something happened"),
                                           QStringLiteral("It means this."),
                                           {QStringLiteral("Replace"), QStringLiteral("Cancel")}});
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

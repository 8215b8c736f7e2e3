// A capsule in its window, driven by pointer and keys.
#pragma once

#include "CapsuleWorld.h"
#include "fakes/FakePanelHost.h"
#include "support/QtPrinters.h"
#include "support/ShownItems.h"
#include "support/Text.h"
#include "surfaces/capsule/CapsuleWindow.h"
#include "surfaces/kit/tokens/Motion.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QQmlEngine>
#include <QQuickItem>

#include <gtest/gtest.h>

#include <utility>

namespace vantle::tests {

class CapsuleWindowTest : public testing::Test {
protected:
    static void SetUpTestSuite() {
        engine = new QQmlEngine; // parses the views once for all tests
        engine->addImportPath(QStringLiteral("qrc:/qt/qml"));
        Motion::of(*engine)->setReduced(true); // without animations
    }
    static void TearDownTestSuite() { delete std::exchange(engine, nullptr); }

    CapsuleWindowTest() {
        QObject::connect(engine, &QQmlEngine::warnings, &context,
                         [this](const QList<QQmlError>& errors) {
                             for (const QQmlError& error : errors)
                                 warnings << error.toString();
                         });
    }
    ~CapsuleWindowTest() override {
        window.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_EQ(warnings, QStringList());
    }

    void raise(NotchCapsule::Form form) {
        raiseClosed(std::move(form));
        window->capsule().expand();
        settle();
    }
    void raiseClosed(NotchCapsule::Form form) {
        auto capsule = std::make_unique<NotchCapsule>(world.environment(), std::move(form),
                                                      world.screens.shapes.front());
        const Placement place =
            capsule::placement(capsule->metrics(), world.screens.shapes.front());
        window = std::make_unique<CapsuleWindow>(
            CapsuleWindow::Environment{
                world.tracking.time, host,
                [] { return std::shared_ptr<QQmlEngine>(engine, [](QQmlEngine*) {}); }},
            std::move(capsule), place);
        settle();
    }
    void raiseIdle() { raise(world.idleForm()); }

    /// Runs posted work and updates the views.
    void settle() {
        world.tracking.time.settle();
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void mouse(QEvent::Type type, QPointF place, Qt::MouseButton button, Qt::MouseButtons held) {
        sendMouse(window->panel(), type, place, button, held);
    }
    void moveTo(QPointF place) {
        mouse(QEvent::MouseMove, place, Qt::NoButton, Qt::NoButton);
        settle();
    }
    void click(QPointF place, Qt::MouseButton button = Qt::LeftButton) {
        moveTo(place);
        mouse(QEvent::MouseButtonPress, place, button, button);
        mouse(QEvent::MouseButtonRelease, place, button, Qt::NoButton);
        settle();
    }
    void press(int key, const QString& typed = {}) {
        sendKey(window->panel(), key, typed);
        settle();
    }
    void type(const QString& words) {
        for (const QChar letter : words)
            press(0, letter);
    }

    [[nodiscard]] bool shows(const QString& words) const {
        return showsText(window->panel(), words);
    }
    /// Returns the visible item with that accessible name; null when there is none.
    [[nodiscard]] QQuickItem* item(const QString& name) const {
        return find(window->panel().contentItem(), name);
    }
    [[nodiscard]] QPointF middleOf(const QString& name) const {
        const QQuickItem* const found = item(name);
        EXPECT_NE(found, nullptr) << name.toStdString();
        return found == nullptr
                   ? QPointF()
                   : found->mapToScene(QPointF(found->width() / 2, found->height() / 2));
    }

    /// Whether what is below shows at a point, in px of the panel.
    [[nodiscard]] bool seesBelow(QPoint place) {
        settle();
        window->panel().setColor(Qt::green); // the capsule has no green of its own
        return window->panel().grabWindow().pixelColor(place).green() > 60;
    }
    void expectOpaqueCorners(const QRect& part) {
        ASSERT_FALSE(part.isEmpty());
        for (const QPoint corner :
             {part.topLeft(), part.topRight(), part.bottomLeft(), part.bottomRight()})
            EXPECT_FALSE(seesBelow(corner)) << corner.x() << ' ' << corner.y();
    }

    CapsuleWorld world;
    fakes::FakePanelHost host;
    static inline QQmlEngine* engine = nullptr;
    QObject context;
    QStringList warnings;
    std::unique_ptr<CapsuleWindow> window;

private:
    static QQuickItem* find(QQuickItem* root, const QString& name) {
        return shownItem(root, [&](QQuickItem& item) {
            auto* const access = QAccessible::queryAccessibleInterface(&item);
            return access != nullptr && access->text(QAccessible::Name) == name;
        });
    }
};

} // namespace vantle::tests

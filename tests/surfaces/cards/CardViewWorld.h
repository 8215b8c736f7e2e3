// Cards in their windows, driven by pointer and keys.
#pragma once

#include "fakes/FakePanelHost.h"
#include "fakes/FakeScreens.h"
#include "support/Await.h"
#include "surfaces/cards/CardWorld.h"
#include "surfaces/cards/QuickCardStage.h"
#include "surfaces/kit/tokens/Motion.h"
#include "surfaces/panel/FloatingPanel.h"

#include <QGuiApplication>
#include <QQmlEngine>
#include <QQuickItem>
#include <QTest>

#include <gtest/gtest.h>

namespace vantle::tests {

class CardViewWorld : protected CardWorld {
public:
    CardViewWorld() {
        engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
        Motion::of(engine)->setReduced(true); // shorter transitions
    }

    /// The visible windows with pointer input, which a fading one lacks.
    [[nodiscard]] static QList<FloatingPanel*> windows() {
        QList<FloatingPanel*> found;
        for (QWindow* window : QGuiApplication::allWindows())
            if (auto* panel = qobject_cast<FloatingPanel*>(window);
                panel && panel->isVisible() && panel->rootObject()->property("up").toBool())
                found << panel;
        return found;
    }
    [[nodiscard]] static FloatingPanel* window() {
        return windows().isEmpty() ? nullptr : windows().first();
    }

    /// Returns the item of the window with that accessible name.
    [[nodiscard]] static QQuickItem* named(const QString& name) {
        return find(window()->rootObject(), [&](const QQuickItem& item) {
            return item.property("name").toString() == name && item.isVisible();
        });
    }
    /// The text field.
    [[nodiscard]] static QQuickItem* field() {
        return find(window()->rootObject(), [](const QQuickItem& item) {
            return item.flags().testFlag(QQuickItem::ItemAcceptsInputMethod);
        });
    }

    static QPoint centreOf(const QQuickItem& item) {
        return item.mapToScene({item.width() / 2, item.height() / 2}).toPoint();
    }
    static void click(const QString& name) {
        ASSERT_NE(named(name), nullptr) << name.toStdString();
        QTest::mouseClick(window(), Qt::LeftButton, {}, centreOf(*named(name)));
    }
    static void type(const QString& text) {
        for (const QChar letter : text)
            QTest::keyClick(window(), letter.toLatin1());
    }
    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(window(), key, modifiers);
    }
    /// Gives the window the keyboard, as the desktop does on request.
    static void giveKeyboard() {
        window()->requestActivate();
        ASSERT_TRUE(await([] { return window()->isActive(); }));
    }

private:
    template <typename Matches>
    static QQuickItem* find(QQuickItem* item, const Matches& matches) {
        if (matches(*item)) return item;
        for (QQuickItem* child : item->childItems())
            if (QQuickItem* const found = find(child, matches)) return found;
        return nullptr;
    }

protected:
    QQmlEngine engine;
    fakes::FakePanelHost host;
    fakes::FakeScreens screens;
    QuickCardStage windowStage{
        {[this] { return std::shared_ptr<QQmlEngine>(&engine, [](QQmlEngine*) {}); }, host,
         screens}};
    CardEnvironment windowEnvironment{time, preferences, skills,   notifications,
                                      slot, windowStage, questions};
};

} // namespace vantle::tests

#include "surfaces/kit/tokens/DarkUI.h"

#include "support/QtPrinters.h"
#include "surfaces/kit/tokens/Motion.h"

#include <QQmlComponent>
#include <QQmlEngine>

#include <gtest/gtest.h>

#include <memory>

namespace vantle {
namespace {

TEST(DarkUI, AViewTakesAnotherPaletteWhileItIsShown) {
    QQmlEngine engine;
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    QQmlComponent component(&engine);
    component.setData("import QtQuick\nimport Vantle.Kit\n"
                      "Rectangle { color: DarkUI.textSecondary; opacity: DarkUI.tintFillOpacity }",
                      {});
    const std::unique_ptr<QObject> view(component.create());
    ASSERT_NE(view, nullptr) << component.errorString().toStdString();
    EXPECT_EQ(view->property("color").value<QColor>(), look::kDark.textSecondary.color());

    look::Palette lighter;
    lighter.textSecondary.alpha = 0.9;
    lighter.tintFillOpacity = 0.4;
    DarkUI::of(engine)->setPalette(lighter);
    EXPECT_EQ(view->property("color").value<QColor>(), lighter.textSecondary.color());
    EXPECT_DOUBLE_EQ(view->property("opacity").toDouble(), 0.4);
}

TEST(DarkUI, ReducedMotionStillsMovementsAndKeepsFades) {
    QQmlEngine engine;
    const DarkUI& tokens = *DarkUI::of(engine);
    EXPECT_EQ(tokens.hoverTime(), look::kMovement.hoverTime);
    EXPECT_EQ(tokens.cardInTime(), look::kMovement.cardInTime);
    Motion::of(engine)->setReduced(true);
    EXPECT_EQ(tokens.hoverTime(), 0);
    EXPECT_EQ(tokens.cardRise(), 0);
    EXPECT_EQ(tokens.cardInTime(), look::kMovement.crossFadeTime);
    EXPECT_EQ(tokens.toastInTime(), look::kMovement.toastInTime);
}

} // namespace
} // namespace vantle

// A scene of the gallery: a view in one of its states, with sample data.
#pragma once

#include <QColor>
#include <QImage>
#include <QList>
#include <QSize>
#include <QString>
#include <QUrl>
#include <QVariantMap>

#include <functional>

class QQuickItem;

namespace vantle {

struct Scene {
    /// The picture's file name without its ending, such as "stop-summary-new-hours".
    QString name;
    /// The view, such as qrc:/qt/qml/Vantle/Cards/StopSummaryView.qml.
    QUrl view;
    /// The view's initial properties. `owner` owns the models and outlives the view. May be empty.
    std::function<QVariantMap(QObject* owner)> properties;
    /// px; empty for the view's own size.
    QSize size;
    /// The background around the view, and its width in px.
    QColor ground = QColor(0x0A, 0x0A, 0x0F);
    int margin = 0;
    /// Also drawn at 200 %. Such pictures are large, so few have it.
    bool twice = false;
    /// Also drawn at 125, 150 and 175 %, where shapes have to meet device pixels.
    bool everyScale = false;
    /// Paints a picture without a view; `scale` is its device pixel ratio. Empty for a view.
    std::function<QImage(double scale)> paint;
    /// Brings the shown view into its state. May be empty.
    std::function<void(QQuickItem& view)> arrange;
};

/// Returns whether the scene is drawn at that scale.
[[nodiscard]] inline bool isDrawnAt(const Scene& scene, double scale) {
    return scale == 1 || scene.everyScale || (scale == 2 && scene.twice);
}

/// The desktop behind floating surfaces.
inline const QColor kDesk{0x22, 0x26, 0x30};

/// A view in the program's window frame, in the property "view".
inline Scene framedScene(const char* name) {
    Scene made;
    made.name = QLatin1String(name);
    made.view = QUrl(QStringLiteral("qrc:/qt/qml/Vantle/DemoWindows/FramedScene.qml"));
    made.ground = kDesk;
    return made;
}

} // namespace vantle

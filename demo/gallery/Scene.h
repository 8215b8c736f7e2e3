// A picture of the gallery: a view in one of its states, with made-up data.
#pragma once

#include <QColor>
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
    /// What the view is made with. Models belong to `owner`, which outlives the view. May be empty.
    std::function<QVariantMap(QObject* owner)> properties;
    /// px; empty for the size that the view wants.
    QSize size;
    /// What is around the view, and how much of it, px.
    QColor ground = QColor(0x0A, 0x0A, 0x0F);
    int margin = 0;
    /// Drawn at 200 % as well. These pictures are large: for a few.
    bool twice = false;
    /// Brings the view into its state once it is shown. May be empty.
    std::function<void(QQuickItem& view)> arrange;
};

/// A desktop behind floating surfaces.
inline const QColor kDesk{0x22, 0x26, 0x30};

/// A view in the program's frame on that desktop. It stands in the property "view".
inline Scene framedScene(const char* name) {
    Scene made;
    made.name = QLatin1String(name);
    made.view = QUrl(QStringLiteral("qrc:/qt/qml/Vantle/DemoWindows/FramedScene.qml"));
    made.ground = kDesk;
    return made;
}

} // namespace vantle

#include "gallery/Scenes.h"

#include <QMetaObject>
#include <QQuickItem>

namespace vantle {
namespace {

Scene scene(const QString& name, const QString& view, bool everyScale = false) {
    Scene made;
    made.name = name;
    made.view = QUrl(QStringLiteral("qrc:/qt/qml/Vantle/DemoKit/%1.qml").arg(view));
    made.everyScale = everyScale;
    return made;
}

} // namespace

QList<Scene> kitScenes() {
    Scene scroll = scene(QStringLiteral("kit-scroll"), QStringLiteral("ScrollScene"));
    scroll.arrange = [](QQuickItem& view) { QMetaObject::invokeMethod(&view, "openMenu"); };
    scroll.everyScale = true;
    return {scene(QStringLiteral("kit-controls"), QStringLiteral("ControlsScene"), true),
            scene(QStringLiteral("kit-chips"), QStringLiteral("ChipsScene"), true),
            scroll,
            scene(QStringLiteral("kit-type"), QStringLiteral("TypeScene")),
            scene(QStringLiteral("kit-icons"), QStringLiteral("IconsScene"), true),
            scene(QStringLiteral("kit-dots"), QStringLiteral("DotsScene")),
            scene(QStringLiteral("kit-wall"), QStringLiteral("WallScene"))};
}

} // namespace vantle

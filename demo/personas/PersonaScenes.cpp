#include "gallery/Scenes.h"

namespace vantle {

QList<Scene> personaScenes() {
    Scene made;
    made.name = QStringLiteral("personas");
    made.view = QUrl(QStringLiteral("qrc:/qt/qml/Vantle/DemoPersonas/PersonasScene.qml"));
    made.twice = true;
    return {made};
}

} // namespace vantle

#include "gallery/Scenes.h"

namespace vantle {

QList<Scene> allScenes() {
    QList<Scene> scenes;
    scenes += kitScenes();
    return scenes;
}

} // namespace vantle

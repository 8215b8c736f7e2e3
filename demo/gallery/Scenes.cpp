#include "gallery/Scenes.h"

namespace vantle {

QList<Scene> allScenes() {
    QList<Scene> scenes;
    scenes += kitScenes();
    scenes += capsuleScenes();
    scenes += cardScenes();
    scenes += commandCenterScenes();
    scenes += windowScenes();
    scenes += personaScenes();
    scenes += settingsScenes();
    scenes += welcomeScenes();
    scenes += reviewScenes();
    scenes += posterScenes();
    scenes += trayScenes();
    scenes += ceremonyScenes();
    return scenes;
}

} // namespace vantle

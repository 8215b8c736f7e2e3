// All scenes of the gallery. Each folder beside this one has a function here, and its line in
// Scenes.cpp.
#pragma once

#include "gallery/Scene.h"

namespace vantle {

[[nodiscard]] QList<Scene> capsuleScenes();
[[nodiscard]] QList<Scene> cardScenes();
[[nodiscard]] QList<Scene> ceremonyScenes();
[[nodiscard]] QList<Scene> commandCenterScenes();
[[nodiscard]] QList<Scene> kitScenes();
[[nodiscard]] QList<Scene> personaScenes();
[[nodiscard]] QList<Scene> posterScenes();
[[nodiscard]] QList<Scene> reviewScenes();
[[nodiscard]] QList<Scene> settingsScenes();
[[nodiscard]] QList<Scene> trayScenes();
[[nodiscard]] QList<Scene> welcomeScenes();
[[nodiscard]] QList<Scene> windowScenes();

[[nodiscard]] QList<Scene> allScenes();

} // namespace vantle

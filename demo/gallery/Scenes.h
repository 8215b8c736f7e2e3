// All scenes of the gallery. Each folder beside this one has a function here, and its line in
// Scenes.cpp.
#pragma once

#include "gallery/Scene.h"

namespace vantle {

[[nodiscard]] QList<Scene> kitScenes();

[[nodiscard]] QList<Scene> allScenes();

} // namespace vantle

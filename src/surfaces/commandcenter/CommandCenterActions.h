// What the command center can set in motion. All else that it does is to show.
#pragma once

#include "review/stats/WrappedPeriod.h"
#include "surfaces/window/WindowSpec.h"

#include <QString>

#include <cstdint>
#include <functional>

namespace vantle {

/// Wired by the controller to the application model and the windows. None is empty. Main thread.
struct CommandCenterActions {
    std::function<void()> toggleVantle;
    std::function<void(const QString& id)> selectSkill;
    std::function<void(const QString& name, std::uint32_t hexRGB)> addSkill;
    std::function<void(const QString& id, const QString& name, std::uint32_t hexRGB)> updateSkill;
    std::function<void(const QString& id)> deleteSkill;
    std::function<void(int minutes)> backfill;
    std::function<void(WindowId id)> openWindow;
    std::function<void(WrappedPeriod period)> openWrapped;
    std::function<void()> quit;
    std::function<void()> hide;
    std::function<void()> relayout; ///< the content has another height
};

} // namespace vantle

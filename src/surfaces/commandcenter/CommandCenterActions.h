// The commands of the command center.
#pragma once

#include "review/stats/WrappedPeriod.h"
#include "surfaces/window/WindowSpec.h"

#include <QString>

#include <cstdint>
#include <functional>

namespace vantle {

/// Set by the controller; none is empty. Main thread.
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
    std::function<void()> relayout; ///< the content's height changed
};

} // namespace vantle

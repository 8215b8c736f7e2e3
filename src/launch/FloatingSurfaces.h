// The assembly of the surfaces that float above the desktop.
#pragma once

#include "app/Collaborators.h"
#include "surfaces/cards/QuickCardStage.h"

#include <memory>

namespace vantle {

class Scheduler;
class SharedEngine;
struct Platform;

/// Must outlive what it makes. Main thread.
class FloatingSurfaces {
public:
    /// All of it must outlive this object.
    FloatingSurfaces(const Platform& platform, Scheduler& scheduler, SharedEngine& engine);
    ~FloatingSurfaces();

    [[nodiscard]] std::unique_ptr<collaborators::Notch> makeNotch();
    [[nodiscard]] CardStage& cardStage() { return m_cardStage; }

private:
    const Platform& m_platform;
    Scheduler& m_scheduler;
    SharedEngine& m_engines;
    QuickCardStage m_cardStage;
};

} // namespace vantle

// The assembly of the ceremony: its controller, and the module for pages.
#pragma once

#include "base/RandomSource.h"
#include "base/SerialQueue.h"
#include "ceremony/ModuleWebStage.h"

#include <memory>

namespace vantle {

class Clock;
class Scheduler;
struct Platform;

namespace collaborators {
class Ripple;
}

/// Everything that the controller uses. Must outlive it. Main thread.
class Ceremony {
public:
    /// Call before there are threads and an application object. Prepares the heap for trimming, and
    /// lets a page's engine share graphics with the program. The latter loads the graphics driver,
    /// so it is done only when a page exists; a page added later plays from the next run on.
    static void prepareProcess();

    /// Loads the ceremony's font, if there is one. Shows are prepared on `prepQueue`. The
    /// references must outlive this object.
    Ceremony(const Platform& platform, const Clock& clock, Scheduler& scheduler,
             std::unique_ptr<SerialQueue> prepQueue);

    [[nodiscard]] std::unique_ptr<collaborators::Ripple> makeRipple();

    /// Waits until no show is being prepared.
    void settle() { m_prepQueue->drain(); }

private:
    const Platform& m_platform;
    const Clock& m_clock;
    Scheduler& m_scheduler;
    SystemRandom m_random;
    ModuleWebStage m_web;
    const std::unique_ptr<SerialQueue> m_prepQueue;
};

} // namespace vantle

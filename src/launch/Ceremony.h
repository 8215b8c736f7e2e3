// The ceremony put together: its controller, the module that shows pages.
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

/// What the controller works with. Must outlive it. Main thread.
class Ceremony {
public:
    /// To be called before there are threads and an application object: sees that shows can give
    /// their memory back, and that a page's engine can share what it draws with the program. The
    /// latter loads the graphics driver, so it is done only where there is a page; one that is put
    /// in its place later plays from the next run on.
    static void prepareProcess();

    /// Makes the ceremony's typeface known, if there is one. `prepQueue` is what shows are made
    /// ready on. The references must outlive this object.
    Ceremony(const Platform& platform, const Clock& clock, Scheduler& scheduler,
             std::unique_ptr<SerialQueue> prepQueue);

    [[nodiscard]] std::unique_ptr<collaborators::Ripple> makeRipple();

    /// Returns when no show is being made ready beside the main thread.
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

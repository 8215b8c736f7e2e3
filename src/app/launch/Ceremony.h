// The ceremony put together: its controller, its windows, the module that shows pages.
#pragma once

#include "base/RandomSource.h"
#include "base/SerialQueue.h"
#include "ceremony/ModuleWebStage.h"
#include "ceremony/RasterStage.h"

namespace vantle {

class Preferences;
class ReducedMotion;
class Screens;

namespace collaborators {
class Ripple;
}

/// What the controller works with. Must outlive it. Main thread.
class Ceremony {
public:
    /// All of it must outlive this object.
    struct Environment {
        const Clock& clock;
        Scheduler& scheduler;
        Preferences& preferences;
        const ReducedMotion& reducedMotion;
        const Screens& screens;
        PanelHost& panelHost;
    };

    /// Where there is a page, lets its engine share what it draws with the program. That loads the
    /// graphics driver, so people without a page are spared it. To be called before there is an
    /// application object; a page that is put in its place later plays from the next run on.
    static void prepareProcess();

    /// Makes the ceremony's typeface known, if there is one.
    explicit Ceremony(const Environment& environment);

    [[nodiscard]] std::unique_ptr<collaborators::Ripple> makeRipple();

private:
    const Environment m_env;
    SystemRandom m_random;
    RasterStage m_stage;
    ModuleWebStage m_web;
    ThreadQueue m_prepQueue;
};

} // namespace vantle

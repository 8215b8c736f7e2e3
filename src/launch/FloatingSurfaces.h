// The surfaces that float above the desktop, put together.
#pragma once

#include "app/Collaborators.h"
#include "surfaces/cards/QuickCardStage.h"

#include <QQmlEngine>

#include <memory>

namespace vantle {

class PanelHost;
class Preferences;
class ReducedMotion;
class Scheduler;
class Screens;
class SharedEngine;

/// Must outlive what it makes. Main thread.
class FloatingSurfaces {
public:
    /// All of it must outlive this object.
    struct Environment {
        SharedEngine& engine;
        Scheduler& scheduler;
        const Preferences& preferences;
        const ReducedMotion& reducedMotion;
        const Screens& screens;
        PanelHost& panelHost;
    };

    explicit FloatingSurfaces(const Environment& environment);
    ~FloatingSurfaces();

    [[nodiscard]] std::unique_ptr<collaborators::Notch> makeNotch();
    [[nodiscard]] CardStage& cardStage() { return m_cardStage; }

private:
    /// For one more view.
    [[nodiscard]] QQmlEngine& engine();

    const Environment m_env;
    const std::shared_ptr<QQmlEngine> m_engine; ///< the capsule is hardly ever away
    QuickCardStage m_cardStage;
};

} // namespace vantle

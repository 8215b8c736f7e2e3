// The assembly of the surfaces that float above the desktop.
#pragma once

#include "app/Collaborators.h"
#include "surfaces/cards/QuickCardStage.h"

#include <QQmlEngine>

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
    const std::shared_ptr<QQmlEngine> m_engine; ///< kept, since the capsule nearly always exists
    QuickCardStage m_cardStage;
};

} // namespace vantle

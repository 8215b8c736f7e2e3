// Capsules without windows, on virtual time.
#pragma once

#include "fakes/FakeReducedMotion.h"
#include "fakes/FakeScreens.h"
#include "surfaces/capsule/NotchStatusController.h"
#include "tracking/TrackingWorld.h"

#include <QStringList>

namespace vantle::tests {

/// Where the capsule's window would be.
struct FakeStage final : CapsuleStage {
    [[nodiscard]] bool pointerInside(const QRectF& part) const override {
        return part.contains(pointer);
    }
    void prepare() override {}
    void follow() override { ++follows; }
    void takeKeyboard() override { hasKeyboard = true; }
    void returnKeyboard() override { hasKeyboard = false; }

    QPointF pointer{-1000, -1000}; ///< far from everything
    int follows = 0;
    bool hasKeyboard = false;
};

class CapsuleWorld {
public:
    CapsuleWorld() { setTopBar(0); }

    /// Gives the desktop a bar of that height at the top.
    void setTopBar(double height) {
        ScreenShape& screen = screens.shapes.front();
        screen.available = screen.frame.adjusted(0, height, 0, 0);
    }

    [[nodiscard]] NotchCapsule::Environment environment() {
        return {tracking.time, tracking.preferences, reducedMotion, text};
    }

    [[nodiscard]] NotchCapsule::Form idleForm() {
        NotchCapsule::Form form = runningForm();
        form.idlePrompt = true;
        form.edit = collaborators::SkillEditCallbacks{
            [this](const QString& id, const QString& name, std::uint32_t hex) {
                calls << QStringLiteral("update %1 %2 %3").arg(id, name).arg(hex, 6, 16);
            },
            [this](const QString& id) { calls << QStringLiteral("delete %1").arg(id); },
            [this](const QString& name, std::uint32_t hex) {
                calls << QStringLiteral("add %1 %2").arg(name).arg(hex, 6, 16);
            }};
        return form;
    }

    [[nodiscard]] NotchCapsule::Form runningForm() {
        return {&tracking.tracker,
                skills[0],
                skills,
                false,
                [this] { calls << QStringLiteral("tap"); },
                [this](const QString& id) { calls << QStringLiteral("pick %1").arg(id); },
                std::nullopt};
    }

    TrackingWorld tracking;
    fakes::FakeReducedMotion reducedMotion;
    fakes::FakeScreens screens;
    const CapsuleText text;
    const std::vector<Skill> skills{Skill::defaults().begin(), Skill::defaults().end()};
    QStringList calls; ///< the capsule's calls to the model
};

} // namespace vantle::tests

// The window of one capsule.
#pragma once

#include "surfaces/capsule/NotchStatusController.h"
#include "surfaces/panel/FloatingPanel.h"

#include <functional>
#include <memory>

namespace vantle {

/// A floating panel with the capsule's view, slightly higher than the capsule's panel for the
/// shadow, and enlarged while the menu or the editor is open. The view is made when the capsule
/// opens first and dropped some time after it has closed, so at rest there is neither view nor
/// engine. It stays where the capsule is drawn at rest or the window itself takes the pointer.
/// Without a compositor the window is hidden at rest, since it would be visible. Main thread.
class CapsuleWindow final : public CapsulePanel, private CapsuleStage {
public:
    /// How long the view outlives the capsule's closing.
    static constexpr Seconds viewKept{5.0};

    struct Environment {
        Scheduler& scheduler;
        PanelHost& host;
        /// Returns the engine, which the view keeps; it must find the program's modules.
        std::function<std::shared_ptr<QQmlEngine>()> engine;
    };

    /// Scheduler and host must outlive the window.
    CapsuleWindow(Environment environment, std::unique_ptr<NotchCapsule> capsule,
                  const Placement& placement);
    ~CapsuleWindow() override;

    [[nodiscard]] NotchCapsule& capsule() override { return *m_capsule; }
    [[nodiscard]] bool hasView() const { return m_panel != nullptr; }
    /// Requires a view.
    [[nodiscard]] FloatingPanel& panel() { return *m_panel; }

    // CapsuleStage
    void prepare() override;

private:
    [[nodiscard]] bool pointerInside(const QRectF& part) const override;
    void follow() override;
    void takeKeyboard() override;
    void returnKeyboard() override;

    [[nodiscard]] bool needsView() const;
    void loadView();
    void dropView();
    void sensePointer();
    [[nodiscard]] QRegion inputRegion() const;
    [[nodiscard]] bool mustHide() const;
    [[nodiscard]] Placement placement() const;

    /// Both may be handling an event when they are to be deleted.
    struct DeleteLater {
        void operator()(QObject* object) const { object->deleteLater(); }
    };
    const Environment m_env;
    const Placement m_placement;             ///< of the capsule's panel alone
    std::unique_ptr<PointerSensor> m_sensor; ///< for the free strip; null where unsupported
    std::unique_ptr<NotchCapsule, DeleteLater> m_capsule;
    std::unique_ptr<FloatingPanel, DeleteLater> m_panel; ///< null without a view
    TimerHandle m_drop;                                  ///< runs while the view is kept at rest
};

} // namespace vantle

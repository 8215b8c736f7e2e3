// The window of one capsule.
#pragma once

#include "surfaces/capsule/NotchStatusController.h"
#include "surfaces/panel/FloatingPanel.h"

#include <memory>

namespace vantle {

/// A floating panel with the capsule's view, slightly higher than the capsule's panel for the
/// shadow, and enlarged while the menu or the editor is open. Without a compositor the window
/// exists only while the capsule is open, since it would be visible at rest. Main thread.
class CapsuleWindow final : public CapsulePanel, private CapsuleStage {
public:
    /// Shows the capsule. Returns null when its view is invalid. Engine and host must outlive the
    /// window; the engine must find the program's modules.
    [[nodiscard]] static std::unique_ptr<CapsuleWindow> raise(std::unique_ptr<NotchCapsule> capsule,
                                                              const Placement& placement,
                                                              QQmlEngine& engine, PanelHost& host);
    ~CapsuleWindow() override;

    [[nodiscard]] NotchCapsule& capsule() override { return *m_capsule; }
    [[nodiscard]] FloatingPanel& panel() { return *m_panel; }

private:
    CapsuleWindow(std::unique_ptr<NotchCapsule> capsule, const Placement& placement,
                  QQmlEngine& engine, PanelHost& host);

    // CapsuleStage
    [[nodiscard]] bool pointerInside(const QRectF& part) const override;
    void follow() override;
    void takeKeyboard() override { m_panel->takeKeyboard(); }
    void returnKeyboard() override { m_panel->returnKeyboard(); }

    void sensePointer();
    [[nodiscard]] QRegion inputRegion() const;
    [[nodiscard]] bool mustHide() const;
    [[nodiscard]] Placement placement() const;

    /// Both may be handling an event when they are to be deleted.
    struct DeleteLater {
        void operator()(QObject* object) const { object->deleteLater(); }
    };
    PanelHost& m_host;
    const Placement m_placement;             ///< of the capsule's panel alone
    std::unique_ptr<PointerSensor> m_sensor; ///< for the free strip; null where unsupported
    std::unique_ptr<NotchCapsule, DeleteLater> m_capsule;
    std::unique_ptr<FloatingPanel, DeleteLater> m_panel;
};

} // namespace vantle

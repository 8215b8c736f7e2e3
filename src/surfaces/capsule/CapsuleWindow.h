// The window of one capsule.
#pragma once

#include "surfaces/capsule/NotchStatusController.h"
#include "surfaces/panel/FloatingPanel.h"

#include <memory>

namespace vantle {

/// A floating panel with the capsule's view. It is a little higher than the capsule's panel, for
/// the shadow, and grows for as long as the menu or the editor hang below. While there is no
/// compositor there is a window only while the capsule is open: one at rest could be seen. Main
/// thread.
class CapsuleWindow final : public CapsulePanel, private CapsuleStage {
public:
    /// Shows the capsule there. Null when its view can't be made. Engine and host must outlive the
    /// window; the engine finds the program's modules.
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

    /// Both may be in the middle of an event when they have to go.
    struct DeleteLater {
        void operator()(QObject* object) const { object->deleteLater(); }
    };
    PanelHost& m_host;
    const Placement m_placement; ///< of the capsule's panel alone
    std::unique_ptr<PointerSensor>
        m_sensor; ///< of the free strip; null where there is no such thing
    std::unique_ptr<NotchCapsule, DeleteLater> m_capsule;
    std::unique_ptr<FloatingPanel, DeleteLater> m_panel;
};

} // namespace vantle

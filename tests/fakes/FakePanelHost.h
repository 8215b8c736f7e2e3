// A panel host that records requests.
#pragma once

#include "platform/PanelHost.h"

#include <QCoreApplication>

#include <map>
#include <optional>
#include <set>
#include <utility>

namespace vantle::fakes {

class FakePanelHost final : public PanelHost {
public:
    [[nodiscard]] bool isComposited() override { return composited; }
    [[nodiscard]] bool hasInputRegions() const override { return inputRegions; }
    [[nodiscard]] bool tellsPointer() const override { return pointerIsTold; }
    QRect place(QWindow& window, const Placement& placement) override {
        if (!window.isVisible()) placedBeforeShow.insert(&window);
        placements[&window] = placement;
        return PanelHost::place(window, placement);
    }
    void setInputRegion(QWindow&, const QRegion& region) override { inputRegion = region; }
    [[nodiscard]] std::unique_ptr<PointerSensor> senseAt(const Placement& panel, const QRect& rect,
                                                         std::function<void()> rested) override {
        if (!senses) return nullptr;
        const QRect part = rect.translated(panel.ground().topLeft());
        sensor = Sensor{part, std::move(rested)};
        // Deferred, as from a server.
        if (part.contains(pointer))
            QMetaObject::invokeMethod(
                this, [this] { tellSensor(); }, Qt::QueuedConnection);
        return std::make_unique<Sensing>(*this);
    }
    void takeKeyboard(QWindow& window) override { keyboardOwner = &window; }
    void returnKeyboard(QWindow& window) override {
        if (keyboardOwner == &window) keyboardOwner = nullptr;
    }

    /// A compositor comes or goes.
    void setComposited(bool isThere) {
        if (std::exchange(composited, isThere) != isThere) Q_EMIT compositedChanged();
    }
    /// The user moves the pointer there and rests.
    void movePointer(QPoint place) {
        const QPoint before = std::exchange(pointer, place);
        if (sensor && !sensor->part.contains(before)) tellSensor();
    }
    /// Presses or releases a button at the pointer.
    void setButtonDown(bool isDown) { buttonIsDown = isDown; }

    struct Sensor {
        QRect part;
        std::function<void()> rested;
    };
    std::optional<Sensor> sensor; ///< the current one
    bool composited = true;
    bool inputRegions = true;
    bool pointerIsTold = true;
    bool senses = true; ///< whether pointer sensors are supported
    std::set<const QWindow*> placedBeforeShow;
    std::map<const QWindow*, Placement> placements; ///< the last one of each window
    QRegion inputRegion;                            ///< of the window that set one last
    QWindow* keyboardOwner = nullptr; ///< null while another application has the keyboard

private:
    struct Sensing final : PointerSensor {
        explicit Sensing(FakePanelHost& owner) : host(owner) {}
        ~Sensing() override { host.sensor.reset(); }
        FakePanelHost& host;
    };

    void tellSensor() {
        if (!sensor || buttonIsDown || !sensor->part.contains(pointer)) return;
        const auto rested = sensor->rested; // the sensor may be destroyed meanwhile
        rested();
    }

    QPoint pointer{-1000, -1000};
    bool buttonIsDown = false;
};

} // namespace vantle::fakes

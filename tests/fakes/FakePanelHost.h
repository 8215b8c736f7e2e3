// A desktop that remembers what panels asked of it.
#pragma once

#include "platform/PanelHost.h"

#include <optional>
#include <utility>

namespace vantle::fakes {

class FakePanelHost final : public PanelHost {
public:
    [[nodiscard]] bool isComposited() override { return composited; }
    void setInputRegion(QWindow&, const QRegion& region) override { inputRegion = region; }
    [[nodiscard]] std::unique_ptr<PointerSensor> senseAt(const QRect& part,
                                                         std::function<void()> entered) override {
        sensor = Sensor{part, std::move(entered)};
        return std::make_unique<Sensing>(*this);
    }
    void takeKeyboard(QWindow& window) override { keyboardOwner = &window; }
    void returnKeyboard(QWindow& window) override {
        if (keyboardOwner == &window) keyboardOwner = nullptr;
    }

    struct Sensor {
        QRect part;
        std::function<void()> entered;
    };
    std::optional<Sensor> sensor; ///< the one that there is
    bool composited = true;
    QRegion inputRegion;              ///< of the window that set one last
    QWindow* keyboardOwner = nullptr; ///< null while the keyboard is with the application below

private:
    struct Sensing final : PointerSensor {
        explicit Sensing(FakePanelHost& owner) : host(owner) {}
        ~Sensing() override { host.sensor.reset(); }
        FakePanelHost& host;
    };
};

} // namespace vantle::fakes

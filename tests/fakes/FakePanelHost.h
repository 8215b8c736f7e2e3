// A desktop that remembers what panels asked of it.
#pragma once

#include "platform/PanelHost.h"

namespace vantle::fakes {

class FakePanelHost final : public PanelHost {
public:
    [[nodiscard]] bool isComposited() override { return composited; }
    void setInputRegion(QWindow&, const QRegion& region) override { inputRegion = region; }
    void takeKeyboard(QWindow& window) override { keyboardOwner = &window; }
    void returnKeyboard(QWindow& window) override {
        if (keyboardOwner == &window) keyboardOwner = nullptr;
    }

    bool composited = true;
    QRegion inputRegion;              ///< of the window that set one last
    QWindow* keyboardOwner = nullptr; ///< null while the keyboard is with the application below
};

} // namespace vantle::fakes

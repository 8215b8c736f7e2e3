// A window manager that records requests.
#pragma once

#include "platform/WindowManager.h"

#include <QPointer>

#include <utility>

namespace vantle::fakes {

class FakeWindowManager final : public WindowManager {
public:
    [[nodiscard]] bool canMinimise() const override { return minimises; }
    void place(QWindow& window, const QRect& frame) override {
        if (places)
            WindowManager::place(window, frame);
        else
            window.resize(frame.size());
    }
    void bringToUser(QWindow& window) override {
        brought = &window;
        WindowManager::bringToUser(window);
    }

    /// Another window manager takes over.
    void setMinimises(bool can) {
        if (std::exchange(minimises, can) != can) Q_EMIT changed();
    }

    bool places = true; ///< as requested; otherwise only the size is granted
    bool minimises = true;
    QPointer<QWindow> brought; ///< the last window brought to the user
};

} // namespace vantle::fakes

// A way to the system-wide shortcut that a service of the desktop offers.
#pragma once

#include "platform/HotKeyPort.h"

#include <functional>
#include <optional>

namespace vantle {

/// Takes keys through a service that may be missing, and may come and go while the program runs.
/// `registerKey` requires that it is offered. Main thread.
class OfferedHotKey : public HotKeyPort {
public:
    /// Empty until the desktop has told.
    [[nodiscard]] virtual std::optional<bool> isOffered() const = 0;

    /// Called after each change of `isOffered`, never from within a call of this port. What was
    /// registered by then is lost. Set by the owner; may be empty.
    std::function<void()> onOfferedChanged;
};

} // namespace vantle

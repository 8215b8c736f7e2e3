// A way to the shortcut through a service of the desktop.
#pragma once

#include "platform/HotKeyPort.h"

#include <functional>
#include <optional>

namespace vantle {

/// The service may be missing, come and go. `registerKey` requires that it is offered. Main thread.
class OfferedHotKey : public HotKeyPort {
public:
    /// Empty while unknown.
    [[nodiscard]] virtual std::optional<bool> isOffered() const = 0;

    /// Called after each change of `isOffered`, never from inside a call of this port. Any
    /// registration is lost by then. Set by the owner; may be empty.
    std::function<void()> onOfferedChanged;
};

} // namespace vantle

// Whether the person asked the desktop for less movement.
#pragma once

namespace vantle {

class ReducedMotion {
public:
    virtual ~ReducedMotion() = default;

    /// The setting as last heard; false where the desktop has none. Main thread, never blocks.
    [[nodiscard]] virtual bool enabled() const = 0;
};

} // namespace vantle

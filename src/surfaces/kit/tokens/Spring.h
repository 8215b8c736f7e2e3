// The spring of all movements, in closed form.
//
// A unit mass released at rest. Pure functions, any thread.
#pragma once

namespace vantle {

struct Spring {
    double stiffness; ///< k, per second squared
    double damping;   ///< c, per second

    /// Returns the progress after `seconds`: 0 at the start, towards 1, with overshoot if
    /// underdamped. 0 before the start.
    [[nodiscard]] double progressAt(double seconds) const;

    /// Returns an upper bound, in seconds, of the time after which the progress stays within
    /// `tolerance` of 1.
    [[nodiscard]] double settlingTime(double tolerance) const;
};

} // namespace vantle

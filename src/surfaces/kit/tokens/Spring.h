// The spring behind every movement: a unit mass that is let go at rest, in closed form.
//
// Pure functions, any thread.
#pragma once

namespace vantle {

struct Spring {
    double stiffness; ///< k, per second squared
    double damping;   ///< c, per second

    /// How far the way is gone after `seconds`: 0 at the start, towards 1, and beyond it for a
    /// while where the spring swings over. Times before the start give 0.
    [[nodiscard]] double progressAt(double seconds) const;

    /// The time after which the way never again differs from 1 by more than `tolerance`, in
    /// seconds, or a little more than that.
    [[nodiscard]] double settlingTime(double tolerance) const;
};

} // namespace vantle

// The choice of the backend that implements the ports.
#pragma once

#include "launch/PlatformParts.h"

namespace vantle {

/// All implementations of the ports. Main thread.
struct PlatformOwner {
    platformparts::Posix posix;
    platformparts::Display display;
    platformparts::Session session;
    /// Destroyed first, which restores the default action: a signal can end a hanging shutdown.
    std::shared_ptr<void> signalWatch;

    /// The ports; this object must outlive their users.
    [[nodiscard]] Platform ports() const;
};

namespace platformfactory {

/// Whether there is a desktop. Call before constructing the application object, which aborts
/// without one.
[[nodiscard]] bool desktopIsReachable();

/// Selects the toolkit's window system plugin, unless the environment does. Call before the
/// application object.
void chooseWindows();

/// Disables the session bus when it accepts connections but never answers: the toolkit connects to
/// it at its start and would block for a minute. Takes up to a second in that case only. Call
/// before the application object.
void leaveMuteSessionBus();

/// Rounds a scale factor close to a whole number, unless the environment sets one. Call before the
/// application object.
void settleScaleFactor();

/// Makes the backend. Requires the application object. Child processes get `environment`.
[[nodiscard]] PlatformOwner makePlatform(Scheduler& scheduler, const PlatformEvents& events,
                                         const QProcessEnvironment& environment);

} // namespace platformfactory
} // namespace vantle

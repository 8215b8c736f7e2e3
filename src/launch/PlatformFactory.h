// The one place that chooses the desktop the program runs on.
#pragma once

#include "launch/PlatformParts.h"

namespace vantle {

/// Everything that answers the ports. Main thread.
struct PlatformOwner {
    platformparts::Posix posix;
    platformparts::Display display;
    platformparts::Session session;
    std::shared_ptr<void> signalWatch; ///< ends first: a hanging end can be cut short by a signal

    /// This must outlive all that hold the ports.
    [[nodiscard]] Platform ports() const;
};

namespace platformfactory {

/// Whether there is a desktop at all. Before the application object, which can't live without one.
[[nodiscard]] bool desktopIsReachable();

/// Tells the toolkit by which kind of windows to show itself, unless the session's environment
/// does. Before the application object.
void chooseWindows();

/// Goes on without the session bus where it takes calls and never answers: the toolkit connects to
/// it at its start and would wait for a minute. A second at the most, and only there. Before the
/// application object.
void leaveMuteSessionBus();

/// Takes a scale factor next to a whole number for that number, unless the session's environment
/// tells the toolkit a size. Before the application object.
void settleScaleFactor();

/// After the application object. `environment` is what programs that are started find.
[[nodiscard]] PlatformOwner makePlatform(Scheduler& scheduler, const PlatformEvents& events,
                                         const QProcessEnvironment& environment);

} // namespace platformfactory
} // namespace vantle

// The program above the platform, on any backend.
#pragma once

#include "launch/AppDelegate.h"
#include "launch/AppInstaller.h"
#include "launch/Ceremony.h"
#include "launch/FloatingSurfaces.h"
#include "launch/WishedTextScale.h"
#include "surfaces/window/SharedEngine.h"
#include "surfaces/wrapped/PosterSharing.h"
#include "tracking/AppPaths.h"

#include <QObject>

#include <functional>
#include <memory>

namespace vantle {

/// Runs on any complete Platform. Requires the application object. Main thread.
class Program {
public:
    /// The services of the process. The references must outlive the program.
    struct Process {
        const Clock& clock;
        Scheduler& scheduler;
        /// Makes a queue with that label; see SerialQueue.
        std::function<std::unique_ptr<SerialQueue>(const QString& label)> makeQueue;
        std::function<Calendar()> calendar;
        std::function<void()> terminate; ///< ends the main loop
        /// Whether the process was told to end; answers to open alerts are void then.
        std::function<bool()> isEnding = [] { return false; };
        /// Started at login, or by the bus for a call to come: no window may open.
        bool startedUnasked = false;
    };

    /// The ports must outlive the program.
    Program(const Platform& platform, const Process& process);
    ~Program();

    /// Starts the program. Returns false when it is to end; see AppDelegate.
    [[nodiscard]] bool start();

    /// The user started it again; no effect before start().
    void reopen();
    void performAction(const QString& name); ///< see AppDelegate; no effect before start()
    void stop();                             ///< the process is about to end; once

    /// stop() and settle() without touching windows or views.
    void stopUnseen();

    [[nodiscard]] AppDelegate& delegate() { return m_delegate; }

private:
    [[nodiscard]] AppDelegate::Environment environment();

    const Platform m_platform;
    const Process m_process;
    bool m_isUp = false;
    // Declared before the queues, whose destructors run queued work on these paths.
    const AppPaths m_paths;
    const std::unique_ptr<SerialQueue> m_ioQueue;
    const std::unique_ptr<SerialQueue> m_autoSkillQueue;
    const std::unique_ptr<SerialQueue> m_exportQueue;
    PosterSharing m_posterSharing;
    AppInstaller m_installer;
    Ceremony m_ceremony;
    WishedTextScale m_textScale;
    SharedEngine m_viewEngine;
    FloatingSurfaces m_surfaces;
    AppDelegate m_delegate;
    QObject m_context; ///< destroyed first, which disconnects its connections
};

} // namespace vantle

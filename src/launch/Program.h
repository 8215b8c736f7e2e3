// The program on a desktop: everything above the platform, put together.
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

/// Main thread, after the application object. Any desktop that fills in a Platform will do.
class Program {
public:
    /// What the process runs on beside the desktop. The references must outlive the program.
    struct Process {
        const Clock& clock;
        Scheduler& scheduler;
        /// A queue of that label; see SerialQueue.
        std::function<std::unique_ptr<SerialQueue>(const QString& label)> makeQueue;
        std::function<Calendar()> calendar;
        std::function<void()> terminate; ///< ends the main loop
        /// Whether the process was told to end; what the user is asked meanwhile counts no more.
        std::function<bool()> isEnding = [] { return false; };
        /// At login, or by the bus for a call that is about to come: nothing may pop up.
        bool startedUnasked = false;
    };

    /// The ports must outlive the program.
    Program(const Platform& platform, const Process& process);
    ~Program();

    /// Brings the program up. False when it is to end; see AppDelegate.
    [[nodiscard]] bool start();

    void reopen();                           ///< the user started it again; nothing before start()
    void performAction(const QString& name); ///< see AppDelegate; nothing before start()
    void stop();                             ///< the process is about to end; once

    /// stop() and settle where nothing that is drawn may be touched any more.
    void stopUnseen();

    [[nodiscard]] AppDelegate& delegate() { return m_delegate; }

private:
    [[nodiscard]] AppDelegate::Environment environment();

    const Platform m_platform;
    const Process m_process;
    bool m_isUp = false;
    // Before the queues, which run what is left in them, on these paths, as they go.
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
    QObject m_context; ///< of connections; they end first
};

} // namespace vantle

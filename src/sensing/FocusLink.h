// The user's own commands at the start and end of a session.
#pragma once

#include "tracking/Settings.h"

#include <QString>
#include <QStringList>

#include <functional>

namespace vantle {

class Preferences;
class ProcessRunner;

/// Runs the shortcuts tool: `list` prints one name per line, `run NAME` runs one. Main thread. No
/// call waits for a shortcut, and failures are silent: no session depends on one.
class FocusLink {
public:
    /// `tool` is the absolute path of the shortcuts tool. Both references must outlive this.
    FocusLink(Preferences& preferences, ProcessRunner& runner, QString tool);

    /// Passes the names in the tool's order; none on any failure. Calls back from the event loop,
    /// or never when the runner is destroyed first.
    void listShortcuts(std::function<void(const QStringList&)> completion);

    void sessionStarted() { run(settings::startShortcut); }
    void sessionEnded() { run(settings::stopShortcut); }

private:
    void run(const Preference<QString>& shortcut);

    Preferences& m_preferences;
    ProcessRunner& m_runner;
    const QString m_tool;
};

} // namespace vantle

// The person's own commands at both ends of a session, to silence the desktop or whatever they
// like.
#pragma once

#include "tracking/Settings.h"

#include <QString>
#include <QStringList>

#include <functional>

namespace vantle {

class Preferences;
class ProcessRunner;

/// Runs the shortcuts tool, which knows two verbs: `list` prints a name a line, `run NAME` runs
/// one. Main thread. Nothing waits for a shortcut, and every failure is silent: no session depends
/// on one.
class FocusLink {
public:
    /// `tool` is the absolute path of the shortcuts tool. Both references must outlive this.
    FocusLink(Preferences& preferences, ProcessRunner& runner, QString tool);

    /// Hands over the names in the tool's order and spelling; none when anything fails. From the
    /// event loop, or never when the runner goes first.
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

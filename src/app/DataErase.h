// The erase of all data and preferences.
#pragma once

#include <QString>

#include <optional>

namespace vantle {

class ActionNote;
class AppPaths;
class AutoSkillMonitor;
class Preferences;
class SerialQueue;
class SessionFlow;
class SessionSurfaces;
class SkillCommands;

/// Leaves the state of a new user, idle. Main thread; waits for the disk.
class DataErase {
public:
    /// All of it must outlive this object.
    struct Environment {
        SerialQueue& ioQueue;
        const AppPaths& paths;
        Preferences& preferences;
        AutoSkillMonitor& autoSkill;
        ActionNote& note;
        SessionSurfaces& surfaces;
        SessionFlow& flow;
        SkillCommands& skills;
    };
    explicit DataErase(const Environment& environment) : m_env(environment) {}

    /// Returns the text for the user when some files could not be removed (the others are gone);
    /// empty on full success.
    std::optional<QString> run();

private:
    const Environment m_env;
};

} // namespace vantle

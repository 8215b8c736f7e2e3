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

/// Main thread; waits for the disk. What is left afterwards is the program of a new user, idle.
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

    /// Returns what the user is told when a file could not be removed, the rest is gone then; empty
    /// on full success.
    std::optional<QString> run();

private:
    const Environment m_env;
};

} // namespace vantle

// Answers to auto mode: reports the session and carries out suggestions.
#pragma once

#include "app/Collaborators.h"

#include <QObject>

namespace vantle {

class AutoSkillMonitor;
class Clock;
class Preferences;
class SessionFlow;
class SkillCommands;
class SkillList;

/// Sets the monitor's hooks and takes them away at its end. Does not fail: a question that no card
/// can show now is forgotten, so that auto mode may ask it again. Main thread.
class AutoModeAnswers final : public QObject {
    Q_OBJECT

public:
    /// All of it must outlive this object.
    struct Environment {
        const Clock& clock;
        const Preferences& preferences;
        SkillList& list;
        AutoSkillMonitor& monitor;
        SessionFlow& flow;
        SkillCommands& skills;
        collaborators::TagPrompt& tagPrompt;
    };
    explicit AutoModeAnswers(const Environment& environment);
    ~AutoModeAnswers() override;

private:
    void changeSkill(const QString& skillId);
    void startSession(const QString& skillId);
    void askForTag(const QString& bundleId, const QString& appName);
    void resolveTag(const QString& bundleId, const collaborators::TagPrompt::Outcome& outcome);
    /// After the user chose a skill: offers that the application in front always counts as that
    /// skill.
    void offerRule(const QString& chosenSkillId);

    const Environment m_env;
};

} // namespace vantle

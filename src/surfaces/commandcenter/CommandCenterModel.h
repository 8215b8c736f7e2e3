// The model of the command center: its content and commands.
#pragma once

#include "app/OpenQuestions.h"
#include "base/Scheduler.h"
#include "base/Words.h"
#include "surfaces/commandcenter/CommandCenterActions.h"
#include "surfaces/commandcenter/CommandCenterText.h"
#include "surfaces/skills/SkillEditor.h"
#include "surfaces/skills/SkillListModel.h"

#include <QColor>
#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace vantle {

class ActionNote;
class PanelState;
class Preferences;
class SessionFlow;
class SkillList;

/// Follows application model and tracker; updates the running clock only while the panel is open.
/// Main thread.
class CommandCenterModel final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by its controller.")
    Q_PROPERTY(QString title READ title NOTIFY statusChanged)
    /// The title in two parts: one that may be elided, and the time, which may be empty.
    Q_PROPERTY(QString titleState READ titleState NOTIFY statusChanged)
    Q_PROPERTY(QString titleTime READ titleTime NOTIFY statusChanged)
    Q_PROPERTY(QString subtitle READ subtitle NOTIFY statusChanged)
    Q_PROPERTY(QString shortcut READ shortcut CONSTANT)
    Q_PROPERTY(QString primaryText READ primaryText NOTIFY statusChanged)
    /// Of the chosen skill.
    Q_PROPERTY(QColor primaryColor READ primaryColor NOTIFY statusChanged)
    Q_PROPERTY(bool paused READ isPaused NOTIFY statusChanged)
    Q_PROPERTY(bool wrappedReady READ isWrappedReady NOTIFY wrappedReadyChanged)
    /// In minutes; empty when nothing can be credited.
    Q_PROPERTY(QList<int> backfillChoices READ backfillChoices NOTIFY backfillChoicesChanged)
    /// The result of the last command; empty when there is none.
    Q_PROPERTY(QString note READ note NOTIFY noteChanged)
    /// The cards' open questions; their index selects one.
    Q_PROPERTY(QStringList questions READ questions NOTIFY questionsChanged)
    Q_PROPERTY(vantle::SkillListModel* modes READ modes CONSTANT)
    Q_PROPERTY(vantle::SkillEditor* editor READ editor CONSTANT)

    /// The labels of the window rows; their index selects one.
    Q_PROPERTY(QStringList doors READ doors CONSTANT)

public:
    /// A row that opens a window.
    struct Door {
        WindowId window{};
        WindowDoor row;
    };
    /// The services of the model. All of them must outlive it.
    struct Environment {
        SessionFlow& flow;
        ActionNote& note;
        PanelState& panel;
        SkillList& skills;
        const Preferences& preferences;
        Scheduler& scheduler;
        OpenQuestions& questions;
        std::function<QList<Door>()> doors; ///< read when a panel is created
    };

    CommandCenterModel(const Environment& environment, CommandCenterActions actions);

    /// The panel opened or closed.
    void setShown(bool shown);

    [[nodiscard]] QString title() const { return commandcentertext::title(m_status).whole(); }
    [[nodiscard]] QString titleState() const { return commandcentertext::title(m_status).state; }
    [[nodiscard]] QString titleTime() const { return commandcentertext::title(m_status).time; }
    [[nodiscard]] QString subtitle() const { return commandcentertext::subtitle(m_status.state); }
    [[nodiscard]] static QString shortcut() { return Words::tr("⌥⌘B"); }
    [[nodiscard]] QString primaryText() const;
    [[nodiscard]] QColor primaryColor() const;
    [[nodiscard]] bool isPaused() const { return m_status.state == TrackerCore::State::Paused; }
    [[nodiscard]] bool isWrappedReady() const;
    [[nodiscard]] QList<int> backfillChoices() const;
    [[nodiscard]] QString note() const;
    [[nodiscard]] QStringList questions() const;
    [[nodiscard]] QStringList doors() const;
    [[nodiscard]] SkillListModel* modes() { return &m_modes; }
    [[nodiscard]] SkillEditor* editor() { return &m_editor; }

    // Called by the controls
    Q_INVOKABLE void pressPrimary() { m_actions.toggleVantle(); }
    Q_INVOKABLE void backfill(int minutes) { m_actions.backfill(minutes); }
    Q_INVOKABLE void selectMode(const QString& id) { m_actions.selectSkill(id); }
    Q_INVOKABLE void editMode(const QString& id);
    Q_INVOKABLE void deleteMode(const QString& id);
    Q_INVOKABLE void addMode();
    Q_INVOKABLE void openDoor(int door);
    Q_INVOKABLE [[nodiscard]] QString doorKey(int door) const;
    Q_INVOKABLE void openLastWeek() { m_actions.openWrapped(WrappedPeriod::LastWeek); }
    Q_INVOKABLE [[nodiscard]] QStringList answersTo(int question) const;
    Q_INVOKABLE [[nodiscard]] QString answerHelp(int question, int answer) const;
    Q_INVOKABLE void answer(int question, int answer);
    Q_INVOKABLE void quit() { m_actions.quit(); }
    /// Returns whether a pulse of the primary button was requested, and resets the request.
    Q_INVOKABLE bool takePrimaryPulse();

Q_SIGNALS:
    void statusChanged();
    void wrappedReadyChanged();
    void backfillChoicesChanged();
    void noteChanged();
    void questionsChanged();
    /// The primary button should pulse once.
    void primaryPulseWanted();

private:
    void follow();
    void refreshStatus();
    void refreshModes();
    void refreshClock();
    void commitEdit(const std::optional<QString>& id, const QString& name, std::uint32_t hexRGB);
    [[nodiscard]] Skill chosenSkill() const;
    /// Returns an empty answer when it no longer exists.
    [[nodiscard]] OpenQuestions::Answer answerAt(int question, int answer) const;

    Environment m_env;
    CommandCenterActions m_actions;
    commandcentertext::Status m_status;
    SkillListModel m_modes;
    SkillEditor m_editor;
    TimerHandle m_clock; ///< set while a running session is visible
    bool m_shown = false;
};

} // namespace vantle

// What the command center shows, and what its controls do.
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

/// Follows the application model and the tracker as long as it lives; it keeps the texts of the
/// running clock current only while the panel is shown. Main thread.
class CommandCenterModel final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by its controller.")
    Q_PROPERTY(QString title READ title NOTIFY statusChanged)
    /// The title in two parts: what may be cut, and the time, which may not; it may be empty.
    Q_PROPERTY(QString titleState READ titleState NOTIFY statusChanged)
    Q_PROPERTY(QString titleTime READ titleTime NOTIFY statusChanged)
    Q_PROPERTY(QString subtitle READ subtitle NOTIFY statusChanged)
    Q_PROPERTY(QString shortcut READ shortcut CONSTANT)
    Q_PROPERTY(QString primaryText READ primaryText NOTIFY statusChanged)
    /// Of the chosen skill.
    Q_PROPERTY(QColor primaryColor READ primaryColor NOTIFY statusChanged)
    Q_PROPERTY(bool paused READ isPaused NOTIFY statusChanged)
    Q_PROPERTY(bool wrappedReady READ isWrappedReady NOTIFY wrappedReadyChanged)
    /// Minutes; empty when nothing can be credited.
    Q_PROPERTY(QList<int> backfillChoices READ backfillChoices NOTIFY backfillChoicesChanged)
    /// What became of the last command; empty when there is nothing to say.
    Q_PROPERTY(QString note READ note NOTIFY noteChanged)
    /// What the cards ask; the answers are asked for by its place.
    Q_PROPERTY(QStringList questions READ questions NOTIFY questionsChanged)
    Q_PROPERTY(vantle::SkillListModel* modes READ modes CONSTANT)
    Q_PROPERTY(vantle::SkillEditor* editor READ editor CONSTANT)

    /// The windows that the panel leads to, as their rows call them; asked for by their place.
    Q_PROPERTY(QStringList doors READ doors CONSTANT)

public:
    /// A row that leads to a window.
    struct Door {
        WindowId window{};
        WindowDoor row;
    };
    /// What the model works with. All of it must outlive the model.
    struct Environment {
        SessionFlow& flow;
        ActionNote& note;
        PanelState& panel;
        SkillList& skills;
        const Preferences& preferences;
        Scheduler& scheduler;
        OpenQuestions& questions;
        std::function<QList<Door>()> doors; ///< looked at when a panel is made
    };

    CommandCenterModel(const Environment& environment, CommandCenterActions actions);

    /// The panel has come up, or gone away.
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

    // What the controls do.
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
    /// The view has drawn the attention that was asked for, or is about to: whether it was.
    Q_INVOKABLE bool takePrimaryPulse();

Q_SIGNALS:
    void statusChanged();
    void wrappedReadyChanged();
    void backfillChoicesChanged();
    void noteChanged();
    void questionsChanged();
    /// The primary button is to draw attention to itself, once.
    void primaryPulseWanted();

private:
    void follow();
    void refreshStatus();
    void refreshModes();
    void refreshClock();
    void commitEdit(const std::optional<QString>& id, const QString& name, std::uint32_t hexRGB);
    [[nodiscard]] Skill chosenSkill() const;
    /// Without anything in it where there is no such answer any more.
    [[nodiscard]] OpenQuestions::Answer answerAt(int question, int answer) const;

    Environment m_env;
    CommandCenterActions m_actions;
    commandcentertext::Status m_status;
    SkillListModel m_modes;
    SkillEditor m_editor;
    TimerHandle m_clock; ///< there exactly while a running session is looked at
    bool m_shown = false;
};

} // namespace vantle

#include "surfaces/commandcenter/CommandCenterModel.h"

#include "app/ActionNote.h"
#include "app/PanelState.h"
#include "app/SessionFlow.h"
#include "tracking/DashFormat.h"
#include "tracking/Settings.h"
#include "tracking/SkillList.h"

namespace vantle {

namespace {

constexpr Seconds kSecond{1.0};
constexpr Seconds kTolerance{0.1};

} // namespace

CommandCenterModel::CommandCenterModel(const Environment& environment, CommandCenterActions actions)
    : m_env(environment)
    , m_actions(std::move(actions))
    , m_editor([this](const std::optional<QString>& id, const QString& name, std::uint32_t hexRGB) {
        commitEdit(id, name, hexRGB);
    }) {
    follow();
    refreshModes();
    refreshStatus();
}

void CommandCenterModel::follow() {
    TrackerCore& tracker = m_env.flow.tracker();
    PanelState& panel = m_env.panel;
    connect(&tracker, &TrackerCore::stateChanged, this, &CommandCenterModel::refreshStatus);
    connect(&tracker, &TrackerCore::currentSkillIdChanged, this,
            &CommandCenterModel::refreshStatus);
    connect(&tracker, &TrackerCore::welcomeBackChanged, this, &CommandCenterModel::refreshStatus);
    connect(&m_env.flow, &SessionFlow::selectedSkillIdChanged, this, [this] {
        refreshModes();
        refreshStatus();
    });
    connect(&m_env.skills, &SkillList::changed, this, [this] {
        refreshModes();
        refreshStatus();
    });
    connect(&panel, &PanelState::wrappedReadyChanged, this,
            &CommandCenterModel::wrappedReadyChanged);
    connect(&panel, &PanelState::backfillCoverageMinutesChanged, this,
            &CommandCenterModel::backfillChoicesChanged);
    connect(&m_env.note, &ActionNote::changed, this, &CommandCenterModel::noteChanged);
    connect(&m_env.questions, &OpenQuestions::changed, this, &CommandCenterModel::questionsChanged);
    connect(&panel, &PanelState::pulsePrimaryOnceChanged, this, [this] {
        if (m_env.panel.pulsePrimaryOnce()) Q_EMIT primaryPulseWanted();
    });
    const auto relayout = [this] { m_actions.relayout(); };
    connect(&m_editor, &SkillEditor::shownChanged, this, relayout);
}

void CommandCenterModel::setShown(bool shown) {
    m_shown = shown;
    refreshStatus();
}

void CommandCenterModel::refreshStatus() {
    TrackerCore& tracker = m_env.flow.tracker();
    m_status.state = tracker.state();
    const std::optional<QString>& id = tracker.currentSkillId();
    m_status.skillName = id ? m_env.skills.display(*id).name : QString();
    m_status.welcomeBack = tracker.welcomeBack().value_or(QString());
    m_status.time = dashformat::sessionDuration(tracker.displayActiveSeconds(),
                                                settings::durationStyle.read(m_env.preferences));
    refreshClock();
    Q_EMIT statusChanged();
}

void CommandCenterModel::refreshClock() {
    const bool moves = m_shown && m_status.state == TrackerCore::State::Running;
    if (!moves)
        m_clock.reset();
    else if (!m_clock)
        m_clock = m_env.scheduler.scheduleRepeatingTimer(kSecond, kTolerance,
                                                         [this] { refreshStatus(); });
}

void CommandCenterModel::refreshModes() {
    m_modes.show(m_env.skills.all(), m_env.flow.selectedSkillId());
}

Skill CommandCenterModel::chosenSkill() const {
    return m_env.skills.by(m_env.flow.selectedSkillId());
}

QStringList CommandCenterModel::doors() const {
    QStringList titles;
    for (const Door& door : m_env.doors())
        titles << door.row.title;
    return titles;
}

QString CommandCenterModel::doorKey(int door) const { return m_env.doors().value(door).row.key; }

void CommandCenterModel::openDoor(int door) {
    const QList<Door> doors = m_env.doors();
    if (door >= 0 && door < doors.size()) m_actions.openWindow(doors[door].window);
}

QString CommandCenterModel::primaryText() const {
    return commandcentertext::primary(m_status, chosenSkill().name);
}

QColor CommandCenterModel::primaryColor() const { return QColor::fromRgb(chosenSkill().hexRGB); }

bool CommandCenterModel::isWrappedReady() const { return m_env.panel.wrappedReady(); }

QList<int> CommandCenterModel::backfillChoices() const {
    return commandcentertext::backfillChoices(m_env.panel.backfillCoverageMinutes());
}

QString CommandCenterModel::note() const { return m_env.note.text().value_or(QString()); }

QStringList CommandCenterModel::questions() const {
    QStringList texts;
    for (const auto& [owner, question] : m_env.questions.all())
        texts << question.text;
    return texts;
}

QStringList CommandCenterModel::answersTo(int question) const {
    QStringList texts;
    const auto& open = m_env.questions.all();
    if (question < 0 || question >= static_cast<int>(open.size())) return texts;
    for (const auto& answer : open[static_cast<std::size_t>(question)].second.answers)
        texts << answer.text;
    return texts;
}

OpenQuestions::Answer CommandCenterModel::answerAt(int question, int answer) const {
    if (answer < 0 || answer >= answersTo(question).size()) return {};
    const auto& open = m_env.questions.all()[static_cast<std::size_t>(question)].second;
    return open.answers[static_cast<std::size_t>(answer)];
}

QString CommandCenterModel::answerHelp(int question, int answer) const {
    return answerAt(question, answer).help;
}

void CommandCenterModel::answer(int question, int answer) {
    // A copy, since answering closes the question.
    const OpenQuestions::Answer chosen = answerAt(question, answer);
    if (chosen.takesKeyboard) m_actions.hide();
    if (chosen.give) chosen.give();
}

void CommandCenterModel::editMode(const QString& id) {
    if (const auto skill = m_env.skills.find(id)) m_editor.openFor(*skill);
}

void CommandCenterModel::deleteMode(const QString& id) {
    if (m_editor.editingSkillId() == id) m_editor.close();
    m_actions.deleteSkill(id);
}

void CommandCenterModel::addMode() { m_editor.openNew(m_env.skills.all()); }

void CommandCenterModel::commitEdit(const std::optional<QString>& id, const QString& name,
                                    std::uint32_t hexRGB) {
    if (id)
        m_actions.updateSkill(*id, name, hexRGB);
    else
        m_actions.addSkill(name, hexRGB);
}

bool CommandCenterModel::takePrimaryPulse() {
    const bool wanted = m_env.panel.pulsePrimaryOnce();
    if (wanted) m_env.panel.setPulsePrimaryOnce(false);
    return wanted;
}

} // namespace vantle

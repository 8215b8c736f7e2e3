#include "launch/SpokenEvents.h"

#include "app/AppModel.h"
#include "app/OpenQuestions.h"
#include "base/Bidi.h"
#include "base/Words.h"
#include "tracking/SkillList.h"

#include <QPointer>

namespace vantle {

namespace {

/// How long the toolkit may take to connect to the accessibility service and to learn which events
/// readers want. It drops earlier messages.
constexpr Seconds kMuteStart{3.0};

} // namespace

SpokenEvents::SpokenEvents(const Environment& environment)
    : m_env(environment)
    , m_told(environment.model.tracker().state())
    , m_toldSkill(currentSkill()) {
    m_start = m_env.scheduler.scheduleOnce(kMuteStart, [this] {
        const TimerHandle spent = std::move(m_start);
        if (!m_held.isEmpty()) m_announcer.say(std::exchange(m_held, {}));
    });
    AppModel& model = m_env.model;
    connect(&model.tracker(), &TrackerCore::stateChanged, this, &SpokenEvents::followState);
    connect(&model, &AppModel::selectedSkillIdChanged, this, [this] {
        if (m_env.model.tracker().state() == TrackerCore::State::Idle)
            say(Words::tr("%1 chosen")
                    .arg(bidi::isolated(m_env.skills.by(m_env.model.selectedSkillId()).name)));
    });
    connect(&model, &AppModel::lastActionNoteChanged, this, [this] {
        if (const auto& note = m_env.model.lastActionNote()) say(*note);
    });
    connect(&m_env.questions, &OpenQuestions::said, this, &SpokenEvents::say);
}

void SpokenEvents::say(const QString& text) {
    if (m_start)
        m_held = text;
    else
        m_announcer.say(text);
}

void SpokenEvents::followState() {
    // A change of skill ends one session and starts another; only the result is announced.
    if (std::exchange(m_isPosted, true)) return;
    m_env.scheduler.post([self = QPointer(this)] {
        if (!self) return;
        self->m_isPosted = false;
        self->tellState();
    });
}

void SpokenEvents::tellState() {
    using State = TrackerCore::State;
    const State now = m_env.model.tracker().state();
    const State before = std::exchange(m_told, now);
    const QString skill = currentSkill();
    const bool isSwitched = std::exchange(m_toldSkill, skill) != skill;
    if (now == before) {
        // Auto mode switches by itself; the toast names the previous skill.
        if (isSwitched && now != State::Idle)
            say(Words::tr("Switched to %1").arg(bidi::isolated(skill)));
        return;
    }
    if (now == State::Paused)
        say(Words::tr("Paused, away"));
    else if (now == State::Running)
        say((before == State::Paused ? Words::tr("Resumed, %1") : Words::tr("Session started, %1"))
                .arg(bidi::isolated(skill)));
    // The card after the session says what it came to.
}

QString SpokenEvents::currentSkill() const {
    const auto& id = m_env.model.tracker().currentSkillId();
    return id ? m_env.skills.display(*id).name : QString();
}

} // namespace vantle

#include "app/SessionSurfaces.h"

#include "app/ActionNote.h"
#include "app/RecoveryWords.h"
#include "app/TopRightCardSlot.h"
#include "base/Clock.h"
#include "base/Words.h"
#include "platform/Preferences.h"
#include "platform/ReducedMotion.h"
#include "tracking/CrashRecovery.h"
#include "tracking/DurationStyle.h"
#include "tracking/Settings.h"
#include "tracking/SkillList.h"
#include "tracking/Totals.h"

#include <QPointer>

#include <algorithm>
#include <utility>

namespace vantle {

namespace {

/// How long after the start of a ceremony the capsule opens briefly.
constexpr Seconds kFlashAfterQuickShow{1.3};
constexpr Seconds kFlashAfterFullShow{3.05};

constexpr Seconds kIntroDelay{0.7};

constexpr std::int64_t kHour = 3600; // seconds

} // namespace

SessionSurfaces::SessionSurfaces(const Environment& environment, Collaborators collaborators)
    : m_env(environment)
    , m_collaborators(std::move(collaborators)) {}

SessionSurfaces::~SessionSurfaces() = default;

bool SessionSurfaces::isIdle() const { return m_env.tracker.state() == TrackerCore::State::Idle; }

void SessionSurfaces::showSession(const Skill& skill, bool byAutoMode) {
    const bool ceremonyPlays =
        !settings::rippleDisabled.read(m_env.preferences) && !m_env.reducedMotion.enabled();
    const QPointer self(this);
    m_collaborators.notch->show(
        m_env.tracker, skill, m_env.skills.all(), !ceremonyPlays,
        [self] {
            if (self) (void)self->m_env.tracker.stop();
        },
        [self](const QString& id) {
            if (self && !self->isIdle()) self->m_commands.selectSkill(id);
        });
    m_collaborators.ripple->play(byAutoMode ? CeremonyShow::Quick : CeremonyShow::Full,
                                 skill.hexRGB, skill.name);
    if (!ceremonyPlays) return;
    afterDelay(byAutoMode ? kFlashAfterQuickShow : kFlashAfterFullShow, [this] {
        if (!isIdle()) m_collaborators.notch->flashSessionStart();
    });
}

void SessionSurfaces::showEnd(const Session& session) {
    if (m_isAbandoned) return;
    m_collaborators.notch->hide();
    m_collaborators.ripple->play(CeremonyShow::Collapse,
                                 m_env.skills.display(session.skillId).hexRGB, std::nullopt);
}

void SessionSurfaces::showSummary(const Session& session, bool isPractice, bool suppressHint) {
    const Date now = m_env.clock.now();
    const SessionList sessions = m_env.tracker.allSessions();
    collaborators::StopSummary::Content content;
    content.session = session;
    const std::int64_t seconds = totals::secondsAllTime(sessions, now);
    content.carrySeconds = seconds % kHour;
    content.isFirstSession = sessions.size() == 1;
    std::int64_t secondsBefore = seconds;
    for (const Session& other : sessions)
        if (other.id == session.id && TrackerCore::countsInTotals(other, now))
            secondsBefore -= other.activeSeconds;
    content.newHours = std::max<std::int64_t>(seconds / kHour - secondsBefore / kHour, 0);
    content.showHotkeyHint = !suppressHint && !settings::hotKeyHintShown.read(m_env.preferences);
    if (content.showHotkeyHint) settings::hotKeyHintShown.write(m_env.preferences, true);
    content.spotlightNote = isPractice;
    m_collaborators.stopSummary->show(content, [self = QPointer(this), isPractice, id = session.id](
                                                   const std::optional<QString>& note) {
        if (!self || !note || isPractice) return;
        if (!self->m_env.tracker.updateNote(id, *note))
            self->m_env.note.report(
                Words::tr("The session was saved, but its note could not be added."));
    });
}

void SessionSurfaces::showSavedTime(const Session& ended) {
    const Skill skill = m_env.skills.display(ended.skillId);
    m_collaborators.retagToast->show(skill.name, skill.hexRGB, ended.activeSeconds);
}

void SessionSurfaces::showIdlePrompt(const Skill& next) {
    if (!isIdle()) return;
    const QPointer self(this);
    m_collaborators.notch->showIdlePrompt(
        m_env.tracker, next, m_env.skills.all(), false,
        [self] {
            if (self) self->m_commands.toggle();
        },
        [self](const QString& id) {
            if (!self || !self->isIdle()) return;
            self->m_commands.selectSkill(id);
            self->m_commands.toggle();
        },
        {[self](const QString& id, const QString& name, std::uint32_t hexRGB) {
             if (self) self->m_commands.edit.onUpdate(id, name, hexRGB);
         },
         [self](const QString& id) {
             if (self) self->m_commands.edit.onDelete(id);
         },
         [self](const QString& name, std::uint32_t hexRGB) {
             if (self) self->m_commands.edit.onAdd(name, hexRGB);
         }});
}

void SessionSurfaces::flashIntroductionIfNeeded() {
    if (settings::notchIntroFlashed.read(m_env.preferences) || !isIdle() ||
        m_env.reducedMotion.enabled())
        return;
    settings::notchIntroFlashed.write(m_env.preferences, true);
    afterDelay(kIntroDelay, [this] {
        if (!isIdle()) return;
        m_collaborators.notch->flashIdleCard();
        Q_EMIT introduced();
    });
}

void SessionSurfaces::offerRecovery(const OpenSessionMarker& marker) {
    const auto candidate = recovery::recoveryCandidate(marker);
    if (!candidate) return;
    const RecoveryWords words =
        recoveryWords(*candidate, settings::durationStyle.read(m_env.preferences));
    m_env.note.say(words.found);
    const QPointer self(this);
    m_collaborators.recovery->show(
        *candidate,
        [self, marker] {
            if (!self) return;
            self->m_env.tracker.discardRecovery(marker);
            self->m_env.note.say(Words::tr("Discarded the recovered session"));
        },
        [self, marker, recovered = words.recovered] {
            if (self && self->m_env.tracker.recoverSession(marker)) self->m_env.note.say(recovered);
        });
}

void SessionSurfaces::dropOffers() {
    m_collaborators.recovery->hideForEviction();
    m_env.cardSlot.release(m_collaborators.recovery.get());
    m_collaborators.stopSummary->forgetNote();
}

void SessionSurfaces::afterDelay(Seconds delay, std::function<void()> work) {
    m_delayedWork.emplace_back();
    const auto place = std::prev(m_delayedWork.end());
    *place = m_env.scheduler.scheduleOnce(delay, [this, place, work = std::move(work)] {
        const TimerHandle spent = std::move(*place);
        m_delayedWork.erase(place);
        work();
    });
}

} // namespace vantle

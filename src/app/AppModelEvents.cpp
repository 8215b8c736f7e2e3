// What the model makes of the events of the tracker, the idle monitor and auto mode.
#include "app/AppModel.h"
#include "app/PreferenceKeys.h"
#include "app/RecoveryWords.h"
#include "platform/Preferences.h"
#include "platform/ReducedMotion.h"
#include "tracking/CrashRecovery.h"
#include "tracking/DurationStyle.h"
#include "tracking/SkillList.h"
#include "tracking/Totals.h"

#include <algorithm>

namespace vantle {

namespace {

/// When the capsule flashes open, after the ceremony of a start.
constexpr Seconds kFlashAfterQuickShow{1.3};
constexpr Seconds kFlashAfterFullShow{3.05};

} // namespace

void AppModel::wireIdle() {
    m_tracker.setIdleMonitor(&m_idle);
    m_idle.onIdleBegan = [this](double seconds) {
        m_tracker.pause(m_env.clock.now() - Seconds(seconds));
    };
    // A reading that shows input while the screens sleep is a password, or the key that locked.
    m_idle.onActivityResumed = [this] {
        if (!m_idle.screensSleep()) m_tracker.resume();
    };
    m_idle.onScreensWoke = [this] { m_tracker.resume(); };
    m_idle.onScreensSlept = [this] {
        m_tracker.pause(m_env.clock.now());
        // The machine may sleep as soon as this returns.
        m_tracker.drainPendingIO();
    };
}

void AppModel::wireTracker() {
    m_tracker.onSessionStarted = [this](const Skill& skill, Date startedAt) {
        onSessionStarted(skill, startedAt);
    };
    m_tracker.onSessionEnded = [this](const Session& session) { onSessionEnded(session); };
}

void AppModel::wireAutoSkill() {
    const QPointer self(this);
    collaborators::AutoSkill::Hooks hooks;
    hooks.sessionState = [self] {
        return self ? self->m_tracker.state() : TrackerCore::State::Idle;
    };
    hooks.sessionSkillId = [self] {
        return self ? self->m_tracker.currentSkillId() : std::optional<QString>();
    };
    hooks.sessionBundleId = [self] {
        return self && !self->isIdle() ? self->m_sessionBundleId : std::optional<QString>();
    };
    hooks.onRetagSuggested = [self](const QString& skillId) {
        if (self) self->suggestRetag(skillId);
    };
    hooks.onAutoStart = [self](const QString& skillId) {
        if (self) self->autoStart(skillId);
    };
    hooks.onTagPromptSuggested = [self](const QString& bundleId, const QString& appName) {
        if (self) self->askForTag(bundleId, appName);
    };
    m_collaborators.autoSkill->setHooks(std::move(hooks));
}

void AppModel::suggestRetag(const QString& skillId) {
    if (!isIdle() && m_env.skills.contains(skillId) && m_tracker.currentSkillId() != skillId)
        selectSkill(skillId, SkillSelectionOrigin::Auto);
}

void AppModel::autoStart(const QString& skillId) {
    if (!isIdle() || !m_env.skills.contains(skillId)) return;
    // Auto mode sees the idle counter, which is low just after the key that locked.
    if (m_idle.screensSleep()) return;
    selectSkill(skillId, SkillSelectionOrigin::Auto);
    m_isAutoStarting = true;
    toggleVantle();
    m_isAutoStarting = false;
    // With a threshold under auto mode's own limit the user may count as away already. That absence
    // is told only once, before the session: without this pause all of it would count.
    if (m_idle.isIdle()) m_tracker.pause(m_env.clock.now());
}

void AppModel::askForTag(const QString& bundleId, const QString& appName) {
    collaborators::AutoSkill& autoSkill = *m_collaborators.autoSkill;
    const bool asked = m_collaborators.tagPrompt->show(
        appName, m_env.skills.all(), !isIdle(), autoSkill.isBrowser(bundleId, appName),
        [self = QPointer(this), bundleId](const collaborators::TagPrompt::Outcome& outcome) {
            if (self) self->resolveTag(bundleId, outcome);
        });
    if (!asked) autoSkill.forgetPromptOffer(bundleId);
}

void AppModel::resolveTag(const QString& bundleId,
                          const collaborators::TagPrompt::Outcome& outcome) {
    using Kind = collaborators::TagPrompt::Outcome::Kind;
    collaborators::AutoSkill& autoSkill = *m_collaborators.autoSkill;
    if (outcome.kind == Kind::Ignore)
        autoSkill.setRule(bundleId, QLatin1String(collaborators::ignoreRuling));
    if (outcome.kind == Kind::Tagged && m_env.skills.contains(outcome.skillId)) {
        autoSkill.setRule(bundleId, outcome.skillId);
        if (!isIdle() && m_tracker.currentSkillId() != outcome.skillId) {
            m_sessionBundleId = bundleId;
            selectSkill(outcome.skillId, SkillSelectionOrigin::Auto);
        }
    }
    autoSkill.noteTagPromptResolved(bundleId);
}

void AppModel::onSessionStarted(const Skill& skill, Date) {
    m_sessionBundleId.reset();
    if (m_env.frontmostApp)
        if (const auto application = m_env.frontmostApp->frontmost();
            application && !application->bundleId.isEmpty())
            m_sessionBundleId = application->bundleId;
    if (m_isRetagging) {
        m_collaborators.notch->retag(skill, true);
        return;
    }
    m_isPracticeMarked = m_isStartingPractice;
    m_collaborators.stopSummary->forgetNote();
    m_collaborators.focusLink->sessionStarted();
    const bool ceremonyPlays =
        !m_env.preferences.flag(preferencekeys::rippleDisabled) && !m_env.reducedMotion.enabled();
    const QPointer self(this);
    m_collaborators.notch->show(
        m_tracker, skill, m_env.skills.all(), !ceremonyPlays,
        [self] {
            if (self) (void)self->m_tracker.stop();
        },
        [self](const QString& id) {
            if (self && !self->isIdle()) self->selectSkill(id, SkillSelectionOrigin::Human);
        });
    m_collaborators.ripple->play(m_isAutoStarting ? CeremonyShow::Quick : CeremonyShow::Full,
                                 skill.hexRGB, skill.name);
    if (!ceremonyPlays) return;
    afterDelay(m_isAutoStarting ? kFlashAfterQuickShow : kFlashAfterFullShow, [this] {
        if (!isIdle()) m_collaborators.notch->flashSessionStart();
    });
}

void AppModel::onSessionEnded(const Session& session) {
    const bool onboarded = isOnboarded();
    const bool isPractice = !onboarded || m_isPracticeMarked;
    if (m_isRetagging) {
        if (isPractice) m_tracker.deleteSession(session.id);
        return;
    }
    m_isPracticeMarked = false;
    m_sessionBundleId.reset();
    m_collaborators.autoSkill->clearSessionOverrides();
    m_collaborators.focusLink->sessionEnded();
    if (m_hasSurfaces) {
        m_collaborators.notch->hide();
        m_collaborators.ripple->play(CeremonyShow::Collapse,
                                     m_env.skills.display(session.skillId).hexRGB, std::nullopt);
    }
    // A practice session leaves no trace in the log.
    if (isPractice) m_tracker.deleteSession(session.id);
    if (m_isDiscardingPractice) {
        showIdleNotchPrompt(false);
        return;
    }
    if (m_isQuitting) return;
    showStopSummary(session, isPractice);
    if (onboarded) showIdleNotchPrompt(false);
}

void AppModel::showStopSummary(const Session& session, bool isPractice) {
    const Date now = m_env.clock.now();
    std::vector<Session> sessions = m_tracker.allSessions();
    collaborators::StopSummary::Content content;
    content.session = session;
    content.carrySeconds = totals::secondsAllTime(sessions, now) % 3600;
    content.isFirstSession = sessions.size() == 1;
    const std::int64_t dotsNow = totals::hourDotCount(sessions, now);
    std::erase_if(sessions, [&](const Session& other) { return other.id == session.id; });
    const std::int64_t dotsBefore = totals::hourDotCount(sessions, now);
    content.newHours = std::max<std::int64_t>(dotsNow - dotsBefore, 0);
    content.showHotkeyHint =
        !m_stopViaHotkey && !m_env.preferences.flag(preferencekeys::hotkeyHintShown);
    if (content.showHotkeyHint) m_env.preferences.setBoolean(preferencekeys::hotkeyHintShown, true);
    content.spotlightNote = isPractice;
    m_collaborators.stopSummary->show(content, [self = QPointer(this), isPractice, id = session.id](
                                                   const std::optional<QString>& note) {
        if (!self || !note || isPractice) return;
        if (!self->m_tracker.updateNote(id, *note))
            self->report(QStringLiteral("The session was saved, but its note could not be added."));
    });
}

void AppModel::recoverAndNotify(const OpenSessionMarker& marker) {
    const auto candidate = recovery::recoveryCandidate(marker);
    if (!candidate) return;
    const RecoveryWords words =
        recoveryWords(*candidate, durationstyle::current(m_env.preferences));
    setLastActionNote(words.found);
    const QPointer self(this);
    m_collaborators.recovery->show(
        *candidate,
        [self, marker] {
            if (!self) return;
            self->m_tracker.discardRecovery(marker);
            self->setLastActionNote(QStringLiteral("Discarded the recovered session"));
        },
        [self, marker, recovered = words.recovered] {
            if (self && self->m_tracker.recoverSession(marker)) self->setLastActionNote(recovered);
        });
}

void AppModel::showIdleNotchPrompt(bool flash) {
    if (!isIdle()) return;
    const QPointer self(this);
    m_collaborators.notch->showIdlePrompt(
        m_tracker, m_env.skills.by(m_selectedSkillId), m_env.skills.all(), flash,
        [self] {
            if (self) self->toggleVantle();
        },
        [self](const QString& id) {
            if (!self || !self->isIdle()) return;
            self->selectSkill(id, SkillSelectionOrigin::Human);
            self->toggleVantle();
        },
        {[self](const QString& id, const QString& name, std::uint32_t hexRGB) {
             if (self) self->updateSkill(id, name, hexRGB);
         },
         [self](const QString& id) {
             if (self) self->deleteSkill(id);
         },
         [self](const QString& name, std::uint32_t hexRGB) {
             if (self) self->addSkill(name, hexRGB);
         }});
}

} // namespace vantle

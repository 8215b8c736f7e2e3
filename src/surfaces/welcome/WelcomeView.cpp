#include "surfaces/welcome/WelcomeView.h"

#include "app/AppModel.h"
#include "base/Text.h"
#include "base/Words.h"
#include "platform/Preferences.h"
#include "platform/ReducedMotion.h"
#include "tracking/DashFormat.h"
#include "tracking/NotificationCenter.h"
#include "tracking/Settings.h"
#include "tracking/SkillList.h"

#include <algorithm>
#include <utility>

namespace vantle {

namespace {

using namespace welcometext;

/// The ceremony lasts 3.1 seconds.
constexpr Seconds kOutOfTheWay{3.6};
constexpr Seconds kTick{1.0};
constexpr Seconds kTickTolerance{0.2};
/// A shorter name is probably a mistake.
constexpr int kShortestName = 2;
/// The practice session's skill, if it exists.
constexpr QLatin1String kPracticeSkill("building");

bool isName(const QString& trimmed) { return text::characterCount(trimmed) >= kShortestName; }

} // namespace

WelcomeView::WelcomeView(Environment environment)
    : m_env(std::move(environment))
    , m_category(
          [this](const std::optional<QString>& id, const QString& name, std::uint32_t hexRGB) {
              if (id)
                  m_env.model.updateSkill(*id, name, hexRGB);
              else
                  m_env.model.addSkill(name, hexRGB);
          },
          kShortestName)
    , m_sessionOpen(tracker().state() != TrackerCore::State::Idle)
    , m_samples(std::make_unique<WelcomeSamples>(
          WelcomeSamples::Environment{m_env.scheduler, m_env.preferences, m_env.reducedMotion})) {
    // A change of mode ends one session and starts another: only the state after both counts.
    connect(&tracker(), &TrackerCore::stateChanged, this, [this] {
        m_env.scheduler.post([self = QPointer(this)] {
            if (self) self->followState();
        });
    });
    connect(&m_env.notifications, &NotificationCenter::HFStopSummaryResolved, this,
            &WelcomeView::stopCardClosed);
    connect(&m_env.model, &AppModel::skillsChanged, this, &WelcomeView::refreshModes);
    connect(&m_env.model.hotKey(), &HotKey::outcomeChanged, this,
            &WelcomeView::shortcutProblemChanged);
    refreshModes();
}

WelcomeView::~WelcomeView() = default;

TrackerCore& WelcomeView::tracker() const { return m_env.model.tracker(); }

QString WelcomeView::body() const {
    return welcometext::body(m_step, m_env.model.projectName().value_or(QString()), m_isPractice);
}

QString WelcomeView::primaryText() const {
    return welcometext::primary(m_step == Press && isAtWork() ? int(Success) : m_step);
}

QString WelcomeView::asideText() const {
    return m_step == Press && isAtWork() ? QString() : welcometext::aside(m_step);
}

bool WelcomeView::isAtWork() const { return m_sessionOpen && !m_env.model.needsWelcome(); }

QString WelcomeView::shortcutProblem() const {
    const HotKey& hotKey = m_env.model.hotKey();
    if (m_step != Press) return {};
    switch (hotKey.registration()) {
    case HotKeyPort::Registration::Registered:
    case HotKeyPort::Registration::Waiting:
        return {};
    case HotKeyPort::Registration::NotOffered:
    case HotKeyPort::Registration::NotAllowed:
    case HotKeyPort::Registration::KeysRemoved:
        return Words::tr("The shortcut doesn't work here yet. The settings say how it can.");
    default:
        return hotKey.registrationError().value_or(QString());
    }
}

void WelcomeView::goTo(int step) {
    m_step = step;
    Q_EMIT stepChanged();
    Q_EMIT wordsChanged();
    Q_EMIT shortcutProblemChanged();
}

void WelcomeView::pressPrimary() {
    if (!canPressPrimary()) return;
    switch (m_step) {
    case Press:
        if (isAtWork()) {
            m_isPractice = false;
            goTo(Success); // practice is impossible
        } else {
            m_env.model.startPractice();
        }
        return;
    case Stop:
        m_env.model.toggleVantle();
        return;
    case Done:
        finish();
        return;
    case Pick:
        commitPick();
        break;
    case Modes:
        m_category.close();
        break;
    default:
        break;
    }
    goTo(m_step + 1);
    // Before the welcome is done every session is practice, so a running one counts.
    if (m_step == Press && m_sessionOpen && m_env.model.needsWelcome()) followSession();
}

void WelcomeView::pressQuiet() {
    if (m_step == Pick) finish();
    if (m_step == Wrapped) m_env.openWrapped();
}

void WelcomeView::commitPick() {
    const QString name = text::trimmed(m_productName);
    if (isName(name)) m_env.model.setProjectName(name);
    const auto& skills = m_env.model.skills();
    const bool isThere =
        std::ranges::any_of(skills, [](const Skill& skill) { return skill.id == kPracticeSkill; });
    // An open session is real work and keeps its mode.
    if (isThere && !m_sessionOpen)
        m_env.model.selectSkill(kPracticeSkill, AppModel::SkillSelectionOrigin::Human);
}

void WelcomeView::finish() {
    if (std::exchange(m_finished, true)) return;
    m_return.reset(); // a closed window stays closed
    m_env.model.markWelcomeDone();
    if (m_practiceRunning) m_env.model.discardPracticeSession();
    m_env.model.ensureIdleNotch();
    m_env.onClose();
}

// -- the practice session

void WelcomeView::followState() {
    const bool open = tracker().state() != TrackerCore::State::Idle;
    if (m_finished || std::exchange(m_sessionOpen, open) == open) return;
    // A replay left open behind other windows is not raised by each session.
    const bool concernsUs =
        m_env.model.needsWelcome() || m_env.model.isPractice() || m_env.isInFront();
    if (open && (m_step == Press || m_step == Stop) && concernsUs) {
        followSession();
        bowOutForCeremony();
    }
    if (!open && m_practiceRunning) {
        refreshClock();
        m_clock.reset();
        m_practiceRunning = false;
        m_waitingForStopCard = true;
        Q_EMIT practiceChanged();
    }
    Q_EMIT wordsChanged();
}

void WelcomeView::followSession() {
    m_env.model.markSessionAsPractice();
    m_isPractice = m_env.model.isPractice();
    m_practiceRunning = true;
    m_waitingForStopCard = false;
    refreshClock();
    m_clock =
        m_env.scheduler.scheduleRepeatingTimer(kTick, kTickTolerance, [this] { refreshClock(); });
    if (m_step == Press) goTo(Stop);
    Q_EMIT practiceChanged();
}

void WelcomeView::stopCardClosed() {
    if (m_finished || !std::exchange(m_waitingForStopCard, false)) return;
    goTo(Success);
    Q_EMIT practiceChanged();
    // Hours may pass between work and its card, so only practice raises the window.
    if (m_isPractice) bringForward();
}

void WelcomeView::bowOutForCeremony() {
    if (settings::rippleDisabled.read(m_env.preferences) || m_env.reducedMotion.enabled()) return;
    m_env.orderOut();
    m_return = m_env.scheduler.scheduleOnce(kOutOfTheWay, [this] { bringForward(); });
}

void WelcomeView::bringForward() {
    m_return.reset();
    m_env.bringForward();
}

void WelcomeView::refreshClock() {
    if (const auto id = tracker().currentSkillId(); id && *id != m_practiceSkillId) {
        m_practiceSkillId = *id;
        Q_EMIT practiceChanged();
    }
    if (tracker().state() == TrackerCore::State::Idle) return; // keeps showing the result
    const auto seconds = std::max<std::int64_t>(tracker().displayActiveSeconds(), 0);
    m_practiceWords =
        dashformat::sessionDuration(seconds, settings::durationStyle.read(m_env.preferences))
            .split(QLatin1Char(' '));
    Q_EMIT practiceTicked();
}

Skill WelcomeView::practisedSkill() const {
    return SkillList::display(m_practiceSkillId, m_env.model.skills());
}

QString WelcomeView::practiceSkill() const { return text::upperCased(practisedSkill().name); }
QColor WelcomeView::practiceColor() const { return QColor::fromRgb(practisedSkill().hexRGB); }

// -- the modes

void WelcomeView::refreshModes() {
    m_modes.show(m_env.model.skills(), {});
    m_samples->showModes(m_env.model.skills());
    Q_EMIT modesChanged();
}

bool WelcomeView::canAddCategory() const {
    return m_env.model.skills().size() < static_cast<std::size_t>(Skill::maxCount);
}

void WelcomeView::addCategory() {
    if (canAddCategory()) m_category.openNew(m_env.model.skills());
}

void WelcomeView::beginRename(const QString& skillId) {
    const auto& skills = m_env.model.skills();
    const auto found = std::ranges::find(skills, skillId, &Skill::id);
    if (found != skills.end()) m_category.openFor(*found);
}

void WelcomeView::removeCategory(const QString& skillId) {
    m_category.close();
    m_env.model.deleteSkill(skillId);
    m_modesNote = m_env.model.lastActionNote().value_or(QString());
    Q_EMIT modesChanged();
}

void WelcomeView::commitCategory() {
    const bool changes = m_category.canCommit();
    m_category.commit();
    m_category.close();
    if (!changes) return;
    m_modesNote = m_env.model.lastActionNote().value_or(QString());
    Q_EMIT modesChanged();
}

} // namespace vantle

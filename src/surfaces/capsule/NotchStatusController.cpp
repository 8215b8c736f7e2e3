#include "surfaces/capsule/NotchStatusController.h"

#include <utility>

namespace vantle {

namespace {

constexpr Seconds kSessionFlash{2.0};
constexpr Seconds kIdleFlash{1.6};
/// Plugging a screen in or out changes the screens several times in a row.
constexpr Seconds kRepositionDelay{0.7};

} // namespace

NotchStatusController::NotchStatusController(Environment environment)
    : m_env(std::move(environment)) {
    connect(&m_env.screens, &Screens::changed, this, &NotchStatusController::screensChanged);
}

NotchStatusController::~NotchStatusController() = default;

void NotchStatusController::show(TrackerCore& tracker, const Skill& skill,
                                 const std::vector<Skill>& skills, bool flashes,
                                 std::function<void()> onStop,
                                 std::function<void(const QString&)> onPick) {
    present({&tracker, skill, skills, false, std::move(onStop), std::move(onPick), std::nullopt});
    if (flashes) flash(kSessionFlash);
}

void NotchStatusController::showIdlePrompt(TrackerCore& tracker, const Skill& skill,
                                           const std::vector<Skill>& skills, bool flashes,
                                           std::function<void()> onStart,
                                           std::function<void(const QString&)> onPick,
                                           collaborators::SkillEditCallbacks edit) {
    present(
        {&tracker, skill, skills, true, std::move(onStart), std::move(onPick), std::move(edit)});
    if (flashes) flash(kIdleFlash);
}

void NotchStatusController::retag(const Skill& skill, bool flashes) {
    if (m_lastForm) m_lastForm->skill = skill;
    if (NotchCapsule* const shown = capsule()) shown->retag(skill, flashes);
}

void NotchStatusController::hide() { dismiss(true); }

void NotchStatusController::flashSessionStart() { flash(kSessionFlash); }

void NotchStatusController::flashIdleCard() { flash(kIdleFlash); }

NotchCapsule* NotchStatusController::capsule() const {
    return m_panel ? &m_panel->capsule() : nullptr;
}

void NotchStatusController::flash(Seconds hold) {
    if (NotchCapsule* const shown = capsule()) shown->beginSessionFlash(hold);
}

void NotchStatusController::present(NotchCapsule::Form form) {
    dismiss(false);
    const std::vector<ScreenShape> screens = m_env.screens.all();
    const auto chosen = NotchMetrics::chooseScreen(screens);
    if (!chosen) return;
    const ScreenShape& screen = screens[*chosen];
    if (!m_text) m_text.emplace();
    auto made = std::make_unique<NotchCapsule>(
        NotchCapsule::Environment{m_env.scheduler, m_env.preferences, m_env.reducedMotion, *m_text},
        form, screen);
    const Placement placement = capsule::placement(made->metrics(), screen);
    m_panel = m_env.raise(std::move(made), placement);
    if (m_panel) m_lastForm = std::move(form);
}

void NotchStatusController::dismiss(bool animated) {
    m_lastForm.reset();
    m_repositionWork.reset();
    if (!m_panel) return;
    if (!animated) {
        m_panel.reset();
        return;
    }
    const auto place = m_leaving.insert(m_leaving.end(), std::move(m_panel));
    (*place)->capsule().animateOut([this, place] { m_leaving.erase(place); });
}

void NotchStatusController::screensChanged() {
    if (!m_panel) return;
    m_repositionWork = m_env.scheduler.scheduleOnce(kRepositionDelay, [this] {
        if (m_panel && m_lastForm) present(*m_lastForm);
    });
}

} // namespace vantle

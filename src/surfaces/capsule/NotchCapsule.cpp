#include "surfaces/capsule/NotchCapsule.h"

#include "platform/Preferences.h"
#include "platform/ReducedMotion.h"
#include "surfaces/kit/tokens/Look.h"
#include "tracking/DashFormat.h"
#include "tracking/Settings.h"

#include <algorithm>
#include <utility>

namespace vantle {

namespace {

constexpr Seconds kTick{1.0};
constexpr Seconds kTickTolerance{0.2};
constexpr Seconds kRetagHold{1.6};
constexpr Seconds kFade{0.28};
constexpr double kChipsBelowRow = 2; // px between the row and the chips
constexpr double kAddRowHeight = look::kLengths.capsuleAddRowHeight;
constexpr double kAddRowTarget = 28; // of the square and its words

bool showsAddRow(const NotchCapsule::Form& form) {
    return form.idlePrompt && form.edit && form.skills.size() < Skill::maxCount;
}

capsule::Content contentOf(const NotchCapsule::Form& form, const SkillChipLayout& layout) {
    if (layout.items.empty()) return {};
    return {layout.size, showsAddRow(form)};
}

} // namespace

NotchCapsule::NotchCapsule(const Environment& environment, Form form, const ScreenShape& screen)
    : m_env(environment)
    , m_form(std::move(form))
    , m_chips(SkillChipLayout::compute(
                  m_form.skills, capsule::kMaxChipRowWidth, false,
                  [this](const QString& name) { return m_env.text.chipNameWidth(name); }),
              m_form.skill.id)
    , m_content(contentOf(m_form, m_chips.layout()))
    , m_metrics(NotchMetrics::of(screen, m_content.extraHeight()))
    , m_opening({environment.scheduler, [this] { return pointerInHoverRegion(); },
                 [this] { openedOrClosed(); }}) {
    if (m_form.idlePrompt) {
        m_clock = CapsuleText::startPrompt();
    } else if (m_form.tracker) {
        // State and skill change one after the other; only what they end up as is shown.
        const auto later = [this] {
            m_env.scheduler.post([self = QPointer(this)] {
                if (self) self->refreshLabel();
            });
        };
        connect(m_form.tracker, &TrackerCore::stateChanged, this, later);
        connect(m_form.tracker, &TrackerCore::startedAtChanged, this, later);
        refreshLabel();
    } else {
        m_clock = m_form.clock;
    }
    recomputeWidth();
}

NotchCapsule::~NotchCapsule() { retire(); }

QString NotchCapsule::toolTip() const {
    return CapsuleText::toolTip(m_form.idlePrompt, !m_form.skills.empty());
}

QRectF NotchCapsule::hoverRect() const {
    return capsule::hoverRect(m_metrics, isExpanded() ? std::optional(m_openFrame) : std::nullopt);
}

QString NotchCapsule::skillLine() const {
    return CapsuleText::skillLine(m_form.skill.name, m_showsPaused);
}

QRegion NotchCapsule::inputRegion() const {
    if (m_leaving) return {};
    return isExpanded() ? opaqueRegion() : QRegion(m_overlayRect.toAlignedRect());
}

QRect NotchCapsule::freeStrip() const {
    if (m_leaving) return {};
    const QRectF strip = capsule::hoverStrip(m_metrics);
    return isExpanded() && m_openFrame.contains(strip) ? QRect() : strip.toAlignedRect();
}

QRegion NotchCapsule::opaqueRegion() const {
    return QRegion(m_openFrame.toAlignedRect()) + m_overlayRect.toAlignedRect();
}

void NotchCapsule::retag(const Skill& skill, bool flash) {
    m_form.skill = skill;
    m_chips.highlight(skill.id);
    Q_EMIT labelChanged();
    if (isExpanded()) recomputeWidth();
    if (flash) m_opening.beginSessionFlash(kRetagHold);
}

void NotchCapsule::animateOut(std::function<void()> completion) {
    retire();
    if (m_env.reducedMotion.enabled()) {
        completion();
        return;
    }
    m_opening.collapse();
    m_leaving = true;
    Q_EMIT leavingChanged();
    follow();
    m_fade = m_env.scheduler.scheduleOnce(kFade, std::move(completion));
}

void NotchCapsule::retire() {
    m_opening.cancel();
    m_tickTimer.reset();
    if (m_form.tracker) m_form.tracker->disconnect(this);
    if (!m_editor && m_menuSkillId.isEmpty()) return;
    const auto closing = std::move(m_editor); // outlives the view that shows it
    m_menuSkillId.clear();
    Q_EMIT overlayChanged();
    if (m_stage != nullptr) m_stage->returnKeyboard();
}

void NotchCapsule::setHovered(bool hovered) {
    if (m_leaving) return;
    if (hovered)
        m_opening.pointerEntered();
    else
        m_opening.pointerLeft();
}

void NotchCapsule::pointerRested() {
    if (!m_leaving) m_opening.pointerRested();
}

void NotchCapsule::click() {
    if (isExpanded() && !m_leaving && m_form.onTap) m_form.onTap();
}

void NotchCapsule::pickSkill(const QString& skillId) {
    if (isExpanded() && !m_leaving && m_form.onPick) m_form.onPick(skillId);
}

void NotchCapsule::openedOrClosed() {
    m_tickTimer.reset();
    if (isExpanded() && !m_form.idlePrompt) {
        refreshLabel();
        m_tickTimer = m_env.scheduler.scheduleRepeatingTimer(kTick, kTickTolerance,
                                                             [this] { refreshLabel(); });
    }
    if (isExpanded()) recomputeWidth(); // its skill may have changed while it was closed
    Q_EMIT expandedChanged();
    Q_EMIT frameChanged();
    follow();
}

void NotchCapsule::refreshLabel() {
    if (m_form.idlePrompt || !m_form.tracker) return;
    const TrackerCore::State state = m_form.tracker->state();
    if (state == TrackerCore::State::Idle) return;
    const std::int64_t seconds = std::max<std::int64_t>(0, m_form.tracker->displayActiveSeconds());
    const QString clock =
        dashformat::sessionDuration(seconds, settings::durationStyle.read(m_env.preferences));
    const bool paused = state == TrackerCore::State::Paused;
    if (clock == m_clock && paused == m_showsPaused) return;
    m_clock = clock;
    m_showsPaused = paused;
    Q_EMIT labelChanged();
    recomputeWidth();
}

void NotchCapsule::recomputeWidth() {
    const double required = capsule::requiredCapsuleWidth(
        m_metrics, capsule::lineWidth(m_env.text.skillLineWidth(skillLine())),
        capsule::lineWidth(m_env.text.clockWidth(m_clock)), m_content);
    const QRectF frame = capsule::openFrame(m_metrics, required);
    if (frame == m_openFrame) return;
    m_openFrame = frame;
    Q_EMIT frameChanged();
    follow();
}

void NotchCapsule::follow() {
    if (m_stage != nullptr) m_stage->follow();
}

bool NotchCapsule::pointerInHoverRegion() const {
    return m_stage != nullptr && m_stage->pointerInside(hoverRect());
}

QString NotchCapsule::menuSkillName() const {
    const auto skill = m_chips.skill(m_menuSkillId);
    return skill ? skill->name : QString();
}

void NotchCapsule::openMenu(const QString& skillId) {
    if (!chipMayEdit() || m_leaving || !m_chips.skill(skillId)) return;
    dismissOverlay();
    m_opening.pushCollapseSuspend();
    m_menuSkillId = skillId;
    m_overlayAnchor = chipRect(skillId);
    Q_EMIT overlayChanged();
    if (m_stage != nullptr) m_stage->takeKeyboard();
}

void NotchCapsule::chipRequestsRename() {
    const auto skill = m_chips.skill(m_menuSkillId);
    closeMenu();
    if (skill) presentEditor(SkillPopoverEditor::Mode::Rename, skill);
}

void NotchCapsule::chipRequestsRecolor() {
    const auto skill = m_chips.skill(m_menuSkillId);
    closeMenu();
    if (skill) presentEditor(SkillPopoverEditor::Mode::Recolor, skill);
}

void NotchCapsule::chipRequestsDelete() {
    const QString id = m_menuSkillId;
    closeMenu();
    if (id.isEmpty() || !m_form.edit) return;
    // The model builds another capsule; this one must not be in the middle of a click then.
    m_env.scheduler.post([onDelete = m_form.edit->onDelete, id] { onDelete(id); });
}

void NotchCapsule::chipRequestsAdd() {
    if (chipMayEdit() && !m_leaving) presentEditor(SkillPopoverEditor::Mode::Add, std::nullopt);
}

void NotchCapsule::dismissOverlay() {
    closeMenu();
    closeEditor();
}

void NotchCapsule::setOverlayRect(const QRectF& rect) {
    if (rect == m_overlayRect) return;
    m_overlayRect = rect;
    Q_EMIT overlayRectChanged();
    follow();
}

void NotchCapsule::presentEditor(SkillPopoverEditor::Mode mode, const std::optional<Skill>& skill) {
    dismissOverlay();
    m_opening.pushCollapseSuspend();
    m_editor.reset(new SkillPopoverEditor(
        mode, skill, [this](const SkillPopoverEditor::Result& result) { handle(result); }));
    m_overlayAnchor = skill ? chipRect(skill->id) : addRowRect();
    Q_EMIT overlayChanged();
    if (m_stage != nullptr) m_stage->takeKeyboard();
}

void NotchCapsule::closeMenu() {
    if (m_menuSkillId.isEmpty()) return;
    m_menuSkillId.clear();
    Q_EMIT overlayChanged();
    if (m_stage != nullptr) m_stage->returnKeyboard();
    m_env.scheduler.post([self = QPointer(this)] {
        if (self) self->m_opening.popCollapseSuspend();
    });
}

void NotchCapsule::closeEditor() {
    if (!m_editor) return;
    const auto closing = std::move(m_editor); // outlives the view that shows it
    Q_EMIT overlayChanged();
    if (m_stage != nullptr) m_stage->returnKeyboard();
    m_opening.popCollapseSuspend();
}

void NotchCapsule::handle(const SkillPopoverEditor::Result& result) {
    closeEditor();
    if (!m_form.edit) return;
    using Kind = SkillPopoverEditor::Result::Kind;
    // Another capsule may come of it, which must not happen inside the editor's own event.
    if (result.kind == Kind::Save)
        m_env.scheduler.post([update = m_form.edit->onUpdate, result] {
            update(result.id, result.name, result.hexRGB);
        });
    if (result.kind == Kind::Add)
        m_env.scheduler.post(
            [add = m_form.edit->onAdd, result] { add(result.name, result.hexRGB); });
}

QRectF NotchCapsule::chipRect(const QString& skillId) const {
    const double left = m_openFrame.left() + capsule::kRowInset;
    const double top =
        m_openFrame.top() + m_metrics.notchHeight + capsule::kRowHeight + kChipsBelowRow;
    for (const auto& item : m_chips.layout().items)
        if (item.skill && item.skill->id == skillId) return item.frame.translated(left, top);
    return {};
}

QRectF NotchCapsule::addRowRect() const {
    return {m_openFrame.left() + capsule::kRowInset,
            m_openFrame.bottom() - kAddRowHeight / 2 - kAddRowTarget / 2, kAddRowTarget,
            kAddRowTarget};
}

} // namespace vantle

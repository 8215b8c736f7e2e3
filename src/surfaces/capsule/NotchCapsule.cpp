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
constexpr double kChipsBelowRow = 2; // px between row and chips
constexpr double kAddRowHeight = look::kLengths.capsuleAddRowHeight;
constexpr double kAddRowTarget = 28; // the square and its label

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
    , m_layout(SkillChipLayout::compute(
          m_form.skills, capsule::kMaxChipRowWidth, false,
          [this](const QString& name) { return m_env.text.chipNameWidth(name); }))
    , m_content(contentOf(m_form, m_layout))
    , m_metrics(NotchMetrics::of(screen, m_content.extraHeight()))
    , m_editor([this](const std::optional<QString>& id, const QString& name, std::uint32_t hexRGB) {
        commitEdit(id, name, hexRGB);
    })
    , m_opening({environment.scheduler, [this] { return pointerInHoverRegion(); },
                 [this] {
                     if (m_stage != nullptr) m_stage->prepare();
                 },
                 [this] { openedOrClosed(); }}) {
    m_chips.show(m_form.skills, m_form.skill.id);
    connect(&m_editor, &SkillEditor::opened, this, [this] {
        m_opening.pushCollapseSuspend();
        if (m_stage != nullptr) m_stage->takeKeyboard();
    });
    connect(&m_editor, &SkillEditor::closed, this, [this] {
        if (m_stage != nullptr) m_stage->returnKeyboard();
        m_opening.popCollapseSuspend();
    });
    if (m_form.idlePrompt) {
        m_clock = CapsuleText::startPrompt();
    } else if (m_form.tracker) {
        // State and skill change one after the other; only the final pair is shown.
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
    m_chips.show(m_form.skills, skill.id);
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
    m_editor.close();
    m_opening.cancel();
    m_tickTimer.reset();
    if (m_form.tracker) m_form.tracker->disconnect(this);
    if (m_menuSkillId.isEmpty()) return;
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
    const Skill* const skill = find(m_menuSkillId);
    return skill != nullptr ? skill->name : QString();
}

void NotchCapsule::openMenu(const QString& skillId, bool byKey) {
    if (!chipMayEdit() || m_leaving || find(skillId) == nullptr) return;
    dismissOverlay();
    m_opening.pushCollapseSuspend();
    m_menuSkillId = skillId;
    m_menuByKey = byKey;
    m_overlayAnchor = chipRect(skillId);
    Q_EMIT overlayChanged();
    if (m_stage != nullptr) m_stage->takeKeyboard();
}

void NotchCapsule::chipRequestsRename() { presentEditor(SkillEditor::Fields::Name); }

void NotchCapsule::chipRequestsRecolor() { presentEditor(SkillEditor::Fields::Color); }

void NotchCapsule::chipRequestsDelete() {
    const QString id = m_menuSkillId;
    closeMenu();
    if (id.isEmpty() || !m_form.edit) return;
    // The callback makes the model build another capsule, which must not happen inside this one's
    // click handler.
    m_env.scheduler.post([onDelete = m_form.edit->onDelete, id] { onDelete(id); });
}

void NotchCapsule::chipRequestsAdd() {
    if (!chipMayEdit() || m_leaving) return;
    makeWay(addRowRect());
    m_editor.openNew();
}

void NotchCapsule::dismissOverlay() {
    closeMenu();
    m_editor.close();
}

void NotchCapsule::setOverlayRect(const QRectF& rect) {
    if (rect == m_overlayRect) return;
    m_overlayRect = rect;
    Q_EMIT overlayRectChanged();
    follow();
}

void NotchCapsule::presentEditor(SkillEditor::Fields fields) {
    const Skill* const skill = find(m_menuSkillId);
    if (skill == nullptr) return;
    makeWay(chipRect(skill->id));
    m_editor.openFor(*skill, fields);
}

void NotchCapsule::makeWay(const QRectF& anchor) {
    dismissOverlay();
    m_overlayAnchor = anchor;
    Q_EMIT overlayChanged();
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

void NotchCapsule::commitEdit(const std::optional<QString>& id, const QString& name,
                              std::uint32_t hexRGB) {
    if (!m_form.edit) return;
    // The callback may build another capsule, which must not happen inside the editor's event
    // handler.
    m_env.scheduler.post([edit = *m_form.edit, id, name, hexRGB] {
        if (id)
            edit.onUpdate(*id, name, hexRGB);
        else
            edit.onAdd(name, hexRGB);
    });
}

const Skill* NotchCapsule::find(const QString& skillId) const {
    const auto found = std::ranges::find(m_form.skills, skillId, &Skill::id);
    return found == m_form.skills.end() ? nullptr : &*found;
}

QList<QRectF> NotchCapsule::chipFrames() const {
    QList<QRectF> frames;
    frames.reserve(static_cast<qsizetype>(m_layout.items.size()));
    for (const auto& item : m_layout.items)
        frames.append(item.frame);
    return frames;
}

QRectF NotchCapsule::chipRect(const QString& skillId) const {
    const double left = m_openFrame.left() + capsule::kRowInset;
    const double top =
        m_openFrame.top() + m_metrics.notchHeight + capsule::kRowHeight + kChipsBelowRow;
    for (const auto& item : m_layout.items)
        if (item.skill && item.skill->id == skillId) return item.frame.translated(left, top);
    return {};
}

QRectF NotchCapsule::addRowRect() const {
    return {m_openFrame.left() + capsule::kRowInset,
            m_openFrame.bottom() - kAddRowHeight / 2 - kAddRowTarget / 2, kAddRowTarget,
            kAddRowTarget};
}

} // namespace vantle

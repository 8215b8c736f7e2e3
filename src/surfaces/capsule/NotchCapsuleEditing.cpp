// The chips' menu and the editor that hangs below a chip.
#include "surfaces/capsule/NotchCapsule.h"

#include <utility>

namespace vantle {

namespace {

constexpr double kChipsBelowRow = 2; // px between the row and the chips
constexpr double kAddRowHeight = 44;
constexpr double kAddRowTarget = 28; // of the square and its words

} // namespace

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

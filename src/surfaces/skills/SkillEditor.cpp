#include "surfaces/skills/SkillEditor.h"

#include "base/Text.h"

#include <algorithm>

namespace vantle {

void SkillEditor::openFor(const Skill& skill) { open(skill.id, skill.name, skill.hexRGB); }

void SkillEditor::openNew(const std::vector<Skill>& skills) {
    const auto isFree = [&](std::uint32_t hexRGB) {
        return std::ranges::none_of(skills, [&](const Skill& s) { return s.hexRGB == hexRGB; });
    };
    const auto* const free = std::ranges::find_if(Skill::palette, isFree);
    open(std::nullopt, {}, free == Skill::palette.end() ? Skill::palette.front() : *free);
}

void SkillEditor::open(std::optional<QString> id, const QString& name, std::uint32_t hexRGB) {
    m_editingSkillId = std::move(id);
    m_name = name;
    m_hexRGB = hexRGB;
    m_shown = true;
    Q_EMIT nameChanged();
    Q_EMIT colorChanged();
    Q_EMIT shownChanged();
    Q_EMIT opened();
}

void SkillEditor::commit() {
    if (!canCommit()) return;
    m_commit(m_editingSkillId, text::trimmed(m_name), m_hexRGB);
    close();
}

void SkillEditor::close() {
    m_shown = false;
    m_editingSkillId.reset();
    m_name.clear();
    Q_EMIT nameChanged();
    Q_EMIT shownChanged();
}

void SkillEditor::chooseColor(int index) {
    if (index < 0 || index >= static_cast<int>(Skill::palette.size())) return;
    m_hexRGB = Skill::palette.at(static_cast<std::size_t>(index));
    Q_EMIT colorChanged();
}

QString SkillEditor::title() const {
    return isAdding() ? QStringLiteral("Name your mode") : QStringLiteral("Rename mode");
}

QString SkillEditor::help() {
    return QStringLiteral("Choose a short name you will recognize at a glance.");
}

QString SkillEditor::fieldLabel() { return QStringLiteral("Mode name"); }
QString SkillEditor::placeholder() { return QStringLiteral("e.g. Writing"); }
QString SkillEditor::cancelText() { return QStringLiteral("Cancel"); }

QString SkillEditor::fieldName() const {
    return isAdding() ? QStringLiteral("New mode name") : fieldLabel();
}

QString SkillEditor::confirmText() const {
    return isAdding() ? QStringLiteral("Add mode") : QStringLiteral("Save");
}

void SkillEditor::setName(const QString& name) {
    const QString cut = text::hasAtMost(name, Skill::maxNameLength)
                            ? name
                            : text::firstCharacters(name, Skill::maxNameLength);
    if (cut == m_name) return;
    m_name = cut;
    Q_EMIT nameChanged();
}

QString SkillEditor::counter() const {
    return QStringLiteral("%1/%2").arg(text::characterCount(m_name)).arg(Skill::maxNameLength);
}

bool SkillEditor::canCommit() const { return !text::trimmed(m_name).isEmpty(); }

QList<QColor> SkillEditor::palette() {
    QList<QColor> colors;
    for (const std::uint32_t hexRGB : Skill::palette)
        colors.append(QColor::fromRgb(hexRGB));
    return colors;
}

QStringList SkillEditor::colorNames() {
    return {Skill::paletteNames.begin(), Skill::paletteNames.end()};
}

int SkillEditor::colorIndex() const {
    const auto* const found = std::ranges::find(Skill::palette, m_hexRGB);
    return found == Skill::palette.end() ? -1 : static_cast<int>(found - Skill::palette.begin());
}

} // namespace vantle

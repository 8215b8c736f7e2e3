#include "surfaces/skills/SkillEditor.h"

#include "base/Text.h"
#include "base/Words.h"

#include <algorithm>
#include <utility>

namespace vantle {

namespace {

/// Skill::paletteNames as source texts for translation.
[[maybe_unused]] constexpr const char* kColorNames[] = {
    QT_TRANSLATE_NOOP("Words", "Red"),    QT_TRANSLATE_NOOP("Words", "Orange"),
    QT_TRANSLATE_NOOP("Words", "Violet"), QT_TRANSLATE_NOOP("Words", "Green"),
    QT_TRANSLATE_NOOP("Words", "Sky"),    QT_TRANSLATE_NOOP("Words", "Yellow"),
    QT_TRANSLATE_NOOP("Words", "Purple"), QT_TRANSLATE_NOOP("Words", "Pink"),
    QT_TRANSLATE_NOOP("Words", "Teal"),   QT_TRANSLATE_NOOP("Words", "Lime")};

} // namespace

void SkillEditor::openFor(const Skill& skill, Fields fields) {
    open(skill.id, skill.name, skill.hexRGB, fields);
}

void SkillEditor::openNew(const std::vector<Skill>& skills) {
    const auto isFree = [&](std::uint32_t hexRGB) {
        return std::ranges::none_of(skills, [&](const Skill& s) { return s.hexRGB == hexRGB; });
    };
    const auto* const free = std::ranges::find_if(Skill::palette, isFree);
    open(std::nullopt, {}, free == Skill::palette.end() ? Skill::palette.front() : *free,
         Fields::Both);
}

void SkillEditor::open(std::optional<QString> id, const QString& name, std::uint32_t hexRGB,
                       Fields fields) {
    m_editingSkillId = std::move(id);
    m_name = name;
    m_hexRGB = hexRGB;
    m_fields = fields;
    m_shown = true;
    Q_EMIT nameChanged();
    Q_EMIT colorChanged();
    Q_EMIT shownChanged();
    Q_EMIT opened();
}

void SkillEditor::commit() {
    if (!m_shown || !canCommit()) return;
    m_commit(m_editingSkillId, hasName() ? text::trimmed(m_name) : m_name, m_hexRGB);
    close();
}

void SkillEditor::close() {
    if (!std::exchange(m_shown, false)) return;
    m_editingSkillId.reset();
    // Emitted before the name is cleared: a screen reader would otherwise report an emptied field.
    Q_EMIT shownChanged();
    m_name.clear();
    Q_EMIT nameChanged();
    Q_EMIT closed();
}

void SkillEditor::chooseColor(int index) {
    if (!hasColors() || index < 0 || index >= static_cast<int>(Skill::palette.size())) return;
    m_hexRGB = Skill::palette.at(static_cast<std::size_t>(index));
    Q_EMIT colorChanged();
}

void SkillEditor::setName(const QString& name) {
    if (!hasName()) return;
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

bool SkillEditor::canCommit() const {
    return !hasName() || text::characterCount(text::trimmed(m_name)) >= m_shortestName;
}

QList<QColor> SkillEditor::palette() {
    QList<QColor> colors;
    for (const std::uint32_t hexRGB : Skill::palette)
        colors.append(QColor::fromRgb(hexRGB));
    return colors;
}

QStringList SkillEditor::colorNames() {
    QStringList names;
    names.reserve(Skill::paletteNames.size());
    for (const QLatin1String name : Skill::paletteNames)
        names << Words::tr(name.data());
    return names;
}

int SkillEditor::colorIndex() const {
    const auto* const found = std::ranges::find(Skill::palette, m_hexRGB);
    return found == Skill::palette.end() ? -1 : static_cast<int>(found - Skill::palette.begin());
}

} // namespace vantle

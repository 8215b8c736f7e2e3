#include "surfaces/capsule/SkillPopoverEditor.h"

#include "base/Text.h"

#include <algorithm>
#include <utility>

namespace vantle {

namespace {

constexpr int kRenameHeight = 158;
constexpr int kRecolorHeight = 112;
constexpr int kAddHeight = 204;

} // namespace

SkillPopoverEditor::SkillPopoverEditor(Mode mode, std::optional<Skill> skill,
                                       std::function<void(const Result&)> onResult)
    : m_mode(mode)
    , m_skill(std::move(skill))
    , m_onResult(std::move(onResult))
    , m_name(m_skill ? m_skill->name : QString())
    , m_selectedHex(m_skill ? m_skill->hexRGB : Skill::palette.front()) {}

QString SkillPopoverEditor::title() const {
    switch (m_mode) {
    case Mode::Rename:
        return QStringLiteral("Rename skill");
    case Mode::Recolor:
        return QStringLiteral("Choose a color");
    case Mode::Add:
        break;
    }
    return QStringLiteral("Create a skill");
}

QString SkillPopoverEditor::subtitle() const {
    switch (m_mode) {
    case Mode::Rename:
        return QStringLiteral("Use a short name you will recognize at a glance.");
    case Mode::Recolor:
        return {};
    case Mode::Add:
        break;
    }
    return QStringLiteral("What do you want to build time toward?");
}

QString SkillPopoverEditor::commitTitle() const {
    return m_mode == Mode::Add ? QStringLiteral("Create skill") : QStringLiteral("Save");
}

int SkillPopoverEditor::height() const {
    switch (m_mode) {
    case Mode::Rename:
        return kRenameHeight;
    case Mode::Recolor:
        return kRecolorHeight;
    case Mode::Add:
        break;
    }
    return kAddHeight;
}

QList<QColor> SkillPopoverEditor::palette() {
    QList<QColor> colors;
    for (const std::uint32_t hexRGB : Skill::palette)
        colors.append(QColor::fromRgb(hexRGB));
    return colors;
}

QList<QString> SkillPopoverEditor::colorNames() {
    return {Skill::paletteNames.begin(), Skill::paletteNames.end()};
}

int SkillPopoverEditor::selectedIndex() const {
    const auto found = std::find(Skill::palette.begin(), Skill::palette.end(), m_selectedHex);
    return found == Skill::palette.end() ? -1 : static_cast<int>(found - Skill::palette.begin());
}

bool SkillPopoverEditor::canCommit() const { return !hasName() || !trimmedName().isEmpty(); }

void SkillPopoverEditor::select(int index) {
    if (index < 0 || index >= static_cast<int>(Skill::palette.size())) return;
    m_selectedHex = Skill::palette[static_cast<std::size_t>(index)];
    Q_EMIT selectedHexChanged();
}

QString SkillPopoverEditor::edit(const QString& text) {
    const QString cut = text::hasAtMost(text, Skill::maxNameLength)
                            ? text
                            : text::firstCharacters(text, Skill::maxNameLength);
    if (cut != m_name) {
        m_name = cut;
        Q_EMIT nameChanged();
    }
    return cut;
}

void SkillPopoverEditor::commit() {
    if (!canCommit()) return;
    switch (m_mode) {
    case Mode::Rename:
        finish({Result::Kind::Save, m_skill->id, trimmedName(), m_skill->hexRGB});
        break;
    case Mode::Recolor:
        finish({Result::Kind::Save, m_skill->id, m_skill->name, m_selectedHex});
        break;
    case Mode::Add:
        finish({Result::Kind::Add, {}, trimmedName(), m_selectedHex});
        break;
    }
}

void SkillPopoverEditor::cancel() { finish({}); }

void SkillPopoverEditor::finish(const Result& result) {
    // Whoever hears the result may give this editor up.
    if (const auto tell = std::exchange(m_onResult, nullptr)) tell(result);
}

QString SkillPopoverEditor::trimmedName() const { return text::trimmed(m_name); }

} // namespace vantle

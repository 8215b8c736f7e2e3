#include "tracking/SkillList.h"

#include "base/SerialQueue.h"
#include "base/Text.h"
#include "platform/FileSystem.h"
#include "platform/Preferences.h"
#include "tracking/AppPaths.h"
#include "tracking/JsonForm.h"
#include "tracking/Settings.h"

#include <algorithm>
#include <cerrno>

namespace vantle {

namespace {

constexpr std::uint32_t kGrey = 0x8E8E93;

const Skill* findIn(const std::vector<Skill>& skills, const QString& id) {
    const auto found = std::ranges::find(skills, id, &Skill::id);
    return found == skills.end() ? nullptr : &*found;
}

/// Returns the entry of a file as a valid skill; empty when it cannot be one.
std::optional<Skill> sanitized(const Skill& entry) {
    if (!Skill::isAcceptableId(entry.id)) return std::nullopt;
    const QString name = Skill::cleanedName(entry.name);
    const bool nameFits = Skill::isAcceptableName(name);
    const std::uint32_t color = entry.hexRGB & Skill::colorMask;
    // A seed with an invalid name keeps its default name.
    if (const auto seed = Skill::seedDefinition(entry.id))
        return Skill{seed->id, nameFits ? name : seed->name, color, seed->builtin};
    if (!nameFits) return std::nullopt;
    return Skill{entry.id, name, color, false};
}

std::vector<Skill> sanitized(const std::vector<Skill>& entries) {
    std::vector<Skill> kept;
    for (const Skill& entry : entries) {
        if (kept.size() == Skill::maxCount) break;
        auto skill = sanitized(entry);
        if (skill && !findIn(kept, skill->id)) kept.push_back(std::move(*skill));
    }
    return kept;
}

/// Renames seeds that still have an old default name. Returns true when one changed.
bool renameOldDefaults(std::vector<Skill>& skills) {
    struct Rename {
        QLatin1String id, oldName, newName;
    };
    static constexpr std::array<Rename, 3> renames = {{
        {QLatin1String("product_design"), QLatin1String("Product design"),
         QLatin1String("Product Design")},
        {QLatin1String("founder_ops"), QLatin1String("Founder ops"), QLatin1String("Founder Ops")},
        {QLatin1String("building"), QLatin1String("Building"), QLatin1String("Build")},
    }};
    bool changed = false;
    for (Skill& skill : skills) {
        for (const Rename& rename : renames) {
            if (skill.id != rename.id || skill.name != rename.oldName) continue;
            skill.name = rename.newName;
            if (skill.id == QLatin1String("building") && skill.hexRGB == 0x64D2FF)
                skill.hexRGB = 0x40C8E0;
            changed = true;
        }
    }
    return changed;
}

/// Adds the seed "Build" unless its id or name exists. Returns true when added.
bool addMissingBuild(std::vector<Skill>& skills) {
    const bool present = std::ranges::any_of(skills, [](const Skill& skill) {
        return skill.id == QLatin1String("building") ||
               Skill::comparisonKey(skill.name) == QLatin1String("build");
    });
    if (present || skills.size() >= Skill::maxCount) return false;
    skills.push_back(Skill::defaults().front());
    return true;
}

/// Derives an id from the name: letters and numbers in lower case, joined by `_`.
QString baseIdFor(const QString& cleanedName) {
    QString id;
    bool gap = false;
    text::forEachCharacter(text::lowerCased(cleanedName), [&](QStringView character) {
        if (!text::isLetterOrNumber(character)) {
            gap = !id.isEmpty();
            return;
        }
        if (gap) id += QLatin1Char('_');
        gap = false;
        id += character;
    });
    return id.isEmpty() ? QStringLiteral("skill") : id;
}

} // namespace

SkillList::SkillList(const AppPaths& paths, SerialQueue& ioQueue, Preferences& preferences)
    : m_paths(paths)
    , m_ioQueue(ioQueue)
    , m_preferences(preferences) {}

const std::vector<Skill>& SkillList::all() {
    if (!m_all) m_all = loadSkills();
    return *m_all;
}

const std::optional<Error>& SkillList::readError() {
    static_cast<void>(all());
    return m_readError;
}

std::optional<Skill> SkillList::find(const QString& id) {
    const Skill* skill = findIn(all(), id);
    return skill ? std::optional(*skill) : std::nullopt;
}

Skill SkillList::by(const QString& id) { return find(id).value_or(all().front()); }

Skill SkillList::display(const QString& id) { return display(id, all()); }

Skill SkillList::display(const QString& id, const std::vector<Skill>& skills) {
    if (const Skill* skill = findIn(skills, id)) return *skill;
    if (auto seed = Skill::seedDefinition(id)) return *std::move(seed);
    QString name = id;
    name.replace(QLatin1Char('_'), QLatin1Char(' '));
    return {id, text::capitalizedWords(name), kGrey, false};
}

bool SkillList::saveSkills(const std::vector<Skill>& skills) {
    if (m_readError) return false;
    return m_ioQueue.run(
        [&] { return m_paths.writeProtected(json::encode(skills), m_paths.skillsFile()).ok(); });
}

std::vector<Skill> SkillList::loadSkills() {
    const auto bytes =
        m_ioQueue.run([this] { return m_paths.fileSystem().readAll(m_paths.skillsFile()); });
    // Other failures may be temporary, and the file's content is worth more than the seeds.
    if (!bytes && bytes.error().code != ENOENT) m_readError = bytes.error();
    const auto stored = bytes ? json::decodeSkills(bytes.value()) : std::nullopt;
    if (!stored) {
        std::vector<Skill> seeds(Skill::defaults().begin(), Skill::defaults().end());
        if (saveSkills(seeds))
            settings::skillsMigrationVersion.write(m_preferences, currentMigrationVersion);
        return seeds;
    }
    std::vector<Skill> skills = sanitized(*stored);
    migrate(skills);
    if (skills.empty()) skills.push_back(Skill::defaults().front());
    return skills;
}

void SkillList::migrate(std::vector<Skill>& skills) {
    if (settings::skillsMigrationVersion.read(m_preferences) >= currentMigrationVersion) return;
    const bool renamed = renameOldDefaults(skills);
    const bool added = addMissingBuild(skills);
    // An unsaved migration is retried at the next launch.
    if ((renamed || added) && !saveSkills(skills)) return;
    settings::skillsMigrationVersion.write(m_preferences, currentMigrationVersion);
}

bool SkillList::isTaken(const QString& name, const QString& exceptId) {
    const QString key = Skill::comparisonKey(name);
    return std::ranges::any_of(all(), [&](const Skill& skill) {
        return skill.id != exceptId && Skill::comparisonKey(skill.name) == key;
    });
}

QString SkillList::freeIdFor(const QString& cleanedName) {
    const QString base = baseIdFor(cleanedName);
    QString id = base;
    for (int number = 2; contains(id); ++number)
        id = QStringLiteral("%1_%2").arg(base).arg(number);
    return id;
}

std::optional<Skill> SkillList::addCustom(const QString& name, std::uint32_t hexRGB) {
    const QString cleaned = Skill::cleanedName(name);
    if (!Skill::isAcceptableName(cleaned) || all().size() >= Skill::maxCount ||
        isTaken(cleaned, QString()))
        return std::nullopt;
    const Skill skill{freeIdFor(cleaned), cleaned, hexRGB & Skill::colorMask, false};
    m_all->push_back(skill);
    if (!saveSkills(*m_all)) {
        m_all->pop_back();
        return std::nullopt;
    }
    Q_EMIT changed();
    return skill;
}

std::optional<Skill> SkillList::update(const QString& id, const QString& name,
                                       std::uint32_t hexRGB) {
    const QString cleaned = Skill::cleanedName(name);
    if (!Skill::isAcceptableName(cleaned) || isTaken(cleaned, id)) return std::nullopt;
    const auto skill = std::ranges::find(*m_all, id, &Skill::id);
    if (skill == m_all->end()) return std::nullopt;
    const Skill before = *skill;
    skill->name = cleaned;
    skill->hexRGB = hexRGB & Skill::colorMask;
    const Skill after = *skill;
    if (!saveSkills(*m_all)) {
        *skill = before;
        return std::nullopt;
    }
    Q_EMIT changed();
    return after;
}

bool SkillList::remove(const QString& id) {
    if (all().size() < 2 || !contains(id)) return false;
    const std::vector<Skill> before = *m_all;
    std::erase_if(*m_all, [&](const Skill& skill) { return skill.id == id; });
    if (!saveSkills(*m_all)) {
        m_all = before;
        return false;
    }
    Q_EMIT changed();
    return true;
}

void SkillList::resetAfterErase() {
    m_readError.reset();
    m_all.emplace(Skill::defaults().begin(), Skill::defaults().end());
    settings::skillsMigrationVersion.write(m_preferences, currentMigrationVersion);
    Q_EMIT changed();
}

} // namespace vantle

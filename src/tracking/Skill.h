// A skill: a named, coloured category of work.
//
// Some texts of the interface call it a mode. Plain values and pure functions, any thread.
#pragma once

#include <QString>

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace vantle {

struct Skill {
    QString id;               ///< stable key, stored in records
    QString name;             ///< 1 to 20 user-perceived characters
    std::uint32_t hexRGB = 0; ///< 0xRRGGBB; the top byte is always 0
    bool builtin = false;     ///< from the seed tables

    friend bool operator==(const Skill&, const Skill&) = default;

    static constexpr int maxCount = 8;
    static constexpr int maxNameLength = 20; ///< user-perceived characters
    static constexpr int maxIdLength = 64;   ///< user-perceived characters
    static constexpr std::uint32_t colorMask = 0xFFFFFF;

    /// The six skills of a new user, in order.
    [[nodiscard]] static std::span<const Skill> defaults();

    /// The seeds of earlier versions, which old files may name. Not offered to new users.
    [[nodiscard]] static std::span<const Skill> legacyDefaults();

    /// The colours offered for new skills, in order.
    static constexpr std::array<std::uint32_t, 10> palette = {
        0xFF375F, 0xFF9F0A, 0x7A78FF, 0x30D158, 0x64D2FF,
        0xFFD60A, 0xBF5AF2, 0xFF6482, 0x40C8E0, 0xACF35C};

    /// Names of the colours, in the order of `palette`.
    static constexpr std::array<QLatin1String, palette.size()> paletteNames = {
        QLatin1String("Red"),    QLatin1String("Orange"), QLatin1String("Violet"),
        QLatin1String("Green"),  QLatin1String("Sky"),    QLatin1String("Yellow"),
        QLatin1String("Purple"), QLatin1String("Pink"),   QLatin1String("Teal"),
        QLatin1String("Lime")};

    /// Returns the seed with that id from `defaults`, then `legacyDefaults`; empty when there is
    /// none.
    [[nodiscard]] static std::optional<Skill> seedDefinition(const QString& id);

    /// Returns the name as stored: single blanks inside, none at the ends.
    [[nodiscard]] static QString cleanedName(const QString& name);

    /// Whether a cleaned name has 1 to `maxNameLength` characters.
    [[nodiscard]] static bool isAcceptableName(const QString& cleaned);

    /// Whether an id from a file is valid: 1 to 64 letters, numbers, `_` and `-`.
    [[nodiscard]] static bool isAcceptableId(const QString& id);

    /// Returns a key that is equal for equal names: ignores case, diacritics and blanks, and maps
    /// "Building" to "Build".
    [[nodiscard]] static QString comparisonKey(const QString& name);
};

} // namespace vantle

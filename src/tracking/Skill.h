// A skill: a named, coloured category of work. Parts of the interface call it a mode.
//
// Plain values and pure functions, any thread.
#pragma once

#include <QString>

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace vantle {

struct Skill {
    QString id;               ///< stable key; finished work refers to it
    QString name;             ///< 1 to 20 user-perceived characters
    std::uint32_t hexRGB = 0; ///< 0xRRGGBB; the top byte is always 0
    bool builtin = false;     ///< comes from the seed tables

    friend bool operator==(const Skill&, const Skill&) = default;

    static constexpr int maxCount = 8;
    static constexpr int maxNameLength = 20; ///< user-perceived characters
    static constexpr int maxIdLength = 64;   ///< user-perceived characters
    static constexpr std::uint32_t colorMask = 0xFFFFFF;

    /// The six skills that a new person starts with, in their order.
    [[nodiscard]] static std::span<const Skill> defaults();

    /// The seeds of earlier versions. Nobody is offered them, but old files may name them.
    [[nodiscard]] static std::span<const Skill> legacyDefaults();

    /// The colours offered for new skills, in order.
    static constexpr std::array<std::uint32_t, 10> palette = {
        0xFF375F, 0xFF9F0A, 0x7A78FF, 0x30D158, 0x64D2FF,
        0xFFD60A, 0xBF5AF2, 0xFF6482, 0x40C8E0, 0xACF35C};

    /// What a colour of the palette is called, in the order of `palette`.
    static constexpr std::array<QLatin1String, palette.size()> paletteNames = {
        QLatin1String("Red"),    QLatin1String("Orange"), QLatin1String("Violet"),
        QLatin1String("Green"),  QLatin1String("Sky"),    QLatin1String("Yellow"),
        QLatin1String("Purple"), QLatin1String("Pink"),   QLatin1String("Teal"),
        QLatin1String("Lime")};

    /// The seed with that id: of `defaults`, else of `legacyDefaults`, else none.
    [[nodiscard]] static std::optional<Skill> seedDefinition(const QString& id);

    /// The name as it is stored: single blanks inside, none at the ends.
    [[nodiscard]] static QString cleanedName(const QString& name);

    /// Whether a cleaned name has 1 to `maxNameLength` characters.
    [[nodiscard]] static bool isAcceptableName(const QString& cleaned);

    /// Whether an id from a file may stand: 1 to 64 letters, numbers, `_` and `-`.
    [[nodiscard]] static bool isAcceptableId(const QString& id);

    /// Two names with the same key are one name: case, diacritics and blanks don't tell them apart,
    /// and "Building" is "Build".
    [[nodiscard]] static QString comparisonKey(const QString& name);
};

} // namespace vantle

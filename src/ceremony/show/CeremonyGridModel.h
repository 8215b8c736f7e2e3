// The choreography of one show on one screen, as data.
//
// Structure of arrays, so that a renderer reads memory sequentially. Lengths in points, y
// downwards; times in seconds from the start. Plain values: any thread, but a build takes
// milliseconds, so it stays off the main thread.
#pragma once

#include "ceremony/show/CeremonyGrid.h"
#include "ceremony/show/CeremonyVariant.h"

#include <QImage>
#include <QSizeF>
#include <QString>

#include <cstdint>
#include <vector>

namespace vantle {

class RandomSource;

struct CeremonyGridModel {
    CeremonyVariant variant = CeremonyVariant::Nova;
    double width = 0;
    double height = 0;
    int cols = 0;
    int rows = 0;
    double cell = 0; ///< pitch of the grid

    /// The front dots; arrays of equal length.
    std::vector<std::int32_t> fieldIndex; ///< row * cols + column
    std::vector<float> fieldBorn;
    std::vector<float> fieldVanish;
    std::vector<std::uint8_t> fieldColor;   ///< index into ceremonypalette::field
    std::vector<std::uint8_t> fieldBright;  ///< 1 for a large dot
    std::vector<float> fieldPhase;          ///< of the twinkle, 0 up to 6.283
    std::vector<std::uint8_t> fieldFlicker; ///< parity of a dying dot's strobe

    /// The dimmer back dots; arrays of equal length.
    std::vector<std::int32_t> backIndex;
    std::vector<float> backBorn;
    std::vector<float> backVanish;
    std::vector<std::uint8_t> backColor;
    std::vector<float> backPhase;

    /// The chargers that fly to the centre before the burst of `Nova`; empty for other scripts.
    /// They may start outside the screen.
    std::vector<float> chargerX;
    std::vector<float> chargerY;
    std::vector<std::uint8_t> chargerColor;

    /// The sparks of the burst.
    std::vector<float> sparkAngle;  ///< radians
    std::vector<float> sparkSpeed;  ///< points per second
    std::vector<float> sparkLength; ///< of the trail

    /// Title pill and caption at two pixels per point; null where there is none.
    QImage titleImage;
    QSizeF titleSize{0, 0}; ///< points; 0 x 0 where there is none
    QImage captionImage;
    QSizeF captionSize{0, 0};

    static constexpr double detonation = 0.5; ///< when the charge of `Nova` bursts
    static constexpr double endTime = 3.1;
    static constexpr int maxFieldPixels = CeremonyGrid::maxFieldPixels;

    /// Builds the show of `variant` for a screen of `size` points, with texts for the skill (empty
    /// for none). Never fails; sizes below 24 x 24 count as that. Requires a QGuiApplication for
    /// the fonts, on any thread.
    [[nodiscard]] static CeremonyGridModel build(CeremonyVariant variant, QSizeF size,
                                                 const QString& skillName, RandomSource& random);

    /// Builds it without title and caption, and without fonts. Draws random numbers in a fixed
    /// order, so a sequence gives the same show everywhere.
    [[nodiscard]] static CeremonyGridModel choreograph(CeremonyVariant variant, QSizeF size,
                                                       RandomSource& random);
};

} // namespace vantle

// The choreography of one show on one screen, as data: when each dot is born and when it vanishes.
//
// A structure of arrays, so that a renderer walks flat memory. Lengths are in points with y
// downwards, times in seconds from the start of the show. Plain values: any thread, but a build
// takes milliseconds and is kept off the main one.
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

    /// The front dots; all of one length.
    std::vector<std::int32_t> fieldIndex; ///< row * cols + column
    std::vector<float> fieldBorn;
    std::vector<float> fieldVanish;
    std::vector<std::uint8_t> fieldColor;   ///< index into ceremonypalette::field
    std::vector<std::uint8_t> fieldBright;  ///< 1 for a large dot
    std::vector<float> fieldPhase;          ///< of the twinkle, 0 up to 6.283
    std::vector<std::uint8_t> fieldFlicker; ///< parity of the strobe of a dying dot

    /// The dimmer dots behind; all of one length.
    std::vector<std::int32_t> backIndex;
    std::vector<float> backBorn;
    std::vector<float> backVanish;
    std::vector<std::uint8_t> backColor;
    std::vector<float> backPhase;

    /// What flies into the centre before the burst of `Nova`; empty for the others. They may start
    /// outside the screen.
    std::vector<float> chargerX;
    std::vector<float> chargerY;
    std::vector<std::uint8_t> chargerColor;

    /// What the burst throws out.
    std::vector<float> sparkAngle;  ///< radians
    std::vector<float> sparkSpeed;  ///< points a second
    std::vector<float> sparkLength; ///< of the trail

    /// The title pill and the caption, at two pixels a point; null where there is none.
    QImage titleImage;
    QSizeF titleSize{0, 0}; ///< points; 0 x 0 where there is none
    QImage captionImage;
    QSizeF captionSize{0, 0};

    static constexpr double detonation = 0.5; ///< when the charge of `Nova` bursts
    static constexpr double endTime = 3.1;
    static constexpr int maxFieldPixels = CeremonyGrid::maxFieldPixels;

    /// The show of `variant` on a screen of `size` points, with its texts for the skill (empty for
    /// none). Never fails; a size below 24 x 24 counts as that. Needs a QGuiApplication for the
    /// fonts, on whatever thread it runs.
    [[nodiscard]] static CeremonyGridModel build(CeremonyVariant variant, QSizeF size,
                                                 const QString& skillName, RandomSource& random);

    /// The same without title and caption; needs no fonts. The order in which it draws its numbers
    /// is fixed, so a sequence gives the same show everywhere.
    [[nodiscard]] static CeremonyGridModel choreograph(CeremonyVariant variant, QSizeF size,
                                                       RandomSource& random);
};

} // namespace vantle

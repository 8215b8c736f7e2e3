// The palette for users who ask for more contrast.
//
// Constants; any thread.
#pragma once

#include "surfaces/kit/tokens/Look.h"

namespace vantle::look {

/// Text has at least 7:1 on its background, edges 3:1, and nothing is translucent. The background
/// stays dark.
constexpr Palette contrasted() {
    Palette look;
    look.hairline.alpha = look.capsuleEdge.alpha = look.sliderTrack.alpha = 0.40;
    look.windowEdge.alpha = look.keycapEdge.alpha = 0.50;
    look.floatingGround.alpha = look.popoverGround.alpha = look.glassGround.alpha = 1;
    look.barTrough.alpha = 0.38;
    look.scrollbarThumb.alpha = 0.60;
    look.switchTrack.alpha = 0.30;
    look.switchEdge.alpha = 0.85;
    look.pageDot.alpha = 0.55;
    look.switchKnob.alpha = look.pageDotCurrent.alpha = look.chosenRing.alpha = 1;

    look.textPrimary.alpha = look.textChip.alpha = look.iconPrimary.alpha = 1;
    look.textSecondary.alpha = look.textCaption.alpha = look.textCapsuleName.alpha =
        look.textCapsulePaused.alpha = 0.92;
    look.textTertiary.alpha = look.textWeekday.alpha = 0.86;
    look.textDisabled.alpha = look.textWeekdayFuture.alpha = 0.74;
    look.iconQuiet.alpha = look.iconStrip.alpha = 0.92;
    look.iconDisabled.alpha = 0.62;

    look.accent = look.barWeek = {0x9896FF};
    look.accentHover = {0xA9A7FF};
    look.accentPressed = {0x9290FF};
    look.accentText = look.focusRing = look.caret = {0xC4C3FF};
    look.accentTextOnTint = {0xE2E1FF};
    look.dangerText = {0xFFB3C1};
    look.dangerTextOnFill = {0xFFD0D9};
    look.disabledOpacity = 0.75;
    return look;
}

inline constexpr Palette kContrasted = contrasted();

} // namespace vantle::look

// The design tokens: colours, type, space, shape, depth, motion.
//
// Views read them as `DarkUI`; painters, posters, placement and window rules read them here.
// Constants; any thread. Lengths in device-independent pixels, times in milliseconds, tracking in
// em.
//
// Chrome is translucent white. Only worked time emits light: dots, tiles, bars, skill colours. The
// accent marks the main action and keyboard focus alone.
#pragma once

#include "surfaces/kit/tokens/ColorMath.h"
#include "surfaces/kit/tokens/Spring.h"

#include <QColor>
#include <QFont>

#include <cstdint>

namespace vantle::look {

struct Color {
    std::uint32_t rgb = 0; ///< 0xRRGGBB
    double alpha = 1;

    [[nodiscard]] QColor color() const {
        return colormath::withAlpha(colormath::fromHex(rgb), alpha);
    }

    friend bool operator==(const Color&, const Color&) = default;
};

/// A step of the type scale.
struct TypeStep {
    int size = 13; ///< px
    int line = 20; ///< px between baselines
    QFont::Weight weight = QFont::Normal;
    double tracking = 0;   ///< em
    bool display = false;  ///< for titles and figures from 15 px on
    bool capitals = false; ///< set in capitals
};

constexpr TypeStep plain(int size, int line, QFont::Weight weight = QFont::Normal,
                         double tracking = 0, bool capitals = false) {
    return {size, line, weight, tracking, false, capitals};
}

constexpr TypeStep display(int size, int line, double tracking,
                           QFont::Weight weight = QFont::DemiBold) {
    return {size, line, weight, tracking, true, false};
}

/// The shadow of a level: a wide layer, and a tight one at higher levels. Offsets point down.
struct Shadow {
    double offset;
    double blur;
    double strength; ///< opacity of black
    double tightOffset = 0;
    double tightBlur = 0;
    double tightStrength = 0;
};

inline constexpr std::uint32_t kInk = 0x0A0A0F;
inline constexpr std::uint32_t kWhite = 0xFFFFFF;

/// The colours of a theme. The defaults are the dark theme.
struct Palette {
    // Backgrounds
    Color windowGround{kInk};
    Color ink{kInk}; ///< text on the accent and on full skill colours
    Color cardFill{kWhite, 0.06};
    Color hairline{kWhite, 0.08};
    Color windowEdge{kWhite, 0.09}; ///< outside the window's background
    Color capsuleGround{0x000000};
    Color capsuleEdge{kWhite, 0.06}; ///< inside its lower edge
    Color menuGround{0x17171D};
    Color floatingGround{kInk, 0.96};
    Color popoverGround{kInk, 0.97};
    Color glassGround{kInk, 0.82};

    // Fills: rest, hover, pressed
    Color fill{kWhite, 0.06};
    Color fillHover{kWhite, 0.10};
    Color fillPressed{kWhite, 0.14};
    Color fillDisabled{kWhite, 0.08};
    Color clear{kWhite, 0};
    Color quietHover{kWhite, 0.08}; ///< icon buttons, menu rows
    Color navHover{kWhite, 0.06};   ///< navigation rows
    Color rowHover{kWhite, 0.05};   ///< list rows
    Color stripHover{kWhite, 0.10}; ///< the window's two round buttons
    Color stepperFill{kWhite, 0.08};
    Color segmentFill{kWhite, 0.14};
    Color barTrough{kWhite, 0.08}; ///< of bars
    Color sliderTrack{kWhite, 0.10};
    Color scrollbarThumb{kWhite, 0.16};
    Color fieldFill{kWhite, 0.05};
    Color fieldFillFocused{kWhite, 0.07};
    Color keycapEdge{kWhite, 0.12};
    Color switchTrack{kWhite, 0.14};
    Color switchEdge{kWhite, 0.40};
    Color switchKnob{kWhite, 0.92};
    Color knobFill{kWhite}; ///< of a switch that is on, and of a slider
    Color pageDot{kWhite, 0.22};
    Color pageDotCurrent{kWhite, 0.92};
    Color chosenRing{kWhite, 0.95}; ///< around the chosen swatch

    // Text and icons
    Color textPrimary{kWhite, 0.95};       ///< main text
    Color textSecondary{kWhite, 0.68};     ///< supporting text
    Color textTertiary{kWhite, 0.54};      ///< optional text
    Color textDisabled{kWhite, 0.32};      ///< disabled and separators only
    Color textCaption{kWhite, 0.62};       ///< captions of settings
    Color textWeekday{kWhite, 0.55};       ///< weekday letters and month names
    Color textWeekdayFuture{kWhite, 0.30}; ///< for days to come
    Color textCapsuleName{kWhite, 0.62};
    Color textCapsulePaused{kWhite, 0.74};
    Color textChip{kWhite, 0.90};
    Color iconQuiet{kWhite, 0.54};
    Color iconStrip{kWhite, 0.62};
    Color iconPrimary{kWhite, 0.80};
    Color iconDisabled{kWhite, 0.30};

    // Accents
    Color accent{0x7A78FF};
    Color accentHover{0x8E8CFF};
    Color accentPressed{0x706EEE};
    Color accentText{0xA3A1FF};
    Color accentTextOnTint{0xB4B2FF};
    Color focusRing{0xA3A1FF};
    Color caret{0xA3A1FF};
    Color danger{0xFF6482};
    Color dangerText{0xFF8BA2}; ///< on the background
    Color dangerTextOnFill{0xFF9BAE};
    Color warning{0xFF9F0A};
    Color good{0x30D158};
    Color barToday{0xFF375F};
    Color barWeek{0x7A78FF};
    Color barAllTime{0x64D2FF};

    // Opacities of a colour, for Tint.alpha()
    double dangerFillOpacity = 0.16;
    double dangerFillHoverOpacity = 0.24;
    double dangerFillPressedOpacity = 0.32;
    double dangerEdgeOpacity = 0.42;
    double tintFillOpacity = 0.18; ///< of a selected chip
    double tintFillHoverOpacity = 0.26;
    double tintFillPressedOpacity = 0.32;
    double popoverCommitOpacity = 0.60;
    double popoverCommitPressedOpacity = 0.95;
    double popoverCommitDisabledOpacity = 0.24;
    double bannerFillOpacity = 0.10;
    double bannerEdgeOpacity = 0.30;
    double wrappedFillOpacity = 0.14; ///< of a row for a waiting review
    double wrappedEdgeOpacity = 0.34;
    double pointTintOpacity = 0.14;  ///< of a high point's disc
    double columnRestOpacity = 0.62; ///< of a chart's columns except the highest
    double pausedOpacity = 0.78;     ///< of the wide button while paused
    double disabledOpacity = 0.45;   ///< of a disabled chip, switch or slider

    friend bool operator==(const Palette&, const Palette&) = default;
};

struct TypeScale {
    TypeStep heroReview = display(116, 100, -0.020);
    TypeStep heroPoster = display(84, 72, -0.020);
    TypeStep nameReview = display(52, 58, -0.028);
    TypeStep namePoster = display(42, 48, -0.026);
    TypeStep duration = display(40, 46, -0.015);
    TypeStep statValue = display(32, 36, -0.014);
    TypeStep statUnit = plain(14, 20, QFont::Medium);
    TypeStep quotation = display(30, 41, -0.016, QFont::Medium);
    TypeStep titleXL = display(28, 34, -0.018);
    TypeStep titleL = display(24, 30, -0.014);
    TypeStep capsuleClock = display(23, 28, -0.010);
    TypeStep titleM = display(20, 28, -0.012);
    /// a sentence as a title
    TypeStep titleMWide = display(22, 28, -0.012);
    /// text before and after a hero figure
    TypeStep titleMQuiet = display(20, 28, -0.012, QFont::Medium);
    TypeStep cardTitle = display(17, 22, -0.010);
    TypeStep cardTitleQuiet = display(17, 22, -0.010, QFont::Medium);
    TypeStep panelTitle = display(15, 20, -0.010);
    TypeStep lead = plain(15, 23);
    /// on the wide primary button
    TypeStep leadButton = plain(15, 20, QFont::DemiBold, -0.005);
    TypeStep note = plain(14, 20);
    TypeStep body = plain(13, 20);
    /// rows, secondary buttons
    TypeStep bodyMedium = plain(13, 20, QFont::Medium);
    /// primary buttons, headings of cards
    TypeStep bodyStrong = plain(13, 20, QFont::DemiBold);
    TypeStep caption = plain(12, 17);
    /// labels, menus, large chips
    TypeStep captionMedium = plain(12, 17, QFont::Medium);
    /// day headings
    TypeStep captionStrong = plain(12, 17, QFont::DemiBold);
    TypeStep small = plain(11, 15);
    /// chips
    TypeStep smallMedium = plain(11, 15, QFont::Medium);
    TypeStep kicker = plain(11, 14, QFont::DemiBold, 0.080);
    TypeStep sectionLabel = plain(11, 14, QFont::DemiBold, 0.080, true);
    /// keys, tracked for legibility
    TypeStep keycap = plain(11, 15, QFont::Normal, 0.060);
    TypeStep capsuleSkill = plain(10, 13, QFont::Normal, 0.09);
    TypeStep capsuleChip = plain(11, 15, QFont::Medium);
    TypeStep kickerPoster = plain(10, 13, QFont::DemiBold, 0.080);
    TypeStep heroUnitPoster = display(30, 36, -0.020);
    double heroUnitScale = 0.36; ///< relative to the hero figure
};

struct Lengths {
    // Space: a scale, named by its steps
    int space2 = 2;
    int space4 = 4;
    int space6 = 6;
    int space8 = 8; ///< between label and control
    int space10 = 10;
    int space12 = 12; ///< within a group
    int space14 = 14;
    int space16 = 16;
    int space18 = 18; ///< above the content of the command center
    int space20 = 20; ///< between groups
    int space24 = 24;
    int space28 = 28;
    int space32 = 32; ///< beside the review's picker
    int space36 = 36;
    int space44 = 44;
    int space64 = 64;

    // Shape
    double radiusYearTile = 2.8;
    int radiusTiny = 2; ///< arrow tips, the stop symbol
    int radiusBar = 3;
    int radiusTag = 4;
    int radiusKeycap = 6;
    int radiusMenuRow = 6;
    int radiusColumn = 6; ///< of a chart
    int radiusSegment = 7;
    int radiusSmall = 8;   ///< icon buttons, steppers, menus
    int radiusButton = 9;  ///< also fields
    int radiusBanner = 10; ///< also hovered rows
    int radiusTile = 11;
    int radiusCard = 12;
    int radiusWindow = 14;   ///< also popovers and the wide primary button
    int radiusFloating = 18; ///< capsule, floating cards, panels
    int hairlineWidth = 1;
    int focusWidth = 2;
    int focusGap = 2;            ///< between a control and its focus ring
    int focusRadiusGain = 3;     ///< added to the control's radius
    double fieldEdgeWidth = 1.5; ///< of a field with focus or error
    double caretWidth = 1.5;

    // Sizes of controls
    int buttonHeight = 32;
    int buttonPadding = 14;
    int formButtonHeight = 36;
    int formButtonPadding = 18;
    int wideButtonHeight = 52;
    int popoverButtonHeight = 26;
    int iconButtonSize = 26;
    int closeButtonSize = 22; ///< the round button of corner cards
    int iconSize = 16;
    int iconMedium = 14;
    int iconSmall = 12;
    int iconTiny = 10; ///< in chips
    int keycapHeight = 20;
    int chipHeight = 24;
    int largeChipHeight = 28;
    int summaryDotSize = 11; ///< for a part of an hour
    int chipGap = 6;
    int chipDotSize = 7; ///< also the flat dot of labels
    int switchWidth = 38;
    int switchHeight = 22;
    int stepperSize = 26;
    int formStepperSize = 36;
    int menuHeight = 30;
    int menuRowHeight = 28;
    int fieldHeight = 36;
    int popoverFieldHeight = 28;
    int editorFieldHeight = 34;
    int formFieldHeight = 40;
    int figureFieldHeight = 44;
    int welcomeFieldHeight = 48;
    int searchFieldHeight = 32;
    int fieldPadding = 12;
    int sliderHeight = 24;
    int sliderTrackHeight = 4;
    int sliderKnobSize = 18;
    int barStatHeight = 4;
    int barTableHeight = 5;
    int barReviewHeight = 6;
    int columnWidth = 22; ///< of a chart
    int columnHeight = 112;
    int swatchSize = 18;
    int swatchCellSize = 24;
    int scrollbarWidth = 5;
    int scrollbarInset = 4;
    int edgeFadeLength = 36;
    int edgeFadeTop = 12; ///< under a title strip
    int stripHeight = 36;
    int stripButtonSize = 24;
    int navRowHeight = 38;
    int pageDotSize = 6;
    int pagerButtonSize = 32;
    int pointDiscSize = 44; ///< behind a high point's icon
    int personaDiscSize = 132;
    int posterWidth = 264; ///< of the poster on the review's last card
    int popoverWidth = 284;
    int commandCenterWidth = 360;
    int backfillChipWidth = 40;
    int capsuleInset = 18;     ///< from the left and the right
    int capsuleRowHeight = 58; ///< dot, skill line, clock, round chip
    int capsuleChipSize = 26;  ///< the round one
    int capsuleAddRowHeight = 44;
    int cardWidth = 380; ///< corner cards and alerts
    int cardRight = 12;  ///< from the right edge of the available area
    int cardTop = 10;
    int panelEdge = 8;    ///< between the command center and the available area's edges
    int panelItemGap = 4; ///< between it and the tray item
    int panelCorner = 12; ///< from the right edge, where the item's place is unknown
};

struct Depth {
    Shadow shadowWindow{24, 64, 0.50, 4, 14, 0.34};
    Shadow shadowFloating{18, 48, 0.45, 2, 8, 0.30};
    Shadow shadowPopover{16, 40, 0.50};
    Shadow shadowToast{10, 28, 0.40};
    Shadow shadowCapsule{10, 30, 0.45};
};

/// Springs and durations. With reduced motion durations are 0 except those of fades.
struct Movement {
    Spring springCapsule{195, 22.3};
    Spring springPage{273.4, 27.1};
    Spring springCascade{223.8, 23.9};
    Spring springSlam{385.5, 28.3};
    Spring springPop{380, 16};
    Spring springGrow{157.9, 20.1};
    int pageSlide = 56;   ///< px
    int cascadeRise = 14; ///< px
    int cascadeDelay = 50;
    int cascadeStep = 75;
    double slamFrom = 1.12; ///< scale
    double popFrom = 0.4;   ///< scale
    int popStep = 70;
    int growStep = 60;
    int hoverTime = 120;
    int helpDelay = 600; ///< until a tooltip appears
    int pressTime = 80;
    int switchTime = 160;
    int segmentTime = 180;
    int cardInTime = 180;
    int cardOutTime = 140;
    int cardRise = 6;      ///< px, downwards
    int toastInTime = 220; ///< plays with reduced motion too
    int toastOutTime = 350;
    int toastMoveTime = 180;
    int capsuleCloseTime = 220;
    int capsuleRowTime = 300;
    int capsuleRowDelay = 100;
    int capsuleRowOutTime = 140;
    int clockDotTime = 1100; ///< each way; only while Motion.reduced is false
    double clockDotOpacity = 0.45;
    double clockDotScale = 0.7;
    int invitationTime = 1100; ///< each way; a steady halo with reduced motion
    int invitationHalo = 4;    ///< px
    double invitationHaloOpacity = 0.16;
    int invitationGlow = 22; ///< px
    double invitationGlowOpacity = 0.30;
    int pulseOnTime = 300;
    int pulseOffTime = 450;
    double pulseScale = 1.025;
    int pulseGlow = 24; ///< px
    double pulseGlowOpacity = 0.5;
    int tileTime = 600;
    int tileDelay = 200;
    int tileStep = 50;
    int countUpTime = 800;
    int typingStep = 50;   ///< between letters of a revealed name
    int burstTime = 900;   ///< of the dots flying from a centre
    int burstHold = 1000;  ///< until they are freed
    int ambientStep = 100; ///< between changes of the background dots
    int stageFadeTime = 200;
    int crossFadeTime = 120; ///< replaces movement of pages and cards
    int scrollbarHold = 800;
    int scrollbarFadeTime = 200; ///< plays with reduced motion too
};

inline constexpr Palette kDark;
inline constexpr TypeScale kType;
inline constexpr Lengths kLengths;
inline constexpr Depth kDepth;
inline constexpr Movement kMovement;

} // namespace vantle::look

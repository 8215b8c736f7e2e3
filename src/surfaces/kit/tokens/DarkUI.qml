// The tokens of the dark look: colours, type, space, shape, depth and motion. No view has a number
// or a colour of its own for any of these. Lengths are device-independent pixels, times
// milliseconds, tracking em.
//
// Chrome is white at low opacity. Only worked time gives light: dots, tiles, bars, a skill's
// colour. The accent marks the one main action and the keyboard focus, nothing else.
pragma Singleton
import QtQuick
import Vantle.Kit

QtObject {
    // --- Grounds ---------------------------------------------------------------------------------
    readonly property color windowGround: "#0A0A0F"
    readonly property color ink: windowGround // text on the accent and on full skill colours
    readonly property color cardFill: Qt.rgba(1, 1, 1, 0.06)
    readonly property color hairline: Qt.rgba(1, 1, 1, 0.08)
    readonly property color windowEdge: Qt.rgba(1, 1, 1, 0.09) // outside the window's ground
    readonly property color capsuleGround: "#000000"
    readonly property color capsuleEdge: Qt.rgba(1, 1, 1, 0.06) // along the inside of its bottom
    readonly property color menuGround: "#17171D"
    readonly property color floatingGround: Qt.rgba(10 / 255, 10 / 255, 15 / 255, 0.96)
    readonly property color popoverGround: Qt.rgba(10 / 255, 10 / 255, 15 / 255, 0.97)
    readonly property color glassGround: Qt.rgba(10 / 255, 10 / 255, 15 / 255, 0.82)

    // --- Fills: rest, hover, pressed -------------------------------------------------------------
    readonly property color fill: cardFill
    readonly property color fillHover: Qt.rgba(1, 1, 1, 0.10)
    readonly property color fillPressed: Qt.rgba(1, 1, 1, 0.14)
    readonly property color fillDisabled: Qt.rgba(1, 1, 1, 0.08)
    readonly property color clear: Qt.rgba(1, 1, 1, 0)
    readonly property color quietHover: Qt.rgba(1, 1, 1, 0.08) // icon buttons, menu rows
    readonly property color navHover: cardFill // rows that lead somewhere
    readonly property color rowHover: Qt.rgba(1, 1, 1, 0.05) // rows of a list
    readonly property color stripHover: Qt.rgba(1, 1, 1, 0.10) // the window's two round buttons
    readonly property color stepperFill: Qt.rgba(1, 1, 1, 0.08)
    readonly property color segmentFill: Qt.rgba(1, 1, 1, 0.14)
    readonly property color barTrough: Qt.rgba(1, 1, 1, 0.08) // of bars
    readonly property color sliderTrack: Qt.rgba(1, 1, 1, 0.10)
    readonly property color scrollbarThumb: Qt.rgba(1, 1, 1, 0.16)
    readonly property color fieldFill: Qt.rgba(1, 1, 1, 0.05)
    readonly property color fieldFillFocused: Qt.rgba(1, 1, 1, 0.07)
    readonly property color keycapEdge: Qt.rgba(1, 1, 1, 0.12)
    readonly property color switchTrack: Qt.rgba(1, 1, 1, 0.14)
    readonly property color switchEdge: Qt.rgba(1, 1, 1, 0.40)
    readonly property color switchKnob: Qt.rgba(1, 1, 1, 0.92)
    readonly property color knobFill: "#FFFFFF" // of a switch that is on, of a slider
    readonly property color pageDot: Qt.rgba(1, 1, 1, 0.22)
    readonly property color pageDotCurrent: Qt.rgba(1, 1, 1, 0.92)
    readonly property color chosenRing: Qt.rgba(1, 1, 1, 0.95) // around the chosen swatch

    // --- Text and icons --------------------------------------------------------------------------
    readonly property color textPrimary: Qt.rgba(1, 1, 1, 0.95) // what is read
    readonly property color textSecondary: Qt.rgba(1, 1, 1, 0.68) // what goes with it
    readonly property color textTertiary: Qt.rgba(1, 1, 1, 0.54) // what may be passed over
    readonly property color textDisabled: Qt.rgba(1, 1, 1, 0.32) // disabled and separators only
    readonly property color textCaption: Qt.rgba(1, 1, 1, 0.62) // captions of settings
    readonly property color textWeekday: Qt.rgba(1, 1, 1, 0.55) // letters and months of a calendar
    readonly property color textWeekdayFuture: Qt.rgba(1, 1, 1, 0.30) // of days to come
    readonly property color textCapsuleName: Qt.rgba(1, 1, 1, 0.62)
    readonly property color textChip: Qt.rgba(1, 1, 1, 0.90)
    readonly property color iconQuiet: Qt.rgba(1, 1, 1, 0.54)
    readonly property color iconStrip: Qt.rgba(1, 1, 1, 0.62)
    readonly property color iconPrimary: Qt.rgba(1, 1, 1, 0.80)
    readonly property color iconDisabled: Qt.rgba(1, 1, 1, 0.30)

    // --- Accents ---------------------------------------------------------------------------------
    readonly property color accent: "#7A78FF"
    readonly property color accentHover: "#8E8CFF"
    readonly property color accentPressed: "#706EEE"
    readonly property color accentText: "#A3A1FF"
    readonly property color accentTextOnTint: "#B4B2FF"
    readonly property color focusRing: accentText
    readonly property color caret: accentText
    readonly property color danger: "#FF6482"
    readonly property color dangerText: "#FF8BA2" // on base
    readonly property color dangerTextOnFill: "#FF9BAE"
    readonly property color warning: "#FF9F0A"
    readonly property color good: "#30D158"
    readonly property color barToday: "#FF375F"
    readonly property color barWeek: accent
    readonly property color barAllTime: "#64D2FF"

    // Opacities of a colour: give them to Tint.alpha().
    readonly property real dangerFillOpacity: 0.16
    readonly property real dangerFillHoverOpacity: 0.24
    readonly property real dangerFillPressedOpacity: 0.32
    readonly property real dangerEdgeOpacity: 0.42
    readonly property real tintFillOpacity: 0.18 // of a selected chip
    readonly property real tintFillHoverOpacity: 0.26
    readonly property real tintFillPressedOpacity: 0.32
    readonly property real popoverCommitOpacity: 0.60
    readonly property real popoverCommitPressedOpacity: 0.95
    readonly property real popoverCommitDisabledOpacity: 0.24
    readonly property real bannerFillOpacity: 0.10
    readonly property real bannerEdgeOpacity: 0.30
    readonly property real wrappedFillOpacity: 0.14 // of the row of a review that waits
    readonly property real wrappedEdgeOpacity: 0.34
    readonly property real pointTintOpacity: 0.14 // of the disc of a high point
    readonly property real columnRestOpacity: 0.62 // of the columns of a chart beside its highest
    readonly property real pausedOpacity: 0.78 // of the wide button while time is paused
    readonly property real disabledOpacity: 0.45 // of a whole chip, switch or slider

    // --- Type ------------------------------------------------------------------------------------
    readonly property TypeRole heroReview: DisplayRole { size: 116; line: 100; tracking: -0.020 }
    readonly property TypeRole heroPoster: DisplayRole { size: 84; line: 72; tracking: -0.020 }
    readonly property TypeRole nameReview: DisplayRole { size: 52; line: 58; tracking: -0.028 }
    readonly property TypeRole namePoster: DisplayRole { size: 42; line: 48; tracking: -0.026 }
    readonly property TypeRole duration: DisplayRole { size: 40; line: 46; tracking: -0.015 }
    readonly property TypeRole statValue: DisplayRole { size: 32; line: 36; tracking: -0.014 }
    readonly property TypeRole statUnit: TypeRole { size: 14; line: 20; weight: Font.Medium }
    readonly property TypeRole quotation: DisplayRole {
        size: 30; line: 41; weight: Font.Medium; tracking: -0.016
    }
    readonly property TypeRole titleXL: DisplayRole { size: 28; line: 34; tracking: -0.018 }
    readonly property TypeRole titleL: DisplayRole { size: 24; line: 30; tracking: -0.014 }
    readonly property TypeRole capsuleClock: DisplayRole { size: 23; line: 28; tracking: -0.010 }
    readonly property TypeRole titleM: DisplayRole { size: 20; line: 28; tracking: -0.012 }
    // a sentence of its own as a title
    readonly property TypeRole titleMWide: DisplayRole { size: 22; line: 28; tracking: -0.012 }
    // what leads up to a hero figure, and what follows it
    readonly property TypeRole titleMQuiet: DisplayRole {
        size: 20; line: 28; weight: Font.Medium; tracking: -0.012
    }
    readonly property TypeRole cardTitle: DisplayRole { size: 17; line: 22; tracking: -0.010 }
    readonly property TypeRole cardTitleQuiet: DisplayRole {
        size: 17; line: 22; weight: Font.Medium; tracking: -0.010
    }
    readonly property TypeRole panelTitle: DisplayRole { size: 15; line: 20; tracking: -0.010 }
    readonly property TypeRole lead: TypeRole { size: 15; line: 23 }
    // on the wide primary button
    readonly property TypeRole leadButton: TypeRole { size: 15; line: 20; weight: Font.DemiBold }
    readonly property TypeRole note: TypeRole { size: 14; line: 20 }
    readonly property TypeRole body: TypeRole { size: 13; line: 20 }
    // rows, secondary buttons
    readonly property TypeRole bodyMedium: TypeRole { size: 13; line: 20; weight: Font.Medium }
    // primary buttons, headings of cards
    readonly property TypeRole bodyStrong: TypeRole { size: 13; line: 20; weight: Font.DemiBold }
    readonly property TypeRole caption: TypeRole { size: 12; line: 17 }
    // labels, menus, large chips
    readonly property TypeRole captionMedium: TypeRole { size: 12; line: 17; weight: Font.Medium }
    // day headings
    readonly property TypeRole captionStrong: TypeRole { size: 12; line: 17; weight: Font.DemiBold }
    readonly property TypeRole small: TypeRole { size: 11; line: 15 }
    // chips
    readonly property TypeRole smallMedium: TypeRole { size: 11; line: 15; weight: Font.Medium }
    readonly property TypeRole kicker: TypeRole {
        size: 11; line: 14; weight: Font.DemiBold; tracking: 0.080
    }
    readonly property TypeRole sectionLabel: TypeRole {
        size: 11; line: 14; weight: Font.DemiBold; tracking: 0.080; capitals: true
    }
    readonly property TypeRole capsuleSkill: TypeRole { size: 10; line: 13; tracking: 0.09 }
    readonly property real heroUnitScale: 0.36 // of a hero figure's size

    // --- Space -----------------------------------------------------------------------------------
    readonly property int space2: 2
    readonly property int space4: 4
    readonly property int space6: 6
    readonly property int space8: 8 // between a label and its control
    readonly property int space10: 10
    readonly property int space12: 12 // within a group
    readonly property int space14: 14
    readonly property int space16: 16
    readonly property int space18: 18 // above the content of the command center
    readonly property int space20: 20 // between groups
    readonly property int space24: 24
    readonly property int space28: 28
    readonly property int space32: 32 // beside the picker of the review
    readonly property int space36: 36
    readonly property int space44: 44
    readonly property int space64: 64

    // --- Shape -----------------------------------------------------------------------------------
    readonly property real radiusYearTile: 2.8
    readonly property int radiusTiny: 2 // the tip of an arrow, the sign of a stop
    readonly property int radiusBar: 3
    readonly property int radiusTag: 4
    readonly property int radiusKeycap: 6
    readonly property int radiusMenuRow: 6
    readonly property int radiusColumn: 6 // of a chart
    readonly property int radiusSegment: 7
    readonly property int radiusSmall: 8 // icon buttons, steppers, menus
    readonly property int radiusButton: 9 // and fields
    readonly property int radiusBanner: 10 // and hovered rows
    readonly property int radiusTile: 11
    readonly property int radiusCard: 12
    readonly property int radiusWindow: 14 // and popovers, and the wide primary button
    readonly property int radiusFloating: 18 // capsule, floating cards and panels

    readonly property int hairlineWidth: 1
    readonly property int focusWidth: 2
    readonly property int focusGap: 2 // clear space between a control and its ring
    readonly property int focusRadiusGain: 3 // more than the control's own
    readonly property real fieldEdgeWidth: 1.5 // of a focused field, or of one that is wrong
    readonly property real caretWidth: 1.5

    // --- Sizes of controls -----------------------------------------------------------------------
    readonly property int buttonHeight: 32
    readonly property int buttonPadding: 14
    readonly property int formButtonHeight: 36
    readonly property int formButtonPadding: 18
    readonly property int wideButtonHeight: 52
    readonly property int popoverButtonHeight: 26
    readonly property int iconButtonSize: 26
    readonly property int closeButtonSize: 22 // the round one of corner cards
    readonly property int iconSize: 16
    readonly property int iconMedium: 14
    readonly property int iconSmall: 12
    readonly property int iconTiny: 10 // in chips
    readonly property int keycapHeight: 20
    readonly property int chipHeight: 24
    readonly property int largeChipHeight: 28
    readonly property int summaryDotSize: 11 // of a part of an hour
    readonly property int chipGap: 6
    readonly property int chipDotSize: 7 // also the flat dot of labels
    readonly property int switchWidth: 38
    readonly property int switchHeight: 22
    readonly property int stepperSize: 26
    readonly property int formStepperSize: 36
    readonly property int menuHeight: 30
    readonly property int menuRowHeight: 28
    readonly property int fieldHeight: 36
    readonly property int popoverFieldHeight: 28
    readonly property int editorFieldHeight: 34
    readonly property int formFieldHeight: 40
    readonly property int figureFieldHeight: 44
    readonly property int welcomeFieldHeight: 48
    readonly property int searchFieldHeight: 32
    readonly property int fieldPadding: 12
    readonly property int sliderHeight: 24
    readonly property int sliderTrackHeight: 4
    readonly property int sliderKnobSize: 18
    readonly property int barStatHeight: 4
    readonly property int barTableHeight: 5
    readonly property int barReviewHeight: 6
    readonly property int columnWidth: 22 // of a chart
    readonly property int columnHeight: 112
    readonly property int swatchSize: 18
    readonly property int swatchCellSize: 24
    readonly property int scrollbarWidth: 5
    readonly property int scrollbarInset: 4
    readonly property int edgeFadeLength: 36
    readonly property int stripHeight: 36
    readonly property int stripButtonSize: 24
    readonly property int navRowHeight: 38
    readonly property int pageDotSize: 6
    readonly property int pagerButtonSize: 32
    readonly property int pointDiscSize: 44 // behind the icon of a high point
    readonly property int personaDiscSize: 132
    readonly property int posterWidth: 264 // of the poster in the last card of the review
    readonly property int popoverWidth: 284
    readonly property int commandCenterWidth: 360
    readonly property int backfillChipWidth: 40
    readonly property int cardWidth: 380 // corner cards and alerts
    readonly property int cardRight: 12 // from the right edge of the screen's free area
    readonly property int cardTop: 10

    // --- Depth -----------------------------------------------------------------------------------
    readonly property ShadowToken shadowWindow: ShadowToken {
        offset: 24; blur: 64; strength: 0.50
        tightOffset: 4; tightBlur: 14; tightStrength: 0.34
    }
    readonly property ShadowToken shadowFloating: ShadowToken {
        offset: 18; blur: 48; strength: 0.45
        tightOffset: 2; tightBlur: 8; tightStrength: 0.30
    }
    readonly property ShadowToken shadowPopover: ShadowToken {
        offset: 16; blur: 40; strength: 0.50
    }
    readonly property ShadowToken shadowToast: ShadowToken {
        offset: 10; blur: 28; strength: 0.40
    }
    readonly property ShadowToken shadowCapsule: ShadowToken {
        offset: 10; blur: 30; strength: 0.45
    }

    // --- Motion ----------------------------------------------------------------------------------
    readonly property SpringToken springCapsule: SpringToken { stiffness: 195; damping: 22.3 }
    readonly property SpringToken springPage: SpringToken { stiffness: 273.4; damping: 27.1 }
    readonly property SpringToken springCascade: SpringToken { stiffness: 223.8; damping: 23.9 }
    readonly property SpringToken springSlam: SpringToken { stiffness: 385.5; damping: 28.3 }
    readonly property SpringToken springPop: SpringToken { stiffness: 380; damping: 16 }
    readonly property SpringToken springGrow: SpringToken { stiffness: 157.9; damping: 20.1 }
    readonly property int pageSlide: 56 // px
    readonly property int cascadeRise: 14 // px
    readonly property int cascadeDelay: 50 * Motion.pace
    readonly property int cascadeStep: 75 * Motion.pace
    readonly property real slamFrom: 1.12 // scale
    readonly property real popFrom: 0.4 // scale
    readonly property int popStep: 70 * Motion.pace
    readonly property int growStep: 60 * Motion.pace

    // With reduced motion all times are 0 but those of plain fades, which say so.
    readonly property int hoverTime: 120 * Motion.pace
    readonly property int helpDelay: 600 // until a resting pointer is told what a control does
    readonly property int pressTime: 80 * Motion.pace
    readonly property int switchTime: 160 * Motion.pace
    readonly property int segmentTime: 180 * Motion.pace
    readonly property int cardInTime: Motion.reduced ? crossFadeTime : 180
    readonly property int cardOutTime: Motion.reduced ? crossFadeTime : 140
    readonly property int cardRise: Motion.reduced ? 0 : 6 // px, downwards
    readonly property int toastInTime: 220 // fades in any case
    readonly property int toastOutTime: 350
    readonly property int toastMoveTime: 180 * Motion.pace
    readonly property int capsuleCloseTime: 220 * Motion.pace
    readonly property int capsuleRowTime: 300 * Motion.pace
    readonly property int capsuleRowDelay: 100 * Motion.pace
    readonly property int capsuleRowOutTime: 140 * Motion.pace
    readonly property int clockDotTime: 1100 // each way; runs only while Motion.reduced is false
    readonly property real clockDotOpacity: 0.45
    readonly property real clockDotScale: 0.7
    readonly property int invitationTime: 1100 // each way; a steady halo with reduced motion
    readonly property int invitationHalo: 4 // px
    readonly property real invitationHaloOpacity: 0.16
    readonly property int invitationGlow: 22 // px
    readonly property real invitationGlowOpacity: 0.30
    readonly property int pulseOnTime: 300 * Motion.pace
    readonly property int pulseOffTime: 450 * Motion.pace
    readonly property real pulseScale: 1.025
    readonly property int pulseGlow: 24 // px
    readonly property real pulseGlowOpacity: 0.5
    readonly property int tileTime: 600 * Motion.pace
    readonly property int tileDelay: 200 * Motion.pace
    readonly property int tileStep: 50 * Motion.pace
    readonly property int countUpTime: 800 * Motion.pace
    readonly property int typingStep: 50 // between two letters of a name that is revealed
    readonly property int burstTime: 900 // of the dots that fly from a centre
    readonly property int burstHold: 1000 // until nothing is kept of them
    readonly property int ambientStep: 100 // the dots behind the review's pages change that slowly
    readonly property int stageFadeTime: Motion.reduced ? crossFadeTime : 200
    readonly property int crossFadeTime: 120 // what pages and cards do instead of moving
    readonly property int scrollbarHold: 800
    readonly property int scrollbarFadeTime: 200 // fades in any case
}

// The design tokens for views, with the values of Look.h.
#pragma once

#include "surfaces/kit/tokens/Look.h"
#include "surfaces/kit/tokens/TypeRole.h"

#include <QColor>
#include <QList>
#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <algorithm>

class QJSEngine;
class QQmlEngine;

namespace vantle {

class Motion;

/// A spring of unit mass.
class SpringToken : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("one of DarkUI")
    Q_PROPERTY(double stiffness READ stiffness CONSTANT)
    Q_PROPERTY(double damping READ damping CONSTANT)

public:
    SpringToken(const Spring& spring, QObject* parent) : QObject(parent), m_spring(spring) {}
    [[nodiscard]] double stiffness() const { return m_spring.stiffness; }
    [[nodiscard]] double damping() const { return m_spring.damping; }

private:
    Spring m_spring;
};

/// The shadow of a level.
class ShadowToken : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("one of DarkUI")
    Q_PROPERTY(double offset READ offset CONSTANT)
    Q_PROPERTY(double blur READ blur CONSTANT)
    Q_PROPERTY(double strength READ strength CONSTANT)
    Q_PROPERTY(double tightOffset READ tightOffset CONSTANT)
    Q_PROPERTY(double tightBlur READ tightBlur CONSTANT)
    Q_PROPERTY(double tightStrength READ tightStrength CONSTANT)

public:
    ShadowToken(const look::Shadow& shadow, QObject* parent) : QObject(parent), m_shadow(shadow) {}
    [[nodiscard]] double offset() const { return m_shadow.offset; }
    [[nodiscard]] double blur() const { return m_shadow.blur; }
    [[nodiscard]] double strength() const { return m_shadow.strength; }
    [[nodiscard]] double tightOffset() const { return m_shadow.tightOffset; }
    [[nodiscard]] double tightBlur() const { return m_shadow.tightBlur; }
    [[nodiscard]] double tightStrength() const { return m_shadow.tightStrength; }

private:
    look::Shadow m_shadow;
};

// One property of DarkUI per token, by kind.
#define LOOK_COLOR(name)                                                                           \
    Q_PROPERTY(QColor name READ name NOTIFY paletteChanged)                                        \
public:                                                                                            \
    [[nodiscard]] QColor name() const { return m_palette.name.color(); }
#define LOOK_OPACITY(name)                                                                         \
    Q_PROPERTY(double name READ name NOTIFY paletteChanged)                                        \
public:                                                                                            \
    [[nodiscard]] double name() const { return m_palette.name; }
#define LOOK_ROLE(name)                                                                            \
    Q_PROPERTY(vantle::TypeRole* name READ name CONSTANT)                                          \
public:                                                                                            \
    [[nodiscard]] TypeRole* name() { return grown(made(m_##name, look::kType.name)); }             \
                                                                                                   \
private:                                                                                           \
    TypeRole* m_##name = nullptr;
// A role with measured places: its size is fixed.
#define LOOK_FIXED_ROLE(name)                                                                      \
    Q_PROPERTY(vantle::TypeRole* name READ name CONSTANT)                                          \
public:                                                                                            \
    [[nodiscard]] TypeRole* name() { return made(m_##name, look::kType.name); }                    \
                                                                                                   \
private:                                                                                           \
    TypeRole* m_##name = nullptr;
#define LOOK_SHADOW(name)                                                                          \
    Q_PROPERTY(vantle::ShadowToken* name READ name CONSTANT)                                       \
public:                                                                                            \
    [[nodiscard]] ShadowToken* name() { return made(m_##name, look::kDepth.name); }                \
                                                                                                   \
private:                                                                                           \
    ShadowToken* m_##name = nullptr;
#define LOOK_SPRING(name)                                                                          \
    Q_PROPERTY(vantle::SpringToken* name READ name CONSTANT)                                       \
public:                                                                                            \
    [[nodiscard]] SpringToken* name() { return made(m_##name, look::kMovement.name); }             \
                                                                                                   \
private:                                                                                           \
    SpringToken* m_##name = nullptr;
#define LOOK_LENGTH(name)                                                                          \
    Q_PROPERTY(int name READ name CONSTANT)                                                        \
public:                                                                                            \
    [[nodiscard]] static int name() { return look::kLengths.name; }
// A length that holds a line of text and scales with it.
#define LOOK_TEXT_LENGTH(name)                                                                     \
    Q_PROPERTY(int name READ name NOTIFY textScaleChanged)                                         \
public:                                                                                            \
    [[nodiscard]] int name() const { return forText(look::kLengths.name); }
#define LOOK_FINE_LENGTH(name)                                                                     \
    Q_PROPERTY(double name READ name CONSTANT)                                                     \
public:                                                                                            \
    [[nodiscard]] static double name() { return look::kLengths.name; }
// The duration of a movement, 0 with reduced motion.
#define LOOK_TIME(name)                                                                            \
    Q_PROPERTY(int name READ name NOTIFY reducedChanged)                                           \
public:                                                                                            \
    [[nodiscard]] int name() const { return inMotion(look::kMovement.name, 0); }
// The duration of a fade, which also plays with reduced motion.
#define LOOK_FADE(name)                                                                            \
    Q_PROPERTY(int name READ name NOTIFY reducedChanged)                                           \
public:                                                                                            \
    [[nodiscard]] int name() const {                                                               \
        return inMotion(look::kMovement.name, look::kMovement.crossFadeTime);                      \
    }
#define LOOK_STEADY(name)                                                                          \
    Q_PROPERTY(int name READ name CONSTANT)                                                        \
public:                                                                                            \
    [[nodiscard]] static int name() { return look::kMovement.name; }
#define LOOK_FACTOR(name)                                                                          \
    Q_PROPERTY(double name READ name CONSTANT)                                                     \
public:                                                                                            \
    [[nodiscard]] static double name() { return look::kMovement.name; }

/// One per QML engine. Main thread.
class DarkUI : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    // clang-format off
    LOOK_COLOR(windowGround) LOOK_COLOR(ink) LOOK_COLOR(cardFill) LOOK_COLOR(hairline)
    LOOK_COLOR(windowEdge) LOOK_COLOR(capsuleGround) LOOK_COLOR(capsuleEdge)
    LOOK_COLOR(menuGround) LOOK_COLOR(floatingGround) LOOK_COLOR(popoverGround)
    LOOK_COLOR(glassGround) LOOK_COLOR(fill) LOOK_COLOR(fillHover) LOOK_COLOR(fillPressed)
    LOOK_COLOR(fillDisabled) LOOK_COLOR(clear) LOOK_COLOR(quietHover) LOOK_COLOR(navHover)
    LOOK_COLOR(rowHover) LOOK_COLOR(stripHover) LOOK_COLOR(stepperFill) LOOK_COLOR(segmentFill)
    LOOK_COLOR(barTrough) LOOK_COLOR(sliderTrack) LOOK_COLOR(scrollbarThumb) LOOK_COLOR(fieldFill)
    LOOK_COLOR(fieldFillFocused) LOOK_COLOR(keycapEdge) LOOK_COLOR(switchTrack)
    LOOK_COLOR(switchEdge) LOOK_COLOR(switchKnob) LOOK_COLOR(knobFill) LOOK_COLOR(pageDot)
    LOOK_COLOR(pageDotCurrent) LOOK_COLOR(chosenRing) LOOK_COLOR(textPrimary)
    LOOK_COLOR(textSecondary) LOOK_COLOR(textTertiary) LOOK_COLOR(textDisabled)
    LOOK_COLOR(textCaption) LOOK_COLOR(textWeekday) LOOK_COLOR(textWeekdayFuture)
    LOOK_COLOR(textCapsuleName) LOOK_COLOR(textCapsulePaused) LOOK_COLOR(textChip)
    LOOK_COLOR(iconQuiet) LOOK_COLOR(iconStrip)
    LOOK_COLOR(iconPrimary) LOOK_COLOR(iconDisabled) LOOK_COLOR(accent) LOOK_COLOR(accentHover)
    LOOK_COLOR(accentPressed) LOOK_COLOR(accentText) LOOK_COLOR(accentTextOnTint)
    LOOK_COLOR(focusRing) LOOK_COLOR(caret) LOOK_COLOR(danger) LOOK_COLOR(dangerText)
    LOOK_COLOR(dangerTextOnFill) LOOK_COLOR(warning) LOOK_COLOR(good) LOOK_COLOR(barToday)
    LOOK_COLOR(barWeek) LOOK_COLOR(barAllTime)
    LOOK_OPACITY(dangerFillOpacity) LOOK_OPACITY(dangerFillHoverOpacity)
    LOOK_OPACITY(dangerFillPressedOpacity) LOOK_OPACITY(dangerEdgeOpacity)
    LOOK_OPACITY(tintFillOpacity) LOOK_OPACITY(tintFillHoverOpacity)
    LOOK_OPACITY(tintFillPressedOpacity) LOOK_OPACITY(popoverCommitOpacity)
    LOOK_OPACITY(popoverCommitPressedOpacity) LOOK_OPACITY(popoverCommitDisabledOpacity)
    LOOK_OPACITY(bannerFillOpacity) LOOK_OPACITY(bannerEdgeOpacity)
    LOOK_OPACITY(wrappedFillOpacity) LOOK_OPACITY(wrappedEdgeOpacity)
    LOOK_OPACITY(pointTintOpacity) LOOK_OPACITY(columnRestOpacity) LOOK_OPACITY(pausedOpacity)
    LOOK_OPACITY(disabledOpacity)
    LOOK_ROLE(heroReview) LOOK_FIXED_ROLE(heroPoster) LOOK_ROLE(nameReview)
    LOOK_FIXED_ROLE(namePoster)
    LOOK_ROLE(duration) LOOK_ROLE(statValue) LOOK_ROLE(statUnit) LOOK_ROLE(quotation)
    LOOK_ROLE(titleXL) LOOK_ROLE(titleL) LOOK_FIXED_ROLE(capsuleClock) LOOK_ROLE(titleM)
    LOOK_ROLE(titleMWide) LOOK_ROLE(titleMQuiet) LOOK_ROLE(cardTitle) LOOK_ROLE(cardTitleQuiet)
    LOOK_ROLE(panelTitle) LOOK_ROLE(lead) LOOK_ROLE(leadButton) LOOK_ROLE(note) LOOK_ROLE(body)
    LOOK_ROLE(bodyMedium) LOOK_ROLE(bodyStrong) LOOK_ROLE(caption) LOOK_ROLE(captionMedium)
    LOOK_ROLE(captionStrong) LOOK_ROLE(small) LOOK_ROLE(smallMedium) LOOK_ROLE(kicker)
    LOOK_ROLE(sectionLabel) LOOK_ROLE(keycap) LOOK_FIXED_ROLE(capsuleSkill)
    LOOK_FIXED_ROLE(capsuleChip)
    LOOK_LENGTH(space2) LOOK_LENGTH(space4) LOOK_LENGTH(space6) LOOK_LENGTH(space8)
    LOOK_LENGTH(space10) LOOK_LENGTH(space12) LOOK_LENGTH(space14) LOOK_LENGTH(space16)
    LOOK_LENGTH(space18) LOOK_LENGTH(space20) LOOK_LENGTH(space24) LOOK_LENGTH(space28)
    LOOK_LENGTH(space32) LOOK_LENGTH(space36) LOOK_LENGTH(space44) LOOK_LENGTH(space64)
    LOOK_LENGTH(radiusTiny) LOOK_LENGTH(radiusBar) LOOK_LENGTH(radiusTag)
    LOOK_LENGTH(radiusKeycap) LOOK_LENGTH(radiusMenuRow) LOOK_LENGTH(radiusColumn)
    LOOK_LENGTH(radiusSegment) LOOK_LENGTH(radiusSmall) LOOK_LENGTH(radiusButton)
    LOOK_LENGTH(radiusBanner) LOOK_LENGTH(radiusTile) LOOK_LENGTH(radiusCard)
    LOOK_LENGTH(radiusWindow) LOOK_LENGTH(radiusFloating) LOOK_LENGTH(hairlineWidth)
    LOOK_LENGTH(focusWidth) LOOK_LENGTH(focusGap) LOOK_LENGTH(focusRadiusGain)
    LOOK_TEXT_LENGTH(buttonHeight) LOOK_LENGTH(buttonPadding) LOOK_TEXT_LENGTH(formButtonHeight)
    LOOK_LENGTH(formButtonPadding) LOOK_TEXT_LENGTH(wideButtonHeight)
    LOOK_TEXT_LENGTH(popoverButtonHeight)
    LOOK_LENGTH(iconButtonSize) LOOK_LENGTH(closeButtonSize) LOOK_LENGTH(iconSize)
    LOOK_LENGTH(iconMedium) LOOK_LENGTH(iconSmall) LOOK_LENGTH(iconTiny)
    LOOK_TEXT_LENGTH(keycapHeight)
    LOOK_TEXT_LENGTH(chipHeight) LOOK_TEXT_LENGTH(largeChipHeight) LOOK_LENGTH(summaryDotSize)
    LOOK_LENGTH(chipGap) LOOK_LENGTH(chipDotSize) LOOK_LENGTH(switchWidth)
    LOOK_LENGTH(switchHeight) LOOK_LENGTH(stepperSize) LOOK_LENGTH(formStepperSize)
    LOOK_TEXT_LENGTH(menuHeight) LOOK_TEXT_LENGTH(menuRowHeight) LOOK_TEXT_LENGTH(fieldHeight)
    LOOK_TEXT_LENGTH(popoverFieldHeight) LOOK_TEXT_LENGTH(editorFieldHeight)
    LOOK_TEXT_LENGTH(formFieldHeight)
    LOOK_TEXT_LENGTH(figureFieldHeight) LOOK_TEXT_LENGTH(welcomeFieldHeight)
    LOOK_TEXT_LENGTH(searchFieldHeight)
    LOOK_LENGTH(fieldPadding) LOOK_LENGTH(sliderHeight) LOOK_LENGTH(sliderTrackHeight)
    LOOK_LENGTH(sliderKnobSize) LOOK_LENGTH(barStatHeight) LOOK_LENGTH(barTableHeight)
    LOOK_LENGTH(barReviewHeight) LOOK_LENGTH(columnWidth) LOOK_LENGTH(columnHeight)
    LOOK_LENGTH(swatchSize) LOOK_LENGTH(swatchCellSize) LOOK_LENGTH(scrollbarWidth)
    LOOK_LENGTH(scrollbarInset) LOOK_LENGTH(edgeFadeLength) LOOK_LENGTH(edgeFadeTop)
    LOOK_LENGTH(stripHeight)
    LOOK_LENGTH(stripButtonSize) LOOK_TEXT_LENGTH(navRowHeight) LOOK_LENGTH(pageDotSize)
    LOOK_LENGTH(pagerButtonSize) LOOK_LENGTH(pointDiscSize) LOOK_LENGTH(personaDiscSize)
    LOOK_LENGTH(capsuleInset) LOOK_LENGTH(capsuleRowHeight)
    LOOK_LENGTH(capsuleChipSize) LOOK_LENGTH(capsuleAddRowHeight)
    LOOK_LENGTH(posterWidth) LOOK_LENGTH(popoverWidth) LOOK_TEXT_LENGTH(commandCenterWidth)
    LOOK_TEXT_LENGTH(backfillChipWidth) LOOK_LENGTH(cardWidth) LOOK_LENGTH(cardRight)
    LOOK_LENGTH(cardTop)
    LOOK_FINE_LENGTH(radiusYearTile) LOOK_FINE_LENGTH(fieldEdgeWidth) LOOK_FINE_LENGTH(caretWidth)
    LOOK_SHADOW(shadowWindow) LOOK_SHADOW(shadowFloating) LOOK_SHADOW(shadowPopover)
    LOOK_SHADOW(shadowToast) LOOK_SHADOW(shadowCapsule)
    LOOK_SPRING(springCapsule) LOOK_SPRING(springPage) LOOK_SPRING(springCascade)
    LOOK_SPRING(springSlam) LOOK_SPRING(springPop) LOOK_SPRING(springGrow)
    LOOK_TIME(cascadeDelay) LOOK_TIME(cascadeStep) LOOK_TIME(popStep) LOOK_TIME(growStep)
    LOOK_TIME(hoverTime) LOOK_TIME(pressTime) LOOK_TIME(switchTime) LOOK_TIME(segmentTime)
    LOOK_TIME(toastMoveTime) LOOK_TIME(capsuleCloseTime) LOOK_TIME(capsuleRowTime)
    LOOK_TIME(capsuleRowDelay) LOOK_TIME(capsuleRowOutTime) LOOK_TIME(pulseOnTime)
    LOOK_TIME(pulseOffTime) LOOK_TIME(tileTime) LOOK_TIME(tileDelay) LOOK_TIME(tileStep)
    LOOK_TIME(countUpTime) LOOK_TIME(cardRise)
    LOOK_FADE(cardInTime) LOOK_FADE(cardOutTime) LOOK_FADE(stageFadeTime)
    LOOK_STEADY(pageSlide) LOOK_STEADY(cascadeRise) LOOK_STEADY(helpDelay)
    LOOK_STEADY(toastInTime) LOOK_STEADY(toastOutTime) LOOK_STEADY(clockDotTime)
    LOOK_STEADY(invitationTime) LOOK_STEADY(invitationHalo) LOOK_STEADY(invitationGlow)
    LOOK_STEADY(pulseGlow) LOOK_STEADY(typingStep) LOOK_STEADY(burstTime) LOOK_STEADY(burstHold)
    LOOK_STEADY(ambientStep) LOOK_STEADY(crossFadeTime) LOOK_STEADY(scrollbarHold)
    LOOK_STEADY(scrollbarFadeTime)
    LOOK_FACTOR(slamFrom) LOOK_FACTOR(popFrom) LOOK_FACTOR(clockDotOpacity)
    LOOK_FACTOR(clockDotScale) LOOK_FACTOR(invitationHaloOpacity)
    LOOK_FACTOR(invitationGlowOpacity) LOOK_FACTOR(pulseScale) LOOK_FACTOR(pulseGlowOpacity)
        // clang-format on
        Q_PROPERTY(double heroUnitScale READ heroUnitScale CONSTANT)
            Q_PROPERTY(double textScale READ textScale NOTIFY textScaleChanged)

                public :
        /// Returns the engine's instance, which the engine owns.
        [[nodiscard]] static DarkUI* of(QQmlEngine& engine);
    /// For the QML engine.
    static DarkUI* create(QQmlEngine* engine, QJSEngine* scripts);

    [[nodiscard]] const look::Palette& palette() const { return m_palette; }
    /// Applies the colours to all views at once.
    void setPalette(const look::Palette& palette);

    /// Sets the text scale beyond the screen's scale factor, for all views at once.
    void setTextScale(double factor);

    /// The scale for lengths that hold text: at least 1.
    [[nodiscard]] double textScale() const { return std::max(m_textScale, 1.0); }

    [[nodiscard]] static double heroUnitScale() { return look::kType.heroUnitScale; }

Q_SIGNALS:
    void paletteChanged();
    void reducedChanged();
    void textScaleChanged();

private:
    explicit DarkUI(QQmlEngine& engine);

    /// Created on first use by a view.
    template <typename Made, typename Value>
    Made* made(Made*& kept, const Value& value) {
        if (!kept) kept = new Made(value, this);
        return kept;
    }
    [[nodiscard]] int inMotion(int value, int reduced) const;
    [[nodiscard]] int forText(int length) const;
    TypeRole* grown(TypeRole* role);

    look::Palette m_palette;
    double m_textScale = 1.0;
    QList<TypeRole*> m_growing; ///< roles that follow the text scale
    Motion* m_motion;
};

#undef LOOK_COLOR
#undef LOOK_OPACITY
#undef LOOK_ROLE
#undef LOOK_FIXED_ROLE
#undef LOOK_SHADOW
#undef LOOK_SPRING
#undef LOOK_LENGTH
#undef LOOK_TEXT_LENGTH
#undef LOOK_FINE_LENGTH
#undef LOOK_TIME
#undef LOOK_FADE
#undef LOOK_STEADY
#undef LOOK_FACTOR

} // namespace vantle

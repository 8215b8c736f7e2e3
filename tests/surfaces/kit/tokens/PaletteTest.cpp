// The contrast of all text on the grounds that it stands on, as the tokens have it.
#include "surfaces/kit/tokens/ColorMath.h"
#include "surfaces/kit/tokens/ContrastPalette.h"
#include "surfaces/kit/tokens/DarkUI.h"

#include <QColor>
#include <QQmlEngine>

#include <gtest/gtest.h>

namespace vantle {
namespace {

/// A colour with its opacity over an opaque one.
QColor over(const QColor& ground, const QColor& color) {
    const float alpha = color.alphaF();
    const auto mixed = [alpha](float below, float above) {
        return below + (above - below) * alpha;
    };
    return QColor::fromRgbF(mixed(ground.redF(), color.redF()),
                            mixed(ground.greenF(), color.greenF()),
                            mixed(ground.blueF(), color.blueF()));
}

class PaletteTest : public testing::Test {
protected:
    [[nodiscard]] QColor token(const char* name) const { return value(name).value<QColor>(); }
    [[nodiscard]] double opacity(const char* name) const { return value(name).toDouble(); }
    /// Of a text on a fill over a ground.
    [[nodiscard]] double contrast(const char* text, const QColor& fill, const char* ground) const {
        const QColor below = over(over(QColor(0, 0, 0), token(ground)), fill);
        return colormath::contrast(over(below, token(text)), below);
    }
    void wishForContrast() { m_tokens->setPalette(look::kContrasted); }

private:
    /// As views read it.
    [[nodiscard]] QVariant value(const char* name) const {
        const QVariant value = m_tokens->property(name);
        EXPECT_TRUE(value.isValid()) << name;
        return value;
    }

    QQmlEngine m_engine;
    DarkUI* const m_tokens = DarkUI::of(m_engine);
};

constexpr const char* kTexts[] = {"textPrimary",     "textSecondary",     "textTertiary",
                                  "textDisabled",    "textCaption",       "textWeekday",
                                  "textCapsuleName", "textWeekdayFuture", "textChip",
                                  "accentText",      "dangerText",        "good"};
constexpr const char* kGrounds[] = {"windowGround",   "capsuleGround", "menuGround",
                                    "floatingGround", "popoverGround", "glassGround"};
constexpr const char* kFills[] = {
    "clear", "cardFill", "fill", "fillDisabled", "rowHover", "fieldFill", "fieldFillFocused"};

TEST_F(PaletteTest, AllTextHasSevenToOneWhereMoreContrastIsWishedFor) {
    wishForContrast();
    for (const char* text : kTexts)
        for (const char* ground : kGrounds)
            for (const char* fill : kFills)
                EXPECT_GE(contrast(text, token(fill), ground), 7.0)
                    << text << " on " << fill << " over " << ground;
}

TEST_F(PaletteTest, TextUnderThePointerAndOnAChosenSegmentHasItToo) {
    wishForContrast();
    for (const char* text : {"textPrimary", "textSecondary", "textTertiary", "textChip"})
        for (const char* fill : {"fillHover", "fillPressed", "quietHover", "segmentFill"})
            EXPECT_GE(contrast(text, token(fill), "menuGround"), 7.0) << text << " on " << fill;
}

TEST_F(PaletteTest, TextOnTheAccentAndOnFillsOfAColourHasItToo) {
    wishForContrast();
    for (const char* fill : {"accent", "accentHover", "accentPressed"})
        EXPECT_GE(contrast("ink", token(fill), "windowGround"), 7.0) << fill;
    for (const char* state :
         {"dangerFillOpacity", "dangerFillHoverOpacity", "dangerFillPressedOpacity"})
        EXPECT_GE(contrast("dangerTextOnFill",
                           colormath::withAlpha(token("danger"), opacity(state)), "windowGround"),
                  7.0)
            << state;
    for (const char* state : {"tintFillOpacity", "tintFillHoverOpacity", "tintFillPressedOpacity",
                              "wrappedFillOpacity"})
        EXPECT_GE(contrast("accentTextOnTint",
                           colormath::withAlpha(token("accent"), opacity(state)), "windowGround"),
                  7.0)
            << state;
}

TEST_F(PaletteTest, EdgesOfControlsCanBeSeenWhereMoreContrastIsWishedFor) {
    wishForContrast();
    for (const char* edge : {"hairline", "keycapEdge", "switchEdge", "scrollbarThumb",
                             "sliderTrack", "barTrough", "pageDot"})
        EXPECT_GE(contrast(edge, token("clear"), "windowGround"), 3.0) << edge;
}

TEST_F(PaletteTest, GroundStaysDark) {
    const QColor usual = token("textTertiary");
    wishForContrast();
    EXPECT_EQ(token("windowGround"), QColor(0x0A, 0x0A, 0x0F));
    EXPECT_NE(token("textTertiary"), usual);
}

} // namespace
} // namespace vantle

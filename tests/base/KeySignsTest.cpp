#include "base/KeySigns.h"

#include "support/QtPrinters.h"
#include "support/Text.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

using tests::text;

TEST(KeySigns, AreTheKeysThatWorkOnThisKeyboard) {
    EXPECT_EQ(keySignsInWords(text("⌘D")), text("Ctrl+D"));
    EXPECT_EQ(keySignsInWords(text("⌘,")), text("Ctrl+Comma"));
    EXPECT_EQ(keySignsInWords(text("Ctrl+,")), text("Ctrl+Comma"));
    EXPECT_EQ(keySignsInWords(text("⌥⌘B")), text("Alt+Super+B"));
    EXPECT_EQ(keySignsInWords(text("⌥B")), text("Alt+B"));
    EXPECT_EQ(keySignsInWords(text("Hold ⌥⌘")), text("Hold Alt+Super+"));
    EXPECT_EQ(keySignsInWords(text("Press ⌘⌥B again to stop.")),
              text("Press Alt+Super+B again to stop."));
    EXPECT_EQ(keySignsInWords(text("Quit Vantle (⌘Q)")), text("Quit Vantle (Ctrl+Q)"));
}

TEST(KeySigns, OtherTextsStayAsTheyAre) {
    EXPECT_EQ(keySignsInWords({}), QString());
    EXPECT_EQ(keySignsInWords(text("Draft, 2 h · ⌃")), text("Draft, 2 h · ⌃"));
}

} // namespace
} // namespace vantle

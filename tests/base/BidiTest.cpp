#include "base/Bidi.h"

#include "support/Text.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

using tests::text;

TEST(Bidi, WordFromTheRightIsIsolatedAndLeavesTheSentenceFromTheLeft) {
    const QString month = bidi::isolated(text("מרץ"));
    EXPECT_EQ(month, text("\u2068מרץ\u2069"));
    EXPECT_TRUE(text("מרץ, day by day.").isRightToLeft());
    EXPECT_FALSE((month + text(", day by day.")).isRightToLeft());
}

TEST(Bidi, MixedNameIsIsolatedToo) {
    EXPECT_EQ(bidi::isolated(text("Build מרץ")), text("\u2068Build מרץ\u2069"));
    EXPECT_EQ(bidi::isolated(text("۹ مارس")), text("\u2068۹ مارس\u2069"));
}

TEST(Bidi, AnyOtherTextIsLeftAsItIs) {
    for (const char* words : {"", "March", "3 月", "März 9", "100 %"})
        EXPECT_EQ(bidi::isolated(text(words)), text(words));
}

} // namespace
} // namespace vantle

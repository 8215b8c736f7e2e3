#include "launch/Catalogues.h"

#include "base/Words.h"
#include "support/QtPrinters.h"
#include "support/Text.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

using tests::text;

QString shortcutTaken() { return Words::tr("⌥⌘B is already used by another app."); }

TEST(Catalogues, GiveTheWordsOfThisDesktopInEveryLocale) {
    for (const char* locale : {"en-US", "C", "fr-FR", "ar-EG", ""}) {
        const Catalogues catalogues({text(locale)});
        EXPECT_EQ(shortcutTaken(), text("Alt+Super+B is already used by another app."));
    }
}

TEST(Catalogues, LeaveTextsThatAreTrueAnywhereAsTheyAre) {
    const Catalogues catalogues({});
    EXPECT_EQ(Words::tr("Couldn’t start vantle"), text("Couldn’t start vantle"));
}

TEST(Catalogues, AreGoneAfterTheirLife) {
    { const Catalogues catalogues({}); }
    EXPECT_EQ(shortcutTaken(), text("⌥⌘B is already used by another app."));
}

} // namespace
} // namespace vantle

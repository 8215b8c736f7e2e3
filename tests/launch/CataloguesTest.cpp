#include "launch/Catalogues.h"

#include "base/Decimals.h"
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

TEST(Catalogues, FirstLanguageThatTheProgramKnowsIsSpoken) {
    for (const QStringList& languages :
         {QStringList{text("de-AT"), text("en")}, QStringList{text("nl"), text("de")}}) {
        const Catalogues catalogues(languages);
        EXPECT_EQ(shortcutTaken(), text("Alt+Super+B wird schon von einer anderen App benutzt."));
    }
    const Catalogues catalogues({text("en-GB"), text("de")});
    EXPECT_EQ(shortcutTaken(), text("Alt+Super+B is already used by another app."));
}

TEST(Catalogues, PluralHasTheFormsOfItsLanguage) {
    const Catalogues catalogues({text("de")});
    EXPECT_EQ(Words::tr("%n hours", nullptr, 1), text("1 Stunde"));
    EXPECT_EQ(Words::tr("%n hours", nullptr, 2), text("2 Stunden"));
    EXPECT_EQ(
        Words::tr("%1 across %n sessions, led by %2.", nullptr, 3).arg(text("2 h"), text("Build")),
        text("2 h in 3 Sitzungen, vor allem Build."));
}

TEST(Catalogues, NumbersHaveTheMarksOfTheirLanguage) {
    const Catalogues catalogues({text("de")});
    EXPECT_EQ(shownDecimals(1.42, 1), text("1,4"));
    EXPECT_EQ(shownPercent(39.6), text("40\u00a0%"));
}

TEST(Catalogues, AreGoneAfterTheirLife) {
    { const Catalogues catalogues({}); }
    EXPECT_EQ(shortcutTaken(), text("⌥⌘B is already used by another app."));
}

} // namespace
} // namespace vantle

#include "ceremony/CeremonyPage.h"

#include "support/Text.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

namespace vantle::tests {
namespace {

QJsonObject configured(CeremonyShow show, std::uint32_t hexRGB = 0x7A78FF,
                       const std::optional<QString>& skill = {}, bool blackout = true) {
    return QJsonDocument::fromJson(
               ceremonypage::configuration(show, CeremonyVariant::Rain, hexRGB, skill, blackout))
        .object();
}

TEST(CeremonyPage, ThePageIsToldEverythingByName) {
    EXPECT_EQ(configured(CeremonyShow::Full, 0xFF375F, text("Writing"), false),
              (QJsonObject{{text("variant"), text("rain")},
                           {text("accent"), text("#FF375F")},
                           {text("reduced"), false},
                           {text("mode"), text("full")},
                           {text("milestone"), 0},
                           {text("title"), text("You are in Writing mode")},
                           {text("blackout"), false}}));
}

TEST(CeremonyPage, LeadingZerosOfTheColourStayAndHighBitsAreCut) {
    EXPECT_EQ(configured(CeremonyShow::Full, 0x00A0FF)[text("accent")], text("#00A0FF"));
    EXPECT_EQ(configured(CeremonyShow::Full, 0xFF00000A)[text("accent")], text("#00000A"));
}

TEST(CeremonyPage, AMilestoneTellsItsHoursAtLeastOne) {
    EXPECT_EQ(configured(CeremonyShow::milestone(250))[text("milestone")], 250);
    EXPECT_EQ(configured(CeremonyShow::milestone(250))[text("mode")], text("milestone"));
    EXPECT_EQ(configured(CeremonyShow::milestone(0))[text("milestone")], 1);
    EXPECT_EQ(configured(CeremonyShow::Quick)[text("mode")], text("quick"));
    EXPECT_EQ(configured(CeremonyShow::Quick)[text("milestone")], 0);
}

TEST(CeremonyPage, ANameWithQuotesAndForeignLettersArrivesIntact) {
    const QString name = text("\"Große\" </script> \\ \xE2\x80\xA8 \xF0\x9F\x8E\xB8");
    const QByteArray json =
        ceremonypage::configuration(CeremonyShow::Full, CeremonyVariant::Nova, 0, name, true);
    EXPECT_TRUE(QJsonDocument::fromJson(json).object()[text("title")].toString().contains(
        text("\"Große\" </script> \\")));
    EXPECT_TRUE(std::all_of(json.begin(), json.end(), [](char byte) {
        return byte >= ' ' && byte < 127 && byte != '<';
    })) << "nothing that could end the script, or a line in it";
}

TEST(CeremonyPage, ATitleThatIsNoTextGivesThePlainOne) {
    const QString broken = text("half of a pair: ") + QChar(0xD83C);
    EXPECT_EQ(
        ceremonypage::configuration(CeremonyShow::Full, CeremonyVariant::Nova, 0, broken, true),
        QByteArray(R"({"title":"You are in Vantle"})"));
}

TEST(CeremonyPage, TheScriptIsOneStatement) {
    EXPECT_EQ(ceremonypage::script(QByteArrayLiteral("{\"a\":1}")),
              text("window.__CEREMONY = {\"a\":1};"));
}

} // namespace
} // namespace vantle::tests

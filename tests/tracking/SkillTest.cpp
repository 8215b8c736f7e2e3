#include "tracking/Skill.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

QString key(const char* name) { return Skill::comparisonKey(QString::fromUtf8(name)); }

TEST(Skill, SixSeedsInTheirOrder) {
    const std::vector<std::tuple<const char*, const char*, std::uint32_t>> expected = {
        {"building", "Build", 0x7A78FF},          {"product_design", "Design", 0xBF5AF2},
        {"marketing", "Marketing", 0xFF375F},     {"distribution", "Distribution", 0xFF9F0A},
        {"founder_ops", "Founder Ops", 0x64D2FF}, {"connections", "Connections", 0x30D158}};
    ASSERT_EQ(Skill::defaults().size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        const auto& [id, name, color] = expected[i];
        EXPECT_EQ(Skill::defaults()[i],
                  (Skill{QLatin1String(id), QLatin1String(name), color, true}));
    }
}

TEST(Skill, SeedsOfEarlierVersionsAreKnownByTheirIds) {
    EXPECT_EQ(Skill::seedDefinition(QStringLiteral("code"))->hexRGB, 0x64D2FFu);
    EXPECT_EQ(Skill::seedDefinition(QStringLiteral("writing"))->name, QStringLiteral("Writing"));
    EXPECT_EQ(Skill::seedDefinition(QStringLiteral("product_design"))->name,
              QStringLiteral("Design"));
    EXPECT_EQ(Skill::seedDefinition(QStringLiteral("nope")), std::nullopt);
    EXPECT_EQ(Skill::seedDefinition(QStringLiteral("Code")), std::nullopt);
    EXPECT_EQ(Skill::legacyDefaults().size(), 6u);
}

TEST(Skill, TenColoursAreOffered) {
    EXPECT_EQ(Skill::palette.size(), 10u);
    EXPECT_EQ(Skill::palette.front(), 0xFF375Fu);
    EXPECT_EQ(Skill::palette.back(), 0xACF35Cu);
}

TEST(SkillName, RunsOfWhiteSpaceBecomeSingleBlanks) {
    EXPECT_EQ(Skill::cleanedName(QStringLiteral("  Deep \t\n Work  ")),
              QStringLiteral("Deep Work"));
    EXPECT_EQ(Skill::cleanedName(QStringLiteral("\u00A0a\u2003b\u3000")), QStringLiteral("a b"));
    EXPECT_EQ(Skill::cleanedName(QStringLiteral(" \n ")), QString());
}

TEST(SkillName, HasOneToTwentyCharactersAsPeopleCountThem) {
    EXPECT_FALSE(Skill::isAcceptableName(QString()));
    EXPECT_TRUE(Skill::isAcceptableName(QString(20, QLatin1Char('x'))));
    EXPECT_FALSE(Skill::isAcceptableName(QString(21, QLatin1Char('x'))));
    EXPECT_TRUE(
        Skill::isAcceptableName(QString::fromUtf8("👩‍👩‍👧‍👦").repeated(20)));
    EXPECT_FALSE(
        Skill::isAcceptableName(QString::fromUtf8("👩‍👩‍👧‍👦").repeated(21)));
}

TEST(SkillName, CaseDiacriticsAndBlanksDoNotTellNamesApart) {
    EXPECT_EQ(key("Build"), QStringLiteral("build"));
    EXPECT_EQ(key("BUILD"), key("Build"));
    EXPECT_EQ(key("Building"), key("Build"));
    EXPECT_EQ(key("Bùilding"), key("Build"));
    EXPECT_EQ(key("  café  time "), key("Cafe Time"));
    EXPECT_EQ(key("STRASSE"), key("straße"));
    EXPECT_EQ(key("e\u0301tude"), key("étude"));
    EXPECT_NE(key("Builder"), key("Build"));
    EXPECT_NE(key("Łódź"), key("Lodz"));
}

TEST(SkillId, HoldsLettersNumbersAndTwoJoiners) {
    const auto acceptable = [](const char* id) {
        return Skill::isAcceptableId(QString::fromUtf8(id));
    };
    EXPECT_TRUE(acceptable("deep_work-2"));
    EXPECT_TRUE(acceptable("übung"));
    EXPECT_TRUE(acceptable("日本"));
    EXPECT_FALSE(acceptable("a b"));
    EXPECT_FALSE(acceptable("a.b"));
    EXPECT_FALSE(acceptable("😀"));
    EXPECT_FALSE(acceptable(""));
    EXPECT_FALSE(acceptable("a\n"));
    EXPECT_TRUE(Skill::isAcceptableId(QString(64, QLatin1Char('x'))));
    EXPECT_FALSE(Skill::isAcceptableId(QString(65, QLatin1Char('x'))));
}

} // namespace
} // namespace vantle

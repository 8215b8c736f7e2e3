#include "ceremony/show/VantleCopy.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

TEST(VantleCopy, NoNameBlanksAndThePlainBuildingSkillAreVantle) {
    for (const QString& name : {QString(), QStringLiteral("  \t"), QStringLiteral("Build"),
                                QStringLiteral(" buILding "), QStringLiteral(u"BÚILD")}) {
        EXPECT_EQ(vantlecopy::modeName(name), QLatin1String("Vantle")) << name.toStdString();
        EXPECT_EQ(vantlecopy::ceremonyTitle(name), QLatin1String("You are in Vantle"));
    }
}

TEST(VantleCopy, ASkillGetsTheWordModeOnceAndAsTyped) {
    EXPECT_EQ(vantlecopy::modeName(QStringLiteral("Deep")), QLatin1String("Deep mode"));
    EXPECT_EQ(vantlecopy::modeName(QStringLiteral("Dark  MODE ")), QLatin1String("Dark MODE"));
    EXPECT_EQ(vantlecopy::modeName(QStringLiteral("Commode")), QLatin1String("Commode mode"));
}

TEST(VantleCopy, SaysWhereTheUserIs) {
    EXPECT_EQ(vantlecopy::ceremonyTitle(QStringLiteral("Writing")),
              QLatin1String("You are in Writing mode"));
    EXPECT_EQ(vantlecopy::activeStatus(QStringLiteral("Writing")),
              QLatin1String("In Writing mode"));
}

} // namespace
} // namespace vantle

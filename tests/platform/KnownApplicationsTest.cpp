#include "platform/desktop/KnownApplications.h"

#include "sensing/AutoSeedTables.h"
#include "sensing/AutoSuggestion.h"
#include "support/QtPrinters.h"
#include "support/Text.h"

#include <QSet>

#include <gtest/gtest.h>

#include <vector>

namespace vantle {
namespace {

using tests::text;

/// The identities that auto mode files from the start, with the skills of any version.
QSet<QString> seeds() {
    QSet<QString> all;
    for (const auto& table : {autoseeds::current(), autoseeds::legacy()})
        for (const auto& row : table)
            for (const char* bundleId : row.bundleIds)
                all.insert(text(bundleId));
    return all;
}

/// What it files, or leaves alone, by words in the identity.
bool isKnownByWord(const QString& identity) {
    if (autosuggestion::isBrowser(identity, {})) return true;
    std::vector<Skill> skills(2);
    skills[0].id = text("marketing");
    skills[1].id = text("founder_ops");
    return autosuggestion::suggestedSkillId(identity, {}, skills).has_value();
}

TEST(KnownApplications, EveryRowLeadsToAnIdentityThatAutoModeKnows) {
    const QSet<QString> known = seeds();
    ASSERT_FALSE(known.isEmpty());
    EXPECT_GT(knownapplications::rows().size(), 100U);
    for (const auto& row : knownapplications::rows()) {
        const QString identity = row.identity;
        EXPECT_TRUE(known.contains(identity) || isKnownByWord(identity)) << identity.toStdString();
    }
}

TEST(KnownApplications, NoEntryHasTwoRows) {
    QSet<QString> seen;
    for (const auto& row : knownapplications::rows()) {
        const QString id = QString(row.entryId).toCaseFolded();
        EXPECT_FALSE(seen.contains(id)) << id.toStdString();
        seen.insert(id);
    }
}

TEST(KnownApplications, LettersOfEitherCaseAreTheSame) {
    EXPECT_EQ(knownapplications::identityOf(text("Code")), text("com.microsoft.VSCode"));
    EXPECT_EQ(knownapplications::identityOf(text("org.gnome.terminal")),
              text("com.apple.Terminal"));
}

TEST(KnownApplications, OtherIdsStayAsTheyAre) {
    EXPECT_EQ(knownapplications::identityOf(text("org.example.Tool")), text("org.example.Tool"));
    EXPECT_EQ(knownapplications::identityOf({}), QString());
}

TEST(KnownApplications, InstallationsSideBySideAreOneTool) {
    EXPECT_EQ(knownapplications::identityOf(
                  text("jetbrains-pycharm-0a1b2c3d-0011-2233-4455-66778899aabb")),
              text("com.jetbrains.PyCharm"));
}

} // namespace
} // namespace vantle

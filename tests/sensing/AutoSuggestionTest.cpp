#include "sensing/AutoSuggestion.h"

#include "sensing/AutoWorld.h"
#include "sensing/SuggestionTables.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

using autosuggestion::isBrowser;

std::vector<Skill> seeds() { return {Skill::defaults().begin(), Skill::defaults().end()}; }

std::vector<Skill> seedsWithout(const char* id) {
    std::vector<Skill> skills = seeds();
    std::erase_if(skills, [&](const Skill& skill) { return skill.id == text(id); });
    return skills;
}

std::optional<QString> suggestion(const char* bundleId, const char* name,
                                  const std::vector<Skill>& skills = seeds()) {
    return autosuggestion::suggestedSkillId(text(bundleId), text(name), skills);
}

TEST(AutoSuggestion, KnowsBrowsersByIdentityOrNameInAnyCase) {
    EXPECT_TRUE(isBrowser(text("com.apple.Safari"), text("Safari")));
    EXPECT_TRUE(isBrowser(text("x"), text("MOZILLA FIREFOX")));
    EXPECT_TRUE(isBrowser(text("com.google.Chrome"), QString()));
    EXPECT_FALSE(isBrowser(text("com.apple.mail"), text("Mail")));
    EXPECT_FALSE(isBrowser(text("com.google.drivefs"), text("Drive")));
    EXPECT_FALSE(isBrowser(QString(), QString()));
}

TEST(AutoSuggestion, FindsAWordThatSpansIdentityAndName) {
    EXPECT_FALSE(isBrowser(text("com.microsoft.x"), text("Edge")));
    EXPECT_TRUE(isBrowser(text("com.microsoft"), text("Edge"))) << "one blank stands between them";
}

TEST(AutoSuggestion, NeverGuessesABrowser) {
    EXPECT_EQ(suggestion("com.apple.Safari", "Safari"), std::nullopt);
    EXPECT_EQ(suggestion("com.google.Chrome", "GitHub"), std::nullopt);
}

TEST(AutoSuggestion, TakesAWordAnywhereInTheText) {
    EXPECT_EQ(suggestion("com.google.drivefs", "Google Drive"), text("product_design"));
    EXPECT_EQ(suggestion("com.example.Files", "x"), std::nullopt);
    EXPECT_EQ(suggestion("com.example.Organized", "x"), text("building"));
}

TEST(AutoSuggestion, CaseDoesNotMatterInNamesBeyondAsciiEither) {
    EXPECT_EQ(suggestion("x", "Überblick · PHOTOSHOP"), suggestion("x", "photoshop"));
    EXPECT_EQ(suggestion("x", "photoshop"), text("product_design"));
    EXPECT_EQ(suggestion("x", "S\u212AETCH"), text("product_design")) << "with a Kelvin sign";
}

TEST(AutoSuggestion, SiteThatHostsAProjectSaysNothingOfWhatItIsFor) {
    EXPECT_EQ(suggestion("io.github.Hexchat", "HexChat"), std::nullopt);
    EXPECT_EQ(suggestion("com.github.johnfactotum.Foliate", "Foliate"), std::nullopt);
    EXPECT_EQ(suggestion("com.GitHub.xournalpp.xournalpp", "Xournal++"), std::nullopt);
    EXPECT_EQ(suggestion("com.github.GitHubClient", "x"), text("building"));
    EXPECT_EQ(suggestion("io.github.shiftey.Desktop", "GitHub Desktop"), text("building"));
    EXPECT_EQ(suggestion("io.github.someone.Slack", "x"), text("connections"));
    EXPECT_TRUE(isBrowser(text("io.github.someone.firefox"), QString()));
}

TEST(AutoSuggestion, TriesTheGroupsInTheirOrder) {
    EXPECT_EQ(suggestion("com.example.app", "Mailchimp"), text("marketing"));
    EXPECT_EQ(suggestion("com.example.app", "Mail"), text("connections"));
}

TEST(AutoSuggestion, FallsBackToTheSecondChoiceAndThenToTheHints) {
    std::vector<Skill> skills = seedsWithout("connections");
    EXPECT_EQ(suggestion("com.tinyspeck.slackmacgap", "Slack", skills), text("founder_ops"));
    skills.push_back(namedSkill("business", "Business"));
    EXPECT_EQ(suggestion("com.tinyspeck.slackmacgap", "Slack", skills), text("business"));
}

TEST(AutoSuggestion, LetsTheOrderOfTheHintsOutrankThatOfTheSkills) {
    const std::vector skills{namedSkill("a", "Product"), namedSkill("b", "Build stuff")};
    EXPECT_EQ(suggestion("com.apple.dt.Xcode", "Xcode", skills), text("b"));
}

TEST(AutoSuggestion, ReadsJoinersInIdsAsBlanks) {
    // "my network" holds the hint "network" by its id alone.
    const std::vector skills{namedSkill("zz", "Zz"), namedSkill("my_network", "X")};
    EXPECT_EQ(suggestion("x", "Slack", skills), text("my_network"));
}

TEST(AutoSuggestion, SaysNothingWhereNothingFits) {
    EXPECT_EQ(suggestion("com.apple.finder", "Finder"), std::nullopt);
    EXPECT_EQ(suggestion("x", "Slack", {namedSkill("zz", "Zz")}), std::nullopt);
    EXPECT_EQ(suggestion("x", "Slack", {}), std::nullopt);
}

TEST(AutoSuggestion, HoldsItsWordsInTheFormInWhichTheyAreLookedFor) {
    for (const auto& group : suggestiontables::groups())
        for (const auto words : {group.words, group.hints})
            for (const std::string_view word : words)
                for (const char c : word)
                    EXPECT_TRUE(c >= ' ' && c < 127 && !(c >= 'A' && c <= 'Z')) << word;
}

} // namespace
} // namespace vantle

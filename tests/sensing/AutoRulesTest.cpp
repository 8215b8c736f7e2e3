#include "sensing/AutoRules.h"

#include "sensing/AutoWorld.h"

#include <gmock/gmock.h>

namespace vantle {
namespace {

using testing::ElementsAre;

class AutoRulesTest : public testing::Test, protected AutoWorld {
protected:
    void relaunch() {
        time.settle();
        rules.emplace(rulesEnvironment());
    }
    void storeRules(const QMap<QString, QString>& stored, const QSet<QString>& automatic = {}) {
        put(AutoRulesState{stored, {}, automatic});
    }
    [[nodiscard]] std::vector<QString> seenIds() const {
        std::vector<QString> ids;
        for (const SeenApp& app : rules->seenApps())
            ids.push_back(app.bundleId);
        return ids;
    }

    const QString xcode = text("com.apple.dt.Xcode");
    const QString figma = text("com.figma.Desktop");
    const QString slack = text("com.tinyspeck.slackmacgap");
    const QString building = text("building");
    std::optional<AutoRules> rules{std::in_place, rulesEnvironment()};
};

// The first run

TEST_F(AutoRulesTest, KnowThirtySevenApplicationsAtTheFirstRunAllOfThemAutomatic) {
    rules->loadIfNeeded();
    EXPECT_EQ(rules->rules().size(), 37);
    EXPECT_EQ(rules->automaticRuleBundleIds().size(), 37);
    EXPECT_EQ(rules->ruling(figma), text("product_design"));
    EXPECT_EQ(rules->ruling(xcode), building);
    EXPECT_TRUE(rules->seenApps().empty());
    EXPECT_EQ(stored().rules, rules->rules());
}

TEST_F(AutoRulesTest, FileDesignToolsUnderBuildingWhereThereIsNoSkillForDesign) {
    setSkills({namedSkill("building", "Build")});
    rules->loadIfNeeded();
    EXPECT_EQ(rules->ruling(figma), building);
}

TEST_F(AutoRulesTest, SeedNothingForASkillThatTheUserDeleted) {
    setSkills({namedSkill("building", "Build"), namedSkill("business2", "Sales")});
    EXPECT_EQ(rules->ruling(slack), std::nullopt);
    EXPECT_EQ(rules->suggestedSkillId(slack, text("Slack")), text("business2"));
}

TEST_F(AutoRulesTest, UseTheOlderTableForTheOlderSkills) {
    setSkills({namedSkill("code", "Code"), namedSkill("writing", "Writing")});
    EXPECT_EQ(rules->ruling(xcode), text("code"));
    EXPECT_EQ(rules->ruling(text("com.jetbrains.rider")), text("code"));
    EXPECT_EQ(rules->ruling(text("com.microsoft.Word")), text("writing"));
    EXPECT_EQ(rules->ruling(figma), std::nullopt);
}

TEST_F(AutoRulesTest, EachOfTheOlderSkillsHasItsOwnApplications) {
    for (const auto& [id, app] :
         {std::pair("design", figma), std::pair("code", xcode), std::pair("business", slack)}) {
        setSkills({namedSkill(id, "Older"), namedSkill("connections", "Connections")});
        relaunch();
        disk.remove(file).ignore();
        EXPECT_EQ(rules->ruling(app), text(id));
        EXPECT_FALSE(rules->rules().values().contains(text("connections"))) << id;
    }
}

TEST_F(AutoRulesTest, AreReadOnceAtFirstUseAndNotBefore) {
    time.settle();
    EXPECT_FALSE(hasFile());
    static_cast<void>(rules->ruling(xcode));
    EXPECT_EQ(takeWrites(), 1);
    storeRules({{xcode, text("marketing")}});
    EXPECT_EQ(rules->ruling(xcode), building);
    EXPECT_EQ(takeWrites(), 0);
}

// Later runs

TEST_F(AutoRulesTest, DropRulesForSkillsThatAreGoneAndWriteTheFileCleaned) {
    storeRules({{text("a"), building}, {text("b"), text("gone")}, {text("c"), text("ignore")}},
               {text("a"), text("b"), text("z")});
    rules->loadIfNeeded();
    EXPECT_EQ(rules->rules().keys(), QStringList({text("a"), text("c")}));
    EXPECT_EQ(rules->automaticRuleBundleIds(), QSet({text("a")}));
    EXPECT_EQ(stored().rules.size(), 2);
}

TEST_F(AutoRulesTest, KeepTheLatestOfAnApplicationThatIsStoredTwice) {
    const Date now = time.now();
    put(AutoRulesState{
        {}, {{xcode, text("Earlier"), now - Seconds(60)}, {xcode, text("Later"), now}}, {}});
    rules->loadIfNeeded();
    ASSERT_THAT(seenIds(), ElementsAre(xcode));
    EXPECT_EQ(rules->seenApps().front().name, text("Later"));
}

TEST_F(AutoRulesTest, AreNotReadAfterAnEraseBeforeTheFirstUse) {
    storeRules({{xcode, building}});
    rules->eraseAllData();
    rules->loadIfNeeded();
    EXPECT_TRUE(rules->rules().isEmpty());
}

TEST_F(AutoRulesTest, ForgetApplicationsNotSeenForNinetyDays) {
    const Date now = time.now();
    const auto daysAgo = [&](double days) { return now - Seconds(days * 86400); };
    put(AutoRulesState{{},
                       {{text("old"), text("Old"), daysAgo(91)},
                        {text("edge"), text("Edge"), daysAgo(90)},
                        {text("new"), text("New"), daysAgo(1)}},
                       {}});
    rules->loadIfNeeded();
    EXPECT_THAT(seenIds(), ElementsAre(text("new"), text("edge")));
}

TEST_F(AutoRulesTest, MoveAutomaticRulesOfTheOlderSkillsToBuildingAndLeaveChosenOnes) {
    setSkills({namedSkill("building", "Build"), namedSkill("code", "Code")});
    put(R"({"automaticRuleBundleIds":["com.apple.dt.Xcode","x","y"],"rules":)"
        R"({"com.apple.dt.Xcode":"code","dev.zed.Zed":"code","x":"code","y":"ignore"},)"
        R"("seenApps":[{"bundleId":"x","lastSeenAt":"2026-02-28T10:00:00Z","name":"GitHub"}]})");
    EXPECT_EQ(rules->ruling(xcode), building);
    EXPECT_TRUE(rules->isAutomaticallyCategorized(xcode)) << "the mark stays";
    EXPECT_EQ(rules->ruling(text("x")), building) << "guessed by the name it was seen under";
    EXPECT_EQ(rules->ruling(text("y")), text("ignore"));
    EXPECT_EQ(rules->ruling(text("dev.zed.Zed")), text("code")) << "somebody chose that";
}

TEST_F(AutoRulesTest, LeaveAutomaticRulesAloneThatNowSpeakOfAnotherSkillOrOfNone) {
    setSkills({namedSkill("building", "Build"), namedSkill("marketing", "Marketing"),
               namedSkill("product_design", "Design")});
    put(R"({"automaticRuleBundleIds":["com.figma.Desktop","org.viewer"],"rules":)"
        R"({"com.figma.Desktop":"marketing","org.viewer":"marketing"},"seenApps":[]})");
    EXPECT_EQ(rules->ruling(figma), text("marketing"));
    EXPECT_EQ(rules->ruling(text("org.viewer")), text("marketing"));
}

TEST_F(AutoRulesTest, MoveNothingToASkillThatTheUserDeleted) {
    setSkills({namedSkill("code", "Code")});
    put(R"({"automaticRuleBundleIds":["com.apple.dt.Xcode"],"rules":)"
        R"({"com.apple.dt.Xcode":"code"},"seenApps":[]})");
    EXPECT_EQ(rules->ruling(xcode), text("code"));
    EXPECT_TRUE(rules->isAutomaticallyCategorized(xcode));
}

TEST_F(AutoRulesTest, ForgetApplicationsThatAreStoredWithoutIdentityOrName) {
    put(AutoRulesState{{},
                       {{QString(), text("Nameless"), time.now()},
                        {xcode, QString(), time.now()},
                        {figma, text("Figma"), time.now()}},
                       {}});
    rules->loadIfNeeded();
    EXPECT_THAT(seenIds(), ElementsAre(figma));
}

TEST_F(AutoRulesTest, MoveNothingOnceTheFileIsOfTheNewSkills) {
    setSkills({namedSkill("building", "Build"), namedSkill("code", "Code")});
    storeRules({{xcode, text("code")}}, {xcode});
    EXPECT_EQ(rules->ruling(xcode), text("code"));
}

// Changes

TEST_F(AutoRulesTest, KeepTheAutomaticMarkWhenTheSameRulingIsSetAgain) {
    rules->loadIfNeeded();
    static_cast<void>(takeWrites());
    rules->setRule(xcode, building);
    EXPECT_TRUE(rules->isAutomaticallyCategorized(xcode));
    EXPECT_EQ(takeWrites(), 0);
    rules->setRule(xcode, text("marketing"));
    EXPECT_FALSE(rules->isAutomaticallyCategorized(xcode));
    EXPECT_EQ(takeWrites(), 1);
}

TEST_F(AutoRulesTest, TakeARuleAwayAndMakeNothingOfOneThatIsNotThere) {
    rules->setRule(xcode, std::nullopt);
    EXPECT_EQ(rules->ruling(xcode), std::nullopt);
    EXPECT_FALSE(rules->isAutomaticallyCategorized(xcode));
    static_cast<void>(takeWrites());
    rules->setRule(xcode, std::nullopt);
    EXPECT_EQ(takeWrites(), 0);
}

TEST_F(AutoRulesTest, ReadARuleForADeletedSkillAsNone) {
    rules->loadIfNeeded();
    setSkills({namedSkill("marketing", "Marketing")});
    EXPECT_EQ(rules->ruling(xcode), std::nullopt);
    EXPECT_TRUE(rules->rules().contains(xcode));
}

TEST_F(AutoRulesTest, LoseTheRulesOfASkillThatIsDeleted) {
    rules->loadIfNeeded();
    static_cast<void>(takeWrites());
    rules->removeRules(text("connections"));
    EXPECT_EQ(rules->rules().size(), 28);
    EXPECT_EQ(rules->automaticRuleBundleIds().size(), 28);
    EXPECT_EQ(takeWrites(), 1);
    rules->removeRules(text("connections"));
    EXPECT_EQ(takeWrites(), 0);
}

TEST_F(AutoRulesTest, ForgetAllAboutAnApplication) {
    rules->recordSeen(xcode, text("Xcode"));
    rules->forgetApp(xcode);
    EXPECT_FALSE(rules->rules().contains(xcode));
    EXPECT_FALSE(rules->isAutomaticallyCategorized(xcode));
    EXPECT_TRUE(rules->seenApps().empty());
    EXPECT_EQ(stored().rules.size(), 36);
}

TEST_F(AutoRulesTest, WriteOverNothingThatWasNeverRead) {
    storeRules({{text("a"), building}, {text("b"), building}});
    rules->forgetApp(text("a"));
    EXPECT_EQ(stored().rules.keys(), QStringList({text("b")}));
}

TEST_F(AutoRulesTest, TellEachChange) {
    int ruleChanges = 0;
    int seenChanges = 0;
    QObject::connect(&*rules, &AutoRules::rulesChanged, [&] { ++ruleChanges; });
    QObject::connect(&*rules, &AutoRules::seenAppsChanged, [&] { ++seenChanges; });
    rules->setRule(xcode, text("ignore"));
    EXPECT_EQ(ruleChanges, 2) << "the load and the rule";
    rules->recordSeen(xcode, text("Xcode"));
    EXPECT_EQ(seenChanges, 2);
}

// Applications seen

TEST_F(AutoRulesTest, WriteTheTimesOfKnownApplicationsOnceAMinuteAtTheMost) {
    rules->recordSeen(xcode, text("Xcode"));
    rules->recordSeen(figma, text("Figma"));
    static_cast<void>(takeWrites());
    for (int i = 0; i < 500; ++i) {
        rules->recordSeen(xcode, text("Xcode"));
        rules->recordSeen(figma, text("Figma"));
        time.advance(0.125);
    }
    EXPECT_EQ(takeWrites(), 2) << "at once, and a minute later";
    EXPECT_EQ(rules->seenApps().front().lastSeenAt, time.now() - Seconds(0.125));
}

TEST_F(AutoRulesTest, WriteANewNameAtOnceAndLeaveTheMinuteAlone) {
    rules->recordSeen(xcode, text("Xcode"));
    static_cast<void>(takeWrites());
    rules->recordSeen(xcode, text("Code X"));
    EXPECT_EQ(takeWrites(), 1);
    rules->recordSeen(xcode, text("Code X"));
    EXPECT_EQ(takeWrites(), 1) << "the minute begins with a time that was written";
    rules->recordSeen(xcode, text("Code X"));
    EXPECT_EQ(takeWrites(), 0);
    EXPECT_EQ(stored().seenApps.front().name, text("Code X"));
}

TEST_F(AutoRulesTest, RememberFortyApplicationsAndForgetTheOneSeenLongestAgo) {
    for (int i = 0; i < 40; ++i) {
        rules->recordSeen(QString::number(i), text("App"));
        time.advance(1);
    }
    rules->recordSeen(text("0"), text("App"));
    time.advance(1);
    rules->recordSeen(text("new"), text("App"));
    EXPECT_EQ(rules->seenApps().size(), 40u);
    EXPECT_EQ(seenIds().front(), text("0"));
    EXPECT_EQ(seenIds()[1], text("2")) << "1 was seen longest ago";
    EXPECT_EQ(rules->seenAppsByRecency().front().bundleId, text("new"));
    EXPECT_EQ(rules->seenAppsByRecency()[1].bundleId, text("0"));
}

// Erasing

TEST_F(AutoRulesTest, AreEmptyAfterAnEraseUntilTheNextLaunchBringsTheSeeds) {
    rules->setRule(text("a"), text("ignore"));
    rules->recordSeen(text("a"), text("A"));
    rules->eraseAllData();
    time.settle();
    EXPECT_FALSE(hasFile());
    for (const QString& bundleId : {xcode, figma, text("a")})
        EXPECT_EQ(rules->ruling(bundleId), std::nullopt);
    EXPECT_TRUE(rules->automaticRuleBundleIds().isEmpty());
    EXPECT_TRUE(rules->seenApps().empty());
    relaunch();
    EXPECT_EQ(rules->ruling(xcode), building);
}

TEST_F(AutoRulesTest, HaveWrittenEverythingWhenTheQueueIsDrained) {
    rules->setRule(text("a"), text("ignore"));
    rules->drainPendingIO();
    EXPECT_TRUE(json::decodeAutoRules(disk.content(file).value())->state.rules.contains(text("a")));
}

} // namespace
} // namespace vantle

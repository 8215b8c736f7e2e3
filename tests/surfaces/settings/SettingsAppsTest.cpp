#include "support/Text.h"
#include "surfaces/settings/SettingsWorld.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

using tests::text;

class SettingsAppsTest : public testing::Test, protected tests::SettingsWorld {
protected:
    void see(const char* id, const char* name) {
        program();
        rules->loadIfNeeded();
        time.advance(1);
        rules->recordSeen(text(id), text(name));
    }
    [[nodiscard]] QVariant at(int row, SeenAppRows::Role role) {
        return view->apps()->data(view->apps()->index(row), role);
    }
    [[nodiscard]] QString chosen(int row) {
        return view->appChoices().value(at(row, SeenAppRows::ChoiceRole).toInt());
    }
    [[nodiscard]] int choiceOf(const char* name) {
        return static_cast<int>(view->appChoices().indexOf(text(name)));
    }
};

TEST_F(SettingsAppsTest, WithoutAnyItSaysWhenTheyCome) {
    open();
    EXPECT_EQ(view->apps()->rowCount(), 0);
    EXPECT_EQ(view->appsNote(), text("Apps you use will appear here once Auto mode is on."));
}

TEST_F(SettingsAppsTest, EachSeenApplicationHasARowNewestFirst) {
    see("org.blender", "Blender");
    see("firefox", "Firefox");
    open();
    ASSERT_EQ(view->apps()->rowCount(), 2);
    EXPECT_EQ(at(0, SeenAppRows::NameRole).toString(), text("Firefox"));
    EXPECT_EQ(at(1, SeenAppRows::NameRole).toString(), text("Blender"));
    EXPECT_EQ(view->appsNote(),
              text("Sparkles means Vantle categorized the app locally. Change any choice, or "
                   "remove an app with ×. Browsers stay unassigned because their purpose is "
                   "ambiguous."));
}

TEST_F(SettingsAppsTest, MenuHoldsTheSkillsThenIgnoreThenNotSet) {
    open();
    EXPECT_EQ(view->appChoices(),
              (QList<QString>{text("Build"), text("Design"), text("Marketing"),
                              text("Distribution"), text("Founder Ops"), text("Connections"),
                              text("Ignore"), text("Not set")}));
}

TEST_F(SettingsAppsTest, GuessedSkillIsMarkedUntilTheUserChooses) {
    see("com.figma.Desktop", "Figma"); // one of those that everybody starts with
    open();
    EXPECT_EQ(chosen(0), text("Design"));
    EXPECT_TRUE(at(0, SeenAppRows::IsAutomaticRole).toBool());
    EXPECT_TRUE(at(0, SeenAppRows::IsSkillRole).toBool());
    view->chooseSkill(text("com.figma.Desktop"), choiceOf("Build"));
    EXPECT_EQ(chosen(0), text("Build"));
    EXPECT_FALSE(at(0, SeenAppRows::IsAutomaticRole).toBool());
    EXPECT_EQ(rules->ruling(text("com.figma.Desktop")), text("building"));
}

TEST_F(SettingsAppsTest, IgnoredAndUnsetApplicationsHaveNoSkill) {
    see("player", "Video Player");
    open();
    EXPECT_EQ(chosen(0), text("Not set"));
    EXPECT_EQ(at(0, SeenAppRows::ForgetLabelRole).toString(), text("Forget Video Player"));
    view->chooseSkill(text("player"), choiceOf("Ignore"));
    EXPECT_EQ(chosen(0), text("Ignore"));
    EXPECT_EQ(rules->ruling(text("player")), text("ignore"));
    EXPECT_FALSE(at(0, SeenAppRows::IsSkillRole).toBool());
    EXPECT_EQ(at(0, SeenAppRows::ForgetLabelRole).toString(),
              text("Forget Video Player and its category"));
    view->chooseSkill(text("player"), choiceOf("Not set"));
    EXPECT_EQ(chosen(0), text("Not set"));
    EXPECT_EQ(rules->ruling(text("player")), std::nullopt);
}

TEST_F(SettingsAppsTest, WhatIsInNoMenuChangesNothing) {
    see("player", "Video Player");
    open();
    view->chooseSkill(text("player"), -1);
    view->chooseSkill(text("player"), static_cast<int>(view->appChoices().size()));
    EXPECT_EQ(rules->ruling(text("player")), std::nullopt);
}

TEST_F(SettingsAppsTest, ForgottenApplicationIsGoneWithItsRule) {
    see("com.figma.Desktop", "Figma");
    see("player", "Video Player");
    open();
    view->forgetApp(text("com.figma.Desktop"));
    ASSERT_EQ(view->apps()->rowCount(), 1);
    EXPECT_EQ(at(0, SeenAppRows::NameRole).toString(), text("Video Player"));
    EXPECT_EQ(rules->ruling(text("com.figma.Desktop")), std::nullopt);
}

TEST_F(SettingsAppsTest, ApplicationsThatComeWhileTheWindowIsOpenAppear) {
    open();
    see("player", "Video Player");
    EXPECT_EQ(view->apps()->rowCount(), 1);
}

TEST_F(SettingsAppsTest, SkillThatIsAddedMovesNobodysChoice) {
    see("player", "Video Player");
    open();
    view->chooseSkill(text("player"), choiceOf("Ignore"));
    model->addSkill(text("Cinema"), 0xFFD60A);
    EXPECT_EQ(choiceOf("Cinema"), 6);
    EXPECT_EQ(chosen(0), text("Ignore"));
}

TEST_F(SettingsAppsTest, ChoiceThatCannotBeSavedIsToldHere) {
    see("player", "Video Player");
    open();
    EXPECT_EQ(view->appsFailure(), QString());
    breakWrites(text("auto-rules.json"), true);
    view->chooseSkill(text("player"), 0);
    settle();
    EXPECT_TRUE(view->appsFailure().startsWith(text("Couldn’t save Auto mode choices: ")));
    EXPECT_EQ(chosen(0), text("Build"));
    breakWrites(text("auto-rules.json"), false);
    view->chooseSkill(text("player"), 1);
    settle();
    EXPECT_EQ(view->appsFailure(), QString());
}

} // namespace
} // namespace vantle

#include "surfaces/capsule/SkillPopoverEditor.h"

#include "support/QtPrinters.h"
#include "support/Text.h"

#include <gtest/gtest.h>

namespace vantle::tests {
namespace {

using Mode = SkillPopoverEditor::Mode;
using Kind = SkillPopoverEditor::Result::Kind;

class SkillPopoverEditorTest : public testing::Test {
protected:
    SkillPopoverEditor& open(Mode mode) {
        const auto skill = mode == Mode::Add ? std::nullopt : std::optional(design);
        editor = std::make_unique<SkillPopoverEditor>(
            mode, skill,
            [this](const SkillPopoverEditor::Result& result) { results.push_back(result); });
        return *editor;
    }

    const Skill design{text("design"), text("Design"), 0xBF5AF2, true};
    std::unique_ptr<SkillPopoverEditor> editor;
    std::vector<SkillPopoverEditor::Result> results;
};

TEST_F(SkillPopoverEditorTest, RenamingShowsTheNameAndNoColours) {
    const auto& rename = open(Mode::Rename);
    EXPECT_EQ(rename.title(), text("Rename skill"));
    EXPECT_EQ(rename.subtitle(), text("Use a short name you will recognize at a glance."));
    EXPECT_EQ(rename.commitTitle(), text("Save"));
    EXPECT_EQ(rename.height(), 158);
    EXPECT_TRUE(rename.hasName());
    EXPECT_FALSE(rename.hasColors());
    EXPECT_EQ(rename.name(), text("Design"));
    EXPECT_TRUE(rename.canCommit());
}

TEST_F(SkillPopoverEditorTest, RecolouringShowsTheColourAndNoName) {
    const auto& recolor = open(Mode::Recolor);
    EXPECT_EQ(recolor.title(), text("Choose a color"));
    EXPECT_TRUE(recolor.subtitle().isEmpty());
    EXPECT_EQ(recolor.commitTitle(), text("Save"));
    EXPECT_EQ(recolor.height(), 112);
    EXPECT_FALSE(recolor.hasName());
    EXPECT_EQ(recolor.selectedHex(), 0xBF5AF2U);
    EXPECT_TRUE(recolor.canCommit());
}

TEST_F(SkillPopoverEditorTest, AddingBeginsEmptyWithTheFirstColour) {
    const auto& add = open(Mode::Add);
    EXPECT_EQ(add.title(), text("Create a skill"));
    EXPECT_EQ(add.subtitle(), text("What do you want to build time toward?"));
    EXPECT_EQ(add.commitTitle(), text("Create skill"));
    EXPECT_EQ(add.height(), 204);
    EXPECT_TRUE(add.hasName() && add.hasColors());
    EXPECT_TRUE(add.name().isEmpty());
    EXPECT_EQ(add.selectedHex(), Skill::palette.front());
    EXPECT_FALSE(add.canCommit());
    EXPECT_EQ(add.palette().size(), 10);
}

TEST_F(SkillPopoverEditorTest, ANameOfTwentyCharactersStaysAndOneMoreIsCut) {
    auto& add = open(Mode::Add);
    const QString twenty = text("Ende der Kümmernisse");
    ASSERT_EQ(twenty.size(), 20);
    EXPECT_EQ(add.edit(twenty), twenty);
    EXPECT_EQ(add.edit(twenty + text("!")), twenty);
    EXPECT_EQ(add.name(), twenty);
}

TEST_F(SkillPopoverEditorTest, CharactersAreCountedAsThePersonSeesThem) {
    auto& add = open(Mode::Add);
    QString families;
    for (int i = 0; i < 21; ++i)
        families += text("👩‍👩‍👧");
    EXPECT_EQ(add.edit(families), families.left(20 * text("👩‍👩‍👧").size()));
}

TEST_F(SkillPopoverEditorTest, ANameOfBlanksCantBeCommitted) {
    auto& rename = open(Mode::Rename);
    rename.edit(text("  \t\n "));
    EXPECT_FALSE(rename.canCommit());
    rename.commit();
    EXPECT_TRUE(results.empty());
}

TEST_F(SkillPopoverEditorTest, RenamingSavesTheTrimmedNameAndTheColourAsItIs) {
    auto& rename = open(Mode::Rename);
    rename.edit(text("  Sketching "));
    rename.select(0);
    rename.commit();
    ASSERT_EQ(results.size(), 1U);
    EXPECT_EQ(results[0].kind, Kind::Save);
    EXPECT_EQ(results[0].id, text("design"));
    EXPECT_EQ(results[0].name, text("Sketching"));
    EXPECT_EQ(results[0].hexRGB, 0xBF5AF2U);
}

TEST_F(SkillPopoverEditorTest, RecolouringSavesTheNameAsItIs) {
    auto& recolor = open(Mode::Recolor);
    recolor.select(0);
    recolor.commit();
    ASSERT_EQ(results.size(), 1U);
    EXPECT_EQ(results[0].kind, Kind::Save);
    EXPECT_EQ(results[0].name, text("Design"));
    EXPECT_EQ(results[0].hexRGB, 0xFF375FU);
}

TEST_F(SkillPopoverEditorTest, AddingGivesNameAndColour) {
    auto& add = open(Mode::Add);
    add.edit(text("Writing"));
    add.select(5);
    add.commit();
    ASSERT_EQ(results.size(), 1U);
    EXPECT_EQ(results[0].kind, Kind::Add);
    EXPECT_EQ(results[0].name, text("Writing"));
    EXPECT_EQ(results[0].hexRGB, 0xFFD60AU);
}

TEST_F(SkillPopoverEditorTest, TurningAwayIsAResultAndOnlyTheFirstCounts) {
    auto& add = open(Mode::Add);
    add.edit(text("Writing"));
    add.cancel();
    add.commit();
    ASSERT_EQ(results.size(), 1U);
    EXPECT_EQ(results[0].kind, Kind::Cancel);
}

} // namespace
} // namespace vantle::tests

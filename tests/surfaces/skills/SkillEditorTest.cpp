#include "surfaces/skills/SkillEditor.h"

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace vantle {
namespace {

class SkillEditorTest : public testing::Test {
protected:
    struct Done {
        std::optional<QString> id;
        QString name;
        std::uint32_t hexRGB = 0;
    };
    std::vector<Skill> skills{Skill::defaults().begin(), Skill::defaults().end()};
    std::vector<Done> done;
    SkillEditor editor{
        [this](const std::optional<QString>& id, const QString& name, std::uint32_t hexRGB) {
            done.push_back({id, name, hexRGB});
        }};
};

TEST_F(SkillEditorTest, NewModeStartsEmptyInAFreeColour) {
    editor.openNew(skills);
    EXPECT_TRUE(editor.isShown());
    EXPECT_TRUE(editor.isAdding() && editor.hasName() && editor.hasColors());
    EXPECT_FALSE(editor.canCommit());
    EXPECT_EQ(editor.name(), QString());
    EXPECT_EQ(editor.palette().size(), 10);
    EXPECT_EQ(editor.color(), QColor(0xFF, 0xD6, 0x0A));
    EXPECT_EQ(editor.counter(), QStringLiteral("0/20"));
}

TEST_F(SkillEditorTest, WithoutAFreeColourTheFirstIsChosen) {
    skills.clear();
    for (const std::uint32_t hexRGB : Skill::palette)
        skills.push_back({.id = QString::number(hexRGB), .name = {}, .hexRGB = hexRGB});
    editor.openNew(skills);
    EXPECT_EQ(editor.colorIndex(), 0);
}

TEST_F(SkillEditorTest, NewModeStartsWithTheFirstColourIfAllAreFree) {
    editor.openNew();
    EXPECT_EQ(editor.colorIndex(), 0);
    editor.setName(QStringLiteral("Writing"));
    editor.chooseColor(5);
    editor.commit();
    ASSERT_EQ(done.size(), 1U);
    EXPECT_EQ(done[0].id, std::nullopt);
    EXPECT_EQ(done[0].name, QStringLiteral("Writing"));
    EXPECT_EQ(done[0].hexRGB, 0xFFD60AU);
}

TEST_F(SkillEditorTest, EditStartsWithTheModesValues) {
    editor.openFor(skills[1]);
    EXPECT_FALSE(editor.isAdding());
    EXPECT_TRUE(editor.hasName() && editor.hasColors() && editor.canCommit());
    EXPECT_EQ(editor.name(), skills[1].name);
    EXPECT_EQ(editor.color(), QColor::fromRgb(skills[1].hexRGB));
    editor.setName(QStringLiteral("  Drawing "));
    editor.chooseColor(0);
    editor.commit();
    ASSERT_EQ(done.size(), 1U);
    EXPECT_EQ(done[0].id, skills[1].id);
    EXPECT_EQ(done[0].name, QStringLiteral("Drawing"));
    EXPECT_EQ(done[0].hexRGB, Skill::palette[0]);
    EXPECT_FALSE(editor.isShown());
}

TEST_F(SkillEditorTest, EditOfTheNameKeepsTheColour) {
    editor.openFor(skills[1], SkillEditor::Fields::Name);
    EXPECT_TRUE(editor.hasName() && !editor.hasColors() && editor.canCommit());
    editor.setName(QStringLiteral("  Sketching "));
    editor.chooseColor(0);
    editor.commit();
    ASSERT_EQ(done.size(), 1U);
    EXPECT_EQ(done[0].id, skills[1].id);
    EXPECT_EQ(done[0].name, QStringLiteral("Sketching"));
    EXPECT_EQ(done[0].hexRGB, skills[1].hexRGB);
}

TEST_F(SkillEditorTest, EditOfTheColourKeepsTheName) {
    editor.openFor(skills[1], SkillEditor::Fields::Color);
    EXPECT_TRUE(!editor.hasName() && editor.hasColors() && editor.canCommit());
    editor.setName(QStringLiteral("Sketching"));
    editor.chooseColor(0);
    editor.commit();
    ASSERT_EQ(done.size(), 1U);
    EXPECT_EQ(done[0].id, skills[1].id);
    EXPECT_EQ(done[0].name, skills[1].name);
    EXPECT_EQ(done[0].hexRGB, Skill::palette[0]);
}

TEST_F(SkillEditorTest, ColourOutsideThePaletteSelectsNoSwatch) {
    editor.openFor({.id = QStringLiteral("x"), .name = QStringLiteral("X"), .hexRGB = 0x123456});
    EXPECT_EQ(editor.colorIndex(), -1);
    editor.chooseColor(10);
    editor.chooseColor(-1);
    EXPECT_EQ(editor.color(), QColor::fromRgb(0x123456));
}

TEST_F(SkillEditorTest, AnEmptyNameCannotBeCommitted) {
    editor.openNew(skills);
    for (const char* name : {"", "   ", "  \t\n "}) {
        editor.setName(QString::fromLatin1(name));
        EXPECT_FALSE(editor.canCommit());
        editor.commit();
        EXPECT_TRUE(editor.isShown());
    }
    EXPECT_TRUE(done.empty());
}

TEST_F(SkillEditorTest, ANameShorterThanTheShortestCannotBeCommitted) {
    SkillEditor strict(
        [this](const auto& id, const QString& name, std::uint32_t hexRGB) {
            done.push_back({id, name, hexRGB});
        },
        2);
    strict.openNew(skills);
    strict.setName(QStringLiteral("x "));
    EXPECT_FALSE(strict.canCommit());
    strict.setName(QStringLiteral("雪山"));
    EXPECT_TRUE(strict.canCommit());
}

TEST_F(SkillEditorTest, ANameOfTwentyCharactersStaysAndOneMoreIsCut) {
    editor.openNew(skills);
    const QString twenty = QStringLiteral("Ende der Kümmernisse");
    ASSERT_EQ(twenty.size(), 20);
    editor.setName(twenty);
    EXPECT_EQ(editor.name(), twenty);
    editor.setName(twenty + QStringLiteral("!"));
    EXPECT_EQ(editor.name(), twenty);
}

TEST_F(SkillEditorTest, TwentyUserPerceivedCharactersFit) {
    editor.openNew(skills);
    const QString family = QStringLiteral("👩‍👩‍👧");
    editor.setName(family.repeated(21));
    EXPECT_EQ(editor.name(), family.repeated(20));
    EXPECT_EQ(editor.counter(), QStringLiteral("20/20"));
}

TEST_F(SkillEditorTest, CancelDropsTheEdit) {
    editor.openFor(skills[1], SkillEditor::Fields::Color);
    editor.close();
    editor.commit();
    EXPECT_FALSE(editor.isShown());
    EXPECT_TRUE(done.empty());
    editor.openNew(skills);
    EXPECT_EQ(editor.name(), QString());
}

} // namespace
} // namespace vantle

#include "tracking/SkillList.h"

#include "support/Text.h"
#include "tracking/Settings.h"
#include "tracking/TrackingWorld.h"

#include <gmock/gmock.h>

#include <cerrno>
#include <utility>

namespace vantle {
namespace {

using Operation = fakes::FaultyFileSystem::Operation;
using testing::ElementsAre;

using tests::text;

Skill custom(const char* id, const char* name, std::uint32_t color = 0x123456) {
    return {text(id), text(name), color, false};
}

class SkillListTest : public testing::Test, protected TrackingWorld {
protected:
    void store(const std::vector<Skill>& list, int version = 1) {
        put(skillsFile, json::encode(list));
        if (version > 0) preferences.setInteger(key, version);
    }
    /// What another run of the program would find.
    std::vector<Skill> stored() { return json::decodeSkills(content(skillsFile).value()).value(); }
    [[nodiscard]] std::optional<qint64> version() const { return preferences.integer(key); }
    void failWrites() {
        files.fail(Operation::Create, QStringLiteral(".skills.json.*.tmp"), ENOSPC);
    }
    std::vector<QString> ids() {
        std::vector<QString> list;
        for (const Skill& skill : skills.all())
            list.push_back(skill.id);
        return list;
    }

    const QString key = settings::skillsMigrationVersion.key();
    const std::vector<Skill> seeds = samples::seeds();
};

TEST_F(SkillListTest, AMissingFileGivesTheSeedsAndIsMade) {
    EXPECT_EQ(skills.all(), seeds);
    EXPECT_EQ(stored(), seeds);
    EXPECT_EQ(mode(skillsFile), 0600);
    EXPECT_EQ(version(), 1);
}

TEST_F(SkillListTest, TheFileIsReadOnceOnFirstUse) {
    EXPECT_TRUE(files.calls().empty());
    static_cast<void>(skills.all());
    put(skillsFile, "[]");
    EXPECT_EQ(skills.all(), seeds);
}

TEST_F(SkillListTest, ADamagedFileIsReplacedByTheSeeds) {
    const QByteArray good = json::encode(std::vector{custom("mine", "Mine")});
    for (const QByteArray& bytes :
         {QByteArray(), QByteArray("garbage"), good.chopped(1), QByteArray("{}"),
          QByteArray("null"), QByteArray(good).replace("Mine", "\xFF"), QByteArray(64, '\0'),
          QByteArray(good).replace("false", "0")}) {
        put(skillsFile, bytes);
        SkillList list(paths, process.queue, preferences);
        EXPECT_EQ(list.all(), seeds) << bytes.toStdString();
        EXPECT_EQ(stored(), seeds);
    }
}

TEST_F(SkillListTest, SeedsThatCannotBeSavedAreUsedAndTheMigrationStaysOpen) {
    failWrites();
    EXPECT_EQ(skills.all(), seeds);
    EXPECT_EQ(content(skillsFile), std::nullopt);
    EXPECT_EQ(version(), std::nullopt);
}

TEST_F(SkillListTest, FileThatCannotBeReadIsNeverReplaced) {
    using Fault = std::pair<Operation, int>;
    for (const auto& [operation, code] :
         {Fault{Operation::Open, EACCES}, Fault{Operation::Open, EMFILE},
          Fault{Operation::Read, EIO}, Fault{Operation::Size, EIO}}) {
        store({custom("mine", "Mine")});
        files.fail(operation, QStringLiteral("skills.json"), code);
        SkillList list(paths, process.queue, preferences);
        EXPECT_EQ(list.all(), seeds) << code;
        ASSERT_TRUE(list.readError()) << code;
        EXPECT_EQ(list.readError()->code, code);
        files.healAll();
        EXPECT_EQ(list.addCustom(text("Yours"), 0), std::nullopt);
        EXPECT_EQ(list.update(text("building"), text("Ship"), 0), std::nullopt);
        EXPECT_FALSE(list.remove(text("marketing")));
        EXPECT_EQ(list.all(), seeds);
        EXPECT_THAT(stored(), ElementsAre(custom("mine", "Mine")));

        SkillList next(paths, process.queue, preferences);
        EXPECT_THAT(next.all(), ElementsAre(custom("mine", "Mine")));
        EXPECT_EQ(next.readError(), std::nullopt);
    }
}

TEST_F(SkillListTest, MissingFileIsNoFailureToReadIt) {
    EXPECT_EQ(skills.readError(), std::nullopt);
}

TEST_F(SkillListTest, AfterAnEraseAFileThatCouldNotBeReadIsForgotten) {
    store({custom("mine", "Mine")});
    files.fail(Operation::Open, QStringLiteral("skills.json"), EACCES);
    ASSERT_TRUE(skills.readError());
    files.healAll();
    skills.resetAfterErase();
    EXPECT_EQ(skills.readError(), std::nullopt);
    EXPECT_TRUE(skills.addCustom(text("Yours"), 0));
}

TEST_F(SkillListTest, ADirectoryInThePlaceOfTheFileGivesTheSeeds) {
    disk.setDirectory(paths.skillsFile());
    EXPECT_EQ(skills.all(), seeds);
    EXPECT_EQ(version(), std::nullopt);
    EXPECT_EQ(skills.addCustom(text("Mine"), 0), std::nullopt);
    EXPECT_EQ(skills.all(), seeds);
}

TEST_F(SkillListTest, AnEmptyListGetsBuildThroughTheMigration) {
    store({}, 0);
    EXPECT_THAT(skills.all(), ElementsAre(seeds.front()));
    EXPECT_THAT(stored(), ElementsAre(seeds.front()));
    EXPECT_EQ(version(), 1);
}

TEST_F(SkillListTest, AnEmptyListAfterTheMigrationFallsBackToBuildUnsaved) {
    store({});
    EXPECT_THAT(skills.all(), ElementsAre(seeds.front()));
    EXPECT_EQ(content(skillsFile), "[]");
}

TEST_F(SkillListTest, OnlyTheFirstEightAcceptableOnesAreKept) {
    std::vector<Skill> many;
    for (int i = 0; i < 10; ++i)
        many.push_back(custom(qPrintable(QStringLiteral("s%1").arg(i)), "Name"));
    many.insert(many.begin() + 2, custom("a b", "Dropped"));
    many.insert(many.begin() + 2, custom("s0", "Again"));
    store(many);
    EXPECT_THAT(ids(), ElementsAre(text("s0"), text("s1"), text("s2"), text("s3"), text("s4"),
                                   text("s5"), text("s6"), text("s7")));
    EXPECT_EQ(stored(), many);
}

TEST_F(SkillListTest, EntriesWithBadIdsOrNamesAreDropped) {
    store({custom("", "No id"),
           custom("a b", "Blank"),
           custom("x", "   "),
           custom("y", "123456789012345678901"),
           custom("good", " Good  One "),
           {QString(65, QLatin1Char('x')), text("Long"), 0, false}});
    EXPECT_THAT(skills.all(), ElementsAre(custom("good", "Good One")));
}

TEST_F(SkillListTest, ASeedSurvivesABadNameAndKnowsItsKind) {
    store(
        {{text("marketing"), text("  "), 0x111111, false}, {text("mine"), text("Mine"), 1, true}});
    EXPECT_THAT(skills.all(),
                ElementsAre(Skill{text("marketing"), text("Marketing"), 0x111111, true},
                            custom("mine", "Mine", 1)));
}

TEST_F(SkillListTest, OnlyTheLowBitsOfAColourAreKept) {
    store({custom("mine", "Mine", 0xFF123456)});
    EXPECT_EQ(skills.all().front().hexRGB, 0x123456u);
    const auto added = skills.addCustom(text("Other"), 0xAB654321);
    ASSERT_TRUE(added.has_value());
    EXPECT_EQ(added->hexRGB, 0x654321u);
    EXPECT_EQ(skills.update(text("mine"), text("Mine"), 0xFF000001)->hexRGB, 1u);
}

TEST_F(SkillListTest, TheMigrationRenamesOldDefaultsAndNothingElse) {
    store({{text("product_design"), text("Product design"), 1, true},
           {text("founder_ops"), text("Founder ops"), 2, true},
           {text("building"), text("Building"), 0x64D2FF, true}},
          0);
    EXPECT_THAT(skills.all(),
                ElementsAre(Skill{text("product_design"), text("Product Design"), 1, true},
                            Skill{text("founder_ops"), text("Founder Ops"), 2, true},
                            Skill{text("building"), text("Build"), 0x40C8E0, true}));
    EXPECT_EQ(stored(), skills.all());
    EXPECT_EQ(version(), 1);
}

TEST_F(SkillListTest, TheMigrationLeavesTheUsersOwnNamesAndColours) {
    const std::vector<Skill> own = {{text("founder_ops"), text("Ops"), 2, true},
                                    {text("building"), text("Building"), 0x111111, true}};
    store(own, 0);
    EXPECT_EQ(skills.all()[0], own[0]);
    EXPECT_EQ(skills.all()[1], (Skill{text("building"), text("Build"), 0x111111, true}));
}

TEST_F(SkillListTest, TheMigrationRunsOnce) {
    store({{text("building"), text("Building"), 0x64D2FF, true}}, 1);
    EXPECT_EQ(skills.all().front().name, text("Building"));
}

TEST_F(SkillListTest, TheMigrationAddsBuildUnlessItsNameIsTakenOrTheListIsFull) {
    store({custom("mine", "Mine")}, 0);
    EXPECT_THAT(ids(), ElementsAre(text("mine"), text("building")));

    store({custom("mine", "BÜILDING")}, 0);
    preferences.remove(key);
    SkillList named(paths, process.queue, preferences);
    EXPECT_EQ(named.all().size(), 1u);
    EXPECT_EQ(version(), 1);

    std::vector<Skill> full;
    for (int i = 0; i < 8; ++i)
        full.push_back(custom(qPrintable(QStringLiteral("s%1").arg(i)), "Name"));
    store(full, 0);
    preferences.remove(key);
    SkillList eight(paths, process.queue, preferences);
    EXPECT_EQ(eight.all(), full);
    EXPECT_EQ(version(), 1);
}

TEST_F(SkillListTest, AMigrationThatCannotBeSavedRunsAgainAtTheNextLaunch) {
    store({custom("mine", "Mine")}, 0);
    failWrites();
    EXPECT_EQ(skills.all().size(), 2u);
    EXPECT_EQ(version(), std::nullopt);
    EXPECT_EQ(stored().size(), 1u);
    files.healAll();
    SkillList next(paths, process.queue, preferences);
    EXPECT_EQ(next.all().size(), 2u);
    EXPECT_EQ(version(), 1);
    EXPECT_EQ(stored().size(), 2u);
}

TEST_F(SkillListTest, ANewSkillIsNamedIdentifiedAndSaved) {
    const auto added = skills.addCustom(text("Deep Work!"), 0xFF6482);
    EXPECT_EQ(added, custom("deep_work", "Deep Work!", 0xFF6482));
    EXPECT_EQ(skills.all().back(), *added);
    EXPECT_EQ(stored(), skills.all());
}

TEST_F(SkillListTest, IdsAreMadeOfTheLettersAndNumbersOfAnyScript) {
    store({custom("x", "X")});
    const auto idFor = [this](const char* name) { return skills.addCustom(text(name), 0)->id; };
    EXPECT_EQ(idFor("Übung 2!"), text("übung_2"));
    EXPECT_EQ(idFor("日本 -- 語"), text("日本_語"));
    EXPECT_EQ(idFor("__a__B__"), text("a_b"));
    EXPECT_EQ(idFor("!!!"), text("skill"));
    EXPECT_EQ(idFor("???"), text("skill_2"));
    EXPECT_EQ(idFor("A b"), text("a_b_2"));
}

TEST_F(SkillListTest, ExtraBlanksInANameAreNotStored) {
    EXPECT_EQ(skills.addCustom(text("  Deep \n  Work "), 0)->name, text("Deep Work"));
}

TEST_F(SkillListTest, ANameThatIsTooLongEmptyOrTakenAddsNothing) {
    EXPECT_EQ(skills.addCustom(QString(21, QLatin1Char('x')), 0), std::nullopt);
    EXPECT_EQ(skills.addCustom(text("   "), 0), std::nullopt);
    EXPECT_EQ(skills.addCustom(text("Bùilding"), 0), std::nullopt);
    EXPECT_EQ(skills.addCustom(text("MARKETING "), 0), std::nullopt);
    EXPECT_EQ(skills.all(), seeds);
    EXPECT_TRUE(skills.addCustom(QString(20, QLatin1Char('x')), 0).has_value());
}

TEST_F(SkillListTest, AfterEightSkillsNoneIsAdded) {
    EXPECT_TRUE(skills.addCustom(text("Seven"), 0).has_value());
    EXPECT_TRUE(skills.addCustom(text("Eight"), 0).has_value());
    EXPECT_EQ(skills.addCustom(text("Nine"), 0), std::nullopt);
    EXPECT_EQ(skills.all().size(), 8u);
}

TEST_F(SkillListTest, AnUpdateKeepsIdAndKind) {
    const auto updated = skills.update(text("building"), text(" Make "), 0x010203);
    EXPECT_EQ(updated, (Skill{text("building"), text("Make"), 0x010203, true}));
    EXPECT_EQ(stored().front(), *updated);
}

TEST_F(SkillListTest, ARenameToItselfInOtherCasePassesAndToAnotherSkillDoesNot) {
    ASSERT_TRUE(skills.addCustom(text("Mine"), 0).has_value());
    EXPECT_EQ(skills.update(text("mine"), text("MINE"), 0)->name, text("MINE"));
    EXPECT_EQ(skills.update(text("mine"), text("Building"), 0), std::nullopt);
    EXPECT_EQ(skills.update(text("building"), text("Building"), 0)->name, text("Building"));
    EXPECT_EQ(skills.update(text("nope"), text("Nope"), 0), std::nullopt);
    EXPECT_EQ(skills.update(text("mine"), text(" "), 0), std::nullopt);
}

TEST_F(SkillListTest, AnUpdateBeforeAnyOtherUseLoadsTheList) {
    EXPECT_TRUE(skills.update(text("building"), text("Make"), 0).has_value());
}

TEST_F(SkillListTest, TheLastSkillCannotBeDeletedAndAnUnknownOneIsNot) {
    store({custom("a", "A"), custom("b", "B")});
    EXPECT_FALSE(skills.remove(text("nope")));
    EXPECT_TRUE(skills.remove(text("a")));
    EXPECT_FALSE(skills.remove(text("b")));
    EXPECT_THAT(ids(), ElementsAre(text("b")));
    EXPECT_EQ(stored(), skills.all());
}

TEST_F(SkillListTest, ChangesThatCannotBeSavedAreTakenBack) {
    ASSERT_EQ(skills.all(), seeds);
    failWrites();
    EXPECT_EQ(skills.addCustom(text("Mine"), 0), std::nullopt);
    EXPECT_EQ(skills.update(text("building"), text("Make"), 0), std::nullopt);
    EXPECT_FALSE(skills.remove(text("product_design")));
    EXPECT_EQ(skills.all(), seeds);
    EXPECT_EQ(stored(), seeds);
    files.healAll();
    EXPECT_TRUE(skills.remove(text("product_design")));
}

TEST_F(SkillListTest, EverySavedChangeIsToldOnceWithTheListAsItIsNow) {
    std::vector<std::size_t> told;
    QObject::connect(&skills, &SkillList::changed, [&] { told.push_back(skills.all().size()); });
    const auto added = skills.addCustom(text("Deep Work"), 1);
    skills.update(added->id, text("Deep Play"), 2);
    skills.remove(added->id);
    EXPECT_THAT(told, ElementsAre(7, 7, 6));
    skills.resetAfterErase();
    EXPECT_THAT(told, ElementsAre(7, 7, 6, 6));
}

TEST_F(SkillListTest, RefusedOrUnsavedChangeIsNotTold) {
    int told = 0;
    QObject::connect(&skills, &SkillList::changed, [&] { ++told; });
    skills.addCustom(text("Build"), 1);
    skills.update(text("gone"), text("Deep Play"), 2);
    skills.remove(text("gone"));
    failWrites();
    skills.addCustom(text("Deep Work"), 1);
    skills.update(text("building"), text("Ship"), 2);
    skills.remove(text("building"));
    EXPECT_EQ(told, 0);
}

TEST_F(SkillListTest, AnUnknownSkillIsReplacedByTheFirstToWorkWith) {
    EXPECT_EQ(skills.by(text("marketing")).name, text("Marketing"));
    EXPECT_EQ(skills.by(text("nope")), seeds.front());
}

TEST_F(SkillListTest, AnUnknownSkillIsShownByItsSeedOrInGrey) {
    EXPECT_EQ(skills.display(text("code")).hexRGB, 0x64D2FFu);
    EXPECT_EQ(skills.display(text("old_thing")), custom("old_thing", "Old Thing", 0x8E8E93));
    ASSERT_TRUE(skills.remove(text("marketing")));
    EXPECT_EQ(skills.display(text("marketing")).name, text("Marketing"));
    ASSERT_TRUE(skills.update(text("building"), text("Make"), 7).has_value());
    EXPECT_EQ(skills.display(text("building")).name, text("Make"));
    EXPECT_EQ(skills.all().size(), 5u);
}

TEST_F(SkillListTest, AfterAnEraseTheSeedsAreBackAndNoFileIsWritten) {
    ASSERT_TRUE(skills.addCustom(text("Mine"), 0).has_value());
    ASSERT_TRUE(disk.remove(paths.skillsFile()).ok());
    preferences.removeAll();
    skills.resetAfterErase();
    EXPECT_EQ(skills.all(), seeds);
    EXPECT_EQ(version(), 1);
    EXPECT_EQ(content(skillsFile), std::nullopt);
}

} // namespace
} // namespace vantle

// Auto mode's memory where the file, the disk or the clock is not as it should be.
#include "sensing/AutoRules.h"
#include "sensing/AutoWorld.h"

#include <gmock/gmock.h>

#include <cerrno>

namespace vantle {
namespace {

constexpr const char* kGood =
    R"({"automaticRuleBundleIds":["a"],"rules":{"a":"building"},"seenApps":)"
    R"([{"bundleId":"a","lastSeenAt":"2026-02-28T10:00:00Z","name":"A"}],"taxonomySeedVersion":1})";

class AutoRulesFaultsTest : public testing::Test, protected AutoWorld {
protected:
    [[nodiscard]] QString error() const { return rules.persistenceError().value_or(QString()); }
    [[nodiscard]] bool areSeeds() const { return rules.rules().size() == 37; }

    AutoRules rules{rulesEnvironment()};
};

struct Replacement {
    const char* part;
    const char* other;
};

class DamagedAutoRulesTest : public AutoRulesFaultsTest,
                             public testing::WithParamInterface<Replacement> {};

TEST_P(DamagedAutoRulesTest, AreReplacedByTheSeedsSilently) {
    QByteArray content = kGood;
    ASSERT_TRUE(content.contains(GetParam().part));
    put(content.replace(GetParam().part, GetParam().other));
    rules.loadIfNeeded();
    EXPECT_TRUE(areSeeds());
    EXPECT_EQ(error(), QString());
    EXPECT_EQ(stored().rules.size(), 37) << "the file is whole again";
}

INSTANTIATE_TEST_SUITE_P(
    EveryKindOfDamage, DamagedAutoRulesTest,
    testing::Values(
        Replacement{kGood, ""}, Replacement{kGood, "garbage"}, Replacement{kGood, "[]"},
        Replacement{kGood, "null"}, Replacement{kGood, "\xEF\xBB\xBF{}"}, Replacement{"}]", "}"},
        Replacement{"1}", "1"}, Replacement{"1}", "1}}"}, Replacement{"\"A\"", "\"\xFF\""},
        Replacement{"\"A\"", "\"\\ud800\""}, Replacement{"{\"a\"", "{\"\\ud800\""},
        Replacement{"\"A\"", "7"}, Replacement{"\"building\"", "null"},
        Replacement{"\"building\"", "[1]"}, Replacement{"{\"a\":\"building\"}", "[]"},
        Replacement{"[\"a\"]", "{}"}, Replacement{"[\"a\"]", "[1]"}, Replacement{":1}", ":\"1\"}"},
        Replacement{":1}", ":1.0}"}, Replacement{":1}", ":99999999999999999999}"},
        Replacement{"28T10", "30T10"}, Replacement{"00Z", "00.5Z"},
        Replacement{"\"rules\"", "\"rulez\""}, Replacement{"seenApps", "seen"},
        Replacement{"lastSeenAt", "seenAt"},
        Replacement{R"([{"bundleId":"a","lastSeenAt":"2026-02-28T10:00:00Z","name":"A"}])", "{}"}));

TEST_F(AutoRulesFaultsTest, AFileWithoutItsOptionalPartsIsRead) {
    put(R"({"rules":{"a":"building"},"seenApps":[],"taxonomySeedVersion":null,"more":{}})");
    EXPECT_EQ(rules.ruling(text("a")), text("building"));
    EXPECT_FALSE(rules.isAutomaticallyCategorized(text("a")));
    EXPECT_EQ(rules.rules().size(), 1);
}

TEST_F(AutoRulesFaultsTest, OfARepeatedKeyTheLastCounts) {
    put(R"({"rules":7,"rules":{"a":"building","a":"ignore"},"seenApps":[]})");
    EXPECT_EQ(rules.ruling(text("a")), text("ignore"));
}

TEST_F(AutoRulesFaultsTest, AFileThatCannotBeReadCountsAsNone) {
    put(kGood);
    files.fail(Operation::Read, QStringLiteral("auto-rules.json"), EIO);
    rules.loadIfNeeded();
    EXPECT_TRUE(areSeeds());
    EXPECT_EQ(error(), QString());
}

TEST_F(AutoRulesFaultsTest, AFullDiskIsToldUntilTheNextSaveAndLosesNothingInMemory) {
    rules.loadIfNeeded();
    time.settle();
    files.fail(Operation::Write, temporaryFile, ENOSPC);
    rules.setRule(text("a"), text("ignore"));
    EXPECT_EQ(error(), QString()) << "nobody waits for the write";
    time.settle();
    EXPECT_THAT(error().toStdString(),
                testing::StartsWith("Couldn’t save Auto mode choices: No space left on device ("));
    EXPECT_EQ(rules.ruling(text("a")), text("ignore"));
    EXPECT_EQ(stored().rules.size(), 37) << "the file is as it was";

    files.healAll();
    rules.setRule(text("b"), text("ignore"));
    EXPECT_EQ(error(), QString());
    EXPECT_EQ(stored().rules.size(), 39);
}

TEST_F(AutoRulesFaultsTest, AReadOnlyDiskIsToldToo) {
    files.fail(Operation::Create, temporaryFile, EROFS);
    rules.loadIfNeeded();
    time.settle();
    EXPECT_THAT(error().toStdString(),
                testing::StartsWith("Couldn’t save Auto mode choices: Read-only file system ("));
    EXPECT_TRUE(areSeeds());
}

TEST_F(AutoRulesFaultsTest, AFailureAfterTheEndIsDropped) {
    files.fail(Operation::Create, temporaryFile, EROFS);
    {
        AutoRules gone(rulesEnvironment());
        gone.loadIfNeeded();
        queue.runDry();
    }
    time.settle();
    EXPECT_FALSE(hasFile());
}

TEST_F(AutoRulesFaultsTest, AnEraseThatFailsIsToldAndMemoryIsEmptyAllTheSame) {
    rules.loadIfNeeded();
    time.settle();
    files.fail(Operation::Remove, QStringLiteral("auto-rules.json"), EACCES);
    rules.eraseAllData();
    EXPECT_THAT(error().toStdString(),
                testing::StartsWith("Couldn’t erase Auto mode data: Permission denied ("));
    EXPECT_TRUE(rules.rules().isEmpty());
    files.healAll();
    rules.eraseAllData();
    EXPECT_EQ(error(), QString());
    EXPECT_FALSE(hasFile());
}

TEST_F(AutoRulesFaultsTest, ADateThatNoFileCanHoldIsToldAndTheFileStays) {
    rules.loadIfNeeded();
    time.shiftWall(1e12);
    rules.recordSeen(text("a"), text("A"));
    time.shiftWall(-1e12);
    static_cast<void>(takeWrites());
    rules.recordSeen(text("b"), text("B"));
    EXPECT_THAT(error().toStdString(), testing::StartsWith("Couldn’t save Auto mode choices: "));
    EXPECT_EQ(takeWrites(), 0);
}

TEST_F(AutoRulesFaultsTest, TenThousandSeenApplicationsBecomeTheFortyLatest) {
    AutoRulesState state;
    for (int i = 0; i < 10000; ++i)
        state.seenApps.push_back(
            {QString::number(i % 5000), text("App"), time.now() - Seconds((i * 7919) % 10000)});
    put(state);
    rules.loadIfNeeded();
    ASSERT_EQ(rules.seenApps().size(), 40u);
    for (std::size_t i = 0; i < 40; ++i)
        EXPECT_GE(rules.seenApps()[i].lastSeenAt, time.now() - Seconds(80));
    EXPECT_TRUE(
        std::ranges::is_sorted(rules.seenApps(), std::ranges::greater{}, &SeenApp::lastSeenAt));
}

TEST_F(AutoRulesFaultsTest, AFileOfTenMegabytesIsReadLikeAnyOther) {
    QByteArray content = kGood;
    content.replace("\"A\"", '"' + QByteArray(10 * 1024 * 1024, 'x') + '"');
    put(content);
    EXPECT_EQ(rules.ruling(text("a")), text("building"));
    EXPECT_EQ(rules.seenApps().front().name.size(), 10 * 1024 * 1024);
}

TEST_F(AutoRulesFaultsTest, NamesOfAnyKindComeBackAsTheyWere) {
    const QString name = text("two\nlines \"quoted\" \\ / مرحبا \u202E\u2028 \U0001F600 \uFEFF");
    rules.recordSeen(name, name);
    rules.setRule(name, text("ignore"));
    time.settle();
    EXPECT_EQ(disk.content(file)->count('\n'), 0);
    AutoRules again(rulesEnvironment());
    EXPECT_EQ(again.ruling(name), text("ignore"));
    EXPECT_EQ(again.seenApps().front().name, name);
}

TEST_F(AutoRulesFaultsTest, KeysStandInTheOrderOfTheirBytes) {
    rules.eraseAllData();
    for (const char* bundleId : {"\U0001F600", "\uFFFD", "b", "a", "B", ""})
        rules.setRule(text(bundleId), text("ignore"));
    time.settle();
    const QByteArray content = disk.content(file).value();
    qsizetype at = 0;
    for (const char* bundleId : {"{\"\":", "\"B\":", "\"a\":", "\"b\":", "\uFFFD", "\U0001F600"}) {
        const qsizetype here = content.indexOf(bundleId, at);
        EXPECT_GE(here, at) << bundleId << " in " << content.toStdString();
        at = here;
    }
}

TEST_F(AutoRulesFaultsTest, AClockSetBackForgetsNoApplicationAndStillWritesNewOnes) {
    rules.recordSeen(text("a"), text("A"));
    rules.recordSeen(text("a"), text("A"));
    time.shiftWall(-365.0 * 86400);
    static_cast<void>(takeWrites());
    rules.recordSeen(text("a"), text("A"));
    EXPECT_EQ(takeWrites(), 0) << "the last written time is less than a minute old";
    rules.recordSeen(text("b"), text("B"));
    EXPECT_EQ(takeWrites(), 1);
    AutoRules again(rulesEnvironment());
    again.loadIfNeeded();
    EXPECT_EQ(again.seenApps().size(), 2u);
}

TEST_F(AutoRulesFaultsTest, TheFileIsPrivate) {
    rules.loadIfNeeded();
    time.settle();
    EXPECT_EQ(disk.mode(file).value(), 0600);
}

} // namespace
} // namespace vantle

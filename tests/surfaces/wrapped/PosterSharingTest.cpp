#include "surfaces/wrapped/PosterSharing.h"

#include "fakes/FakeImageClipboard.h"
#include "fakes/FakeSaveDialog.h"
#include "fakes/FaultyFileSystem.h"
#include "fakes/MemoryFileSystem.h"
#include "fakes/VirtualTime.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace vantle {
namespace {

using Saved = WrappedView::Saved;

const QString kChosen = QStringLiteral("/home/ada/Pictures/week.png");

class PosterSharingTest : public testing::Test {
protected:
    void save() {
        sharing.save("a poster", QStringLiteral("wrapped-week.png"), nullptr,
                     [this](Saved how) { saved.push_back(how); });
    }
    void choose(const std::optional<QString>& path) {
        dialog.choose(path);
        queue.runDry();
        time.settle();
    }

    fakes::VirtualTime time;
    fakes::ManualQueue queue;
    fakes::MemoryFileSystem disk;
    fakes::FaultyFileSystem files{disk};
    fakes::FakeImageClipboard clipboard;
    fakes::FakeSaveDialog dialog;
    PosterSharing sharing{{clipboard, dialog, files, time, queue}};
    std::vector<Saved> saved;
};

TEST_F(PosterSharingTest, CopiesTheVeryBytes) {
    sharing.copy("a poster");
    EXPECT_EQ(clipboard.content, "a poster");
}

TEST_F(PosterSharingTest, AsksUnderTheSuggestedNameForAPng) {
    save();
    ASSERT_EQ(dialog.asked.size(), 1U);
    EXPECT_EQ(dialog.asked[0].suggestedName, QStringLiteral("wrapped-week.png"));
    EXPECT_EQ(dialog.asked[0].ending, QStringLiteral("png"));
    EXPECT_TRUE(saved.empty());
}

TEST_F(PosterSharingTest, WritesWhereTheUserChose) {
    save();
    choose(kChosen);
    EXPECT_EQ(saved, std::vector{Saved::Written});
    EXPECT_EQ(disk.content(kChosen), "a poster");
    EXPECT_EQ(disk.mode(kChosen).value(), 0644) << "to be given to others";
}

TEST_F(PosterSharingTest, WaitsForNoDiskOnTheMainThread) {
    save();
    dialog.choose(kChosen);
    EXPECT_FALSE(disk.exists(kChosen));
    EXPECT_FALSE(queue.empty());
    EXPECT_TRUE(saved.empty());
}

TEST_F(PosterSharingTest, WritesNothingForWhoTurnsAway) {
    save();
    choose(std::nullopt);
    EXPECT_EQ(saved, std::vector{Saved::Cancelled});
    EXPECT_TRUE(disk.paths().isEmpty());
}

TEST_F(PosterSharingTest, TellsWhenItCannotBeWrittenAndLeavesWhatStoodThere) {
    disk.setContent(kChosen, "last week", 0640);
    files.failNthCall(3, EACCES); // the making of the file
    save();
    choose(kChosen);
    EXPECT_EQ(saved, std::vector{Saved::Failed});
    EXPECT_EQ(disk.content(kChosen), "last week");
    EXPECT_EQ(disk.paths(), QStringList{kChosen});
}

TEST_F(PosterSharingTest, BeginsTheNextTimeWhereItWroteTheLastTime) {
    save();
    EXPECT_TRUE(dialog.asked.back().folder.isEmpty());
    choose(kChosen);
    save();
    EXPECT_EQ(dialog.asked.back().folder, QStringLiteral("/home/ada/Pictures"));
}

TEST_F(PosterSharingTest, AskingAgainTakesTheDialogBeforeAway) {
    save();
    save();
    EXPECT_TRUE(dialog.isOpen());
    choose(kChosen);
    EXPECT_EQ(saved.size(), 1U);
}

} // namespace
} // namespace vantle

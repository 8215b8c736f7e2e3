// The page's side of the overlay controller: who may say what, and what comes of it.
#include "ceremony/CeremonyWorld.h"
#include "fakes/VirtualTime.h"

#include <QJsonArray>
#include <QJsonObject>

#include <gtest/gtest.h>

namespace vantle::tests {
namespace {

QJsonObject message(const char* type) {
    return {{QStringLiteral("type"), QString::fromUtf8(type)}};
}

class WebCeremonyTest : public testing::Test {
protected:
    WebCeremonyTest() {
        time.attach(queue);
        world.web.pageExists = true;
    }

    void play(CeremonyShow show = CeremonyShow::Full) {
        world.controller.play(show, 0x00A0FF, QStringLiteral("Writing"));
        time.settle();
    }
    /// The page of that number, over all shows so far, says something. As a real one does, it may
    /// be destroyed by what it says.
    void say(qsizetype page, const QJsonValue& body) {
        const auto handler = world.web.pages.at(page);
        handler(body);
    }

    fakes::VirtualTime time;
    fakes::ManualQueue queue;
    CeremonyWorld world{time, time, queue};
};

TEST_F(WebCeremonyTest, APageStandsOverEveryScreenInPlaceOfTheNativeShow) {
    play();
    ASSERT_EQ(world.windows.count(), 2);
    EXPECT_EQ(world.windows.all().front().kind, ShownWindow::Kind::Web);
    EXPECT_EQ(world.controller.webViewCount(), 2);
    EXPECT_TRUE(queue.empty());
}

TEST_F(WebCeremonyTest, OnlyAFullShowTakesAPickAndTheOthersAreNova) {
    world.random.numbers = {0.5};
    play(CeremonyShow::Quick);
    EXPECT_TRUE(world.windows.all().front().script.contains(QStringLiteral("\"nova\"")));
    EXPECT_EQ(world.controller.lastVariantIndex(), -1);
    play();
    EXPECT_TRUE(world.windows.all().front().script.contains(QStringLiteral("\"scan\"")));
    EXPECT_EQ(world.controller.lastVariantIndex(), 2);
}

TEST_F(WebCeremonyTest, TheWindowsGoWhenTheLastPageIsDone) {
    play();
    say(0, message("done"));
    EXPECT_EQ(world.windows.count(), 2);
    say(1, message("done"));
    EXPECT_EQ(world.windows.count(), 0);
}

TEST_F(WebCeremonyTest, TwoWordsOfOnePageCountAsTwo) {
    play();
    say(0, message("done"));
    say(0, message("done"));
    EXPECT_EQ(world.windows.count(), 0);
}

TEST_F(WebCeremonyTest, APageThatNeverSaysAnythingGoesAtTheHardStop) {
    play();
    time.advance(3.19);
    EXPECT_EQ(world.windows.count(), 2);
    time.advance(0.02);
    EXPECT_EQ(world.windows.count(), 0);
}

TEST_F(WebCeremonyTest, LoadingTimeDoesNotEatIntoTheShow) {
    play();
    time.advance(3.0);
    say(0, message("started"));
    time.advance(3.1);
    EXPECT_EQ(world.windows.count(), 2);
    time.advance(0.2);
    EXPECT_EQ(world.windows.count(), 0);
}

TEST_F(WebCeremonyTest, APageCanMoveTheStopOnceAndNotKeepItAway) {
    play();
    for (int i = 0; i < 40; ++i) {
        say(i % 2, message("started"));
        time.advance(0.1);
    }
    EXPECT_EQ(world.windows.count(), 0);
}

TEST_F(WebCeremonyTest, AQuickShowThatIsNotDoneInTimeIsCut) {
    play(CeremonyShow::Quick);
    say(0, message("started"));
    time.advance(1.51);
    EXPECT_EQ(world.windows.count(), 0);
}

TEST_F(WebCeremonyTest, GarbageIsIgnored) {
    play();
    const QJsonValue garbage[] = {QJsonValue(),
                                  QStringLiteral("done"),
                                  5.0,
                                  QJsonArray{QStringLiteral("done")},
                                  QJsonObject{},
                                  QJsonObject{{QStringLiteral("kind"), QStringLiteral("done")}},
                                  QJsonObject{{QStringLiteral("type"), 1}},
                                  message("Done"),
                                  message("done ")};
    for (const QJsonValue& body : garbage) {
        say(0, body);
        say(1, body);
    }
    EXPECT_EQ(world.windows.count(), 2);
    EXPECT_EQ(world.controller.webDoneCount(), 0);
    EXPECT_FALSE(world.controller.didRearmHardStop());
}

TEST_F(WebCeremonyTest, AMessageOfAnEarlierShowIsDropped) {
    play();
    play();
    say(0, message("done"));
    say(1, message("done"));
    say(0, message("started"));
    EXPECT_EQ(world.windows.count(), 2);
    EXPECT_FALSE(world.controller.didRearmHardStop());
}

TEST_F(WebCeremonyTest, AStartAfterTheHardStopArmsOneThatFindsNothing) {
    play();
    time.advance(3.3);
    EXPECT_FALSE(world.controller.isHardStopPending());
    say(0, message("started"));
    EXPECT_TRUE(world.controller.isHardStopPending());
    time.advance(3.3);
    EXPECT_FALSE(world.controller.isHardStopPending());
}

TEST_F(WebCeremonyTest, AMessageAfterTheControllerIsGoneDoesNothing) {
    WebStage::MessageHandler late;
    {
        CeremonyWorld other{time, time, queue};
        other.web.pageExists = true;
        other.controller.play(CeremonyShow::Full, 0, std::nullopt);
        late = other.web.pages.front();
    }
    late(message("done"));
    EXPECT_EQ(world.windows.count(), 0);
}

} // namespace
} // namespace vantle::tests

// Lives of months with the program: presses, absences, locked screens, nights of suspension, clocks
// that jump, full disks, kills, applications that come and go, other programs that write into the
// log. After every step the promises that must never break are checked.
//
// VANTLE_LAB_SECONDS=<n> plays lives for that long, from a seed that comes from the clock and is
// printed; without it the same few lives are played each time, so that a failure is about the
// change that is tested. VANTLE_SIM_SEED=<seed> plays one life again.
#include "sim/Life.h"

#include "tracking/JsonForm.h"

#include <QDateTime>
#include <QDeadlineTimer>

#include <gtest/gtest.h>

#include <iostream>

namespace vantle::tests {
namespace {

constexpr int kDays = 60;

TEST(Life, KeepsItsPromises) {
    constexpr std::uint32_t kLives = 4;
    const bool one = qEnvironmentVariableIsSet("VANTLE_SIM_SEED");
    const int seconds = qEnvironmentVariableIntValue("VANTLE_LAB_SECONDS");
    std::uint32_t first = 1;
    if (one)
        first = qgetenv("VANTLE_SIM_SEED").toUInt();
    else if (seconds > 0)
        first = static_cast<std::uint32_t>(QDateTime::currentSecsSinceEpoch() * kLives);
    std::cout << "first seed: VANTLE_SIM_SEED=" << first << std::endl;
    const QDeadlineTimer end(1000 * seconds);
    int kills = 0;
    int accounts = 0;
    int started = 0;
    int splits = 0;
    int days = 0;
    for (std::uint32_t life = 0;
         one ? life < 1 : life < kLives || (seconds > 0 && !end.hasExpired()); ++life) {
        const std::uint32_t seed = first + life;
        Life user(seed);
        for (int day = 1; day <= kDays; ++day) {
            const QStringList broken = user.day();
            ASSERT_TRUE(broken.isEmpty()) << "VANTLE_SIM_SEED=" << seed << " day " << day << ": "
                                          << broken.join(QStringLiteral("; ")).toStdString()
                                          << "\nafter " << user.story().toStdString();
            ++days;
        }
        kills += user.promises.killsChecked;
        accounts += user.promises.accountsChecked;
        started += user.sessionsByItself;
        splits += user.splits;
    }
    const auto tell = [](const char* what, int count) {
        std::cout << "lab: simulated lives: " << what << ": " << count << std::endl;
    };
    tell("days", days);
    tell("kills", kills);
    tell("stretches of work", accounts);
    tell("auto starts", started);
    tell("splits", splits);
    if (one) return;
    // A life in which these never happen checks nothing.
    EXPECT_GE(kills, 20);
    EXPECT_GE(accounts, 10);
    EXPECT_GE(started, 20);
    EXPECT_GE(splits, 20);
}

/// A life with one session in the log, of 600 s, and none open.
class PromisesTest : public testing::Test {
protected:
    PromisesTest() {
        life.press();
        advance(600);
        life.press();
        EXPECT_TRUE(life.promises.broken().isEmpty());
    }
    void advance(double seconds) {
        for (; seconds > 0; seconds -= 20) {
            life.touch();
            life.world.time.advance(20);
        }
    }
    [[nodiscard]] QByteArray log() {
        return life.world.disk.content(ModelWorld::file("sessions.jsonl")).value_or(QByteArray());
    }
    void setLog(const QByteArray& content) {
        life.world.disk.setContent(ModelWorld::file("sessions.jsonl"), content);
    }
    void expectBroken(const char* promise) {
        const QStringList broken = life.promises.broken();
        EXPECT_TRUE(broken.contains(QLatin1String(promise)))
            << broken.join(QStringLiteral("; ")).toStdString();
    }

    void expectBrokenWith(const char* beginning) {
        const QStringList broken = life.promises.broken();
        EXPECT_FALSE(broken.filter(QLatin1String(beginning)).isEmpty())
            << broken.join(QStringLiteral("; ")).toStdString();
    }

    Life life{1};
};

TEST_F(PromisesTest, MissTheRecordThatIsGone) {
    setLog({});
    expectBroken("no record is lost");
}

TEST_F(PromisesTest, FindTheRecordThatIsThereTwice) {
    const QByteArray line = log();
    setLog(line + line);
    expectBroken("a record is logged once");
}

TEST_F(PromisesTest, FindTheRecordThatChanged) {
    setLog(log().replace("\"activeSeconds\":600", "\"activeSeconds\":601"));
    expectBroken("of a record only the note changes");
}

TEST_F(PromisesTest, MissALineOfAnotherProgram) {
    life.promises.noteGarbage("garbage 1");
    setLog(log() + "garbage 2\n");
    expectBroken("what others wrote stays, byte for byte");
}

TEST_F(PromisesTest, MissTheMarkerOfAnOpenSession) {
    life.world.press();
    life.world.disk.setContent(ModelWorld::file("open-session.json"), "{}");
    EXPECT_TRUE(life.promises.broken().isEmpty());
    ASSERT_TRUE(life.world.disk.remove(ModelWorld::file("open-session.json")));
    expectBroken("an open session has a marker");
}

TEST_F(PromisesTest, FindAMarkerWithoutASession) {
    life.world.disk.setContent(ModelWorld::file("open-session.json"), "{}");
    expectBroken("without a session there is no marker");
}

TEST_F(PromisesTest, FindTimeWithoutWork) {
    life.world.press();
    advance(60);
    life.world.model->tracker().debugAdvance(3600);
    expectBroken("only time in which one can work is counted");
    life.world.press();
    const QStringList broken = life.promises.broken();
    for (const char* promise : {"a record counts only time in which one can work",
                                "a record counts no more than its length"})
        EXPECT_TRUE(broken.contains(QLatin1String(promise))) << promise;
}

TEST_F(PromisesTest, FindTimeWithoutInput) {
    life.press();
    advance(600);
    life.world.model->tracker().debugAdvance(30);
    life.press();
    expectBrokenWith("the log holds what was worked: 630 s");
}

TEST_F(PromisesTest, FindAnAbsenceThatWasCounted) {
    life.press();
    advance(600);
    life.world.idleSource.fix(0); // a desktop that takes every moment for an input
    life.world.time.advance(400);
    life.press();
    expectBrokenWith("the log holds what was worked: 1000 s");
}

TEST_F(PromisesTest, FindWorkThatWasNotCounted) {
    life.press();
    advance(300);
    life.world.idleSource.fix(1000); // a desktop that sees no input
    for (int step = 0; step < 15; ++step) {
        life.promises.noteInput();
        life.world.time.advance(20);
    }
    life.press();
    expectBrokenWith("the log holds what was worked");
}

TEST_F(PromisesTest, FindTheMinutesThatAKillTookOrInvented) {
    const QString file = ModelWorld::file("open-session.json");
    for (const int added : {-120, 100}) {
        life.world.press();
        advance(600);
        const QStringList broken = life.killAndReturn([&] {
            life.world.time.advance(200);
            auto marker =
                json::decodeMarker(life.world.disk.content(file).value_or(QByteArray())).value();
            marker.activeSeconds += added;
            marker.lastSeenAt += Seconds(added);
            life.world.disk.setContent(file, json::encode(marker).value());
        });
        EXPECT_EQ(broken.size(), 1) << added << " s";
        life.world.told.recoveryDiscard();
    }
    life.world.press();
    advance(600);
    EXPECT_EQ(life.killAndReturn(), QStringList());
}

TEST_F(PromisesTest, HoldAKillToTheMinute) {
    life.world.press();
    advance(600);
    const auto least = life.promises.leastOffer();
    ASSERT_TRUE(least);
    EXPECT_EQ(*least, 539);
    life.promises.noteClockSet();
    EXPECT_FALSE(life.promises.leastOffer()) << "nothing can be promised for this session";
    life.world.press();
    life.world.press();
    advance(600);
    EXPECT_TRUE(life.promises.leastOffer()) << "but for the next";
    life.promises.noteDiskBroken(true);
    life.promises.noteDiskBroken(false);
    EXPECT_FALSE(life.promises.leastOffer());
}

} // namespace
} // namespace vantle::tests

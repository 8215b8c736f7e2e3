// Months of somebody's days with the program, in a few seconds: presses, absences, sleeping
// screens, clocks that jump, full disks, kills, other programs that write into the log. After every
// step the promises that must never break are checked. A failure prints its seed and step;
// VANTLE_SIM_SEED=<seed> plays that one life again.
#include "app/ModelWorld.h"

#include <QSet>

#include <gtest/gtest.h>

#include <map>
#include <random>

namespace vantle::tests {
namespace {

using State = TrackerCore::State;

class Life {
public:
    explicit Life(std::uint32_t seed) : m_random(seed) { m_world.launch(); }

    void step() {
        static constexpr std::array<void (Life::*)(), 16> deeds = {
            &Life::work,      &Life::work,        &Life::press,        &Life::press,
            &Life::beAway,    &Life::changeSkill, &Life::sleepScreens, &Life::setClock,
            &Life::breakDisk, &Life::healDisk,    &Life::die,          &Life::answerOffer,
            &Life::logByHand, &Life::editLog,     &Life::writeGarbage, &Life::quitAndReturn};
        (this->*deeds[pick(deeds.size())])();
        m_world.settle();
        check();
    }

private:
    std::size_t pick(std::size_t count) {
        return std::uniform_int_distribution<std::size_t>(0, count - 1)(m_random);
    }
    double seconds(double most) { return std::uniform_real_distribution(0.0, most)(m_random); }
    TrackerCore& tracker() { return m_world.model->tracker(); }

    void work() {
        for (double left = seconds(2000.0); left > 0; left -= 20.0) {
            m_world.idleSource.touch();
            m_world.time.advance(std::min(left, 20.0));
        }
    }
    void press() {
        // A session writes its marker over that of an offer that is still open.
        m_world.told.recoveryKeep = nullptr;
        m_world.press();
    }
    void beAway() { m_world.time.advance(seconds(5000.0)); }
    void changeSkill() {
        const auto& skills = m_world.model->skills();
        m_world.model->selectSkill(skills[pick(skills.size())].id,
                                   AppModel::SkillSelectionOrigin::Human);
    }
    void sleepScreens() {
        m_world.screens.sleep();
        m_world.time.advance(seconds(4000.0));
        m_world.screens.wake();
    }
    void setClock() {
        m_clockJumped = true;
        m_world.time.shiftWall(seconds(8000.0) - 4000.0);
    }
    void breakDisk() {
        m_broken = true;
        m_world.breakWrites(QStringLiteral("sessions.jsonl"), true);
        if (pick(2) == 0) m_world.breakWrites(QStringLiteral("open-session.json"), true);
    }
    void healDisk() {
        m_world.breakWrites(QStringLiteral("sessions.jsonl"), false);
        m_world.breakWrites(QStringLiteral("open-session.json"), false);
    }
    void die() {
        const bool wasRunning = tracker().state() == State::Running;
        const double counted = static_cast<double>(tracker().displayActiveSeconds());
        const auto startedAt = tracker().startedAt();
        m_world.kill();
        m_world.told.recoveryKeep = nullptr;
        m_world.launch();
        // What a kill costs is bounded: all but the last minute is in the marker.
        if (wasRunning && counted >= 180.0 && !m_broken && !m_clockJumped && startedAt) {
            ASSERT_TRUE(m_world.told.recoveryKeep);
            EXPECT_GE(offered(), counted - 61.0);
        }
        healDisk();
        m_broken = false;
    }
    /// The seconds of the last offer.
    double offered() const {
        for (auto call = m_world.told.calls.rbegin(); call != m_world.told.calls.rend(); ++call)
            if (call->startsWith(QStringLiteral("recovery ")) && !call->endsWith(u'e'))
                return call->sliced(9).toDouble();
        return 0;
    }
    void answerOffer() {
        if (!m_world.told.recoveryKeep || tracker().state() != State::Idle) return;
        (pick(2) == 0 ? m_world.told.recoveryKeep : m_world.told.recoveryDiscard)();
        m_world.told.recoveryKeep = nullptr;
    }
    void logByHand() {
        (void)m_world.model->quickLog(m_world.model->skills().front().id,
                                      static_cast<int>(pick(1000)), QStringLiteral("by\nhand"));
    }
    void editLog() {
        const auto log = m_world.log();
        if (log.empty()) return;
        const QUuid id = log[pick(log.size())].id;
        if (pick(2) == 0)
            (void)tracker().updateNote(id, QStringLiteral("a \u2028 note"));
        else if (tracker().deleteSession(id))
            m_known.erase(id);
    }
    void writeGarbage() {
        // Another program appends a line of its own, whole lines only.
        const QString path = ModelWorld::file("sessions.jsonl");
        const QByteArray line = "garbage " + QByteArray::number(++m_garbageCount);
        m_world.disk.setContent(path,
                                m_world.disk.content(path).value_or(QByteArray()) + line + '\n');
        m_garbage.append(line);
    }
    void quitAndReturn() {
        m_world.model->quit();
        m_world.kill();
        m_world.told.recoveryKeep = nullptr;
        m_world.launch();
    }

    void check() {
        checkTracker();
        checkLog();
        checkMarker();
    }

    void checkTracker() {
        const auto inner = tracker().internals();
        const State state = tracker().state();
        EXPECT_EQ(inner.segmentStart.has_value(), state == State::Running);
        EXPECT_EQ(inner.ticking, state == State::Running);
        EXPECT_EQ(tracker().startedAt().has_value(), state != State::Idle);
        EXPECT_EQ(tracker().currentSkillId().has_value(), state != State::Idle);
        if (state == State::Idle) {
            EXPECT_EQ(inner.accumulatedSeconds, 0.0);
        }
    }

    void checkLog() {
        QSet<QUuid> ids;
        std::map<QUuid, std::int64_t> now;
        for (const Session& session : m_world.log()) {
            EXPECT_FALSE(ids.contains(session.id)) << "logged twice";
            ids.insert(session.id);
            now[session.id] = session.activeSeconds;
            if (!m_clockJumped) {
                EXPECT_LE(session.activeSeconds,
                          (session.endedAt - session.startedAt).count() + 1.0);
            }
        }
        for (const auto& [id, activeSeconds] : m_known) {
            ASSERT_TRUE(now.contains(id)) << "a record was lost";
            EXPECT_EQ(now[id], activeSeconds);
        }
        m_known = std::move(now);

        QByteArrayList garbage;
        const auto lines = m_world.disk.content(ModelWorld::file("sessions.jsonl"))
                               .value_or(QByteArray())
                               .split('\n');
        for (const QByteArray& line : lines)
            if (line.startsWith("garbage")) garbage.append(line);
        EXPECT_EQ(garbage, m_garbage);
    }

    void checkMarker() {
        if (m_broken) return;
        if (tracker().state() != State::Idle) {
            EXPECT_TRUE(m_world.hasMarker());
        } else if (!m_world.told.recoveryKeep) {
            EXPECT_FALSE(m_world.hasMarker());
        }
    }

    std::mt19937 m_random;
    ModelWorld m_world;
    std::map<QUuid, std::int64_t> m_known; ///< what must be in the log
    QByteArrayList m_garbage;
    int m_garbageCount = 0;
    bool m_broken = false;      ///< a write may have failed since the last launch
    bool m_clockJumped = false; ///< at any time before
};

TEST(Life, KeepsItsPromises) {
    constexpr std::uint32_t kLives = 60;
    constexpr int kSteps = 150;
    const bool one = qEnvironmentVariableIsSet("VANTLE_SIM_SEED");
    const auto first = one ? qEnvironmentVariableIntValue("VANTLE_SIM_SEED") : 1;
    for (std::uint32_t life = 0; life < (one ? 1 : kLives); ++life) {
        const auto seed = static_cast<std::uint32_t>(first) + life;
        Life somebody(seed);
        for (int step = 0; step < kSteps; ++step) {
            somebody.step();
            ASSERT_FALSE(testing::Test::HasFailure())
                << "VANTLE_SIM_SEED=" << seed << " step " << step;
        }
    }
}

} // namespace
} // namespace vantle::tests

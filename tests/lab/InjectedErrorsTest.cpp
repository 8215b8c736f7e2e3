// Every error of the file system at every call of a whole life: the clock goes on, the user reads
// the system's own words, the next success takes them away, and memory and disk agree.
#include "lab/Effort.h"
#include "lab/ScriptedLife.h"
#include "sensing/AutoRules.h"
#include "tracking/JsonForm.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <cstring>

namespace vantle::tests {
namespace {

using Operation = fakes::FaultyFileSystem::Operation;
using State = TrackerCore::State;

constexpr std::array kCodes{ENOSPC, EDQUOT, EIO, EACCES, EROFS, EMFILE, EINTR};

constexpr std::array kOperations{
    Operation::Open,
    Operation::Create,
    Operation::Read,
    Operation::Write,
    Operation::Size,
    Operation::Sync,
    Operation::Truncate,
    Operation::Close,
    Operation::Names,
    Operation::Rename,
    Operation::MakeDirectories,
    Operation::Remove,
    Operation::SetMode,
    Operation::Mode,
    Operation::SyncDirectory,
};

/// One call fails, or every call of an operation while one deed is done.
struct Fault {
    int code = 0;
    int call = 0; ///< counted from 1 over the life; 0 for the other kind
    std::size_t deed = 0;
    Operation operation = Operation::Open;
};

/// Half of a write goes down before it fails: so every fault of a write is a short write as well.
class FaultyLife {
public:
    FaultyLife(std::uint32_t seed, const Fault& fault)
        : m_life(seed, ScriptedLife::Home(seed % ScriptedLife::kHomes))
        , m_fault(fault) {}

    /// Lives it and looks at it after each deed.
    void run() {
        fakes::FaultyFileSystem& files = m_life.world.files;
        if (m_fault.call > 0) files.failNthCall(m_fault.call, m_fault.code);
        for (std::size_t i = 0; i < m_life.deeds().size(); ++i) {
            const bool stands = m_fault.call == 0 && i == m_fault.deed;
            if (stands) files.fail(m_fault.operation, QStringLiteral("*"), m_fault.code);
            const std::size_t before = files.calls().size();
            m_life.perform(m_life.deeds()[i]);
            noteFailed(before, stands);
            if (stands) files.heal(m_fault.operation, QStringLiteral("*"));
            SCOPED_TRACE(testing::Message() << "deed " << m_life.deeds()[i].name);
            checkClock();
            checkText();
            if (testing::Test::HasFailure()) return;
        }
        files.healAll();
        checkSuccess();
        checkAgreement();
    }

    [[nodiscard]] std::size_t calls() const { return m_life.world.files.calls().size(); }
    [[nodiscard]] std::size_t deeds() const { return m_life.deeds().size(); }
    [[nodiscard]] bool hit() const { return !m_failed.empty(); }
    [[nodiscard]] QString story() const {
        if (m_failed.empty()) return QStringLiteral("nothing failed");
        return QStringLiteral("%1 calls failed, first operation %2 of %3 -> %4 with %5")
            .arg(m_failed.size())
            .arg(int(m_failed.front().operation))
            .arg(m_failed.front().path, m_failed.front().target)
            .arg(QLatin1String(std::strerror(m_fault.code)));
    }

private:
    void noteFailed(std::size_t before, bool stands) {
        const auto& calls = m_life.world.files.calls();
        for (std::size_t i = before; i < calls.size(); ++i)
            if (int(i) + 1 == m_fault.call || (stands && calls[i].operation == m_fault.operation))
                m_failed.push_back(calls[i]);
    }

    [[nodiscard]] bool failed(Operation operation, const char* name) const {
        return std::ranges::any_of(m_failed, [&](const fakes::FaultyFileSystem::Call& call) {
            return call.operation == operation && call.path.contains(QLatin1String(name));
        });
    }

    [[nodiscard]] TrackerCore& tracker() const { return m_life.world.model->tracker(); }

    void checkClock() {
        if (tracker().state() != State::Running) return;
        const auto before = tracker().displayActiveSeconds();
        m_life.world.idleSource.touch();
        m_life.world.time.advance(3.0);
        EXPECT_EQ(tracker().state(), State::Running);
        EXPECT_GE(tracker().displayActiveSeconds(), before + 2);
    }

    void checkText() const {
        for (const auto& text :
             {tracker().storageError(), m_life.world.autoSkill->rules().persistenceError()})
            if (text) {
                EXPECT_TRUE(text->contains(QLatin1String(std::strerror(m_fault.code))))
                    << text->toStdString();
            }
    }

    void checkSuccess() {
        m_life.perform(ScriptedLife::logSomeTime());
        EXPECT_FALSE(tracker().storageError()) << tracker().storageError()->toStdString();
    }

    void checkAgreement() {
        const Account account = Account::of(m_life.world.disk);
        // With the mode not set, the program can't say that a record is there, and logs it again.
        const bool isDoubled = failed(Operation::SetMode, "sessions.jsonl");
        if (!isDoubled) {
            EXPECT_EQ(account.doubled, QStringList());
            EXPECT_EQ(account.records.size(), m_life.acknowledged().records);
        }
        EXPECT_GE(account.records.size(), m_life.acknowledged().records);
        EXPECT_TRUE(m_life.hasOldLog());
        if (!m_life.world.skills->readError() && account.skills.isArray()) {
            EXPECT_EQ(QJsonDocument(account.skills.toArray()).toJson(),
                      QJsonDocument::fromJson(json::encode(m_life.world.skills->all())).toJson());
        }
        checkRules(account);
        for (const QString& path : account.temporaries)
            EXPECT_TRUE(failed(Operation::Remove, ".tmp")) << path.toStdString();
    }

    void checkRules(const Account& account) const {
        const AutoRules& rules = m_life.world.autoSkill->rules();
        if (rules.persistenceError() || account.rules.isUndefined()) return;
        QJsonObject expected;
        for (auto rule = rules.rules().cbegin(); rule != rules.rules().cend(); ++rule)
            expected.insert(rule.key(), rule.value());
        EXPECT_EQ(QJsonDocument(account.rules.toObject()).toJson(),
                  QJsonDocument(expected).toJson());
    }

    ScriptedLife m_life;
    const Fault m_fault;
    std::vector<fakes::FaultyFileSystem::Call> m_failed;
};

/// The faults of one life by number: each code at each call, then each operation through each deed.
Fault faultAt(std::size_t number, std::size_t calls, std::size_t deeds) {
    const int code = kCodes[number % kCodes.size()];
    const std::size_t rest = number / kCodes.size();
    if (rest < calls) return {code, int(rest) + 1, 0, {}};
    const std::size_t standing = (rest - calls) % (deeds * kOperations.size());
    return {code, 0, standing / kOperations.size(), kOperations[standing % kOperations.size()]};
}

TEST(Lab, EveryErrorLeavesTheClockRunningAndTheFilesTrue) {
    Effort effort("injected errors");
    qint64 injections = 0;
    const std::uint32_t few = 3 * ScriptedLife::kHomes;
    while (effort.goesOn(few) && !testing::Test::HasFailure()) {
        const std::uint32_t seed = effort.nextSeed();
        FaultyLife sound(seed, {ENOSPC, -1, 0, {}});
        sound.run();
        const std::size_t all =
            (sound.calls() + sound.deeds() * kOperations.size()) * kCodes.size();
        const std::size_t tries = Effort::isLong() ? 400 : Effort::isOneLife() ? all : 8;
        std::mt19937 random(seed);
        for (std::size_t i = 0; i < tries && !testing::Test::HasFailure(); ++i) {
            const std::size_t number =
                Effort::isOneLife()
                    ? i
                    : std::uniform_int_distribution(std::size_t{0}, all - 1)(random);
            FaultyLife life(seed, faultAt(number, sound.calls(), sound.deeds()));
            life.run();
            if (life.hit()) ++injections;
            EXPECT_FALSE(testing::Test::HasFailure())
                << "VANTLE_LAB_SEED=" << seed << ", fault " << number << ": "
                << life.story().toStdString();
        }
    }
    effort.tell("lives", effort.lives());
    effort.tell("injections", injections);
    EXPECT_GE(injections, 20);
}

} // namespace
} // namespace vantle::tests

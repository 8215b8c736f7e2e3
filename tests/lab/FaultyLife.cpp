#include "lab/FaultyLife.h"

#include "sensing/AutoRules.h"
#include "tracking/JsonForm.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <cstring>

namespace vantle::tests {

namespace {

using State = TrackerCore::State;

} // namespace

FaultyLife::FaultyLife(std::uint32_t seed, const Fault& fault)
    : life(seed, ScriptedLife::homeOf(seed))
    , m_fault(fault) {}

FaultyLife::FaultyLife(std::uint32_t seed, const Fault& fault, FileSystem& storage)
    : life(seed, ScriptedLife::homeOf(seed), storage)
    , m_fault(fault) {}

QStringList FaultyLife::run() {
    fakes::FaultyFileSystem& files = life.world.files;
    if (m_fault.call > 0) files.failNthCall(m_fault.call, m_fault.code);
    for (std::size_t i = 0; i < life.deeds().size(); ++i) {
        const bool stands = m_fault.call == 0 && i == m_fault.deed;
        if (stands) files.fail(m_fault.operation, QStringLiteral("*"), m_fault.code);
        const std::size_t before = files.calls().size();
        onDeed(i);
        life.perform(life.deeds()[i]);
        noteFailed(before, stands);
        if (stands) files.heal(m_fault.operation, QStringLiteral("*"));
        checkClock();
        checkText();
        // Not in the end alone: the next start reads the files, and agrees with them.
        checkSkillsAndRules(Account::of(life.world.storage));
        if (!m_broken.isEmpty()) {
            m_broken << QStringLiteral("after the deed: ") + QLatin1String(life.deeds()[i].name);
            return m_broken;
        }
    }
    files.healAll();
    onDeed(life.deeds().size());
    checkSuccess();
    const Account account = Account::of(life.world.storage);
    checkRecords(account);
    checkSkillsAndRules(account);
    checkTemporaries(account);
    return m_broken;
}

QString FaultyLife::story() const {
    if (m_failed.empty()) return QStringLiteral("nothing failed");
    return QStringLiteral("%1 calls failed, first operation %2 of %3 -> %4 with %5")
        .arg(m_failed.size())
        .arg(int(m_failed.front().operation))
        .arg(m_failed.front().path, m_failed.front().target)
        .arg(QLatin1String(std::strerror(m_fault.code)));
}

void FaultyLife::expect(bool holds, const QString& promise) {
    if (!holds) m_broken << promise;
}

void FaultyLife::noteFailed(std::size_t before, bool stands) {
    const auto& calls = life.world.files.calls();
    for (std::size_t i = before; i < calls.size(); ++i)
        if (int(i) + 1 == m_fault.call || (stands && calls[i].operation == m_fault.operation))
            m_failed.push_back(calls[i]);
}

bool FaultyLife::failed(Operation operation, const char* name) const {
    return failedBelow(operation, name) ||
           std::ranges::any_of(m_failed, [&](const fakes::FaultyFileSystem::Call& call) {
               return call.operation == operation && call.path.contains(QLatin1String(name));
           });
}

void FaultyLife::checkClock() {
    if (tracker().state() != State::Running) return;
    const auto before = tracker().displayActiveSeconds();
    life.world.idleSource.touch();
    life.world.time.advance(3.0);
    expect(tracker().state() == State::Running && tracker().displayActiveSeconds() >= before + 2,
           QStringLiteral("the clock goes on"));
}

void FaultyLife::checkText() {
    const QLatin1String own(std::strerror(m_fault.code));
    for (const auto& text :
         {tracker().storageError(), life.world.autoSkill->rules().persistenceError()})
        expect(!text || text->contains(own),
               QStringLiteral("the text has the system's own words: ") + text.value_or(QString()));
}

void FaultyLife::checkSuccess() {
    life.perform(ScriptedLife::logSomeTime());
    expect(!tracker().storageError(), QStringLiteral("the next success takes the text away: ") +
                                          tracker().storageError().value_or(QString()));
}

void FaultyLife::checkRecords(const Account& account) {
    // With the mode not set, the program can't say that a record is there, and logs it again.
    const bool isDoubled = failed(Operation::SetMode, "sessions.jsonl");
    const auto acknowledged = life.acknowledged().records;
    expect(isDoubled || account.doubled.isEmpty(), QStringLiteral("a record is logged once"));
    expect(isDoubled ? account.records.size() >= acknowledged
                     : account.records.size() == acknowledged,
           QStringLiteral("the log holds what was acknowledged: %1 of %2")
               .arg(account.records.size())
               .arg(acknowledged));
    expect(life.hasOldLog(), QStringLiteral("an older log stays"));
}

void FaultyLife::checkSkillsAndRules(const Account& account) {
    // An erase that could not remove the file has said so, and goes on with a new user's skills.
    const bool isLeft = failed(Operation::Remove, "skills.json");
    if (!isLeft && !life.world.skills->readError() && account.skills.isArray()) {
        const auto known = QJsonDocument::fromJson(json::encode(life.world.skills->all()));
        expect(QJsonDocument(account.skills.toArray()) == known,
               QStringLiteral("the skills in memory are those of the file"));
    }
    const AutoRules& rules = life.world.autoSkill->rules();
    if (!rules.persistenceError() && !account.rules.isUndefined()) {
        QJsonObject known;
        for (auto rule = rules.rules().cbegin(); rule != rules.rules().cend(); ++rule)
            known.insert(rule.key(), rule.value());
        expect(account.rules.toObject() == known,
               QStringLiteral("the rules in memory are those of the file"));
    }
}

void FaultyLife::checkTemporaries(const Account& account) {
    for (const QString& path : account.temporaries)
        expect(failed(Operation::Remove, ".tmp"),
               QStringLiteral("half-written files are removed: ") + path);
}

} // namespace vantle::tests

#include "lab/CrashedLife.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vantle::tests {

CrashedLife::CrashedLife(std::uint32_t seed, Counts& counts, Report report, Sabotage sabotage)
    : m_life(seed, ScriptedLife::homeOf(seed))
    , m_random(seed)
    , m_counts(counts)
    , m_report(std::move(report))
    , m_sabotage(std::move(sabotage))
    , m_saboteur(m_sabotage.at == Sabotage::At::Life ? m_sabotage : Sabotage(), m_life.world.disk)
    , m_disk(m_life.world.disk) {
    m_life.world.disk.observe([this](const fakes::DiskChange& change) { follow(change); });
}

void CrashedLife::run(double share, std::size_t most) {
    m_share = share;
    m_most = most;
    for (const ScriptedLife::Deed& deed : m_life.deeds()) {
        m_step = {deed.name, Account::of(m_life.world.disk), {}, m_life.preferences(), {}};
        m_moments.clear();
        noteOpen();
        m_life.perform(deed);
        noteOpen();
        m_step.after = Account::of(m_life.world.disk);
        tell(unacknowledged(), {});
        for (const auto& [moment, states] : m_moments)
            for (const DiskState& state : states)
                if (m_goesOn) check(state, moment);
        if (!m_goesOn) return;
    }
}

void CrashedLife::tell(const QStringList& broken, const QByteArray& story) {
    if (broken.isEmpty() || !m_goesOn) return;
    ++m_counts.violations;
    m_goesOn = m_report(broken, "deed " + QByteArray(m_step.deed) + ", home " +
                                    QByteArray::number(int(m_life.home)) + "\n" + story);
}

void CrashedLife::noteOpen() {
    if (const auto open = m_life.openSession()) m_step.open.push_back(*open);
}

void CrashedLife::follow(fakes::DiskChange change) {
    if (m_saboteur.pass(change)) m_disk.apply(change);
    noteOpen();
    const Moment moment{m_life.world.time.now(), m_life.openSession()};
    // Torn at each sector, and now and then at each few bytes.
    const qsizetype grain = std::uniform_int_distribution(0, 9)(m_random) == 0 ? 16 : 512;
    std::vector<DiskState> states = m_disk.all(grain);
    std::erase_if(states, [this](const DiskState&) {
        return std::uniform_real_distribution(0.0, 1.0)(m_random) >= m_share;
    });
    if (states.size() > m_most) {
        std::ranges::shuffle(states, m_random);
        states.resize(m_most);
    }
    m_moments.emplace_back(moment, std::move(states));
}

/// Without a crash the log holds what was acknowledged, second for second.
QStringList CrashedLife::unacknowledged() const {
    QStringList broken;
    const Account& now = m_step.after;
    if (now.records.size() != m_life.acknowledged().records)
        broken << QStringLiteral("every acknowledged record is in the log: %1 of %2")
                      .arg(now.records.size())
                      .arg(m_life.acknowledged().records);
    for (const ScriptedLife::Worked& worked : m_life.acknowledged().ended) {
        const auto records = now.startingAt(worked.start);
        const double logged =
            records.isEmpty() ? -1
                              : records.first().value(QStringLiteral("activeSeconds")).toDouble();
        if (records.size() != 1 || std::abs(logged - worked.seconds) > worked.tolerance)
            broken << QStringLiteral("a record counts what was worked: %1 of %2 s in %3 records")
                          .arg(logged)
                          .arg(worked.seconds)
                          .arg(records.size());
    }
    return broken;
}

void CrashedLife::check(DiskState state, const Moment& moment) {
    if (m_sabotage.at == Sabotage::At::Crash)
        for (auto file = state.begin(); file != state.end(); ++file)
            if (*file && file.key().contains(QLatin1String(m_sabotage.file)))
                *file = m_sabotage.alter(**file);
    std::optional<Saboteur> saboteur; // outlives the program
    Restart restart(m_step, moment);
    fakes::MemoryFileSystem& disk = restart.world.disk;
    CrashStates::restore(state, disk);
    if (m_sabotage.at != Sabotage::At::Crash) {
        saboteur.emplace(m_sabotage, disk);
        disk.observe([&](fakes::DiskChange change) { static_cast<void>(saboteur->pass(change)); });
    }
    ++m_counts.states;
    const QStringList broken = restart.run();
    if (restart.isHidden())
        ++m_counts.hidden;
    else if (restart.isTorn())
        ++m_counts.torn;
    if (!restart.isHidden()) tell(broken, restart.story());
}

} // namespace vantle::tests

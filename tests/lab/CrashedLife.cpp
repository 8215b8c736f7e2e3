#include "lab/CrashedLife.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vantle::tests {

namespace {

/// The marker is written once a minute, on a tick.
constexpr double kMarkerLag = 61.0;
/// A crash offers no less than a minute.
constexpr double kLeastOffer = 60.0;

} // namespace

/// Starts the program on one state and looks at what it makes of it.
class Restart {
public:
    using Step = CrashedLife::Step;
    using Moment = CrashedLife::Moment;
    using OpenSession = ScriptedLife::OpenSession;

    Restart(const DiskState& state, const Step& step, const Moment& moment,
            const Sabotage& sabotage)
        : m_step(step)
        , m_moment(moment) {
        CrashStates::restore(state, m_world.disk);
        if (sabotage.at != Sabotage::At::Crash && sabotage.effect != Sabotage::Effect::None) {
            m_saboteur.emplace(sabotage, m_world.disk);
            m_world.disk.observe(
                [this](fakes::DiskChange change) { static_cast<void>(m_saboteur->pass(change)); });
        }
        for (auto text = step.preferences.cbegin(); text != step.preferences.cend(); ++text)
            m_world.preferences.setRaw(text.key(), text.value());
        m_world.time.shiftWall((moment.now - m_world.time.now()).count() + 3600.0);
        m_left = Account::of(m_world.disk);
        for (auto file = state.cbegin(); file != state.cend(); ++file)
            m_files += file.key().toUtf8() + ' ' +
                       QByteArray::number(file.value().value_or(QByteArray()).size()) + '\n';
        m_world.launch();
        if (m_world.told.recoveryKeep) m_world.told.recoveryKeep();
        m_world.settle();
        m_found = Account::of(m_world.disk);
    }
    ~Restart() {
        m_world.told.recoveryKeep = nullptr;
        m_world.kill();
    }
    Restart(const Restart&) = delete;
    Restart& operator=(const Restart&) = delete;

    /// The promises that do not hold.
    QStringList broken() {
        checkRecords();
        checkOpenSession();
        checkOtherFiles();
        checkThatWorkGoesOn();
        return m_broken;
    }
    /// What the crash left and what the start made of it: the files, and the end of the log.
    [[nodiscard]] QByteArray story() const {
        return m_files + "\nleft: " + m_left.log.right(600) + "\nfound: " + m_found.log.right(600);
    }
    [[nodiscard]] bool isTorn() const { return m_left.isTorn(); }
    [[nodiscard]] bool isHidden() const { return m_left.isHidden(); }

private:
    void expect(bool holds, const QString& promise) {
        if (!holds) m_broken << promise;
    }

    void checkRecords() {
        const auto& before = m_step.before.records;
        const auto& after = m_step.after.records;
        expect(m_found.doubled.isEmpty(), QStringLiteral("a record is logged once"));
        expect(m_found.log.startsWith(m_left.log), QStringLiteral("what is in the log stays"));
        for (auto record = before.cbegin(); record != before.cend(); ++record) {
            if (!after.contains(record.key())) continue;
            const QJsonObject found = m_found.records.value(record.key());
            expect(found == record.value() || found == after.value(record.key()),
                   QStringLiteral("no record is lost: ") + record.key());
        }
        for (auto record = m_found.records.cbegin(); record != m_found.records.cend(); ++record)
            expect(before.contains(record.key()) || after.contains(record.key()) ||
                       isOpen(record.key()),
                   QStringLiteral("nothing comes back: ") + record.key());
        for (const QByteArray& line : m_step.before.foreign)
            expect(m_found.foreign.contains(line) || !m_step.after.foreign.contains(line),
                   QStringLiteral("what others wrote stays"));
    }

    /// Whether it is the record of a session that was open in this step.
    [[nodiscard]] bool isOpen(const QString& id) const {
        return std::ranges::any_of(m_step.open, [&](const OpenSession& open) {
            for (const QJsonObject& record : m_found.startingAt(open.start))
                if (record.value(QStringLiteral("id")).toString() == id) return true;
            return false;
        });
    }

    void checkOpenSession() {
        expect(!m_world.hasMarker(), QStringLiteral("an answered offer leaves no marker"));
        if (!m_moment.open) return;
        // A record that fused with half a line is in the file, where its reader does not see it.
        const auto records = m_found.startingAt(m_moment.open->start);
        expect(records.size() <= 1, QStringLiteral("the open session is one record"));
        const double least = m_moment.open->counted - kMarkerLag;
        if (records.isEmpty()) {
            const bool isFused = m_left.isTorn() && m_found.log.size() > m_left.log.size();
            expect(isFused || least < kLeastOffer,
                   QStringLiteral("the open session is kept: %1 s were counted")
                       .arg(m_moment.open->counted));
            return;
        }
        const double seconds = records.first().value(QStringLiteral("activeSeconds")).toDouble();
        expect(seconds >= least, QStringLiteral("all but the last minute is kept: %1 of %2 s")
                                     .arg(seconds)
                                     .arg(m_moment.open->counted));
        // A pause goes back to the last key, so the marker before it may tell of more.
        double most = 0;
        for (const OpenSession& open : m_step.open)
            if (open.start == m_moment.open->start) most = std::max(most, open.counted);
        expect(seconds <= most + 1,
               QStringLiteral("nothing is added: %1 of %2 s").arg(seconds).arg(most));
    }

    void checkOtherFiles() {
        const auto isEither = [](const QJsonValue& found, const QJsonValue& before,
                                 const QJsonValue& after) {
            return found == before || found == after || before.isUndefined() || after.isUndefined();
        };
        expect(isEither(m_found.skills, m_step.before.skills, m_step.after.skills),
               QStringLiteral("the skills are the old or the new ones"));
        expect(isEither(m_found.rules, m_step.before.rules, m_step.after.rules),
               QStringLiteral("the rules are the old or the new ones"));
        expect(m_found.exported == m_step.before.exported ||
                   m_found.exported == m_step.after.exported,
               QStringLiteral("the exported file is the old or the new one"));
        const QString chosen = QLatin1String("/Pictures/");
        for (const QString& path : m_found.temporaries)
            expect(path.contains(chosen), QStringLiteral("half-written files are swept: ") + path);
    }

    void checkThatWorkGoesOn() {
        const auto before = m_found.records.size();
        m_world.press();
        for (int step = 0; step < 4; ++step) {
            m_world.idleSource.touch();
            m_world.time.advance(20.0);
        }
        m_world.press();
        const Account later = Account::of(m_world.disk);
        expect(later.log.startsWith(m_found.log), QStringLiteral("an append only appends"));
        expect(later.records.size() == before + 1 || m_found.isTorn(),
               QStringLiteral("the next session is logged"));
    }

    const Step& m_step;
    const Moment& m_moment;
    std::optional<Saboteur> m_saboteur;
    ModelWorld m_world;
    QByteArray m_files; ///< with their sizes
    Account m_left;     ///< by the crash
    Account m_found;    ///< after the start, with the offer taken
    QStringList m_broken;
};

CrashedLife::CrashedLife(std::uint32_t seed, Counts& counts, Report report, Sabotage sabotage)
    : m_life(seed, ScriptedLife::Home(seed % ScriptedLife::kHomes))
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
        m_step = {deed.name, Account::of(m_life.world.disk), {}, preferences(), {}, {}};
        noteOpen();
        m_life.perform(deed);
        noteOpen();
        m_step.after = Account::of(m_life.world.disk);
        tell(unacknowledged(), {});
        for (const Moment& moment : m_step.moments)
            for (const DiskState& state : moment.states)
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

QMap<QString, QString> CrashedLife::preferences() const {
    QMap<QString, QString> texts;
    for (const QString& key : m_life.world.preferences.keys())
        texts[key] = m_life.world.preferences.raw(key).value_or(QString());
    return texts;
}

void CrashedLife::noteOpen() {
    if (const auto open = m_life.openSession()) m_step.open.push_back(*open);
}

void CrashedLife::follow(fakes::DiskChange change) {
    if (m_saboteur.pass(change)) m_disk.apply(change);
    noteOpen();
    Moment moment{m_life.world.time.now(), m_life.openSession(), {}};
    // Torn at each sector, and now and then at each few bytes.
    const qsizetype grain = std::uniform_int_distribution(0, 9)(m_random) == 0 ? 16 : 512;
    moment.states = m_disk.all(grain);
    std::erase_if(moment.states, [this](const DiskState&) {
        return std::uniform_real_distribution(0.0, 1.0)(m_random) >= m_share;
    });
    if (moment.states.size() > m_most) {
        std::ranges::shuffle(moment.states, m_random);
        moment.states.resize(m_most);
    }
    m_step.moments.push_back(std::move(moment));
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
    Restart restart(state, m_step, moment, m_sabotage);
    ++m_counts.states;
    const QStringList broken = restart.broken();
    if (restart.isHidden())
        ++m_counts.hidden;
    else if (restart.isTorn())
        ++m_counts.torn;
    if (!restart.isHidden()) tell(broken, restart.story());
}

} // namespace vantle::tests

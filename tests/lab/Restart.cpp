#include "lab/Restart.h"

#include <algorithm>

namespace vantle::tests {

namespace {

/// The marker is written once a minute, on a tick.
constexpr double kMarkerLag = 61.0;
/// A crash offers no less than a minute.
constexpr double kLeastOffer = 60.0;

} // namespace

Restart::Restart(const Step& step, const Moment& moment) : m_step(step), m_moment(moment) {}

Restart::Restart(const Step& step, const Moment& moment, FileSystem& storage)
    : world(storage)
    , m_step(step)
    , m_moment(moment) {}

Restart::~Restart() {
    world.told.recoveryKeep = nullptr;
    world.kill();
}

QStringList Restart::run() {
    for (auto text = m_step.preferences.cbegin(); text != m_step.preferences.cend(); ++text)
        world.preferences.setRaw(text.key(), text.value());
    world.time.shiftWall((m_moment.now - world.time.now()).count() + 3600.0);
    m_left = Account::of(world.storage);
    world.launch();
    if (world.told.recoveryKeep) world.told.recoveryKeep();
    world.settle();
    m_found = Account::of(world.storage);
    checkRecords();
    checkOpenSession();
    checkOtherFiles();
    checkThatWorkGoesOn();
    return m_broken;
}

QByteArray Restart::story() const {
    return m_left.files.join(QLatin1Char('\n')).toUtf8() + "\nleft: " + m_left.log.right(600) +
           "\nfound: " + m_found.log.right(600);
}

void Restart::expect(bool holds, const QString& promise) {
    if (!holds) m_broken << promise;
}

void Restart::checkRecords() {
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

bool Restart::isOpen(const QString& id) const {
    return std::ranges::any_of(m_step.open, [&](const ScriptedLife::OpenSession& open) {
        for (const QJsonObject& record : m_found.startingAt(open.start))
            if (record.value(QStringLiteral("id")).toString() == id) return true;
        return false;
    });
}

void Restart::checkOpenSession() {
    expect(!world.hasMarker(), QStringLiteral("an answered offer leaves no marker"));
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
    for (const ScriptedLife::OpenSession& open : m_step.open)
        if (open.start == m_moment.open->start) most = std::max(most, open.counted);
    expect(seconds <= most + 1,
           QStringLiteral("nothing is added: %1 of %2 s").arg(seconds).arg(most));
}

void Restart::checkOtherFiles() {
    const auto isEither = [](const QJsonValue& found, const QJsonValue& before,
                             const QJsonValue& after) {
        return found == before || found == after || before.isUndefined() || after.isUndefined();
    };
    expect(isEither(m_found.skills, m_step.before.skills, m_step.after.skills),
           QStringLiteral("the skills are the old or the new ones"));
    expect(isEither(m_found.rules, m_step.before.rules, m_step.after.rules),
           QStringLiteral("the rules are the old or the new ones"));
    expect(m_found.exported == m_step.before.exported || m_found.exported == m_step.after.exported,
           QStringLiteral("the exported file is the old or the new one"));
    const QString chosen = QLatin1String("/Pictures/");
    for (const QString& path : m_found.temporaries)
        expect(path.contains(chosen), QStringLiteral("half-written files are swept: ") + path);
}

void Restart::checkThatWorkGoesOn() {
    const auto before = m_found.records.size();
    world.press();
    for (int step = 0; step < 4; ++step) {
        world.idleSource.touch();
        world.time.advance(20.0);
    }
    world.press();
    const Account later = Account::of(world.storage);
    expect(later.log.startsWith(m_found.log), QStringLiteral("an append only appends"));
    expect(later.records.size() == before + 1 || m_found.isTorn(),
           QStringLiteral("the next session is logged"));
}

} // namespace vantle::tests

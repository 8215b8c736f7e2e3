#include "sim/Promises.h"

#include "tracking/Settings.h"

#include <QSet>

#include <cmath>
#include <utility>

namespace vantle::tests {

namespace {

using State = TrackerCore::State;

qint64 wholeSecond(Date date) { return static_cast<qint64>(std::floor(epochSeconds(date))); }

/// Rounding of the record, and of its start to a whole second.
constexpr double kRounding = 2.0;

/// The marker is written once a minute, on a tick.
constexpr double kMarkerLag = 61.0;

constexpr double kWorthAnOffer = 180.0;

/// An absence is noticed by the monitor's next look, and so is its end.
constexpr double kBetweenLooks = 11.0;

} // namespace

void Promises::noteLaunch() {
    m_open = {};
    m_account = {};
    noteInexact(); // a start may take over what an end has written
    QObject::connect(&tracker(), &TrackerCore::stateChanged, &tracker(), [this] { noteState(); });
    QObject::connect(&tracker(), &TrackerCore::startedAtChanged, &tracker(),
                     [this] { noteStart(); });
}

void Promises::noteStart() {
    if (!tracker().startedAt()) return;
    m_open = {ableSeconds(), false, m_diskIsBroken};
    // Two that start in the same second count as one: what holds for either is not asked of both.
    const qint64 start = wholeSecond(*tracker().startedAt());
    if (!m_sessions.contains(start)) m_sessions[start] = m_open;
}

void Promises::noteState() {
    const bool isOpen = tracker().state() != State::Idle;
    if (isOpen == m_account.countsFrom.has_value()) return;
    const double now = m_world.time.timerClock();
    if (isOpen) {
        m_account.countsFrom = now;
        return;
    }
    // Who ends a session by a key has just touched the machine; else this may be work or not.
    m_account.most += now - *m_account.countsFrom;
    m_account.countsFrom.reset();
}

void Promises::noteInput() {
    if (!m_account.countsFrom) return;
    const double now = m_world.time.timerClock();
    const double length = now - std::exchange(*m_account.countsFrom, now);
    const double absence = settings::idleThresholdSeconds.read(m_world.preferences);
    if (length < absence) {
        m_account.least += length;
        m_account.most += length;
    } else {
        m_account.least -= kBetweenLooks;
        if (length < absence + kBetweenLooks) m_account.most += length;
    }
}

void Promises::checkAccount() {
    if (tracker().state() != State::Idle) return;
    const Account account = std::exchange(m_account, {});
    if (!account.isExact || (account.most == 0 && account.records == 0)) return;
    ++accountsChecked;
    const double rounding = kRounding * (1 + account.records);
    expect(account.logged >= account.least - rounding && account.logged <= account.most + rounding,
           QStringLiteral("the log holds what was worked: %1 s of %2 to %3")
               .arg(account.logged)
               .arg(account.least)
               .arg(account.most));
}

void Promises::noteClockSet() {
    noteInexact();
    m_open.clockSet = true;
    for (Circumstances& session : m_sessions)
        session.clockSet = true; // two sessions may now share a start
}

void Promises::noteDiskBroken(bool broken) {
    m_diskIsBroken = broken;
    noteInexact();
    if (broken) m_open.diskBroken = true;
}

void Promises::noteUnable(bool unable) {
    noteInexact();
    const double now = m_world.time.timerClock();
    if (m_unable) m_unableTotal += now - m_unableSince;
    m_unable = unable;
    m_unableSince = now;
}

double Promises::ableSeconds() const {
    const double now = m_world.time.timerClock();
    return now - m_unableTotal - (m_unable ? now - m_unableSince : 0.0);
}

std::optional<double> Promises::leastOffer() const {
    const auto counted = static_cast<double>(tracker().displayActiveSeconds());
    if (tracker().state() != State::Running || m_open.clockSet || m_open.diskBroken ||
        counted < kWorthAnOffer)
        return std::nullopt;
    return counted - kMarkerLag;
}

QStringList Promises::broken() {
    m_broken.clear();
    checkTracker();
    checkLog();
    checkMarker();
    checkAccount();
    return m_broken;
}

void Promises::checkTracker() {
    const auto inner = tracker().internals();
    const State state = tracker().state();
    const bool isOpen = state != State::Idle;
    expect(inner.segmentStart.has_value() == (state == State::Running),
           QStringLiteral("a segment runs exactly while the session does"));
    expect(inner.ticking == (state == State::Running),
           QStringLiteral("the clock ticks exactly while the session runs"));
    expect(tracker().startedAt().has_value() == isOpen,
           QStringLiteral("an open session has a start, and only that"));
    expect(tracker().currentSkillId().has_value() == isOpen,
           QStringLiteral("an open session has a skill, and only that"));
    expect(isOpen || inner.accumulatedSeconds == 0.0,
           QStringLiteral("nothing is counted without a session"));
    if (isOpen && !m_open.clockSet)
        expect(static_cast<double>(tracker().displayActiveSeconds()) <=
                   ableSeconds() - m_open.ableAtStart + kRounding,
               QStringLiteral("only time in which one can work is counted"));
}

void Promises::checkRecord(const Session& session) {
    if (session.source != sourceApp()) return;
    const auto found = m_sessions.constFind(wholeSecond(session.startedAt));
    if (found == m_sessions.cend() || found->clockSet) return;
    const auto active = static_cast<double>(session.activeSeconds);
    expect(active <= (session.endedAt - session.startedAt).count() + kRounding,
           QStringLiteral("a record counts no more than its length"));
    expect(active <= ableSeconds() - found->ableAtStart + kRounding,
           QStringLiteral("a record counts only time in which one can work"));
}

void Promises::checkLog() {
    const auto log =
        m_world.disk.content(ModelWorld::file("sessions.jsonl")).value_or(QByteArray());
    if (log == m_log && m_known.empty() == log.isEmpty()) return;
    m_log = log;
    // Of two lines with one id the log reads one, so it is the file that tells.
    QSet<QByteArray> written;
    for (const QByteArray& line : log.split('\n')) {
        const qsizetype at = line.indexOf("\"id\":\"");
        if (at < 0) continue;
        const QByteArray id = line.sliced(at).left(43);
        expect(!written.contains(id), QStringLiteral("a record is logged once"));
        written.insert(id);
    }
    std::map<QUuid, Session> now;
    for (const Session& session : m_world.log()) {
        now[session.id] = session;
        if (m_known.contains(session.id)) continue;
        checkRecord(session);
        if (session.source != sourceApp()) continue;
        m_account.logged += double(session.activeSeconds);
        ++m_account.records;
    }
    for (const auto& [id, known] : m_known) {
        const auto found = now.find(id);
        expect(found != now.end(), QStringLiteral("no record is lost"));
        if (found == now.end()) continue;
        Session same = found->second;
        same.note = known.note;
        expect(same == known, QStringLiteral("of a record only the note changes"));
    }
    m_known = std::move(now);

    QByteArrayList garbage;
    for (const QByteArray& line : log.split('\n'))
        if (line.startsWith("garbage")) garbage.append(line);
    expect(garbage == m_garbage, QStringLiteral("what others wrote stays, byte for byte"));
    m_garbage = garbage;
}

void Promises::checkMarker() {
    const bool isOffered = static_cast<bool>(m_world.told.recoveryKeep);
    if (tracker().state() != State::Idle) {
        expect(m_open.diskBroken || m_world.hasMarker(),
               QStringLiteral("an open session has a marker"));
    } else if (!isOffered) {
        expect(!m_world.hasMarker(), QStringLiteral("without a session there is no marker"));
    }
}

} // namespace vantle::tests

// The invariants of the program, checked after each step of a life.
#pragma once

#include "app/ModelWorld.h"

#include <QByteArrayList>
#include <QHash>
#include <QStringList>

#include <map>

namespace vantle::tests {

/// Knows what the test did to the world, reads files and tracker, and reports each broken
/// invariant.
class Promises {
public:
    explicit Promises(ModelWorld& world) : m_world(world) {}

    /// The program was launched.
    void noteLaunch();
    void noteDelete(const QUuid& id) { m_known.erase(id); }
    /// Another program appended this line to the log.
    void noteGarbage(const QByteArray& line) { m_garbage.append(line); }
    void noteClockSet();
    void noteDiskBroken(bool broken);
    /// Whether the user cannot work from now on: the screens sleep, or the
    /// program is stopped.
    void noteUnable(bool unable);

    /// The user touched the machine.
    void noteInput();
    /// From here to the next moment without a session, inputs do not tell what must be counted.
    void noteInexact() { m_account.isExact = false; }

    /// The seconds in which the user could work, since the start.
    [[nodiscard]] double ableSeconds() const;

    /// The invariants that do not hold now; empty when all do.
    [[nodiscard]] QStringList broken();

    /// The fewest seconds that the next launch must offer after a kill now; empty when it need not
    /// offer any.
    [[nodiscard]] std::optional<double> leastOffer() const;

    int killsChecked = 0;
    int accountsChecked = 0; ///< stretches of work of which the log was compared with the inputs

private:
    /// The external influences on a session.
    struct Circumstances {
        double ableAtStart = 0;
        bool clockSet = false;
        bool diskBroken = false; ///< at any time during it
    };

    /// What the log must hold of the time since there was no session, counted by inputs alone. The
    /// time between two inputs is work, unless it is long enough to be an absence.
    struct Account {
        double least = 0; ///< seconds
        double most = 0;
        double logged = 0;
        int records = 0;
        std::optional<double> countsFrom; ///< on the timer clock; set while a session is open
        bool isExact = true;
    };

    [[nodiscard]] TrackerCore& tracker() const { return m_world.model->tracker(); }
    void noteStart();
    void noteState();
    void checkAccount();
    void checkTracker();
    void checkLog();
    void checkRecord(const Session& session);
    void checkMarker();
    void expect(bool holds, const QString& promise) {
        if (!holds) m_broken << promise;
    }

    ModelWorld& m_world;
    QStringList m_broken;
    std::map<QUuid, Session> m_known;        ///< records that must be in the log
    QByteArrayList m_garbage;                ///< foreign lines, in order
    QByteArray m_log;                        ///< as last read
    QHash<qint64, Circumstances> m_sessions; ///< by the whole second of their start
    Circumstances m_open;
    Account m_account;
    bool m_diskIsBroken = false;
    bool m_unable = false;
    double m_unableSince = 0;
    double m_unableTotal = 0;
};

} // namespace vantle::tests

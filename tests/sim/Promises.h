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

    /// The seconds in which the user could work, since the start.
    [[nodiscard]] double ableSeconds() const;

    /// The invariants that do not hold now; empty when all do.
    [[nodiscard]] QStringList broken();

    /// The fewest seconds that the next launch must offer after a kill now; empty when it need not
    /// offer any.
    [[nodiscard]] std::optional<double> leastOffer() const;

    /// The number of kills checked.
    int killsChecked = 0;

private:
    /// The external influences on a session.
    struct Circumstances {
        double ableAtStart = 0;
        bool clockSet = false;
        bool diskBroken = false; ///< at any time during it
    };

    [[nodiscard]] TrackerCore& tracker() const { return m_world.model->tracker(); }
    void noteStart();
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
    bool m_diskIsBroken = false;
    bool m_unable = false;
    double m_unableSince = 0;
    double m_unableTotal = 0;
};

} // namespace vantle::tests

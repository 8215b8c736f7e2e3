// What must hold for every life with the program, after each thing that happens in it.
#pragma once

#include "app/ModelWorld.h"

#include <QByteArrayList>
#include <QHash>
#include <QStringList>

#include <map>

namespace vantle::tests {

/// Watches one world: knows what it was promised, looks at the files and at the tracker, and tells
/// each promise that does not hold. It is told what the life does to the world from outside.
class Promises {
public:
    explicit Promises(ModelWorld& world) : m_world(world) {}

    /// The program was launched: follows its sessions.
    void noteLaunch();
    void noteDelete(const QUuid& id) { m_known.erase(id); }
    /// Another program wrote this line into the log.
    void noteGarbage(const QByteArray& line) { m_garbage.append(line); }
    void noteClockSet();
    void noteDiskBroken(bool broken);
    /// Whether the user cannot work from now on: the screens sleep, or the
    /// program is stopped.
    void noteUnable(bool unable);

    /// The seconds in which the user could have worked, since the beginning.
    [[nodiscard]] double ableSeconds() const;

    /// The promises that do not hold now; empty when all do.
    [[nodiscard]] QStringList broken();

    /// What a kill at this moment may cost: the fewest seconds that the next launch has to offer.
    /// Empty where it need not offer any.
    [[nodiscard]] std::optional<double> leastOffer() const;

    /// How often a promise about a kill was put to the test.
    int killsChecked = 0;

private:
    /// What happened to one session from outside.
    struct Circumstances {
        double ableAtStart = 0;
        bool clockSet = false;
        bool diskBroken = false; ///< at any time of it
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
    std::map<QUuid, Session> m_known;        ///< what must be in the log
    QByteArrayList m_garbage;                ///< lines that are not ours, in their order
    QByteArray m_log;                        ///< as it was looked at last
    QHash<qint64, Circumstances> m_sessions; ///< by the whole second of their start
    Circumstances m_open;
    bool m_diskIsBroken = false;
    bool m_unable = false;
    double m_unableSince = 0;
    double m_unableTotal = 0;
};

} // namespace vantle::tests

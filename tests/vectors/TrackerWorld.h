// The tracker in a world of its own, as the scripts of its four forms play on it.
#pragma once

#include "fakes/MemoryPreferences.h"
#include "fakes/VirtualTime.h"
#include "tracking/NotificationCenter.h"
#include "tracking/SkillList.h"
#include "tracking/TrackerCore.h"
#include "vectors/DataFolder.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QMap>

namespace vantle::vectors {

/// One tracker over a disk in memory, its virtual time, and a record of what it reports.
class TrackerWorld {
public:
    explicit TrackerWorld(const QJsonObject& input);
    ~TrackerWorld();

    /// Does the operation, lets all work that it caused run, and describes what came of it.
    [[nodiscard]] QJsonObject perform(const QJsonObject& event);

private:
    class Monitor;

    void connectTracker();
    void setMonitor(const QJsonValue& monitor);
    void setSkillIds(const QJsonValue& ids);
    void setPreferences(const QJsonObject& values);
    void record(const QJsonArray& call, QJsonArray& block);

    /// Undefined when the operation gives no result.
    [[nodiscard]] QJsonValue perform(const QString& operation, const QJsonObject& event);
    [[nodiscard]] std::optional<QJsonValue> performOnSession(const QString& operation,
                                                             const QJsonObject& event);
    [[nodiscard]] std::optional<QJsonValue> performOnLog(const QString& operation,
                                                         const QJsonObject& event);
    [[nodiscard]] std::optional<QJsonValue> performRecovery(const QString& operation,
                                                            const QJsonObject& event);
    [[nodiscard]] std::optional<QJsonValue> performOnWorld(const QString& operation,
                                                           const QJsonObject& event);

    [[nodiscard]] QJsonObject state();
    [[nodiscard]] QJsonArray takeEvents();
    [[nodiscard]] QJsonObject changedFiles();
    [[nodiscard]] std::optional<OpenSessionMarker> markerOf(const QJsonObject& event) const;

    DataFolder m_folder;
    fakes::ManualQueue m_queue;
    fakes::VirtualTime m_time;
    fakes::MemoryPreferences m_preferences;
    NotificationCenter m_notifications;
    std::optional<SkillList> m_skills; ///< replaced in place when the list is
    std::unique_ptr<Monitor> m_monitor;
    bool m_encodingFails = false;
    std::optional<TrackerCore> m_tracker;
    std::optional<OpenSessionMarker> m_takenMarker;

    QJsonArray m_questions; ///< what the monitor was asked since the last step
    QJsonArray m_reports;   ///< what the tracker reported
    QJsonArray m_news;      ///< what history views were told
    QMap<QString, QJsonValue> m_knownFiles;
};

} // namespace vantle::vectors

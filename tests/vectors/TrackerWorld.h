// The tracker with its world, for the scripts of its four forms.
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

/// A tracker on a disk in memory and virtual time, with a record of its reports.
class TrackerWorld {
public:
    explicit TrackerWorld(const QJsonObject& input);
    ~TrackerWorld();

    /// Runs the operation and all work that it caused, and describes the effect.
    [[nodiscard]] QJsonObject perform(const QJsonObject& event);

private:
    class Monitor;

    void connectTracker();
    void setMonitor(const QJsonValue& monitor);
    void setSkillIds(const QJsonValue& ids);
    void setPreferences(const QJsonObject& values);
    void record(const QJsonArray& call, QJsonArray& block);

    /// Undefined when the operation has no result.
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
    std::optional<SkillList> m_skills; ///< replaced together with the list
    std::unique_ptr<Monitor> m_monitor;
    bool m_encodingFails = false;
    std::optional<TrackerCore> m_tracker;
    std::optional<OpenSessionMarker> m_takenMarker;

    QJsonArray m_questions; ///< questions to the monitor since the last step
    QJsonArray m_reports;   ///< the tracker's reports
    QJsonArray m_news;      ///< notifications to history views
    QMap<QString, QJsonValue> m_knownFiles;
};

} // namespace vantle::vectors

#include "vectors/TrackerWorld.h"

#include "app/RecoveryWords.h"
#include "tracking/CrashRecovery.h"
#include "tracking/JsonForm.h"
#include "tracking/Settings.h"
#include "vectors/Form.h"
#include "vectors/NeutralRecords.h"
#include "vectors/Script.h"

namespace vantle::vectors {

namespace {

/// Stands for an operation that gives no result.
const QJsonValue kNoResult(QJsonValue::Undefined);

const QStringList& comparedFiles() {
    static const QStringList names = {QStringLiteral("sessions.jsonl"),
                                      QStringLiteral("open-session.json")};
    return names;
}

QString nameOf(TrackerCore::State state) {
    switch (state) {
    case TrackerCore::State::Idle:
        return QStringLiteral("idle");
    case TrackerCore::State::Running:
        return QStringLiteral("running");
    case TrackerCore::State::Paused:
        return QStringLiteral("paused");
    }
    Q_UNREACHABLE();
}

QUuid idOf(const QJsonObject& event) {
    return QUuid::fromString(event[QLatin1String("id")].toString());
}

QJsonValue minutesOrNull(const std::optional<int>& minutes) {
    return minutes ? QJsonValue(*minutes) : QJsonValue(QJsonValue::Null);
}

} // namespace

class TrackerWorld::Monitor final : public ActivityEvidence {
public:
    Monitor(int activeMinutes, std::function<void(int)> asked)
        : m_activeMinutes(activeMinutes)
        , m_asked(std::move(asked)) {}

    bool wasActiveForLast(int minutes) override {
        m_asked(minutes);
        return minutes <= m_activeMinutes;
    }

private:
    int m_activeMinutes;
    std::function<void(int)> m_asked;
};

TrackerWorld::TrackerWorld(const QJsonObject& input)
    : m_time(dateFromJson(input[QLatin1String("now")])) {
    m_time.attach(m_queue);
    const QJsonObject files = input[QLatin1String("files")].toObject();
    for (const QString& name : files.keys())
        m_folder.put(name, imageFromJson(files[name]));
    for (const QString& name : comparedFiles())
        m_knownFiles[name] = imageToJson(m_folder.image(name));
    setPreferences(input[QLatin1String("prefs")].toObject());
    setSkillIds(input[QLatin1String("skillIds")]);
    m_tracker.emplace(TrackerCore::Environment{
        m_time, m_time, m_queue, m_folder.paths(), m_preferences, *m_skills, m_notifications,
        [this](const OpenSessionMarker& marker) -> Result<QByteArray> {
            if (m_encodingFails) return Error{0, QStringLiteral("encode"), {}, {}};
            return json::encode(marker);
        }});
    connectTracker();
    setMonitor(input[QLatin1String("monitor")]);
}

TrackerWorld::~TrackerWorld() = default;

void TrackerWorld::connectTracker() {
    TrackerCore* tracker = &*m_tracker;
    QObject::connect(tracker, &TrackerCore::stateChanged, tracker, [this, tracker] {
        record({QStringLiteral("state"), nameOf(tracker->state()),
                toJson(tracker->currentSkillId()), toJson(tracker->startedAt())},
               m_reports);
    });
    tracker->onSessionStarted = [this](const Skill& skill, Date startedAt) {
        record({QStringLiteral("sessionStarted"), skill.id, toJson(startedAt)}, m_reports);
    };
    tracker->onSessionEnded = [this](const Session& session) {
        record({QStringLiteral("sessionEnded"), toJson(session)}, m_reports);
    };
    QObject::connect(&m_notifications, &NotificationCenter::HFSessionsChanged, tracker,
                     [this] { record({QStringLiteral("sessionsChanged")}, m_news); });
}

void TrackerWorld::setMonitor(const QJsonValue& monitor) {
    m_monitor.reset();
    if (monitor.isObject()) {
        const auto asked = [this](int minutes) {
            m_questions << QJsonObject{
                {QStringLiteral("at"), toJson(m_time.now())},
                {QStringLiteral("call"), QJsonArray{QStringLiteral("wasActiveForLast"), minutes}}};
        };
        const int minutes = monitor.toObject()[QLatin1String("activeMinutes")].toInt();
        m_monitor = std::make_unique<Monitor>(minutes, asked);
    }
    m_tracker->setIdleMonitor(m_monitor.get());
}

void TrackerWorld::setSkillIds(const QJsonValue& ids) {
    if (ids.isArray()) {
        std::vector<Skill> skills;
        for (const QJsonValue& id : ids.toArray())
            skills.push_back({id.toString(), id.toString().left(Skill::maxNameLength), 0, false});
        m_folder.put(QStringLiteral("skills.json"), FileImage{json::encode(skills), 0600});
    }
    settings::skillsMigrationVersion.write(m_preferences, SkillList::currentMigrationVersion);
    m_skills.emplace(m_folder.paths(), m_queue, m_preferences);
}

void TrackerWorld::setPreferences(const QJsonObject& values) {
    for (const QString& key : values.keys()) {
        const QJsonValue value = values[key];
        if (value.isString()) m_preferences.setString(key, value.toString());
        if (value.isDouble()) m_preferences.setNumber(key, value.toDouble());
        if (value.isBool()) m_preferences.setBoolean(key, value.toBool());
    }
}

void TrackerWorld::record(const QJsonArray& call, QJsonArray& block) {
    block << QJsonObject{{QStringLiteral("call"), call}};
}

QJsonObject TrackerWorld::perform(const QJsonObject& event) {
    const QJsonValue result = perform(operation(event), event);
    m_time.settle();
    QJsonObject step{{QStringLiteral("events"), takeEvents()},
                     {QStringLiteral("state"), state()},
                     {QStringLiteral("files"), changedFiles()}};
    if (!result.isUndefined()) step[QLatin1String("result")] = result;
    return step;
}

QJsonValue TrackerWorld::perform(const QString& operation, const QJsonObject& event) {
    if (passTime(m_time, event)) return kNoResult;
    if (const auto result = performOnSession(operation, event)) return *result;
    if (const auto result = performOnLog(operation, event)) return *result;
    if (const auto result = performRecovery(operation, event)) return *result;
    if (const auto result = performOnWorld(operation, event)) return *result;
    return unknown(operation);
}

std::optional<QJsonValue> TrackerWorld::performOnSession(const QString& operation,
                                                         const QJsonObject& event) {
    TrackerCore& tracker = *m_tracker;
    if (operation == QLatin1String("start")) {
        const QString id = event[QLatin1String("skillId")].toString();
        return minutesOrNull(
            tracker.start({id, id, 0, false}, event[QLatin1String("backfillMinutes")].toInt()));
    }
    if (operation == QLatin1String("stop")) return toJson(tracker.stop());
    if (operation == QLatin1String("applyBackfill"))
        return tracker.applyBackfill(event[QLatin1String("minutes")].toInt());
    if (operation == QLatin1String("pause"))
        tracker.pause(dateFromJson(event[QLatin1String("at")]));
    else if (operation == QLatin1String("resume"))
        tracker.resume();
    else if (operation == QLatin1String("debugAdvance"))
        tracker.debugAdvance(event[QLatin1String("seconds")].toDouble());
    else if (operation == QLatin1String("discardOpenSessionForErase"))
        tracker.discardOpenSessionForErase();
    else if (operation == QLatin1String("clearStorageError"))
        tracker.clearStorageError();
    else
        return std::nullopt;
    return kNoResult;
}

std::optional<QJsonValue> TrackerWorld::performOnLog(const QString& operation,
                                                     const QJsonObject& event) {
    TrackerCore& tracker = *m_tracker;
    if (operation == QLatin1String("allSessions")) return toJson(tracker.allSessions().records());
    if (operation == QLatin1String("append"))
        return tracker.appendToLog(sessionFromJson(event[QLatin1String("session")]));
    if (operation == QLatin1String("updateNote"))
        return tracker.updateNote(idOf(event), event[QLatin1String("note")].toString());
    if (operation == QLatin1String("deleteSession")) return tracker.deleteSession(idOf(event));
    if (operation == QLatin1String("countsInTotals"))
        return TrackerCore::countsInTotals(sessionFromJson(event[QLatin1String("session")]),
                                           dateFromJson(event[QLatin1String("asOf")]));
    if (operation == QLatin1String("logManual"))
        return tracker.logManual(event[QLatin1String("skillId")].toString(),
                                 event[QLatin1String("minutes")].toInt(),
                                 event[QLatin1String("note")].toString());
    return std::nullopt;
}

std::optional<OpenSessionMarker> TrackerWorld::markerOf(const QJsonObject& event) const {
    const QJsonValue given = event[QLatin1String("marker")];
    return given.isObject() ? std::optional(markerFromJson(given)) : m_takenMarker;
}

std::optional<QJsonValue> TrackerWorld::performRecovery(const QString& operation,
                                                        const QJsonObject& event) {
    TrackerCore& tracker = *m_tracker;
    if (operation == QLatin1String("takeOrphanedMarker")) {
        m_takenMarker = tracker.takeOrphanedMarker();
        return toJson(m_takenMarker);
    }
    const auto marker = markerOf(event);
    if (operation == QLatin1String("recoverableSeconds"))
        return marker ? toJson(recovery::recoverableSeconds(*marker)) : QJsonValue::Null;
    if (operation == QLatin1String("recoveryCandidate"))
        return marker ? toJson(recovery::recoveryCandidate(*marker)) : QJsonValue::Null;
    if (operation == QLatin1String("recoverSession"))
        return marker ? toJson(tracker.recoverSession(*marker)) : QJsonValue::Null;
    if (operation == QLatin1String("discardRecovery")) {
        tracker.discardRecovery(marker.value_or(OpenSessionMarker()));
        return kNoResult;
    }
    if (operation == QLatin1String("recoveryWords")) {
        const auto candidate = marker ? recovery::recoveryCandidate(*marker) : std::nullopt;
        if (!candidate) return QJsonValue::Null;
        const auto style = durationstyle::fromRawValue(event[QLatin1String("style")].toString());
        const RecoveryWords words =
            recoveryWords(*candidate, style.value_or(DurationStyle::Natural));
        return QJsonObject{{QStringLiteral("found"), words.found},
                           {QStringLiteral("recovered"), words.recovered}};
    }
    return std::nullopt;
}

std::optional<QJsonValue> TrackerWorld::performOnWorld(const QString& operation,
                                                       const QJsonObject& event) {
    if (operation == QLatin1String("monitor")) {
        setMonitor(event[QLatin1String("monitor")]);
    } else if (operation == QLatin1String("skillIds")) {
        setSkillIds(event[QLatin1String("ids")]);
    } else if (operation == QLatin1String("writeRaw")) {
        auto image = imageFromJson(event[QLatin1String("content")]);
        const QString mode = event[QLatin1String("mode")].toString();
        if (image && !mode.isEmpty()) image->mode = mode.toInt(nullptr, 8);
        m_folder.put(event[QLatin1String("file")].toString(), image);
    } else if (operation == QLatin1String("fault")) {
        const QString fault = event[QLatin1String("name")].toString();
        const bool on = event[QLatin1String("on")].toBool();
        if (fault == QLatin1String("encode:open-session.json"))
            m_encodingFails = on;
        else if (DataFolder::knows(fault))
            m_folder.setFault(fault, on);
        else
            return unknown(fault);
    } else {
        return std::nullopt;
    }
    return kNoResult;
}

QJsonObject TrackerWorld::state() {
    const TrackerCore& tracker = *m_tracker;
    const TrackerCore::Internals inner = tracker.internals();
    return {
        {QStringLiteral("state"), nameOf(tracker.state())},
        {QStringLiteral("currentSkillId"), toJson(tracker.currentSkillId())},
        {QStringLiteral("startedAt"), toJson(tracker.startedAt())},
        {QStringLiteral("accumulatedSeconds"), inner.accumulatedSeconds},
        {QStringLiteral("segmentStart"), toJson(inner.segmentStart)},
        {QStringLiteral("lastKnownGoodAt"), toJson(inner.lastKnownGoodAt)},
        {QStringLiteral("ticksSinceMarkerWrite"), inner.ticksSinceMarkerWrite},
        {QStringLiteral("ticking"), inner.ticking},
        {QStringLiteral("welcomeBack"), toJson(tracker.welcomeBack())},
        {QStringLiteral("welcomeBackShownAt"), toJson(tracker.welcomeBackShownAt())},
        {QStringLiteral("displayActiveSeconds"), toJson(tracker.displayActiveSeconds())},
        {QStringLiteral("storageErrorSet"), tracker.storageError().has_value()},
        {QStringLiteral("dataWarning"), toJson(tracker.dataWarning())},
        {QStringLiteral("lastUsedSkill"), toJson(settings::lastUsedSkill.stored(m_preferences))},
        {QStringLiteral("now"), toJson(m_time.now())}};
}

QJsonArray TrackerWorld::takeEvents() {
    QJsonArray events;
    for (QJsonArray* block : {&m_questions, &m_reports, &m_news})
        for (const QJsonValue& event : std::exchange(*block, {}))
            events << event;
    return events;
}

QJsonObject TrackerWorld::changedFiles() {
    QStringList names = m_folder.names() + comparedFiles();
    names.removeAll(QStringLiteral("skills.json"));
    names.removeDuplicates();
    QJsonObject changed;
    for (const QString& name : names) {
        const QJsonValue image = imageToJson(m_folder.image(name));
        if (m_knownFiles.contains(name) && m_knownFiles[name] == image) continue;
        m_knownFiles[name] = image;
        changed[name] = image;
    }
    return changed;
}

} // namespace vantle::vectors

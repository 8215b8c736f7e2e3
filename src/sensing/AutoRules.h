// The rules that assign applications to skills, with their file.
//
// The file is "auto-rules.json".
#pragma once

#include "sensing/AutoRulesState.h"

#include <QObject>

#include <optional>
#include <vector>

namespace vantle {

class AppPaths;
class Clock;
class Scheduler;
class SerialQueue;
class SkillList;
struct Error;

/// Auto mode's memory. Loaded on first use; a missing or unreadable file is replaced by the rules
/// for well-known applications. Written after each change. A failed write changes nothing in memory
/// and sets `persistenceError`.
///
/// Main thread. Loading and erasing wait for the I/O queue, writing does not.
class AutoRules final : public QObject {
    Q_OBJECT

public:
    static constexpr const char* ignoreRuling = autorules::ignoreRuling;
    static constexpr std::size_t maxSeenApps = autorules::maxSeenApps;
    static constexpr const char* ioQueueLabel = "local.vantle.autoskill-io";

    /// The services that the rules use. All of them must outlive the rules.
    struct Environment {
        const Clock& clock;
        Scheduler& scheduler;
        SerialQueue& ioQueue; ///< auto mode's own queue, named `ioQueueLabel`
        const AppPaths& paths;
        SkillList& skills;
    };
    explicit AutoRules(const Environment& environment) : m_env(environment) {}

    /// Loads the file once, drops rules that no longer apply, and writes it back.
    void loadIfNeeded();

    /// Ruling by application: a skill id or `ignoreRuling`. May name skills that were deleted in
    /// this run.
    [[nodiscard]] const QMap<QString, QString>& rules() const { return m_state.rules; }
    [[nodiscard]] const std::vector<SeenApp>& seenApps() const { return m_state.seenApps; }
    [[nodiscard]] const QSet<QString>& automaticRuleBundleIds() const {
        return m_state.automaticRuleBundleIds;
    }
    /// Newest first.
    [[nodiscard]] std::vector<SeenApp> seenAppsByRecency() const;

    /// Returns the ruling for an application; empty when there is none or its skill is gone.
    [[nodiscard]] std::optional<QString> ruling(const QString& bundleId);

    /// Stores the user's choice; an empty one removes the rule. An unchanged ruling stays automatic
    /// if it was.
    void setRule(const QString& bundleId, const std::optional<QString>& ruling);

    /// Stores a rule that the user did not choose.
    void setAutomaticRule(const QString& bundleId, const QString& skillId);
    [[nodiscard]] bool isAutomaticallyCategorized(const QString& bundleId) const;

    /// Removes rule and last-seen entry of an application.
    void forgetApp(const QString& bundleId);

    /// Removes the rules for a deleted skill.
    void removeRules(const QString& forSkillId);

    /// Records that the application is in front now. A change of time alone is written at most once
    /// a minute.
    void recordSeen(const QString& bundleId, const QString& name);

    /// Returns the skill that probably fits the application; see AutoSuggestion.h.
    [[nodiscard]] std::optional<QString> suggestedSkillId(const QString& bundleId,
                                                          const QString& appName);

    /// Erases memory and file. Nothing is loaded or seeded again in this run.
    void eraseAllData();

    /// Returns after every queued write has been tried.
    void drainPendingIO();

    /// The last failure to save or erase, as text for the user; empty when there is none.
    [[nodiscard]] const std::optional<QString>& persistenceError() const {
        return m_persistenceError;
    }

Q_SIGNALS:
    void rulesChanged(); ///< also when only the automatic marks change
    void seenAppsChanged();
    void persistenceErrorChanged();

private:
    [[nodiscard]] std::optional<StoredAutoRules> readFile();
    void save();
    void noteSaveFailure(const Error& error);
    void setPersistenceError(const std::optional<QString>& text);
    void saveRules();
    void noteSeenAgain(SeenApp& app, const QString& name);
    void forgetOldestSeenApp();

    Environment m_env;
    AutoRulesState m_state;
    bool m_loaded = false;
    std::optional<Date> m_lastTimestampSaveAt; ///< empty means long ago
    std::optional<QString> m_persistenceError;
};

} // namespace vantle

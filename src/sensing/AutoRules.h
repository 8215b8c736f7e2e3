// Which application belongs to which skill: in memory, in "auto-rules.json", and the rules for
// changing it.
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

/// The memory of auto mode. Read on first use; a file that is missing or can't be read is replaced
/// by the well-known applications. From then on changed only here, and written after each change.
/// A write that fails changes nothing in memory; the person can read of it in `persistenceError`.
///
/// Main thread. Reading and erasing wait for the I/O queue, writing does not.
class AutoRules final : public QObject {
    Q_OBJECT

public:
    static constexpr const char* ignoreRuling = autorules::ignoreRuling;
    static constexpr std::size_t maxSeenApps = autorules::maxSeenApps;
    static constexpr const char* ioQueueLabel = "local.vantle.autoskill-io";

    /// What the rules work with. All of it must outlive them.
    struct Environment {
        const Clock& clock;
        Scheduler& scheduler;
        SerialQueue& ioQueue; ///< of its own, named `ioQueueLabel`
        const AppPaths& paths;
        SkillList& skills;
    };
    explicit AutoRules(const Environment& environment) : m_env(environment) {}

    /// Reads the file, unless that was done, and writes it back without what has lost its meaning.
    void loadIfNeeded();

    /// Ruling by application: a skill id or `ignoreRuling`. Those whose skill was deleted in this
    /// run are still among them.
    [[nodiscard]] const QMap<QString, QString>& rules() const { return m_state.rules; }
    [[nodiscard]] const std::vector<SeenApp>& seenApps() const { return m_state.seenApps; }
    [[nodiscard]] const QSet<QString>& automaticRuleBundleIds() const {
        return m_state.automaticRuleBundleIds;
    }
    /// Newest first.
    [[nodiscard]] std::vector<SeenApp> seenAppsByRecency() const;

    /// The ruling for an application; empty when there is none, or none that still has a meaning.
    [[nodiscard]] std::optional<QString> ruling(const QString& bundleId);

    /// The person's choice; empty takes the rule away. The same ruling as before changes nothing,
    /// so it does not count as confirmed either.
    void setRule(const QString& bundleId, const std::optional<QString>& ruling);

    /// A rule that nobody chose.
    void setAutomaticRule(const QString& bundleId, const QString& skillId);
    [[nodiscard]] bool isAutomaticallyCategorized(const QString& bundleId) const;

    /// Forgets all about an application.
    void forgetApp(const QString& bundleId);

    /// Takes away the rules for a skill that was deleted.
    void removeRules(const QString& forSkillId);

    /// The application is in front now. The time alone is written once a minute at the most.
    void recordSeen(const QString& bundleId, const QString& name);

    /// What the application is probably for among the person's skills; see AutoSuggestion.h.
    [[nodiscard]] std::optional<QString> suggestedSkillId(const QString& bundleId,
                                                          const QString& appName);

    /// Forgets everything, file included. Nothing is read or seeded again in this run.
    void eraseAllData();

    /// Returns when every write so far has been tried.
    void drainPendingIO();

    /// The last failure of a save or an erase, in words for the person; empty when all is well.
    [[nodiscard]] const std::optional<QString>& persistenceError() const {
        return m_persistenceError;
    }

Q_SIGNALS:
    void rulesChanged(); ///< or the marks of which are automatic
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
    std::optional<Date> m_lastTimestampSaveAt; ///< empty: long ago
    std::optional<QString> m_persistenceError;
};

} // namespace vantle

#include "sensing/AutoRules.h"

#include "base/Clock.h"
#include "base/Scheduler.h"
#include "base/SerialQueue.h"
#include "base/Words.h"
#include "platform/FileSystem.h"
#include "sensing/AutoRulesJson.h"
#include "sensing/AutoSuggestion.h"
#include "tracking/AppPaths.h"
#include "tracking/SkillList.h"

#include <QPointer>

#include <algorithm>

namespace vantle {

namespace {

/// The longest delay before a changed last-seen time reaches the file.
constexpr Seconds kTimestampSaveInterval{60};

} // namespace

void AutoRules::loadIfNeeded() {
    if (m_loaded) return;
    m_loaded = true;
    const std::optional<StoredAutoRules> stored = readFile();
    m_state = stored ? autorules::cleaned(*stored, m_env.clock.now(), m_env.skills.all())
                     : autorules::seeded(m_env.skills.all());
    Q_EMIT rulesChanged();
    Q_EMIT seenAppsChanged();
    save();
}

std::optional<StoredAutoRules> AutoRules::readFile() {
    return m_env.ioQueue.run([this]() -> std::optional<StoredAutoRules> {
        const auto bytes = m_env.paths.fileSystem().readAll(m_env.paths.autoRulesFile());
        return bytes ? json::decodeAutoRules(bytes.value()) : std::nullopt;
    });
}

void AutoRules::save() {
    const Result<QByteArray> bytes = json::encode(m_state);
    if (!bytes) {
        noteSaveFailure(bytes.error());
        return;
    }
    m_env.ioQueue.async([self = QPointer(this), &paths = m_env.paths, &scheduler = m_env.scheduler,
                         data = bytes.value()] {
        const Result<> written = paths.writeProtected(data, paths.autoRulesFile());
        if (written) return;
        scheduler.post([self, error = written.error()] {
            if (self) self->noteSaveFailure(error);
        });
    });
    // Cleared without waiting for the write. A failure sets it again when the write has run.
    setPersistenceError(std::nullopt);
}

void AutoRules::noteSaveFailure(const Error& error) {
    setPersistenceError(Words::tr("Couldn’t save Auto mode choices: %1").arg(error.description()));
}

void AutoRules::setPersistenceError(const std::optional<QString>& text) {
    if (m_persistenceError == text) return;
    m_persistenceError = text;
    Q_EMIT persistenceErrorChanged();
}

void AutoRules::saveRules() {
    Q_EMIT rulesChanged();
    save();
}

std::vector<SeenApp> AutoRules::seenAppsByRecency() const {
    std::vector<SeenApp> apps = m_state.seenApps;
    std::ranges::stable_sort(apps, std::ranges::greater{}, &SeenApp::lastSeenAt);
    return apps;
}

std::optional<QString> AutoRules::ruling(const QString& bundleId) {
    loadIfNeeded();
    const auto rule = m_state.rules.constFind(bundleId);
    if (rule == m_state.rules.cend() || !autorules::isValidRuling(*rule, m_env.skills.all()))
        return std::nullopt;
    return *rule;
}

void AutoRules::setRule(const QString& bundleId, const std::optional<QString>& ruling) {
    loadIfNeeded();
    const auto rule = m_state.rules.find(bundleId);
    const bool isThere = rule != m_state.rules.end();
    if (ruling ? isThere && *rule == *ruling : !isThere) return;
    m_state.automaticRuleBundleIds.remove(bundleId);
    if (ruling)
        m_state.rules.insert(bundleId, *ruling);
    else
        m_state.rules.erase(rule); // last: the caller's id may be the rule's own key
    saveRules();
}

void AutoRules::setAutomaticRule(const QString& bundleId, const QString& skillId) {
    loadIfNeeded();
    m_state.rules.insert(bundleId, skillId);
    m_state.automaticRuleBundleIds.insert(bundleId);
    saveRules();
}

bool AutoRules::isAutomaticallyCategorized(const QString& bundleId) const {
    return m_state.automaticRuleBundleIds.contains(bundleId);
}

void AutoRules::forgetApp(const QString& bundleId) {
    // Loads first, so that the write cannot replace a file that was never read.
    loadIfNeeded();
    m_state.rules.remove(bundleId);
    m_state.automaticRuleBundleIds.remove(bundleId);
    std::erase_if(m_state.seenApps, [&](const SeenApp& app) { return app.bundleId == bundleId; });
    Q_EMIT seenAppsChanged();
    saveRules();
}

void AutoRules::removeRules(const QString& forSkillId) {
    const QStringList bundleIds = m_state.rules.keys(forSkillId);
    if (bundleIds.isEmpty()) return;
    for (const QString& bundleId : bundleIds) {
        m_state.rules.remove(bundleId);
        m_state.automaticRuleBundleIds.remove(bundleId);
    }
    saveRules();
}

void AutoRules::recordSeen(const QString& bundleId, const QString& name) {
    loadIfNeeded();
    const auto known = std::ranges::find(m_state.seenApps, bundleId, &SeenApp::bundleId);
    if (known != m_state.seenApps.end()) {
        noteSeenAgain(*known, name);
        return;
    }
    m_state.seenApps.push_back({bundleId, name, m_env.clock.now()});
    if (m_state.seenApps.size() > maxSeenApps) forgetOldestSeenApp();
    Q_EMIT seenAppsChanged();
    save();
}

void AutoRules::noteSeenAgain(SeenApp& app, const QString& name) {
    const Date now = m_env.clock.now();
    const bool renamed = app.name != name;
    app.name = name;
    app.lastSeenAt = now;
    Q_EMIT seenAppsChanged();
    if (!renamed) {
        if (m_lastTimestampSaveAt && now - *m_lastTimestampSaveAt < kTimestampSaveInterval) return;
        m_lastTimestampSaveAt = now;
    }
    save();
}

void AutoRules::forgetOldestSeenApp() {
    const auto oldest = std::ranges::min_element(m_state.seenApps, {}, &SeenApp::lastSeenAt);
    const QString bundleId = oldest->bundleId;
    std::erase_if(m_state.seenApps, [&](const SeenApp& app) { return app.bundleId == bundleId; });
}

std::optional<QString> AutoRules::suggestedSkillId(const QString& bundleId,
                                                   const QString& appName) {
    return autosuggestion::suggestedSkillId(bundleId, appName, m_env.skills.all());
}

void AutoRules::eraseAllData() {
    m_loaded = true;
    m_state = {};
    Q_EMIT rulesChanged();
    Q_EMIT seenAppsChanged();
    const Result<> removed = m_env.ioQueue.run(
        [this] { return m_env.paths.removeIfPresent(m_env.paths.autoRulesFile()); });
    setPersistenceError(removed ? std::nullopt
                                : std::optional(Words::tr("Couldn’t erase Auto mode data: %1")
                                                    .arg(removed.error().description())));
}

void AutoRules::drainPendingIO() { m_env.ioQueue.drain(); }

} // namespace vantle

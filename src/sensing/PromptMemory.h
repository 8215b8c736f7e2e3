// The applications that the user was asked about in this run.
//
// Keeps questions from being repeated or too frequent. Plain value, any thread.
#pragma once

#include "base/Date.h"

#include <QHash>
#include <QSet>
#include <QString>

#include <optional>

namespace vantle {

class PromptMemory {
public:
    static constexpr double cooldownSeconds = 1800; ///< for the application of the question
    static constexpr double spacingSeconds = 900;   ///< for every application

    /// Whether the user may be asked about the application now.
    [[nodiscard]] bool mayPrompt(const QString& bundleId, Date now) const;

    /// The question is about to be shown.
    void noteOffered(const QString& bundleId) { m_promptedThisLaunch.insert(bundleId); }

    /// The question could not be shown.
    void forgetOffer(const QString& bundleId) { m_promptedThisLaunch.remove(bundleId); }

    /// The user answered, or let the question expire.
    void noteResolved(const QString& bundleId, Date now);

    void clear() { *this = {}; }

private:
    QSet<QString> m_promptedThisLaunch;
    QHash<QString, Date> m_cooldownUntil;
    std::optional<Date> m_lastResolvedAt;
};

} // namespace vantle

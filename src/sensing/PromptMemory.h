// Which applications the person was asked about, so that nobody is asked twice or too often.
//
// A plain value for one run of the program, any thread.
#pragma once

#include "base/Date.h"

#include <QHash>
#include <QSet>
#include <QString>

#include <optional>

namespace vantle {

class PromptMemory {
public:
    static constexpr double cooldownSeconds = 1800; ///< for the application that was asked about
    static constexpr double spacingSeconds = 900;   ///< for every application

    /// Whether the person may be asked about the application now.
    [[nodiscard]] bool mayPrompt(const QString& bundleId, Date now) const;

    /// The person is about to be asked.
    void noteOffered(const QString& bundleId) { m_promptedThisLaunch.insert(bundleId); }

    /// The question could not be put after all.
    void forgetOffer(const QString& bundleId) { m_promptedThisLaunch.remove(bundleId); }

    /// The person answered, or let it pass.
    void noteResolved(const QString& bundleId, Date now);

    void clear() { *this = {}; }

private:
    QSet<QString> m_promptedThisLaunch;
    QHash<QString, Date> m_cooldownUntil;
    std::optional<Date> m_lastResolvedAt;
};

} // namespace vantle

// Auto mode as the application model knows it.
#pragma once

#include "app/Collaborators.h"
#include "sensing/AutoSkillMonitor.h"

namespace vantle {

/// Passes everything on to the monitor, which must outlive it, and does nothing else. Main thread.
class AutoSkillAdapter final : public collaborators::AutoSkill {
public:
    explicit AutoSkillAdapter(AutoSkillMonitor& monitor) : m_monitor(monitor) {}

    void setHooks(Hooks hooks) override;
    void refreshFromDefaults() override;
    void clearSessionOverrides() override;
    void noteManualSkillChoice() override;
    [[nodiscard]] std::optional<Application> frontmostAppForCorrection() override;
    [[nodiscard]] std::optional<QString> ruling(const QString& bundleId) override;
    [[nodiscard]] bool mayOfferCorrectionPrompt(const QString& bundleId) override;
    void setRule(const QString& bundleId, const QString& ruling) override;
    void forgetPromptOffer(const QString& bundleId) override;
    void noteTagPromptResolved(const QString& bundleId) override;
    void removeRules(const QString& skillId) override;
    void eraseAllData() override;
    void drainPendingIO() override;
    [[nodiscard]] bool isBrowser(const QString& bundleId, const QString& appName) override;

private:
    AutoSkillMonitor& m_monitor;
};

} // namespace vantle

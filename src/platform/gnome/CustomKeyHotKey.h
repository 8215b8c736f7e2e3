// The shortcut as a custom key in GNOME's settings.
#pragma once

#include "platform/OfferedHotKey.h"
#include "platform/ProcessRunner.h"
#include "platform/bus/FollowedService.h"

#include <QDBusConnection>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

namespace vantle {

/// A custom key of GNOME's media keys daemon runs a command. Only `allow(true)` writes it, and it
/// stays until `allow(false)`, also while the program does not run. Presses arrive as that
/// command's action, not at the handler. Keys chosen by the user in GNOME's settings are kept;
/// removing it there withdraws the allowance. Read at the start and after its own changes only.
///
/// Uses the tool `gsettings` without blocking. Main thread.
class CustomKeyHotKey final : public OfferedHotKey {
public:
    static constexpr int kToolFailed = -1; ///< status

    /// `tool` is the path of gsettings; empty when missing. `processes` must outlive this object.
    CustomKeyHotKey(const QDBusConnection& session, ProcessRunner& processes, QString tool);

    [[nodiscard]] std::optional<bool> isOffered() const override { return m_isOffered; }

    [[nodiscard]] int installHandler(std::function<void()>) override { return 0; }
    void removeHandler() override {}
    [[nodiscard]] Outcome registerKey() override;
    void unregisterKey() override;

    [[nodiscard]] QString wayToAllow() const override { return QStringLiteral("gnome"); }
    void recallAllowed(const QString& way) override { m_isAllowed = way == wayToAllow(); }
    [[nodiscard]] Outcome allow(bool allowed) override;

private:
    using Output = std::function<void(const QString& printed)>;

    using Job = void (CustomKeyHotKey::*)();

    void setOffered(bool offered);
    void start(Job job);
    void find();
    void add();
    void addTo(QStringList keys);
    void remove();
    void readKeys();
    void run(const QStringList& arguments, Output take);
    void tell(const Outcome& outcome);

    FollowedService m_daemon;
    ProcessRunner& m_processes;
    const QString m_tool;
    std::optional<bool> m_isOffered;
    bool m_isAllowed = false;
    /// Identifies the current attempt; callbacks of earlier ones expire.
    std::shared_ptr<int> m_attempt = std::make_shared<int>();
    bool m_toolRuns = false; ///< one run at a time
    Job m_next = nullptr;    ///< runs when the tool has ended
    Outcome m_outcome;       ///< as reported last
};

} // namespace vantle

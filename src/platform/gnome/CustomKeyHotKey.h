// The shortcut as one of the user's own keys in GNOME's settings.
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

/// A custom key of GNOME's daemon for media keys, which runs a command. It is written into the
/// user's settings only by `allow(true)`, and stays there, also while the program does not run,
/// until `allow(false)`. So no press reaches the handler: it comes as the action of that command.
/// Keys that the user has chosen for it in GNOME's settings are kept; where the user has removed it
/// there, it is no longer allowed. Read at the start and after each change of its own alone.
///
/// By the tool `gsettings`, which nothing waits for. Main thread.
class CustomKeyHotKey final : public OfferedHotKey {
public:
    static constexpr int kToolFailed = -1; ///< status

    /// `tool` is the path of gsettings, empty where there is none. `processes` must outlive this.
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
    std::shared_ptr<int> m_attempt = std::make_shared<int>(); ///< ends the former ones
    bool m_toolRuns = false;                                  ///< once at a time
    Job m_next = nullptr;                                     ///< when the tool has ended
    Outcome m_outcome;                                        ///< as told last
};

} // namespace vantle

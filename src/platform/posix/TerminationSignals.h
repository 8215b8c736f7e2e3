// The termination signals: logout, shutdown, Ctrl-C, closed terminal.
#pragma once

#include <QSocketNotifier>

#include <array>
#include <csignal>
#include <functional>
#include <memory>

namespace vantle {

/// Delivers SIGTERM, SIGINT and SIGHUP to a callback on the main thread, from construction until
/// destruction, which restores the former handlers. A signal that was ignored before, as under
/// `nohup`, stays ignored. Child processes start with default handlers. One object at a time;
/// construct on the main thread, which must run an event loop. The callback may destroy the object.
class TerminationSignals {
public:
    /// Calls `terminated` with the number of each signal.
    explicit TerminationSignals(std::function<void(int signal)> terminated);
    ~TerminationSignals();
    TerminationSignals(const TerminationSignals&) = delete;
    TerminationSignals& operator=(const TerminationSignals&) = delete;

private:
    void takeNext();

    static constexpr std::array kSignals{SIGTERM, SIGINT, SIGHUP};

    const std::function<void(int)> m_terminated;
    QSocketNotifier* m_notifier = nullptr; ///< null when signals cannot be received
    std::array<struct sigaction, kSignals.size()> m_former{};
};

} // namespace vantle

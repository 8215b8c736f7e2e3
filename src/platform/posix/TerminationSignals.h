// The system's requests to end: logout, shutdown, Ctrl-C, a closed terminal.
#pragma once

#include <QSocketNotifier>

#include <array>
#include <csignal>
#include <functional>
#include <memory>

namespace vantle {

/// Makes SIGTERM, SIGINT and SIGHUP reach a callback on the main thread instead of ending the
/// process on the spot, from construction until destruction, which puts the former handlers back.
/// A signal that was ignored before, as `nohup` arranges it, stays ignored. Child processes start
/// with the usual handlers. One object at a time; make it on the main thread, which must run an
/// event loop. The callback may destroy the object.
class TerminationSignals {
public:
    /// `terminated` gets the signal's number, once for each that arrives.
    explicit TerminationSignals(std::function<void(int signal)> terminated);
    ~TerminationSignals();
    TerminationSignals(const TerminationSignals&) = delete;
    TerminationSignals& operator=(const TerminationSignals&) = delete;

private:
    void takeNext();

    static constexpr std::array kSignals{SIGTERM, SIGINT, SIGHUP};

    const std::function<void(int)> m_terminated;
    QSocketNotifier* m_notifier = nullptr; ///< null when there is nothing to hear with
    std::array<struct sigaction, kSignals.size()> m_former{};
};

} // namespace vantle

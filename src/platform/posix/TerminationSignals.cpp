#include "platform/posix/TerminationSignals.h"

#include "platform/posix/Descriptor.h"

#include <fcntl.h>

namespace vantle {

namespace {

/// The pipe from the handler, which may call almost nothing, to the event loop. One per process and
/// never closed: a handler running in another thread could otherwise write into a file that got the
/// same number.
struct Pipe {
    int readEnd = -1;
    int writeEnd = -1;
};

const Pipe& signalPipe() {
    static const Pipe pipe = [] {
        int ends[2] = {-1, -1};
        if (::pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0) return Pipe{};
        return Pipe{ends[0], ends[1]};
    }();
    return pipe;
}

/// The descriptor that the handler writes to. A copy, since the handler must not run the pipe's
/// initialisation.
volatile std::sig_atomic_t handlerEnd = -1;

extern "C" void noteSignal(int signal) {
    const int formerErrno = errno;
    const auto byte = static_cast<unsigned char>(signal);
    // A full pipe already holds thousands of termination requests.
    [[maybe_unused]] const ssize_t written = ::write(handlerEnd, &byte, 1);
    errno = formerErrno;
}

/// Returns the next recorded signal; 0 when there is none.
int nextSignal() {
    unsigned char byte = 0;
    const ssize_t count = posix::retried([&] { return ::read(signalPipe().readEnd, &byte, 1); });
    return count == 1 ? byte : 0;
}

} // namespace

TerminationSignals::TerminationSignals(std::function<void(int)> terminated)
    : m_terminated(std::move(terminated)) {
    if (signalPipe().readEnd < 0) return; // out of descriptors: signals keep their default action
    while (nextSignal() != 0) {
    } // drops signals for an earlier object
    m_notifier = new QSocketNotifier(signalPipe().readEnd, QSocketNotifier::Read);
    QObject::connect(m_notifier, &QSocketNotifier::activated, m_notifier, [this] { takeNext(); });

    handlerEnd = signalPipe().writeEnd;
    struct sigaction action {};
    action.sa_handler = noteSignal;
    action.sa_flags = SA_RESTART;
    for (std::size_t i = 0; i < kSignals.size(); ++i) {
        ::sigaction(kSignals[i], nullptr, &m_former[i]);
        if (m_former[i].sa_handler != SIG_IGN) ::sigaction(kSignals[i], &action, nullptr);
    }
}

TerminationSignals::~TerminationSignals() {
    if (!m_notifier) return;
    for (std::size_t i = 0; i < kSignals.size(); ++i)
        ::sigaction(kSignals[i], &m_former[i], nullptr);
    // Deferred, since this may run inside the notifier's own signal.
    m_notifier->setEnabled(false);
    m_notifier->disconnect();
    m_notifier->deleteLater();
}

void TerminationSignals::takeNext() {
    // One signal per turn, and nothing after the call: it may destroy this object.
    const std::function<void(int)> terminated = m_terminated;
    if (const int signal = nextSignal(); signal != 0) terminated(signal);
}

} // namespace vantle

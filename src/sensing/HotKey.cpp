#include "sensing/HotKey.h"

#include "base/Words.h"

#include <QPointer>

#include <utility>

namespace vantle {
namespace {

QString failureText(const HotKeyPort::Outcome& outcome) {
    if (outcome.registration == HotKeyPort::Registration::HeldByAnother)
        return Words::tr("⌥⌘B is already used by another app.");
    return Words::tr("Couldn’t register ⌥⌘B (%1).").arg(outcome.status);
}

} // namespace

HotKey::HotKey(HotKeyPort& port, Scheduler& scheduler) : m_port(port), m_scheduler(scheduler) {
    m_port.onOutcomeChanged = [this](const auto& outcome) { adopt(outcome); };
}

HotKey::~HotKey() {
    m_port.onOutcomeChanged = nullptr;
    release();
}

void HotKey::registerHotKey() {
    if (m_isRegistered) return;
    release(); // a combination that was lost

    // 1. and 2. The handler first, so that no press is lost between the two.
    const int status = m_port.installHandler([this] { deliverPressLater(); });
    if (status != 0) {
        setRegistrationError(Words::tr("Couldn’t install the shortcut handler (%1).").arg(status));
        return;
    }

    // 3. The combination itself.
    const HotKeyPort::Outcome outcome = m_port.registerKey();
    m_portHolds = outcome.registration == HotKeyPort::Registration::Registered;
    adopt(outcome);

    // 4. A handler without a key has no use, and the next attempt installs its own.
    if (!m_portHolds) m_port.removeHandler();
}

void HotKey::adopt(const HotKeyPort::Outcome& outcome) {
    const bool registered = outcome.registration == HotKeyPort::Registration::Registered;
    setRegistered(registered);
    setRegistrationError(registered ? std::nullopt : std::optional(failureText(outcome)));
}

void HotKey::unregisterHotKey() {
    release();
    setRegistered(false);
}

void HotKey::release() {
    if (!std::exchange(m_portHolds, false)) return;
    m_port.unregisterKey();
    m_port.removeHandler();
}

void HotKey::deliverPressLater() {
    m_scheduler.post([self = QPointer<HotKey>(this)] {
        if (self && self->onPressed) self->onPressed();
    });
}

void HotKey::setRegistered(bool registered) {
    if (registered == m_isRegistered) return;
    m_isRegistered = registered;
    Q_EMIT isRegisteredChanged();
}

void HotKey::setRegistrationError(std::optional<QString> text) {
    if (text == m_registrationError) return;
    m_registrationError = std::move(text);
    Q_EMIT registrationErrorChanged();
}

} // namespace vantle

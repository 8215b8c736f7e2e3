#include "sensing/HotKey.h"

#include <QPointer>

namespace vantle {
namespace {

QString failureText(const HotKeyPort::Outcome& outcome) {
    if (outcome.registration == HotKeyPort::Registration::HeldByAnother)
        return QStringLiteral("⌥⌘B is already used by another app.");
    return QStringLiteral("Couldn’t register ⌥⌘B (%1).").arg(outcome.status);
}

} // namespace

HotKey::HotKey(HotKeyPort& port, Scheduler& scheduler) : m_port(port), m_scheduler(scheduler) {}

HotKey::~HotKey() { release(); }

void HotKey::registerHotKey() {
    if (m_isRegistered) return;

    // 1. and 2. The handler first, so that no press is lost between the two.
    const int status = m_port.installHandler([this] { deliverPressLater(); });
    if (status != 0) {
        setRegistrationError(
            QStringLiteral("Couldn’t install the shortcut handler (%1).").arg(status));
        return;
    }

    // 3. The combination itself.
    const HotKeyPort::Outcome outcome = m_port.registerKey();
    if (outcome.registration == HotKeyPort::Registration::Registered) {
        setRegistered(true);
        setRegistrationError(std::nullopt);
        return;
    }

    // 4. A handler without a key has no use, and the next attempt installs its own.
    m_port.removeHandler();
    setRegistrationError(failureText(outcome));
}

void HotKey::unregisterHotKey() {
    release();
    setRegistered(false);
}

void HotKey::release() {
    if (!m_isRegistered) return;
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

#include "sensing/HotKey.h"

#include "base/Words.h"
#include "tracking/Settings.h"

#include <QPointer>

#include <utility>

namespace vantle {
namespace {

using Registration = HotKeyPort::Registration;

/// Returns the failure as text for the user; empty when there is none.
std::optional<QString> failureText(const HotKeyPort::Outcome& outcome) {
    switch (outcome.registration) {
    case Registration::HeldByAnother:
        return Words::tr("⌥⌘B is already used by another app.");
    case Registration::Failed:
        return Words::tr("Couldn’t register ⌥⌘B (%1).").arg(outcome.status);
    default:
        return std::nullopt;
    }
}

/// Whether the port keeps the handler and may still get the combination.
bool goesOn(Registration registration) {
    return registration != Registration::HeldByAnother && registration != Registration::Failed;
}

} // namespace

HotKey::HotKey(HotKeyPort& port, Scheduler& scheduler, Preferences& preferences)
    : m_port(port)
    , m_scheduler(scheduler)
    , m_preferences(preferences) {
    m_port.onOutcomeChanged = [this](const auto& outcome) { adopt(outcome); };
}

HotKey::~HotKey() {
    m_port.onOutcomeChanged = nullptr;
    release();
}

void HotKey::registerHotKey() {
    if (m_isRegistered) return;
    release(); // releases a combination that was lost

    // The handler before the combination, so that no press is lost in between.
    const int status = m_port.installHandler([this] { deliverPressLater(); });
    if (status != 0) {
        setRegistrationError(Words::tr("Couldn’t install the shortcut handler (%1).").arg(status));
        return;
    }

    m_port.recallAllowed(settings::hotKeyAllowed.read(m_preferences));
    const HotKeyPort::Outcome outcome = m_port.registerKey();
    m_portHolds = goesOn(outcome.registration);
    adopt(outcome);

    // Without a combination the handler is useless, and the next attempt installs its own.
    if (!m_portHolds) m_port.removeHandler();
}

void HotKey::adopt(const HotKeyPort::Outcome& outcome) {
    const bool changed = std::exchange(m_outcome, outcome) != outcome;
    if (outcome.registration == Registration::NotAllowed) forgetAllowance();
    setRegistered(outcome.registration == Registration::Registered);
    setRegistrationError(failureText(outcome));
    if (changed) Q_EMIT outcomeChanged();
}

void HotKey::allow(bool allowed) {
    const QString way = m_port.wayToAllow();
    if (!m_portHolds || way.isEmpty()) return;
    if (allowed) settings::hotKeyAllowed.write(m_preferences, way);
    adopt(m_port.allow(allowed));
}

void HotKey::forgetAllowance() {
    // That of another way, which the desktop has just not got, stays.
    if (settings::hotKeyAllowed.read(m_preferences) == m_port.wayToAllow())
        settings::hotKeyAllowed.remove(m_preferences);
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

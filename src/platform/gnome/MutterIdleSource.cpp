#include "platform/gnome/MutterIdleSource.h"

#include "platform/bus/BusValue.h"

namespace vantle {

namespace {

const QString kMonitor = QStringLiteral("org.gnome.Mutter.IdleMonitor");
const QString kMonitorPath = QStringLiteral("/org/gnome/Mutter/IdleMonitor/Core");

/// In milliseconds.
constexpr qulonglong kShortWhile = static_cast<qulonglong>(IdleEvents::shortWhile.count() * 1000);

} // namespace

MutterIdleSource::MutterIdleSource(const QDBusConnection& session, const Clock& clock)
    : m_monitor(session, kMonitor)
    , m_clock(clock) {
    connect(&m_monitor, &FollowedService::came, this, &MutterIdleSource::meet);
    connect(&m_monitor, &FollowedService::gone, this, &MutterIdleSource::lose);
    m_monitor.hear(kMonitorPath, kMonitor, QStringLiteral("WatchFired"),
                   [this](const QDBusMessage& signal) {
                       const auto id = busValue<uint>(signal.arguments().value(0));
                       if (id) takeWatch(*id);
                   });
}

std::optional<double> MutterIdleSource::secondsSinceLastInput() {
    if (!m_events) return std::nullopt;
    return m_events->secondsSinceLastInput();
}

QDBusMessage MutterIdleSource::callTo(const QString& method) const {
    return m_monitor.call(kMonitorPath, kMonitor, method);
}

void MutterIdleSource::meet() {
    m_monitor.ask<uint>(callTo(QStringLiteral("AddIdleWatch")) << kShortWhile, [this](uint id) {
        m_idleWatch = id;
        m_inputWatch = 0;
        m_events.emplace(m_clock);
        Q_EMIT canTellChanged();
    });
}

void MutterIdleSource::lose() {
    m_idleWatch = m_inputWatch = 0;
    if (!m_events) return;
    m_events.reset();
    Q_EMIT canTellChanged();
}

void MutterIdleSource::takeWatch(uint id) {
    if (!m_events || id == 0) return;
    if (id == m_idleWatch) {
        m_events->idled();
        watchForInput();
    } else if (id == m_inputWatch) {
        m_inputWatch = 0;
        m_events->resumed();
    }
}

void MutterIdleSource::watchForInput() {
    m_monitor.ask<uint>(callTo(QStringLiteral("AddUserActiveWatch")), [this](uint id) {
        m_inputWatch = id;
        askWhetherStillIdle();
    });
}

void MutterIdleSource::askWhetherStillIdle() {
    // Input between the first second and the watch for the next input was not reported.
    m_monitor.ask<qulonglong>(
        callTo(QStringLiteral("GetIdletime")), [this](qulonglong milliseconds) {
            if (!m_events || !m_events->isIdle() || milliseconds >= kShortWhile) return;
            m_events->resumed();
        });
}

} // namespace vantle

#include "platform/gnome/MutterIdleSource.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>

namespace vantle {

namespace {

const QString kMonitor = QStringLiteral("org.gnome.Mutter.IdleMonitor");
const QString kMonitorPath = QStringLiteral("/org/gnome/Mutter/IdleMonitor/Core");

/// In milliseconds.
constexpr qulonglong kShortWhile = static_cast<qulonglong>(IdleEvents::shortWhile.count() * 1000);

} // namespace

MutterIdleSource::MutterIdleSource(const QDBusConnection& session, const Clock& clock)
    : m_session(session)
    , m_clock(clock) {
    if (!m_session.isConnected()) return;
    m_session.connect(kMonitor, kMonitorPath, kMonitor, QStringLiteral("WatchFired"), this,
                      SLOT(takeWatch(uint)));
    auto* watcher = new QDBusServiceWatcher(kMonitor, m_session,
                                            QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString&, const QString&, const QString& newOwner) {
                lose();
                if (!newOwner.isEmpty()) meet();
            });
    meet();
}

std::optional<double> MutterIdleSource::secondsSinceLastInput() {
    if (!m_events) return std::nullopt;
    return m_events->secondsSinceLastInput();
}

void MutterIdleSource::ask(const QString& method, const QVariantList& arguments,
                           const std::function<void(const QVariant&)>& take) {
    auto call = QDBusMessage::createMethodCall(kMonitor, kMonitorPath, kMonitor, method);
    call.setArguments(arguments);
    call.setAutoStartService(false);
    auto* answer = new QDBusPendingCallWatcher(m_session.asyncCall(call), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [answer, take] {
        answer->deleteLater();
        const QVariantList values = answer->reply().arguments();
        if (!answer->isError() && !values.isEmpty()) take(values.constFirst());
    });
}

void MutterIdleSource::meet() {
    ask(QStringLiteral("AddIdleWatch"), {QVariant::fromValue(kShortWhile)},
        [this](const QVariant& id) {
            const bool could = canTell();
            m_idleWatch = id.toUInt();
            m_inputWatch = 0;
            m_events.emplace(m_clock);
            if (!could) Q_EMIT canTellChanged();
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
    ask(QStringLiteral("AddUserActiveWatch"), {}, [this](const QVariant& id) {
        m_inputWatch = id.toUInt();
        askWhetherStillIdle();
    });
}

void MutterIdleSource::askWhetherStillIdle() {
    // An input between the first second and the watch for the next input was told by nothing.
    ask(QStringLiteral("GetIdletime"), {}, [this](const QVariant& milliseconds) {
        if (!m_events || !m_events->isIdle() || milliseconds.toULongLong() >= kShortWhile) return;
        m_events->resumed();
    });
}

} // namespace vantle

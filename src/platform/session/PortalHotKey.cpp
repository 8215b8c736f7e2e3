#include "platform/session/PortalHotKey.h"

#include "base/Words.h"
#include "platform/AcceleratorText.h"
#include "platform/bus/BusValue.h"
#include "platform/session/LateBus.h"
#include "platform/session/PortalRequest.h"

#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QVariant>

#include <algorithm>
#include <utility>

namespace vantle {

namespace {

const QString kInterface = QStringLiteral("org.freedesktop.portal.GlobalShortcuts");
const QString kSession = QStringLiteral("org.freedesktop.portal.Session");
const QString kRegistry = QStringLiteral("org.freedesktop.host.portal.Registry");

const QString kShortcut = QStringLiteral("toggle");

PortalShortcuts shortcutsOf(const QVariant& value) {
    return busValue<PortalShortcuts>(value).value_or(PortalShortcuts());
}

} // namespace

/// One portal session with its connection, which ends it.
class PortalHotKey::Link {
public:
    explicit Link(PortalHotKey& owner) : m_owner(owner), m_bus(owner.m_address) {
        QObject::connect(&m_bus, &LateBus::connected, &m_bus,
                         [this](const QDBusConnection& bus) { open(bus); });
    }

private:
    using Take = std::function<void(const QVariantMap& results)>;

    void open(const QDBusConnection& bus) {
        m_name = bus.baseService();
        m_portal = std::make_unique<FollowedService>(bus, portal::kService);
        QObject::connect(m_portal.get(), &FollowedService::came, m_portal.get(),
                         [this] { introduce(); });
        m_portal->hear(portal::kPath, kInterface, QStringLiteral("Activated"),
                       [this](const QDBusMessage& signal) {
                           if (!isOurs(signal) || !m_owner.m_held.pressed()) return;
                           if (m_owner.m_pressed) m_owner.m_pressed();
                       });
        m_portal->hear(portal::kPath, kInterface, QStringLiteral("Deactivated"),
                       [this](const QDBusMessage& signal) {
                           if (isOurs(signal)) m_owner.m_held.released();
                       });
        m_portal->hear(portal::kPath, kInterface, QStringLiteral("ShortcutsChanged"),
                       [this](const QDBusMessage& signal) {
                           if (isOfOurSession(signal))
                               m_owner.takeShortcuts(shortcutsOf(signal.arguments().value(1)),
                                                     Registration::KeysRemoved);
                       });
    }

    /// Portals from 1.20 on need the program's desktop entry id. Older ones lack the call and
    /// return an error, which is ignored.
    void introduce() {
        const auto next = [this] { createSession(); };
        auto call = m_portal->call(portal::kPath, kRegistry, QStringLiteral("Register"));
        m_portal->ask<QString>(
            call << QStringLiteral("local.vantle.Vantle") << QVariantMap(),
            [next](const QString&) { next(); }, next);
    }

    void createSession() {
        request(QStringLiteral("CreateSession"), {},
                {{QStringLiteral("session_handle_token"), portal::newToken()}},
                [this](const QVariantMap& results) {
                    m_session = results.value(QStringLiteral("session_handle")).toString();
                    if (!isObjectPath(m_session)) return fail();
                    m_portal->hear(m_session, kSession, QStringLiteral("Closed"),
                                   [this](const QDBusMessage&) { fail(); });
                    bind();
                });
    }

    void bind() {
        const PortalShortcuts wanted{
            {kShortcut,
             {{QStringLiteral("description"), Words::tr("Start or stop a session")},
              {QStringLiteral("preferred_trigger"), QStringLiteral("LOGO+ALT+b")}}}};
        request(QStringLiteral("BindShortcuts"),
                {QVariant::fromValue(QDBusObjectPath(m_session)), QVariant::fromValue(wanted),
                 QString()},
                {}, [this](const QVariantMap& results) {
                    // The response code is unreliable: 2 was seen with everything granted.
                    m_owner.takeShortcuts(shortcutsOf(results.value(QStringLiteral("shortcuts"))),
                                          Registration::NotAllowed);
                });
    }

    /// Calls `take` with the portal's result, which may follow a dialog with the user.
    void request(const QString& method, const QVariantList& arguments, QVariantMap options,
                 Take take) {
        const QString token = portal::newToken();
        options.insert(QStringLiteral("handle_token"), token);
        // Subscribes before the call, so that no response is missed.
        m_portal->hear(
            portal::requestPath(m_name, token), portal::kRequest, QStringLiteral("Response"),
            [take = std::move(take)](const QDBusMessage& signal) {
                take(busValue<QVariantMap>(signal.arguments().value(1)).value_or(QVariantMap()));
            });
        auto call = m_portal->call(portal::kPath, kInterface, method);
        call.setArguments(arguments + QVariantList{options});
        m_portal->ask<QDBusObjectPath>(
            call, [](const QDBusObjectPath&) {}, [this] { fail(); });
    }

    [[nodiscard]] bool isOfOurSession(const QDBusMessage& signal) const {
        const auto path = qvariant_cast<QDBusObjectPath>(signal.arguments().value(0)).path();
        return !m_session.isEmpty() && path == m_session;
    }

    [[nodiscard]] bool isOurs(const QDBusMessage& signal) const {
        return isOfOurSession(signal) && signal.arguments().value(1) == kShortcut;
    }

    void fail() { m_owner.tell({Registration::Failed, kNoAnswer}); }

    PortalHotKey& m_owner;
    LateBus m_bus;
    std::unique_ptr<FollowedService> m_portal; ///< on the connection
    QString m_name;                            ///< of the connection
    QString m_session;                         ///< object path, once created
};

PortalHotKey::PortalHotKey(const QDBusConnection& session, QByteArray address, const Clock& clock)
    : m_portal(session, portal::kService)
    , m_address(std::move(address))
    , m_held(clock) {
    qDBusRegisterMetaType<PortalShortcut>();
    qDBusRegisterMetaType<PortalShortcuts>();
    if (!session.isConnected()) m_isOffered = false;
    QObject::connect(&m_portal, &FollowedService::came, &m_portal, [this] { askForVersion(); });
    QObject::connect(&m_portal, &FollowedService::gone, &m_portal, [this] { setOffered(false); });
}

PortalHotKey::~PortalHotKey() = default;

void PortalHotKey::askForVersion() {
    m_portal.ask<QDBusVariant>(
        m_portal.get(portal::kPath, kInterface, QStringLiteral("version")),
        [this](const QDBusVariant& version) {
            setOffered(busValue<uint>(version.variant()).value_or(0) > 0);
        },
        [this] { setOffered(false); });
}

void PortalHotKey::setOffered(bool offered) {
    if (m_isOffered == offered) return;
    m_isOffered = offered;
    unregisterKey();
    if (onOfferedChanged) onOfferedChanged();
}

int PortalHotKey::installHandler(std::function<void()> pressed) {
    m_pressed = std::move(pressed);
    return 0;
}

HotKeyPort::Outcome PortalHotKey::registerKey() {
    if (m_link && m_outcome.registration == Registration::Registered) return m_outcome;
    return begin();
}

void PortalHotKey::unregisterKey() { m_link.reset(); }

HotKeyPort::Outcome PortalHotKey::allow(bool allowed) {
    m_isAllowed = allowed;
    return begin();
}

HotKeyPort::Outcome PortalHotKey::begin() {
    m_link.reset();
    m_held.forget();
    if (!m_isAllowed) return m_outcome = {Registration::NotAllowed};
    m_link = std::make_unique<Link>(*this);
    return m_outcome = {Registration::Waiting};
}

void PortalHotKey::takeShortcuts(const PortalShortcuts& shortcuts, Registration otherwise) {
    const auto ours =
        std::ranges::find(shortcuts, kShortcut, [](const PortalShortcut& each) { return each.id; });
    if (ours == shortcuts.end()) return tell({otherwise});
    const auto keys = ours->properties.value(QStringLiteral("trigger_description")).toString();
    tell({Registration::Registered, 0, acceleratorText(keys)});
}

void PortalHotKey::tell(const Outcome& outcome) {
    if (std::exchange(m_outcome, outcome) != outcome && onOutcomeChanged) onOutcomeChanged(outcome);
}

} // namespace vantle

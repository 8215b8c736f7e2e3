#include "platform/tray/StatusNotifierItem.h"

#include "platform/bus/BusValue.h"
#include "platform/tray/StatusNotifierAdaptor.h"

#include <QDBusMessage>
#include <QDBusReply>
#include <QDBusVariant>

#include <algorithm>

namespace vantle {

namespace {

const QString kItemPath = QStringLiteral("/StatusNotifierItem");

const QString kWatcher = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString kWatcherPath = QStringLiteral("/StatusNotifierWatcher");

// The dot's breath has eight images; with the transitions, all images of a session stay serialised,
// 25 kB each.
constexpr std::size_t kKeptImages = 16;

constexpr int kBusLimitMs = 1000;

QDBusMessage watcherQuestion() {
    const QString bus = QStringLiteral("org.freedesktop.DBus");
    auto question = QDBusMessage::createMethodCall(bus, QStringLiteral("/org/freedesktop/DBus"),
                                                   bus, QStringLiteral("NameHasOwner"));
    question << kWatcher;
    return question;
}

} // namespace

StatusNotifierItem::StatusNotifierItem(const QDBusConnection& session)
    : m_session(session)
    , m_watcher(session, kWatcher)
    , m_menu(session)
    , m_adaptor(new StatusNotifierAdaptor(*this)) {
    registerTrayTypes();
    if (!m_session.isConnected() ||
        !m_session.registerObject(kItemPath, this, QDBusConnection::ExportAdaptors)) {
        m_hasWatcher = false;
        return;
    }
    connect(&m_watcher, &FollowedService::came, this, [this] { setWatcher(true); });
    connect(&m_watcher, &FollowedService::gone, this, [this] { setWatcher(false); });
    for (const auto& signal : {QStringLiteral("StatusNotifierHostRegistered"),
                               QStringLiteral("StatusNotifierHostUnregistered")})
        m_watcher.hear(kWatcherPath, kWatcher, signal,
                       [this](const QDBusMessage&) { askForHost(); });
}

bool StatusNotifierItem::isSurelyWithoutWatcher() const {
    if (!m_session.isConnected()) return true;
    const QDBusReply<bool> hasOwner = m_session.call(watcherQuestion(), QDBus::Block, kBusLimitMs);
    return !hasOwner.isValid() || !hasOwner.value();
}

StatusNotifierItem::~StatusNotifierItem() { m_session.unregisterObject(kItemPath); }

void StatusNotifierItem::setWatcher(bool present) {
    m_hasWatcher = present;
    setState(false, false);
    if (present && m_imageKey != 0) announce();
    Q_EMIT watcherChanged();
}

void StatusNotifierItem::announce() {
    const auto call =
        m_watcher.call(kWatcherPath, kWatcher, QStringLiteral("RegisterStatusNotifierItem"))
        << m_session.baseService();
    m_watcher.ask<void>(call, [this] {
        setState(true, m_hosted);
        askForHost();
    });
}

void StatusNotifierItem::askForHost() {
    if (!m_announced) return;
    m_watcher.ask<QDBusVariant>(
        m_watcher.get(kWatcherPath, kWatcher, QStringLiteral("IsStatusNotifierHostRegistered")),
        // A watcher that accepted the item but cannot report hosts: assumes one.
        [this](const QDBusVariant& isThere) {
            setState(true, busValue<bool>(isThere.variant()).value_or(true));
        },
        [this] { setState(true, true); });
}

void StatusNotifierItem::setState(bool announced, bool hosted) {
    const bool shownBefore = isShown();
    m_announced = announced;
    m_hosted = hosted;
    if (isShown() != shownBefore) Q_EMIT shownChanged();
}

void StatusNotifierItem::setImage(const QIcon& image) {
    if (image.cacheKey() == m_imageKey) return;
    const bool isFirst = m_imageKey == 0;
    m_imageKey = image.cacheKey();
    m_image = image;
    if (m_announced) Q_EMIT m_adaptor->NewIcon();
    if (isFirst && m_hasWatcher.value_or(false)) announce();
}

void StatusNotifierItem::setToolTip(const QString& text) {
    m_toolTip.title = text.section(QLatin1Char('\n'), 0, 0);
    m_toolTip.text = text.section(QLatin1Char('\n'), 1).toHtmlEscaped();
    if (m_announced) Q_EMIT m_adaptor->NewToolTip();
}

const TrayPixmaps& StatusNotifierItem::pixmaps() {
    const auto known = std::ranges::find(m_serialised, m_imageKey, &Serialised::cacheKey);
    if (known != m_serialised.end()) {
        m_serialised.splice(m_serialised.begin(), m_serialised, known);
    } else {
        if (m_serialised.size() == kKeptImages) m_serialised.pop_back();
        m_serialised.push_front({m_imageKey, trayPixmaps(m_image)});
    }
    return m_serialised.front().pixmaps;
}

} // namespace vantle

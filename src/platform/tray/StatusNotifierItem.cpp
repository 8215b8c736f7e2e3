#include "platform/tray/StatusNotifierItem.h"

#include "platform/tray/StatusNotifierAdaptor.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusReply>
#include <QDBusServiceWatcher>

#include <algorithm>
#include <utility>

namespace vantle {

namespace {

const QString kItemPath = QStringLiteral("/StatusNotifierItem");

const QString kWatcher = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString kWatcherPath = QStringLiteral("/StatusNotifierWatcher");

// A breath of the dot is eight images; with the others that come and go between, all of a session
// stay serialised, at some 25 kB each.
constexpr std::size_t kKeptImages = 16;

constexpr int kBusLimitMs = 1000;

QDBusMessage watcherQuestion() {
    const QString bus = QStringLiteral("org.freedesktop.DBus");
    auto question = QDBusMessage::createMethodCall(bus, QStringLiteral("/org/freedesktop/DBus"),
                                                   bus, QStringLiteral("NameHasOwner"));
    question << kWatcher;
    return question;
}

/// Calls `take` with the reply, unless `owner` is gone by then.
template <typename Take>
void whenAnswered(const QDBusPendingCall& call, QObject* owner, Take take) {
    auto* watcher = new QDBusPendingCallWatcher(call, owner);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, owner,
                     [take = std::move(take)](QDBusPendingCallWatcher* finished) {
                         finished->deleteLater();
                         take(*finished);
                     });
}

} // namespace

StatusNotifierItem::StatusNotifierItem(const QDBusConnection& session)
    : m_session(session)
    , m_menu(session)
    , m_adaptor(new StatusNotifierAdaptor(*this)) {
    registerTrayTypes();
    if (!m_session.isConnected() ||
        !m_session.registerObject(kItemPath, this, QDBusConnection::ExportAdaptors)) {
        m_hasWatcher = false;
        return;
    }
    auto* watcher = new QDBusServiceWatcher(kWatcher, m_session,
                                            QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString&, const QString&, const QString& newOwner) {
                setWatcher(!newOwner.isEmpty());
            });
    for (const auto& signal : {QStringLiteral("StatusNotifierHostRegistered"),
                               QStringLiteral("StatusNotifierHostUnregistered")})
        m_session.connect(kWatcher, kWatcherPath, kWatcher, signal, this, SLOT(askForHost()));

    whenAnswered(m_session.asyncCall(watcherQuestion()), this,
                 [this](const QDBusPendingReply<bool>& reply) {
                     if (!m_hasWatcher) setWatcher(reply.isValid() && reply.value());
                 });
}

bool StatusNotifierItem::isSurelyWithoutWatcher() const {
    if (!m_session.isConnected()) return true;
    const QDBusReply<bool> hasOwner = m_session.call(watcherQuestion(), QDBus::Block, kBusLimitMs);
    return !hasOwner.isValid() || !hasOwner.value();
}

StatusNotifierItem::~StatusNotifierItem() { m_session.unregisterObject(kItemPath); }

void StatusNotifierItem::setWatcher(bool present) {
    ++m_watcherGeneration;
    m_hasWatcher = present;
    setState(false, false);
    if (present && m_imageKey != 0) announce();
    Q_EMIT watcherChanged();
}

void StatusNotifierItem::announce() {
    auto call = QDBusMessage::createMethodCall(kWatcher, kWatcherPath, kWatcher,
                                               QStringLiteral("RegisterStatusNotifierItem"));
    call << m_session.baseService();
    call.setAutoStartService(false);
    whenAnswered(m_session.asyncCall(call), this,
                 [this, generation = m_watcherGeneration](const QDBusPendingReply<>& reply) {
                     if (reply.isError() || generation != m_watcherGeneration) return;
                     setState(true, m_hosted);
                     askForHost();
                 });
}

void StatusNotifierItem::askForHost() {
    if (!m_announced) return;
    auto question = QDBusMessage::createMethodCall(
        kWatcher, kWatcherPath, QStringLiteral("org.freedesktop.DBus.Properties"),
        QStringLiteral("Get"));
    question << kWatcher << QStringLiteral("IsStatusNotifierHostRegistered");
    question.setAutoStartService(false);
    whenAnswered(
        m_session.asyncCall(question), this,
        [this, generation = m_watcherGeneration](const QDBusPendingReply<QDBusVariant>& reply) {
            if (generation != m_watcherGeneration) return;
            // A watcher that can't tell has taken the item; that must be enough.
            setState(true, reply.isError() || reply.value().variant().toBool());
        });
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
    m_pixmaps = pixmapsOf(image);
    if (m_announced) Q_EMIT m_adaptor->NewIcon();
    if (isFirst && m_hasWatcher.value_or(false)) announce();
}

void StatusNotifierItem::setToolTip(const QString& text) {
    m_toolTip.title = text.section(QLatin1Char('\n'), 0, 0);
    m_toolTip.text = text.section(QLatin1Char('\n'), 1).toHtmlEscaped();
    if (m_announced) Q_EMIT m_adaptor->NewToolTip();
}

const TrayPixmaps& StatusNotifierItem::pixmapsOf(const QIcon& image) {
    const auto known = std::ranges::find(m_serialised, image.cacheKey(), &Serialised::cacheKey);
    if (known != m_serialised.end()) {
        m_serialised.splice(m_serialised.begin(), m_serialised, known);
    } else {
        if (m_serialised.size() == kKeptImages) m_serialised.pop_back();
        m_serialised.push_front({image.cacheKey(), trayPixmaps(image)});
    }
    return m_serialised.front().pixmaps;
}

} // namespace vantle

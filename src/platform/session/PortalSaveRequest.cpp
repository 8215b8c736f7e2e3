#include "platform/session/PortalSaveRequest.h"

#include "platform/session/PortalFilter.h"

#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QFile>
#include <QFileInfo>
#include <QUrl>
#include <QUuid>
#include <QWindow>

#include <utility>

namespace vantle {

namespace {

const QString kChooserService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString kChooserPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString kChooserInterface = QStringLiteral("org.freedesktop.portal.FileChooser");
const QString kRequestInterface = QStringLiteral("org.freedesktop.portal.Request");

// The call may start the portal and its backend.
constexpr int kChooserLimitMs = 5000;

constexpr uint kChosen = 0; // response code; all others mean that the user cancelled

/// The object that will report the choice. Known before the call, so that no response is missed.
QString requestPath(const QDBusConnection& session, const QString& token) {
    QString sender = session.baseService().mid(1); // without the colon
    sender.replace(QLatin1Char('.'), QLatin1Char('_'));
    return QStringLiteral("%1/request/%2/%3").arg(kChooserPath, sender, token);
}

/// The portal's identifier of an X11 window.
QString nameOf(const QWindow* window) {
    return window ? QStringLiteral("x11:%1").arg(window->winId(), 0, 16) : QString();
}

/// Returns the chosen file. Portals do not append a suffix to a name typed without one.
std::optional<QString> chosenPath(const QVariantMap& results, const QString& ending) {
    const QStringList uris = results.value(QStringLiteral("uris")).toStringList();
    if (uris.isEmpty()) return std::nullopt;
    const QString path = QUrl(uris.first()).toLocalFile();
    if (path.isEmpty()) return std::nullopt;
    const QString whole = path + QLatin1Char('.') + ending;
    // The user was not asked about replacing a file of the completed name.
    return QFileInfo(path).suffix().isEmpty() && !QFileInfo::exists(whole) ? whole : path;
}

} // namespace

PortalSaveRequest::PortalSaveRequest(const QDBusConnection& session, SaveDialog& otherwise,
                                     SaveQuestion question, QWindow* above,
                                     SaveDialog::Answer answer)
    : m_session(session)
    , m_otherwise(otherwise)
    , m_question(std::move(question))
    , m_above(above)
    , m_answer(std::move(answer))
    , m_portal(kChooserService, m_session, QDBusServiceWatcher::WatchForUnregistration) {
    connect(&m_portal, &QDBusServiceWatcher::serviceUnregistered, this,
            [this] { finish(std::nullopt); });
    if (above) connect(above, &QObject::destroyed, this, &PortalSaveRequest::abandon);
    ask(QStringLiteral("vantle_") + QUuid::createUuid().toString(QUuid::Id128));
}

QVariantMap PortalSaveRequest::options(const QString& token) const {
    qDBusRegisterMetaType<PortalPattern>();
    qDBusRegisterMetaType<QList<PortalPattern>>();
    qDBusRegisterMetaType<PortalFilter>();
    qDBusRegisterMetaType<PortalFilters>();
    const PortalFilter filter{m_question.kind, {{0, QStringLiteral("*.") + m_question.ending}}};
    QVariantMap options{
        {QStringLiteral("handle_token"), token},
        {QStringLiteral("modal"), true},
        {QStringLiteral("current_name"), m_question.suggestedName},
        {QStringLiteral("filters"), QVariant::fromValue(PortalFilters{filter})},
    };
    if (!m_question.folder.isEmpty()) // as the bytes of a C string
        options.insert(QStringLiteral("current_folder"),
                       QFile::encodeName(m_question.folder) + '\0');
    return options;
}

void PortalSaveRequest::ask(const QString& token) {
    listenAt(requestPath(m_session, token));
    auto call = QDBusMessage::createMethodCall(kChooserService, kChooserPath, kChooserInterface,
                                               QStringLiteral("SaveFile"));
    call << nameOf(m_above) << m_question.title << options(token);
    auto* const answer =
        new QDBusPendingCallWatcher(m_session.asyncCall(call, kChooserLimitMs), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answer->deleteLater();
        if (!m_answer) return;
        const QDBusPendingReply<QDBusObjectPath> reply = *answer;
        if (reply.isError())
            askOtherwise();
        else if (reply.value().path() != m_path) // very old portals choose their own path
            listenAt(reply.value().path());
    });
}

void PortalSaveRequest::listenAt(const QString& path) {
    m_path = path;
    m_session.connect(kChooserService, m_path, kRequestInterface, QStringLiteral("Response"), this,
                      SLOT(takeResponse(uint, QVariantMap)));
}

void PortalSaveRequest::takeResponse(uint response, const QVariantMap& results) {
    finish(response == kChosen ? chosenPath(results, m_question.ending) : std::nullopt);
}

void PortalSaveRequest::askOtherwise() {
    m_other = m_otherwise.ask(m_question, m_above,
                              [this](const std::optional<QString>& path) { finish(path); });
}

void PortalSaveRequest::finish(const std::optional<QString>& path) {
    if (!m_answer) return;
    deleteLater();
    m_other.reset(); // which may be calling this
    std::exchange(m_answer, nullptr)(path);
}

void PortalSaveRequest::abandon() {
    if (!m_answer) return;
    m_answer = nullptr;
    m_other.reset();
    m_session.asyncCall(QDBusMessage::createMethodCall(kChooserService, m_path, kRequestInterface,
                                                       QStringLiteral("Close")));
    deleteLater();
}

} // namespace vantle

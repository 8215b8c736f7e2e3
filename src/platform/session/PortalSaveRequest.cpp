#include "platform/session/PortalSaveRequest.h"

#include "platform/bus/BusValue.h"
#include "platform/session/PortalFilter.h"

#include <QDBusMetaType>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>
#include <QUrl>
#include <QVariantMap>
#include <QWindow>

#include <utility>

namespace vantle {

namespace {

/// The portal's identifier of an X11 window.
QString nameOf(const QWindow* window) {
    return window ? QStringLiteral("x11:%1").arg(window->winId(), 0, 16) : QString();
}

/// Returns the chosen file. Portals do not append a suffix to a name typed without one. A relative
/// path would lead to the working directory, and the system would read a path up to its first zero.
std::optional<QString> chosenPath(const QVariantMap& results, const QString& ending) {
    const auto uris = busValue<QStringList>(results.value(QStringLiteral("uris")));
    const QString path = QUrl(uris.value_or(QStringList()).value(0)).toLocalFile();
    if (!QDir::isAbsolutePath(path) || path.contains(QChar::Null)) return std::nullopt;
    const QString whole = path + QLatin1Char('.') + ending;
    // The user was not asked about replacing a file of the completed name.
    return QFileInfo(path).suffix().isEmpty() && !QFileInfo::exists(whole) ? whole : path;
}

} // namespace

PortalSaveRequest::PortalSaveRequest(const QDBusConnection& session, SaveDialog& otherwise,
                                     SaveQuestion question, QWindow* above,
                                     SaveDialog::Answer answer)
    : m_otherwise(otherwise)
    , m_question(std::move(question))
    , m_above(above)
    , m_answer(std::move(answer))
    , m_request(session, call())
    , m_portal(portal::kService, session, QDBusServiceWatcher::WatchForUnregistration) {
    connect(&m_request, &PortalRequest::answered, this,
            [this](uint response, const QVariantMap& results) {
                finish(response == portal::kGranted ? chosenPath(results, m_question.ending)
                                                    : std::nullopt);
            });
    connect(&m_request, &PortalRequest::refused, this, &PortalSaveRequest::askOtherwise);
    connect(&m_portal, &QDBusServiceWatcher::serviceUnregistered, this,
            [this] { finish(std::nullopt); });
    if (above) connect(above, &QObject::destroyed, this, &PortalSaveRequest::abandon);
}

PortalRequest::Call PortalSaveRequest::call() const {
    qDBusRegisterMetaType<PortalPattern>();
    qDBusRegisterMetaType<QList<PortalPattern>>();
    qDBusRegisterMetaType<PortalFilter>();
    qDBusRegisterMetaType<PortalFilters>();
    const PortalFilter filter{m_question.kind, {{0, QStringLiteral("*.") + m_question.ending}}};
    QVariantMap options{
        {QStringLiteral("modal"), true},
        {QStringLiteral("current_name"), m_question.suggestedName},
        {QStringLiteral("filters"), QVariant::fromValue(PortalFilters{filter})},
    };
    if (!m_question.folder.isEmpty()) // as the bytes of a C string
        options.insert(QStringLiteral("current_folder"),
                       QFile::encodeName(m_question.folder) + '\0');
    return {QStringLiteral("org.freedesktop.portal.FileChooser"),
            QStringLiteral("SaveFile"),
            {nameOf(m_above), m_question.title},
            options};
}

void PortalSaveRequest::askOtherwise() {
    if (!m_answer) return;
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
    m_request.close();
    deleteLater();
}

} // namespace vantle

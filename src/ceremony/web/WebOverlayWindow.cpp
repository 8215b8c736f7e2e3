#include "ceremony/web/WebOverlayWindow.h"

#include "ceremony/web/LocalFilesOnly.h"
#include "ceremony/web/PageRoot.h"
#include "platform/Screens.h"
#include "platform/WholeScreen.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWebEngineProfile>
#include <QUrl>
#include <QUuid>

namespace vantle {

namespace {

/// Returns the script that runs first: the configuration, and an object for posting messages. A
/// message is a console line that begins with `prefix`.
QString firstScript(const QString& configuration, const QString& prefix) {
    return QStringLiteral("(function(){"
                          "const log=console.log.bind(console),text=JSON.stringify;"
                          "%1"
                          "window.webkit={messageHandlers:{ceremony:{postMessage:"
                          "function(body){log('%2'+text([body]));}}}};"
                          "})();")
        .arg(configuration, prefix);
}

} // namespace

WebOverlayWindow::WebOverlayWindow(const QRect& frame, const Screens& screens, PanelHost& host,
                                   const QString& page, const QString& script,
                                   WebStage::MessageHandler message)
    : m_message(std::move(message)) {
    wholescreen::cover(*this, frame, host);
    setColor(Qt::transparent);
    setResizeMode(QQuickView::SizeRootObjectToView);
    const QString prefix = QUuid::createUuid().toString(QUuid::WithoutBraces);
    const QUrl source(QStringLiteral("qrc:/qt/qml/Vantle/CeremonyWeb/CeremonyPage.qml"));
    auto* const component = new QQmlComponent(engine(), source, this);
    auto* const root = qobject_cast<PageRoot*>(component->beginCreate(engine()->rootContext()));
    if (!root) return; // the engine's QML files are missing: the hard stop ends the show
    root->page = QUrl::fromLocalFile(page);
    root->script = firstScript(script, prefix);
    root->messagePrefix = prefix;
    component->completeCreate();
    setContent(source, component, root);
    connect(root, &PageRoot::messagePosted, this, &WebOverlayWindow::receive);
    connect(root, &PageRoot::crashed, this, &QWindow::hide);
    root->profile()->setUrlRequestInterceptor(new LocalFilesOnly(page, root->profile()));
    connect(&screens, &Screens::changed, this, [this, &screens, frame] {
        if (!wholescreen::exists(screens, frame)) hide();
    });
    root->setGuarded();
    show();
}

void WebOverlayWindow::receive(const QString& body) {
    // Wrapped in an array, since a body may be a plain text or number.
    const QJsonArray wrapped = QJsonDocument::fromJson(body.toUtf8()).array();
    m_message(wrapped.isEmpty() ? QJsonValue() : wrapped.first());
}

} // namespace vantle

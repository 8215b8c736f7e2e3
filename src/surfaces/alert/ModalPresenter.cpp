#include "surfaces/alert/ModalPresenter.h"

#include "platform/PanelHost.h"
#include "surfaces/alert/AlertModel.h"
#include "surfaces/window/WindowKind.h"
#include "surfaces/window/WindowShell.h"

#include <QCursor>
#include <QEventLoop>
#include <QGuiApplication>
#include <QQmlEngine>
#include <QScreen>
#include <QThread>

namespace vantle::modalpresenter {

namespace {

QPoint centered(const QSize& size, const QRect& area) {
    return {area.x() + (area.width() - size.width()) / 2,
            area.y() + (area.height() - size.height()) / 2};
}

int runOnMainThread(const Alert& alert, PanelHost& host) {
    auto owned = std::make_unique<AlertModel>();
    AlertModel& model = *owned;
    model.message = alert.message;
    model.informativeText = alert.informativeText;
    model.buttons = alert.buttons;

    const auto engine = std::make_shared<QQmlEngine>();
    engine->addImportPath(QStringLiteral("qrc:/qt/qml"));
    WindowRules rules;
    rules.title = QStringLiteral("Vantle");
    WindowShell window(engine);
    int chosen = static_cast<int>(alert.buttons.size()) - 1;
    if (!window.load(rules, QUrl(QStringLiteral("qrc:/qt/qml/Vantle/Alert/AlertView.qml")),
                     std::move(owned), host.isComposited()))
        return chosen;
    window.setMinimisable(false); // the rest of the program waits for the answer
    QObject::connect(&host, &PanelHost::compositedChanged, &window,
                     [&] { window.setRounded(host.isComposited()); });
    QObject::connect(&window, &WindowShell::closeRequested, &model, &AlertModel::dismiss);
    QEventLoop loop;
    QObject::connect(&model, &AlertModel::chosen, &loop, [&](int index) {
        chosen = index;
        loop.quit();
    });
    window.setTitle(rules.title);
    window.setFlags(window.flags() | Qt::Dialog | Qt::WindowStaysOnTopHint);
    window.setModality(Qt::ApplicationModal);
    const QSize size = window.fittingSize();
    window.setMinimumSize(size);
    window.setMaximumSize(size);
    // On the screen in use. Beside a Wayland compositor the pointer may really be elsewhere.
    const QScreen* const pointed = QGuiApplication::screenAt(QCursor::pos());
    const QScreen& screen = pointed != nullptr ? *pointed : *window.screen();
    window.setGeometry(QRect(centered(size, screen.availableGeometry()), size));
    window.show();
    window.requestActivate();
    loop.exec();
    return chosen;
}

} // namespace

int runAlert(const Alert& alert, PanelHost& host) {
    if (QThread::currentThread() == qApp->thread()) return runOnMainThread(alert, host);
    int chosen = 0;
    QMetaObject::invokeMethod(
        qApp, [&] { chosen = runOnMainThread(alert, host); }, Qt::BlockingQueuedConnection);
    return chosen;
}

} // namespace vantle::modalpresenter

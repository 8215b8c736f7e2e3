#include "surfaces/alert/ModalPresenter.h"

#include "platform/PanelHost.h"
#include "platform/Screens.h"
#include "platform/WindowManager.h"
#include "surfaces/alert/AlertModel.h"
#include "surfaces/window/WindowPlacement.h"
#include "surfaces/window/WindowShell.h"
#include "surfaces/window/WindowSpec.h"

#include <QEventLoop>
#include <QGuiApplication>
#include <QQmlEngine>
#include <QScreen>
#include <QThread>

namespace vantle::modalpresenter {

namespace {

int runOnMainThread(const Alert& alert, PanelHost& host, WindowManager& windowManager,
                    const Screens& screens) {
    auto owned = std::make_unique<AlertModel>();
    AlertModel& model = *owned;
    model.message = alert.message;
    model.informativeText = alert.informativeText;
    model.buttons = alert.buttons;

    const auto engine = std::make_shared<QQmlEngine>();
    engine->addImportPath(QStringLiteral("qrc:/qt/qml"));
    WindowRules rules;
    rules.title = QStringLiteral("Vantle");
    WindowShell window(engine, windowManager);
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
    const auto shapes = screens.inUseFirst();
    const QRectF area =
        shapes.empty() ? window.screen()->availableGeometry() : shapes.front().available;
    windowManager.place(window, windowplacement::centred(size, area));
    window.show();
    window.requestActivate();
    loop.exec();
    return chosen;
}

} // namespace

int runAlert(const Alert& alert, PanelHost& host, WindowManager& windowManager,
             const Screens& screens) {
    if (QThread::currentThread() == qApp->thread())
        return runOnMainThread(alert, host, windowManager, screens);
    int chosen = 0;
    QMetaObject::invokeMethod(
        qApp, [&] { chosen = runOnMainThread(alert, host, windowManager, screens); },
        Qt::BlockingQueuedConnection);
    return chosen;
}

} // namespace vantle::modalpresenter

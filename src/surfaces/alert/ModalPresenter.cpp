#include "surfaces/alert/ModalPresenter.h"

#include "surfaces/alert/AlertModel.h"
#include "surfaces/kit/ApplicationIcon.h"

#include <QEventLoop>
#include <QGuiApplication>
#include <QQuickItem>
#include <QQuickView>
#include <QScreen>
#include <QThread>

namespace vantle::modalpresenter {

namespace {

/// Tells the model when the person closes the window.
class AlertWindow final : public QQuickView {
public:
    explicit AlertWindow(AlertModel& model) : m_model(model) {}

protected:
    bool event(QEvent* event) override {
        if (event->type() == QEvent::Close) m_model.dismiss();
        return QQuickView::event(event);
    }

private:
    AlertModel& m_model;
};

QPoint centered(const QSize& size, const QRect& area) {
    return {area.x() + (area.width() - size.width()) / 2,
            area.y() + (area.height() - size.height()) / 2};
}

int runOnMainThread(const Alert& alert) {
    AlertModel model;
    model.message = alert.message;
    model.informativeText = alert.informativeText;
    model.buttons = alert.buttons;

    AlertWindow window(model);
    window.engine()->addImportPath(QStringLiteral("qrc:/qt/qml"));
    window.setInitialProperties({{QStringLiteral("model"), QVariant::fromValue(&model)}});
    window.setSource(QUrl(QStringLiteral("qrc:/qt/qml/Vantle/Alert/AlertView.qml")));

    int chosen = static_cast<int>(alert.buttons.size()) - 1;
    if (window.status() != QQuickView::Ready) return chosen;
    QEventLoop loop;
    QObject::connect(&model, &AlertModel::chosen, &loop, [&](int index) {
        chosen = index;
        loop.quit();
    });
    window.setTitle(QStringLiteral("Vantle"));
    window.setIcon(applicationIcon());
    window.setFlags(Qt::Dialog | Qt::WindowStaysOnTopHint);
    // The rest of the program waits for the answer.
    window.setModality(Qt::ApplicationModal);
    window.setMinimumSize(window.size());
    window.setMaximumSize(window.size());
    window.setPosition(centered(window.size(), window.screen()->availableGeometry()));
    window.show();
    window.requestActivate();
    loop.exec();
    return chosen;
}

} // namespace

int runAlert(const Alert& alert) {
    if (QThread::currentThread() == qApp->thread()) return runOnMainThread(alert);
    int chosen = 0;
    QMetaObject::invokeMethod(
        qApp, [&] { chosen = runOnMainThread(alert); }, Qt::BlockingQueuedConnection);
    return chosen;
}

} // namespace vantle::modalpresenter

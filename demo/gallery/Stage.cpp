#include "gallery/Stage.h"

#include "surfaces/kit/tokens/Motion.h"

#include <QEventLoop>
#include <QQmlComponent>
#include <QQuickItem>
#include <QTimer>

namespace vantle {
namespace {

// For handlers that are called later, delayed bindings and images.
constexpr int kSettlingTime = 80; // ms

void settle() {
    QEventLoop loop;
    QTimer::singleShot(kSettlingTime, &loop, &QEventLoop::quit);
    loop.exec();
}

QSizeF sizeOf(const QQuickItem& view, const Scene& scene) {
    if (!scene.size.isEmpty()) return scene.size;
    if (view.width() > 0 && view.height() > 0) return view.size();
    return {view.implicitWidth(), view.implicitHeight()};
}

} // namespace

Stage::Stage(const Scene& scene, bool still) {
    if (scene.paint) return; // has no view
    m_engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    Motion::of(m_engine)->setReduced(still);
    QQmlComponent component(&m_engine, scene.view);
    const QVariantMap properties = scene.properties ? scene.properties(&m_owner) : QVariantMap();
    auto* view = qobject_cast<QQuickItem*>(component.createWithInitialProperties(properties));
    if (view)
        show(*view, scene);
    else
        m_error = component.errorString();
}

void Stage::show(QQuickItem& view, const Scene& scene) {
    view.setParent(&m_window);
    view.setParentItem(m_window.contentItem());
    view.setSize(sizeOf(view, scene));
    view.setPosition({double(scene.margin), double(scene.margin)});
    m_window.setColor(scene.ground);
    m_window.resize((view.size() + QSizeF(2.0 * scene.margin, 2.0 * scene.margin)).toSize());
    m_window.show();
    m_window.requestActivate();
    settle();
    if (scene.arrange) {
        scene.arrange(view);
        settle();
    }
}

QImage Stage::picture() {
    // At 150 % an odd size ends within a device pixel, which is not drawn.
    const QSizeF drawn = QSizeF(m_window.size()) * m_window.devicePixelRatio();
    return m_window.grabWindow()
        .copy(0, 0, static_cast<int>(drawn.width()), static_cast<int>(drawn.height()))
        .convertToFormat(QImage::Format_RGB32);
}

} // namespace vantle

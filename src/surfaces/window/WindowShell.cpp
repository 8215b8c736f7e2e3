#include "surfaces/window/WindowShell.h"

#include "platform/WindowManager.h"
#include "surfaces/kit/painters/ApplicationIcon.h"
#include "surfaces/window/FrameRoot.h"
#include "surfaces/window/WindowPlacement.h"
#include "surfaces/window/WindowSpec.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>

namespace vantle {

WindowShell::WindowShell(std::shared_ptr<QQmlEngine> engine, WindowManager& windowManager)
    : m_engine(std::move(engine))
    , m_windowManager(windowManager) {
    QSurfaceFormat translucent = format();
    translucent.setAlphaBufferSize(8);
    setFormat(translucent);
    setColor(Qt::transparent);
    setFlags(Qt::Window | Qt::FramelessWindowHint);
    setIcon(applicationIcon());
}

WindowShell::~WindowShell() = default;

bool WindowShell::load(const WindowRules& rules, const QUrl& view, std::unique_ptr<QObject> model,
                       bool rounded) {
    m_model = std::move(model);
    QQmlComponent component(m_engine.get(),
                            QUrl(QStringLiteral("qrc:/qt/qml/Vantle/Window/WindowFrame.qml")));
    m_frame.reset(qobject_cast<FrameRoot*>(component.beginCreate(m_engine->rootContext())));
    if (!m_frame) return false;
    m_frame->shell = this;
    m_frame->title = rules.showsTitle ? rules.title : QString();
    m_frame->resizable = rules.resizable;
    m_frame->minimumHeight = rules.scrollableHeight;
    m_frame->view = view;
    m_frame->model = m_model.get();
    m_frame->setRounded(rounded);
    component.completeCreate();
    m_frame->setParent(this);
    m_frame->setParentItem(contentItem());
    const auto changed = [this] { Q_EMIT fittingSizeChanged(); };
    connect(m_frame.get(), &QQuickItem::implicitWidthChanged, this, changed);
    connect(m_frame.get(), &QQuickItem::implicitHeightChanged, this, changed);
    return m_frame->isReady();
}

void WindowShell::setRounded(bool rounded) { m_frame->setRounded(rounded); }

void WindowShell::setMinimisable(bool minimisable) { m_frame->setMinimisable(minimisable); }

void WindowShell::beginMove() {
    if (!startSystemMove()) m_held = Qt::Edges();
}

void WindowShell::beginResize(int edges) {
    if (!startSystemResize(Qt::Edges(edges))) m_held = Qt::Edges(edges);
}

QSize WindowShell::fittingSize() const {
    return {qCeil(m_frame->implicitWidth()), qCeil(m_frame->implicitHeight())};
}

bool WindowShell::event(QEvent* event) {
    if (event->type() == QEvent::Close) {
        // The owner decides; it hides and deletes the window later.
        event->ignore();
        Q_EMIT closeRequested();
        return true;
    }
    return QQuickWindow::event(event);
}

void WindowShell::resizeEvent(QResizeEvent* event) {
    QQuickWindow::resizeEvent(event);
    if (m_frame) m_frame->setSize(size());
}

void WindowShell::mousePressEvent(QMouseEvent* event) {
    m_press = {event->globalPosition().toPoint(), geometry()};
    QQuickWindow::mousePressEvent(event);
}

void WindowShell::dragTo(QPoint pointer) {
    m_windowManager.place(*this, windowplacement::dragged(m_press.frame, *m_held,
                                                          pointer - m_press.pointer, minimumSize(),
                                                          maximumSize()));
}

void WindowShell::mouseMoveEvent(QMouseEvent* event) {
    if (!m_held) return QQuickWindow::mouseMoveEvent(event);
    dragTo(event->globalPosition().toPoint());
}

void WindowShell::mouseReleaseEvent(QMouseEvent* event) {
    // The event that started a quick movement may also be its last.
    if (m_held) dragTo(event->globalPosition().toPoint());
    m_held.reset();
    QQuickWindow::mouseReleaseEvent(event);
}

} // namespace vantle

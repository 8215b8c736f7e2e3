#include "surfaces/panel/FloatingPanel.h"

#include <QCursor>
#include <QQmlEngine>
#include <QQuickItem>

namespace vantle {

namespace {

/// Unmanaged: a window manager would give it a frame, a place in its lists, a workspace, and the
/// keyboard at each click.
constexpr auto kFlags =
    Qt::FramelessWindowHint | Qt::X11BypassWindowManagerHint | Qt::WindowStaysOnTopHint;

/// The item that has the focus as soon as the window has the keyboard.
QQuickItem* focusItem(QQuickItem* scope) {
    QQuickItem* item = scope;
    while (item->isFocusScope() && item->scopedFocusItem() != nullptr)
        item = item->scopedFocusItem();
    return item;
}

bool takesText(const QQuickItem* item) {
    return item->flags().testFlag(QQuickItem::ItemAcceptsInputMethod);
}

} // namespace

FloatingPanel::FloatingPanel(QQmlEngine& engine, PanelHost& host)
    : QQuickView(&engine, nullptr)
    , m_host(host)
    , m_composited(host.isComposited()) {
    QSurfaceFormat translucent = format();
    translucent.setAlphaBufferSize(8);
    setFormat(translucent);
    setColor(Qt::transparent);
    setFlags(kFlags);
    setResizeMode(QQuickView::SizeRootObjectToView);
    connect(&m_host, &PanelHost::compositedChanged, this, &FloatingPanel::followCompositing);
    connect(this, &QWindow::activeChanged, this, [this] {
        if (isActive() || !m_hasKeyboard) return;
        m_hasKeyboard = false;
        Q_EMIT keyboardLost();
    });
}

FloatingPanel::~FloatingPanel() { returnKeyboard(); }

bool FloatingPanel::load(const QUrl& source, const QVariantMap& properties) {
    QVariantMap all = properties;
    all.insert(QStringLiteral("composited"), m_composited);
    setInitialProperties(all);
    setSource(source);
    return status() == QQuickView::Ready;
}

void FloatingPanel::showAt(const QRect& frame) {
    setFrame(frame);
    if (handle() == nullptr) {
        create();
        m_host.markFloating(*this);
    }
    applyRegions();
    show();
}

void FloatingPanel::setFrame(const QRect& frame) {
    m_frame = frame;
    fitWindow();
}

void FloatingPanel::setInputRegion(const QRegion& region) {
    m_inputRegion = region;
    m_hasInputRegion = true;
    fitWindow();
    applyRegions();
}

void FloatingPanel::setOpaqueRegion(const QRegion& region) {
    m_opaqueRegion = region;
    fitWindow();
    applyRegions();
}

bool FloatingPanel::pointerInside() const {
    return pointerInside(m_hasInputRegion ? m_inputRegion
                                          : QRegion(QRect(QPoint(), m_frame.size())));
}

bool FloatingPanel::pointerInside(const QRegion& part) const {
    if (!isVisible() || !(m_pointerIsIn || m_host.tellsPointer())) return false;
    return part.contains(mapFromGlobal(QCursor::pos()) + m_offset);
}

void FloatingPanel::takeKeyboard() {
    if (handle() == nullptr) return;
    m_host.takeKeyboard(*this);
    m_hasKeyboard = true;
}

void FloatingPanel::returnKeyboard() {
    if (!m_hasKeyboard) return;
    m_hasKeyboard = false;
    if (handle() != nullptr) m_host.returnKeyboard(*this);
}

bool FloatingPanel::event(QEvent* event) {
    const bool isPress = event->type() == QEvent::MouseButtonPress;
    // Delivering the press to an item turns its place into the item's own.
    const QPointF place = isPress ? static_cast<const QMouseEvent*>(event)->position() : QPointF();
    const bool handled = QQuickView::event(event);
    if (isPress) takeKeyboardForField(place);
    if (event->type() == QEvent::Enter) {
        m_pointerIsIn = true;
        Q_EMIT pointerEntered();
    }
    if (event->type() == QEvent::Leave) {
        m_pointerIsIn = false;
        Q_EMIT pointerLeft();
    }
    return handled;
}

void FloatingPanel::takeKeyboardForField(QPointF place) {
    // A field that is pressed has asked for the focus by now.
    const QQuickItem* const field = focusItem(contentItem());
    if (takesText(field) && field->contains(field->mapFromScene(place))) takeKeyboard();
}

void FloatingPanel::resizeEvent(QResizeEvent* event) {
    QQuickView::resizeEvent(event); // gives the view the size of the window
    placeView();
    applyRegions();
}

void FloatingPanel::exposeEvent(QExposeEvent* event) {
    QQuickView::exposeEvent(event);
    // Qt writes the whole window as the input region when it maps it.
    if (isExposed() && !m_wasExposed) applyRegions();
    m_wasExposed = isExposed();
}

void FloatingPanel::hideEvent(QHideEvent* event) {
    returnKeyboard();
    QQuickView::hideEvent(event);
}

void FloatingPanel::applyRegions() {
    if (handle() == nullptr) return;
    const QRegion shape = m_composited ? QRegion() : m_opaqueRegion.translated(-m_offset);
    if (shape != mask()) setMask(shape); // an empty one sets no limits
    if (m_hasInputRegion && m_host.hasInputRegions()) m_host.setInputRegion(*this, m_inputRegion);
}

void FloatingPanel::followCompositing() {
    if (m_composited == m_host.isComposited()) return;
    m_composited = !m_composited;
    if (rootObject() != nullptr) rootObject()->setProperty("composited", m_composited);
    applyRegions();
    Q_EMIT compositedChanged();
}

/// The part of the frame that the window covers.
QRect FloatingPanel::windowInFrame() const {
    const QRect whole(QPoint(), m_frame.size());
    if (m_host.hasInputRegions()) return whole;
    if (!m_inputRegion.isEmpty()) return m_inputRegion.boundingRect();
    return m_opaqueRegion.isEmpty() ? whole : m_opaqueRegion.boundingRect();
}

void FloatingPanel::fitWindow() {
    if (m_frame.isEmpty()) return; // shown nowhere yet
    const QRect part = windowInFrame();
    m_offset = part.topLeft();
    setGeometry(part.translated(m_frame.topLeft()));
    placeView();
}

void FloatingPanel::placeView() {
    QQuickItem* const view = rootObject();
    if (view == nullptr || m_frame.isEmpty() || m_host.hasInputRegions()) return;
    view->setPosition(-m_offset);
    view->setSize(m_frame.size());
}

} // namespace vantle

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
    , m_host(host) {
    QSurfaceFormat translucent = format();
    translucent.setAlphaBufferSize(8);
    setFormat(translucent);
    setColor(Qt::transparent);
    setFlags(kFlags);
    setResizeMode(QQuickView::SizeRootObjectToView);
    connect(this, &QWindow::activeChanged, this, [this] {
        if (isActive() || !m_hasKeyboard) return;
        m_hasKeyboard = false;
        Q_EMIT keyboardLost();
    });
}

FloatingPanel::~FloatingPanel() { returnKeyboard(); }

bool FloatingPanel::load(const QUrl& source, const QVariantMap& properties) {
    setInitialProperties(properties);
    setSource(source);
    return status() == QQuickView::Ready;
}

void FloatingPanel::showAt(const QRect& frame) {
    m_composited = m_host.isComposited();
    setGeometry(frame);
    create();
    applyRegions();
    show();
}

void FloatingPanel::setInputRegion(const QRegion& region) {
    m_inputRegion = region;
    m_hasInputRegion = true;
    applyRegions();
}

void FloatingPanel::setOpaqueRegion(const QRegion& region) {
    m_opaqueRegion = region;
    applyRegions();
}

bool FloatingPanel::pointerInside() const {
    return pointerInside(m_hasInputRegion ? m_inputRegion : QRegion(QRect(QPoint(), size())));
}

bool FloatingPanel::pointerInside(const QRegion& part) const {
    return isVisible() && part.contains(mapFromGlobal(QCursor::pos()));
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
    if (event->type() == QEvent::Enter) Q_EMIT pointerEntered();
    if (event->type() == QEvent::Leave) Q_EMIT pointerLeft();
    return handled;
}

void FloatingPanel::takeKeyboardForField(QPointF place) {
    // A field that is pressed has asked for the focus by now.
    const QQuickItem* const field = focusItem(contentItem());
    if (takesText(field) && field->contains(field->mapFromScene(place))) takeKeyboard();
}

void FloatingPanel::resizeEvent(QResizeEvent* event) {
    QQuickView::resizeEvent(event);
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
    if (!m_composited && !m_opaqueRegion.isEmpty()) setMask(m_opaqueRegion);
    if (m_hasInputRegion) m_host.setInputRegion(*this, m_inputRegion);
}

} // namespace vantle

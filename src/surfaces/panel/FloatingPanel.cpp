#include "surfaces/panel/FloatingPanel.h"

#include <QQmlEngine>
#include <QQuickItem>

namespace vantle {

namespace {

/// Returns the item that is focused once the window has the keyboard.
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
    setInitialProperties(properties);
    setSource(source);
    if (status() != QQuickView::Ready || root() == nullptr) return false;
    root()->setComposited(m_composited);
    return true;
}

PanelRoot* FloatingPanel::root() const { return qobject_cast<PanelRoot*>(rootObject()); }

Placement FloatingPanel::withShadow(Placement ground, bool feelsPointer) const {
    const QRect seen = root()->ground();
    ground.room = root()->room();
    ground.opaque = seen;
    ground.felt = feelsPointer ? QRegion(seen) : QRegion();
    return ground;
}

void FloatingPanel::showAt(const Placement& placement) {
    const bool wasShown = isVisible();
    setPlacement(placement);
    show();
    if (placement.takesKeyboard && !wasShown) takeKeyboard();
}

void FloatingPanel::setPlacement(const Placement& placement) {
    m_placement = placement;
    m_isPlaced = true;
    fitWindow();
    applyRegions();
}

void FloatingPanel::setInsetTop(int y) {
    m_placement.inset.setY(y);
    fitWindow();
}

void FloatingPanel::setInputRegion(const QRegion& region) {
    m_placement.felt = region;
    if (m_isPlaced) fitWindow();
    applyRegions();
}

QRegion FloatingPanel::inputRegion() const {
    return m_placement.felt.value_or(QRegion(QRect(QPoint(), frame().size())));
}

bool FloatingPanel::pointerInside() const { return pointerInside(inputRegion()); }

bool FloatingPanel::pointerInside(const QRegion& part) const {
    if (!isVisible() || !(m_pointerIsIn || m_host.tellsPointer())) return false;
    return part.contains(m_host.pointerIn(*this) + m_offset);
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
    // Delivering a press converts its position to the item's coordinates, so it is read first.
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
    // A pressed field has requested the focus by now.
    const QQuickItem* const field = focusItem(contentItem());
    if (takesText(field) && field->contains(field->mapFromScene(place))) takeKeyboard();
}

void FloatingPanel::resizeEvent(QResizeEvent* event) {
    QQuickView::resizeEvent(event); // resizes the view
    placeView();
    applyRegions();
}

void FloatingPanel::exposeEvent(QExposeEvent* event) {
    QQuickView::exposeEvent(event);
    // Qt resets the input region to the whole window when it maps it.
    if (isExposed() && !m_wasExposed) applyRegions();
    m_wasExposed = isExposed();
}

void FloatingPanel::hideEvent(QHideEvent* event) {
    returnKeyboard();
    QQuickView::hideEvent(event);
}

void FloatingPanel::applyRegions() {
    if (handle() == nullptr) return;
    const QRegion shape = m_composited ? QRegion() : m_placement.opaque.translated(-m_offset);
    if (shape != mask()) setMask(shape); // an empty mask sets no limits
    if (m_placement.felt && m_host.hasInputRegions())
        m_host.setInputRegion(*this, *m_placement.felt);
}

void FloatingPanel::followCompositing() {
    if (m_composited == m_host.isComposited()) return;
    m_composited = !m_composited;
    if (PanelRoot* const view = root()) view->setComposited(m_composited);
    applyRegions();
    Q_EMIT compositedChanged();
}

void FloatingPanel::fitWindow() {
    m_offset = m_host.place(*this, m_placement).topLeft();
    placeView();
}

void FloatingPanel::placeView() {
    QQuickItem* const view = rootObject();
    if (view == nullptr || !m_isPlaced || m_host.hasInputRegions()) return;
    view->setPosition(-m_offset);
    view->setSize(frame().size());
}

} // namespace vantle

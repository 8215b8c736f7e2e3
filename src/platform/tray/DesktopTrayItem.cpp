#include "platform/tray/DesktopTrayItem.h"

#include "platform/tray/TemplateImage.h"

#include <QApplication>
#include <QCursor>
#include <QEvent>

namespace vantle {

namespace {

/// Hosts report different click positions: a constant, the item's, or the pointer's. A position
/// farther from the pointer than an item's width, in px, is neither of the latter two.
constexpr int kFarFromPointer = 200;

} // namespace

DesktopTrayItem::DesktopTrayItem(const QDBusConnection& session, bool tellsPointer)
    : m_tellsPointer(tellsPointer)
    , m_notifier(session) {
    connect(&m_notifier, &StatusNotifierItem::clicked, this,
            [this](QPoint told) { Q_EMIT clicked(placeOfClick(told)); });
    connect(&m_notifier, &StatusNotifierItem::shownChanged, this, &DesktopTrayItem::updateShown);
    connect(&m_notifier, &StatusNotifierItem::watcherChanged, this, &DesktopTrayItem::choose);
    QCoreApplication::instance()->installEventFilter(this); // for palette changes
}

QPoint DesktopTrayItem::placeOfClick(QPoint told) const {
    if (!m_tellsPointer) return told;
    const QPoint pointer = QCursor::pos();
    return (told - pointer).manhattanLength() > kFarFromPointer ? pointer : told;
}

void DesktopTrayItem::choose() {
    const bool wanted = m_notifier.hasWatcher() == false && !m_image.isNull() &&
                        qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr;
    if (wanted == (m_window != nullptr)) return;
    if (wanted) {
        // The toolkit would use a watcher that is there now, and never a window again. If one has
        // just appeared, the notifier reports it next.
        if (!m_notifier.isSurelyWithoutWatcher()) return;
        m_window = std::make_unique<XEmbedTrayItem>(drawnImage(), m_toolTip);
        connect(m_window.get(), &XEmbedTrayItem::clicked, this, &TrayItem::clicked);
        connect(m_window.get(), &XEmbedTrayItem::shownChanged, this, &DesktopTrayItem::updateShown);
        connect(m_window.get(), &XEmbedTrayItem::groundChanged, this,
                &DesktopTrayItem::followGround);
        connect(m_window.get(), &XEmbedTrayItem::placeChanged, this, &TrayItem::placeChanged);
    } else {
        m_window.reset();
        showImage(); // in the colour for an unknown bar
    }
    updateShown();
    Q_EMIT placeChanged();
    Q_EMIT groundChanged();
}

void DesktopTrayItem::updateShown() {
    const bool shown = m_notifier.isShown() || (m_window && m_window->isShown());
    if (shown == m_shown) return;
    m_shown = shown;
    Q_EMIT shownChanged();
}

void DesktopTrayItem::setImage(const QIcon& image, bool isTemplate) {
    m_image = image;
    m_isTemplate = isTemplate;
    showImage();
    choose(); // the XEmbed window needs an image first
}

void DesktopTrayItem::showImage() {
    const QIcon& drawn = drawnImage();
    m_notifier.setImage(drawn);
    if (m_window) m_window->setImage(drawn);
}

bool DesktopTrayItem::isOnLightGround() const {
    // StatusNotifierItem hosts do not report their panel's colour; the theme's text stands in.
    const std::optional<QColor> ground = m_window ? m_window->ground() : std::nullopt;
    return isDark(barTextColour(ground));
}

void DesktopTrayItem::followGround() {
    if (m_isTemplate) showImage();
    Q_EMIT groundChanged();
}

const QIcon& DesktopTrayItem::drawnImage() {
    if (!m_isTemplate) return m_image;
    // Hosts do not report their panel's colour.
    const std::optional<QColor> ground = m_window ? m_window->ground() : std::nullopt;
    const QColor colour = barTextColour(ground);
    const bool edged = !ground;
    if (m_coloured.shapeKey != m_image.cacheKey() || m_coloured.colour != colour ||
        m_coloured.edged != edged)
        m_coloured = {m_image.cacheKey(), colour, edged,
                      edged ? inColourWithEdge(m_image, colour) : inColour(m_image, colour)};
    return m_coloured.image;
}

void DesktopTrayItem::setToolTip(const QString& text) {
    if (text == m_toolTip) return;
    m_toolTip = text;
    m_notifier.setToolTip(text);
    if (m_window) m_window->setToolTip(text);
}

QRect DesktopTrayItem::geometry() const { return m_window ? m_window->geometry() : QRect(); }

bool DesktopTrayItem::isPlacePending() const {
    // A StatusNotifierItem host never reports the position.
    return m_window ? m_window->geometry().isEmpty() : m_notifier.hasWatcher() != true;
}

bool DesktopTrayItem::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ApplicationPaletteChange &&
        watched == QCoreApplication::instance())
        followGround();
    return TrayItem::eventFilter(watched, event);
}

} // namespace vantle

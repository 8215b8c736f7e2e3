// A tray item as a window in an XEmbed tray.
#pragma once

#include <QColor>
#include <QObject>
#include <QPoint>
#include <QRect>
#include <QSystemTrayIcon>

#include <optional>

namespace vantle {

/// Appears as soon as there is such a tray. Requires a QApplication. Main thread.
///
/// Construct only while there is no StatusNotifierWatcher: Qt would use that one for the life of
/// the process.
class XEmbedTrayItem final : public QObject {
    Q_OBJECT

public:
    /// Visible from the start, so it needs an image.
    XEmbedTrayItem(const QIcon& image, const QString& toolTip);
    ~XEmbedTrayItem() override;

    void setImage(const QIcon& image) { m_icon.setIcon(image); }
    void setToolTip(const QString& text) { m_icon.setToolTip(text); }

    /// The state as of the last shownChanged(); skips the instant in which a tray dies during
    /// construction.
    [[nodiscard]] bool isShown() const { return m_toldShown; }
    /// The place in the tray; empty while there is none. A tray embeds the window first and moves
    /// it later; until then Qt reports the screen's corner.
    [[nodiscard]] QRect geometry() const { return m_placed ? m_icon.geometry() : QRect(); }

    /// The tray's colour around the image, as far as known.
    [[nodiscard]] const std::optional<QColor>& ground() const { return m_ground; }

Q_SIGNALS:
    void shownChanged();
    /// geometry() changed.
    void placeChanged();
    void groundChanged();
    /// A left or right click at the pointer's position.
    void clicked(QPoint place);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void followWindow(const QEvent& event);
    void tellIfChanged();
    void lookAtGround();

    QSystemTrayIcon m_icon;
    bool m_shown = false;
    bool m_placed = false; ///< moved since it was shown
    bool m_toldShown = false;
    std::optional<QColor> m_ground;
    bool m_groundIsStale = true;
};

} // namespace vantle

// A tray item in the older trays, which take a window in (XEmbed).
#pragma once

#include <QColor>
#include <QObject>
#include <QPoint>
#include <QRect>
#include <QSystemTrayIcon>

#include <optional>

namespace vantle {

/// Shows itself as soon as there is such a tray. Needs a QApplication. Main thread.
///
/// To be made only while there is no StatusNotifierWatcher: the toolkit would take that one, once
/// and for the life of the process, and knows no way back to a window.
class XEmbedTrayItem final : public QObject {
    Q_OBJECT

public:
    /// Shown from the start, so it needs an image.
    XEmbedTrayItem(const QIcon& image, const QString& toolTip);
    ~XEmbedTrayItem() override;

    void setImage(const QIcon& image) { m_icon.setIcon(image); }
    void setToolTip(const QString& text) { m_icon.setToolTip(text); }

    /// What shownChanged() told last: a tray that dies while the item is made shows it for an
    /// instant that nobody hears of.
    [[nodiscard]] bool isShown() const { return m_toldShown; }
    /// Where the tray has put it; empty while no tray has. A tray takes the window in first and
    /// moves it to its place later; until then the toolkit reports the corner of the screen.
    [[nodiscard]] QRect geometry() const { return m_placed ? m_icon.geometry() : QRect(); }

    /// The colour of the tray around the image, as far as it has been seen.
    [[nodiscard]] const std::optional<QColor>& ground() const { return m_ground; }

Q_SIGNALS:
    void shownChanged();
    /// geometry() changed.
    void placeChanged();
    void groundChanged();
    /// A left or right click, where the pointer is.
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

// The port of the tray item.
#pragma once

#include <QIcon>
#include <QList>
#include <QObject>
#include <QPoint>
#include <QRect>
#include <QString>

#include <functional>

namespace vantle {

/// An entry of the item's menu.
struct TrayMenuEntry {
    QString text;
    std::function<void()> choose; ///< called when the user chooses it
};

/// One tray item. Appears whenever the desktop has a tray, now or later. Main thread.
class TrayItem : public QObject {
    Q_OBJECT

public:
    /// Sets an image with the sizes that trays need. `isTemplate` marks a shape that takes the
    /// bar's text colour where that is known.
    virtual void setImage(const QIcon& image, bool isTemplate) = 0;
    virtual void setToolTip(const QString& text) = 0;

    /// Sets the menu for trays that open one on a right click; others emit clicked(). Set it before
    /// the first image; text changes apply immediately.
    virtual void setMenu(const QList<TrayMenuEntry>& entries) = 0;

    /// Whether a tray shows the item.
    [[nodiscard]] virtual bool isShown() const = 0;

    /// The item's place on the screen; empty where unknown.
    [[nodiscard]] virtual QRect geometry() const = 0;

    /// Whether geometry() may still come: the desktop has not yet reported whether and where it
    /// shows the item. May stay true without a tray.
    [[nodiscard]] virtual bool isPlacePending() const { return false; }

    /// Whether the bar is light; where its colour is unknown, whether the theme is.
    [[nodiscard]] virtual bool isOnLightGround() const { return false; }

Q_SIGNALS:
    /// A left or right click at that position; (0, 0) where unknown.
    void clicked(QPoint place);
    void shownChanged();
    void groundChanged();
    /// geometry() or isPlacePending() changed.
    void placeChanged();
};

} // namespace vantle

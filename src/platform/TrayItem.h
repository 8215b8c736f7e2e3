// The program's place in the desktop's tray.
#pragma once

#include <QIcon>
#include <QList>
#include <QObject>
#include <QPoint>
#include <QRect>
#include <QString>

#include <functional>

namespace vantle {

/// A line of the item's menu.
struct TrayMenuEntry {
    QString text;
    std::function<void()> choose; ///< called when the user chooses the line
};

/// One tray item. Shows itself as soon as the desktop has a tray, also when that comes later, and
/// again when the tray comes back. Main thread.
class TrayItem : public QObject {
    Q_OBJECT

public:
    /// An image with the sizes that trays ask for. `isTemplate` says that only its shape counts
    /// and that it takes the colour of the bar's text where the desktop can tell that.
    virtual void setImage(const QIcon& image, bool isTemplate) = 0;
    virtual void setToolTip(const QString& text) = 0;

    /// The menu of trays that show one at a right click. Such a click comes as clicked() from the
    /// others. To be set before the first image; a new text is followed at once.
    virtual void setMenu(const QList<TrayMenuEntry>& entries) = 0;

    /// Whether a tray shows the item.
    [[nodiscard]] virtual bool isShown() const = 0;

    /// Where the item is on the screen; empty where the desktop does not tell.
    [[nodiscard]] virtual QRect geometry() const = 0;

    /// Whether geometry() is empty only for now: the desktop has yet to say whether and where it
    /// shows the item. May stay true where there is no tray.
    [[nodiscard]] virtual bool isPlacePending() const { return false; }

Q_SIGNALS:
    /// A left or right click, with its place on the screen as far as known, else (0, 0).
    void clicked(QPoint place);
    void shownChanged();
    /// geometry() or isPlacePending() changed.
    void placeChanged();
};

} // namespace vantle

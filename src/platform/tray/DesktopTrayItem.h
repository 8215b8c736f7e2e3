// The tray item, in whichever kind of tray the desktop has.
#pragma once

#include "platform/TrayItem.h"
#include "platform/tray/StatusNotifierItem.h"
#include "platform/tray/XEmbedTrayItem.h"

#include <memory>

namespace vantle {

/// By the StatusNotifierItem protocol while the session bus has a watcher for it, else in a tray
/// that takes windows in. Changes over whenever the watcher comes or goes. The latter kind needs a
/// QApplication and is left out without one.
class DesktopTrayItem final : public TrayItem {
    Q_OBJECT

public:
    /// `tellsPointer`: the place of the pointer is known wherever it is, so that it can be held
    /// against what a host says.
    explicit DesktopTrayItem(const QDBusConnection& session, bool tellsPointer = true);

    void setImage(const QIcon& image, bool isTemplate) override;
    void setToolTip(const QString& text) override;
    /// For hosts of the protocol; a tray of windows passes every click on.
    void setMenu(const QList<TrayMenuEntry>& entries) override { m_notifier.setMenu(entries); }
    [[nodiscard]] bool isShown() const override { return m_shown; }
    [[nodiscard]] QRect geometry() const override;
    [[nodiscard]] bool isPlacePending() const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] QPoint placeOfClick(QPoint told) const;
    void choose();
    void updateShown();
    void showImage();
    [[nodiscard]] const QIcon& drawnImage();

    struct Coloured {
        qint64 shapeKey = 0;
        QColor colour;
        bool edged = false;
        QIcon image;
    };

    const bool m_tellsPointer;
    QIcon m_image;
    bool m_isTemplate = false;
    Coloured m_coloured; ///< the last template image
    QString m_toolTip;
    bool m_shown = false;
    StatusNotifierItem m_notifier;
    std::unique_ptr<XEmbedTrayItem> m_window;
};

} // namespace vantle

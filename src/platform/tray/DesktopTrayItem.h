// The tray item, in either kind of tray.
#pragma once

#include "platform/TrayItem.h"
#include "platform/tray/StatusNotifierItem.h"
#include "platform/tray/XEmbedTrayItem.h"

#include <memory>

namespace vantle {

/// Uses StatusNotifierItem while the session bus has a watcher, else an XEmbed tray. Switches
/// whenever the watcher comes or goes. XEmbed needs a QApplication and is left out without one.
/// Main thread.
class DesktopTrayItem final : public TrayItem {
    Q_OBJECT

public:
    /// `tellsPointer`: the pointer's position is known everywhere, to check a host's report
    /// against.
    explicit DesktopTrayItem(const QDBusConnection& session, bool tellsPointer = true);

    void setImage(const QIcon& image, bool isTemplate) override;
    void setToolTip(const QString& text) override;
    /// For StatusNotifierItem hosts; an XEmbed tray passes on every click.
    void setMenu(const QList<TrayMenuEntry>& entries) override { m_notifier.setMenu(entries); }
    [[nodiscard]] bool isShown() const override { return m_shown; }
    [[nodiscard]] QRect geometry() const override;
    [[nodiscard]] bool isPlacePending() const override;
    [[nodiscard]] bool isOnLightGround() const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] QPoint placeOfClick(QPoint told) const;
    void choose();
    void updateShown();
    void showImage();
    void followGround();
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

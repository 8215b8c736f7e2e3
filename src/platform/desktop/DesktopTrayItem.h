// The tray item, in whichever kind of tray the desktop has.
#pragma once

#include "platform/TrayItem.h"
#include "platform/desktop/StatusNotifierItem.h"
#include "platform/desktop/XEmbedTrayItem.h"

#include <memory>

namespace vantle {

/// By the StatusNotifierItem protocol while the session bus has a watcher for it, else in a tray
/// that takes windows in. Changes over whenever the watcher comes or goes. The latter kind needs a
/// QApplication and is left out without one.
class DesktopTrayItem final : public TrayItem {
    Q_OBJECT

public:
    explicit DesktopTrayItem(const QDBusConnection& session);

    void setImage(const QIcon& image, bool isTemplate) override;
    void setToolTip(const QString& text) override;
    [[nodiscard]] bool isShown() const override { return m_shown; }
    [[nodiscard]] QRect geometry() const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void choose();
    void updateShown();
    void showImage();
    [[nodiscard]] const QIcon& drawnImage();

    struct Coloured {
        qint64 shapeKey = 0;
        QColor colour;
        QIcon image;
    };

    QIcon m_image;
    bool m_isTemplate = false;
    Coloured m_coloured; ///< the last template image
    QString m_toolTip;
    bool m_shown = false;
    StatusNotifierItem m_notifier;
    std::unique_ptr<XEmbedTrayItem> m_window;
};

} // namespace vantle

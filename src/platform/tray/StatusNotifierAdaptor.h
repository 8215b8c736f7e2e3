// The D-Bus interface of a StatusNotifierItem.
#pragma once

#include "platform/tray/StatusNotifierItem.h"

#include <QDBusAbstractAdaptor>
#include <QDBusObjectPath>

#include <algorithm>

namespace vantle {

/// org.kde.StatusNotifierItem; names and types are the protocol's. Main thread.
class StatusNotifierAdaptor final : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierItem")
    Q_PROPERTY(QString Category READ category CONSTANT)
    Q_PROPERTY(QString Id READ id CONSTANT)
    Q_PROPERTY(QString Title READ title CONSTANT)
    Q_PROPERTY(QString Status READ status CONSTANT)
    Q_PROPERTY(QString IconName READ none CONSTANT)
    Q_PROPERTY(vantle::TrayPixmaps IconPixmap READ iconPixmap)
    Q_PROPERTY(vantle::TrayToolTip ToolTip READ toolTip)
    Q_PROPERTY(bool ItemIsMenu READ itemIsMenu CONSTANT)
    Q_PROPERTY(QDBusObjectPath Menu READ menu)
    // Properties that this item never has. Some hosts read them one by one and treat an error as a
    // fault.
    Q_PROPERTY(int WindowId READ windowId CONSTANT)
    Q_PROPERTY(QString IconThemePath READ none CONSTANT)
    Q_PROPERTY(QString OverlayIconName READ none CONSTANT)
    Q_PROPERTY(vantle::TrayPixmaps OverlayIconPixmap READ noPixmaps CONSTANT)
    Q_PROPERTY(QString AttentionIconName READ none CONSTANT)
    Q_PROPERTY(vantle::TrayPixmaps AttentionIconPixmap READ noPixmaps CONSTANT)
    Q_PROPERTY(QString AttentionMovieName READ none CONSTANT)

public:
    explicit StatusNotifierAdaptor(StatusNotifierItem& item)
        : QDBusAbstractAdaptor(&item)
        , m_item(item) {}

    [[nodiscard]] QString category() const { return QStringLiteral("ApplicationStatus"); }
    [[nodiscard]] QString id() const { return QStringLiteral("local.vantle.Vantle"); }
    [[nodiscard]] QString title() const { return QStringLiteral("Vantle"); }
    [[nodiscard]] QString status() const { return QStringLiteral("Active"); }
    [[nodiscard]] TrayPixmaps iconPixmap() const { return m_item.pixmaps(); }
    [[nodiscard]] TrayToolTip toolTip() const { return m_item.m_toolTip; }
    [[nodiscard]] bool itemIsMenu() const { return false; }
    /// Without a menu this name tells hosts to call ContextMenu.
    [[nodiscard]] QDBusObjectPath menu() const {
        return QDBusObjectPath(m_item.m_menu.isEmpty() ? QStringLiteral("/NO_DBUSMENU")
                                                       : TrayMenu::path());
    }
    [[nodiscard]] int windowId() const { return 0; }
    [[nodiscard]] QString none() const { return {}; }
    [[nodiscard]] TrayPixmaps noPixmaps() const { return {}; }

public Q_SLOTS:
    void Activate(int x, int y) { click(x, y); }
    /// Called by hosts that show no menu themselves.
    void ContextMenu(int x, int y) { click(x, y); }
    void SecondaryActivate(int, int) {}
    void Scroll(int, const QString&) {}

Q_SIGNALS:
    void NewIcon();
    void NewToolTip();

private:
    /// Farther than any desktop reaches, in px. Any program may call with any numbers, of which
    /// listeners take differences and sums.
    static constexpr int kFarthest = 1 << 20;

    // Deferred until the reply has been sent, since the listener may take long.
    void click(int x, int y) {
        const QPoint place(std::clamp(x, -kFarthest, kFarthest),
                           std::clamp(y, -kFarthest, kFarthest));
        QMetaObject::invokeMethod(
            &m_item, [item = &m_item, place] { Q_EMIT item->clicked(place); },
            Qt::QueuedConnection);
    }

    StatusNotifierItem& m_item;
};

} // namespace vantle

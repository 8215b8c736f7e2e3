// A tray item by the StatusNotifierItem protocol.
#pragma once

#include "platform/bus/FollowedService.h"
#include "platform/tray/TrayMenu.h"
#include "platform/tray/TrayPixmaps.h"

#include <QDBusConnection>
#include <QIcon>
#include <QObject>
#include <QPoint>

#include <list>
#include <optional>

namespace vantle {

class StatusNotifierAdaptor;

/// The item is at /StatusNotifierItem of the connection, so there is one per connection. It
/// registers with org.kde.StatusNotifierWatcher at its first image and whenever the watcher comes;
/// hosts, the programs that draw trays, find it there and read its properties. Does not block
/// unless stated. Main thread.
class StatusNotifierItem final : public QObject {
    Q_OBJECT

public:
    explicit StatusNotifierItem(const QDBusConnection& session);
    ~StatusNotifierItem() override;

    /// Cheap for recent images, whose bytes are cached. Hosts get pixels and no icon name: a host
    /// that does not know the name, as after an installation while it runs, draws a fallback and
    /// ignores the pixels.
    void setImage(const QIcon& image);

    /// The first line is the title, the rest the text.
    void setToolTip(const QString& text);

    /// Sets the right-click menu; call before the first image.
    void setMenu(const QList<TrayMenuEntry>& entries) { m_menu.setEntries(entries); }

    /// Whether there is a watcher. Empty until the bus replied; false without a bus.
    [[nodiscard]] std::optional<bool> hasWatcher() const { return m_hasWatcher; }

    /// Asks the bus again whether there is no watcher, since one that has just appeared may not be
    /// known yet. Blocks for at most a second; no reply counts as none.
    [[nodiscard]] bool isSurelyWithoutWatcher() const;

    /// Whether the watcher knows the item and a host draws it.
    [[nodiscard]] bool isShown() const { return m_announced && m_hosted; }

Q_SIGNALS:
    void watcherChanged();
    void shownChanged();
    /// Any click; at the position that the host reports, or (0, 0).
    void clicked(QPoint place);

private:
    friend class StatusNotifierAdaptor;

    void setWatcher(bool present);
    void announce();
    void askForHost();
    void setState(bool announced, bool hosted);
    /// Serialises the image when a host asks for it: without a host it would be in vain.
    [[nodiscard]] const TrayPixmaps& pixmaps();

    struct Serialised {
        qint64 cacheKey = 0;
        TrayPixmaps pixmaps;
    };

    QDBusConnection m_session;
    FollowedService m_watcher;
    TrayMenu m_menu;
    StatusNotifierAdaptor* m_adaptor = nullptr;
    std::optional<bool> m_hasWatcher;
    bool m_announced = false;
    bool m_hosted = false;

    std::list<Serialised> m_serialised; ///< recent images, latest first
    qint64 m_imageKey = 0;              ///< of m_image; 0 before the first one
    QIcon m_image;
    TrayToolTip m_toolTip;
};

} // namespace vantle

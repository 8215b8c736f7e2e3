// A tray item by the StatusNotifierItem protocol, over D-Bus.
#pragma once

#include "platform/bus/FollowedService.h"
#include "platform/tray/TrayMenu.h"
#include "platform/tray/TrayPixmaps.h"

#include <QDBusConnection>
#include <QObject>
#include <QPoint>

#include <list>
#include <optional>

namespace vantle {

class StatusNotifierAdaptor;

/// The item stands at /StatusNotifierItem of the connection, so there is one a connection. It
/// announces itself to org.kde.StatusNotifierWatcher with its first image, and whenever the watcher
/// comes or comes back; hosts, the programs that draw trays, learn of it there and read what they
/// need. Main thread; nothing
/// blocks but what says so.
class StatusNotifierItem final : public QObject {
    Q_OBJECT

public:
    explicit StatusNotifierItem(const QDBusConnection& session);
    ~StatusNotifierItem() override;

    /// Cheap for images shown lately: each is turned into bytes once. Hosts get the pixels and no
    /// name: one that does not know the name, as after an installation during its life, draws an
    /// image of its own for it and leaves the pixels alone.
    void setImage(const QIcon& image);

    /// The first line is the title, the others are below it.
    void setToolTip(const QString& text);

    /// What hosts show at a right click; to be set before the first image.
    void setMenu(const QList<TrayMenuEntry>& entries) { m_menu.setEntries(entries); }

    /// Whether there is a watcher. Empty until the bus has answered; false without a bus.
    [[nodiscard]] std::optional<bool> hasWatcher() const { return m_hasWatcher; }

    /// Asks the bus anew whether there is no watcher: one that came this moment may not have been
    /// heard of. Waits for the bus, a second at the most; one that is silent by then has none.
    [[nodiscard]] bool isSurelyWithoutWatcher() const;

    /// Whether the watcher knows the item and there is a host that draws it.
    [[nodiscard]] bool isShown() const { return m_announced && m_hosted; }

Q_SIGNALS:
    void watcherChanged();
    void shownChanged();
    /// A click of whichever kind opens things, where the host says that it was, or at (0, 0).
    void clicked(QPoint place);

private:
    friend class StatusNotifierAdaptor;

    void setWatcher(bool present);
    void announce();
    void askForHost();
    void setState(bool announced, bool hosted);
    [[nodiscard]] const TrayPixmaps& pixmapsOf(const QIcon& image);

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

    std::list<Serialised> m_serialised; ///< the images shown lately, the last one first
    qint64 m_imageKey = 0;              ///< 0 until the first image
    TrayPixmaps m_pixmaps;
    TrayToolTip m_toolTip;
};

} // namespace vantle

// The tray item's menu over D-Bus.
#pragma once

#include "platform/TrayItem.h"
#include "platform/tray/TrayMenuTypes.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusVariant>
#include <QObject>

namespace vantle {

/// com.canonical.dbusmenu, as far as a flat menu needs it: id 0 is the menu, entries count from 1.
/// Names and types of scriptable members are the protocol's.
///
/// Own code, since Qt keeps its implementation private, and the protocol's library works only on
/// its own connection, where no host would find it. Main thread.
class TrayMenu final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.canonical.dbusmenu")
    Q_PROPERTY(uint Version READ version CONSTANT SCRIPTABLE true)
    Q_PROPERTY(QString TextDirection READ textDirection CONSTANT SCRIPTABLE true)
    Q_PROPERTY(QString Status READ status CONSTANT SCRIPTABLE true)
    Q_PROPERTY(QStringList IconThemePath READ iconThemePath CONSTANT SCRIPTABLE true)

public:
    static const QString& path();

    explicit TrayMenu(const QDBusConnection& session);
    ~TrayMenu() override;

    void setEntries(const QList<TrayMenuEntry>& entries);
    [[nodiscard]] bool isEmpty() const { return m_entries.isEmpty(); }

    [[nodiscard]] uint version() const { return 3; }
    [[nodiscard]] QString textDirection() const;
    [[nodiscard]] QString status() const { return QStringLiteral("normal"); }
    [[nodiscard]] QStringList iconThemePath() const { return {}; }

public Q_SLOTS:
    Q_SCRIPTABLE uint GetLayout(int parentId, int recursionDepth, const QStringList& propertyNames,
                                vantle::TrayMenuNode& layout);
    /// All entries when `ids` is empty.
    Q_SCRIPTABLE QList<vantle::TrayMenuLine> GetGroupProperties(const QList<int>& ids,
                                                                const QStringList& propertyNames);
    Q_SCRIPTABLE QDBusVariant GetProperty(int id, const QString& name);
    Q_SCRIPTABLE void Event(int id, const QString& type, const QDBusVariant& data, uint timestamp);
    Q_SCRIPTABLE QList<int> EventGroup(const QList<vantle::TrayMenuEvent>& events);
    Q_SCRIPTABLE bool AboutToShow(int id);
    Q_SCRIPTABLE QList<int> AboutToShowGroup(const QList<int>& ids, QList<int>& unknownIds);

Q_SIGNALS:
    Q_SCRIPTABLE void ItemsPropertiesUpdated(const QList<vantle::TrayMenuLine>& updated,
                                             const QList<vantle::TrayMenuDefaults>& removed);
    Q_SCRIPTABLE void LayoutUpdated(uint revision, int parent);

private:
    [[nodiscard]] bool knows(int id) const { return id >= 0 && id <= m_entries.size(); }
    [[nodiscard]] bool answersFor(int id);
    [[nodiscard]] QVariantMap propertiesOf(int id, const QStringList& names) const;
    void choose(int id, const QString& event);

    QDBusConnection m_session;
    QList<TrayMenuEntry> m_entries;
    uint m_revision = 1;
};

} // namespace vantle

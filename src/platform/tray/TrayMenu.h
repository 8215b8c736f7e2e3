// The tray item's menu, as hosts read and work it over D-Bus.
#pragma once

#include "platform/TrayItem.h"
#include "platform/tray/TrayMenuTypes.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusVariant>
#include <QObject>

namespace vantle {

/// The interface com.canonical.dbusmenu, as far as a menu of plain lines needs it: id 0 is the
/// menu, the lines count from 1. Names and types of what is scriptable are the protocol's.
///
/// Of its own, since the toolkit keeps its version to itself, and the library of the protocol can
/// only speak on a connection of its own, where no host would look for it. Main thread.
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
    /// Of all lines where `ids` is empty.
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

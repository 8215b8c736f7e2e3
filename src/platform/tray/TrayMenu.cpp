#include "platform/tray/TrayMenu.h"

#include <QDBusError>
#include <QGuiApplication>

#include <algorithm>
#include <iterator>
#include <utility>

namespace vantle {

namespace {

constexpr int kMenuId = 0;

/// A single underscore would mark a mnemonic.
QString escaped(QString text) { return text.replace(QLatin1Char('_'), QLatin1String("__")); }

} // namespace

const QString& TrayMenu::path() {
    static const QString path = QStringLiteral("/StatusNotifierItem/Menu");
    return path;
}

TrayMenu::TrayMenu(const QDBusConnection& session) : m_session(session) {
    registerTrayMenuTypes();
    m_session.registerObject(path(), this, QDBusConnection::ExportScriptableContents);
}

TrayMenu::~TrayMenu() { m_session.unregisterObject(path()); }

void TrayMenu::setEntries(const QList<TrayMenuEntry>& entries) {
    const QList<TrayMenuEntry> before = std::exchange(m_entries, entries);
    if (before.size() != entries.size()) {
        Q_EMIT LayoutUpdated(++m_revision, kMenuId);
        return;
    }
    QList<TrayMenuLine> updated;
    for (int i = 0; i < entries.size(); ++i)
        if (entries[i].text != before[i].text) updated.append({i + 1, propertiesOf(i + 1, {})});
    if (!updated.isEmpty()) Q_EMIT ItemsPropertiesUpdated(updated, {});
}

QString TrayMenu::textDirection() const {
    return QGuiApplication::isRightToLeft() ? QStringLiteral("rtl") : QStringLiteral("ltr");
}

bool TrayMenu::answersFor(int id) {
    if (!knows(id) && calledFromDBus())
        sendErrorReply(QDBusError::InvalidArgs, QStringLiteral("No line %1").arg(id));
    return knows(id);
}

QVariantMap TrayMenu::propertiesOf(int id, const QStringList& names) const {
    QVariantMap properties;
    if (id == kMenuId) {
        properties.insert(QStringLiteral("children-display"), QStringLiteral("submenu"));
    } else {
        properties.insert(QStringLiteral("label"), escaped(m_entries[id - 1].text));
        // Defaults, for hosts that ask for them by name.
        properties.insert(QStringLiteral("enabled"), true);
        properties.insert(QStringLiteral("visible"), true);
    }
    if (!names.isEmpty())
        properties.removeIf([&](const auto& property) { return !names.contains(property.key()); });
    return properties;
}

uint TrayMenu::GetLayout(int parentId, int recursionDepth, const QStringList& propertyNames,
                         TrayMenuNode& layout) {
    if (!answersFor(parentId)) return 0;
    layout = {parentId, propertiesOf(parentId, propertyNames), {}};
    if (parentId == kMenuId && recursionDepth != 0)
        for (int id = 1; knows(id); ++id)
            layout.children.append({id, propertiesOf(id, propertyNames), {}});
    return m_revision;
}

QList<TrayMenuLine> TrayMenu::GetGroupProperties(const QList<int>& ids,
                                                 const QStringList& propertyNames) {
    QList<TrayMenuLine> lines;
    for (int id = kMenuId; knows(id); ++id)
        if (ids.isEmpty() || ids.contains(id)) lines.append({id, propertiesOf(id, propertyNames)});
    return lines;
}

QDBusVariant TrayMenu::GetProperty(int id, const QString& name) {
    if (!answersFor(id)) return {};
    const QVariant value = propertiesOf(id, {name}).value(name);
    if (!value.isValid())
        sendErrorReply(QDBusError::InvalidArgs, QStringLiteral("No property ") + name);
    return QDBusVariant(value);
}

void TrayMenu::Event(int id, const QString& type, const QDBusVariant&, uint) {
    if (answersFor(id)) choose(id, type);
}

QList<int> TrayMenu::EventGroup(const QList<TrayMenuEvent>& events) {
    QList<int> unknownIds;
    for (const TrayMenuEvent& event : events) {
        if (knows(event.id))
            choose(event.id, event.type);
        else
            unknownIds.append(event.id);
    }
    return unknownIds;
}

bool TrayMenu::AboutToShow(int id) {
    (void)answersFor(id);
    return false; // changes are signalled, so none are pending
}

QList<int> TrayMenu::AboutToShowGroup(const QList<int>& ids, QList<int>& unknownIds) {
    std::ranges::copy_if(ids, std::back_inserter(unknownIds),
                         [this](int id) { return !knows(id); });
    return {};
}

void TrayMenu::choose(int id, const QString& event) {
    if (id == kMenuId || event != QLatin1String("clicked")) return;
    // Deferred until the reply has been sent, since the action may take long or end the program.
    if (const auto& run = m_entries[id - 1].choose)
        QMetaObject::invokeMethod(this, run, Qt::QueuedConnection);
}

} // namespace vantle

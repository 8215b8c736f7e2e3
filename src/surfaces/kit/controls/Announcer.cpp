#include "surfaces/kit/controls/Announcer.h"

#include "base/KeySigns.h"

#include <QAccessible>
#include <QAccessibleObject>
#include <QCoreApplication>

#include <algorithm>

namespace vantle {

namespace {

class NotificationInterface final : public QAccessibleObject {
public:
    explicit NotificationInterface(Announcer& announcer) : QAccessibleObject(&announcer) {}

    [[nodiscard]] QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(qApp);
    }
    [[nodiscard]] QAccessibleInterface* child(int) const override { return nullptr; }
    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::Notification; }
    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state;
        state.invisible = static_cast<const Announcer*>(object())->text().isEmpty();
        return state;
    }
    [[nodiscard]] QString text(QAccessible::Text which) const override {
        if (which != QAccessible::Name) return {};
        return keySignsInWords(static_cast<const Announcer*>(object())->text());
    }
};

QAccessibleInterface* notificationInterface(const QString& type, QObject* object) {
    if (type != QLatin1String("vantle::Announcer")) return nullptr;
    auto* const announcer = qobject_cast<Announcer*>(object);
    return announcer ? new NotificationInterface(*announcer) : nullptr;
}

void installNotificationInterface() { QAccessible::installFactory(&notificationInterface); }
Q_COREAPP_STARTUP_FUNCTION(installNotificationInterface)

} // namespace

namespace {

void addLines(QAccessibleInterface& told, QStringList& lines) {
    const QString name = told.text(QAccessible::Name);
    const auto role = told.role();
    if (!name.isEmpty() && (role == QAccessible::Heading || role == QAccessible::StaticText ||
                            role == QAccessible::Graphic || role == QAccessible::ListItem)) {
        // Parts of a sentence are often separate items beside it.
        const bool isSaid = std::ranges::any_of(
            lines, [&name](const QString& line) { return line.contains(name); });
        if (!isSaid) lines << name;
        return;
    }
    for (int i = 0; i < told.childCount(); ++i)
        if (QAccessibleInterface* const child = told.child(i)) addLines(*child, lines);
}

} // namespace

QString Announcer::linesOf(QQuickItem* view) {
    QStringList lines;
    if (!QAccessible::isActive()) return {};
    QAccessibleInterface* const told = QAccessible::queryAccessibleInterface(view);
    for (int i = 0; told && i < told->childCount(); ++i)
        if (QAccessibleInterface* const child = told->child(i)) addLines(*child, lines);
    QString text;
    for (const QString& line : lines) {
        if (!text.isEmpty()) text += text.back().isPunct() ? u" " : u". ";
        text += line;
    }
    return text;
}

Announcer::~Announcer() { setShown(false); }

void Announcer::say(const QString& text) {
    const bool isOther = m_text != text;
    setShown(false);
    m_text = text;
    if (isOther) Q_EMIT textChanged();
    setShown(!m_text.isEmpty());
}

void Announcer::setText(const QString& text) {
    if (m_text != text) say(text);
}

void Announcer::setShown(bool shown) {
    if (m_isShown == shown) return;
    m_isShown = shown;
    if (!QAccessible::isActive()) return;
    QAccessibleEvent event(this, shown ? QAccessible::ObjectShow : QAccessible::ObjectHide);
    QAccessible::updateAccessibility(&event);
}

} // namespace vantle

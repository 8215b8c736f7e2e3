// The accessibility tree of a window, read where Qt's bridge reads it.
#pragma once

#include <QAccessible>
#include <QList>
#include <QQuickItem>
#include <QQuickWindow>
#include <QString>

#include <algorithm>

namespace vantle::tests {

struct ReadElement {
    QAccessible::Role role = QAccessible::NoRole;
    QString name;
    QString description;
    QAccessible::State state;
};

/// Collects the visible elements below one, in reading order.
inline void collectElements(QAccessibleInterface* one, QList<ReadElement>& all) {
    if (one == nullptr || one->state().invisible) return;
    all.append({one->role(), one->text(QAccessible::Name), one->text(QAccessible::Description),
                one->state()});
    for (int i = 0; i < one->childCount(); ++i)
        collectElements(one->child(i), all);
}

[[nodiscard]] inline QList<ReadElement> readElements(QQuickWindow& window) {
    QList<ReadElement> all;
    collectElements(QAccessible::queryAccessibleInterface(&window), all);
    return all;
}

/// Returns the first element of that name, with the role NoRole when there is none.
[[nodiscard]] inline ReadElement readElement(QQuickWindow& window, const QString& name) {
    const QList<ReadElement> all = readElements(window);
    const auto found = std::ranges::find(all, name, &ReadElement::name);
    return found == all.end() ? ReadElement{} : *found;
}

} // namespace vantle::tests

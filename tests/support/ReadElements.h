// What a screen reader is told of a window, asked for where the toolkit's bridge asks.
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

/// All that the tree has below it, in the order of reading; what is hidden is left out.
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

/// The first of that name; its role is NoRole where there is none.
[[nodiscard]] inline ReadElement readElement(QQuickWindow& window, const QString& name) {
    const QList<ReadElement> all = readElements(window);
    const auto found = std::ranges::find(all, name, &ReadElement::name);
    return found == all.end() ? ReadElement{} : *found;
}

} // namespace vantle::tests

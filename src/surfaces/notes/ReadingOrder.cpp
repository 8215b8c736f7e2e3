#include "surfaces/notes/ReadingOrder.h"

#include <algorithm>

namespace vantle {

void ReadingOrder::setParentItem(QQuickItem* item) {
    if (m_parent == item) return;
    if (m_parent) m_parent->disconnect(this);
    m_parent = item;
    if (item) {
        connect(item, &QQuickItem::childrenChanged, this, &ReadingOrder::watchChildren);
        watchChildren();
    }
    Q_EMIT parentItemChanged();
}

void ReadingOrder::watchChildren() {
    for (const QQuickItem* child : m_parent->childItems())
        connect(child, &QQuickItem::yChanged, this, &ReadingOrder::schedule, Qt::UniqueConnection);
    schedule();
}

void ReadingOrder::schedule() {
    if (m_isScheduled) return;
    m_isScheduled = true;
    QMetaObject::invokeMethod(this, &ReadingOrder::sort, Qt::QueuedConnection);
}

void ReadingOrder::sort() {
    m_isScheduled = false;
    if (!m_parent) return;
    const auto isAbove = [](const QQuickItem* one, const QQuickItem* other) {
        return one->y() < other->y();
    };
    QList<QQuickItem*> items = m_parent->childItems();
    if (std::ranges::is_sorted(items, isAbove)) return;
    std::ranges::stable_sort(items, isAbove);
    for (qsizetype place = 1; place < items.size(); ++place)
        items[place]->stackAfter(items[place - 1]);
}

} // namespace vantle

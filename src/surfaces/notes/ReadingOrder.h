// The reading order of a list's items, for screen readers.
#pragma once

#include <QPointer>
#include <QQuickItem>

namespace vantle {

/// A list view reuses items, so after a search its children are in arbitrary order, which is the
/// order of the accessibility tree and the Tab key. This sorts them top to bottom in the next turn
/// of the event loop. Main thread.
class ReadingOrder : public QObject {
    Q_OBJECT
    QML_ELEMENT
    /// The item whose children are sorted: the list's contentItem.
    Q_PROPERTY(QQuickItem* parentItem READ parentItem WRITE setParentItem NOTIFY parentItemChanged)

public:
    using QObject::QObject;

    [[nodiscard]] QQuickItem* parentItem() const { return m_parent; }
    void setParentItem(QQuickItem* item);

Q_SIGNALS:
    void parentItemChanged();

private:
    void watchChildren();
    void schedule();
    void sort();

    QPointer<QQuickItem> m_parent;
    bool m_isScheduled = false;
};

} // namespace vantle

// Keeps the items of a list in the order in which a screen reader should read them.
#pragma once

#include <QPointer>
#include <QQuickItem>

namespace vantle {

/// A list view uses its items again wherever it needs one, so after a search they stand among
/// their siblings in any order, which is the order of the accessibility tree and of the Tab key.
/// This sorts them from the top down, in the event loop's next turn. Main thread.
class ReadingOrder : public QObject {
    Q_OBJECT
    QML_ELEMENT
    /// The item whose children are sorted: the list's content.
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

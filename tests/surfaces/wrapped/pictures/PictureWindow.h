// A picture of the review in its own window.
#pragma once

#include "surfaces/kit/tokens/Motion.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QTest>

#include <functional>

namespace vantle::tests {

class PictureWindow {
public:
    PictureWindow() {
        m_view.engine()->addImportPath(QStringLiteral("qrc:/qt/qml"));
        m_view.setColor(QColor(0x0A, 0x0A, 0x0F));
    }

    QQuickItem& show(const QString& name, const QVariantMap& properties) {
        m_view.setInitialProperties(properties);
        m_view.setSource(QUrl(QStringLiteral("qrc:/qt/qml/Vantle/Wrapped/%1.qml").arg(name)));
        m_view.show();
        QCoreApplication::processEvents();
        return *m_view.rootObject();
    }

    void reduceMotion() { Motion::of(*m_view.engine())->setReduced(true); }
    [[nodiscard]] QImage picture() { return m_view.grabWindow(); }
    void pointAt(QPointF place) {
        QTest::mouseMove(&m_view, place.toPoint());
        QCoreApplication::processEvents();
    }

    /// Returns the matching items below one, itself included, in order.
    static QList<QQuickItem*> all(QQuickItem& item,
                                  const std::function<bool(const QQuickItem&)>& fits) {
        QList<QQuickItem*> found;
        if (fits(item)) found << &item;
        for (QQuickItem* child : item.childItems())
            found += all(*child, fits);
        return found;
    }
    static QList<QQuickItem*> ofType(QQuickItem& item, const char* name) {
        return all(item, [name](const QQuickItem& child) {
            return QByteArray(child.metaObject()->className()).startsWith(name);
        });
    }
    /// The text for screen readers.
    static QString spoken(QQuickItem& item) {
        QAccessibleInterface* const reading = QAccessible::queryAccessibleInterface(&item);
        return reading ? reading->text(QAccessible::Name) : QString();
    }

private:
    QQuickView m_view;
};

} // namespace vantle::tests

// The hour wall: thousands of glass dots in one item.
#pragma once

#include "surfaces/kit/painters/BakedItem.h"
#include "surfaces/kit/painters/GlassDotImages.h"
#include "surfaces/kit/painters/WallGrid.h"

#include <QColor>
#include <QList>

namespace vantle {

/// Fills itself with `columns` x `rows` cells: a lit dot per colour, then an optional slice, then
/// optional sockets. Further colours are not drawn. The glow extends beyond the item. Main thread.
class GlassDotWall : public vantle::BakedItem {
    Q_OBJECT
    QML_ELEMENT
    /// One colour per finished hour, oldest first.
    Q_PROPERTY(QList<QColor> colors MEMBER m_colors NOTIFY changed)
    Q_PROPERTY(int columns MEMBER m_columns NOTIFY changed)
    Q_PROPERTY(int rows MEMBER m_rows NOTIFY changed)
    /// How many colours are lit; -1 for all. The rest are sockets.
    Q_PROPERTY(int filledCount MEMBER m_filledCount NOTIFY changed)
    /// The done part of the current hour (0 for none) and its colour.
    Q_PROPERTY(double sliceFraction MEMBER m_sliceFraction NOTIFY changed)
    Q_PROPERTY(QColor sliceColor MEMBER m_sliceColor NOTIFY changed)
    /// Whether future hours show sockets.
    Q_PROPERTY(bool sockets MEMBER m_hasSockets NOTIFY changed)
    /// Whether the outer dots touch the sides of the wall.
    Q_PROPERTY(bool flush MEMBER m_isFlush NOTIFY changed)
    /// The dot radius in px.
    Q_PROPERTY(double dotRadius READ dotRadius NOTIFY changed)

public:
    explicit GlassDotWall(QQuickItem* parent = nullptr) : BakedItem(parent) {}

    [[nodiscard]] double dotRadius() const { return grid().radius(); }

    /// Returns the cell at a point of the item; -1 for none. Finished hours come first.
    Q_INVOKABLE [[nodiscard]] int cellAt(double x, double y) const { return grid().cellAt({x, y}); }
    /// Returns a cell's centre in the item.
    Q_INVOKABLE [[nodiscard]] QPointF cellCenter(int index) const { return grid().center(index); }

protected:
    void paint(QPainter& painter, double scale) override;
    [[nodiscard]] QMarginsF bleed() const override;
    void geometryChange(const QRectF& now, const QRectF& before) override;

private:
    [[nodiscard]] WallGrid grid() const;

    QList<QColor> m_colors;
    int m_columns = 32;
    int m_rows = 2;
    int m_filledCount = -1;
    double m_sliceFraction = 0.0;
    QColor m_sliceColor;
    bool m_hasSockets = true;
    bool m_isFlush = false;
    GlassDotImages m_images;
};

} // namespace vantle

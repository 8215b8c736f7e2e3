// The hour wall: thousands of glass dots in one item.
#pragma once

#include "surfaces/kit/painters/BakedItem.h"
#include "surfaces/kit/painters/GlassDotImages.h"
#include "surfaces/kit/painters/WallGrid.h"

#include <QColor>
#include <QList>

namespace vantle {

/// Fills its size with `columns` by `rows` cells: a lit dot for each of `colors`, then a slice if
/// there is one, then sockets if they are wanted. Colours beyond the last cell are not drawn. The
/// glow of the outer dots reaches beyond the item. Main thread.
class GlassDotWall : public vantle::BakedItem {
    Q_OBJECT
    QML_ELEMENT
    /// One colour for each finished hour, oldest first.
    Q_PROPERTY(QList<QColor> colors READ colors WRITE setColors NOTIFY colorsChanged)
    Q_PROPERTY(int columns READ columns WRITE setColumns NOTIFY gridChanged)
    Q_PROPERTY(int rows READ rows WRITE setRows NOTIFY gridChanged)
    /// How many of the colours are lit; -1 for all of them. The others are sockets still.
    Q_PROPERTY(int filledCount READ filledCount WRITE setFilledCount NOTIFY filledCountChanged)
    /// The current hour: how much of it is done, 0 for none, and its colour.
    Q_PROPERTY(double sliceFraction READ sliceFraction WRITE setSliceFraction NOTIFY sliceChanged)
    Q_PROPERTY(QColor sliceColor READ sliceColor WRITE setSliceColor NOTIFY sliceChanged)
    /// Whether the hours to come have their sockets.
    Q_PROPERTY(bool sockets READ hasSockets WRITE setSockets NOTIFY socketsChanged)
    /// The radius of a dot, px.
    Q_PROPERTY(double dotRadius READ dotRadius NOTIFY gridChanged)

public:
    explicit GlassDotWall(QQuickItem* parent = nullptr) : BakedItem(parent) {}

    [[nodiscard]] QList<QColor> colors() const { return m_colors; }
    void setColors(const QList<QColor>& colors);
    [[nodiscard]] int columns() const { return m_columns; }
    void setColumns(int columns);
    [[nodiscard]] int rows() const { return m_rows; }
    void setRows(int rows);
    [[nodiscard]] int filledCount() const { return m_filledCount; }
    void setFilledCount(int count);
    [[nodiscard]] double sliceFraction() const { return m_sliceFraction; }
    void setSliceFraction(double fraction);
    [[nodiscard]] QColor sliceColor() const { return m_sliceColor; }
    void setSliceColor(const QColor& color);
    [[nodiscard]] bool hasSockets() const { return m_hasSockets; }
    void setSockets(bool sockets);
    [[nodiscard]] double dotRadius() const { return grid().radius(); }

    /// The cell under a point of the item; -1 for none. Finished hours come first.
    Q_INVOKABLE [[nodiscard]] int cellAt(double x, double y) const { return grid().cellAt({x, y}); }
    /// The centre of a cell in the item.
    Q_INVOKABLE [[nodiscard]] QPointF cellCenter(int index) const { return grid().center(index); }

Q_SIGNALS:
    void colorsChanged();
    void gridChanged();
    void filledCountChanged();
    void sliceChanged();
    void socketsChanged();

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
    GlassDotImages m_images;
};

} // namespace vantle

// The calendar of a review, in one item.
#pragma once

#include "review/RhythmCard.h"
#include "review/drawing/RhythmLayout.h"
#include "surfaces/kit/painters/BakedItem.h"

#include <QFont>

namespace vantle {

/// Its height follows from its width. Days are indexed from the first, without blanks. Today's ring
/// extends beyond the item. Main thread.
class RhythmTiles : public vantle::BakedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(vantle::RhythmPicture picture READ picture WRITE setPicture NOTIFY pictureChanged)
    Q_PROPERTY(int dayCount READ dayCount NOTIFY pictureChanged)
    /// For letters and month names.
    Q_PROPERTY(QFont font MEMBER m_font NOTIFY changed)
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed)
    Q_PROPERTY(QColor futureColor MEMBER m_futureColor NOTIFY changed)
    /// The age of the page in milliseconds while a week's tiles grow; negative when all are full
    /// size.
    Q_PROPERTY(double growing MEMBER m_growing NOTIFY changed)
    /// The duration of that growth, in milliseconds.
    Q_PROPERTY(int growTime READ growTime CONSTANT)

public:
    explicit RhythmTiles(QQuickItem* parent = nullptr) : BakedItem(parent) {}

    [[nodiscard]] const RhythmPicture& picture() const { return m_picture; }
    void setPicture(const RhythmPicture& picture);
    [[nodiscard]] int dayCount() const { return static_cast<int>(m_layout.spots.size()); }
    [[nodiscard]] static int growTime();

    /// Returns the index of the day at a point; -1 for none.
    Q_INVOKABLE [[nodiscard]] int dayAt(double x, double y) const;
    /// Returns the tile's rectangle; empty for no day.
    Q_INVOKABLE [[nodiscard]] QRectF dayArea(int day) const;
    /// Returns date and hours; empty for no day.
    Q_INVOKABLE [[nodiscard]] QString dayHelp(int day) const;

Q_SIGNALS:
    void pictureChanged();

protected:
    void paint(QPainter& painter, double scale) override;
    [[nodiscard]] QMarginsF bleed() const override;
    void geometryChange(const QRectF& now, const QRectF& before) override;

private:
    void arrange();
    [[nodiscard]] bool isDay(int day) const { return day >= 0 && day < dayCount(); }

    RhythmPicture m_picture;
    RhythmLayout m_layout;
    QFont m_font;
    QColor m_color = Qt::white;
    QColor m_futureColor = Qt::white;
    double m_growing = -1;
};

} // namespace vantle

// The calendar of a review as one item, however many days it has.
#pragma once

#include "review/RhythmCard.h"
#include "review/drawing/RhythmLayout.h"
#include "surfaces/kit/painters/BakedItem.h"

#include <QFont>

namespace vantle {

/// As wide as it is given, and as high as the picture is then. Days are counted from the first one
/// on, without the blanks. Today's ring reaches beyond the item. Main thread.
class RhythmTiles : public vantle::BakedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(vantle::RhythmPicture picture READ picture WRITE setPicture NOTIFY pictureChanged)
    Q_PROPERTY(int dayCount READ dayCount NOTIFY pictureChanged)
    /// Of letters and names of months.
    Q_PROPERTY(QFont font MEMBER m_font NOTIFY changed)
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed)
    Q_PROPERTY(QColor futureColor MEMBER m_futureColor NOTIFY changed)
    /// How many milliseconds after its page came the tiles of a week are shown, growing; a negative
    /// number when all are there.
    Q_PROPERTY(double growing MEMBER m_growing NOTIFY changed)
    /// How long all of that takes, in milliseconds.
    Q_PROPERTY(int growTime READ growTime CONSTANT)

public:
    explicit RhythmTiles(QQuickItem* parent = nullptr) : BakedItem(parent) {}

    [[nodiscard]] const RhythmPicture& picture() const { return m_picture; }
    void setPicture(const RhythmPicture& picture);
    [[nodiscard]] int dayCount() const { return static_cast<int>(m_layout.spots.size()); }
    [[nodiscard]] static int growTime();

    /// The day at a point of the item; -1 for none.
    Q_INVOKABLE [[nodiscard]] int dayAt(double x, double y) const;
    /// Where its tile is; nowhere for no day.
    Q_INVOKABLE [[nodiscard]] QRectF dayArea(int day) const;
    /// Its date, and its hours if it has any; empty for no day.
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

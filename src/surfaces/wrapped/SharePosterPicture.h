// The poster, as an item on the page that shares it.
#pragma once

#include "review/SharePoster.h"
#include "surfaces/kit/painters/BakedItem.h"

namespace vantle {

/// Its height follows from its width; sharp at its window's scale. Main thread.
class SharePosterPicture : public vantle::BakedItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(vantle::SharePoster poster READ poster WRITE setPoster NOTIFY changed)
    /// Of the corners, px; above 0 there is also a hairline.
    Q_PROPERTY(double radius MEMBER m_radius NOTIFY changed)

public:
    explicit SharePosterPicture(QQuickItem* parent = nullptr);

    [[nodiscard]] const SharePoster& poster() const { return m_poster; }
    void setPoster(const SharePoster& poster);

protected:
    void paint(QPainter& painter, double scale) override;
    void geometryChange(const QRectF& now, const QRectF& before) override;

private:
    void wantHeight();
    void drawEdge(QPainter& painter);

    SharePoster m_poster;
    double m_radius = 0;
};

} // namespace vantle

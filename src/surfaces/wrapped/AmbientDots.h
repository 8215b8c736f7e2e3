// The drifting dots behind a review's pages.
#pragma once

#include "review/WrappedMotion.h"

#include <QList>
#include <QQuickItem>
#include <QRectF>

#include <array>

namespace vantle {

/// Shows the field at `seconds`, which the owner advances. Each dot is painted once; an update
/// touches only dots that move by a whole device pixel or change visibly in brightness, so a slow
/// field costs little with the software renderer too. Main thread.
class AmbientDots : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    /// The age of the field.
    Q_PROPERTY(double seconds READ seconds WRITE setSeconds NOTIFY secondsChanged)
    /// Areas to read or press: on them and within 8 px dots have an opacity below 0.06.
    Q_PROPERTY(QList<QRectF> quiet READ quiet WRITE setQuiet NOTIFY quietChanged)
    /// Whether a star is visible, which needs more frames a second than the dots.
    Q_PROPERTY(bool hasStar READ hasStar NOTIFY secondsChanged)

public:
    explicit AmbientDots(QQuickItem* parent = nullptr);

    [[nodiscard]] double seconds() const { return m_seconds; }
    void setSeconds(double seconds);
    [[nodiscard]] bool hasStar() const;
    [[nodiscard]] QList<QRectF> quiet() const { return m_quiet; }
    void setQuiet(const QList<QRectF>& quiet);

    /// A dot's position and brightness on the screen.
    struct Look {
        QPointF corner; ///< px, on a whole device pixel
        int light = 0;  ///< 0 to `lightSteps`
        friend bool operator==(const Look&, const Look&) = default;
    };
    static constexpr int lightSteps = 24;
    using Looks = std::array<Look, wrappedmotion::ambientDots>;
    [[nodiscard]] static Looks looksAt(double seconds, QSizeF size, double scale,
                                       const QList<QRectF>& quiet = {});

Q_SIGNALS:
    void secondsChanged();
    void quietChanged();

protected:
    QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;
    void geometryChange(const QRectF& now, const QRectF& before) override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;

private:
    [[nodiscard]] double scale() const;
    [[nodiscard]] bool refresh();

    double m_seconds = 0;
    QList<QRectF> m_quiet;
    Looks m_looks;
};

} // namespace vantle

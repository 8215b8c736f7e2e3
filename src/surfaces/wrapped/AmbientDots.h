// The dots that drift behind the pages of a review, and now and then a shooting star.
#pragma once

#include "review/WrappedMotion.h"

#include <QQuickItem>

#include <array>

namespace vantle {

/// Shows the field as it is at `seconds`, which somebody else moves on. A dot is drawn once; from
/// one moment to the next only those change whose place or light does, by whole device pixels and
/// in steps that eyes can't tell apart. So a field that hardly moves costs hardly anything, also
/// where the processor draws. Main thread.
class AmbientDots : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    /// The age of the field.
    Q_PROPERTY(double seconds READ seconds WRITE setSeconds NOTIFY secondsChanged)
    /// A star is crossing, which wants more moments a second than the dots.
    Q_PROPERTY(bool hasStar READ hasStar NOTIFY secondsChanged)

public:
    explicit AmbientDots(QQuickItem* parent = nullptr);

    [[nodiscard]] double seconds() const { return m_seconds; }
    void setSeconds(double seconds);
    [[nodiscard]] bool hasStar() const;

    /// A dot on the screen: where the corner of its image stands, and its light.
    struct Look {
        QPointF corner; ///< px, on a whole device pixel
        int light = 0;  ///< 0 to `lightSteps`
        friend bool operator==(const Look&, const Look&) = default;
    };
    static constexpr int lightSteps = 24;
    using Looks = std::array<Look, wrappedmotion::ambientDots>;
    [[nodiscard]] static Looks looksAt(double seconds, QSizeF size, double scale);

Q_SIGNALS:
    void secondsChanged();

protected:
    QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;
    void geometryChange(const QRectF& now, const QRectF& before) override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;

private:
    [[nodiscard]] double scale() const;
    [[nodiscard]] bool refresh();

    double m_seconds = 0;
    Looks m_looks;
};

} // namespace vantle

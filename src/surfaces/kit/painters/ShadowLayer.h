// One layer of a shadow; views use DarkShadow.
#pragma once

#include "surfaces/kit/painters/ScaledItem.h"
#include "surfaces/kit/painters/ShadowImage.h"

namespace vantle {

/// Has the surface's geometry and draws around it. Its minimal image is stretched, so a growing
/// surface costs nothing. Main thread.
class ShadowLayer : public vantle::ScaledItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double radius READ radius WRITE setRadius NOTIFY changed)
    Q_PROPERTY(double offset READ offset WRITE setOffset NOTIFY changed)
    Q_PROPERTY(double blur READ blur WRITE setBlur NOTIFY changed)
    Q_PROPERTY(double strength READ strength WRITE setStrength NOTIFY changed)

public:
    explicit ShadowLayer(QQuickItem* parent = nullptr) : ScaledItem(parent) {}

    [[nodiscard]] double radius() const { return m_shape.radius; }
    void setRadius(double radius) { set(m_shape.radius, radius); }
    [[nodiscard]] double offset() const { return m_shape.offset; }
    void setOffset(double offset) { set(m_shape.offset, offset); }
    [[nodiscard]] double blur() const { return m_shape.blur; }
    void setBlur(double blur) { set(m_shape.blur, blur); }
    [[nodiscard]] double strength() const { return m_shape.strength; }
    void setStrength(double strength) { set(m_shape.strength, strength); }

protected:
    QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;

private:
    void set(double& member, double value);

    ShadowShape m_shape; ///< in px
    ShadowShape m_baked; ///< what the node's image shows, in device pixels
};

} // namespace vantle

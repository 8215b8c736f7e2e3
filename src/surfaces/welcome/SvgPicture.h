// An SVG picture in its own colours.
#pragma once

#include "surfaces/kit/painters/BakedItem.h"

#include <QUrl>

namespace vantle {

/// Draws an SVG file of the resources, scaled into the item; nothing when it is missing. Main
/// thread.
class SvgPicture : public vantle::BakedItem {
    Q_OBJECT
    QML_ELEMENT
    /// Such as "qrc:/qt/qml/Vantle/Welcome/pictures/brick.svg".
    Q_PROPERTY(QUrl source MEMBER m_source NOTIFY changed)

public:
    explicit SvgPicture(QQuickItem* parent = nullptr) : BakedItem(parent) {}

protected:
    void paint(QPainter& painter, double scale) override;

private:
    QUrl m_source;
};

} // namespace vantle

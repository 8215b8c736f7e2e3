#include "surfaces/welcome/SvgPicture.h"

#include <QPainter>
#include <QSvgRenderer>

namespace vantle {

void SvgPicture::paint(QPainter& painter, double /*scale*/) {
    if (m_source.scheme() != QLatin1String("qrc")) return;
    QSvgRenderer svg(QLatin1Char(':') + m_source.path());
    svg.setAspectRatioMode(Qt::KeepAspectRatio);
    svg.render(&painter, boundingRect());
}

} // namespace vantle

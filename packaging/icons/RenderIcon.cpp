// RenderIcon <picture.svg> <pixels> <picture.png>
//
// Draws a picture as a square image of so many pixels: the program's icon in the sizes of the icon
// theme, by the renderer that the program draws with. Needs no display. Exit status: 0 or 1.
#include <QByteArray>
#include <QImage>
#include <QPainter>
#include <QString>
#include <QSvgRenderer>

int main(int argc, char** argv) {
    if (argc != 4) return 1;
    const int pixels = QByteArray(argv[2]).toInt();
    QSvgRenderer picture(QString::fromLocal8Bit(argv[1]));
    if (pixels <= 0 || !picture.isValid()) return 1;
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    picture.render(&painter);
    painter.end();
    return image.save(QString::fromLocal8Bit(argv[3]), "PNG") ? 0 : 1;
}

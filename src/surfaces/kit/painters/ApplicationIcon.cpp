#include "surfaces/kit/painters/ApplicationIcon.h"

#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

namespace vantle {

namespace {

class SvgIcon final : public QIconEngine {
public:
    void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override {
        QSvgRenderer(QStringLiteral(":/vantle/kit/app-icon.svg")).render(painter, rect);
    }
    [[nodiscard]] QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return picture;
    }
    [[nodiscard]] QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override {
        QList<QSize> sizes;
        for (const int side : {16, 22, 24, 32, 48, 64, 96, 128})
            sizes.append(QSize(side, side));
        return sizes;
    }
    [[nodiscard]] QIconEngine* clone() const override { return new SvgIcon; }
};

} // namespace

QIcon applicationIcon() { return QIcon(new SvgIcon); }

} // namespace vantle

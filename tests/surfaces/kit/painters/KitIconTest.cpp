// The icons themselves, and how they take a colour.
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <gtest/gtest.h>

namespace vantle {
namespace {

QStringList iconFiles() {
    QStringList files;
    QDirIterator icons(QStringLiteral(":/qt/qml/Vantle/Kit/icons"));
    while (icons.hasNext())
        files.append(icons.next());
    return files;
}

TEST(KitIcon, AllAreThere) { EXPECT_EQ(iconFiles().size(), 24); }

TEST(KitIcon, EachDrawsSomethingWithinItsGrid) {
    for (const QString& file : iconFiles()) {
        QSvgRenderer svg(file);
        ASSERT_TRUE(svg.isValid()) << qPrintable(file);
        EXPECT_EQ(svg.defaultSize(), QSize(16, 16)) << qPrintable(file);
        QImage image(16, 16, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        svg.render(&painter);
        painter.end();
        int lit = 0;
        for (int y = 0; y < 16; ++y)
            for (int x = 0; x < 16; ++x)
                lit += image.pixelColor(x, y).alpha() > 128;
        EXPECT_GT(lit, 5) << qPrintable(file);
        EXPECT_LT(lit, 200) << qPrintable(file);
    }
}

} // namespace
} // namespace vantle

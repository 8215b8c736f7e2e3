// Shapes of the kit on screens of five scales: each is what a painter draws on whole device pixels.
#include "support/ShownItems.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QScreen>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <numeric>
#include <vector>

namespace vantle::tests {
namespace {

constexpr QColor kGround(30, 32, 38);

/// A window on a screen of one scale, with what a piece of a view shows in it.
class ScaledWindow {
public:
    ScaledWindow(QScreen& screen, const QByteArray& items) {
        m_engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
        m_window.setScreen(&screen);
        m_window.setGeometry(QRect(screen.geometry().topLeft(), QSize(160, 120)));
        m_window.setColor(kGround);
        QQmlComponent component(&m_engine);
        component.setData("import QtQuick\nimport Vantle.Kit\nItem { width: 160; height: 120\n" +
                              items + "\n}",
                          QUrl());
        m_view.reset(qobject_cast<QQuickItem*>(component.create()));
        if (!m_view) {
            ADD_FAILURE() << component.errorString().toStdString();
            return;
        }
        m_view->setParentItem(m_window.contentItem());
        m_window.show();
    }

    [[nodiscard]] QImage picture() {
        QCoreApplication::processEvents();
        return m_window.grabWindow().convertToFormat(QImage::Format_RGB32);
    }
    [[nodiscard]] QQuickItem& view() { return *m_view; }
    [[nodiscard]] double scale() const { return m_window.effectiveDevicePixelRatio(); }

private:
    QQmlEngine m_engine;
    QQuickWindow m_window;
    std::unique_ptr<QQuickItem> m_view;
};

QImage groundLike(const QImage& picture) {
    QImage image(picture.size(), QImage::Format_RGB32);
    image.fill(kGround);
    return image;
}

/// The rectangle in device pixels: its corner and its size are whole ones.
QRect snapped(QRectF rect, double scale) {
    return {qRound(rect.x() * scale), qRound(rect.y() * scale), qRound(rect.width() * scale),
            qRound(rect.height() * scale)};
}

void drawPlate(QPainter& painter, QRectF place, double scale, double radius, QColor color,
               QColor edge = Qt::transparent, int edgeWidth = 0) {
    const QRectF rect = snapped(place, scale);
    const double round = std::min(radius * scale, std::min(rect.width(), rect.height()) / 2);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath outline;
    outline.addRoundedRect(rect, round, round);
    painter.fillPath(outline, color);
    if (edgeWidth == 0) return;
    const double inner = std::max(0.0, round - edgeWidth);
    outline.addRoundedRect(rect.adjusted(edgeWidth, edgeWidth, -edgeWidth, -edgeWidth), inner,
                           inner);
    painter.fillPath(outline, edge);
}

/// The largest difference of a channel between two pictures, and where it is.
std::string differenceOf(const QImage& shown, const QImage& wanted, int allowed) {
    if (shown.size() != wanted.size()) return "another size";
    for (int y = 0; y < shown.height(); ++y)
        for (int x = 0; x < shown.width(); ++x) {
            const QColor a = shown.pixelColor(x, y);
            const QColor b = wanted.pixelColor(x, y);
            const int off = std::max({std::abs(a.red() - b.red()), std::abs(a.green() - b.green()),
                                      std::abs(a.blue() - b.blue())});
            if (off > allowed)
                return a.name().toStdString() + " instead of " + b.name().toStdString() + " at " +
                       std::to_string(x) + ", " + std::to_string(y);
        }
    return {};
}

class Scales : public testing::TestWithParam<int> {
protected:
    void SetUp() override {
        const auto screens = QGuiApplication::screens();
        ASSERT_EQ(screens.size(), 5);
        m_screen = screens[GetParam()];
    }
    QScreen* m_screen = nullptr;
};

TEST_P(Scales, PlateIsWhatAPainterDraws) {
    ScaledWindow window(*m_screen, R"(
        Plate { x: 10; y: 10; width: 96; height: 33; radius: 8; color: "#3478f6" }
        Plate { x: 10.4; y: 51; width: 33; height: 21; radius: 20; color: "#ffffff" }
        Plate {
            x: 53; y: 51.3; width: 50; height: 60; radius: 12
            color: "#20ffffff"; edge: "#80ffffff"
        }
        Plate { x: 113; y: 7; width: 9; height: 9; radius: 4.5; color: "#f2a33c" }
        Plate { x: 113; y: 27; width: 39; height: 39; radius: 9; edge: "#3478f6"; edgeWidth: 2 }
    )");
    const double scale = window.scale();
    EXPECT_EQ(QString::number(scale), m_screen->name());
    const QImage shown = window.picture();
    QImage wanted = groundLike(shown);
    {
        QPainter painter(&wanted);
        drawPlate(painter, {10, 10, 96, 33}, scale, 8, "#3478f6");
        drawPlate(painter, {10.4, 51, 33, 21}, scale, 20, "#ffffff");
        drawPlate(painter, {53, 51.3, 50, 60}, scale, 12, QColor(255, 255, 255, 32),
                  QColor(255, 255, 255, 128), std::max(1, qRound(scale)));
        drawPlate(painter, {113, 7, 9, 9}, scale, 4.5, "#f2a33c");
        drawPlate(painter, {113, 27, 39, 39}, scale, 9, Qt::transparent, "#3478f6",
                  qRound(2 * scale));
    }
    EXPECT_EQ(differenceOf(shown, wanted, 3), "") << scale;
}

TEST_P(Scales, PlateThatChangesStaysWhereItIs) {
    ScaledWindow window(*m_screen, R"(
        Plate { x: 20; y: 30; width: 6; height: 40; radius: 3; color: "#3478f6" }
    )");
    (void)window.picture();
    QQuickItem* const plate = window.view().childItems().constFirst();
    plate->setWidth(90);
    plate->setProperty("color", QColor(255, 160, 60));
    plate->setProperty("edge", QColor(Qt::white));
    const QImage shown = window.picture();
    const double scale = window.scale();
    QImage wanted = groundLike(shown);
    {
        QPainter painter(&wanted);
        drawPlate(painter, {20, 30, 90, 40}, scale, 3, QColor(255, 160, 60), Qt::white,
                  qRound(scale));
    }
    EXPECT_EQ(differenceOf(shown, wanted, 3), "") << scale;
}

TEST_P(Scales, RoundDotHasNoSides) {
    ScaledWindow window(*m_screen,
                        R"(FlatDot { x: 20.3; y: 20; width: 9; height: 9; color: "#ffffff" })");
    const QImage shown = window.picture();
    const double scale = window.scale();
    // Its extent is the same both ways, and a diagonal as long as a row.
    int widest = 0;
    int highest = 0;
    double ink = 0;
    for (int y = 0; y < shown.height(); ++y) {
        int inRow = 0;
        for (int x = 0; x < shown.width(); ++x) {
            const double light =
                (shown.pixelColor(x, y).red() - kGround.red()) / double(255 - kGround.red());
            ink += light;
            inRow += light > 0.5 ? 1 : 0;
        }
        widest = std::max(widest, inRow);
    }
    for (int x = 0; x < shown.width(); ++x) {
        int inColumn = 0;
        for (int y = 0; y < shown.height(); ++y)
            inColumn += shown.pixelColor(x, y).red() > 142 ? 1 : 0;
        highest = std::max(highest, inColumn);
    }
    EXPECT_EQ(widest, highest) << scale;
    const double radius = 4.5 * scale;
    EXPECT_NEAR(ink, M_PI * radius * radius, 0.03 * M_PI * radius * radius) << scale;
}

TEST_P(Scales, ShadowHasNoLineInIt) {
    ScaledWindow window(*m_screen, R"(
        ShadowLayer {
            x: 40.3; y: 30; width: 81; height: 53
            radius: 10; offset: 4; blur: 12; strength: 0.6
        }
    )");
    const QImage shown = window.picture();
    // Along the row below the surface it grows to the middle and falls behind it, step by step.
    const double scale = window.scale();
    const int y = qRound(30 * scale) + qRound(53 * scale) + qRound(4 * scale);
    const int middle = qRound((40.3 + 81 / 2.0) * scale);
    for (int x = qRound(20 * scale); x < middle; ++x)
        EXPECT_GE(shown.pixelColor(x, y).red() + 1, shown.pixelColor(x + 1, y).red())
            << x << " at " << scale;
    for (int x = middle; x < qRound(140 * scale); ++x)
        EXPECT_LE(shown.pixelColor(x, y).red(), shown.pixelColor(x + 1, y).red() + 1)
            << x << " at " << scale;
}

TEST_P(Scales, NoGroundShowsBetweenASurfaceAndItsShadow) {
    ScaledWindow window(*m_screen, R"(
        ShadowLayer {
            x: 40.3; y: 30; width: 81; height: 53
            radius: 10; offset: 4; blur: 12; strength: 1
        }
        Plate { x: 40.3; y: 30; width: 81; height: 53; radius: 10; color: "#000000" }
    )");
    const QImage shown = window.picture();
    const double scale = window.scale();
    const QRect surface = snapped({40.3, 30, 81, 53}, scale);
    // Outwards from the surface nothing is ever darker than what lies nearer to it.
    const int x = surface.center().x();
    for (int y = surface.bottom(); y < surface.bottom() + 10; ++y)
        EXPECT_LE(shown.pixelColor(x, y).red(), shown.pixelColor(x, y + 1).red() + 1)
            << y - surface.bottom() << " at " << scale;
    const int row = surface.center().y();
    for (int left = surface.left(); left > surface.left() - 8; --left)
        EXPECT_LE(shown.pixelColor(left, row).red(), shown.pixelColor(left - 1, row).red() + 1)
            << left - surface.left() << " at " << scale;
}

/// The light of each device pixel of an icon, 0 to 1.
struct Light {
    explicit Light(const QImage& picture, QRect area) : side(area.width()) {
        for (int y = 0; y < side; ++y)
            for (int x = 0; x < side; ++x)
                at.push_back(
                    (picture.pixelColor(area.x() + x, area.y() + y).red() - kGround.red()) /
                    double(255 - kGround.red()));
    }
    [[nodiscard]] double of(int x, int y) const {
        return at[static_cast<std::size_t>(y * side + x)];
    }
    [[nodiscard]] double ink() const { return std::accumulate(at.begin(), at.end(), 0.0); }

    int side;
    std::vector<double> at;
};

Light lightOf(QScreen& screen, const char* name, int size) {
    ScaledWindow window(screen, QStringLiteral("KitIcon { x: 20; y: 20; width: %1; height: %1; "
                                               "name: \"%2\"; color: \"#ffffff\" }")
                                    .arg(size)
                                    .arg(QLatin1String(name))
                                    .toUtf8());
    const double scale = window.scale();
    const int side = qRound(size * scale);
    const int corner = qRound(20 * scale);
    return Light(window.picture(), QRect(corner, corner, side, side));
}

TEST_P(Scales, LevelMarksCoverWholePixels) {
    for (const int size : {10, 12, 16}) {
        const Light light = lightOf(*m_screen, "minus", size);
        const double stroke = 1.5 * m_screen->name().toDouble();
        const int middle = light.side / 2;
        int rows = 0;
        double sum = 0;
        for (int y = 0; y < light.side; ++y) {
            sum += light.of(middle, y);
            if (light.of(middle, y) < 0.02) continue;
            ++rows;
            EXPECT_GT(light.of(middle, y), 0.7)
                << size << " px at " << m_screen->name().toStdString();
        }
        EXPECT_EQ(rows, qRound(stroke)) << size << " px at " << m_screen->name().toStdString();
        EXPECT_NEAR(sum, stroke, 0.25) << size;
    }
}

TEST_P(Scales, SlantingMarksAreAsThickAsTheirStroke) {
    const double scale = m_screen->name().toDouble();
    for (const int size : {10, 12}) {
        const Light light = lightOf(*m_screen, "close", size);
        // Two strokes of half the side each way, round at their ends, less where they cross.
        const double stroke = 1.5 * scale;
        const double length = M_SQRT2 * size * scale / 2;
        const double ink = 2 * length * stroke + M_PI * stroke * stroke / 2 - stroke * stroke;
        EXPECT_NEAR(light.ink() / ink, 1, 0.15) << size << " px at " << scale;
        double brightest = 0;
        for (const double each : light.at)
            brightest = std::max(brightest, each);
        EXPECT_GT(brightest, 0.9) << size << " px at " << scale;
    }
}

TEST_P(Scales, MarksAreAlikeOnBothSides) {
    for (const char* name : {"close", "plus", "pause", "stop", "chevron-down"})
        for (const int size : {10, 12, 16}) {
            const Light light = lightOf(*m_screen, name, size);
            // A stroke of even thickness stands a pixel beside the middle of an odd number.
            const auto differs = [&](int mirror) {
                double most = 0;
                for (int y = 0; y < light.side; ++y)
                    for (int x = 0; x < light.side; ++x) {
                        const int other = mirror - x;
                        const double there =
                            other < 0 || other >= light.side ? 0 : light.of(other, y);
                        most = std::max(most, std::abs(light.of(x, y) - there));
                    }
                return most;
            };
            EXPECT_LT(std::min({differs(light.side - 1), differs(light.side - 2)}), 0.03)
                << name << ", " << size << " px at " << m_screen->name().toStdString();
        }
}

TEST_P(Scales, APlayMarkHasItsWeightInTheMiddle) {
    for (const int size : {10, 13, 16}) {
        const Light light = lightOf(*m_screen, "play", size);
        double across = 0;
        for (int y = 0; y < light.side; ++y)
            for (int x = 0; x < light.side; ++x)
                across += light.of(x, y) * (x + 0.5);
        EXPECT_NEAR(across / light.ink(), light.side / 2.0, 0.6)
            << size << " px at " << m_screen->name().toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(OfScreens, Scales, testing::Range(0, 5));

} // namespace
} // namespace vantle::tests

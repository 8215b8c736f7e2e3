#include "surfaces/window/WindowPlacement.h"

#include <QStringList>

#include <algorithm>
#include <array>

namespace vantle::windowplacement {

namespace {

double areaOf(const QRectF& rect) { return rect.width() * rect.height(); }

int clampedTo(int value, double low, double high) {
    return static_cast<int>(std::max(low, std::min<double>(value, high)));
}

} // namespace

QSize fitted(const QSize& size, const QRectF& area) { return size.boundedTo(area.size().toSize()); }

QRect centred(const QSize& size, const QRectF& area) {
    return {qRound(area.x() + (area.width() - size.width()) / 2),
            qRound(area.y() + (area.height() - size.height()) / 2), size.width(), size.height()};
}

std::optional<QRect> onScreen(const QRect& frame, const std::vector<ScreenShape>& screens) {
    const auto shown = [&](const ScreenShape& screen) {
        return areaOf(screen.available.intersected(frame));
    };
    const auto best = std::ranges::max_element(screens, {}, shown);
    if (best == screens.end() || shown(*best) <= 0) return std::nullopt;
    const QRectF& area = best->available;
    const QSize size = fitted(frame.size(), area);
    return QRect(clampedTo(frame.x(), area.left(), area.right() - size.width()),
                 clampedTo(frame.y(), area.top(), area.bottom() - size.height()), size.width(),
                 size.height());
}

QRect dragged(const QRect& frame, Qt::Edges edges, const QPoint& by, const QSize& least,
              const QSize& greatest) {
    if (edges == Qt::Edges()) return frame.translated(by);
    const int dx = edges.testFlag(Qt::LeftEdge) ? -by.x() : by.x();
    const int dy = edges.testFlag(Qt::TopEdge) ? -by.y() : by.y();
    const bool wider = edges.testAnyFlags(Qt::LeftEdge | Qt::RightEdge);
    const bool higher = edges.testAnyFlags(Qt::TopEdge | Qt::BottomEdge);
    const QSize size = (frame.size() + QSize(wider ? dx : 0, higher ? dy : 0))
                           .boundedTo(greatest)
                           .expandedTo(least);
    QRect after(frame.topLeft(), size);
    if (edges.testFlag(Qt::LeftEdge)) after.moveRight(frame.right());
    if (edges.testFlag(Qt::TopEdge)) after.moveBottom(frame.bottom());
    return after;
}

QString encode(const QRect& frame) {
    return QStringLiteral("%1 %2 %3 %4")
        .arg(frame.x())
        .arg(frame.y())
        .arg(frame.width())
        .arg(frame.height());
}

std::optional<QRect> decode(const QString& text) {
    const QStringList parts = text.split(QLatin1Char(' '));
    std::array<int, 4> numbers{};
    if (parts.size() != static_cast<qsizetype>(numbers.size())) return std::nullopt;
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        bool ok = false;
        numbers.at(i) = parts.at(static_cast<qsizetype>(i)).toInt(&ok);
        if (!ok) return std::nullopt;
    }
    if (numbers[2] <= 0 || numbers[3] <= 0) return std::nullopt;
    return QRect(numbers[0], numbers[1], numbers[2], numbers[3]);
}

} // namespace vantle::windowplacement

#include "surfaces/welcome/BrickWall.h"

#include "surfaces/kit/tokens/ColorMath.h"

#include <QPainter>
#include <QPainterPath>

#include <array>
#include <cstddef>
#include <span>

namespace vantle {

namespace {

constexpr double kLowest = 172; // of the lowest course's upper edge
constexpr double kPitch = 32;   // of the courses
constexpr double kHeight = 26;
constexpr double kGap = 6;
constexpr double kPlainest = 0.06; // opacity of white, at the bottom
constexpr double kFaintest = 0.015;

/// Courses from the bottom up: offset of the first brick, then lengths; 0 for none.
constexpr std::array<std::array<int, 8>, 7> kCourses = {{{-28, 96, 96, 80, 74, 96, 82},
                                                         {-64, 96, 88, 96, 80, 88, 96, 88},
                                                         {-22, 96, 88, 74, 96, 88, 80},
                                                         {-70, 96, 96, 88, 74, 96, 88, 80},
                                                         {-28, 96, 96, 80, 74, 96, 82},
                                                         {-64, 96, 88, 96, 80, 88, 96, 88},
                                                         {-22, 96, 88, 74, 96, 88, 80}}};
constexpr std::size_t kPlace = 2; // of the user's brick, in the lowest course

QRectF brick(std::size_t course, std::size_t index) {
    const auto& plan = kCourses.at(course);
    double left = plan[0];
    for (const int length : std::span(plan).subspan(1, index))
        left += length + kGap;
    return {left, kLowest - kPitch * static_cast<double>(course),
            static_cast<double>(plan.at(index + 1)), kHeight};
}

} // namespace

QRectF BrickWall::place() { return brick(0, kPlace); }

void BrickWall::paint(QPainter& painter, double /*scale*/) {
    QPainterPath room;
    room.addRoundedRect(boundingRect(), m_radius, m_radius);
    for (std::size_t course = 0; course < kCourses.size(); ++course) {
        const double share = static_cast<double>(course) / static_cast<double>(kCourses.size() - 1);
        const QColor white =
            colormath::withAlpha(Qt::white, kPlainest + (kFaintest - kPlainest) * share);
        for (std::size_t i = 0; i + 1 < kCourses[course].size() && kCourses[course][i + 1] > 0;
             ++i) {
            if (course == 0 && i == kPlace) continue;
            QPainterPath path;
            path.addRoundedRect(brick(course, i), m_brickRadius, m_brickRadius);
            painter.fillPath(room.contains(path) ? path : path.intersected(room), white);
        }
    }
}

} // namespace vantle

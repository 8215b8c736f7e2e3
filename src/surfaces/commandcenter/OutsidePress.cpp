#include "surfaces/commandcenter/OutsidePress.h"

#include <utility>

namespace vantle {

namespace {

constexpr int kSamePlace = 8;       // px that a pointer moves between press and release
constexpr Seconds kSameMoment{0.6}; // used when positions are unknown

} // namespace

bool OutsidePress::takeClick(QPoint click, Date now) {
    const auto press = std::exchange(m_press, std::nullopt);
    if (!press) return false;
    if (click.isNull()) return now - press->at < kSameMoment;
    return (click - press->place).manhattanLength() <= kSamePlace;
}

} // namespace vantle

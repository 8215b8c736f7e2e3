// The elements of a review page's text and colour.
//
// Plain values and pure functions, any thread.
#pragma once

#include "review/stats/WrappedStats.h"

#include <QColor>
#include <QObject>
#include <QQmlEngine>
#include <QString>
#include <QVariantList>

#include <algorithm>
#include <span>

namespace vantle {

/// A large figure and its small unit, which may be empty.
struct ReviewFigure {
    Q_GADGET
    QML_VALUE_TYPE(reviewFigure)
    Q_PROPERTY(QString value MEMBER value CONSTANT)
    Q_PROPERTY(QString unit MEMBER unit CONSTANT)

public:
    QString value;
    QString unit;

    friend bool operator==(const ReviewFigure&, const ReviewFigure&) = default;
};

namespace cardwords {

/// The colour without a skill, 0xRRGGBB.
inline constexpr std::uint32_t accent = 0x7A78FF;

/// Returns the colour of the skill with the most time, or the accent.
[[nodiscard]] std::uint32_t leadingColor(const WrappedStats& stats);

/// The colour 0xRRGGBB with an opacity of 0 to 1.
[[nodiscard]] QColor withOpacity(std::uint32_t hexRGB, double opacity);

[[nodiscard]] QString sessions(int count); ///< "1 session", "2 sessions"
[[nodiscard]] ReviewFigure figure(double hours, DurationStyle style);

/// Replaces narrow no-break spaces, as in "10 PM", by ordinary ones: negative tracking closes them.
[[nodiscard]] QString withOpenSpaces(QString text);

/// Formats a share of the period's hours: "45%".
[[nodiscard]] QString share(double hours, const WrappedStats& stats);

/// One colour per finished hour of the period, oldest first; the last `limit` of them.
[[nodiscard]] QList<QColor> dotColors(const WrappedStats& stats, std::int64_t limit);
[[nodiscard]] std::int64_t dotCount(const WrappedStats& stats);

/// Returns at most the first `limit` values.
template <typename Value>
[[nodiscard]] std::span<const Value> firstOf(const std::vector<Value>& values, std::size_t room) {
    return std::span(values).first(std::min(room, values.size()));
}

template <typename Value>
[[nodiscard]] QVariantList asList(const std::vector<Value>& values) {
    QVariantList list;
    for (const Value& value : values)
        list << QVariant::fromValue(value);
    return list;
}

} // namespace cardwords
} // namespace vantle

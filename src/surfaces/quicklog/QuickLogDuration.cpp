#include "surfaces/quicklog/QuickLogDuration.h"

#include "base/Words.h"

#include <QStringList>

#include <algorithm>

namespace vantle {

namespace {

/// More than can be logged, and small enough that sums do not overflow.
constexpr std::int64_t kMany = 1'000'000'000;

std::optional<std::int64_t> parse(const QString& field) {
    if (field.isEmpty()) return 0;
    bool isNumber = false;
    const qlonglong value = field.toLongLong(&isNumber, 10);
    if (!isNumber || value < 0) return std::nullopt;
    return std::min<std::int64_t>(value, kMany);
}

std::int64_t sum(std::int64_t hours, std::int64_t minutes) { return hours * 60 + minutes; }

} // namespace

std::optional<std::int64_t> QuickLogDuration::total() const {
    const auto wholeHours = parse(hours);
    const auto wholeMinutes = parse(minutes);
    if (!wholeHours || !wholeMinutes) return std::nullopt;
    return sum(*wholeHours, *wholeMinutes);
}

std::optional<int> QuickLogDuration::validMinutes() const {
    const auto all = total();
    if (!all || *all < minMinutes || *all > maxMinutes) return std::nullopt;
    return static_cast<int>(*all);
}

QuickLogDuration QuickLogDuration::of(std::int64_t total) {
    const std::int64_t kept = std::clamp<std::int64_t>(total, minMinutes, maxMinutes);
    return {QString::number(kept / 60), QString::number(kept % 60)};
}

QuickLogDuration QuickLogDuration::normalized() const {
    const auto all = total();
    return all && *all >= minMinutes ? of(*all) : *this;
}

QString QuickLogDuration::spoken() const {
    const auto all = total();
    if (!all) return {};
    const std::int64_t wholeHours = *all / 60;
    const std::int64_t rest = *all % 60;
    QStringList parts;
    if (wholeHours > 0)
        parts << (wholeHours == 1 ? Words::tr("1 hour")
                                  : Words::tr("%n hours", nullptr, static_cast<int>(wholeHours)));
    if (rest > 0 || wholeHours == 0)
        parts << (rest == 1 ? Words::tr("1 minute")
                            : Words::tr("%n minutes", nullptr, static_cast<int>(rest)));
    return parts.join(u' ');
}

QuickLogDuration QuickLogDuration::stepped(int steps) const {
    return of(sum(parse(hours).value_or(0), parse(minutes).value_or(0)) +
              std::int64_t{steps} * stepMinutes);
}

} // namespace vantle

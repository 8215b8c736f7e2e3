#include "base/Iso8601.h"

#include <cmath>
#include <cstring>

namespace vantle::iso8601 {

namespace {

/// Returns the number in the `count` digits at `at`; -1 when one is not a digit.
int digits(const char* at, int count) {
    int value = 0;
    for (int i = 0; i < count; ++i) {
        const unsigned digit = static_cast<unsigned char>(at[i]) - unsigned{'0'};
        if (digit > 9) return -1;
        value = value * 10 + static_cast<int>(digit);
    }
    return value;
}

/// Returns the start, in seconds since 1970, of the day `YYYY-MM-DD` at `in`; empty when there is
/// no such day.
std::optional<double> startOfDay(const char* in) {
    using namespace std::chrono;
    if (in[4] != '-' || in[7] != '-') return std::nullopt;
    const int y = digits(in, 4);
    const int m = digits(in + 5, 2);
    const int d = digits(in + 8, 2);
    if (y < 1 || m < 1 || d < 1) return std::nullopt;
    const year_month_day ymd{year(y), month(static_cast<unsigned>(m)),
                             day(static_cast<unsigned>(d))};
    if (!ymd.ok()) return std::nullopt;
    return static_cast<double>(sys_days(ymd).time_since_epoch().count()) * 86400.0;
}

void writeDigits(char* at, int count, unsigned value) {
    for (int i = count - 1; i >= 0; --i) {
        at[i] = static_cast<char>('0' + value % 10);
        value /= 10;
    }
}

} // namespace

std::optional<std::array<char, kLength>> format(Date date) {
    using namespace std::chrono;
    constexpr double kFirst = -62135596800.0; // 0001-01-01T00:00:00Z
    constexpr double kEnd = 253402300800.0;   // 10000-01-01T00:00:00Z
    const double epoch = std::floor(epochSeconds(date));
    if (!(epoch >= kFirst && epoch < kEnd)) return std::nullopt;

    const sys_seconds whole{seconds(static_cast<std::int64_t>(epoch))};
    const sys_days day = floor<days>(whole);
    const year_month_day ymd{day};
    const hh_mm_ss<seconds> time{whole - day};

    std::array<char, kLength> text{};
    char* out = text.data();
    writeDigits(out, 4, static_cast<unsigned>(static_cast<int>(ymd.year())));
    out[4] = '-';
    writeDigits(out + 5, 2, static_cast<unsigned>(ymd.month()));
    out[7] = '-';
    writeDigits(out + 8, 2, static_cast<unsigned>(ymd.day()));
    out[10] = 'T';
    writeDigits(out + 11, 2, static_cast<unsigned>(time.hours().count()));
    out[13] = ':';
    writeDigits(out + 14, 2, static_cast<unsigned>(time.minutes().count()));
    out[16] = ':';
    writeDigits(out + 17, 2, static_cast<unsigned>(time.seconds().count()));
    out[19] = 'Z';
    return text;
}

std::optional<Date> parse(std::string_view text) { return Parser().parse(text); }

std::optional<Date> Parser::parse(std::string_view text) {
    if (text.size() != kLength) return std::nullopt;
    const char* in = text.data();
    if (in[10] != 'T' || in[13] != ':' || in[16] != ':' || in[19] != 'Z') return std::nullopt;
    const int h = digits(in + 11, 2);
    const int m = digits(in + 14, 2);
    const int s = digits(in + 17, 2);
    if (h < 0 || h > 23 || m < 0 || m > 59 || s < 0 || s > 59) return std::nullopt;
    if (std::memcmp(in, m_day.data(), kDayLength) != 0) {
        const auto start = startOfDay(in);
        if (!start) return std::nullopt;
        m_startOfDay = *start;
        std::memcpy(m_day.data(), in, kDayLength);
    }
    return dateFromEpoch(m_startOfDay + h * 3600 + m * 60 + s);
}

} // namespace vantle::iso8601

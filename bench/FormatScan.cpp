#include "FormatScan.h"

#include <simdjson.h>

#include <array>
#include <chrono>
#include <cstring>
#include <fcntl.h>
#include <stdexcept>
#include <string_view>
#include <unistd.h>
#include <vector>

namespace vantle::bench {

namespace {

constexpr std::size_t kBlock = 1 << 20;

/// Days since 1970 for each month from 1970 to 2399.
const std::array<int, 430 * 12>& firstDays() {
    static const auto table = [] {
        using namespace std::chrono;
        std::array<int, 430 * 12> days{};
        for (std::size_t i = 0; i < days.size(); ++i)
            days[i] = static_cast<int>(
                sys_days(year(1970 + static_cast<int>(i / 12)) / static_cast<int>(i % 12 + 1) / 1)
                    .time_since_epoch()
                    .count());
        return days;
    }();
    return table;
}

[[noreturn]] void refuse() { throw std::runtime_error("a line is not in canonical form"); }

class Line {
public:
    Line(const char* at, const char* end) : m_at(at), m_end(end) {}

    void skip(std::string_view key) {
        if (m_end - m_at < static_cast<std::ptrdiff_t>(key.size()) ||
            std::memcmp(m_at, key.data(), key.size()) != 0)
            refuse();
        m_at += key.size();
    }
    std::uint64_t number() {
        std::uint64_t value = 0;
        for (; *m_at >= '0' && *m_at <= '9'; ++m_at)
            value = value * 10 + static_cast<std::uint64_t>(*m_at - '0');
        return value;
    }
    std::uint64_t date() {
        const auto two = [this](int at) { return (m_at[at] - '0') * 10 + m_at[at + 1] - '0'; };
        const int month = (two(0) * 100 + two(2) - 1970) * 12 + two(5) - 1;
        if (month < 0 || month >= 430 * 12) refuse();
        const int day = firstDays()[static_cast<std::size_t>(month)] + two(8) - 1;
        m_at += 20;
        return static_cast<std::uint64_t>(day) * 86400 +
               static_cast<std::uint64_t>(two(-9) * 3600 + two(-6) * 60 + two(-3));
    }
    std::uint64_t id() {
        std::uint64_t value = 0;
        for (int i = 0; i < 36; ++i) {
            const auto c = static_cast<unsigned char>(m_at[i]);
            value = value * 16 + (c & 0xF) + (c >> 6) * 9u;
        }
        m_at += 36;
        return value;
    }
    std::string_view text() {
        const auto left = static_cast<std::size_t>(m_end - m_at);
        const char* const quote = static_cast<const char*>(std::memchr(m_at, '"', left));
        if (!quote) refuse();
        const std::string_view found(m_at, static_cast<std::size_t>(quote - m_at));
        m_at = quote;
        return found;
    }

private:
    const char* m_at;
    const char* m_end;
};

std::uint64_t scanLine(Line line, std::vector<QString>& notes) {
    line.skip("{\"activeSeconds\":");
    std::uint64_t sum = line.number();
    line.skip(",\"endedAt\":\"");
    sum += line.date();
    line.skip("\",\"id\":\"");
    sum += line.id();
    line.skip("\",\"note\":\"");
    if (const std::string_view note = line.text(); !note.empty())
        notes.push_back(QString::fromUtf8(note.data(), static_cast<qsizetype>(note.size())));
    line.skip("\",\"skillId\":\"");
    sum += line.text().size();
    line.skip("\",\"source\":\"");
    sum += line.text().size();
    line.skip("\",\"startedAt\":\"");
    sum += line.date();
    line.skip("\"}");
    return sum;
}

} // namespace

std::uint64_t formatScan(const QString& path) {
    const int file = ::open(qPrintable(path), O_RDONLY | O_CLOEXEC);
    std::vector<char> buffer(kBlock);
    std::vector<QString> notes;
    std::uint64_t sum = 0;
    std::size_t filled = 0;
    for (;;) {
        const ssize_t count = ::read(file, buffer.data() + filled, kBlock - filled);
        if (count <= 0) break;
        filled += static_cast<std::size_t>(count);
        const char* const end = buffer.data() + filled;
        const char* at = buffer.data();
        while (const void* const feed = std::memchr(at, '\n', static_cast<std::size_t>(end - at))) {
            sum += scanLine(Line(at, static_cast<const char*>(feed)), notes);
            at = static_cast<const char*>(feed) + 1;
        }
        const auto whole = static_cast<std::size_t>(at - buffer.data());
        if (!simdjson::validate_utf8(buffer.data(), whole)) refuse();
        filled -= whole;
        std::memmove(buffer.data(), at, filled);
    }
    ::close(file);
    return sum + notes.size();
}

} // namespace vantle::bench

// Seconds per day, and per skill within each day. A plain value; one thread at a time.
#pragma once

#include "base/LocalTime.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace vantle {

/// Filled record by record, then closed and read. Cheapest where the days come in order, as a log
/// has them; any order gives the same ledger.
class DayLedger {
public:
    /// Makes room for so many records, which saves copying what is written as it grows. Room that
    /// is never written costs nothing.
    void reserve(std::size_t records);

    /// Skills are numbers from 0 (SkillNumbers). A day of 0 seconds is a day, too.
    void add(localtime::Day day, std::size_t skill, std::int64_t seconds) {
        if (day != m_openDay || m_openShares.empty())
            open(day, skill);
        else if (skill != m_openShares[m_lastShare].skill)
            m_lastShare = shareOf(skill);
        m_openShares[m_lastShare].seconds += seconds;
    }

    struct Share {
        std::size_t skill = 0;
        std::int64_t seconds = 0;
    };

    struct Entry {
        localtime::Day day = 0;
        std::int64_t seconds = 0;
        std::uint32_t firstShare = 0;
        std::uint32_t shareCount = 0;
    };

    /// Call once, after the last record and before reading.
    void close();

    /// One for each day, oldest first.
    [[nodiscard]] const std::vector<Entry>& entries() const { return m_entries; }

    /// The skills of a day; each stands there once, in no order.
    [[nodiscard]] std::span<const Share> shares(const Entry& entry) const {
        return std::span(m_shares).subspan(entry.firstShare, entry.shareCount);
    }

    /// Seconds per skill over all days, by number.
    [[nodiscard]] std::vector<std::int64_t> secondsPerSkill() const;

private:
    void open(localtime::Day day, std::size_t skill);
    void writeDown();
    void mergeDays();
    [[nodiscard]] std::size_t shareOf(std::size_t skill);

    localtime::Day m_openDay = 0;
    std::vector<Share> m_openShares; ///< of the day that is being filled; empty when none is
    std::size_t m_lastShare = 0;     ///< the one that took the last record
    std::vector<Entry> m_entries;
    std::vector<Share> m_shares;
};

} // namespace vantle

// Seconds per day, and per skill within each day.
//
// Plain value, one thread at a time.
#pragma once

#include "base/LocalTime.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace vantle {

/// Filled record by record, then closed and read. Fastest when the days come in order, as in a log;
/// any order gives the same ledger.
class DayLedger {
public:
    /// Reserves room for that many records, to avoid copies while it grows. Unused room is never
    /// touched and costs no memory.
    void reserve(std::size_t records);

    /// Skills are numbers from 0 (SkillNumbers). A record of 0 seconds still makes a day.
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

    /// One entry per day, oldest first.
    [[nodiscard]] const std::vector<Entry>& entries() const { return m_entries; }

    /// The skills of a day, once each, unordered.
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
    std::vector<Share> m_openShares; ///< of the day being filled; empty when there is none
    std::size_t m_lastShare = 0;     ///< the share of the last record
    std::vector<Entry> m_entries;
    std::vector<Share> m_shares;
};

} // namespace vantle

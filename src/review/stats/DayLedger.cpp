#include "review/stats/DayLedger.h"

#include <algorithm>

namespace vantle {

void DayLedger::reserve(std::size_t records) {
    m_entries.reserve(records);
    m_shares.reserve(records);
}

void DayLedger::close() {
    writeDown();
    // Strict comparison: a day that was left and revisited has two entries.
    const auto isNoStep = [](const Entry& left, const Entry& right) {
        return left.day >= right.day;
    };
    if (std::ranges::adjacent_find(m_entries, isNoStep) != m_entries.end()) mergeDays();
}

std::vector<std::int64_t> DayLedger::secondsPerSkill() const {
    std::vector<std::int64_t> seconds;
    for (const Share& share : m_shares) {
        if (share.skill >= seconds.size()) seconds.resize(share.skill + 1, 0);
        seconds[share.skill] += share.seconds;
    }
    return seconds;
}

void DayLedger::open(localtime::Day day, std::size_t skill) {
    writeDown();
    m_openDay = day;
    m_openShares.push_back({skill, 0});
    m_lastShare = 0;
}

void DayLedger::writeDown() {
    if (m_openShares.empty()) return;
    std::int64_t seconds = 0;
    for (const Share& share : m_openShares)
        seconds += share.seconds;
    m_entries.push_back({m_openDay, seconds, static_cast<std::uint32_t>(m_shares.size()),
                         static_cast<std::uint32_t>(m_openShares.size())});
    m_shares.insert(m_shares.end(), m_openShares.begin(), m_openShares.end());
    m_openShares.clear();
}

void DayLedger::mergeDays() {
    std::vector<Entry> apart;
    std::vector<Share> shares;
    apart.swap(m_entries);
    shares.swap(m_shares);
    std::ranges::stable_sort(apart, {}, &Entry::day);
    for (const Entry& entry : apart)
        for (std::size_t i = entry.firstShare; i < entry.firstShare + entry.shareCount; ++i)
            add(entry.day, shares[i].skill, shares[i].seconds);
    writeDown();
}

std::size_t DayLedger::shareOf(std::size_t skill) {
    const auto found = std::ranges::find(m_openShares, skill, &Share::skill);
    if (found == m_openShares.end()) {
        m_openShares.push_back({skill, 0});
        return m_openShares.size() - 1;
    }
    return static_cast<std::size_t>(found - m_openShares.begin());
}

} // namespace vantle

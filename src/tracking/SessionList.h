// A list of records that copies share.
#pragma once

#include "tracking/Session.h"

#include <memory>
#include <utility>
#include <vector>

namespace vantle {

/// Copies in constant time and copies the records only before a change. Each list by itself: one
/// thread at a time.
///
/// Converts to a vector for the functions over records. A reference from that conversion is valid
/// as long as the list, so do not bind one to a temporary list.
class SessionList {
public:
    using value_type = Session;
    using size_type = std::size_t;
    using const_iterator = std::vector<Session>::const_iterator;
    using iterator = const_iterator;
    using const_reference = const Session&;
    using reference = const_reference;

    SessionList() = default;
    // NOLINTNEXTLINE(google-explicit-constructor): a vector of records is a list of them
    SessionList(std::vector<Session> records)
        : m_records(std::make_shared<std::vector<Session>>(std::move(records))) {}

    [[nodiscard]] const std::vector<Session>& records() const {
        static const std::vector<Session> none;
        return m_records ? *m_records : none;
    }
    // NOLINTNEXTLINE(google-explicit-constructor)
    operator const std::vector<Session>&() const { return records(); }

    /// The records, shared with no other list from now on.
    [[nodiscard]] std::vector<Session>& change() {
        if (!m_records)
            m_records = std::make_shared<std::vector<Session>>();
        else if (m_records.use_count() > 1)
            m_records = std::make_shared<std::vector<Session>>(*m_records);
        return *m_records;
    }

    /// Gives the records away; copies them when another list shares them.
    [[nodiscard]] std::vector<Session> take() && { return std::move(change()); }

    [[nodiscard]] const_iterator begin() const { return records().begin(); }
    [[nodiscard]] const_iterator end() const { return records().end(); }
    [[nodiscard]] std::size_t size() const { return records().size(); }
    [[nodiscard]] bool empty() const { return records().empty(); }
    [[nodiscard]] const Session& front() const { return records().front(); }
    [[nodiscard]] const Session& back() const { return records().back(); }
    [[nodiscard]] const Session& operator[](std::size_t i) const { return records()[i]; }

    /// Whether both share the same records, which saves comparing them.
    [[nodiscard]] bool isSharedWith(const SessionList& other) const {
        return m_records == other.m_records;
    }

    friend bool operator==(const SessionList& left, const SessionList& right) {
        return left.isSharedWith(right) || left.records() == right.records();
    }

private:
    std::shared_ptr<std::vector<Session>> m_records;
};

} // namespace vantle

// The numbering of skills during a walk over records.
//
// Sums per skill then fit in plain vectors.
#pragma once

#include <QHash>
#include <QString>

#include <array>
#include <cstddef>
#include <vector>

namespace vantle {

/// Numbers skill ids from 0 in order of appearance. The records must outlive it unchanged. Compares
/// data pointers first: equal pointers mean equal ids, since records of a log share their texts.
/// One thread at a time.
class SkillNumbers {
public:
    [[nodiscard]] std::size_t of(const QString& skillId) {
        const Seen& seen = m_seen[slotOf(skillId)];
        if (seen.text == skillId.constData() && seen.length == skillId.size()) return seen.number;
        return lookUp(skillId);
    }

    [[nodiscard]] std::size_t count() const { return m_ids.size(); }
    [[nodiscard]] const QString& idOf(std::size_t number) const { return m_ids[number]; }

private:
    struct Seen {
        const QChar* text = nullptr;
        qsizetype length = -1;
        std::size_t number = 0;
    };
    static constexpr std::size_t kSlots = 64;

    /// Allocated texts are at least 16 bytes apart.
    [[nodiscard]] static std::size_t slotOf(const QString& skillId) {
        return (reinterpret_cast<std::size_t>(skillId.constData()) / 16) % kSlots;
    }

    std::size_t lookUp(const QString& skillId);

    std::array<Seen, kSlots> m_seen{};
    QHash<QString, std::size_t> m_numbers;
    std::vector<QString> m_ids;
};

} // namespace vantle

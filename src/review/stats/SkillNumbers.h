// Numbers for the skills of a walk over records, so that sums per skill stand in plain lists.
#pragma once

#include <QHash>
#include <QString>

#include <array>
#include <cstddef>
#include <vector>

namespace vantle {

/// Gives each skill id the next number at its first sight, from 0. The records must outlive it,
/// unchanged: those of a log share their texts, and a text that stands where one stood before is
/// the same text. One thread at a time.
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

    /// Texts lie 16 bytes apart or more.
    [[nodiscard]] static std::size_t slotOf(const QString& skillId) {
        return (reinterpret_cast<std::size_t>(skillId.constData()) / 16) % kSlots;
    }

    std::size_t lookUp(const QString& skillId);

    std::array<Seen, kSlots> m_seen{};
    QHash<QString, std::size_t> m_numbers;
    std::vector<QString> m_ids;
};

} // namespace vantle

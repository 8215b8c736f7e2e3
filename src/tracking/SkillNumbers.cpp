#include "tracking/SkillNumbers.h"

namespace vantle {

std::size_t SkillNumbers::lookUp(const QString& skillId) {
    const auto known = m_numbers.constFind(skillId);
    const std::size_t number = known != m_numbers.cend() ? *known : m_ids.size();
    if (known == m_numbers.cend()) {
        m_numbers.insert(skillId, number);
        m_ids.push_back(skillId);
    }
    m_seen[slotOf(skillId)] = {skillId.constData(), skillId.size(), number};
    return number;
}

} // namespace vantle

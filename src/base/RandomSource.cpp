#include "base/RandomSource.h"

#include <QRandomGenerator>

#include <unistd.h>

namespace vantle {

double SystemRandom::uniform() {
    if (m_taken == m_pool.size()) refill();
    constexpr double kUnit = 0x1p-53;
    return static_cast<double>(m_pool[m_taken++] >> 11) * kUnit;
}

void SystemRandom::refill() {
    m_taken = 0;
    static_assert(sizeof(m_pool) <= 256, "the kernel gives no more at once");
    if (getentropy(m_pool.data(), sizeof(m_pool)) == 0) return;
    // The kernel lacks getrandom().
    QRandomGenerator::system()->fillRange(m_pool.data(), static_cast<qsizetype>(m_pool.size()));
}

} // namespace vantle

// How long the lab works: a short run with the other tests, or for as long as it is told.
#pragma once

#include <QDateTime>
#include <QDeadlineTimer>

#include <gtest/gtest.h>

#include <iostream>

namespace vantle::tests {

/// One experiment. `VANTLE_LAB_SECONDS` makes it run that long; `VANTLE_LAB_SEED` repeats one life.
class Effort {
public:
    explicit Effort(const char* experiment) : m_experiment(experiment) {
        std::cout << experiment << ": first seed " << m_seed << std::endl;
    }

    /// The seed of the next life.
    [[nodiscard]] std::uint32_t nextSeed() { return m_seed + m_lives++; }
    [[nodiscard]] std::uint32_t lives() const { return m_lives; }

    /// Whether there is time for another one; a short run has time for `few`.
    [[nodiscard]] bool goesOn(std::uint32_t few) const {
        if (isOneLife()) return m_lives < 1;
        return isLong() ? !m_end.hasExpired() : m_lives < few;
    }
    [[nodiscard]] static bool isLong() { return qEnvironmentVariableIsSet("VANTLE_LAB_SECONDS"); }
    [[nodiscard]] static bool isOneLife() { return qEnvironmentVariableIsSet("VANTLE_LAB_SEED"); }

    /// Says how much was done, in the form that `./prove` reads.
    void tell(const QByteArray& what, qint64 count) const {
        std::cout << "lab: " << m_experiment << ": " << what.constData() << ": " << count
                  << std::endl;
    }

private:
    [[nodiscard]] static std::uint32_t firstSeed() {
        if (isOneLife()) return qgetenv("VANTLE_LAB_SEED").toUInt();
        // A short run plays the same lives each time: it tests a change, not the luck of a day.
        return isLong() ? std::uint32_t(QDateTime::currentMSecsSinceEpoch() / 100) : 1;
    }

    const char* m_experiment;
    const std::uint32_t m_seed = firstSeed();
    std::uint32_t m_lives = 0;
    const QDeadlineTimer m_end{1000 * qEnvironmentVariableIntValue("VANTLE_LAB_SECONDS")};
};

} // namespace vantle::tests

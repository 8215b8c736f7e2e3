// The idle counter with calls counted as input.
#pragma once

#include "base/Clock.h"
#include "platform/IdleSource.h"

#include <optional>

namespace vantle {

class IdleInhibition;
class Preferences;

/// Reads 0 while an application keeps the desktop awake, for `longest` in a row; from then on the
/// time since, where that is shorter than the time without input. An application may forget to
/// let the desktop sleep again, and no call lasts all night.
///
/// Off unless `settings::callsCount` says otherwise: then it reads what the source reads, and
/// no service is asked about calls. Main thread.
class CallPresence final : public IdleSource {
    Q_OBJECT

public:
    static constexpr Seconds longest{4 * 3600.0};
    /// A shorter pause between two calls does not end a row of them: a list of videos is played
    /// with a moment between two.
    static constexpr Seconds pauseThatEndsRow{60.0};

    /// All must outlive this.
    CallPresence(const Clock& clock, const Preferences& preferences, IdleSource& source,
                 IdleInhibition& inhibition);

    [[nodiscard]] std::optional<double> secondsSinceLastInput() override;
    [[nodiscard]] std::optional<double> secondsSinceKeyOrPointer() override {
        return m_source.secondsSinceKeyOrPointer();
    }
    [[nodiscard]] bool canTell() const override { return m_source.canTell(); }
    [[nodiscard]] std::optional<bool> isInhibited() const override {
        return m_source.isInhibited();
    }

private:
    /// Calls without a pause between them, by uptime.
    struct Row {
        Seconds began;
        Seconds heldUntil;
    };

    void follow();
    void noteChange();
    void look(Seconds now);

    const Clock& m_clock;
    const Preferences& m_preferences;
    IdleSource& m_source;
    IdleInhibition& m_inhibition;
    bool m_counts = false; ///< the preference
    bool m_isHeld = false; ///< when last looked
    std::optional<Row> m_row;
};

} // namespace vantle

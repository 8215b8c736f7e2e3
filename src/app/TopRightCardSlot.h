// Only one small card may hold the corner of the screen at a time; here they ask for it.
#pragma once

#include <functional>
#include <optional>

namespace vantle {

/// The arbiter between cards. Owns no window: it only tells cards when to show and when to go.
/// Made once by the composition root. Main thread.
class TopRightCardSlot {
public:
    /// In order of priority: a later kind takes the corner from an earlier one.
    enum class Kind { Prompt = 0, Recovery = 1, Summary = 2 };

    /// An owner is known by its address; it must call `release` before it goes.
    using Owner = const void*;

    /// True when the caller may show its card now. `evict` takes that card down at once when a more
    /// important one comes. False when the corner is held by a card that is as important; of
    /// those refused only a recovery notice waits, and `represent` shows it again later.
    bool request(Owner owner, Kind kind, std::function<void()> evict,
                 std::function<void()> represent);

    /// Takes the corner for the summary of a session, which nothing outranks and nothing refuses.
    void takeForSummary(Owner owner, std::function<void()> evict);

    /// Gives the corner back, and shows the waiting notice if there is one. Nothing unless the
    /// owner holds it.
    void release(Owner owner);

    struct Holder {
        Owner owner = nullptr;
        Kind kind = Kind::Prompt;
        std::function<void()> evict;
        std::function<void()> represent;
    };
    [[nodiscard]] const std::optional<Holder>& holder() const { return m_holder; }
    [[nodiscard]] bool hasQueued() const { return static_cast<bool>(m_queued); }

private:
    void evictHolder();

    std::optional<Holder> m_holder;
    std::function<void()> m_queued; ///< the one waiting card's way to show itself again
};

} // namespace vantle

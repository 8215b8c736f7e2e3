// The arbiter of the top right corner, which holds one card.
#pragma once

#include <functional>
#include <optional>

namespace vantle {

/// Owns no window: it tells cards when to show and when to leave. One object, made by the launch
/// code. Main thread.
class TopRightCardSlot {
public:
    /// In order of priority: a later kind takes the corner from an earlier one.
    enum class Kind { Prompt = 0, Recovery = 1, Summary = 2 };

    /// An owner is known by its address; it must call `release` before its end.
    using Owner = const void*;

    /// Requests the corner. Returns true when the caller may show its card now. `evict` must remove
    /// that card at once when a more important one comes. Returns false when an equally important
    /// card holds the corner; only a refused recovery notice waits, and `represent` shows it later.
    bool request(Owner owner, Kind kind, std::function<void()> evict,
                 std::function<void()> represent);

    /// Takes the corner for the summary of a session, which outranks every other card.
    void takeForSummary(Owner owner, std::function<void()> evict);

    /// Releases the corner and shows the waiting notice, if any. Requires that `owner` holds it,
    /// else has no effect.
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
    std::function<void()> m_queued; ///< shows the waiting notice
};

} // namespace vantle

// The state of an open review: period, page, sharing.
#pragma once

#include "review/WrappedCards.h"
#include "tracking/SessionList.h"

namespace vantle {

class Preferences;

/// Shares the records of the log. Has no clock: the caller passes the current settings. Plain
/// value, one thread at a time.
class WrappedReview {
public:
    using Sessions = SessionList;

    /// The window opened. The first call also sets the period: `initial`, else this week, or last
    /// week when only that has sessions.
    void open(Sessions log, const WrappedSettings& settings, std::optional<WrappedPeriod> initial);

    /// The log changed. Keeps the page index where possible.
    void reload(Sessions log, const WrappedSettings& settings);

    /// Selects a period and keeps the page index where possible. Returns false when it is shown
    /// already.
    bool pick(WrappedPeriod period, const WrappedSettings& settings);

    /// Turns one page back (-1) or on (+1). Returns false at either end.
    bool turn(int by);

    /// The narrative for `asked` arrived. Ignored when another period is shown. The shown page
    /// stays; the narrative's page appears before or after it.
    void narrativeArrived(WrappedPeriod asked, std::optional<QString> text);
    void clearNarrative();

    void setCopied(bool copied);
    void setShareFeedback(std::optional<QString> feedback) { m_feedback = std::move(feedback); }

    [[nodiscard]] const WrappedStats& stats() const { return m_stats; }
    [[nodiscard]] const WrappedSettings& settings() const { return m_settings; }
    [[nodiscard]] bool isLogEmpty() const { return m_log.empty(); }
    [[nodiscard]] WrappedPeriod period() const { return m_period; }
    [[nodiscard]] int page() const { return m_page; }
    /// The direction of the last turn: +1.0 or -1.0.
    [[nodiscard]] double pageDirection() const { return m_direction; }
    /// Identifies a page together with its period.
    [[nodiscard]] QString pageKey() const;
    [[nodiscard]] std::vector<WrappedCard> cards() const;
    [[nodiscard]] bool isOpeningSettled() const { return m_isSettled; }

    /// The last text and its period; it is shown for that period only.
    [[nodiscard]] const std::optional<QString>& narrative() const { return m_narrative; }
    [[nodiscard]] std::optional<WrappedPeriod> narrativePeriod() const { return m_narrated; }

    [[nodiscard]] bool isCopied() const { return m_isCopied; }
    /// Why sharing the poster failed; empty when it did not.
    [[nodiscard]] const std::optional<QString>& shareFeedback() const { return m_feedback; }

private:
    void recompute(const WrappedSettings& settings);
    /// For a review that opened on this week: shows last week when only that has sessions.
    void fallBackToLastWeek();
    void clampPage();
    void keepCard(std::optional<WrappedCard> card);
    [[nodiscard]] std::optional<WrappedCard> card() const; ///< empty without pages

    Sessions m_log;
    WrappedSettings m_settings;
    WrappedStats m_stats;
    WrappedPeriod m_period = WrappedPeriod::Week;
    int m_page = 0;
    double m_direction = 1;
    bool m_isSettled = false;
    bool m_isCopied = false;
    std::optional<QString> m_feedback;
    std::optional<QString> m_narrative;
    std::optional<WrappedPeriod> m_narrated;
};

namespace wrappedreview {

/// The input for a narrative.
struct NarrativeQuestion {
    QString hoursSummary;
    std::optional<QString> topSkill;
    QStringList notes; ///< newest first
    friend bool operator==(const NarrativeQuestion&, const NarrativeQuestion&) = default;
};

/// Empty for a period without notes.
[[nodiscard]] std::optional<NarrativeQuestion> narrativeQuestion(const WrappedStats& stats,
                                                                 DurationStyle style);

/// Records that last week's review was opened, so that no reminder comes. Has no effect when the
/// calendar has no last week. Main thread.
void markLastWeekSeen(Date now, const Calendar& calendar, Preferences& preferences);

} // namespace wrappedreview
} // namespace vantle

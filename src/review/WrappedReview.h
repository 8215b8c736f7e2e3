// Where somebody is in a review: the period, the page, and what was said about sharing it.
#pragma once

#include "review/WrappedCards.h"

namespace vantle {

class Preferences;

/// The state of an open review over a copy of the log. Knows no time of its own: whoever calls
/// brings the settings of the moment. A plain value; one thread at a time.
class WrappedReview {
public:
    using Sessions = std::vector<Session>;

    /// The window has come up. The first time this also settles the period: `initial`, or else this
    /// week, or last week where this one is still empty and that one is not.
    void open(Sessions log, const WrappedSettings& settings, std::optional<WrappedPeriod> initial);

    /// The log has changed. The page stays, as far as there are as many.
    void reload(Sessions log, const WrappedSettings& settings);

    /// The picker. The page stays, as far as there are as many. False for the period that is shown.
    bool pick(WrappedPeriod period, const WrappedSettings& settings);

    /// One page back (-1) or on (+1). False at the end, where nothing changes.
    bool turn(int by);

    /// What became of a question about the notes of `asked`. Dropped when another period is shown.
    /// The page comes and goes around the one that is shown, which stays.
    void narrativeArrived(WrappedPeriod asked, std::optional<QString> text);
    void clearNarrative();

    void setCopied(bool copied);
    void setShareFeedback(std::optional<QString> feedback) { m_feedback = std::move(feedback); }

    [[nodiscard]] const WrappedStats& stats() const { return m_stats; }
    [[nodiscard]] const WrappedSettings& settings() const { return m_settings; }
    [[nodiscard]] bool isLogEmpty() const { return m_log.empty(); }
    [[nodiscard]] WrappedPeriod period() const { return m_period; }
    [[nodiscard]] int page() const { return m_page; }
    /// The sign of the last turn: +1.0 or -1.0.
    [[nodiscard]] double pageDirection() const { return m_direction; }
    /// Tells pages apart: a page of another period is another page.
    [[nodiscard]] QString pageKey() const;
    [[nodiscard]] std::vector<WrappedCard> cards() const;
    [[nodiscard]] bool isOpeningSettled() const { return m_isSettled; }

    /// The last text, and the period that it is about; a text is shown under that one alone.
    [[nodiscard]] const std::optional<QString>& narrative() const { return m_narrative; }
    [[nodiscard]] std::optional<WrappedPeriod> narrativePeriod() const { return m_narrated; }

    [[nodiscard]] bool isCopied() const { return m_isCopied; }
    /// Why the poster could not be shared; none when nothing went wrong.
    [[nodiscard]] const std::optional<QString>& shareFeedback() const { return m_feedback; }

private:
    void recompute(const WrappedSettings& settings);
    void settle(std::optional<WrappedPeriod> initial);
    void clampPage();
    void keepCard(std::optional<WrappedCard> card);
    [[nodiscard]] std::optional<WrappedCard> card() const; ///< none without pages

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

/// What a narrative is asked of.
struct NarrativeQuestion {
    QString hoursSummary;
    std::optional<QString> topSkill;
    QStringList notes; ///< newest first
    friend bool operator==(const NarrativeQuestion&, const NarrativeQuestion&) = default;
};

/// None of a period without notes.
[[nodiscard]] std::optional<NarrativeQuestion> narrativeQuestion(const WrappedStats& stats,
                                                                 DurationStyle style);

/// Notes that the review of last week was opened, so that nobody is reminded of it again. Nothing
/// where the calendar knows no last week. Main thread.
void markLastWeekSeen(Date now, const Calendar& calendar, Preferences& preferences);

} // namespace wrappedreview
} // namespace vantle

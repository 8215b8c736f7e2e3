#include "review/WrappedReview.h"

#include "app/WeeklyReview.h"
#include "platform/Preferences.h"
#include "tracking/DashFormat.h"
#include "tracking/Settings.h"

#include <algorithm>
#include <utility>

namespace vantle {

void WrappedReview::open(Sessions log, const WrappedSettings& settings,
                         std::optional<WrappedPeriod> initial) {
    const bool isFirst = !std::exchange(m_isSettled, true);
    if (isFirst && initial) m_period = *initial;
    reload(std::move(log), settings);
    if (!isFirst) return;
    if (!initial) fallBackToLastWeek();
    m_page = 0;
}

void WrappedReview::fallBackToLastWeek() {
    if (m_stats.sessionCount > 0) return;
    auto lastWeek = WrappedStats::compute(m_log, WrappedPeriod::LastWeek, m_settings);
    if (lastWeek.sessionCount < 1) return;
    m_period = WrappedPeriod::LastWeek;
    m_stats = std::move(lastWeek);
}

void WrappedReview::reload(Sessions log, const WrappedSettings& settings) {
    m_log = std::move(log);
    recompute(settings);
}

bool WrappedReview::pick(WrappedPeriod period, const WrappedSettings& settings) {
    if (period == m_period) return false;
    m_direction = 1;
    m_period = period;
    m_isCopied = false;
    m_feedback.reset();
    recompute(settings);
    return true;
}

void WrappedReview::recompute(const WrappedSettings& settings) {
    m_settings = settings;
    m_stats = WrappedStats::compute(m_log, m_period, m_settings);
    clampPage();
}

void WrappedReview::clampPage() {
    const int last = static_cast<int>(cards().size()) - 1;
    m_page = std::clamp(m_page, 0, std::max(last, 0));
}

bool WrappedReview::turn(int by) {
    const int page = m_page + by;
    if (page < 0 || page >= static_cast<int>(cards().size())) return false;
    m_direction = by;
    m_page = page;
    return true;
}

void WrappedReview::narrativeArrived(WrappedPeriod asked, std::optional<QString> text) {
    if (asked != m_period) return;
    const auto shown = card();
    m_narrated = text ? std::optional(asked) : std::nullopt;
    m_narrative = std::move(text);
    keepCard(shown);
}

void WrappedReview::clearNarrative() {
    const auto shown = card();
    m_narrative.reset();
    m_narrated.reset();
    keepCard(shown);
}

std::optional<WrappedCard> WrappedReview::card() const {
    const auto all = cards();
    if (m_page >= static_cast<int>(all.size())) return std::nullopt;
    return all[static_cast<std::size_t>(m_page)];
}

void WrappedReview::keepCard(std::optional<WrappedCard> card) {
    const auto all = cards();
    const auto place = std::ranges::find(all, card);
    if (place != all.end()) m_page = static_cast<int>(place - all.begin());
    clampPage();
}

void WrappedReview::setCopied(bool copied) {
    m_isCopied = copied;
    if (copied) m_feedback.reset();
}

QString WrappedReview::pageKey() const {
    return QStringLiteral("%1-%2").arg(wrappedperiod::id(m_period)).arg(m_page);
}

std::vector<WrappedCard> WrappedReview::cards() const {
    const bool isNarrated = m_narrative && m_narrated == m_period;
    return wrappedcards::cards(wrappedcards::facts(m_stats, isNarrated));
}

namespace wrappedreview {

std::optional<NarrativeQuestion> narrativeQuestion(const WrappedStats& stats, DurationStyle style) {
    if (!stats.noteDigest) return std::nullopt;
    const auto top = stats.topSkill();
    return NarrativeQuestion{dashformat::inlineHours(stats.totalHours, style),
                             top ? std::optional(top->name) : std::nullopt,
                             stats.noteDigest->allNotes};
}

void markLastWeekSeen(Date now, const Calendar& calendar, Preferences& preferences) {
    if (const auto week = weeklyreview::lastWeekInterval(now, calendar))
        settings::reviewSeen.write(preferences, weeklyreview::weekOf(week->start, calendar), true);
}

} // namespace wrappedreview
} // namespace vantle

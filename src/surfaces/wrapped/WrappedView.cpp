#include "surfaces/wrapped/WrappedView.h"

#include "base/Clock.h"
#include "base/Words.h"
#include "platform/LanguageModel.h"
#include "platform/Preferences.h"
#include "review/WrappedMotion.h"
#include "tracking/NotificationCenter.h"
#include "tracking/Settings.h"

#include <QPointer>

#include <algorithm>
#include <utility>

namespace vantle {

WrappedView::WrappedView(Environment environment)
    : m_env(std::move(environment))
    , m_narrator(m_env.model, m_env.scheduler) {
    connect(&m_env.notifications, &NotificationCenter::HFSessionsChanged, this,
            &WrappedView::reload);
    settings::dailyGoalHours.watch(m_env.preferences, this, [this] { reload(); });
    open();
}

WrappedView::~WrappedView() = default;

WrappedSettings WrappedView::settings() const {
    return {m_env.clock.now(), m_env.calendar(), m_env.skills(),
            settings::durationStyle.read(m_env.preferences),
            settings::dailyGoalHours.read(m_env.preferences)};
}

void WrappedView::open() {
    const WrappedSettings now = settings();
    m_review.open(m_env.allSessions(), now, m_env.initialPeriod);
    wrappedreview::markLastWeekSeen(now.now, now.calendar, m_env.preferences);
    showReview();
}

void WrappedView::reload() {
    m_review.reload(m_env.allSessions(), settings());
    showReview();
}

void WrappedView::showReview() {
    const WrappedStats& stats = m_review.stats();
    const WrappedSettings& now = m_review.settings();
    m_texts.hero = reviewcards::hero(stats, now);
    m_texts.skills = reviewcards::skills(stats, now, skillsShown)
                         .value_or(reviewcards::skillsWithoutTime(stats, now));
    m_texts.persona = reviewcards::persona(stats);
    m_texts.when = reviewcards::when(stats, now).value_or(WhenCard());
    m_texts.highPoints = reviewcards::highPoints(stats);
    m_texts.milestones = reviewcards::milestones(stats, now).value_or(MilestonesCard());
    m_texts.notes = reviewcards::notes(stats, now, highlightsShown).value_or(NotesCard());
    m_texts.summary = reviewcards::summary(stats, now);
    m_texts.poster = reviewcards::poster(stats, now);
    const auto empty = wrappedcards::emptyCard(m_review.period(), m_review.isLogEmpty());
    m_texts.emptyTitle = empty.title;
    m_texts.emptyText = empty.text;
    showSegments();
    Q_EMIT reviewChanged();
    showRhythm();
    showCards();
    synthesizeNarrative();
}

void WrappedView::showRhythm() {
    m_texts.rhythm =
        reviewcards::rhythm(m_review.stats(), m_review.settings(), m_chosenYear, m_wallCapacity);
    Q_EMIT rhythmChanged();
}

void WrappedView::showCards() {
    m_cards.clear();
    for (const WrappedCard card : m_review.cards())
        m_cards << wrappedcards::id(card);
    m_texts.narrative =
        reviewcards::narrative(m_review.period(), m_review.narrative().value_or(QString()));
    Q_EMIT cardsChanged();
    Q_EMIT pageChanged();
}

void WrappedView::showSegments() {
    QStringList labels;
    for (const WrappedPeriod period : wrappedcards::segments(m_review.period()))
        labels << wrappedperiod::pickerLabel(period);
    // A picker recreates its segments for each list, even an equal one.
    if (labels == m_segments) return;
    m_segments = labels;
    Q_EMIT segmentsChanged();
}

int WrappedView::segmentIndex() const {
    const auto segments = wrappedcards::segments(m_review.period());
    return static_cast<int>(std::ranges::find(segments, m_review.period()) - segments.begin());
}

void WrappedView::pickSegment(int index) {
    const auto segments = wrappedcards::segments(m_review.period());
    if (index < 0 || index >= static_cast<int>(segments.size())) return;
    if (!m_review.pick(segments[static_cast<std::size_t>(index)], settings())) return;
    m_chosenYear.reset();
    m_copiedEnds = {};
    showReview();
    Q_EMIT shareChanged();
}

void WrappedView::turn(int by) {
    if (!m_review.turn(by)) return;
    if (std::exchange(m_chosenYear, std::nullopt)) showRhythm();
    Q_EMIT pageChanged();
}

void WrappedView::showYear(int year) {
    m_chosenYear = year;
    showRhythm();
}

void WrappedView::setWallCapacity(int capacity) {
    if (capacity == m_wallCapacity) return;
    m_wallCapacity = capacity;
    showRhythm();
}

QString WrappedView::enterText() const {
    return m_tracking ? Words::tr("Stop Vantle") : Words::tr("Enter Vantle");
}

void WrappedView::setTracking(bool tracking) {
    if (std::exchange(m_tracking, tracking) != tracking) Q_EMIT trackingChanged();
}

void WrappedView::enterVantle() {
    if (m_env.enterVantle) m_env.enterVantle();
}

ReviewFigure WrappedView::countedUp(double seconds) const {
    return cardwords::figure(wrappedmotion::countUp(m_review.stats().totalHours, seconds),
                             m_review.settings().durationStyle);
}

void WrappedView::synthesizeNarrative() {
    const auto question =
        wrappedreview::narrativeQuestion(m_review.stats(), m_review.settings().durationStyle);
    if (!question || !m_narrator.isAvailable()) {
        m_request.reset();
        m_asked.reset();
        m_review.clearNarrative();
        showCards();
        return;
    }
    const Asked asked{m_review.period(), *question};
    if (m_asked == asked) return;
    m_asked = asked;
    // Replacing the request cancels the previous one, so no late answer arrives.
    m_request = m_narrator.weekly(question->hoursSummary, question->topSkill, question->notes,
                                  [this, period = asked.period](std::optional<QString> text) {
                                      m_review.narrativeArrived(period, std::move(text));
                                      showCards();
                                  });
}

std::optional<QByteArray> WrappedView::renderedPoster() {
    auto png = m_env.renderPng(m_texts.poster);
    if (!png) setShareFeedback(Words::tr("Couldn't render the image"));
    return png;
}

void WrappedView::copyImage() {
    const auto png = renderedPoster();
    if (!png) return;
    m_env.copyPng(*png);
    setCopied(true);
    m_copiedEnds =
        m_env.scheduler.scheduleOnce(Seconds(copiedSeconds), [this] { setCopied(false); });
}

void WrappedView::saveImage() {
    const auto png = renderedPoster();
    if (!png) return;
    m_env.savePng(*png, m_texts.summary.fileName, [view = QPointer(this)](Saved saved) {
        if (!view || saved == Saved::Cancelled) return;
        view->setShareFeedback(
            saved == Saved::Written
                ? std::nullopt
                : std::optional(Words::tr("Couldn't save there. Try a different folder.")));
    });
}

QString WrappedView::copyText() const {
    return copied() ? Words::tr("Copied") : Words::tr("Copy image");
}

QString WrappedView::shareFeedback() const { return m_review.shareFeedback().value_or(QString()); }

void WrappedView::setCopied(bool copied) {
    m_review.setCopied(copied);
    Q_EMIT shareChanged();
}

void WrappedView::setShareFeedback(std::optional<QString> feedback) {
    m_review.setShareFeedback(std::move(feedback));
    Q_EMIT shareChanged();
}

} // namespace vantle

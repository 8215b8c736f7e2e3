// The review: its pages in order, its state from event to event, and how its pages move.
#include "fakes/MemoryPreferences.h"
#include "review/WrappedReview.h"
#include "vectors/NeutralRecords.h"
#include "vectors/ReviewMotionJson.h"
#include "vectors/ReviewTextsJson.h"
#include "vectors/StatsJson.h"
#include "vectors/forms.h"

namespace vantle::vectors {

namespace {

std::optional<WrappedPeriod> periodFromJson(const QJsonValue& value) {
    return wrappedperiod::fromId(value.toString());
}

std::optional<QString> textFromJson(const QJsonValue& value) {
    return value.isString() ? std::optional(value.toString()) : std::nullopt;
}

QJsonArray idsOf(const std::vector<WrappedCard>& cards) {
    QJsonArray ids;
    for (const WrappedCard card : cards)
        ids << wrappedcards::id(card);
    return ids;
}

QJsonValue cards(const QJsonObject& input) {
    wrappedcards::Facts facts;
    facts.period = periodFromJson(input[QLatin1String("period")]).value();
    facts.sessionCount = input[QLatin1String("sessionCount")].toInt();
    facts.hasStartRhythm = input[QLatin1String("hasStartRhythm")].toBool();
    facts.superlativeCount =
        static_cast<std::size_t>(input[QLatin1String("superlativeCount")].toInt());
    facts.goalHitDays = input[QLatin1String("goalHitDays")].toInt();
    facts.milestoneCount = static_cast<std::size_t>(input[QLatin1String("milestoneCount")].toInt());
    facts.hasNarrative = input[QLatin1String("narrative")].isString() &&
                         periodFromJson(input[QLatin1String("narrativePeriod")]) == facts.period;
    facts.hasNoteDigest = input[QLatin1String("hasNoteDigest")].toBool();
    return idsOf(wrappedcards::cards(facts));
}

QJsonValue emptyCard(const QJsonObject& input) {
    const auto card =
        wrappedcards::emptyCard(periodFromJson(input[QLatin1String("period")]).value(),
                                input[QLatin1String("logEmpty")].toBool());
    return QJsonArray{card.title, card.text};
}

QJsonValue picker(const QJsonObject& input) {
    QJsonArray segments;
    for (const auto period :
         wrappedcards::segments(periodFromJson(input[QLatin1String("period")]).value()))
        segments << QJsonArray{wrappedperiod::id(period), wrappedperiod::pickerLabel(period)};
    return segments;
}

QJsonValue periodTable(const QJsonObject& input) {
    const auto period = periodFromJson(input[QLatin1String("period")]).value();
    return QJsonObject{{QStringLiteral("label"), wrappedperiod::label(period)},
                       {QStringLiteral("pickerLabel"), wrappedperiod::pickerLabel(period)},
                       {QStringLiteral("inSentence"), wrappedperiod::inSentence(period)},
                       {QStringLiteral("fileSuffix"), wrappedperiod::fileSuffix(period)},
                       {QStringLiteral("summaryTitle"), wrappedperiod::summaryTitle(period)}};
}

/// A review as events find it.
class ReviewWorld {
public:
    explicit ReviewWorld(const QJsonObject& input)
        : m_settings(reviewSettingsFromJson(input))
        , m_log(sessionsFromJson(input[QLatin1String("sessions")]))
        , m_initial(periodFromJson(input[QLatin1String("initialPeriod")])) {}

    QJsonObject after(const QJsonObject& event) {
        const QString op = event[QLatin1String("op")].toString();
        QJsonObject extra;
        if (op == QLatin1String("open"))
            open();
        else if (op == QLatin1String("reload"))
            reload(event);
        else if (op == QLatin1String("pick"))
            m_review.pick(periodFromJson(event[QLatin1String("period")]).value(), m_settings);
        else if (op == QLatin1String("turn"))
            m_review.turn(event[QLatin1String("by")].toInt());
        else if (op == QLatin1String("goto"))
            turnTo(event[QLatin1String("page")].toInt());
        else if (op == QLatin1String("narrativeBegin"))
            extra = beginNarrative(event[QLatin1String("available")].toBool());
        else if (op == QLatin1String("narrativeArrives"))
            m_review.narrativeArrived(periodFromJson(event[QLatin1String("remembered")]).value(),
                                      textFromJson(event[QLatin1String("text")]));
        else
            extra[QLatin1String("unknown to the driver")] = op;
        QJsonObject step = state();
        for (auto it = extra.begin(); it != extra.end(); ++it)
            step[it.key()] = it.value();
        return step;
    }

private:
    void open() {
        m_review.open(m_log, m_settings, m_initial);
        wrappedreview::markLastWeekSeen(m_settings.now, m_settings.calendar, m_preferences);
    }

    void reload(const QJsonObject& event) {
        if (event.contains(QLatin1String("sessions")))
            m_log = sessionsFromJson(event[QLatin1String("sessions")]);
        m_review.reload(m_log, m_settings);
    }

    void turnTo(int page) {
        while (m_review.page() != page && m_review.turn(m_review.page() < page ? 1 : -1))
            ;
    }

    QJsonObject beginNarrative(bool isAvailable) {
        const auto question =
            wrappedreview::narrativeQuestion(m_review.stats(), m_settings.durationStyle);
        if (!isAvailable || !question) {
            m_review.clearNarrative();
            return {};
        }
        return {
            {QStringLiteral("weeklyArguments"),
             QJsonObject{{QStringLiteral("hoursSummary"), question->hoursSummary},
                         {QStringLiteral("topSkill"), toJson(question->topSkill)},
                         {QStringLiteral("notes"), QJsonArray::fromStringList(question->notes)}}}};
    }

    QJsonObject state() const {
        QJsonArray segments;
        for (const auto period : wrappedcards::segments(m_review.period()))
            segments << wrappedperiod::id(period);
        const auto narrated = m_review.narrativePeriod();
        return {{QStringLiteral("period"), wrappedperiod::id(m_review.period())},
                {QStringLiteral("page"), m_review.page()},
                {QStringLiteral("pageDirection"), m_review.pageDirection()},
                {QStringLiteral("cards"), idsOf(m_review.cards())},
                {QStringLiteral("picked"), m_review.isOpeningSettled()},
                {QStringLiteral("seenKeys"), QJsonArray::fromStringList(m_preferences.keys())},
                {QStringLiteral("narrative"), toJson(m_review.narrative())},
                {QStringLiteral("narrativePeriod"),
                 narrated ? QJsonValue(wrappedperiod::id(*narrated)) : QJsonValue::Null},
                {QStringLiteral("segments"), segments},
                {QStringLiteral("copied"), m_review.isCopied()},
                {QStringLiteral("shareFeedback"), toJson(m_review.shareFeedback())}};
    }

    const WrappedSettings m_settings;
    std::vector<Session> m_log;
    const std::optional<WrappedPeriod> m_initial;
    fakes::MemoryPreferences m_preferences;
    WrappedReview m_review;
};

QJsonValue view(const QJsonObject& input) {
    ReviewWorld world(input);
    QJsonArray steps;
    for (const QJsonValue& event : input[QLatin1String("events")].toArray())
        steps << world.after(event.toObject());
    return steps;
}

QJsonValue answer(const Case& item) {
    if (item.kind == QLatin1String("cards")) return cards(item.input);
    if (item.kind == QLatin1String("emptyCard")) return emptyCard(item.input);
    if (item.kind == QLatin1String("picker")) return picker(item.input);
    if (item.kind == QLatin1String("periodTable")) return periodTable(item.input);
    if (item.kind == QLatin1String("view")) return view(item.input);
    if (item.kind == QLatin1String("texts")) return reviewTexts(item.input);
    return reviewMotion(item.kind, item.input);
}

} // namespace

Form pagerForm() {
    Form form;
    form.name = QStringLiteral("pager");
    form.answer = answer;
    form.comparison = withoutLocaleMarks();
    form.comparison.relativeTolerance = 1e-9;
    form.comparison.absoluteTolerance = 1e-9; // a sine of almost nothing
    return form;
}

} // namespace vantle::vectors

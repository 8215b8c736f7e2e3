#include "fakes/FakeLanguageModel.h"
#include "fakes/MemoryPreferences.h"
#include "fakes/VirtualTime.h"
#include "gallery/Scenes.h"
#include "review/SampleReview.h"
#include "surfaces/wrapped/WrappedView.h"
#include "surfaces/wrapped/poster/SharePng.h"
#include "tracking/NotificationCenter.h"
#include "tracking/Settings.h"
#include "windows/SampleYear.h"

#include <array>

namespace vantle {

namespace {

using Sample = std::vector<Session> (*)();

const QString kSentence =
    QStringLiteral("You made webhook retries land in order, settled the pilot with Ines, and "
                   "reworked the settings page.");

int firstWeekdayOf(const QString& locale) {
    if (locale == QLatin1String("fa_IR")) return 7;
    return locale == QLatin1String("he_IL") ? 1 : 2;
}

/// A review of a made-up log, with a model that writes about it at once.
class DemoReview final : public QObject {
public:
    DemoReview(QObject* owner, std::vector<Session> log, WrappedPeriod period,
               const QString& duration, const QString& locale)
        : QObject(owner)
        , m_log(std::move(log))
        , m_calendar{QStringLiteral("UTC"), firstWeekdayOf(locale), 4, locale}
        , view(environment(period, duration)) {
        m_model.answer(kSentence);
        m_time.settle();
    }

    /// Turns to the card of that id.
    void turnTo(const QString& card) {
        while (view.card() != card && view.canTurnOn())
            view.turnOn();
    }

private:
    WrappedView::Environment environment(WrappedPeriod period, const QString& duration) {
        m_preferences.setString(settings::durationStyle.key(), duration);
        return {.notifications = m_notifications,
                .preferences = m_preferences,
                .model = m_model,
                .clock = m_time,
                .scheduler = m_time,
                .calendar = [this] { return m_calendar; },
                .allSessions = [this] { return m_log; },
                .skills =
                    [] {
                        const auto seeds = Skill::defaults();
                        return std::vector<Skill>(seeds.begin(), seeds.end());
                    },
                .initialPeriod = period,
                .enterVantle = [] {},
                .renderPng = renderSharePNG,
                .copyPng = [](const QByteArray&) {},
                .savePng = [](const QByteArray&, const QString&,
                              const auto& answer) { answer(WrappedView::Saved::Failed); }};
    }

    fakes::VirtualTime m_time{sampleNow()};
    fakes::MemoryPreferences m_preferences;
    fakes::FakeLanguageModel m_model;
    NotificationCenter m_notifications;
    std::vector<Session> m_log;
    Calendar m_calendar;

public:
    WrappedView view; ///< goes before what it looks at
};

Scene page(const char* name, Sample sample, WrappedPeriod period, const char* card,
           std::function<void(WrappedView&)> then = {}, const char* duration = "natural",
           const char* locale = nullptr) {
    Scene made = framedScene(name);
    made.properties = [=](QObject* owner) {
        auto* const review = new DemoReview(owner, sample ? sample() : std::vector<Session>(),
                                            period, QLatin1String(duration),
                                            locale ? QString::fromLatin1(locale) : sampleLocale());
        review->turnTo(QLatin1String(card));
        if (then) then(review->view);
        return QVariantMap{
            {QStringLiteral("view"),
             QUrl(QStringLiteral("qrc:/qt/qml/Vantle/Wrapped/WrappedPage.qml"))},
            {QStringLiteral("model"), QVariant::fromValue(static_cast<QObject*>(&review->view))}};
    };
    return made;
}

/// The same weeks of a user who writes a lot.
std::vector<Session> wordyWeeks() {
    const std::array<QString, 4> parts = {QStringLiteral("webhook"), QStringLiteral("importer"),
                                          QStringLiteral("landing page"),
                                          QStringLiteral("settings window")};
    std::vector<Session> log = firstWeeks();
    for (std::size_t i = 0; i < log.size(); ++i)
        log[i].note = QStringLiteral("The %1 now does what it should when the machine is switched "
                                     "off in the middle, and tells so in plain words (part %2)")
                          .arg(parts[i % parts.size()])
                          .arg(i);
    return log;
}

/// The same weeks with notes in another script, some mixed with words of this one.
std::vector<Session> weeksNoted(const std::array<const char*, 4>& notes) {
    std::vector<Session> log = firstWeeks();
    for (std::size_t i = 0; i < log.size(); ++i)
        log[i].note = QString::fromUtf8(notes[i % notes.size()]);
    return log;
}
std::vector<Session> hebrewWeeks() {
    return weeksNoted({"תיקנתי את התור; הוא שורד restart של השרת.",
                       "שיחה עם Ines על הפיילוט (חלק 2)", "עיצוב חלון ההגדרות",
                       "The landing page, for דנה"});
}
std::vector<Session> persianWeeks() {
    return weeksNoted({"صف پیام‌ها پس از restart هم سالم می‌ماند.",
                       "گفتگو با Ines درباره‌ی آزمایش",
                       "طراحی پنجره‌ی تنظیمات", "Landing page"});
}
/// A theme of 80 letters without a place to break it.
std::vector<Session> longWords() {
    const QByteArray word = QByteArray("q").repeated(80);
    return weeksNoted({word.constData(), word.constData(), "webhook importer", "webhook retries"});
}

std::vector<Session> untilYesterday() {
    std::vector<Session> log = firstWeeks();
    std::erase_if(log, [](const Session& session) {
        return session.startedAt >= sampleMoment("2025-11-21T00:00:00Z");
    });
    return log;
}

Scene twice(Scene scene) {
    scene.twice = true;
    return scene;
}

} // namespace

QList<Scene> reviewScenes() {
    using enum WrappedPeriod;
    return {
        twice(page("wrapped-hero", nightOwlYears, LastWeek, "hero")),
        page("wrapped-hero-today", nightOwlYears, Today, "hero"),
        page("wrapped-hero-all-time", nightOwlYears, AllTime, "hero"),
        page("wrapped-hero-hours-minutes", nightOwlYears, AllTime, "hero", {}, "hoursMinutes"),
        page("wrapped-skills", nightOwlYears, LastWeek, "skills"),
        page("wrapped-skills-alone", oneSkill, Week, "skills"),
        twice(page("wrapped-persona", nightOwlYears, LastWeek, "persona")),
        page("wrapped-persona-taking-shape", firstDay, Week, "persona"),
        page("wrapped-rhythm-week", nightOwlYears, Week, "rhythm"),
        page("wrapped-rhythm-month", nightOwlYears, Month, "rhythm"),
        page("wrapped-rhythm-year", nightOwlYears, AllTime, "rhythm"),
        page("wrapped-when", nightOwlYears, LastWeek, "when"),
        page("wrapped-high-points", nightOwlYears, LastWeek, "superlatives"),
        page("wrapped-milestones", firstWeeks, Month, "milestones"),
        page("wrapped-milestones-many", nightOwlYears, AllTime, "milestones"),
        page("wrapped-milestones-ten", workingLife, AllTime, "milestones"),
        page("wrapped-narrative", nightOwlYears, Week, "narrative"),
        page("wrapped-notes", nightOwlYears, Week, "notes"),
        page("wrapped-notes-long", wordyWeeks, Month, "notes"),
        twice(page("wrapped-summary", nightOwlYears, LastWeek, "summary")),
        page("wrapped-summary-year", nightOwlYears, AllTime, "summary"),
        page("wrapped-summary-failed", nightOwlYears, LastWeek, "summary",
             [](WrappedView& view) { view.saveImage(); }),
        page("wrapped-notes-long-words", longWords, Month, "notes"),
        page("wrapped-summary-long-words", longWords, Month, "summary"),
        page("wrapped-notes-hebrew", hebrewWeeks, Month, "notes", {}, "natural", "he_IL"),
        page("wrapped-rhythm-hebrew", hebrewWeeks, Week, "rhythm", {}, "natural", "he_IL"),
        page("wrapped-summary-hebrew", hebrewWeeks, Month, "summary", {}, "natural", "he_IL"),
        page("wrapped-hero-persian", persianWeeks, Month, "hero", {}, "natural", "fa_IR"),
        page("wrapped-notes-persian", persianWeeks, Month, "notes", {}, "natural", "fa_IR"),
        page("wrapped-rhythm-persian", persianWeeks, Month, "rhythm", {}, "natural", "fa_IR"),
        page("wrapped-rhythm-year-persian", nightOwlYears, AllTime, "rhythm", {}, "natural",
             "fa_IR"),
        page("wrapped-summary-persian", persianWeeks, Month, "summary", {}, "natural", "fa_IR"),
        page("wrapped-empty", untilYesterday, Today, ""),
        page("wrapped-empty-first", nullptr, Week, ""),
    };
}

} // namespace vantle

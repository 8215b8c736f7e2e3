#include "gallery/Scenes.h"
#include "surfaces/wrapped/poster/PosterSamples.h"

namespace vantle {

namespace {

Scene posterScene(const QString& name, const SharePoster& poster) {
    Scene made;
    made.name = QStringLiteral("poster-") + name;
    made.view = QUrl(QStringLiteral("qrc:/qt/qml/Vantle/DemoPosters/PosterScene.qml"));
    made.properties = [poster](QObject*) {
        return QVariantMap{{QStringLiteral("poster"), QVariant::fromValue(poster)}};
    };
    return made;
}

/// Every type, over the periods in turn.
QList<Scene> types() {
    constexpr std::array periods = {WrappedPeriod::LastWeek, WrappedPeriod::Month,
                                    WrappedPeriod::AllTime};
    const QStringList names = {
        QStringLiteral("Night Shift"),  QStringLiteral("Busy Bee"),
        QStringLiteral("Quick Hitter"), QStringLiteral("Multi Builder"),
        QStringLiteral("Long Hauler"),  QStringLiteral("Steady Hand"),
        QStringLiteral("After Hours"),  QStringLiteral("All Rounder"),
    };
    QList<Scene> scenes;
    for (qsizetype i = 0; i < names.size(); ++i)
        scenes << posterScene(names[i].toLower().replace(QLatin1Char(' '), QLatin1Char('-')),
                              samples::sharePoster(periods[i % periods.size()], names[i]));
    return scenes;
}

/// Names that don't fit, and one that is read from the right.
SharePoster longNames() {
    WrappedStats stats = samples::posterStats(WrappedPeriod::Month, QStringLiteral("Deep Diver"));
    stats.skillHours[0].skill.name = QStringLiteral("Rewriting the importer for good");
    stats.skillHours[1].skill.name = QStringLiteral("עיצוב ממשק");
    stats.skillHours[2].skill.name = QStringLiteral("Ende der Kümmernisse");
    WrappedSettings settings = samples::posterSettings();
    settings.durationStyle = DurationStyle::HoursMinutes;
    return reviewcards::poster(stats, settings);
}

} // namespace

QList<Scene> posterScenes() {
    QList<Scene> scenes{
        posterScene(QStringLiteral("week"), samples::sharePoster(WrappedPeriod::Week)),
        posterScene(QStringLiteral("week-persona"),
                    samples::sharePoster(WrappedPeriod::LastWeek, QStringLiteral("Night Owl"))),
        posterScene(QStringLiteral("month-persona"),
                    samples::sharePoster(WrappedPeriod::Month, QStringLiteral("Deep Diver"))),
        posterScene(QStringLiteral("year-persona"),
                    samples::sharePoster(WrappedPeriod::AllTime, QStringLiteral("Early Bird")))};
    for (Scene& scene : scenes)
        scene.twice = true;
    scenes << posterScene(QStringLiteral("today"), samples::sharePoster(WrappedPeriod::Today))
           << posterScene(QStringLiteral("long-names"), longNames());
    return scenes + types();
}

} // namespace vantle

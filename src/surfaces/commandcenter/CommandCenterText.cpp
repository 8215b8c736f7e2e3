#include "surfaces/commandcenter/CommandCenterText.h"

#include "ceremony/show/VantleCopy.h"
#include "tracking/Skill.h"

#include <array>

namespace vantle::commandcentertext {

namespace {

constexpr std::array kBackfillMinutes = {5, 10, 15, 30};
constexpr QLatin1String kMode(" mode");

QString middleDot() { return QStringLiteral(" · "); }

} // namespace

QString Title::whole() const { return time.isEmpty() ? state : state + middleDot() + time; }

Title title(const Status& status) {
    switch (status.state) {
    case TrackerCore::State::Idle:
        break;
    case TrackerCore::State::Running:
        return {status.welcomeBack.isEmpty() ? vantlecopy::activeStatus(status.skillName)
                                             : status.welcomeBack,
                status.time};
    case TrackerCore::State::Paused:
        return {QStringLiteral("Paused (away)") + middleDot() + status.skillName, status.time};
    }
    return {QStringLiteral("Ready to focus"), {}};
}

QString subtitle(TrackerCore::State state) {
    switch (state) {
    case TrackerCore::State::Idle:
        break;
    case TrackerCore::State::Running:
        return QStringLiteral("Only active time counts.");
    case TrackerCore::State::Paused:
        return QStringLiteral("Time is paused while you’re away.");
    }
    return QStringLiteral("Choose where your effort should go.");
}

QString primary(const Status& status, const QString& modeName) {
    if (status.state == TrackerCore::State::Idle) return enter(modeName);
    const QString stop = QStringLiteral("Stop") + middleDot() + status.time;
    return status.state == TrackerCore::State::Paused
               ? stop + middleDot() + QStringLiteral("paused")
               : stop;
}

QString enter(const QString& skillName) {
    QString mode = vantlecopy::modeName(skillName);
    // On a button the word is part of a title; where the person wrote it, it stands as they did.
    if (mode == Skill::cleanedName(skillName) + kMode)
        mode = mode.chopped(kMode.size()) + QLatin1String(" Mode");
    return QStringLiteral("Enter ") + mode;
}

QList<int> backfillChoices(int coverageMinutes) {
    QList<int> choices;
    for (const int minutes : kBackfillMinutes)
        if (coverageMinutes >= minutes) choices.append(minutes);
    return choices;
}

} // namespace vantle::commandcentertext

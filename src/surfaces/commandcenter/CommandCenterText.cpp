#include "surfaces/commandcenter/CommandCenterText.h"

#include "base/Bidi.h"
#include "base/Words.h"
#include "ceremony/show/VantleCopy.h"
#include "tracking/Skill.h"

#include <array>

namespace vantle::commandcentertext {

namespace {

constexpr std::array kBackfillMinutes = {5, 10, 15, 30};

} // namespace

QString Title::whole() const {
    return time.isEmpty() ? state : state + QStringLiteral(" · ") + time;
}

Title title(const Status& status) {
    switch (status.state) {
    case TrackerCore::State::Idle:
        break;
    case TrackerCore::State::Running:
        return {status.welcomeBack.isEmpty() ? vantlecopy::activeStatus(status.skillName)
                                             : status.welcomeBack,
                status.time};
    case TrackerCore::State::Paused:
        return {Words::tr("Paused (away) · %1").arg(bidi::isolated(status.skillName)), status.time};
    }
    return {Words::tr("Ready to focus"), {}};
}

QString subtitle(TrackerCore::State state) {
    switch (state) {
    case TrackerCore::State::Idle:
        break;
    case TrackerCore::State::Running:
        return Words::tr("Only active time counts.");
    case TrackerCore::State::Paused:
        return Words::tr("Time is paused while you’re away.");
    }
    return Words::tr("Choose where your effort should go.");
}

QString primary(const Status& status, const QString& modeName) {
    if (status.state == TrackerCore::State::Idle) return enter(modeName);
    return (status.state == TrackerCore::State::Paused ? Words::tr("Stop · %1 · paused")
                                                       : Words::tr("Stop · %1"))
        .arg(status.time);
}

QString enter(const QString& skillName) {
    // On a button the word is part of a title; in the user's own name it keeps its case.
    if (vantlecopy::addsMode(skillName))
        return Words::tr("Enter %1 Mode").arg(bidi::isolated(Skill::cleanedName(skillName)));
    return Words::tr("Enter %1").arg(bidi::isolated(vantlecopy::modeName(skillName)));
}

QList<int> backfillChoices(int coverageMinutes) {
    QList<int> choices;
    for (const int minutes : kBackfillMinutes)
        if (coverageMinutes >= minutes) choices.append(minutes);
    return choices;
}

} // namespace vantle::commandcentertext

// The four forms that are scripts over the tracker.
#include "vectors/DataFolder.h"
#include "vectors/Script.h"
#include "vectors/TrackerWorld.h"
#include "vectors/forms.h"

namespace vantle::vectors {

namespace {

QJsonValue answer(const Case& item) {
    TrackerWorld world(item.input);
    return playScript(item, [&](const QJsonObject& event) { return world.perform(event); });
}

bool injects(const QString& fault) {
    return fault == QLatin1String("encode:open-session.json") || DataFolder::knows(fault);
}

Form trackerScript(const QString& name) {
    Form form;
    form.name = name;
    form.answer = answer;
    form.injects = injects;
    // A case that is about the log alone states only a part of the tracker's state.
    form.comparison.partialObjects = {QStringLiteral("state")};
    return form;
}

} // namespace

QList<Form> trackerForms() {
    return {trackerScript(QStringLiteral("tracker")), trackerScript(QStringLiteral("session_log")),
            trackerScript(QStringLiteral("recovery")),
            trackerScript(QStringLiteral("hand_logging"))};
}

} // namespace vantle::vectors

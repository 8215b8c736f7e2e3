#include "vectors/Script.h"

namespace vantle::vectors {

QJsonValue playScript(const Case& item,
                      const std::function<QJsonObject(const QJsonObject& event)>& perform,
                      const std::function<QJsonObject()>& opening) {
    SymbolicIds ids;
    const QJsonArray expected = item.expect.toObject()[QLatin1String("steps")].toArray();
    QJsonArray steps;
    const auto add = [&](const QJsonObject& step) {
        if (steps.size() < expected.size()) ids.bind(expected.at(steps.size()), step);
        steps << ids.symbolic(step);
    };
    if (opening) add(opening());
    for (const QJsonValue event : item.input[QLatin1String("events")].toArray())
        add(perform(ids.actual(event).toObject()));
    return QJsonObject{{QStringLiteral("steps"), steps}};
}

bool passTime(fakes::VirtualTime& time, const QJsonObject& event) {
    const double seconds = event[QLatin1String("seconds")].toDouble();
    if (operation(event) == QLatin1String("advance"))
        time.advance(seconds);
    else if (operation(event) == QLatin1String("shiftWall"))
        time.shiftWall(seconds);
    else
        return false;
    return true;
}

QString operation(const QJsonObject& event) { return event[QLatin1String("op")].toString(); }

} // namespace vantle::vectors

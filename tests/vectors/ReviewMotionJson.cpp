#include "vectors/ReviewMotionJson.h"

#include "review/WrappedMotion.h"
#include "vectors/Form.h"

#include <QJsonArray>

namespace vantle::vectors {

namespace {

using namespace wrappedmotion;

/// One answer for each number of a list.
QJsonArray forEach(const QJsonValue& list, const auto& answer) {
    QJsonArray answers;
    for (const QJsonValue& number : list.toArray())
        answers << answer(number.toDouble());
    return answers;
}

QJsonValue ambient(const QJsonObject& input) {
    const AmbientDot dot = ambientDot(input[QLatin1String("i")].toInt());
    const double width = input[QLatin1String("width")].toDouble();
    const double height = input[QLatin1String("height")].toDouble();
    const QJsonObject fixed{{QStringLiteral("baseX"), dot.baseX},
                            {QStringLiteral("baseY"), dot.baseY},
                            {QStringLiteral("ampX"), dot.ampX},
                            {QStringLiteral("ampY"), dot.ampY},
                            {QStringLiteral("speed"), dot.speed},
                            {QStringLiteral("phase"), dot.phase},
                            {QStringLiteral("radius"), dot.radius},
                            {QStringLiteral("group"), static_cast<int>(dot.group)}};
    const auto at = [&](double t) {
        const AmbientPlace now = place(dot, width, height, t);
        return QJsonObject{{QStringLiteral("x"), now.x},
                           {QStringLiteral("y"), now.y},
                           {QStringLiteral("twinkle"), now.twinkle}};
    };
    return QJsonObject{{QStringLiteral("fixed"), fixed},
                       {QStringLiteral("at"), forEach(input[QLatin1String("t")], at)}};
}

QJsonValue burst(const QJsonObject& input) {
    const int index = input[QLatin1String("i")].toInt();
    return forEach(input[QLatin1String("t")], [index](double t) {
        const BurstDot dot = burstDot(index, t);
        return QJsonObject{{QStringLiteral("x"), dot.x},
                           {QStringLiteral("y"), dot.y},
                           {QStringLiteral("radius"), dot.radius},
                           {QStringLiteral("alpha"), dot.alpha}};
    });
}

QJsonValue star(const QJsonObject& input) {
    return forEach(input[QLatin1String("t")], [](double t) {
        const auto since = shootingStar(t);
        return since ? QJsonValue(*since) : QJsonValue::Null;
    });
}

QJsonValue counted(const QJsonObject& input) {
    return forEach(input[QLatin1String("hours")], [&input](double hours) {
        return forEach(input[QLatin1String("t")], [hours](double t) { return countUp(hours, t); });
    });
}

QJsonValue delays(const QJsonObject& input) {
    const double base = input[QLatin1String("base")].toDouble();
    const QJsonValue orders = input[QLatin1String("order")];
    const auto order = [](double number) { return static_cast<int>(number); };
    return QJsonObject{{QStringLiteral("cascade"),
                        forEach(orders, [&](double n) { return cascadeDelay(order(n)); })},
                       {QStringLiteral("pop"),
                        forEach(orders, [&](double n) { return popDelay(order(n), base); })},
                       {QStringLiteral("grow"),
                        forEach(orders, [&](double n) { return growDelay(order(n), base); })}};
}

} // namespace

QJsonValue reviewMotion(const QString& kind, const QJsonObject& input) {
    if (kind == QLatin1String("ambientDot")) return ambient(input);
    if (kind == QLatin1String("burstDot")) return burst(input);
    if (kind == QLatin1String("shootingStar")) return star(input);
    if (kind == QLatin1String("countUp")) return counted(input);
    if (kind == QLatin1String("delays")) return delays(input);
    return unknown(kind);
}

} // namespace vantle::vectors

#include "vectors/CeremonyModelJson.h"

#include <algorithm>

namespace vantle::vectors {

namespace {

/// Calls `visit(name, array)` for each of the model's arrays.
template <typename Model, typename Visit>
void forEachArray(Model& model, Visit visit) {
    visit(QStringLiteral("fieldIndex"), model.fieldIndex);
    visit(QStringLiteral("fieldBorn"), model.fieldBorn);
    visit(QStringLiteral("fieldVanish"), model.fieldVanish);
    visit(QStringLiteral("fieldColor"), model.fieldColor);
    visit(QStringLiteral("fieldBright"), model.fieldBright);
    visit(QStringLiteral("fieldPhase"), model.fieldPhase);
    visit(QStringLiteral("fieldFlicker"), model.fieldFlicker);
    visit(QStringLiteral("backIndex"), model.backIndex);
    visit(QStringLiteral("backBorn"), model.backBorn);
    visit(QStringLiteral("backVanish"), model.backVanish);
    visit(QStringLiteral("backColor"), model.backColor);
    visit(QStringLiteral("backPhase"), model.backPhase);
    visit(QStringLiteral("chargerX"), model.chargerX);
    visit(QStringLiteral("chargerY"), model.chargerY);
    visit(QStringLiteral("chargerColor"), model.chargerColor);
    visit(QStringLiteral("sparkAngle"), model.sparkAngle);
    visit(QStringLiteral("sparkSpeed"), model.sparkSpeed);
    visit(QStringLiteral("sparkLength"), model.sparkLength);
}

} // namespace

CeremonyVariant variantFromJson(const QJsonValue& name) {
    const auto& all = ceremonyvariant::all;
    const auto found = std::ranges::find_if(
        all, [&](CeremonyVariant item) { return ceremonyvariant::name(item) == name.toString(); });
    return found == all.end() ? all.front() : *found;
}

QJsonObject toJson(const CeremonyGridModel& model) {
    QJsonObject object{
        {QStringLiteral("variant"), QString(ceremonyvariant::name(model.variant))},
        {QStringLiteral("width"), model.width},
        {QStringLiteral("height"), model.height},
        {QStringLiteral("cols"), model.cols},
        {QStringLiteral("rows"), model.rows},
        {QStringLiteral("cell"), model.cell},
    };
    forEachArray(model,
                 [&](const QString& name, const auto& array) { object[name] = numbers(array); });
    return object;
}

CeremonyGridModel modelFromJson(const QJsonObject& object) {
    CeremonyGridModel model;
    model.variant = variantFromJson(object[QLatin1String("variant")]);
    model.width = object[QLatin1String("width")].toDouble();
    model.height = object[QLatin1String("height")].toDouble();
    model.cols = object[QLatin1String("cols")].toInt();
    model.rows = object[QLatin1String("rows")].toInt();
    model.cell = object[QLatin1String("cell")].toDouble();
    forEachArray(model, [&]<typename Number>(const QString& name, std::vector<Number>& array) {
        for (const QJsonValue value : object[name].toArray())
            array.push_back(static_cast<Number>(value.toDouble()));
    });
    if (object[QLatin1String("hasTitle")].toBool())
        model.titleImage = QImage(1, 1, QImage::Format_ARGB32_Premultiplied);
    return model;
}

} // namespace vantle::vectors

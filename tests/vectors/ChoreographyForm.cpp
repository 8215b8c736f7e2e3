// Who is born when in a show, how the screen is divided for it, and how its texts are laid out.
#include "ceremony/show/CeremonyEase.h"
#include "ceremony/show/CeremonyTextLayout.h"
#include "ceremony/show/VantleCopy.h"
#include "fakes/SplitMixRandom.h"
#include "vectors/CeremonyModelJson.h"
#include "vectors/forms.h"

namespace vantle::vectors {

namespace {

QSizeF sizeFromJson(const QJsonObject& input) {
    return {input[QLatin1String("width")].toDouble(), input[QLatin1String("height")].toDouble()};
}

fakes::SplitMixRandom randomFrom(const QJsonObject& input) {
    return fakes::SplitMixRandom(
        static_cast<std::uint64_t>(input[QLatin1String("seed")].toInteger()));
}

QJsonObject model(const QJsonObject& input) {
    fakes::SplitMixRandom random = randomFrom(input);
    const CeremonyGridModel built = CeremonyGridModel::choreograph(
        variantFromJson(input[QLatin1String("variant")]), sizeFromJson(input), random);
    return {{QStringLiteral("draws"), random.draws()}, {QStringLiteral("model"), toJson(built)}};
}

/// Of each array its length, its sum and the values at the places that the case asks for.
QJsonObject modelDigest(const QJsonObject& input, const QJsonObject& expect) {
    QJsonObject whole = model(input);
    QJsonObject digest = whole[QLatin1String("model")].toObject();
    const QJsonObject expected = expect[QLatin1String("model")].toObject();
    for (const QString& name : digest.keys()) {
        if (!digest[name].isArray()) continue;
        const QJsonArray array = digest[name].toArray();
        double sum = 0;
        for (const QJsonValue value : array)
            sum += value.toDouble();
        QJsonArray samples;
        for (const QJsonValue sample :
             expected[name].toObject()[QLatin1String("samples")].toArray()) {
            const int index = sample.toArray().at(0).toInt();
            samples << QJsonArray{index, array.at(index)};
        }
        digest[name] = QJsonObject{{QStringLiteral("count"), array.size()},
                                   {QStringLiteral("samples"), samples},
                                   {QStringLiteral("sum"), sum}};
    }
    whole[QLatin1String("model")] = digest;
    return whole;
}

QJsonObject grid(const QJsonObject& input) {
    const CeremonyGrid built = CeremonyGrid::forScreen(sizeFromJson(input));
    return {{QStringLiteral("width"), built.width},
            {QStringLiteral("height"), built.height},
            {QStringLiteral("cell"), built.cell},
            {QStringLiteral("cols"), built.cols},
            {QStringLiteral("rows"), built.rows}};
}

QJsonObject copy(const QJsonObject& input) {
    const QString skillName = input[QLatin1String("skillName")].toString();
    return {{QStringLiteral("modeName"), vantlecopy::modeName(skillName)},
            {QStringLiteral("ceremonyTitle"), vantlecopy::ceremonyTitle(skillName)},
            {QStringLiteral("activeStatus"), vantlecopy::activeStatus(skillName)}};
}

ceremonytext::LineMetrics lineFromJson(const QJsonObject& input) {
    return {input[QLatin1String("textWidth")].toDouble(), input[QLatin1String("ascent")].toDouble(),
            input[QLatin1String("descent")].toDouble()};
}

/// Places on both curves, as a list or as one number; the members of `expect` name the curves.
QJsonObject ease(const QJsonObject& input, const QJsonObject& expect) {
    const auto along = [&](double (*curve)(double)) -> QJsonValue {
        const QJsonValue x = input[QLatin1String("x")];
        if (!x.isArray()) return curve(x.toDouble());
        QJsonArray values;
        for (const QJsonValue place : x.toArray())
            values << curve(place.toDouble());
        return values;
    };
    QJsonObject curves;
    for (const QString& name : expect.keys())
        curves[name] =
            along(name.contains(QLatin1String("Cubic"), Qt::CaseInsensitive) ? ceremonyEaseOutCubic
                                                                             : ceremonyEaseInQuad);
    return curves;
}

/// As many draws as each member of `expect` lists.
QJsonObject draws(const QJsonObject& input, const QJsonObject& expect) {
    QJsonObject lists;
    for (const QString& name : expect.keys()) {
        fakes::SplitMixRandom random = randomFrom(input);
        QJsonArray list;
        for (qsizetype i = 0; i < expect[name].toArray().size(); ++i)
            list << random.uniform();
        lists[name] = list;
    }
    return lists;
}

QJsonValue layout(const std::optional<ceremonytext::Layout>& built, const QString& size) {
    if (!built) return QJsonValue::Null;
    return QJsonObject{{size, QJsonArray{built->width, built->height}},
                       {QStringLiteral("textX"), built->textX},
                       {QStringLiteral("textY"), built->textY}};
}

QJsonObject caption(const QJsonObject& input) {
    const CeremonyVariant variant = variantFromJson(input[QLatin1String("variant")]);
    return {{QStringLiteral("raw"), static_cast<int>(variant)},
            {QStringLiteral("caption"), ceremonyvariant::caption(variant)}};
}

QJsonValue answer(const Case& item) {
    const QJsonObject& input = item.input;
    if (item.kind == QLatin1String("model")) return model(input);
    if (item.kind == QLatin1String("modelDigest"))
        return modelDigest(input, item.expect.toObject());
    if (item.kind == QLatin1String("grid")) return grid(input);
    if (item.kind == QLatin1String("copy")) return copy(input);
    if (item.kind == QLatin1String("titleFontSize"))
        return QJsonObject{{QStringLiteral("size"),
                            ceremonytext::titleFontSize(input[QLatin1String("width")].toDouble())}};
    if (item.kind == QLatin1String("titleLayout")) {
        const double size = input[QLatin1String("fontSize")].toDouble();
        return layout(ceremonytext::titleLayout(size, lineFromJson(input)), QStringLiteral("pill"));
    }
    if (item.kind == QLatin1String("captionLayout"))
        return layout(ceremonytext::captionLayout(lineFromJson(input)), QStringLiteral("size"));
    if (item.kind == QLatin1String("ease")) return ease(input, item.expect.toObject());
    if (item.kind == QLatin1String("rng")) return draws(input, item.expect.toObject());
    if (item.kind == QLatin1String("caption")) return caption(input);
    return unknown(item.kind);
}

} // namespace

Form choreographyForm() {
    Form form;
    form.name = QStringLiteral("choreography");
    form.answer = answer;
    // The sums of long arrays; single values are exact in single precision.
    form.comparison.relativeTolerance = 1e-7;
    return form;
}

} // namespace vantle::vectors

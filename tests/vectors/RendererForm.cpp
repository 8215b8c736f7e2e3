// What a frame of the ceremony looks like, and what surrounds it.
#include "ceremony/show/CeremonyFrameRenderer.h"
#include "ceremony/show/CeremonyNova.h"
#include "ceremony/show/CeremonyPaletteRGB.h"
#include "ceremony/show/CeremonyTimeline.h"
#include "vectors/CeremonyFrames.h"
#include "vectors/CeremonyModelJson.h"
#include "vectors/forms.h"

namespace vantle::vectors {

namespace {

QJsonValue frame(const Case& item) {
    CeremonyFrameRenderer renderer(referredModel(item));
    renderer.fillField(item.input[QLatin1String("t")].toDouble());
    const Frame got = copyOf(renderer);
    QList<QJsonValue> readings = item.alternatives;
    readings.prepend(item.expect);
    for (const QJsonValue& reading : readings)
        if (looksLike(reading[QLatin1String("frame")].toObject(), got)) return reading;
    return QJsonObject{
        {QStringLiteral("frame"), difference(item.expect[QLatin1String("frame")].toObject(), got)}};
}

QJsonArray places(const std::vector<CeremonyDots::Place>& all, qsizetype count) {
    QJsonArray list;
    for (const CeremonyDots::Place& place : all)
        if (list.size() < count) list << QJsonArray{place.x, place.y};
    return list;
}

QJsonObject construct(const Case& item) {
    const CeremonyFrameRenderer renderer(referredModel(item));
    const CeremonyCanvas& canvas = renderer.canvas();
    const CeremonyDotMasks& masks = renderer.dots().masks();
    const QJsonObject expect = item.expect.toObject();
    QJsonArray samples;
    for (const QJsonValue sample : expect[QLatin1String("distSamples")].toArray()) {
        const int x = sample.toArray().at(0).toInt();
        const int y = sample.toArray().at(1).toInt();
        samples << QJsonArray{x, y, double{canvas.distances(y)[static_cast<std::size_t>(x)]}};
    }
    QJsonArray flash;
    for (const std::uint32_t color : ceremonypalette::field)
        flash << static_cast<qint64>(CeremonyDots::flashColor(color));
    return {
        {QStringLiteral("res"), renderer.bufferScale()},
        {QStringLiteral("bw"), renderer.bufferWidth()},
        {QStringLiteral("bh"), renderer.bufferHeight()},
        {QStringLiteral("cxp"), canvas.centerX()},
        {QStringLiteral("cyp"), canvas.centerY()},
        {QStringLiteral("maxR"), ceremonynova::largestRadius(renderer.model())},
        {QStringLiteral("centerPxX"), canvas.centerColumn()},
        {QStringLiteral("centerPxY"), canvas.centerRow()},
        {QStringLiteral("spriteK"), masks.side},
        {QStringLiteral("masks"),
         QJsonObject{{QStringLiteral("back"), numbers(masks.back.coverage())},
                     {QStringLiteral("small"), numbers(masks.small.coverage())},
                     {QStringLiteral("smallOver"), numbers(masks.smallOver.coverage())},
                     {QStringLiteral("big"), numbers(masks.big.coverage())},
                     {QStringLiteral("bigOver"), numbers(masks.bigOver.coverage())},
                     {QStringLiteral("flash"), numbers(masks.flash.coverage())}}},
        {QStringLiteral("sprFirst"),
         places(renderer.dots().frontPlaces(), expect[QLatin1String("sprFirst")].toArray().size())},
        {QStringLiteral("bgSprFirst"),
         places(renderer.dots().backPlaces(),
                expect[QLatin1String("bgSprFirst")].toArray().size())},
        {QStringLiteral("distSamples"), samples},
        {QStringLiteral("flashPalette"), flash},
    };
}

template <typename Function>
QJsonArray overTime(const QJsonValue& times, Function function) {
    QJsonArray values;
    for (const QJsonValue t : times.toArray())
        values << function(t.toDouble());
    return values;
}

CeremonyFrameRenderer smallRenderer(const QJsonObject& input) {
    CeremonyGridModel model;
    model.variant = variantFromJson(input[QLatin1String("variant")]);
    model.width = CeremonyGrid::leastSide;
    model.height = CeremonyGrid::leastSide;
    model.cell = CeremonyGrid::leastCell;
    if (input[QLatin1String("hasTitle")].toBool())
        model.titleImage = QImage(1, 1, QImage::Format_ARGB32_Premultiplied);
    return CeremonyFrameRenderer(std::move(model));
}

QJsonObject scalars(const QJsonObject& input) {
    const CeremonyFrameRenderer renderer = smallRenderer(input);
    const QJsonValue times = input[QLatin1String("t")];
    return {{QStringLiteral("titleOpacity"),
             overTime(times, [&](double t) { return renderer.titleOpacity(t); })},
            {QStringLiteral("titleRise"),
             overTime(times, [&](double t) { return renderer.titleRise(t); })},
            {QStringLiteral("captionOpacity"),
             overTime(times, [&](double t) { return renderer.captionOpacity(t); })}};
}

QJsonObject plate(const QJsonObject& input) {
    const CeremonyVariant variant = variantFromJson(input[QLatin1String("variant")]);
    const auto alpha = [&](double t) { return ceremonytimeline::plateAlpha(variant, t); };
    const QJsonValue times = input[QLatin1String("t")];
    return {{QStringLiteral("alpha"), overTime(times, alpha)},
            {QStringLiteral("byte"),
             overTime(times, [&](double t) { return ceremonytimeline::plateByte(variant, t); })}};
}

QJsonObject shake(const QJsonObject& input) {
    CeremonyFrameRenderer renderer = smallRenderer(input);
    QJsonArray offsets, translations;
    for (const QJsonValue t : input[QLatin1String("calls")].toArray()) {
        const CeremonyShake::Offset offset = renderer.shakeOffset(t.toDouble());
        offsets << QJsonArray{offset.dx, offset.dy};
        // For layers that count heights upwards.
        translations << QJsonArray{offset.dx, -offset.dy};
    }
    return {{QStringLiteral("offsets"), offsets},
            {QStringLiteral("layerTranslations"), translations},
            {QStringLiteral("state"), QString::number(renderer.shakeState())}};
}

QJsonValue answer(const Case& item) {
    if (item.kind == QLatin1String("frame")) return frame(item);
    if (item.kind == QLatin1String("construct")) return construct(item);
    if (item.kind == QLatin1String("scalars")) return scalars(item.input);
    if (item.kind == QLatin1String("plate")) return plate(item.input);
    if (item.kind == QLatin1String("shake")) return shake(item.input);
    if (item.kind == QLatin1String("viewAt"))
        return QJsonObject{{QStringLiteral("finished"),
                            overTime(item.input[QLatin1String("t")],
                                     [](double t) { return ceremonytimeline::hasEnded(t); })}};
    return unknown(item.kind);
}

} // namespace

Form rendererForm() {
    Form form;
    form.name = QStringLiteral("renderer");
    form.answer = answer;
    return form;
}

} // namespace vantle::vectors

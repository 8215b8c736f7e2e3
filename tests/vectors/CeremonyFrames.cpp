#include "vectors/CeremonyFrames.h"

#include "ceremony/show/CeremonyFrameRenderer.h"
#include "vectors/CeremonyModelJson.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QMap>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

namespace vantle::vectors {

namespace {

// A dot on a threshold may fall to the other side in another order of operations.
constexpr int kSlightDifference = 3;         // of 255
constexpr double kPixelsWithMore = 0.002;    // of all
constexpr double kPixelsThatDiffer = 0.01;   // of all
constexpr double kBlockMeanDifference = 0.5; // of 255

struct Tally {
    qsizetype pixels = 0;
    qsizetype different = 0;
    qsizetype clearly = 0; ///< by more than a little
    int largest = 0;
    int blocks = 0; ///< whose mean differs

    [[nodiscard]] bool isSlight() const {
        const auto count = static_cast<double>(pixels);
        return static_cast<double>(different) <= kPixelsThatDiffer * count &&
               static_cast<double>(clearly) <= kPixelsWithMore * count && blocks == 0;
    }

    void add(int distance) {
        ++pixels;
        largest = std::max(largest, distance);
        if (distance > 0) ++different;
        if (distance > kSlightDifference) ++clearly;
    }
};

int channel(const Frame& frame, int x, int y, int index) {
    return static_cast<std::uint8_t>(frame.rgba[(qsizetype{y} * frame.width + x) * 4 + index]);
}

QByteArray inflated(const QJsonValue& base64, qsizetype size) {
    QByteArray data(4, '\0');
    qToBigEndian(static_cast<quint32>(size), data.data());
    return qUncompress(data + QByteArray::fromBase64(base64.toString().toLatin1()));
}

Tally compareAll(const Frame& expected, const Frame& got) {
    Tally tally;
    for (int y = 0; y < got.height; ++y) {
        for (int x = 0; x < got.width; ++x) {
            int distance = 0;
            for (int c = 0; c < 4; ++c)
                distance = std::max(distance,
                                    std::abs(channel(expected, x, y, c) - channel(got, x, y, c)));
            tally.add(distance);
        }
    }
    return tally;
}

Tally compareSamples(const QJsonArray& samples, const Frame& got) {
    Tally tally;
    for (const QJsonValue sample : samples) {
        const QJsonArray values = sample.toArray();
        int distance = 0;
        for (int c = 0; c < 4; ++c)
            distance = std::max(
                distance, std::abs(values.at(2 + c).toInt() -
                                   channel(got, values.at(0).toInt(), values.at(1).toInt(), c)));
        tally.add(distance);
    }
    return tally;
}

std::array<double, 4> meanOf(const Frame& frame, int left, int right, int top, int bottom) {
    std::array<double, 4> sums{};
    for (int y = top; y < bottom; ++y)
        for (int x = left; x < right; ++x)
            for (int c = 0; c < 4; ++c)
                sums[static_cast<std::size_t>(c)] += channel(frame, x, y, c);
    for (double& sum : sums)
        sum /= static_cast<double>((right - left) * (bottom - top));
    return sums;
}

int differingBlocks(const QJsonObject& expected, const Frame& got) {
    const int columns = expected[QLatin1String("columns")].toInt();
    const int rows = expected[QLatin1String("rows")].toInt();
    const QJsonArray means = expected[QLatin1String("rgba")].toArray();
    int differing = 0;
    for (int j = 0; j < rows; ++j) {
        for (int i = 0; i < columns; ++i) {
            const auto mean = meanOf(got, i * got.width / columns, (i + 1) * got.width / columns,
                                     j * got.height / rows, (j + 1) * got.height / rows);
            const QJsonArray wanted = means.at(j * columns + i).toArray();
            for (int c = 0; c < 4; ++c) {
                const double off =
                    std::abs(wanted.at(c).toDouble() - mean[static_cast<std::size_t>(c)]);
                if (!(off <= kBlockMeanDifference)) ++differing;
            }
        }
    }
    return differing;
}

bool hasSize(const QJsonObject& expected, const Frame& got) {
    return expected[QLatin1String("width")].toInt() == got.width &&
           expected[QLatin1String("height")].toInt() == got.height;
}

/// Nothing compared counts as not alike.
Tally compared(const QJsonObject& expected, const Frame& got) {
    if (!hasSize(expected, got)) return {};
    const QJsonValue packed = expected[QLatin1String("rgbaZlibBase64")];
    if (packed.isString()) {
        const Frame frame{got.width, got.height, inflated(packed, got.rgba.size())};
        return frame.rgba.size() == got.rgba.size() ? compareAll(frame, got) : Tally{};
    }
    Tally tally = compareSamples(expected[QLatin1String("samples")].toArray(), got);
    tally.blocks = differingBlocks(expected[QLatin1String("blockMeans")].toObject(), got);
    return tally;
}

QJsonObject modelsIn(const QString& folder) {
    static QMap<QString, QJsonObject> read; // parsed once, for the file is large
    const auto known = read.constFind(folder);
    if (known != read.constEnd()) return *known;
    for (const auto place :
         {QLatin1String("renderer_models.json"), QLatin1String("../renderer_models.json")}) {
        QFile file(QDir(folder).filePath(place));
        if (!file.open(QIODevice::ReadOnly)) continue;
        return read[folder] = QJsonDocument::fromJson(file.readAll()).object();
    }
    return {};
}

} // namespace

Frame copyOf(const CeremonyFrameRenderer& renderer) {
    const auto pixels = renderer.fieldBuffer();
    return {renderer.bufferWidth(), renderer.bufferHeight(),
            QByteArray(reinterpret_cast<const char*>(pixels.data()),
                       static_cast<qsizetype>(pixels.size_bytes()))};
}

CeremonyGridModel referredModel(const Case& item) {
    const QString name = item.input[QLatin1String("modelRef")].toString();
    return modelFromJson(modelsIn(item.folder)[name].toObject());
}

bool looksLike(const QJsonObject& expected, const Frame& got) {
    const Tally tally = compared(expected, got);
    return tally.pixels > 0 && tally.isSlight();
}

QJsonObject difference(const QJsonObject& expected, const Frame& got) {
    const Tally tally = compared(expected, got);
    return {{QStringLiteral("width"), got.width},
            {QStringLiteral("height"), got.height},
            {QStringLiteral("pixels compared"), tally.pixels},
            {QStringLiteral("pixels that differ"), tally.different},
            {QStringLiteral("by more than a little"), tally.clearly},
            {QStringLiteral("largest difference"), tally.largest},
            {QStringLiteral("block means that differ"), tally.blocks}};
}

} // namespace vantle::vectors

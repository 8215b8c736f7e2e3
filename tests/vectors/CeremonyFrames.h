// The ceremony's frames in cases, and their comparison.
#pragma once

#include "ceremony/show/CeremonyGridModel.h"
#include "vectors/Case.h"

#include <QByteArray>
#include <QJsonObject>

namespace vantle {
class CeremonyFrameRenderer;
}

namespace vantle::vectors {

/// RGBA bytes, rows from the top.
struct Frame {
    int width = 0;
    int height = 0;
    QByteArray rgba;
};

[[nodiscard]] Frame copyOf(const CeremonyFrameRenderer& renderer);

/// Returns the model that the case names in renderer_models.json, beside its file or above. An
/// empty model when missing, which matches no expectation.
[[nodiscard]] CeremonyGridModel referredModel(const Case& item);

/// Whether the frame matches up to rounding. An expected frame has all pixels, or some pixels and
/// the means of blocks.
[[nodiscard]] bool looksLike(const QJsonObject& expected, const Frame& got);

/// Returns the differences, for the report.
[[nodiscard]] QJsonObject difference(const QJsonObject& expected, const Frame& got);

} // namespace vantle::vectors

// Frames of the ceremony as they stand in cases, and how much one may differ from another.
#pragma once

#include "ceremony/show/CeremonyGridModel.h"
#include "vectors/Case.h"

#include <QByteArray>
#include <QJsonObject>

namespace vantle {
class CeremonyFrameRenderer;
}

namespace vantle::vectors {

/// A frame as bytes R, G, B, A, rows from the top.
struct Frame {
    int width = 0;
    int height = 0;
    QByteArray rgba;
};

[[nodiscard]] Frame copyOf(const CeremonyFrameRenderer& renderer);

/// The model that the case names, out of renderer_models.json beside its file or above it. An
/// empty one when it isn't there, which looks like nothing expected.
[[nodiscard]] CeremonyGridModel referredModel(const Case& item);

/// Whether the frame is the expected one, but for rounding: an expected frame is all of its pixels,
/// or some of them and the means of blocks.
[[nodiscard]] bool looksLike(const QJsonObject& expected, const Frame& got);

/// Where it differs, for the report.
[[nodiscard]] QJsonObject difference(const QJsonObject& expected, const Frame& got);

} // namespace vantle::vectors

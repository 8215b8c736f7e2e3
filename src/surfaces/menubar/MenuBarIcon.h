// The cache of tray images.
#pragma once

#include <QHash>
#include <QIcon>

#include <cstdint>

namespace vantle {

/// Draws all sizes that trays use at scale 1 to 3, so that none is scaled. Requires a
/// QGuiApplication. Main thread.
class MenuBarIcon {
public:
    /// The image without a session: the wall, a template image (QIcon::isMask) in the bar's text
    /// colour. `open` adds the plate. Repeated calls are lookups.
    [[nodiscard]] const QIcon& brick(bool open = false);

    /// The image of an open session in the skill's colour, `phase` 0 to 7, which has no effect
    /// while paused. `onLight` is for a light bar. Repeated calls are lookups.
    [[nodiscard]] QIcon statusDot(std::uint32_t hexRGB, int phase, bool paused, bool open = false,
                                  bool onLight = false);

    /// The number of cached dots: per colour at most eight that breathe and a paused one, with and
    /// without the plate, on light and dark bars.
    [[nodiscard]] qsizetype dotCount() const { return m_dotCache.size(); }

private:
    struct Key {
        std::uint32_t hexRGB;
        int phase;
        bool paused;
        bool open;
        bool onLight;
        friend bool operator==(const Key&, const Key&) = default;
        friend size_t qHash(const Key& key, size_t seed) {
            return qHashMulti(seed, key.hexRGB, key.phase, key.paused, key.open, key.onLight);
        }
    };

    QIcon m_brick;
    QIcon m_open;                 ///< the brick on its plate
    QHash<Key, QIcon> m_dotCache; ///< never emptied
};

} // namespace vantle

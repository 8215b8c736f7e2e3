// The tray images, each drawn once and kept.
#pragma once

#include <QHash>
#include <QIcon>

#include <cstdint>

namespace vantle {

/// Draws in code, without image files, at all the sizes that trays ask for on screens of one, two
/// and three pixels a point, so that none has to scale. Main thread, with a QGuiApplication.
class MenuBarIcon {
public:
    MenuBarIcon();

    /// The image of no session: a wall. Only its shape counts (QIcon::isMask), and it takes the
    /// colour of the bar's text. `open` puts it on a plate, as while the panel is open.
    [[nodiscard]] const QIcon& brick(bool open = false) const { return open ? m_open : m_brick; }

    /// The image of an open session in the skill's colour, `phase` 0 to 7; paused, all phases are
    /// one. The second time it is a look-up.
    [[nodiscard]] QIcon statusDot(std::uint32_t hexRGB, int phase, bool paused, bool open = false);

    /// How many dots are kept: for each colour at most eight that breathe and a paused one, with
    /// and without the plate.
    [[nodiscard]] qsizetype dotCount() const { return m_dotCache.size(); }

private:
    struct Key {
        std::uint32_t hexRGB;
        int phase;
        bool paused;
        bool open;
        friend bool operator==(const Key&, const Key&) = default;
        friend size_t qHash(const Key& key, size_t seed) {
            return qHashMulti(seed, key.hexRGB, key.phase, key.paused, key.open);
        }
    };

    QIcon m_brick;
    QIcon m_open;                 ///< the brick on its plate
    QHash<Key, QIcon> m_dotCache; ///< never emptied
};

} // namespace vantle

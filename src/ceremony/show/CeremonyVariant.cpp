#include "ceremony/show/CeremonyVariant.h"

#include <cstddef>

namespace vantle::ceremonyvariant {

QString caption(CeremonyVariant variant) {
    static const std::array<QString, all.size()> captions = {
        QStringLiteral(u"SEQ 01 · SUPERNOVA"), QStringLiteral(u"SEQ 02 · PIXEL RAIN"),
        QStringLiteral(u"SEQ 03 · SCANLINE"), QStringLiteral(u"SEQ 04 · VORTEX"),
        QStringLiteral(u"SEQ 05 · THE WALL")};
    return captions.at(static_cast<std::size_t>(variant));
}

QLatin1String name(CeremonyVariant variant) {
    static constexpr std::array<QLatin1String, all.size()> names = {
        QLatin1String("nova"), QLatin1String("rain"), QLatin1String("scan"),
        QLatin1String("spiral"), QLatin1String("wall")};
    return names.at(static_cast<std::size_t>(variant));
}

} // namespace vantle::ceremonyvariant

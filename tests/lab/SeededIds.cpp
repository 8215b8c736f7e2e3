#include "lab/SeededIds.h"

#include <QUuid>

#include <random>

namespace vantle::tests {

namespace {

std::mt19937_64& source() {
    static std::mt19937_64 source(0);
    return source;
}

} // namespace

void seedIds(std::uint32_t seed) { source().seed(seed); }

} // namespace vantle::tests

// Takes the place of the one in Qt's library for everything that this program links statically.
QUuid QUuid::createUuid() {
    const auto bytes = vantle::tests::source()();
    const auto more = vantle::tests::source()();
    QUuid id;
    id.data1 = uint(bytes);
    id.data2 = ushort(bytes >> 32);
    id.data3 = ushort((bytes >> 48 & 0x0FFF) | 0x4000); // version 4
    for (int i = 0; i < 8; ++i)
        id.data4[i] = uchar(more >> 8 * i);
    id.data4[0] = uchar((id.data4[0] & 0x3F) | 0x80); // the variant of RFC 4122
    return id;
}

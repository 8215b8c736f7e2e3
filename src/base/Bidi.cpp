#include "base/Bidi.h"

#include <QList>

#include <algorithm>

namespace vantle::bidi {

namespace {

constexpr QChar kFirstStrongIsolate(0x2068);
constexpr QChar kPopIsolate(0x2069);

bool readsFromTheRight(char32_t character) {
    const auto direction = QChar::direction(character);
    return direction == QChar::DirR || direction == QChar::DirAL;
}

} // namespace

QString isolated(const QString& part) {
    const QList<uint> characters = part.toUcs4();
    if (std::ranges::none_of(characters, readsFromTheRight)) return part;
    return kFirstStrongIsolate + part + kPopIsolate;
}

} // namespace vantle::bidi

// The bytes of a log in blocks of whole lines.
#pragma once

#include "platform/FileSystem.h"

#include <simdjson.h>

#include <cstring>

namespace vantle::logblocks {

/// Block size for reading the log, in bytes. Longer lines enlarge it.
inline constexpr qsizetype kSize = 1 << 20;

[[nodiscard]] inline bool isUtf8(QByteArrayView bytes) {
    return simdjson::validate_utf8(bytes.data(), static_cast<std::size_t>(bytes.size()));
}

/// Calls `visit` with the rest of the file in blocks of whole lines; the last may lack its line
/// feed. Returns false when the file cannot be read or `visit` returns false.
template <typename Visit>
bool forEach(File& file, Visit visit) {
    QByteArray buffer(kSize, Qt::Uninitialized);
    qsizetype filled = 0;
    for (;;) {
        if (filled == buffer.size()) buffer.resize(buffer.size() * 2);
        const auto count = file.read(buffer.data() + filled, buffer.size() - filled);
        if (!count) return false;
        if (count.value() == 0) break;
        // Only the new bytes can hold the last line feed of a line that spans blocks.
        const QByteArrayView fresh(buffer.constData() + filled, count.value());
        filled += count.value();
        const qsizetype feed = fresh.lastIndexOf('\n');
        if (feed < 0) continue;
        const qsizetype whole = fresh.data() + feed + 1 - buffer.constData();
        if (!visit(QByteArrayView(buffer.constData(), whole))) return false;
        filled -= whole;
        std::memmove(buffer.data(), buffer.constData() + whole, static_cast<std::size_t>(filled));
    }
    return filled == 0 || visit(QByteArrayView(buffer.constData(), filled));
}

} // namespace vantle::logblocks

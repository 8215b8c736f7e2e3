// The input and the assertion of all fuzz targets.
#pragma once

#include <QByteArrayView>

#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace vantle::fuzz {

/// Views the bytes in place, so that the sanitizer detects reads past the end.
[[nodiscard]] inline QByteArrayView viewOf(const std::uint8_t* data, std::size_t size) {
    return {data, static_cast<qsizetype>(size)};
}

/// Aborts when `kept` is false; libFuzzer then keeps the input.
inline void promise(bool kept, const char* what) {
    if (kept) return;
    std::fprintf(stderr, "broken promise: %s\n", what);
    std::abort();
}

} // namespace vantle::fuzz

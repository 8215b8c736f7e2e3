// What every fuzz target needs: the bytes, and a way to say that a promise is broken.
#pragma once

#include <QByteArrayView>

#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace vantle::fuzz {

/// The bytes where they lie, so that the sanitizer sees a read past their end.
[[nodiscard]] inline QByteArrayView viewOf(const std::uint8_t* data, std::size_t size) {
    return {data, static_cast<qsizetype>(size)};
}

/// Ends the run when `kept` is false; libFuzzer then keeps the input.
inline void promise(bool kept, const char* what) {
    if (kept) return;
    std::fprintf(stderr, "broken promise: %s\n", what);
    std::abort();
}

} // namespace vantle::fuzz

// The minimum work of a log reader, as the bound for the program's.
#pragma once

#include <QString>

#include <cstdint>

namespace vantle::bench {

/// Parses all seven fields of each line with simdjson on one thread and drops them. Returns a
/// checksum of all fields, so that the compiler cannot skip any.
[[nodiscard]] std::uint64_t bareParse(const QString& path);

} // namespace vantle::bench

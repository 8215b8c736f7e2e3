// The minimum work of a reader that knows the form of the program's own lines.
#pragma once

#include <QString>

#include <cstdint>

namespace vantle::bench {

/// Reads the log in blocks, checks the UTF-8, finds the fixed keys of each line at their places,
/// reads numbers, ids and dates, and keeps nothing but the notes. Takes lines in canonical form
/// alone; throws for others. Returns a checksum of all fields, so that the compiler cannot skip
/// any.
[[nodiscard]] std::uint64_t formatScan(const QString& path);

} // namespace vantle::bench

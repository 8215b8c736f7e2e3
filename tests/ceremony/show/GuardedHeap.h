// Watches the heap of this test program: every block stands between guard bytes, which are looked
// at when it is given back, and every request is counted.
#pragma once

#include <cstddef>
#include <cstdint>

namespace vantle::tests::guardedheap {

/// Requests since the start of the program.
[[nodiscard]] std::int64_t allocations();

/// Blocks next to which something was written, since the start of the program.
[[nodiscard]] std::int64_t damagedBlocks();

/// Writes a byte behind a block of that size, which is a fault that no compiler can see from here.
void writeBehind(void* block, std::size_t size);

} // namespace vantle::tests::guardedheap

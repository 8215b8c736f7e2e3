// A heap checker for this test program.
//
// Puts guard bytes around every block, checks them when it is freed, and counts allocations.
#pragma once

#include <cstddef>
#include <cstdint>

namespace vantle::tests::guardedheap {

/// Allocations since the start.
[[nodiscard]] std::int64_t allocations();

/// Blocks with damaged guard bytes since the start.
[[nodiscard]] std::int64_t damagedBlocks();

/// Writes past a block, invisibly to the compiler.
void writeBehind(void* block, std::size_t size);

} // namespace vantle::tests::guardedheap

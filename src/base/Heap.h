// The memory of the allocator.
#pragma once

namespace vantle {

/// Returns the allocator's free memory to the system, which it mostly keeps otherwise. Takes about
/// a millisecond. Any thread.
void trimHeap();

} // namespace vantle

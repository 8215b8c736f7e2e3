// Memory that a closed window has left.
#pragma once

namespace vantle {

/// Hands what the allocator holds free back to the system; the allocator by itself keeps most of
/// it. Takes about a millisecond.
void giveMemoryBack();

} // namespace vantle

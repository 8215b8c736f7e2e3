#include "ceremony/show/GuardedHeap.h"

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <new>

namespace {

constexpr std::size_t kGuard = 256; // bytes on each side; a multiple of every plain alignment
constexpr unsigned char kMark = 0xA5;

std::atomic<std::int64_t> allocationCount{0};
std::atomic<std::int64_t> damageCount{0};

bool isWhole(const unsigned char* guard, std::size_t size) {
    return std::all_of(guard, guard + size, [](unsigned char byte) { return byte == kMark; });
}

void* guarded(std::size_t size) {
    ++allocationCount;
    auto* begin = static_cast<unsigned char*>(std::malloc(size + 2 * kGuard));
    if (begin == nullptr) std::abort();
    std::memset(begin, kMark, kGuard);
    std::memcpy(begin, &size, sizeof(size));
    std::memset(begin + kGuard + size, kMark, kGuard);
    return begin + kGuard;
}

void release(void* block) {
    if (block == nullptr) return;
    auto* begin = static_cast<unsigned char*>(block) - kGuard;
    std::size_t size = 0;
    std::memcpy(&size, begin, sizeof(size));
    const bool whole = isWhole(begin + sizeof(size), kGuard - sizeof(size)) &&
                       isWhole(begin + kGuard + size, kGuard);
    if (!whole) ++damageCount;
    std::free(begin);
}

} // namespace

void* operator new(std::size_t size) { return guarded(size); }
void* operator new[](std::size_t size) { return guarded(size); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return guarded(size); }
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept { return guarded(size); }
void operator delete(void* block) noexcept { release(block); }
void operator delete[](void* block) noexcept { release(block); }
void operator delete(void* block, std::size_t) noexcept { release(block); }
void operator delete[](void* block, std::size_t) noexcept { release(block); }
void operator delete(void* block, const std::nothrow_t&) noexcept { release(block); }
void operator delete[](void* block, const std::nothrow_t&) noexcept { release(block); }

namespace vantle::tests::guardedheap {

std::int64_t allocations() { return allocationCount; }
std::int64_t damagedBlocks() { return damageCount; }

void writeBehind(void* block, std::size_t size) { static_cast<unsigned char*>(block)[size] = 1; }

} // namespace vantle::tests::guardedheap

// What holds for every screen: nothing is written beside the buffer, nothing allocated in a frame,
// and colours stay below their alpha.
#include "ceremony/show/GuardedHeap.h"
#include "ceremony/show/SampleShows.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <array>
#include <memory>

namespace vantle {
namespace {

namespace guardedheap = tests::guardedheap;

/// Small screens above all, and now and then a strip or a wall of screens.
rc::Gen<double> side() {
    return rc::gen::map(rc::gen::weightedOneOf<int>({{6, rc::gen::inRange(0, 2000)},
                                                     {6, rc::gen::inRange(0, 12000)},
                                                     {1, rc::gen::inRange(0, 60000)}}),
                        [](int tenths) { return tenths / 10.0; });
}

bool isPremultiplied(std::uint32_t pixel) {
    const std::uint32_t alpha = pixel >> 24;
    return (pixel & 0xFF) <= alpha && (pixel >> 8 & 0xFF) <= alpha && (pixel >> 16 & 0xFF) <= alpha;
}

TEST(GuardedHeap, NoticesAByteBesideABlock) {
    const auto before = guardedheap::damagedBlocks();
    const auto requests = guardedheap::allocations();
    auto block = std::make_unique<std::array<unsigned char, 10>>();
    guardedheap::writeBehind(block.get(), block->size());
    block.reset();
    EXPECT_EQ(guardedheap::damagedBlocks(), before + 1);
    EXPECT_EQ(guardedheap::allocations(), requests + 1);
}

RC_GTEST_PROP(CeremonyFrameProperties, NoScreenMakesAFrameWriteBesideItsBuffer, ()) {
    const auto damaged = guardedheap::damagedBlocks();
    const QSizeF size(*side(), *side());
    const auto variant = *rc::gen::elementOf(
        std::vector<CeremonyVariant>(ceremonyvariant::all.begin(), ceremonyvariant::all.end()));
    {
        CeremonyFrameRenderer renderer = tests::sampleShow(variant, size);
        const auto moments = *rc::gen::container<std::vector<int>>(4, rc::gen::inRange(-20, 330));
        for (const int hundredths : moments) {
            const auto before = guardedheap::allocations();
            renderer.fillField(hundredths / 100.0);
            const auto after = guardedheap::allocations();
            RC_ASSERT(after == before);
            RC_ASSERT(std::ranges::all_of(renderer.fieldBuffer(), isPremultiplied));
        }
    }
    RC_ASSERT(guardedheap::damagedBlocks() == damaged);
}

TEST(CeremonyFrameProperties, EveryMomentOnTheSmallestScreensStaysWithinTheBuffer) {
    const auto damaged = guardedheap::damagedBlocks();
    for (const CeremonyVariant variant : ceremonyvariant::all) {
        for (const QSizeF size : {QSizeF(1, 1), QSizeF(24, 24), QSizeF(27, 24), QSizeF(24, 31)}) {
            CeremonyFrameRenderer renderer = tests::sampleShow(variant, size);
            for (int frame = 0; frame < 187; ++frame)
                renderer.fillField(frame / 60.0);
        }
    }
    EXPECT_EQ(guardedheap::damagedBlocks(), damaged);
}

} // namespace
} // namespace vantle

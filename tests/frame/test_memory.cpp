#include <gtest/gtest.h>

#include <cstdint>

#include "alloc_fault.h"
#include "tavs.h"

namespace {

bool aligned64(const void* p) { return (reinterpret_cast<uintptr_t>(p) & 63) == 0; }

template <class T, class F> void check_malloc(F fn, size_t elemSize)
{
    EXPECT_EQ(sizeof(T), elemSize);
    EXPECT_EQ(fn(0), nullptr);
    EXPECT_EQ(fn(-1), nullptr);
    EXPECT_EQ(fn(INT32_MIN), nullptr);
    for (int len : {1, 3, 64, 1000}) {
        T* p = fn(len);
        ASSERT_NE(p, nullptr);
        EXPECT_TRUE(aligned64(p));
        // The whole block is usable (ASan reports an overrun otherwise).
        auto* bytes = reinterpret_cast<unsigned char*>(p);
        for (size_t i = 0; i < size_t(len) * elemSize; ++i) bytes[i] = static_cast<unsigned char>(i);
        tavsFree(p);
    }
}

TEST(Malloc, EveryTypeAlignedAndSized)
{
    check_malloc<Tav8u>(tavsMalloc_8u, 1);
    check_malloc<Tav8s>(tavsMalloc_8s, 1);
    check_malloc<Tav16u>(tavsMalloc_16u, 2);
    check_malloc<Tav16s>(tavsMalloc_16s, 2);
    check_malloc<Tav8sc>(tavsMalloc_8sc, 2);
    check_malloc<Tav32u>(tavsMalloc_32u, 4);
    check_malloc<Tav32s>(tavsMalloc_32s, 4);
    check_malloc<Tav32f>(tavsMalloc_32f, 4);
    check_malloc<Tav16sc>(tavsMalloc_16sc, 4);
    check_malloc<Tav32fc>(tavsMalloc_32fc, 8);
    check_malloc<Tav32sc>(tavsMalloc_32sc, 8);
    check_malloc<Tav64s>(tavsMalloc_64s, 8);
    check_malloc<Tav64f>(tavsMalloc_64f, 8);
    check_malloc<Tav64fc>(tavsMalloc_64fc, 16);
    check_malloc<Tav64sc>(tavsMalloc_64sc, 16);
}

TEST(Malloc, WrappedSizeReachesTheCoreAsItIs)
{
    // 268435456 * 16 wraps to 0 in 32 bits; the core refuses a size of 0.
    const long before = tt::alloc_calls();
    EXPECT_EQ(tavsMalloc_64fc(268435456), nullptr);
    EXPECT_EQ(tt::alloc_calls(), before + 1);
    // A negative length never reaches the core.
    EXPECT_EQ(tavsMalloc_64fc(-5), nullptr);
    EXPECT_EQ(tt::alloc_calls(), before + 1);
}

TEST(Malloc, FailureIsNull)
{
    tt::fail_alloc_at(1);
    EXPECT_EQ(tavsMalloc_32f(10), nullptr);
    Tav32f* p = tavsMalloc_32f(10);
    EXPECT_NE(p, nullptr);
    tavsFree(p);
}

TEST(Malloc, FreeOfNullDoesNothing)
{
    const long live = tt::live_blocks();
    tavsFree(nullptr);
    EXPECT_EQ(tt::live_blocks(), live);
}

} // namespace

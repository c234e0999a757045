#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "tavs.h"
#include "test_util.h"

namespace {

std::vector<unsigned char> random_bytes(tt::Rng& r, size_t n)
{
    std::vector<unsigned char> v(n);
    for (auto& b : v)
        b = static_cast<unsigned char>(r.next());
    return v;
}

// Every overlap direction and distance: src at byte base + srcAt, dst at
// byte base + dstAt for all placements of the two ranges within a window
// that also holds them apart; the whole buffer must equal what memmove
// leaves, so nothing outside the destination changes either.
template <class T, class F> void check_move_against_memmove(F fn, const std::vector<int>& lens, size_t base)
{
    tt::Rng r(11 + sizeof(T));
    for (int len : lens) {
        const size_t bytes = size_t(len) * sizeof(T);
        const size_t window = 2 * bytes + 2 * sizeof(T);
        std::vector<unsigned char> buf0 = random_bytes(r, window + base + 32);
        for (size_t srcAt = 0; srcAt + bytes <= window; srcAt += bytes / 2 + sizeof(T)) {
            for (size_t dstAt = 0; dstAt + bytes <= window; dstAt += sizeof(T)) {
                std::vector<unsigned char> got = buf0, want = buf0;
                std::memmove(want.data() + base + dstAt, want.data() + base + srcAt, bytes);
                const T* s = reinterpret_cast<const T*>(got.data() + base + srcAt);
                T* d = reinterpret_cast<T*>(got.data() + base + dstAt);
                ASSERT_EQ(fn(s, d, len), StatusOk);
                ASSERT_EQ(got, want) << "len " << len << " src " << srcAt << " dst " << dstAt << " base "
                                     << base;
            }
        }
    }
}

template <class T, class F> void check_errors(F fn)
{
    tt::Guarded<T> g(4);
    T src[4] = {};
    EXPECT_EQ(fn(nullptr, g.data(), 4), ErrNullPtr);
    EXPECT_EQ(fn(src, nullptr, 4), ErrNullPtr);
    EXPECT_EQ(fn(nullptr, nullptr, 0), ErrNullPtr); // pointers are tested first
    EXPECT_EQ(fn(nullptr, g.data(), -1), ErrNullPtr);
    EXPECT_EQ(fn(src, g.data(), 0), ErrSize);
    EXPECT_EQ(fn(src, g.data(), -1), ErrSize);
    EXPECT_EQ(fn(src, g.data(), INT32_MIN), ErrSize);
    EXPECT_TRUE(g.untouched());
}

std::vector<int> short_lens()
{
    std::vector<int> v;
    for (int len = 1; len <= 70; ++len)
        v.push_back(len);
    return v;
}

TEST(Move, EveryElementSizeAgainstMemmove)
{
    // Byte elements reach every byte distance; the bodies of the other
    // sizes are shared, so one name per size takes the long sweep.
    for (size_t base : {0u, 5u, 8u}) {
        check_move_against_memmove<Tav8u>(tavsMove_8u, short_lens(), base);
        check_move_against_memmove<Tav16s>(tavsMove_16s, {1, 2, 7, 8, 9, 31, 32, 33, 40, 70}, base);
        check_move_against_memmove<Tav32f>(tavsMove_32f, {1, 3, 4, 5, 15, 16, 17, 20, 33, 70}, base);
        check_move_against_memmove<Tav64f>(tavsMove_64f, {1, 2, 3, 7, 8, 9, 16, 35}, base);
        check_move_against_memmove<Tav64fc>(tavsMove_64fc, {1, 2, 3, 4, 5, 9, 17}, base);
    }
    // Long runs in both directions.
    check_move_against_memmove<Tav8u>(tavsMove_8u, {255, 256, 257, 1000}, 3);
    check_move_against_memmove<Tav32s>(tavsMove_32s, {97, 128}, 1);
}

TEST(Move, EveryNameMovesItsElementSize)
{
    const std::vector<int> lens = {1, 5, 19, 40};
    check_move_against_memmove<Tav16sc>(tavsMove_16sc, lens, 2);
    check_move_against_memmove<Tav32s>(tavsMove_32s, lens, 0);
    check_move_against_memmove<Tav32fc>(tavsMove_32fc, lens, 4);
    check_move_against_memmove<Tav32sc>(tavsMove_32sc, lens, 1);
    check_move_against_memmove<Tav64s>(tavsMove_64s, lens, 0);
    check_move_against_memmove<Tav64sc>(tavsMove_64sc, lens, 3);
}

TEST(Move, ErrorsInOrderAndNothingWritten)
{
    check_errors<Tav8u>(tavsMove_8u);
    check_errors<Tav16s>(tavsMove_16s);
    check_errors<Tav16sc>(tavsMove_16sc);
    check_errors<Tav32f>(tavsMove_32f);
    check_errors<Tav32s>(tavsMove_32s);
    check_errors<Tav32fc>(tavsMove_32fc);
    check_errors<Tav32sc>(tavsMove_32sc);
    check_errors<Tav64f>(tavsMove_64f);
    check_errors<Tav64s>(tavsMove_64s);
    check_errors<Tav64fc>(tavsMove_64fc);
    check_errors<Tav64sc>(tavsMove_64sc);
}

TEST(Move, OneElementUpShiftsWithoutSmearing)
{
    for (int len : {1, 2, 15, 16, 17, 100}) {
        std::vector<Tav32f> v(size_t(len) + 1);
        for (int i = 0; i <= len; ++i)
            v[size_t(i)] = float(i) + 0.5f;
        ASSERT_EQ(tavsMove_32f(v.data(), v.data() + 1, len), StatusOk);
        EXPECT_EQ(v[0], 0.5f);
        for (int i = 1; i <= len; ++i)
            ASSERT_EQ(v[size_t(i)], float(i - 1) + 0.5f) << len << " " << i;
    }
}

TEST(Move, OneElementDownShiftsWithoutSmearing)
{
    std::vector<Tav64s> v(101);
    for (int i = 0; i <= 100; ++i)
        v[size_t(i)] = i * 3;
    ASSERT_EQ(tavsMove_64s(v.data() + 1, v.data(), 100), StatusOk);
    for (int i = 0; i < 100; ++i)
        ASSERT_EQ(v[size_t(i)], (i + 1) * 3);
    EXPECT_EQ(v[100], 300);
}

TEST(Move, SameVectorIsUnchanged)
{
    tt::Rng r(3);
    std::vector<unsigned char> v = random_bytes(r, 300), before = v;
    ASSERT_EQ(tavsMove_8u(v.data(), v.data(), 300), StatusOk);
    EXPECT_EQ(v, before);
}

} // namespace

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <vector>

#include "tavs.h"
#include "test_util.h"

namespace {

template <class T> T random_value(tt::Rng& r)
{
    T v;
    unsigned char b[sizeof(T)];
    for (auto& x : b)
        x = static_cast<unsigned char>(r.next());
    std::memcpy(&v, b, sizeof(T));
    return v;
}

// Every element of dst holds the bytes of val, at every length 1..70 and
// beyond the 64-byte steps, for destination offsets 0..15; nothing outside
// is written.
template <class T, class F> void check_set(F fn)
{
    tt::Rng r(21 + sizeof(T));
    std::vector<int> lens;
    for (int len = 1; len <= 70; ++len)
        lens.push_back(len);
    for (int len : {127, 128, 129, 300})
        lens.push_back(len);
    for (int len : lens)
        for (size_t off = 0; off < 16; ++off) {
            const T val = random_value<T>(r);
            tt::Guarded<T> g(size_t(len), off);
            ASSERT_EQ(fn(val, g.data(), len), StatusOk);
            // Compared as bytes: the destination may be misaligned for T.
            const auto* bytes = reinterpret_cast<const unsigned char*>(g.data());
            for (int i = 0; i < len; ++i)
                ASSERT_EQ(std::memcmp(bytes + size_t(i) * sizeof(T), &val, sizeof(T)), 0)
                    << "len " << len << " off " << off << " i " << i;
            ASSERT_TRUE(g.borders_intact()) << "len " << len << " off " << off;
        }
    // Errors: the pointer first, then the length; nothing written.
    tt::Guarded<T> g(4);
    const T val = random_value<T>(r);
    EXPECT_EQ(fn(val, nullptr, 4), ErrNullPtr);
    EXPECT_EQ(fn(val, nullptr, 0), ErrNullPtr);
    EXPECT_EQ(fn(val, nullptr, INT32_MIN), ErrNullPtr);
    EXPECT_EQ(fn(val, g.data(), 0), ErrSize);
    EXPECT_EQ(fn(val, g.data(), -1), ErrSize);
    EXPECT_EQ(fn(val, g.data(), INT32_MIN), ErrSize);
    EXPECT_TRUE(g.untouched());
}

TEST(Set, EveryTypeLengthAndOffset)
{
    check_set<Tav8u>(tavsSet_8u);
    check_set<Tav16s>(tavsSet_16s);
    check_set<Tav16sc>(tavsSet_16sc);
    check_set<Tav32f>(tavsSet_32f);
    check_set<Tav32s>(tavsSet_32s);
    check_set<Tav32fc>(tavsSet_32fc);
    check_set<Tav32sc>(tavsSet_32sc);
    check_set<Tav64f>(tavsSet_64f);
    check_set<Tav64s>(tavsSet_64s);
    check_set<Tav64fc>(tavsSet_64fc);
    check_set<Tav64sc>(tavsSet_64sc);
}

TEST(Set, ComplexValueRealPartFirst)
{
    Tav16sc a[3];
    ASSERT_EQ(tavsSet_16sc(Tav16sc{-32768, 7}, a, 3), StatusOk);
    for (auto& x : a)
        EXPECT_TRUE(x.re == -32768 && x.im == 7);
    Tav32sc b[2];
    ASSERT_EQ(tavsSet_32sc(Tav32sc{1, -2}, b, 2), StatusOk);
    for (auto& x : b)
        EXPECT_TRUE(x.re == 1 && x.im == -2);
    Tav32fc c[5];
    ASSERT_EQ(tavsSet_32fc(Tav32fc{1.5f, -0.0f}, c, 5), StatusOk);
    for (auto& x : c)
        EXPECT_TRUE(x.re == 1.5f && x.im == 0.0f && std::signbit(x.im));
    Tav64fc d[4];
    ASSERT_EQ(tavsSet_64fc(Tav64fc{-2.25, 3.0}, d, 4), StatusOk);
    for (auto& x : d)
        EXPECT_TRUE(x.re == -2.25 && x.im == 3.0);
    Tav64sc e[2];
    ASSERT_EQ(tavsSet_64sc(Tav64sc{INT64_MIN, INT64_MAX}, e, 2), StatusOk);
    for (auto& x : e)
        EXPECT_TRUE(x.re == INT64_MIN && x.im == INT64_MAX);
}

TEST(Set, FloatBitsStoredAsGiven)
{
    // A signalling NaN and a negative zero keep their bits.
    const uint32_t snan = 0x7f800001u;
    float f;
    std::memcpy(&f, &snan, 4);
    Tav32f v[9];
    ASSERT_EQ(tavsSet_32f(f, v, 9), StatusOk);
    for (auto& x : v)
        EXPECT_TRUE(tt::same_bits(x, f));
    Tav64f w[3];
    ASSERT_EQ(tavsSet_64f(-0.0, w, 3), StatusOk);
    for (auto& x : w)
        EXPECT_TRUE(x == 0.0 && std::signbit(x));
}

} // namespace

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <vector>

#include "tavs.h"
#include "test_util.h"

namespace {

template <class T, class F> void check_copy(F fn)
{
    tt::Rng r(7);
    for (int len = 1; len <= 70; ++len)
        for (size_t off = 0; off < 16; off += 5) {
            std::vector<unsigned char> src(size_t(len) * sizeof(T) + 16);
            for (auto& b : src) b = static_cast<unsigned char>(r.next());
            const T* s = reinterpret_cast<const T*>(src.data() + (off * 3) % 16);
            tt::Guarded<T> g(size_t(len), off);
            ASSERT_EQ(fn(s, g.data(), len), StatusOk);
            ASSERT_EQ(std::memcmp(g.data(), s, size_t(len) * sizeof(T)), 0);
            ASSERT_TRUE(g.borders_intact());
        }
    tt::Guarded<T> g(4);
    T src[4] = {};
    EXPECT_EQ(fn(nullptr, g.data(), 4), ErrNullPtr);
    EXPECT_EQ(fn(src, nullptr, 4), ErrNullPtr);
    EXPECT_EQ(fn(nullptr, nullptr, 0), ErrNullPtr);
    EXPECT_EQ(fn(src, g.data(), 0), ErrSize);
    EXPECT_EQ(fn(src, g.data(), -1), ErrSize);
    EXPECT_EQ(fn(src, g.data(), INT32_MIN), ErrSize);
    EXPECT_TRUE(g.untouched());
}

TEST(Copy, EveryType)
{
    check_copy<Tav8u>(tavsCopy_8u);
    check_copy<Tav16s>(tavsCopy_16s);
    check_copy<Tav16sc>(tavsCopy_16sc);
    check_copy<Tav32f>(tavsCopy_32f);
    check_copy<Tav32s>(tavsCopy_32s);
    check_copy<Tav32fc>(tavsCopy_32fc);
    check_copy<Tav32sc>(tavsCopy_32sc);
    check_copy<Tav64f>(tavsCopy_64f);
    check_copy<Tav64s>(tavsCopy_64s);
    check_copy<Tav64fc>(tavsCopy_64fc);
    check_copy<Tav64sc>(tavsCopy_64sc);
}

TEST(Copy, EveryByteLengthAndAlignment)
{
    // Short and long byte lengths, every source and destination
    // offset inside a 16-byte line.
    tt::Rng r(9);
    std::vector<int> lens;
    for (int len = 1; len <= 140; ++len) lens.push_back(len);
    for (int len : {255, 256, 257, 1000}) lens.push_back(len);
    for (int len : lens)
        for (size_t so = 0; so < 16; ++so)
            for (size_t dof = 0; dof < 16; dof += (len > 140 ? 5 : 1)) {
                std::vector<unsigned char> src(size_t(len) + so);
                for (auto& b : src) b = static_cast<unsigned char>(r.next());
                tt::Guarded<Tav8u> g(size_t(len), dof);
                ASSERT_EQ(tavsCopy_8u(src.data() + so, g.data(), len), StatusOk);
                ASSERT_EQ(std::memcmp(g.data(), src.data() + so, size_t(len)), 0) << len << " " << so << " " << dof;
                ASSERT_TRUE(g.borders_intact());
            }
}

TEST(Copy, SharedBodyCopiesComplexBitForBit)
{
    // tavsCopy_64f moves a 32fc vector bit for bit, signalling NaNs included.
    Tav32fc src[3], dst[3];
    const uint32_t snan = 0x7f800001u, other = 0xffa00005u;
    std::memcpy(&src[0].re, &snan, 4);
    std::memcpy(&src[0].im, &other, 4);
    src[1] = {-0.0f, 1.5f};
    src[2] = {INFINITY, -3.0f};
    ASSERT_EQ(tavsCopy_64f(reinterpret_cast<const Tav64f*>(src), reinterpret_cast<Tav64f*>(dst), 3), StatusOk);
    EXPECT_EQ(std::memcmp(src, dst, sizeof src), 0);
}

} // namespace

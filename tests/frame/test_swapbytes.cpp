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

// Plain reference: each element of e bytes with its bytes reversed (for
// three bytes: first and third exchanged, the middle one kept).
std::vector<unsigned char> swapped(const unsigned char* s, size_t len, size_t e)
{
    std::vector<unsigned char> out(len * e);
    for (size_t i = 0; i < len; ++i)
        for (size_t j = 0; j < e; ++j)
            out[i * e + j] = s[i * e + e - 1 - j];
    return out;
}

// E bytes per element; T the element type of the prototype (Tav8u for the
// packed 3-byte form, whose len counts elements of 3 bytes).
template <size_t E, class T, class F, class FI> void check_swap(F fn, FI fnI)
{
    tt::Rng r(41 + E);
    std::vector<int> lens;
    for (int len = 1; len <= 70; ++len)
        lens.push_back(len);
    for (int len : {255, 256, 257})
        lens.push_back(len);
    constexpr size_t perElem = E / sizeof(T); // T units per element
    for (int len : lens)
        for (size_t off = 0; off < 16; ++off) {
            const size_t n = size_t(len) * E;
            // The source ends where the vector ends, so an overread shows under ASan.
            const size_t so = (off * 5 + 1) % 16;
            std::vector<unsigned char> src = random_bytes(r, n + so);
            const unsigned char* s = src.data() + so;
            const auto want = swapped(s, size_t(len), E);
            tt::Guarded<T> g(size_t(len) * perElem, off);
            ASSERT_EQ(fn(reinterpret_cast<const T*>(s), g.data(), len), StatusOk);
            ASSERT_EQ(std::memcmp(g.data(), want.data(), n), 0) << "len " << len << " off " << off;
            ASSERT_TRUE(g.borders_intact());
            tt::Guarded<T> h(size_t(len) * perElem, off);
            std::memcpy(h.data(), s, n);
            ASSERT_EQ(fnI(h.data(), len), StatusOk);
            ASSERT_EQ(std::memcmp(h.data(), want.data(), n), 0) << "in place len " << len << " off " << off;
            ASSERT_TRUE(h.borders_intact());
            tt::Guarded<T> k(size_t(len) * perElem, off);
            std::memcpy(k.data(), s, n);
            ASSERT_EQ(fn(k.data(), k.data(), len), StatusOk);
            ASSERT_EQ(std::memcmp(k.data(), want.data(), n), 0)
                << "same vector len " << len << " off " << off;
        }
    // Errors: pointers first, then the length; nothing written.
    tt::Guarded<T> g(4 * perElem);
    T src[4 * perElem] = {};
    EXPECT_EQ(fn(nullptr, g.data(), 4), ErrNullPtr);
    EXPECT_EQ(fn(src, nullptr, 4), ErrNullPtr);
    EXPECT_EQ(fn(nullptr, nullptr, 0), ErrNullPtr);
    EXPECT_EQ(fn(src, g.data(), 0), ErrSize);
    EXPECT_EQ(fn(src, g.data(), -1), ErrSize);
    EXPECT_EQ(fn(src, g.data(), INT32_MIN), ErrSize);
    EXPECT_EQ(fnI(nullptr, 4), ErrNullPtr);
    EXPECT_EQ(fnI(nullptr, 0), ErrNullPtr);
    EXPECT_EQ(fnI(g.data(), 0), ErrSize);
    EXPECT_EQ(fnI(g.data(), -1), ErrSize);
    EXPECT_EQ(fnI(g.data(), INT32_MIN), ErrSize);
    EXPECT_TRUE(g.untouched());
}

TEST(SwapBytes, EveryTypeLengthAndOffset)
{
    check_swap<2, Tav16u>(tavsSwapBytes_16u, tavsSwapBytes_16u_I);
    check_swap<3, Tav8u>(tavsSwapBytes_24u, tavsSwapBytes_24u_I);
    check_swap<4, Tav32u>(tavsSwapBytes_32u, tavsSwapBytes_32u_I);
    check_swap<8, Tav64u>(tavsSwapBytes_64u, tavsSwapBytes_64u_I);
}

TEST(SwapBytes, KnownValues)
{
    Tav16u a = 0x1234;
    Tav32u b = 0x12345678u;
    Tav64u c = 0x0102030405060708ull;
    Tav8u d[6] = {1, 2, 3, 4, 5, 6};
    ASSERT_EQ(tavsSwapBytes_16u_I(&a, 1), StatusOk);
    ASSERT_EQ(tavsSwapBytes_32u_I(&b, 1), StatusOk);
    ASSERT_EQ(tavsSwapBytes_64u_I(&c, 1), StatusOk);
    ASSERT_EQ(tavsSwapBytes_24u_I(d, 2), StatusOk);
    EXPECT_EQ(a, 0x3412);
    EXPECT_EQ(b, 0x78563412u);
    EXPECT_EQ(c, 0x0807060504030201ull);
    const Tav8u want[6] = {3, 2, 1, 6, 5, 4};
    EXPECT_EQ(std::memcmp(d, want, 6), 0);
}

// The out-of-place 3-byte form takes overlapping vectors: every distance
// in both directions gives the bytes of a swap through a copy of the
// source, and nothing beyond the destination changes.
TEST(SwapBytes, Overlapping24uActsAsThroughACopy)
{
    tt::Rng r(5);
    for (int len : {1, 2, 5, 16, 17, 33, 40}) {
        const size_t n = 3 * size_t(len);
        const size_t window = 2 * n + 3;
        const std::vector<unsigned char> buf0 = random_bytes(r, window);
        for (size_t srcAt : {size_t(0), n / 2 + 1, n + 3})
            for (size_t dstAt = 0; dstAt + n <= window; ++dstAt) {
                if (srcAt + n > window) continue;
                std::vector<unsigned char> got = buf0, want = buf0;
                const auto sw = swapped(buf0.data() + srcAt, size_t(len), 3);
                std::memcpy(want.data() + dstAt, sw.data(), n);
                ASSERT_EQ(tavsSwapBytes_24u(got.data() + srcAt, got.data() + dstAt, len), StatusOk);
                ASSERT_EQ(got, want) << "len " << len << " src " << srcAt << " dst " << dstAt;
            }
    }
}

} // namespace

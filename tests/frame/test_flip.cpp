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

// Plain reference: element i of the result is element len-1-i of src, moved
// as whole bytes.
std::vector<unsigned char> flipped(const unsigned char* s, size_t len, size_t e)
{
    std::vector<unsigned char> out(len * e);
    for (size_t i = 0; i < len; ++i)
        std::memcpy(out.data() + i * e, s + (len - 1 - i) * e, e);
    return out;
}

template <class T, class F, class FI> void check_flip(F fn, FI fnI)
{
    tt::Rng r(31 + sizeof(T));
    std::vector<int> lens;
    for (int len = 1; len <= 70; ++len)
        lens.push_back(len);
    for (int len : {255, 256, 257})
        lens.push_back(len);
    for (int len : lens)
        for (size_t off = 0; off < 16; ++off) {
            const size_t n = size_t(len) * sizeof(T);
            // Out of place, source offset independent of the destination's.
            // The source ends where the vector ends, so an overread shows under ASan.
            const size_t so = (off * 7 + 3) % 16;
            std::vector<unsigned char> src = random_bytes(r, n + so);
            const unsigned char* s = src.data() + so;
            const auto want = flipped(s, size_t(len), sizeof(T));
            tt::Guarded<T> g(size_t(len), off);
            ASSERT_EQ(fn(reinterpret_cast<const T*>(s), g.data(), len), StatusOk);
            ASSERT_EQ(std::memcmp(g.data(), want.data(), n), 0) << "len " << len << " off " << off;
            ASSERT_TRUE(g.borders_intact());
            // In place gives the same result.
            tt::Guarded<T> h(size_t(len), off);
            std::memcpy(h.data(), s, n);
            ASSERT_EQ(fnI(h.data(), len), StatusOk);
            ASSERT_EQ(std::memcmp(h.data(), want.data(), n), 0) << "in place len " << len << " off " << off;
            ASSERT_TRUE(h.borders_intact());
            // The out-of-place form with src == dst works in place.
            tt::Guarded<T> k(size_t(len), off);
            std::memcpy(k.data(), s, n);
            ASSERT_EQ(fn(k.data(), k.data(), len), StatusOk);
            ASSERT_EQ(std::memcmp(k.data(), want.data(), n), 0)
                << "same vector len " << len << " off " << off;
            ASSERT_TRUE(k.borders_intact());
        }
    // Errors: pointers first, then the length; nothing written.
    tt::Guarded<T> g(4);
    T src[4] = {};
    EXPECT_EQ(fn(nullptr, g.data(), 4), ErrNullPtr);
    EXPECT_EQ(fn(src, nullptr, 4), ErrNullPtr);
    EXPECT_EQ(fn(nullptr, nullptr, 4), ErrNullPtr);
    EXPECT_EQ(fn(nullptr, g.data(), 0), ErrNullPtr);
    EXPECT_EQ(fn(src, g.data(), 0), ErrSize);
    EXPECT_EQ(fn(src, g.data(), -1), ErrSize);
    EXPECT_EQ(fn(src, g.data(), INT32_MIN), ErrSize);
    EXPECT_EQ(fn(g.data(), g.data(), 0), ErrSize);
    EXPECT_EQ(fnI(nullptr, 4), ErrNullPtr);
    EXPECT_EQ(fnI(nullptr, -1), ErrNullPtr);
    EXPECT_EQ(fnI(g.data(), 0), ErrSize);
    EXPECT_EQ(fnI(g.data(), -1), ErrSize);
    EXPECT_EQ(fnI(g.data(), INT32_MIN), ErrSize);
    EXPECT_TRUE(g.untouched());
}

TEST(Flip, EveryTypeLengthAndOffset)
{
    check_flip<Tav8u>(tavsFlip_8u, tavsFlip_8u_I);
    check_flip<Tav16u>(tavsFlip_16u, tavsFlip_16u_I);
    check_flip<Tav32f>(tavsFlip_32f, tavsFlip_32f_I);
    check_flip<Tav32fc>(tavsFlip_32fc, tavsFlip_32fc_I);
    check_flip<Tav64f>(tavsFlip_64f, tavsFlip_64f_I);
    check_flip<Tav64fc>(tavsFlip_64fc, tavsFlip_64fc_I);
}

TEST(Flip, SameVectorReversesInPlace16u)
{
    std::vector<Tav16u> v(37);
    for (size_t i = 0; i < v.size(); ++i)
        v[i] = Tav16u(1000 + i);
    ASSERT_EQ(tavsFlip_16u(v.data(), v.data(), 37), StatusOk);
    for (size_t i = 0; i < v.size(); ++i)
        ASSERT_EQ(v[i], Tav16u(1000 + 36 - i));
}

TEST(Flip, ComplexElementsKeepTheirParts)
{
    Tav32fc a[3] = {{1, 2}, {3, 4}, {5, 6}}, b[3];
    ASSERT_EQ(tavsFlip_32fc(a, b, 3), StatusOk);
    EXPECT_TRUE(b[0].re == 5 && b[0].im == 6 && b[1].re == 3 && b[1].im == 4 && b[2].re == 1 && b[2].im == 2);
    Tav64fc c[2] = {{1, 2}, {3, 4}};
    ASSERT_EQ(tavsFlip_64fc_I(c, 2), StatusOk);
    EXPECT_TRUE(c[0].re == 3 && c[0].im == 4 && c[1].re == 1 && c[1].im == 2);
}

TEST(Flip, FloatBitsMoveUnchanged)
{
    const uint64_t snan = 0x7ff0000000000001ull;
    Tav64f a[3], b[3];
    std::memcpy(&a[0], &snan, 8);
    a[1] = -0.0;
    a[2] = 1.0;
    ASSERT_EQ(tavsFlip_64f(a, b, 3), StatusOk);
    EXPECT_TRUE(tt::same_bits(b[2], a[0]) && tt::same_bits(b[1], a[1]) && b[0] == 1.0);
}

} // namespace

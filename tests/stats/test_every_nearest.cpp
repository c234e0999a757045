#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

#include "extrema_ref.h"
#include "stats_ref.h"
#include "tavs.h"
#include "test_util.h"

namespace {

template <class T> T pick(T a, T b, bool isMax) { return isMax ? (a > b ? a : b) : (a < b ? a : b); }

// Out-of-place forms: every length and offsets of sources and destination.
template <class T, class F> void check_every(F fn, bool isMax, int seed)
{
    tt::Rng r{uint64_t(seed)};
    for (int n = 1; n <= 70; ++n)
        for (int off = 0; off < 16; ++off) {
            auto a = xref::data<T>(r, size_t(n + 16)), b = xref::data<T>(r, size_t(n + 16));
            tt::Guarded<T> d(size_t(n), size_t(off) * sizeof(T));
            ASSERT_EQ(fn(a.data() + off, b.data() + (15 - off), d.data(), Tav32u(n)), StatusOk);
            for (int i = 0; i < n; ++i)
                ASSERT_TRUE(tt::same_bits(d.data()[i], pick(a[size_t(off + i)], b[size_t(15 - off + i)], isMax)))
                    << "n=" << n << " i=" << i;
            ASSERT_TRUE(d.borders_intact());
        }
    // Identical source and destination pointers give the element-wise result.
    for (int n : {3, 7, 64, 1025}) {
        auto a = xref::data<T>(r, size_t(n)), b = xref::data<T>(r, size_t(n));
        auto a0 = a, b0 = b;
        ASSERT_EQ(fn(a.data(), b.data(), a.data(), Tav32u(n)), StatusOk);
        ASSERT_EQ(fn(a0.data(), b.data(), b.data(), Tav32u(n)), StatusOk);
        for (int i = 0; i < n; ++i) {
            ASSERT_TRUE(tt::same_bits(a[size_t(i)], pick(a0[size_t(i)], b0[size_t(i)], isMax)));
            ASSERT_TRUE(tt::same_bits(b[size_t(i)], pick(a0[size_t(i)], b0[size_t(i)], isMax)));
        }
    }
    // A destination a little ahead of a source: the result is that of the
    // element-by-element walk, which reads what it has just written.
    for (int shift = 1; shift < 6; ++shift)
        for (int n : {6, 7, 8, 40}) {
            std::vector<T> buf = xref::data<T>(r, size_t(n + shift)), b = xref::data<T>(r, size_t(n));
            std::vector<T> want = buf;
            for (int i = 0; i < n; ++i) want[size_t(i + shift)] = pick(want[size_t(i)], b[size_t(i)], isMax);
            ASSERT_EQ(fn(buf.data(), b.data(), buf.data() + shift, Tav32u(n)), StatusOk);
            for (size_t i = 0; i < buf.size(); ++i) ASSERT_TRUE(tt::same_bits(buf[i], want[i])) << shift << " " << n;
        }
    T s[2] = {};
    tt::Guarded<T> g(2);
    EXPECT_EQ(fn(nullptr, s, g.data(), 0u), ErrNullPtr);
    EXPECT_EQ(fn(s, nullptr, g.data(), 2u), ErrNullPtr);
    EXPECT_EQ(fn(s, s, nullptr, 2u), ErrNullPtr);
    EXPECT_EQ(fn(s, s, g.data(), 0u), ErrSize);
    EXPECT_TRUE(g.untouched());
}

TEST(Every, OutOfPlace)
{
    check_every<Tav8u>(tavsMaxEvery_8u, true, 1);
    check_every<Tav16u>(tavsMaxEvery_16u, true, 2);
    check_every<Tav32f>(tavsMaxEvery_32f, true, 3);
    check_every<Tav64f>(tavsMaxEvery_64f, true, 4);
    check_every<Tav8u>(tavsMinEvery_8u, false, 5);
    check_every<Tav16u>(tavsMinEvery_16u, false, 6);
    check_every<Tav32f>(tavsMinEvery_32f, false, 7);
    check_every<Tav64f>(tavsMinEvery_64f, false, 8);
}

template <class T, class F> void check_every_in(F fn, bool isMax, int seed)
{
    tt::Rng r{uint64_t(seed)};
    for (int n = 1; n <= 70; ++n)
        for (int off = 0; off < 16; ++off) {
            auto a = xref::data<T>(r, size_t(n + 16)), b = xref::data<T>(r, size_t(n));
            tt::Guarded<T> d(size_t(n), size_t(off) * sizeof(T));
            std::copy(b.begin(), b.end(), d.data());
            ASSERT_EQ(fn(a.data() + off, d.data(), n), StatusOk);
            for (int i = 0; i < n; ++i)
                ASSERT_TRUE(tt::same_bits(d.data()[i], pick(a[size_t(off + i)], b[size_t(i)], isMax))) << n;
            ASSERT_TRUE(d.borders_intact());
        }
    T s[2] = {};
    tt::Guarded<T> g(2);
    EXPECT_EQ(fn(nullptr, g.data(), 0), ErrNullPtr);
    EXPECT_EQ(fn(s, nullptr, 2), ErrNullPtr);
    EXPECT_EQ(fn(s, g.data(), 0), ErrSize);
    EXPECT_EQ(fn(s, g.data(), -1), ErrSize);
    EXPECT_EQ(fn(s, g.data(), INT32_MIN), ErrSize);
    EXPECT_TRUE(g.untouched());
}

TEST(Every, InPlace)
{
    check_every_in<Tav8u>(tavsMaxEvery_8u_I, true, 11);
    check_every_in<Tav16u>(tavsMaxEvery_16u_I, true, 12);
    check_every_in<Tav16s>(tavsMaxEvery_16s_I, true, 13);
    check_every_in<Tav32s>(tavsMaxEvery_32s_I, true, 14);
    check_every_in<Tav32f>(tavsMaxEvery_32f_I, true, 15);
    check_every_in<Tav64f>(tavsMaxEvery_64f_I, true, 16);
    check_every_in<Tav8u>(tavsMinEvery_8u_I, false, 17);
    check_every_in<Tav16u>(tavsMinEvery_16u_I, false, 18);
    check_every_in<Tav16s>(tavsMinEvery_16s_I, false, 19);
    check_every_in<Tav32s>(tavsMinEvery_32s_I, false, 20);
    check_every_in<Tav32f>(tavsMinEvery_32f_I, false, 21);
    check_every_in<Tav64f>(tavsMinEvery_64f_I, false, 22);
}

TEST(Every, FloatOperandOrderWithNaN)
{
    float a[4] = {NAN, 1.0f, 0.0f, -0.0f}, b[4] = {2.0f, NAN, -0.0f, 0.0f}, d[4];
    ASSERT_EQ(tavsMaxEvery_32f(a, b, d, 4u), StatusOk);
    EXPECT_EQ(d[0], 2.0f); // NaN first: the second operand
    EXPECT_TRUE(std::isnan(d[1])); // NaN second: the second operand
    EXPECT_TRUE(std::signbit(d[2])); // equal zeros: the second
    EXPECT_FALSE(std::signbit(d[3]));
    ASSERT_EQ(tavsMinEvery_32f(a, b, d, 4u), StatusOk);
    EXPECT_EQ(d[0], 2.0f);
    EXPECT_TRUE(std::isnan(d[1]));
    double x[2] = {NAN, 5.0}, y[2] = {1.0, 3.0};
    ASSERT_EQ(tavsMinEvery_64f_I(x, y, 2), StatusOk);
    EXPECT_EQ(y[0], 1.0);
    EXPECT_EQ(y[1], 3.0);
}

TEST(Every, DocumentedLengthTests)
{
    float a[1] = {1}, d[1] = {0};
    EXPECT_EQ(tavsMinEvery_32f(a, a, d, 0u), ErrSize);
    EXPECT_EQ(d[0], 0.0f);
}

TEST(Every, LengthWithTopBitSetIsNotRefused)
{
    // A length with its top bit set passes the length test: 2^31 bytes are
    // processed in place (identical pointers are allowed). The 2 GiB range
    // maps one small block of memory over and over, so it costs little.
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "2^31 checked accesses take too long under the sanitizers; the plain build runs this";
#endif
    const size_t n = size_t(1) << 31, piece = size_t(1) << 21;
    int fd = memfd_create("every", 0);
    if (fd < 0 || ftruncate(fd, off_t(piece)) != 0) GTEST_SKIP() << "no memfd";
    void* m = mmap(nullptr, n, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (m == MAP_FAILED) GTEST_SKIP() << "no 2 GiB range";
    auto* p = static_cast<Tav8u*>(m);
    bool mapped = true;
    for (size_t at = 0; at < n && mapped; at += piece)
        mapped = mmap(p + at, piece, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_FIXED | MAP_POPULATE, fd, 0) != MAP_FAILED;
    ASSERT_TRUE(mapped);
    p[0] = 3;
    p[piece - 1] = 200;
    Tav8u other[64];
    std::fill(other, other + 64, Tav8u(7));
    EXPECT_EQ(tavsMaxEvery_8u(p, p, p, 0x80000000u), StatusOk);
    EXPECT_EQ(p[0], 3);
    EXPECT_EQ(p[n - 1], 200); // the same memory as p[piece - 1]
    munmap(m, n);
    close(fd);
    EXPECT_EQ(tavsMaxEvery_8u(other, other, other, 64u), StatusOk);
}

// ---- FindNearest ---------------------------------------------------------------------------

int ref_nearest(int x, const std::vector<Tav16u>& t)
{
    int len = int(t.size());
    if (len == 1 || x <= t[0]) return 0;
    if (x >= t[size_t(len - 1)]) return len - 1;
    int base = 0, span = len - 1;
    while (span > 1) {
        int half = span / 2;
        if (x >= t[size_t(base + half)]) {
            base += half;
            span -= half;
        } else span = half;
    }
    return (x - t[size_t(base)] > t[size_t(base + 1)] - x) ? base + 1 : base;
}

TEST(FindNearest, HalvingSearchWithTiesToTheLowerIndex)
{
    tt::Rng r(31);
    for (int tl = 1; tl <= 40; ++tl)
        for (int trial = 0; trial < 5; ++trial) {
            std::vector<Tav16u> table(static_cast<size_t>(tl));
            for (auto& t : table) t = Tav16u(trial % 2 ? r.range(0, 65535) : r.range(100, 140));
            std::sort(table.begin(), table.end());
            const int n = 50;
            std::vector<Tav16u> src(n);
            for (auto& s : src) s = Tav16u(trial % 2 ? r.range(0, 65535) : r.range(90, 150));
            tt::Guarded<Tav16u> val(n);
            tt::Guarded<int> idx(n);
            ASSERT_EQ(tavsFindNearest_16u(src.data(), val.data(), idx.data(), n, table.data(), tl), StatusOk);
            for (int i = 0; i < n; ++i) {
                int k = ref_nearest(src[size_t(i)], table);
                ASSERT_EQ(idx.data()[i], k);
                ASSERT_EQ(val.data()[i], table[size_t(k)]);
                // The entry is a nearest one.
                int best = 1 << 30;
                for (auto t : table) best = std::min(best, std::abs(int(t) - int(src[size_t(i)])));
                ASSERT_EQ(std::abs(int(table[size_t(k)]) - int(src[size_t(i)])), best);
                Tav16u v1 = 0;
                int i1 = -1;
                ASSERT_EQ(tavsFindNearestOne_16u(src[size_t(i)], &v1, &i1, table.data(), tl), StatusOk);
                ASSERT_EQ(i1, k);
                ASSERT_EQ(v1, table[size_t(k)]);
            }
            ASSERT_TRUE(val.borders_intact() && idx.borders_intact());
        }
}

TEST(FindNearest, DocumentedCases)
{
    Tav16u table[2] = {10, 20}, v = 0;
    int i = -1;
    ASSERT_EQ(tavsFindNearestOne_16u(15, &v, &i, table, 2), StatusOk);
    EXPECT_EQ(v, 10);
    EXPECT_EQ(i, 0);
    ASSERT_EQ(tavsFindNearestOne_16u(16, &v, &i, table, 2), StatusOk);
    EXPECT_EQ(v, 20);
    EXPECT_EQ(i, 1);
    ASSERT_EQ(tavsFindNearestOne_16u(0, &v, &i, table, 2), StatusOk);
    EXPECT_EQ(i, 0);
    ASSERT_EQ(tavsFindNearestOne_16u(65535, &v, &i, table, 2), StatusOk);
    EXPECT_EQ(i, 1);
    ASSERT_EQ(tavsFindNearestOne_16u(65535, &v, &i, table, 1), StatusOk);
    EXPECT_EQ(v, 10);
    EXPECT_EQ(i, 0);
    // Equal entries: the search lands on one of them and ties stay low.
    Tav16u dup[5] = {5, 9, 9, 9, 13};
    ASSERT_EQ(tavsFindNearestOne_16u(11, &v, &i, dup, 5), StatusOk);
    EXPECT_EQ(v, 9);
    EXPECT_EQ(i, 3);
}

TEST(FindNearest, Errors)
{
    Tav16u s[2] = {1, 2}, t[2] = {1, 5};
    tt::Guarded<Tav16u> v(2);
    tt::Guarded<int> i(2);
    EXPECT_EQ(tavsFindNearest_16u(nullptr, v.data(), i.data(), 0, t, 0), ErrNullPtr);
    EXPECT_EQ(tavsFindNearest_16u(s, nullptr, i.data(), 2, t, 2), ErrNullPtr);
    EXPECT_EQ(tavsFindNearest_16u(s, v.data(), nullptr, 2, t, 2), ErrNullPtr);
    EXPECT_EQ(tavsFindNearest_16u(s, v.data(), i.data(), 2, nullptr, 2), ErrNullPtr);
    EXPECT_EQ(tavsFindNearest_16u(s, v.data(), i.data(), 0, t, 2), ErrSize);
    EXPECT_EQ(tavsFindNearest_16u(s, v.data(), i.data(), 2, t, 0), ErrSize);
    EXPECT_EQ(tavsFindNearestOne_16u(1, nullptr, i.data(), t, 2), ErrNullPtr);
    EXPECT_EQ(tavsFindNearestOne_16u(1, v.data(), nullptr, t, 2), ErrNullPtr);
    EXPECT_EQ(tavsFindNearestOne_16u(1, v.data(), i.data(), nullptr, 0), ErrNullPtr);
    EXPECT_EQ(tavsFindNearestOne_16u(1, v.data(), i.data(), t, -1), ErrSize);
    EXPECT_TRUE(v.untouched() && i.untouched());
}

// ---- CountInRange ----------------------------------------------------------------------------

TEST(CountInRange, StrictBounds)
{
    tt::Rng r(41);
    sref::sweep([&](int n, int off) {
        auto v = xref::data<Tav32s>(r, size_t(n + 16));
        Tav32s lo = Tav32s(r.range(-4, 1)), hi = Tav32s(r.range(-1, 4));
        if (n % 5 == 0) {
            lo = r.element<Tav32s>();
            hi = r.element<Tav32s>();
        }
        int want = 0;
        for (int i = 0; i < n; ++i) want += v[size_t(off + i)] > lo && v[size_t(off + i)] < hi;
        int got = -1;
        ASSERT_EQ(tavsCountInRange_32s(v.data() + off, n, &got, lo, hi), StatusOk);
        ASSERT_EQ(got, want) << n;
    });
    Tav32s d[3] = {1, 2, 3};
    int c = -1;
    ASSERT_EQ(tavsCountInRange_32s(d, 3, &c, 1, 3), StatusOk);
    EXPECT_EQ(c, 1);
    ASSERT_EQ(tavsCountInRange_32s(d, 3, &c, 3, 1), StatusOk); // crossed bounds
    EXPECT_EQ(c, 0);
    ASSERT_EQ(tavsCountInRange_32s(d, 3, &c, INT32_MIN, INT32_MAX), StatusOk);
    EXPECT_EQ(c, 3);
    tt::Guarded<int> g(1);
    EXPECT_EQ(tavsCountInRange_32s(nullptr, 0, g.data(), 0, 1), ErrNullPtr);
    EXPECT_EQ(tavsCountInRange_32s(d, 3, nullptr, 0, 1), ErrNullPtr);
    EXPECT_EQ(tavsCountInRange_32s(d, 0, g.data(), 0, 1), ErrSize);
    EXPECT_TRUE(g.untouched());
}

} // namespace

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstring>
#include <limits>
#include <vector>

#include "constdiv_support.h"
#include "tavs.h"
#include "test_util.h"

namespace {

using cd::i128;

uint32_t bits32(float f)
{
    uint32_t b;
    std::memcpy(&b, &f, 4);
    return b;
}
uint64_t bits64(double f)
{
    uint64_t b;
    std::memcpy(&b, &f, 8);
    return b;
}

// ---- reference rules ------------------------------------------------------------------
template <class F> F ref_float_div(F d, F n)
{
    if (d != F(0)) return n / d;
    if (n > F(0)) return std::numeric_limits<F>::infinity();
    if (n < F(0)) return -std::numeric_limits<F>::infinity();
    return sizeof(F) == 4 ? F(-std::numeric_limits<float>::quiet_NaN()) : F(-std::numeric_limits<double>::quiet_NaN());
}

// n * 2^-s / d rounded to nearest, ties to even, any s (d != 0); far beyond
// every range the result is +-2^100.
i128 ref_quot(i128 n, i128 d, int s)
{
    if (n == 0) return 0;
    if (s > 0) return s >= 80 ? 0 : cd::ref_div_rne(n, d * (i128(1) << s));
    if (s <= -80) return ((n < 0) != (d < 0)) ? -(i128(1) << 100) : (i128(1) << 100);
    return cd::ref_div_rne(n * (i128(1) << -s), d);
}

// The zero-divisor rule of the integer members.
template <class T> T int_zero_div(i128 n) { return n > 0 ? std::numeric_limits<T>::max() : n < 0 ? std::numeric_limits<T>::min() : T(0); }

// 2^-s by repeated halving or doubling in float.
float factor32(int s)
{
    float f = 1.0f;
    for (long i = 0; i < std::min(long(std::abs(long(s))), 400L); ++i) f = s > 0 ? f * 0.5f : f * 2.0f;
    return f;
}

// Div_16s: in float, rounded through the offset 32768 + 0.5.
Tav16s ref_div16s(int d, int n, float f)
{
    if (d == 0) return int_zero_div<Tav16s>(n);
    const float q = float(n) * f / float(d);
    if (!(q >= -32768.0f && q <= 32767.0f)) return q < -32768.0f ? -32768 : 32767;
    const float t = (q + 32768.0f) + 0.5f;
    int r = int(t);
    if ((r & 1) && t == float(r)) --r;
    return Tav16s(r - 32768);
}

// ---- float members ----------------------------------------------------------------------
template <class F> void sweep_float(Status (*oop)(const F*, const F*, F*, int), Status (*ip)(const F*, F*, int), uint64_t seed)
{
    tt::Rng r(seed);
    for (int trial = 0; trial < 400; ++trial) {
        const int n = int(r.range(1, 45));
        std::vector<F> d(n), a(n), dst(n);
        for (auto& x : d) x = r.next() % 5 == 0 ? (r.next() % 2 ? F(0) : -F(0)) : cd::rand_float<F>(r);
        for (auto& x : a) x = cd::rand_float<F>(r);
        std::vector<F> sd = a;
        bool anyZero = false;
        for (F x : d) anyZero |= x == F(0);
        const Status want = anyZero ? WarnDivByZero : StatusOk;
        ASSERT_EQ(oop(d.data(), a.data(), dst.data(), n), want);
        ASSERT_EQ(ip(d.data(), sd.data(), n), want);
        for (int i = 0; i < n; ++i) {
            const F e = ref_float_div(d[i], a[i]);
            if (d[i] == F(0)) ASSERT_TRUE(tt::same_bits(dst[i], e)) << a[i];
            else ASSERT_TRUE(cd::same_value(dst[i], e));
            ASSERT_TRUE(tt::same_bits(dst[i], sd[i]) || (std::isnan(dst[i]) && std::isnan(sd[i])));
        }
    }
}

TEST(Div, FloatMembersWithTheZeroDivisorTable)
{
    sweep_float<float>(tavsDiv_32f, tavsDiv_32f_I, 1);
    sweep_float<double>(tavsDiv_64f, tavsDiv_64f_I, 2);
    const float z = 0.0f, nz = -0.0f, one = 1.0f, mone = -1.0f, nan = NAN;
    float d;
    EXPECT_EQ(tavsDiv_32f(&z, &z, &d, 1), WarnDivByZero);
    EXPECT_EQ(bits32(d), 0xffc00000u);
    EXPECT_EQ(tavsDiv_32f(&nz, &nan, &d, 1), 6);
    EXPECT_EQ(bits32(d), 0xffc00000u);
    EXPECT_EQ(tavsDiv_32f(&nz, &one, &d, 1), 6); // +Inf whatever the zero's sign
    EXPECT_EQ(d, INFINITY);
    EXPECT_EQ(tavsDiv_32f(&z, &mone, &d, 1), 6);
    EXPECT_EQ(d, -INFINITY);
    const double dz = 0.0;
    double e;
    EXPECT_EQ(tavsDiv_64f(&dz, &dz, &e, 1), 6);
    EXPECT_EQ(bits64(e), 0xfff8000000000000ull);
    // Elements after a zero divisor are still computed.
    const float dv[3] = {0.0f, 2.0f, 4.0f}, nv[3] = {1.0f, 3.0f, 2.0f};
    float out[3];
    EXPECT_EQ(tavsDiv_32f(dv, nv, out, 3), WarnDivByZero);
    EXPECT_EQ(out[1], 1.5f);
    EXPECT_EQ(out[2], 0.5f);
}

TEST(Div, VectorPathAgreesWithTheScalarRule)
{
    tt::Rng r(3);
    for (int len = 0; len <= 70; ++len)
        for (int off = 0; off < 16; ++off) {
            std::vector<float> d(size_t(len) + 1), a(size_t(len) + 1);
            for (auto& x : d) x = r.next() % 9 == 0 ? 0.0f : cd::rand_float<float>(r);
            for (auto& x : a) x = cd::rand_float<float>(r);
            std::vector<Tav16s> d16(size_t(len) + 1), a16(size_t(len) + 1);
            for (auto& x : d16) x = r.next() % 9 == 0 ? Tav16s(0) : r.element<Tav16s>();
            for (auto& x : a16) x = r.element<Tav16s>();
            const int s = int(r.range(-20, 20));
            tt::Guarded<float> g(size_t(len), size_t(off) * 4);
            tt::Guarded<Tav16s> h(size_t(len), size_t(off) * 2);
            const Status st = tavsDiv_32f(d.data(), a.data(), g.data(), len);
            const Status st16 = tavsDiv_16s_Sfs(d16.data(), a16.data(), h.data(), len, s);
            if (len == 0) {
                EXPECT_EQ(st, ErrSize);
                EXPECT_EQ(st16, ErrSize);
                EXPECT_TRUE(g.untouched() && h.untouched());
                continue;
            }
            bool z = false, z16 = false;
            for (int i = 0; i < len; ++i) {
                z |= d[i] == 0.0f;
                z16 |= d16[i] == 0;
                const float e = ref_float_div(d[i], a[i]);
                ASSERT_TRUE(d[i] == 0.0f ? tt::same_bits(g.data()[i], e) : cd::same_value(g.data()[i], e)) << len << " " << off;
                ASSERT_EQ(h.data()[i], ref_div16s(d16[i], a16[i], factor32(s))) << len << " " << off << " " << s;
            }
            EXPECT_EQ(st, z ? WarnDivByZero : StatusOk);
            EXPECT_EQ(st16, z16 ? WarnDivByZero : StatusOk);
            EXPECT_TRUE(g.borders_intact() && h.borders_intact());
        }
}

template <class C, class F> void sweep_cplx(Status (*oop)(const C*, const C*, C*, int), Status (*ip)(const C*, C*, int), uint64_t seed)
{
    tt::Rng r(seed);
    for (int trial = 0; trial < 300; ++trial) {
        const int n = int(r.range(1, 20));
        std::vector<C> d(n), a(n), dst(n);
        for (auto& x : d) x = r.next() % 6 == 0 ? C{F(0), -F(0)} : C{cd::rand_float<F>(r), cd::rand_float<F>(r)};
        for (auto& x : a) x = C{cd::rand_float<F>(r), cd::rand_float<F>(r)};
        std::vector<C> sd = a;
        bool z = false;
        for (int i = 0; i < n; ++i) z |= (d[i].re * d[i].re + d[i].im * d[i].im) == F(0);
        ASSERT_EQ(oop(d.data(), a.data(), dst.data(), n), z ? WarnDivByZero : StatusOk);
        ASSERT_EQ(ip(d.data(), sd.data(), n), z ? WarnDivByZero : StatusOk);
        for (int i = 0; i < n; ++i) {
            const F m = d[i].re * d[i].re + d[i].im * d[i].im;
            if (m == F(0)) {
                const F nan = ref_float_div(F(0), F(0));
                ASSERT_TRUE(tt::same_bits(dst[i].re, nan) && tt::same_bits(dst[i].im, nan));
                continue;
            }
            const F rr = F(1) / m;
            const F t1 = d[i].re * a[i].re, t2 = d[i].im * a[i].im, t3 = d[i].re * a[i].im, t4 = d[i].im * a[i].re;
            ASSERT_TRUE(cd::same_value(dst[i].re, F(F(t1 + t2) * rr)));
            ASSERT_TRUE(cd::same_value(dst[i].im, F(rr * F(t3 - t4))));
            ASSERT_TRUE(cd::same_value(sd[i].re, dst[i].re) && cd::same_value(sd[i].im, dst[i].im));
        }
    }
    // An underflowing squared magnitude counts as zero.
    const C tiny{F(1e-30), F(0)}, one{F(1), F(1)};
    C out;
    if (sizeof(F) == 4) {
        EXPECT_EQ(oop(&tiny, &one, &out, 1), WarnDivByZero);
        EXPECT_TRUE(std::isnan(out.re) && std::isnan(out.im));
    }
}

TEST(Div, ComplexFloatMembers)
{
    sweep_cplx<Tav32fc, float>(tavsDiv_32fc, tavsDiv_32fc_I, 4);
    sweep_cplx<Tav64fc, double>(tavsDiv_64fc, tavsDiv_64fc_I, 5);
    const Tav32fc d{0, 1}, n{2, 4};
    Tav32fc q;
    ASSERT_EQ(tavsDiv_32fc(&d, &n, &q, 1), StatusOk); // (2 + 4i) / i = 4 - 2i
    EXPECT_EQ(q.re, 4.0f);
    EXPECT_EQ(q.im, -2.0f);
}

// ---- 16s: exhaustive at scale 0 ------------------------------------------------------------
// v into p[0 .. count), eight bytes a store.
void fill16(Tav16s* p, int count, Tav16s v)
{
    const uint64_t w = uint64_t(uint16_t(v)) * 0x0001000100010001ull;
    int i = 0;
    for (; i + 4 <= count; i += 4) std::memcpy(p + i, &w, 8);
    for (; i < count; ++i) p[i] = v;
}

// Expected row for one divisor d != 0, n = -32768..32767 at index n + 32768.
// Away from the ties the float path must give the exactly rounded quotient:
// q = n / d is off by at most 2^-9, q + 32768 and the + 0.5 by at most 2^-9
// each, together less than 1/128. So the row is filled with the exact
// quotient by runs (no division per element), and only within 1/128 of a
// tie (|2n - (2k + 1)|d|| <= |d| / 64) with the float rule itself.
void expected_row(int d, std::vector<Tav16s>& row)
{
    const long ad = std::labs(long(d));
    // Exact RNE(n / ad) by runs: k's run ends at the largest n with 2n below
    // the tie point (2k + 1) * ad, or on it when k is even.
    long n = -32768;
    long k = long(cd::ref_div_rne(-32768, ad));
    while (n <= 32767) {
        const long t = (2 * k + 1) * ad;
        long end = (t % 2 == 0) ? ((k % 2 == 0) ? t / 2 : t / 2 - 1) : (t - 1) / 2;
        if (end > 32767) end = 32767;
        const long v = d > 0 ? k : -k; // RNE is odd-symmetric
        fill16(row.data() + (n + 32768), int(end - n + 1), Tav16s(v > 32767 ? 32767 : v));
        n = end + 1;
        ++k;
    }
    // The neighbourhoods of the ties, by the float rule.
    const long lastK = 32767 / ad + 1;
    for (long kk = -32768 / ad - 2; kk <= lastK; ++kk) {
        const long t = (2 * kk + 1) * ad, w = ad / 64 + 2;
        for (long m = (t - w) / 2 - 1; m <= (t + w) / 2 + 1; ++m)
            if (m >= -32768 && m <= 32767) row[size_t(m + 32768)] = ref_div16s(d, int(m), 1.0f);
    }
}

// Every dividend against every divisor: one call per divisor over a row of
// all 65536 dividends. The sanitizer build takes every 61st divisor (and all
// the small ones), which keeps it within its time budget.
TEST(Div, Short16sExhaustiveAtScaleZero)
{
    std::vector<Tav16s> dividends(65536), divisors(65536), out(65536), want(65536);
    for (int i = 0; i < 65536; ++i) dividends[size_t(i)] = Tav16s(i - 32768);
#if defined(__SANITIZE_ADDRESS__)
    const int stride = 61;
#else
    const int stride = 1;
#endif
    // The run-filled reference itself is checked against the plain float
    // rule on a spread of divisors first.
    for (int d : {1, -1, 2, -2, 3, 7, -64, 127, 128, 129, -1000, 4097, 32767, -32768}) {
        expected_row(d, want);
        for (int i = 0; i < 65536; ++i) ASSERT_EQ(want[size_t(i)], ref_div16s(d, i - 32768, 1.0f)) << (i - 32768) << "/" << d;
    }
    long mismatches = 0;
    for (int d = -32768; d <= 32767; ++d) {
        if (stride > 1 && std::abs(d) > 300 && (d % stride) != 0) continue;
        fill16(divisors.data(), int(divisors.size()), Tav16s(d));
        const Status st = tavsDiv_16s_Sfs(divisors.data(), dividends.data(), out.data(), 65536, 0);
        ASSERT_EQ(st, d == 0 ? WarnDivByZero : StatusOk);
        if (d == 0) {
            for (int i = 0; i < 65536; ++i) want[size_t(i)] = int_zero_div<Tav16s>(i - 32768);
        } else {
            expected_row(d, want);
        }
        if (std::memcmp(out.data(), want.data(), 65536 * sizeof(Tav16s)) == 0) continue;
        for (int i = 0; i < 65536; ++i)
            if (out[size_t(i)] != want[size_t(i)] && mismatches++ < 10)
                ADD_FAILURE() << (i - 32768) << " / " << d << ": " << out[size_t(i)] << " want " << want[size_t(i)];
    }
    EXPECT_EQ(mismatches, 0);
}

TEST(Div, Short16sOtherScales)
{
    tt::Rng r(7);
    const int n = 4096;
    std::vector<Tav16s> d(n), a(n), out(n);
    std::vector<int> scales;
    for (int s = -40; s <= 40; ++s) scales.push_back(s);
    for (int s : {-300, -200, -129, -128, -127, -126, 126, 127, 149, 150, 151, 300, INT_MIN, INT_MAX}) scales.push_back(s);
    for (int s : scales)
        for (int rep = 0; rep < 6; ++rep) {
            for (int i = 0; i < n; ++i) {
                d[size_t(i)] = rep == 0 ? Tav16s(r.range(-4, 4)) : r.element<Tav16s>();
                a[size_t(i)] = r.element<Tav16s>();
            }
            auto sd = a;
            const Status st = tavsDiv_16s_Sfs(d.data(), a.data(), out.data(), n, s);
            ASSERT_EQ(tavsDiv_16s_ISfs(d.data(), sd.data(), n, s), st);
            const float f = factor32(s);
            for (int i = 0; i < n; ++i) {
                ASSERT_EQ(out[size_t(i)], ref_div16s(d[size_t(i)], a[size_t(i)], f)) << a[size_t(i)] << "/" << d[size_t(i)] << " s=" << s;
                ASSERT_EQ(sd[size_t(i)], out[size_t(i)]);
            }
        }
}

TEST(Div, Short16sDocumentedCases)
{
    const Tav16s two = 2, five = 5, seven = 7;
    Tav16s q;
    ASSERT_EQ(tavsDiv_16s_Sfs(&two, &five, &q, 1, 0), StatusOk);
    EXPECT_EQ(q, 2);
    ASSERT_EQ(tavsDiv_16s_Sfs(&two, &seven, &q, 1, 0), StatusOk);
    EXPECT_EQ(q, 4);
    // The float sum decides what is a tie: 16384 / 32767 is just above one
    // half, but q + 32768 rounds onto the half and goes to the even 0.
    const Tav16s big = 32767, half = 16384;
    ASSERT_EQ(tavsDiv_16s_Sfs(&big, &half, &q, 1, 0), StatusOk);
    EXPECT_EQ(q, 0);
    const Tav16s m1 = -1, mn = -32768;
    ASSERT_EQ(tavsDiv_16s_Sfs(&m1, &mn, &q, 1, 0), StatusOk); // 32768 saturates
    EXPECT_EQ(q, 32767);
    ASSERT_EQ(tavsDiv_16s_Sfs(&two, &seven, &q, 1, -20), StatusOk);
    EXPECT_EQ(q, 32767);
    ASSERT_EQ(tavsDiv_16s_Sfs(&two, &mn, &q, 1, 1), StatusOk); // -8192
    EXPECT_EQ(q, -8192);
    const Tav16s zero = 0;
    ASSERT_EQ(tavsDiv_16s_Sfs(&zero, &mn, &q, 1, 0), WarnDivByZero);
    EXPECT_EQ(q, -32768);
}

// ---- integer members with exact references -------------------------------------------------
// Div_32s: the quotient in double, rounded to nearest with ties to even on
// the double itself (which at negative scales is not always the exact
// quotient's rounding); 0 above 32 and saturation by sign below -62.
Tav32s ref_div32s(Tav32s d, Tav32s n, int s)
{
    if (s >= 33) return 0;
    if (s <= -63) return n == 0 ? 0 : ((n < 0) != (d < 0)) ? INT32_MIN : INT32_MAX;
    const double q = double(n) * std::ldexp(1.0, -s) / double(d);
    if (q >= 2147483647.5) return INT32_MAX;
    if (q <= -2147483648.5) return INT32_MIN;
    return cd::sat<Tav32s>(i128(std::nearbyint(q)));
}

template <class T> void sweep_int(Status (*oop)(const T*, const T*, T*, int, int), Status (*ip)(const T*, T*, int, int), uint64_t seed)
{
    tt::Rng r(seed);
    const int n = 64;
    for (int s : cd::sweep_scales()) {
        std::vector<T> d(n), a(n), out(n);
        for (auto& x : d) x = r.next() % 8 == 0 ? T(0) : r.next() % 3 == 0 ? T(r.range(-3, 3)) : r.element<T>();
        for (auto& x : a) x = r.element<T>();
        auto sd = a;
        bool z = false;
        for (T x : d) z |= x == 0;
        ASSERT_EQ(oop(d.data(), a.data(), out.data(), n, s), z ? WarnDivByZero : StatusOk);
        ASSERT_EQ(ip(d.data(), sd.data(), n, s), z ? WarnDivByZero : StatusOk);
        for (int i = 0; i < n; ++i) {
            const T exact = d[i] == 0 ? int_zero_div<T>(a[i]) : cd::sat<T>(ref_quot(a[i], d[i], s));
            T want = exact;
            if constexpr (sizeof(T) == 4) {
                if (d[i] != 0) want = T(ref_div32s(Tav32s(d[i]), Tav32s(a[i]), s));
                if (s >= 0) ASSERT_EQ(want, exact); // the double quotient rounds exactly here
            }
            ASSERT_EQ(out[i], want) << +a[i] << " / " << +d[i] << " s=" << s;
            ASSERT_EQ(sd[i], want);
        }
    }
}

TEST(Div, IntegerMembersAreExact)
{
    sweep_int<Tav8u>(tavsDiv_8u_Sfs, tavsDiv_8u_ISfs, 11);
    sweep_int<Tav16u>(tavsDiv_16u_Sfs, tavsDiv_16u_ISfs, 12);
    sweep_int<Tav32s>(tavsDiv_32s_Sfs, tavsDiv_32s_ISfs, 13);
    // Every 8u pair at the scales between the limits.
    std::vector<Tav8u> d(65536), a(65536), out(65536);
    for (int i = 0; i < 65536; ++i) {
        d[size_t(i)] = Tav8u(i >> 8);
        a[size_t(i)] = Tav8u(i & 255);
    }
    for (int s = -17; s <= 10; ++s) {
        ASSERT_EQ(tavsDiv_8u_Sfs(d.data(), a.data(), out.data(), 65536, s), WarnDivByZero);
        for (int i = 0; i < 65536; ++i) {
            const Tav8u want = d[size_t(i)] == 0 ? int_zero_div<Tav8u>(a[size_t(i)]) : cd::sat<Tav8u>(ref_quot(a[size_t(i)], d[size_t(i)], s));
            ASSERT_EQ(out[size_t(i)], want) << +a[size_t(i)] << "/" << +d[size_t(i)] << " s=" << s;
        }
    }
}

// Large 16u divisors at negative scales put quotients within 2^-17 of a
// tie, closer than a float quotient can tell apart.
TEST(Div, Unsigned16NearTies)
{
    const Tav16u a = 65532, b = 65533;
    Tav16u q;
    ASSERT_EQ(tavsDiv_16u_Sfs(&b, &a, &q, 1, -15), StatusOk); // 32767.49999...
    EXPECT_EQ(q, 32767);
    std::vector<Tav16u> n(65536), d(65536), out(65536);
    for (int i = 0; i < 65536; ++i) n[size_t(i)] = Tav16u(i);
    for (int s : {-15, -1}) {
        for (int dv = 65520; dv <= 65535; ++dv) {
            std::fill(d.begin(), d.end(), Tav16u(dv));
            ASSERT_EQ(tavsDiv_16u_Sfs(d.data(), n.data(), out.data(), 65536, s), StatusOk);
            for (int i = 0; i < 65536; ++i)
                ASSERT_EQ(out[size_t(i)], cd::sat<Tav16u>(ref_quot(i, dv, s))) << i << "/" << dv << " s=" << s;
        }
    }
}

TEST(Div, Mixed32s16s)
{
    tt::Rng r(14);
    const int n = 64;
    for (int s : cd::sweep_scales()) {
        std::vector<Tav16s> d(n), out(n);
        std::vector<Tav32s> a(n);
        for (auto& x : d) x = r.next() % 8 == 0 ? Tav16s(0) : r.element<Tav16s>();
        for (auto& x : a) x = r.next() % 2 ? r.element<Tav32s>() : Tav32s(r.range(-100000, 100000));
        bool z = false;
        for (auto x : d) z |= x == 0;
        ASSERT_EQ(tavsDiv_32s16s_Sfs(d.data(), a.data(), out.data(), n, s), z ? WarnDivByZero : StatusOk);
        for (int i = 0; i < n; ++i) {
            const Tav16s want = d[size_t(i)] == 0 ? int_zero_div<Tav16s>(a[size_t(i)]) : cd::sat<Tav16s>(ref_quot(a[size_t(i)], d[size_t(i)], s));
            ASSERT_EQ(out[size_t(i)], want) << a[size_t(i)] << " / " << d[size_t(i)] << " s=" << s;
        }
    }
}

TEST(Div, Complex16scIsExact)
{
    tt::Rng r(15);
    const int n = 48;
    for (int s : cd::sweep_scales()) {
        std::vector<Tav16sc> d(n), a(n), out(n);
        for (auto& x : d) x = r.next() % 8 == 0 ? Tav16sc{0, 0} : Tav16sc{r.element<Tav16s>(), r.element<Tav16s>()};
        for (auto& x : a) x = Tav16sc{r.element<Tav16s>(), r.element<Tav16s>()};
        auto sd = a;
        bool z = false;
        for (auto x : d) z |= x.re == 0 && x.im == 0;
        ASSERT_EQ(tavsDiv_16sc_Sfs(d.data(), a.data(), out.data(), n, s), z ? WarnDivByZero : StatusOk);
        ASSERT_EQ(tavsDiv_16sc_ISfs(d.data(), sd.data(), n, s), z ? WarnDivByZero : StatusOk);
        for (int i = 0; i < n; ++i) {
            const Tav16sc p = d[size_t(i)], q = a[size_t(i)];
            const i128 m = i128(p.re) * p.re + i128(p.im) * p.im;
            Tav16sc want;
            if (m == 0) {
                want = Tav16sc{int_zero_div<Tav16s>(q.re), int_zero_div<Tav16s>(q.im)};
            } else {
                want.re = cd::sat<Tav16s>(ref_quot(i128(q.re) * p.re + i128(q.im) * p.im, m, s));
                want.im = cd::sat<Tav16s>(ref_quot(i128(q.im) * p.re - i128(q.re) * p.im, m, s));
            }
            ASSERT_TRUE(tt::same_bits(out[size_t(i)], want)) << "s=" << s << " got " << out[size_t(i)].re << "," << out[size_t(i)].im
                                                              << " want " << want.re << "," << want.im;
            ASSERT_TRUE(tt::same_bits(sd[size_t(i)], want));
        }
    }
}

TEST(Div, ZeroDivisorsBeyondTheScaleLimits)
{
    const Tav8u d8[3] = {0, 0, 5}, a8[3] = {7, 0, 200};
    Tav8u o8[3];
    ASSERT_EQ(tavsDiv_8u_Sfs(d8, a8, o8, 3, 9), WarnDivByZero);
    EXPECT_EQ(o8[0], 255);
    EXPECT_EQ(o8[1], 0);
    EXPECT_EQ(o8[2], 0);
    ASSERT_EQ(tavsDiv_8u_Sfs(d8, a8, o8, 3, -16), WarnDivByZero);
    EXPECT_EQ(o8[0], 255);
    EXPECT_EQ(o8[1], 0);
    EXPECT_EQ(o8[2], 255);
    const Tav32s d32[3] = {0, -3, 3}, a32[3] = {-9, 5, 0};
    Tav32s o32[3];
    ASSERT_EQ(tavsDiv_32s_Sfs(d32, a32, o32, 3, -63), WarnDivByZero);
    EXPECT_EQ(o32[0], INT32_MIN);
    EXPECT_EQ(o32[1], INT32_MIN); // by the quotient's sign
    EXPECT_EQ(o32[2], 0);
    ASSERT_EQ(tavsDiv_32s_Sfs(d32, a32, o32, 3, 33), WarnDivByZero);
    EXPECT_EQ(o32[0], INT32_MIN);
    EXPECT_EQ(o32[1], 0);
}

TEST(Div, ErrorsInTheirOrderAndNothingWritten)
{
    for (int s : {0, 40, -40, INT_MIN, INT_MAX}) {
        cd::expect_two_src_errors<Tav8u, Tav8u, Tav8u>([&](const Tav8u* a, const Tav8u* b, Tav8u* d, int n) { return tavsDiv_8u_Sfs(a, b, d, n, s); });
        cd::expect_two_src_errors<Tav16s, Tav16s, Tav16s>([&](const Tav16s* a, const Tav16s* b, Tav16s* d, int n) { return tavsDiv_16s_Sfs(a, b, d, n, s); });
        cd::expect_two_src_errors<Tav16u, Tav16u, Tav16u>([&](const Tav16u* a, const Tav16u* b, Tav16u* d, int n) { return tavsDiv_16u_Sfs(a, b, d, n, s); });
        cd::expect_two_src_errors<Tav32s, Tav32s, Tav32s>([&](const Tav32s* a, const Tav32s* b, Tav32s* d, int n) { return tavsDiv_32s_Sfs(a, b, d, n, s); });
        cd::expect_two_src_errors<Tav16sc, Tav16sc, Tav16sc>([&](const Tav16sc* a, const Tav16sc* b, Tav16sc* d, int n) { return tavsDiv_16sc_Sfs(a, b, d, n, s); });
        cd::expect_two_src_errors<Tav16s, Tav32s, Tav16s>([&](const Tav16s* a, const Tav32s* b, Tav16s* d, int n) { return tavsDiv_32s16s_Sfs(a, b, d, n, s); });
        // In place: the divisor and the vector.
        cd::expect_src_sd_errors<Tav8u, Tav8u>([&](const Tav8u* a, Tav8u* d, int n) { return tavsDiv_8u_ISfs(a, d, n, s); });
        cd::expect_src_sd_errors<Tav16s, Tav16s>([&](const Tav16s* a, Tav16s* d, int n) { return tavsDiv_16s_ISfs(a, d, n, s); });
        cd::expect_src_sd_errors<Tav16u, Tav16u>([&](const Tav16u* a, Tav16u* d, int n) { return tavsDiv_16u_ISfs(a, d, n, s); });
        cd::expect_src_sd_errors<Tav32s, Tav32s>([&](const Tav32s* a, Tav32s* d, int n) { return tavsDiv_32s_ISfs(a, d, n, s); });
        cd::expect_src_sd_errors<Tav16sc, Tav16sc>([&](const Tav16sc* a, Tav16sc* d, int n) { return tavsDiv_16sc_ISfs(a, d, n, s); });
    }
    cd::expect_two_src_errors<float, float, float>([](const float* a, const float* b, float* d, int n) { return tavsDiv_32f(a, b, d, n); });
    cd::expect_two_src_errors<double, double, double>([](const double* a, const double* b, double* d, int n) { return tavsDiv_64f(a, b, d, n); });
    cd::expect_two_src_errors<Tav32fc, Tav32fc, Tav32fc>([](const Tav32fc* a, const Tav32fc* b, Tav32fc* d, int n) { return tavsDiv_32fc(a, b, d, n); });
    cd::expect_two_src_errors<Tav64fc, Tav64fc, Tav64fc>([](const Tav64fc* a, const Tav64fc* b, Tav64fc* d, int n) { return tavsDiv_64fc(a, b, d, n); });
    cd::expect_src_sd_errors<float, float>([](const float* a, float* d, int n) { return tavsDiv_32f_I(a, d, n); });
    cd::expect_src_sd_errors<double, double>([](const double* a, double* d, int n) { return tavsDiv_64f_I(a, d, n); });
    cd::expect_src_sd_errors<Tav32fc, Tav32fc>([](const Tav32fc* a, Tav32fc* d, int n) { return tavsDiv_32fc_I(a, d, n); });
    cd::expect_src_sd_errors<Tav64fc, Tav64fc>([](const Tav64fc* a, Tav64fc* d, int n) { return tavsDiv_64fc_I(a, d, n); });
}

} // namespace

#include <gtest/gtest.h>

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

// ---- float constants ----------------------------------------------------------------
TEST(DivC, Float32MultipliesByTheReciprocal)
{
    tt::Rng r(1);
    bool differs = false;
    for (int trial = 0; trial < 500; ++trial) {
        float v = cd::rand_float<float>(r);
        if (v == 0.0f) v = 3.0f;
        const int n = int(r.range(1, 40));
        std::vector<float> src(n), dst(n), via(n);
        for (auto& x : src) x = cd::rand_float<float>(r);
        auto sd = src;
        ASSERT_EQ(tavsDivC_32f(src.data(), v, dst.data(), n), StatusOk);
        ASSERT_EQ(tavsMulC_32f(src.data(), 1.0f / v, via.data(), n), StatusOk);
        ASSERT_EQ(tavsDivC_32f_I(v, sd.data(), n), StatusOk);
        for (int i = 0; i < n; ++i) {
            ASSERT_TRUE(tt::same_bits(dst[i], via[i]) || (std::isnan(dst[i]) && std::isnan(via[i])));
            ASSERT_TRUE(cd::same_value(sd[i], dst[i]));
        }
    }
    // One unit away from true division is possible.
    for (int x = 1; x < 2000 && !differs; ++x) {
        const float s = float(x);
        float d;
        ASSERT_EQ(tavsDivC_32f(&s, 10.0f, &d, 1), StatusOk);
        differs = d != s / 10.0f;
    }
    EXPECT_TRUE(differs);
    // 1 goes through the copy shortcut; Inf through the zero fill.
    const float snan = [] { uint32_t b = 0x7f800001u; float f; std::memcpy(&f, &b, 4); return f; }();
    float a[3] = {snan, -0.0f, NAN}, b[3];
    ASSERT_EQ(tavsDivC_32f(a, 1.0f, b, 3), StatusOk);
    for (int i = 0; i < 3; ++i) EXPECT_EQ(bits32(a[i]), bits32(b[i]));
    ASSERT_EQ(tavsDivC_32f(a, -INFINITY, b, 3), StatusOk);
    for (int i = 0; i < 3; ++i) EXPECT_EQ(bits32(b[i]), 0u);
    ASSERT_EQ(tavsDivC_32f_I(1.0f, a, 3), StatusOk);
    EXPECT_EQ(bits32(a[0]), 0x7f800001u);
}

TEST(DivC, Float64Divides)
{
    tt::Rng r(2);
    for (int len = 1; len <= 70; ++len)
        for (int off = 0; off < 4; ++off) {
            double v = cd::rand_float<double>(r);
            if (v == 0.0) v = -7.0;
            std::vector<double> src(static_cast<size_t>(len));
            for (auto& x : src) x = cd::rand_float<double>(r);
            tt::Guarded<double> g(size_t(len), size_t(off) * 8);
            ASSERT_EQ(tavsDivC_64f(src.data(), v, g.data(), len), StatusOk);
            auto sd = src;
            ASSERT_EQ(tavsDivC_64f_I(v, sd.data(), len), StatusOk);
            for (int i = 0; i < len; ++i) {
                ASSERT_TRUE(cd::same_value(g.data()[i], src[size_t(i)] / v));
                ASSERT_TRUE(cd::same_value(sd[size_t(i)], src[size_t(i)] / v));
            }
            EXPECT_TRUE(g.borders_intact());
        }
}

template <class C, class F> void check_cplx(Status (*oop)(const C*, C, C*, int), Status (*ip)(C, C*, int), Status (*div)(const C*, const C*, C*, int), uint64_t seed)
{
    tt::Rng r(seed);
    for (int trial = 0; trial < 300; ++trial) {
        C v{cd::rand_float<F>(r), cd::rand_float<F>(r)};
        if (v.re * v.re + v.im * v.im == F(0)) v = C{F(1), F(-2)};
        const int n = int(r.range(1, 20));
        std::vector<C> src(n), dst(n), ref(n), vs(n, v);
        for (auto& x : src) x = C{cd::rand_float<F>(r), cd::rand_float<F>(r)};
        auto sd = src;
        ASSERT_EQ(oop(src.data(), v, dst.data(), n), StatusOk);
        ASSERT_EQ(ip(v, sd.data(), n), StatusOk);
        ASSERT_EQ(div(vs.data(), src.data(), ref.data(), n), StatusOk);
        for (int i = 0; i < n; ++i) {
            ASSERT_TRUE(cd::same_value(dst[i].re, ref[i].re) && cd::same_value(dst[i].im, ref[i].im));
            ASSERT_TRUE(cd::same_value(sd[i].re, ref[i].re) && cd::same_value(sd[i].im, ref[i].im));
        }
    }
}

TEST(DivC, ComplexFloatsFollowTheDivisionFormula)
{
    check_cplx<Tav32fc, float>(tavsDivC_32fc, tavsDivC_32fc_I, tavsDiv_32fc, 3);
    check_cplx<Tav64fc, double>(tavsDivC_64fc, tavsDivC_64fc_I, tavsDiv_64fc, 4);
    const Tav32fc x{2, 4};
    Tav32fc q;
    ASSERT_EQ(tavsDivC_32fc(&x, Tav32fc{0, 1}, &q, 1), StatusOk);
    EXPECT_EQ(q.re, 4.0f);
    EXPECT_EQ(q.im, -2.0f);
    // A constant whose squared magnitude underflows counts as zero.
    tt::Guarded<Tav32fc> g(1);
    EXPECT_EQ(tavsDivC_32fc(&x, Tav32fc{1e-30f, 0}, g.data(), 1), ErrDivByZero);
    EXPECT_TRUE(g.untouched());
}

// ---- 8u, 16s, 16u: the scaled reciprocal in float ---------------------------------------
template <class T> T ref_recip(T x, T v, int s)
{
    const float r = 1.0f / (float(v) * std::ldexp(1.0f, s));
    float p = float(x) * r;
    if (std::isnan(p)) return 0;
    p = std::fmin(std::fmax(p, float(std::numeric_limits<T>::min())), float(std::numeric_limits<T>::max()));
    return T(std::nearbyint(p));
}

i128 exact_quot(i128 n, i128 d, int s)
{
    // |n| <= 2^63: from s = 64 every quotient is at most one half, which goes to 0.
    if (s > 0) return s >= 64 ? 0 : cd::ref_div_rne(n, d * (i128(1) << s));
    if (n == 0) return 0;
    // |n| * 2^-s at or beyond 2^126 over a divisor of at most 2^63 saturates every type here.
    const i128 mag = n < 0 ? -n : n;
    if (s <= -126 || mag >= (i128(1) << (126 + s))) return ((n < 0) != (d < 0)) ? -(i128(1) << 100) : (i128(1) << 100);
    return cd::ref_div_rne(n * (i128(1) << -s), d);
}

template <class T> void sweep_recip(Status (*oop)(const T*, T, T*, int, int), Status (*ip)(T, T*, int, int), bool is16u, uint64_t seed)
{
    tt::Rng r(seed);
    const int n = 50;
    for (int s : cd::sweep_scales())
        for (int trial = 0; trial < 4; ++trial) {
            T v = trial == 0 ? T(1) : trial == 1 ? T(r.range(-3, 3)) : r.element<T>();
            if (v == 0) v = T(7);
            const auto src = tt::random_vector<T>(r, n);
            std::vector<T> dst(n);
            auto sd = src;
            ASSERT_EQ(oop(src.data(), v, dst.data(), n, s), StatusOk);
            ASSERT_EQ(ip(v, sd.data(), n, s), StatusOk);
            for (int i = 0; i < n; ++i) {
                T want = ref_recip(src[i], v, s);
                if (is16u && s >= 17) want = 0;
                if (is16u && s < -31) want = T(65535); // a fill, zero elements included
                ASSERT_EQ(dst[i], want) << +src[i] << " / " << +v << " s=" << s;
                ASSERT_EQ(sd[i], want);
                // The reciprocal costs at most one unit against the exact quotient.
                if (!(is16u && s < -31)) {
                    const i128 e = cd::sat<T>(exact_quot(src[i], v, s));
                    ASSERT_LE(e - i128(dst[i]), 1);
                    ASSERT_GE(e - i128(dst[i]), -1);
                }
            }
        }
}

TEST(DivC, IntegerFormsUseTheScaledReciprocal)
{
    sweep_recip<Tav8u>(tavsDivC_8u_Sfs, tavsDivC_8u_ISfs, false, 5);
    sweep_recip<Tav16s>(tavsDivC_16s_Sfs, tavsDivC_16s_ISfs, false, 6);
    sweep_recip<Tav16u>(tavsDivC_16u_Sfs, tavsDivC_16u_ISfs, true, 7);
}

TEST(DivC, Unsigned16Shortcuts)
{
    cd::NoAccessPage page;
    ASSERT_TRUE(page.ok());
    std::vector<Tav16u> d(6, 9);
    ASSERT_EQ(tavsDivC_16u_Sfs(page.get<Tav16u>(), 3, d.data(), 6, 17), StatusOk);
    for (Tav16u x : d) EXPECT_EQ(x, 0);
    ASSERT_EQ(tavsDivC_16u_Sfs(page.get<Tav16u>(), 3, d.data(), 6, -32), StatusOk);
    for (Tav16u x : d) EXPECT_EQ(x, 65535);
    const Tav16u src[3] = {0, 1, 65535};
    Tav16u out[3];
    ASSERT_EQ(tavsDivC_16u_Sfs(src, 1, out, 3, 0), StatusOk);
    for (int i = 0; i < 3; ++i) EXPECT_EQ(out[i], src[i]);
    ASSERT_EQ(tavsDivC_16u_Sfs(src, 2, out, 3, -31), StatusOk); // computed: 0 stays 0
    EXPECT_EQ(out[0], 0);
    EXPECT_EQ(out[1], 65535);
}

TEST(DivC, Complex16scIsExact)
{
    tt::Rng r(8);
    const int n = 40;
    for (int s : cd::sweep_scales()) {
        Tav16sc v{r.element<Tav16s>(), r.element<Tav16s>()};
        if (v.re == 0 && v.im == 0) v.re = 5;
        std::vector<Tav16sc> src(n), dst(n), ref(n), vs(n, v);
        for (auto& x : src) x = Tav16sc{r.element<Tav16s>(), r.element<Tav16s>()};
        auto sd = src;
        ASSERT_EQ(tavsDivC_16sc_Sfs(src.data(), v, dst.data(), n, s), StatusOk);
        ASSERT_EQ(tavsDivC_16sc_ISfs(v, sd.data(), n, s), StatusOk);
        for (int i = 0; i < n; ++i) {
            const i128 m = i128(v.re) * v.re + i128(v.im) * v.im;
            const Tav16sc a = src[size_t(i)];
            const Tav16s re = cd::sat<Tav16s>(exact_quot(i128(a.re) * v.re + i128(a.im) * v.im, m, s));
            const Tav16s im = cd::sat<Tav16s>(exact_quot(i128(a.im) * v.re - i128(a.re) * v.im, m, s));
            ASSERT_EQ(dst[size_t(i)].re, re) << "s=" << s;
            ASSERT_EQ(dst[size_t(i)].im, im) << "s=" << s;
            ASSERT_TRUE(tt::same_bits(sd[size_t(i)], dst[size_t(i)]));
        }
    }
}

// ---- 64s: reciprocal mantissa through the 64s product ----------------------------------
Tav64s ref_64s(Tav64s x, Tav64s v, int s)
{
    if (v == 1 || v == -1) return cd::scaled<Tav64s>(i128(x) * v, s);
    const unsigned __int128 mag = v < 0 ? (unsigned __int128)(-(i128)v) : (unsigned __int128)v;
    int k = 0;
    while ((unsigned __int128)1 << (k + 1) < mag) ++k; // 2^k < mag <= 2^(k + 1)
    const unsigned __int128 q = ((unsigned __int128)1 << (64 + k)) / mag;
    const i128 rr = i128((q + 1) >> 1);
    const long scale = long(s) + k + 63;
    return cd::scaled<Tav64s>(i128(x) * (v < 0 ? -rr : rr), scale > 100000 ? 100000 : int(scale));
}

TEST(DivC, Int64ThroughTheReciprocalMantissa)
{
    tt::Rng r(9);
    const int n = 40;
    for (int s : cd::sweep_scales())
        for (int trial = 0; trial < 5; ++trial) {
            Tav64s v = trial == 0 ? 1 : trial == 1 ? -1 : trial == 2 ? Tav64s(r.range(-9, 9)) : r.element<Tav64s>();
            if (v == 0) v = INT64_MIN;
            const auto src = tt::random_vector<Tav64s>(r, n);
            auto sd = src;
            ASSERT_EQ(tavsDivC_64s_ISfs(v, sd.data(), n, s), StatusOk);
            for (int i = 0; i < n; ++i) {
                ASSERT_EQ(sd[i], ref_64s(src[i], v, s)) << src[i] << " / " << v << " s=" << s;
                const i128 e = cd::sat<Tav64s>(exact_quot(src[i], v, s));
                ASSERT_LE(e - sd[i], 1) << src[i] << " / " << v << " s=" << s << " got " << sd[i];
                ASSERT_GE(e - sd[i], -1);
                // Powers of two and +-1 are exact.
                const unsigned long long mag = v < 0 ? 0ull - (unsigned long long)v : (unsigned long long)v;
                if ((mag & (mag - 1)) == 0) ASSERT_EQ(sd[i], e);
            }
        }
    Tav64s a[4] = {5, -5, 0, INT64_MIN};
    ASSERT_EQ(tavsDivC_64s_ISfs(0, a, 4, 3), WarnDivByZero);
    EXPECT_EQ(a[0], INT64_MAX);
    EXPECT_EQ(a[1], INT64_MIN);
    EXPECT_EQ(a[2], 0);
    EXPECT_EQ(a[3], INT64_MIN);
    Tav64s b[2] = {INT64_MIN, 7};
    ASSERT_EQ(tavsDivC_64s_ISfs(-1, b, 2, 0), StatusOk);
    EXPECT_EQ(b[0], INT64_MAX);
    EXPECT_EQ(b[1], -7);
    Tav64s c[2] = {INT64_MIN, 7};
    ASSERT_EQ(tavsDivC_64s_ISfs(-1, c, 2, 1), StatusOk);
    EXPECT_EQ(c[0], INT64_C(1) << 62);
    EXPECT_EQ(c[1], -4); // -3.5 to even
    Tav64s e[1] = {100};
    ASSERT_EQ(tavsDivC_64s_ISfs(3, e, 1, 0), StatusOk);
    EXPECT_EQ(e[0], 33);
}

// ---- DivCRev ------------------------------------------------------------------------------
TEST(DivCRev, Float32)
{
    tt::Rng r(10);
    for (int trial = 0; trial < 300; ++trial) {
        const float v = trial % 5 == 0 ? 0.0f : cd::rand_float<float>(r);
        const int n = int(r.range(1, 30));
        std::vector<float> src(n), dst(n);
        for (auto& x : src) x = r.next() % 6 == 0 ? 0.0f : cd::rand_float<float>(r);
        auto sd = src;
        bool z = false;
        for (float x : src) z |= x == 0.0f;
        ASSERT_EQ(tavsDivCRev_32f(src.data(), v, dst.data(), n), z ? WarnDivByZero : StatusOk);
        ASSERT_EQ(tavsDivCRev_32f_I(v, sd.data(), n), z ? WarnDivByZero : StatusOk);
        for (int i = 0; i < n; ++i) {
            if (src[i] == 0.0f) {
                const uint32_t want = v > 0 ? 0x7f800000u : v < 0 ? 0xff800000u : 0xffc00000u;
                ASSERT_EQ(bits32(dst[i]), want);
            } else {
                ASSERT_TRUE(cd::same_value(dst[i], v / src[i]));
            }
            ASSERT_TRUE(cd::same_value(sd[i], dst[i]));
        }
    }
}

Tav16u ref_rev16u(Tav16u x, Tav16u v)
{
    if (x == 0) return v != 0 ? 65535 : 0;
    const uint64_t q = (uint64_t(v) << 16) / x;
    const uint64_t r = (q + ((q & 0x10000) >> 15) + 32767) >> 16;
    return Tav16u(r > 65535 ? 65535 : r);
}

TEST(DivCRev, Unsigned16FixedPointQuotient)
{
    std::vector<Tav16u> src(65536), dst(65536);
    for (int i = 0; i < 65536; ++i) src[size_t(i)] = Tav16u(i);
    for (int v : {0, 1, 2, 3, 7, 255, 1000, 32767, 32768, 65534, 65535}) {
        ASSERT_EQ(tavsDivCRev_16u(src.data(), Tav16u(v), dst.data(), 65536), WarnDivByZero);
        for (int i = 0; i < 65536; ++i) ASSERT_EQ(dst[size_t(i)], ref_rev16u(Tav16u(i), Tav16u(v))) << v << "/" << i;
    }
    tt::Rng r(11);
    for (int trial = 0; trial < 200; ++trial) {
        const Tav16u v = r.element<Tav16u>();
        auto sd = tt::random_vector<Tav16u>(r, 33);
        for (auto& x : sd)
            if (x == 0) x = 1;
        const auto orig = sd;
        ASSERT_EQ(tavsDivCRev_16u_I(v, sd.data(), 33), StatusOk);
        for (int i = 0; i < 33; ++i) ASSERT_EQ(sd[size_t(i)], ref_rev16u(orig[size_t(i)], v));
    }
    // Quotients close to the exact value: 7 / 2 is 3.5, stored 4; 5 / 2 stores 2; 1 / 3 stores 0.
    const Tav16u two = 2, three = 3;
    Tav16u q;
    ASSERT_EQ(tavsDivCRev_16u(&two, 7, &q, 1), StatusOk);
    EXPECT_EQ(q, 4);
    ASSERT_EQ(tavsDivCRev_16u(&two, 5, &q, 1), StatusOk);
    EXPECT_EQ(q, 2);
    ASSERT_EQ(tavsDivCRev_16u(&three, 1, &q, 1), StatusOk);
    EXPECT_EQ(q, 0);
}

// ---- errors -------------------------------------------------------------------------------
template <class T, class V> void errors(Status (*oop)(const T*, V, T*, int, int), Status (*ip)(V, T*, int, int), V zero, V nonzero)
{
    for (int s : {0, 20, -40, INT_MIN, INT_MAX}) {
        for (V v : {zero, nonzero}) {
            cd::expect_oop_errors<T, T>([&](const T* a, T* d, int n) { return oop(a, v, d, n, s); });
            cd::expect_ip_errors<T>([&](T* d, int n) { return ip(v, d, n, s); });
        }
        std::vector<T> a(4);
        tt::Guarded<T> g(4);
        EXPECT_EQ(oop(a.data(), zero, g.data(), 4, s), ErrDivByZero);
        EXPECT_EQ(ip(zero, g.data(), 4, s), ErrDivByZero);
        EXPECT_TRUE(g.untouched());
    }
}

template <class T> void errors_float(Status (*oop)(const T*, T, T*, int), Status (*ip)(T, T*, int), T zero, T nonzero)
{
    for (T v : {zero, nonzero}) {
        cd::expect_oop_errors<T, T>([&](const T* a, T* d, int n) { return oop(a, v, d, n); });
        cd::expect_ip_errors<T>([&](T* d, int n) { return ip(v, d, n); });
    }
    std::vector<T> a(4);
    tt::Guarded<T> g(4);
    EXPECT_EQ(oop(a.data(), zero, g.data(), 4), ErrDivByZero);
    EXPECT_EQ(ip(zero, g.data(), 4), ErrDivByZero);
    EXPECT_TRUE(g.untouched());
}

TEST(DivC, ErrorsInTheirOrder)
{
    errors<Tav8u, Tav8u>(tavsDivC_8u_Sfs, tavsDivC_8u_ISfs, 0, 3);
    errors<Tav16s, Tav16s>(tavsDivC_16s_Sfs, tavsDivC_16s_ISfs, 0, -3);
    errors<Tav16u, Tav16u>(tavsDivC_16u_Sfs, tavsDivC_16u_ISfs, 0, 1);
    errors<Tav16sc, Tav16sc>(tavsDivC_16sc_Sfs, tavsDivC_16sc_ISfs, Tav16sc{0, 0}, Tav16sc{0, 1});
    errors_float<float>(tavsDivC_32f, tavsDivC_32f_I, 0.0f, 1.0f);
    errors_float<float>(tavsDivC_32f, tavsDivC_32f_I, -0.0f, 2.0f);
    errors_float<double>(tavsDivC_64f, tavsDivC_64f_I, 0.0, 1.0);
    errors_float<Tav32fc>(tavsDivC_32fc, tavsDivC_32fc_I, Tav32fc{0, -0.0f}, Tav32fc{1, 0});
    errors_float<Tav64fc>(tavsDivC_64fc, tavsDivC_64fc_I, Tav64fc{0, 0}, Tav64fc{0, 1});
    for (Tav64s v : {Tav64s(0), Tav64s(1), Tav64s(-5)})
        for (int s : {0, 200, INT_MIN}) cd::expect_ip_errors<Tav64s>([&](Tav64s* d, int n) { return tavsDivC_64s_ISfs(v, d, n, s); });
    for (Tav16u v : {0, 9}) {
        cd::expect_oop_errors<Tav16u, Tav16u>([&](const Tav16u* a, Tav16u* d, int n) { return tavsDivCRev_16u(a, v, d, n); });
        cd::expect_ip_errors<Tav16u>([&](Tav16u* d, int n) { return tavsDivCRev_16u_I(v, d, n); });
    }
    for (float v : {0.0f, 2.0f}) {
        cd::expect_oop_errors<float, float>([&](const float* a, float* d, int n) { return tavsDivCRev_32f(a, v, d, n); });
        cd::expect_ip_errors<float>([&](float* d, int n) { return tavsDivCRev_32f_I(v, d, n); });
    }
    // The documented cases: a zero constant is refused and nothing is written;
    // the 64s member warns and saturates instead.
    const float x[2] = {1, 2};
    tt::Guarded<float> g(2);
    EXPECT_EQ(tavsDivC_32f(x, 0.0f, g.data(), 2), -10);
    EXPECT_TRUE(g.untouched());
    Tav64s p = 12;
    EXPECT_EQ(tavsDivC_64s_ISfs(0, &p, 1, 0), 6);
    EXPECT_EQ(p, INT64_MAX);
}

} // namespace

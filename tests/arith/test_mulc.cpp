#include <gtest/gtest.h>

#include <cfloat>
#include <climits>
#include <cmath>
#include <cstring>
#include <vector>

#include "constdiv_support.h"
#include "tavs.h"
#include "test_util.h"

namespace {

using cd::i128;

template <class T> using OopFn = Status (*)(const T*, T, T*, int, int);
template <class T> using IpFn = Status (*)(T, T*, int, int);

float from_bits(uint32_t b)
{
    float f;
    std::memcpy(&f, &b, 4);
    return f;
}
const float kSNaN = from_bits(0x7f800001u);

// Out of place (where there is one) and in place against the exact product
// scaled once.
template <class T> void sweep_real(OopFn<T> oop, IpFn<T> ip, uint64_t seed)
{
    tt::Rng r(seed);
    const int n = 37;
    for (int s : cd::sweep_scales())
        for (int trial = 0; trial < 4; ++trial) {
            const T v = trial == 0 ? T(0) : trial == 1 ? T(1) : r.element<T>();
            const auto src = tt::random_vector<T>(r, n);
            std::vector<T> dst(n), sd = src;
            if (oop) ASSERT_EQ(oop(src.data(), v, dst.data(), n, s), StatusOk);
            ASSERT_EQ(ip(v, sd.data(), n, s), StatusOk);
            for (int i = 0; i < n; ++i) {
                const T want = cd::scaled<T>(i128(src[i]) * v, s);
                if (oop) ASSERT_EQ(dst[i], want) << "s=" << s << " x=" << +src[i] << " v=" << +v;
                ASSERT_EQ(sd[i], want) << "in place s=" << s << " x=" << +src[i] << " v=" << +v;
            }
        }
}

template <class C, class P> void sweep_cplx(Status (*oop)(const C*, C, C*, int, int), Status (*ip)(C, C*, int, int), uint64_t seed)
{
    tt::Rng r(seed);
    const int n = 29;
    for (int s : cd::sweep_scales()) {
        const C v{r.element<P>(), r.element<P>()};
        std::vector<C> src(n), dst(n);
        for (auto& c : src) c = C{r.element<P>(), r.element<P>()};
        std::vector<C> sd = src, same = src;
        ASSERT_EQ(oop(src.data(), v, dst.data(), n, s), StatusOk);
        ASSERT_EQ(ip(v, sd.data(), n, s), StatusOk);
        ASSERT_EQ(oop(same.data(), v, same.data(), n, s), StatusOk); // src == dst goes in place
        for (int i = 0; i < n; ++i) {
            const C a = src[i];
            const i128 re = i128(a.re) * v.re - i128(a.im) * v.im;
            const i128 im = i128(a.re) * v.im + i128(a.im) * v.re;
            ASSERT_EQ(dst[i].re, cd::scaled<P>(re, s)) << "s=" << s;
            ASSERT_EQ(dst[i].im, cd::scaled<P>(im, s)) << "s=" << s;
            ASSERT_TRUE(tt::same_bits(dst[i], sd[i]));
            ASSERT_TRUE(tt::same_bits(dst[i], same[i]));
        }
    }
}

TEST(MulC, IntegerMembersMatchTheExactRule)
{
    sweep_real<Tav8u>(tavsMulC_8u_Sfs, tavsMulC_8u_ISfs, 1);
    sweep_real<Tav16s>(tavsMulC_16s_Sfs, tavsMulC_16s_ISfs, 2);
    sweep_real<Tav16u>(tavsMulC_16u_Sfs, tavsMulC_16u_ISfs, 3);
    sweep_real<Tav32s>(tavsMulC_32s_Sfs, tavsMulC_32s_ISfs, 4);
    sweep_real<Tav64s>(nullptr, tavsMulC_64s_ISfs, 5);
    sweep_cplx<Tav16sc, Tav16s>(tavsMulC_16sc_Sfs, tavsMulC_16sc_ISfs, 6);
    sweep_cplx<Tav32sc, Tav32s>(tavsMulC_32sc_Sfs, tavsMulC_32sc_ISfs, 7);
}

TEST(MulC, UnscaledInPlace16sSaturates)
{
    tt::Rng r(8);
    for (int trial = 0; trial < 60; ++trial) {
        const Tav16s v = trial == 0 ? Tav16s(1) : trial == 1 ? Tav16s(0) : r.element<Tav16s>();
        const auto src = tt::random_vector<Tav16s>(r, 41);
        auto sd = src;
        ASSERT_EQ(tavsMulC_16s_I(v, sd.data(), 41), StatusOk);
        for (int i = 0; i < 41; ++i) ASSERT_EQ(sd[i], cd::sat<Tav16s>(i128(src[i]) * v));
    }
}

TEST(MulC, ProductEdges)
{
    // (-32768, -32768) squared: re 0, im 2^31 which stores 32767.
    const Tav16sc m{-32768, -32768};
    Tav16sc d;
    ASSERT_EQ(tavsMulC_16sc_Sfs(&m, m, &d, 1, 0), StatusOk);
    EXPECT_EQ(d.re, 0);
    EXPECT_EQ(d.im, 32767);
    ASSERT_EQ(tavsMulC_16sc_Sfs(&m, m, &d, 1, 31), StatusOk); // 2^31 / 2^31
    EXPECT_EQ(d.im, 1);
    ASSERT_EQ(tavsMulC_16sc_Sfs(&m, m, &d, 1, 32), StatusOk); // one half ties to 0
    EXPECT_EQ(d.im, 0);
    const Tav32sc w{INT32_MIN, INT32_MIN};
    Tav32sc e;
    ASSERT_EQ(tavsMulC_32sc_Sfs(&w, w, &e, 1, 63), StatusOk);
    EXPECT_EQ(e.re, 0);
    EXPECT_EQ(e.im, 1);
    // A product of 100000 at scale -1 saturates first and stays 32767.
    const Tav16s x = 1000;
    Tav16s y;
    ASSERT_EQ(tavsMulC_16s_Sfs(&x, 100, &y, 1, -1), StatusOk);
    EXPECT_EQ(y, 32767);
    // Product 3 at scale 1 stores 2; product 1 stores 0 (ties to even).
    const Tav32s three = 3, one = 1;
    Tav32s z;
    ASSERT_EQ(tavsMulC_32s_Sfs(&three, 1, &z, 1, 1), StatusOk);
    EXPECT_EQ(z, 2);
    ASSERT_EQ(tavsMulC_32s_Sfs(&one, 1, &z, 1, 1), StatusOk);
    EXPECT_EQ(z, 0);
    // 64s: (-2^63)^2 = 2^126 is 1 at scale 126 and 0 at 127 (one half).
    Tav64s q = INT64_MIN;
    ASSERT_EQ(tavsMulC_64s_ISfs(INT64_MIN, &q, 1, 126), StatusOk);
    EXPECT_EQ(q, 1);
    q = INT64_MIN;
    ASSERT_EQ(tavsMulC_64s_ISfs(INT64_MIN, &q, 1, 127), StatusOk);
    EXPECT_EQ(q, 0);
    q = 3;
    ASSERT_EQ(tavsMulC_64s_ISfs(INT64_MAX, &q, 1, 0), StatusOk);
    EXPECT_EQ(q, INT64_MAX);
    q = -3;
    ASSERT_EQ(tavsMulC_64s_ISfs(INT64_MAX, &q, 1, 1), StatusOk);
    EXPECT_EQ(q, INT64_MIN);
    q = 5;
    ASSERT_EQ(tavsMulC_64s_ISfs(-1, &q, 1, INT_MIN), StatusOk);
    EXPECT_EQ(q, INT64_MIN);
}

TEST(MulC, ZeroAndOneConstants)
{
    cd::NoAccessPage page;
    ASSERT_TRUE(page.ok());
    // A zero constant fills with zero whatever the scale, without reading src.
    std::vector<Tav16s> d(5, 9);
    ASSERT_EQ(tavsMulC_16s_Sfs(page.get<Tav16s>(), 0, d.data(), 5, -100), StatusOk);
    for (Tav16s x : d) EXPECT_EQ(x, 0);
    std::vector<Tav8u> e(5, 9);
    ASSERT_EQ(tavsMulC_8u_Sfs(page.get<Tav8u>(), 0, e.data(), 5, INT_MIN), StatusOk);
    for (Tav8u x : e) EXPECT_EQ(x, 0);
    std::vector<Tav16u> f(5, 9);
    ASSERT_EQ(tavsMulC_16u_ISfs(0, f.data(), 5, -40), StatusOk);
    for (Tav16u x : f) EXPECT_EQ(x, 0);
    std::vector<float> g(5, 9);
    ASSERT_EQ(tavsMulC_32f(page.get<float>(), 0.0f, g.data(), 5), StatusOk);
    for (float x : g) EXPECT_TRUE(tt::same_bits(x, 0.0f));
    // 0 times NaN, Inf and negative values gives +0.
    const float src[4] = {NAN, -INFINITY, -3.0f, -0.0f};
    float h[4];
    for (float v : {0.0f, -0.0f}) {
        ASSERT_EQ(tavsMulC_32f(src, v, h, 4), StatusOk);
        for (float x : h) EXPECT_TRUE(tt::same_bits(x, 0.0f));
    }
    double sd[3] = {NAN, -1.0, INFINITY};
    ASSERT_EQ(tavsMulC_64f_I(-0.0, sd, 3), StatusOk);
    for (double x : sd) EXPECT_TRUE(tt::same_bits(x, 0.0));
    // 1 copies (out of place) or leaves alone (in place): a signalling NaN survives.
    float k[3] = {kSNaN, -0.0f, 1.5f}, l[3];
    ASSERT_EQ(tavsMulC_32f(k, 1.0f, l, 3), StatusOk);
    for (int i = 0; i < 3; ++i) EXPECT_TRUE(tt::same_bits(k[i], l[i]));
    ASSERT_EQ(tavsMulC_32f_I(1.0f, k, 3), StatusOk);
    EXPECT_TRUE(tt::same_bits(k[0], kSNaN));
    double m[2] = {-0.0, 2.0}, n2[2];
    ASSERT_EQ(tavsMulC_64f(m, 1.0, n2, 2), StatusOk);
    EXPECT_TRUE(std::signbit(n2[0]));
    ASSERT_EQ(tavsMulC_64f_I(1.0, m, 2), StatusOk);
    EXPECT_TRUE(std::signbit(m[0]));
    // 1 at scale 0 copies; 1 at scale 1 halves.
    const Tav16s t[2] = {3, 5};
    Tav16s u[2];
    ASSERT_EQ(tavsMulC_16s_Sfs(t, 1, u, 2, 0), StatusOk);
    EXPECT_EQ(u[0], 3);
    ASSERT_EQ(tavsMulC_16s_Sfs(t, 1, u, 2, 1), StatusOk);
    EXPECT_EQ(u[0], 2);
    EXPECT_EQ(u[1], 2);
    Tav16s w[2] = {-7, 8};
    ASSERT_EQ(tavsMulC_16s_I(1, w, 2), StatusOk);
    EXPECT_EQ(w[0], -7);
}

// ---- floats ---------------------------------------------------------------------------
template <class F> void sweep_float(Status (*oop)(const F*, F, F*, int), Status (*ip)(F, F*, int), uint64_t seed)
{
    tt::Rng r(seed);
    for (int trial = 0; trial < 400; ++trial) {
        const F v = trial % 9 == 0 ? F(0) : trial % 9 == 1 ? F(1) : cd::rand_float<F>(r);
        const int n = int(r.range(1, 40));
        std::vector<F> src(n), dst(n);
        for (auto& x : src) x = cd::rand_float<F>(r);
        std::vector<F> sd = src;
        ASSERT_EQ(oop(src.data(), v, dst.data(), n), StatusOk);
        ASSERT_EQ(ip(v, sd.data(), n), StatusOk);
        for (int i = 0; i < n; ++i) {
            F want = src[i] * v;
            if (v == F(1)) want = src[i];
            if (v == F(0)) want = F(0);
            ASSERT_TRUE(cd::same_value(dst[i], want)) << src[i] << " * " << v;
            ASSERT_TRUE(cd::same_value(sd[i], want));
            if (v == F(1) || v == F(0)) ASSERT_TRUE(tt::same_bits(dst[i], want));
        }
    }
}

template <class C, class F> void sweep_fcplx(Status (*oop)(const C*, C, C*, int), Status (*ip)(C, C*, int), uint64_t seed)
{
    tt::Rng r(seed);
    for (int trial = 0; trial < 300; ++trial) {
        const C v{cd::rand_float<F>(r), cd::rand_float<F>(r)};
        const int n = int(r.range(1, 20));
        std::vector<C> src(n), dst(n);
        for (auto& x : src) x = C{cd::rand_float<F>(r), cd::rand_float<F>(r)};
        std::vector<C> sd = src;
        ASSERT_EQ(oop(src.data(), v, dst.data(), n), StatusOk);
        ASSERT_EQ(ip(v, sd.data(), n), StatusOk);
        for (int i = 0; i < n; ++i) {
            const C a = src[i];
            const F t1 = a.re * v.re, t2 = a.im * v.im, t3 = a.im * v.re, t4 = a.re * v.im;
            ASSERT_TRUE(cd::same_value(dst[i].re, F(t1 - t2)));
            ASSERT_TRUE(cd::same_value(dst[i].im, F(t3 + t4)));
            ASSERT_TRUE(cd::same_value(sd[i].re, dst[i].re) && cd::same_value(sd[i].im, dst[i].im));
        }
    }
}

TEST(MulC, FloatMembersAreOneIeeeProduct)
{
    sweep_float<float>(tavsMulC_32f, tavsMulC_32f_I, 11);
    sweep_float<double>(tavsMulC_64f, tavsMulC_64f_I, 12);
    sweep_fcplx<Tav32fc, float>(tavsMulC_32fc, tavsMulC_32fc_I, 13);
    sweep_fcplx<Tav64fc, double>(tavsMulC_64fc, tavsMulC_64fc_I, 14);
}

TEST(MulC, VectorPathAgreesWithTheScalarProduct)
{
    tt::Rng r(15);
    for (int len = 0; len <= 70; ++len)
        for (int off = 0; off < 16; ++off) {
            std::vector<float> src(size_t(len) + 1);
            for (auto& x : src) x = cd::rand_float<float>(r);
            const float v = r.uniform(-5, 5);
            tt::Guarded<float> g(size_t(len), size_t(off) * 4);
            const Status st = tavsMulC_32f(src.data(), v, g.data(), len);
            std::vector<double> srcd(size_t(len) + 1);
            for (auto& x : srcd) x = cd::rand_float<double>(r);
            tt::Guarded<double> h(size_t(len), size_t(off) * 8);
            const Status st2 = tavsMulC_64f(srcd.data(), double(v), h.data(), len);
            if (len == 0) {
                EXPECT_EQ(st, ErrSize);
                EXPECT_EQ(st2, ErrSize);
                EXPECT_TRUE(g.untouched() && h.untouched());
                continue;
            }
            ASSERT_EQ(st, StatusOk);
            ASSERT_EQ(st2, StatusOk);
            for (int i = 0; i < len; ++i) {
                ASSERT_TRUE(cd::same_value(g.data()[i], src[i] * v)) << len << " " << off;
                ASSERT_TRUE(cd::same_value(h.data()[i], srcd[i] * double(v)));
            }
            EXPECT_TRUE(g.borders_intact() && h.borders_intact());
        }
}

// ---- 64f value into the 64s product ---------------------------------------------------
TEST(MulC, Float64ValueIsAnExactBinaryFraction)
{
    tt::Rng r(21);
    const int n = 31;
    for (int trial = 0; trial < 3000; ++trial) {
        double v;
        switch (trial % 5) {
        case 0: v = double(r.range(-1000, 1000)) / 8.0; break;
        case 1: v = std::ldexp(r.uniform(-1, 1), int(r.range(-80, 80))); break;
        case 2: v = std::numeric_limits<double>::denorm_min() * double(r.range(-100, 100)); break;
        case 3: {
            uint64_t b = r.next();
            std::memcpy(&v, &b, 8);
            if (!std::isfinite(v)) v = 0.75;
            break;
        }
        default: v = double(r.element<Tav32s>());
        }
        const int s = trial % 7 == 0 ? int(r.range(-2000, 2000)) : int(r.range(-70, 140));
        const auto src = tt::random_vector<Tav64s>(r, n);
        auto sd = src;
        ASSERT_EQ(tavsMulC_64f64s_ISfs(v, sd.data(), n, s), StatusOk);
        // v = m * 2^k with an integer m.
        int ex = 0;
        const double fr = std::frexp(v, &ex);
        const i128 m = i128(int64_t(std::ldexp(fr, 53)));
        const long k = long(ex) - 53;
        const long scale = long(s) - k;
        const int sc = scale > 100000 ? 100000 : scale < -100000 ? -100000 : int(scale);
        for (int i = 0; i < n; ++i)
            ASSERT_EQ(sd[i], cd::scaled<Tav64s>(i128(src[i]) * m, sc)) << "v=" << v << " s=" << s << " x=" << src[i];
    }
}

TEST(MulC, Float64ValueSpecialCases)
{
    Tav64s a[3] = {1000, -7, 3};
    ASSERT_EQ(tavsMulC_64f64s_ISfs(0.5, a, 3, 0), StatusOk);
    EXPECT_EQ(a[0], 500);
    EXPECT_EQ(a[1], -4); // -3.5 to even
    EXPECT_EQ(a[2], 2);  // 1.5 to even
    Tav64s b[3] = {3, -3, 0};
    ASSERT_EQ(tavsMulC_64f64s_ISfs(-0.0, b, 3, -5), StatusOk);
    EXPECT_EQ(b[0], 0);
    EXPECT_EQ(b[1], 0);
    Tav64s c[3] = {3, -3, 0};
    ASSERT_EQ(tavsMulC_64f64s_ISfs(INFINITY, c, 3, 1000), StatusOk);
    EXPECT_EQ(c[0], INT64_MAX);
    EXPECT_EQ(c[1], INT64_MIN);
    EXPECT_EQ(c[2], 0);
    Tav64s e[3] = {3, -3, 0};
    ASSERT_EQ(tavsMulC_64f64s_ISfs(-INFINITY, e, 3, 0), StatusOk);
    EXPECT_EQ(e[0], INT64_MIN);
    EXPECT_EQ(e[1], INT64_MAX);
    EXPECT_EQ(e[2], 0);
    Tav64s f[3] = {3, -3, 0};
    ASSERT_EQ(tavsMulC_64f64s_ISfs(-NAN, f, 3, 0), StatusOk);
    EXPECT_EQ(f[0], INT64_MAX);
    EXPECT_EQ(f[1], INT64_MIN);
    EXPECT_EQ(f[2], 0);
    Tav64s g = 1;
    ASSERT_EQ(tavsMulC_64f64s_ISfs(std::numeric_limits<double>::denorm_min(), &g, 1, -1074), StatusOk);
    EXPECT_EQ(g, 1);
    g = 1;
    ASSERT_EQ(tavsMulC_64f64s_ISfs(1e300, &g, 1, INT_MAX), StatusOk); // still far below one half
    EXPECT_EQ(g, 0);
    g = -1;
    ASSERT_EQ(tavsMulC_64f64s_ISfs(1e-300, &g, 1, INT_MIN), StatusOk);
    EXPECT_EQ(g, INT64_MIN);
}

// ---- float to 16s ------------------------------------------------------------------------
Tav16s ref_32f16s(float x, float v, int s)
{
    float p = x * v * std::ldexp(1.0f, -s);
    if (std::isnan(p)) return 0;
    p = std::fmin(std::fmax(p, -32768.0f), 32767.0f);
    return Tav16s(std::nearbyint(p));
}

Tav16s ref_low(float x, float v)
{
    float p = x * v;
    if (std::isnan(p)) return 0;
    p = p + std::copysign(FLT_EPSILON, p);
    p = std::fmin(std::fmax(p, -32768.0f), 32767.0f);
    return Tav16s(std::trunc(p));
}

TEST(MulC, FloatToShortMembers)
{
    tt::Rng r(31);
    for (int trial = 0; trial < 3000; ++trial) {
        const float v = trial % 3 == 0 ? float(r.range(-9, 9)) * 0.25f : cd::rand_float<float>(r);
        const int s = trial % 11 == 0 ? int(r.range(-300, 300)) : int(r.range(-20, 20));
        const int n = 23;
        std::vector<float> src(n);
        for (auto& x : src) x = trial % 2 ? float(r.range(-70000, 70000)) * 0.125f : cd::rand_float<float>(r);
        std::vector<Tav16s> d(n), e(n);
        ASSERT_EQ(tavsMulC_32f16s_Sfs(src.data(), v, d.data(), n, s), StatusOk);
        ASSERT_EQ(tavsMulC_Low_32f16s(src.data(), v, e.data(), n), StatusOk);
        for (int i = 0; i < n; ++i) {
            ASSERT_EQ(d[i], ref_32f16s(src[i], v, s)) << src[i] << " " << v << " " << s;
            ASSERT_EQ(e[i], ref_low(src[i], v)) << src[i] << " " << v;
        }
    }
    const float x[6] = {0.5f, 1.5f, 2.5f, -2.5f, 40000.0f, -1e30f};
    Tav16s d[6];
    ASSERT_EQ(tavsMulC_32f16s_Sfs(x, 1.0f, d, 6, 0), StatusOk);
    const Tav16s want[6] = {0, 2, 2, -2, 32767, -32768};
    for (int i = 0; i < 6; ++i) EXPECT_EQ(d[i], want[i]);
    ASSERT_EQ(tavsMulC_32f16s_Sfs(x, 4.0f, d, 6, 2), StatusOk); // the same after *4 / 4
    for (int i = 0; i < 6; ++i) EXPECT_EQ(d[i], want[i]);
    // Low: truncation, with a product just short of an integer nudged onto it.
    const float y[4] = {2.75f, -2.75f, 0.99999994f, -0.99999994f};
    Tav16s l[4];
    ASSERT_EQ(tavsMulC_Low_32f16s(y, 1.0f, l, 4), StatusOk);
    EXPECT_EQ(l[0], 2);
    EXPECT_EQ(l[1], -2);
    EXPECT_EQ(l[2], 1);
    EXPECT_EQ(l[3], -1);
    const float z[2] = {1.0f, -0.0f};
    ASSERT_EQ(tavsMulC_Low_32f16s(z, 1.0f, l, 2), StatusOk);
    EXPECT_EQ(l[0], 1);
    EXPECT_EQ(l[1], 0);
}

// ---- errors -----------------------------------------------------------------------------
template <class T> void errors_real(OopFn<T> oop, IpFn<T> ip)
{
    for (T v : {T(0), T(1), T(7)})
        for (int s : {0, 1, -100, 100, INT_MIN, INT_MAX}) {
            if (oop) cd::expect_oop_errors<T, T>([&](const T* a, T* d, int n) { return oop(a, v, d, n, s); });
            cd::expect_ip_errors<T>([&](T* d, int n) { return ip(v, d, n, s); });
        }
}

TEST(MulC, ErrorsInTheirOrderAndNothingWritten)
{
    errors_real<Tav8u>(tavsMulC_8u_Sfs, tavsMulC_8u_ISfs);
    errors_real<Tav16s>(tavsMulC_16s_Sfs, tavsMulC_16s_ISfs);
    errors_real<Tav16u>(tavsMulC_16u_Sfs, tavsMulC_16u_ISfs);
    errors_real<Tav32s>(tavsMulC_32s_Sfs, tavsMulC_32s_ISfs);
    errors_real<Tav64s>(nullptr, tavsMulC_64s_ISfs);
    for (int s : {0, 100, -100}) {
        for (Tav16sc v : {Tav16sc{0, 0}, Tav16sc{1, 0}}) {
            cd::expect_oop_errors<Tav16sc, Tav16sc>([&](const Tav16sc* a, Tav16sc* d, int n) { return tavsMulC_16sc_Sfs(a, v, d, n, s); });
            cd::expect_ip_errors<Tav16sc>([&](Tav16sc* d, int n) { return tavsMulC_16sc_ISfs(v, d, n, s); });
        }
        const Tav32sc w{3, 4};
        cd::expect_oop_errors<Tav32sc, Tav32sc>([&](const Tav32sc* a, Tav32sc* d, int n) { return tavsMulC_32sc_Sfs(a, w, d, n, s); });
        cd::expect_ip_errors<Tav32sc>([&](Tav32sc* d, int n) { return tavsMulC_32sc_ISfs(w, d, n, s); });
        for (double v : {0.0, 1.0, 0.5, double(INFINITY), double(NAN)})
            cd::expect_ip_errors<Tav64s>([&](Tav64s* d, int n) { return tavsMulC_64f64s_ISfs(v, d, n, s); });
        cd::expect_oop_errors<float, Tav16s>([&](const float* a, Tav16s* d, int n) { return tavsMulC_32f16s_Sfs(a, 2.0f, d, n, s); });
    }
    for (Tav16s v : {0, 1, 3}) cd::expect_ip_errors<Tav16s>([&](Tav16s* d, int n) { return tavsMulC_16s_I(v, d, n); });
    cd::expect_oop_errors<float, Tav16s>([&](const float* a, Tav16s* d, int n) { return tavsMulC_Low_32f16s(a, 2.0f, d, n); });
    for (float v : {0.0f, 1.0f, 2.0f}) {
        cd::expect_oop_errors<float, float>([&](const float* a, float* d, int n) { return tavsMulC_32f(a, v, d, n); });
        cd::expect_ip_errors<float>([&](float* d, int n) { return tavsMulC_32f_I(v, d, n); });
        const double w = v;
        cd::expect_oop_errors<double, double>([&](const double* a, double* d, int n) { return tavsMulC_64f(a, w, d, n); });
        cd::expect_ip_errors<double>([&](double* d, int n) { return tavsMulC_64f_I(w, d, n); });
    }
    const Tav32fc c{1, 0};
    const Tav64fc z{1, 0};
    cd::expect_oop_errors<Tav32fc, Tav32fc>([&](const Tav32fc* a, Tav32fc* d, int n) { return tavsMulC_32fc(a, c, d, n); });
    cd::expect_ip_errors<Tav32fc>([&](Tav32fc* d, int n) { return tavsMulC_32fc_I(c, d, n); });
    cd::expect_oop_errors<Tav64fc, Tav64fc>([&](const Tav64fc* a, Tav64fc* d, int n) { return tavsMulC_64fc(a, z, d, n); });
    cd::expect_ip_errors<Tav64fc>([&](Tav64fc* d, int n) { return tavsMulC_64fc_I(z, d, n); });
}

} // namespace

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <cstring>
#include <type_traits>
#include <vector>

#include "constdiv_support.h"
#include "tavs.h"
#include "test_util.h"

namespace {

using cd::i128;

i128 add(i128 x, i128 v) { return x + v; }
i128 sub(i128 x, i128 v) { return x - v; }
i128 subrev(i128 x, i128 v) { return v - x; }

template <class T> using OopFn = Status (*)(const T*, T, T*, int, int);
template <class T> using IpFn = Status (*)(T, T*, int, int);

// Out of place and in place against the exact rule, every scale of the
// sweep. At signTo and below an unsigned member gives its maximum for any
// non-zero e, a negative difference included (the sign-only rule).
template <class T> void sweep_real(OopFn<T> oop, IpFn<T> ip, i128 (*op)(i128, i128), int signTo, uint64_t seed)
{
    tt::Rng r(seed);
    const int n = 37;
    for (int s : cd::sweep_scales()) {
        for (int trial = 0; trial < 4; ++trial) {
            const T v = trial == 0 ? T(0) : trial == 1 ? T(1) : r.element<T>();
            const auto src = tt::random_vector<T>(r, n);
            std::vector<T> dst(n), sd = src;
            ASSERT_EQ(oop(src.data(), v, dst.data(), n, s), StatusOk);
            ASSERT_EQ(ip(v, sd.data(), n, s), StatusOk);
            for (int i = 0; i < n; ++i) {
                const i128 e = op(src[i], v);
                const T want = (s <= signTo && e != 0 && !std::is_signed_v<T>) ? std::numeric_limits<T>::max() : cd::scaled<T>(e, s);
                ASSERT_EQ(dst[i], want) << "s=" << s << " x=" << +src[i] << " v=" << +v;
                ASSERT_EQ(sd[i], want) << "in place, s=" << s;
            }
        }
    }
}

template <class C, class P> void sweep_cplx(Status (*oop)(const C*, C, C*, int, int), Status (*ip)(C, C*, int, int),
                                            i128 (*op)(i128, i128), uint64_t seed)
{
    tt::Rng r(seed);
    const int n = 29;
    for (int s : cd::sweep_scales()) {
        const C v{r.element<P>(), r.element<P>()};
        std::vector<C> src(n), dst(n);
        for (auto& c : src) c = C{r.element<P>(), r.element<P>()};
        std::vector<C> sd = src;
        ASSERT_EQ(oop(src.data(), v, dst.data(), n, s), StatusOk);
        ASSERT_EQ(ip(v, sd.data(), n, s), StatusOk);
        for (int i = 0; i < n; ++i) {
            ASSERT_EQ(dst[i].re, cd::scaled<P>(op(src[i].re, v.re), s)) << "s=" << s;
            ASSERT_EQ(dst[i].im, cd::scaled<P>(op(src[i].im, v.im), s)) << "s=" << s;
            ASSERT_TRUE(tt::same_bits(dst[i], sd[i]));
        }
    }
}

template <class T> void errors_real(OopFn<T> oop, IpFn<T> ip)
{
    for (T v : {T(0), T(1), T(7)})
        for (int s : {0, 1, -100, 100, INT_MIN, INT_MAX}) {
            cd::expect_oop_errors<T, T>([&](const T* a, T* d, int n) { return oop(a, v, d, n, s); });
            cd::expect_ip_errors<T>([&](T* d, int n) { return ip(v, d, n, s); });
        }
}

template <class C> void errors_cplx(Status (*oop)(const C*, C, C*, int, int), Status (*ip)(C, C*, int, int))
{
    for (int s : {0, -100, 100}) {
        const C v{};
        cd::expect_oop_errors<C, C>([&](const C* a, C* d, int n) { return oop(a, v, d, n, s); });
        cd::expect_ip_errors<C>([&](C* d, int n) { return ip(v, d, n, s); });
    }
}

TEST(AddCSubC, IntegerMembersMatchTheExactRule)
{
    sweep_real<Tav8u>(tavsAddC_8u_Sfs, tavsAddC_8u_ISfs, add, -8, 1);
    sweep_real<Tav16s>(tavsAddC_16s_Sfs, tavsAddC_16s_ISfs, add, -16, 2);
    sweep_real<Tav16u>(tavsAddC_16u_Sfs, tavsAddC_16u_ISfs, add, -16, 3);
    sweep_real<Tav32s>(tavsAddC_32s_Sfs, tavsAddC_32s_ISfs, add, -31, 4);
    sweep_real<Tav8u>(tavsSubC_8u_Sfs, tavsSubC_8u_ISfs, sub, -8, 5);
    sweep_real<Tav16s>(tavsSubC_16s_Sfs, tavsSubC_16s_ISfs, sub, -16, 6);
    sweep_real<Tav16u>(tavsSubC_16u_Sfs, tavsSubC_16u_ISfs, sub, -16, 7);
    sweep_real<Tav32s>(tavsSubC_32s_Sfs, tavsSubC_32s_ISfs, sub, -31, 8);
    sweep_real<Tav8u>(tavsSubCRev_8u_Sfs, tavsSubCRev_8u_ISfs, subrev, -8, 9);
    sweep_real<Tav16s>(tavsSubCRev_16s_Sfs, tavsSubCRev_16s_ISfs, subrev, -16, 10);
    sweep_real<Tav16u>(tavsSubCRev_16u_Sfs, tavsSubCRev_16u_ISfs, subrev, -16, 11);
    sweep_real<Tav32s>(tavsSubCRev_32s_Sfs, tavsSubCRev_32s_ISfs, subrev, -31, 12);
}

TEST(AddCSubC, ComplexIntegerMembersScaleEachPart)
{
    sweep_cplx<Tav16sc, Tav16s>(tavsAddC_16sc_Sfs, tavsAddC_16sc_ISfs, add, 21);
    sweep_cplx<Tav32sc, Tav32s>(tavsAddC_32sc_Sfs, tavsAddC_32sc_ISfs, add, 22);
    sweep_cplx<Tav16sc, Tav16s>(tavsSubC_16sc_Sfs, tavsSubC_16sc_ISfs, sub, 23);
    sweep_cplx<Tav32sc, Tav32s>(tavsSubC_32sc_Sfs, tavsSubC_32sc_ISfs, sub, 24);
    sweep_cplx<Tav16sc, Tav16s>(tavsSubCRev_16sc_Sfs, tavsSubCRev_16sc_ISfs, subrev, 25);
    sweep_cplx<Tav32sc, Tav32s>(tavsSubCRev_32sc_Sfs, tavsSubCRev_32sc_ISfs, subrev, 26);
}

TEST(AddCSubC, UnscaledInPlaceFormsSaturate)
{
    tt::Rng r(31);
    for (int trial = 0; trial < 50; ++trial) {
        const Tav16s v = r.element<Tav16s>();
        const auto src = tt::random_vector<Tav16s>(r, 45);
        auto a = src, b = src;
        ASSERT_EQ(tavsAddC_16s_I(v, a.data(), 45), StatusOk);
        ASSERT_EQ(tavsSubC_16s_I(v, b.data(), 45), StatusOk);
        for (int i = 0; i < 45; ++i) {
            ASSERT_EQ(a[i], cd::sat<Tav16s>(i128(src[i]) + v));
            ASSERT_EQ(b[i], cd::sat<Tav16s>(i128(src[i]) - v));
        }
    }
    Tav16s x[4] = {32767, -32768, 100, -100};
    ASSERT_EQ(tavsAddC_16s_I(1000, x, 4), StatusOk);
    EXPECT_EQ(x[0], 32767);
    EXPECT_EQ(x[1], -31768);
    EXPECT_EQ(x[2], 1100);
    EXPECT_EQ(x[3], 900);
    Tav16s y[3] = {-32768, 32767, 5};
    ASSERT_EQ(tavsSubC_16s_I(1, y, 3), StatusOk);
    EXPECT_EQ(y[0], -32768);
    EXPECT_EQ(y[1], 32766);
    EXPECT_EQ(y[2], 4);
    ASSERT_EQ(tavsSubC_16s_I(-32768, y, 3), StatusOk);
    EXPECT_EQ(y[0], 0);
    EXPECT_EQ(y[1], 32767);
}

TEST(AddCSubC, ErrorsInTheirOrderAndNothingWritten)
{
    errors_real<Tav8u>(tavsAddC_8u_Sfs, tavsAddC_8u_ISfs);
    errors_real<Tav16s>(tavsAddC_16s_Sfs, tavsAddC_16s_ISfs);
    errors_real<Tav16u>(tavsAddC_16u_Sfs, tavsAddC_16u_ISfs);
    errors_real<Tav32s>(tavsAddC_32s_Sfs, tavsAddC_32s_ISfs);
    errors_real<Tav8u>(tavsSubC_8u_Sfs, tavsSubC_8u_ISfs);
    errors_real<Tav16s>(tavsSubC_16s_Sfs, tavsSubC_16s_ISfs);
    errors_real<Tav16u>(tavsSubC_16u_Sfs, tavsSubC_16u_ISfs);
    errors_real<Tav32s>(tavsSubC_32s_Sfs, tavsSubC_32s_ISfs);
    errors_real<Tav8u>(tavsSubCRev_8u_Sfs, tavsSubCRev_8u_ISfs);
    errors_real<Tav16s>(tavsSubCRev_16s_Sfs, tavsSubCRev_16s_ISfs);
    errors_real<Tav16u>(tavsSubCRev_16u_Sfs, tavsSubCRev_16u_ISfs);
    errors_real<Tav32s>(tavsSubCRev_32s_Sfs, tavsSubCRev_32s_ISfs);
    errors_cplx<Tav16sc>(tavsAddC_16sc_Sfs, tavsAddC_16sc_ISfs);
    errors_cplx<Tav32sc>(tavsAddC_32sc_Sfs, tavsAddC_32sc_ISfs);
    errors_cplx<Tav16sc>(tavsSubC_16sc_Sfs, tavsSubC_16sc_ISfs);
    errors_cplx<Tav32sc>(tavsSubC_32sc_Sfs, tavsSubC_32sc_ISfs);
    errors_cplx<Tav16sc>(tavsSubCRev_16sc_Sfs, tavsSubCRev_16sc_ISfs);
    errors_cplx<Tav32sc>(tavsSubCRev_32sc_Sfs, tavsSubCRev_32sc_ISfs);
    for (Tav16s v : {0, 1, 5}) {
        cd::expect_ip_errors<Tav16s>([&](Tav16s* d, int n) { return tavsAddC_16s_I(v, d, n); });
        cd::expect_ip_errors<Tav16s>([&](Tav16s* d, int n) { return tavsSubC_16s_I(v, d, n); });
    }
    for (float v : {0.0f, -0.0f, 1.0f}) {
        cd::expect_oop_errors<float, float>([&](const float* a, float* d, int n) { return tavsAddC_32f(a, v, d, n); });
        cd::expect_oop_errors<float, float>([&](const float* a, float* d, int n) { return tavsSubC_32f(a, v, d, n); });
        cd::expect_oop_errors<float, float>([&](const float* a, float* d, int n) { return tavsSubCRev_32f(a, v, d, n); });
        cd::expect_ip_errors<float>([&](float* d, int n) { return tavsAddC_32f_I(v, d, n); });
        cd::expect_ip_errors<float>([&](float* d, int n) { return tavsSubC_32f_I(v, d, n); });
        cd::expect_ip_errors<float>([&](float* d, int n) { return tavsSubCRev_32f_I(v, d, n); });
        const double w = v;
        cd::expect_oop_errors<double, double>([&](const double* a, double* d, int n) { return tavsAddC_64f(a, w, d, n); });
        cd::expect_oop_errors<double, double>([&](const double* a, double* d, int n) { return tavsSubC_64f(a, w, d, n); });
        cd::expect_oop_errors<double, double>([&](const double* a, double* d, int n) { return tavsSubCRev_64f(a, w, d, n); });
        cd::expect_ip_errors<double>([&](double* d, int n) { return tavsAddC_64f_I(w, d, n); });
        cd::expect_ip_errors<double>([&](double* d, int n) { return tavsSubC_64f_I(w, d, n); });
        cd::expect_ip_errors<double>([&](double* d, int n) { return tavsSubCRev_64f_I(w, d, n); });
    }
    const Tav32fc c{1, 2};
    const Tav64fc z{1, 2};
    cd::expect_oop_errors<Tav32fc, Tav32fc>([&](const Tav32fc* a, Tav32fc* d, int n) { return tavsAddC_32fc(a, c, d, n); });
    cd::expect_oop_errors<Tav32fc, Tav32fc>([&](const Tav32fc* a, Tav32fc* d, int n) { return tavsSubC_32fc(a, c, d, n); });
    cd::expect_oop_errors<Tav32fc, Tav32fc>([&](const Tav32fc* a, Tav32fc* d, int n) { return tavsSubCRev_32fc(a, c, d, n); });
    cd::expect_ip_errors<Tav32fc>([&](Tav32fc* d, int n) { return tavsAddC_32fc_I(c, d, n); });
    cd::expect_ip_errors<Tav32fc>([&](Tav32fc* d, int n) { return tavsSubC_32fc_I(c, d, n); });
    cd::expect_ip_errors<Tav32fc>([&](Tav32fc* d, int n) { return tavsSubCRev_32fc_I(c, d, n); });
    cd::expect_oop_errors<Tav64fc, Tav64fc>([&](const Tav64fc* a, Tav64fc* d, int n) { return tavsAddC_64fc(a, z, d, n); });
    cd::expect_oop_errors<Tav64fc, Tav64fc>([&](const Tav64fc* a, Tav64fc* d, int n) { return tavsSubC_64fc(a, z, d, n); });
    cd::expect_oop_errors<Tav64fc, Tav64fc>([&](const Tav64fc* a, Tav64fc* d, int n) { return tavsSubCRev_64fc(a, z, d, n); });
    cd::expect_ip_errors<Tav64fc>([&](Tav64fc* d, int n) { return tavsAddC_64fc_I(z, d, n); });
    cd::expect_ip_errors<Tav64fc>([&](Tav64fc* d, int n) { return tavsSubC_64fc_I(z, d, n); });
    cd::expect_ip_errors<Tav64fc>([&](Tav64fc* d, int n) { return tavsSubCRev_64fc_I(z, d, n); });
}

// ---- floats ---------------------------------------------------------------------------
template <class F> F fadd(F x, F v) { return x + v; }
template <class F> F fsub(F x, F v) { return x - v; }
template <class F> F fsubrev(F x, F v) { return v - x; }

template <class F> void sweep_float(Status (*oop)(const F*, F, F*, int), Status (*ip)(F, F*, int), F (*op)(F, F),
                                    bool copiesAtZero, uint64_t seed)
{
    tt::Rng r(seed);
    for (int trial = 0; trial < 400; ++trial) {
        const F v = trial % 7 == 0 ? F(0) : cd::rand_float<F>(r);
        const int n = int(r.range(1, 40));
        std::vector<F> src(n), dst(n);
        for (auto& x : src) x = cd::rand_float<F>(r);
        std::vector<F> sd = src;
        ASSERT_EQ(oop(src.data(), v, dst.data(), n), StatusOk);
        ASSERT_EQ(ip(v, sd.data(), n), StatusOk);
        for (int i = 0; i < n; ++i) {
            const F want = op(src[i], v);
            if (copiesAtZero && v == F(0)) ASSERT_TRUE(tt::same_bits(dst[i], src[i]));
            else ASSERT_TRUE(cd::same_value(dst[i], want)) << src[i] << " " << v << " " << dst[i];
            ASSERT_TRUE(cd::same_value(sd[i], want)) << "in place " << src[i] << " " << v;
        }
    }
}

template <class C, class F> void sweep_fcplx(Status (*oop)(const C*, C, C*, int), Status (*ip)(C, C*, int), F (*op)(F, F), uint64_t seed)
{
    tt::Rng r(seed);
    for (int trial = 0; trial < 200; ++trial) {
        const C v{cd::rand_float<F>(r), cd::rand_float<F>(r)};
        const int n = int(r.range(1, 20));
        std::vector<C> src(n), dst(n);
        for (auto& x : src) x = C{cd::rand_float<F>(r), cd::rand_float<F>(r)};
        std::vector<C> sd = src;
        ASSERT_EQ(oop(src.data(), v, dst.data(), n), StatusOk);
        ASSERT_EQ(ip(v, sd.data(), n), StatusOk);
        for (int i = 0; i < n; ++i) {
            ASSERT_TRUE(cd::same_value(dst[i].re, op(src[i].re, v.re)));
            ASSERT_TRUE(cd::same_value(dst[i].im, op(src[i].im, v.im)));
            ASSERT_TRUE(cd::same_value(sd[i].re, dst[i].re) && cd::same_value(sd[i].im, dst[i].im));
        }
    }
}

TEST(AddCSubC, FloatMembersAreOneIeeeOperation)
{
    sweep_float<float>(tavsAddC_32f, tavsAddC_32f_I, fadd<float>, true, 41);
    sweep_float<float>(tavsSubC_32f, tavsSubC_32f_I, fsub<float>, true, 42);
    sweep_float<float>(tavsSubCRev_32f, tavsSubCRev_32f_I, fsubrev<float>, false, 43);
    sweep_float<double>(tavsAddC_64f, tavsAddC_64f_I, fadd<double>, true, 44);
    sweep_float<double>(tavsSubC_64f, tavsSubC_64f_I, fsub<double>, true, 45);
    sweep_float<double>(tavsSubCRev_64f, tavsSubCRev_64f_I, fsubrev<double>, false, 46);
    sweep_fcplx<Tav32fc, float>(tavsAddC_32fc, tavsAddC_32fc_I, fadd<float>, 47);
    sweep_fcplx<Tav32fc, float>(tavsSubC_32fc, tavsSubC_32fc_I, fsub<float>, 48);
    sweep_fcplx<Tav32fc, float>(tavsSubCRev_32fc, tavsSubCRev_32fc_I, fsubrev<float>, 49);
    sweep_fcplx<Tav64fc, double>(tavsAddC_64fc, tavsAddC_64fc_I, fadd<double>, 50);
    sweep_fcplx<Tav64fc, double>(tavsSubC_64fc, tavsSubC_64fc_I, fsub<double>, 51);
    sweep_fcplx<Tav64fc, double>(tavsSubCRev_64fc, tavsSubCRev_64fc_I, fsubrev<double>, 52);
}

// Lengths 0..70 and destination offsets 0..15 reach the scalar head, the
// vector body and the tail: every element must equal the scalar reference.
TEST(AddCSubC, VectorPathsAgreeWithTheScalarRule)
{
    tt::Rng r(61);
    for (int len = 0; len <= 70; ++len)
        for (int off = 0; off < 16; ++off) {
            const auto src16 = tt::random_vector<Tav16s>(r, size_t(len) + 1);
            const Tav16s v = r.element<Tav16s>();
            const int s = int(r.range(-17, 18));
            tt::Guarded<Tav16s> g(size_t(len), size_t(off) * 2);
            tt::Guarded<Tav16s> h(size_t(len), size_t(off) * 2);
            const Status st = tavsAddC_16s_Sfs(src16.data(), v, g.data(), len, s);
            const Status st2 = tavsSubCRev_16s_Sfs(src16.data(), v, h.data(), len, s);
            if (len == 0) {
                EXPECT_EQ(st, ErrSize);
                EXPECT_TRUE(g.untouched());
                continue;
            }
            ASSERT_EQ(st, StatusOk);
            ASSERT_EQ(st2, StatusOk);
            for (int i = 0; i < len; ++i) {
                ASSERT_EQ(g.data()[i], cd::scaled<Tav16s>(i128(src16[i]) + v, s)) << len << " " << off << " " << s;
                ASSERT_EQ(h.data()[i], cd::scaled<Tav16s>(i128(v) - src16[i], s));
            }
            EXPECT_TRUE(g.borders_intact());
            EXPECT_TRUE(h.borders_intact());

            std::vector<float> srcf(size_t(len) + 1);
            for (auto& x : srcf) x = cd::rand_float<float>(r);
            const float fv = r.uniform(-3, 3);
            tt::Guarded<float> gf(size_t(len), size_t(off) * 4);
            ASSERT_EQ(tavsAddC_32f(srcf.data(), fv, gf.data(), len), StatusOk);
            for (int i = 0; i < len; ++i) ASSERT_TRUE(cd::same_value(gf.data()[i], srcf[i] + fv));
            EXPECT_TRUE(gf.borders_intact());
            std::vector<double> srcd(size_t(len) + 1);
            for (auto& x : srcd) x = cd::rand_float<double>(r);
            tt::Guarded<double> gd(size_t(len), size_t(off) * 8);
            ASSERT_EQ(tavsSubC_64f(srcd.data(), double(fv), gd.data(), len), StatusOk);
            for (int i = 0; i < len; ++i) ASSERT_TRUE(cd::same_value(gd.data()[i], srcd[i] - double(fv)));
            EXPECT_TRUE(gd.borders_intact());
        }
}

// ---- documented cases -------------------------------------------------------------------
TEST(AddCSubC, ZeroConstantCopiesFloats)
{
    const float nzero = -0.0f, snan = [] { uint32_t b = 0x7f800001u; float f; std::memcpy(&f, &b, 4); return f; }();
    const float src[4] = {nzero, 0.0f, snan, 2.5f};
    for (float v : {-0.0f, 0.0f}) {
        float d[4], e[4];
        ASSERT_EQ(tavsAddC_32f(src, v, d, 4), StatusOk);
        ASSERT_EQ(tavsSubC_32f(src, v, e, 4), StatusOk);
        for (int i = 0; i < 4; ++i) {
            EXPECT_TRUE(tt::same_bits(d[i], src[i])) << i;
            EXPECT_TRUE(tt::same_bits(e[i], src[i])) << i;
        }
    }
    double sd[2] = {-0.0, 1.0}, dd[2];
    ASSERT_EQ(tavsAddC_64f(sd, 0.0, dd, 2), StatusOk);
    EXPECT_TRUE(std::signbit(dd[0]));
    ASSERT_EQ(tavsSubC_64f(sd, -0.0, dd, 2), StatusOk);
    EXPECT_TRUE(std::signbit(dd[0]));
    // The in-place forms have no shortcut: -0 + +0 is +0, and -0 - -0 too.
    float ip[2] = {nzero, 1.0f};
    ASSERT_EQ(tavsAddC_32f_I(0.0f, ip, 2), StatusOk);
    EXPECT_FALSE(std::signbit(ip[0]));
    ip[0] = nzero;
    ASSERT_EQ(tavsSubC_32f_I(-0.0f, ip, 2), StatusOk);
    EXPECT_FALSE(std::signbit(ip[0]));
    // Out of place with the same vector twice keeps the vector as it is.
    float same[2] = {nzero, snan};
    ASSERT_EQ(tavsAddC_32f(same, 0.0f, same, 2), StatusOk);
    EXPECT_TRUE(tt::same_bits(same[0], nzero));
    EXPECT_TRUE(tt::same_bits(same[1], snan));
}

TEST(AddCSubC, OperandOrder)
{
    const float one = 1.0f;
    float d;
    ASSERT_EQ(tavsSubCRev_32f(&one, 3.0f, &d, 1), StatusOk);
    EXPECT_EQ(d, 2.0f);
    ASSERT_EQ(tavsSubC_32f(&one, 3.0f, &d, 1), StatusOk);
    EXPECT_EQ(d, -2.0f);
    const Tav16s x = 10;
    Tav16s y;
    ASSERT_EQ(tavsSubCRev_16s_Sfs(&x, 3, &y, 1, 0), StatusOk);
    EXPECT_EQ(y, -7);
    ASSERT_EQ(tavsSubC_16s_Sfs(&x, 3, &y, 1, 0), StatusOk);
    EXPECT_EQ(y, 7);
}

TEST(AddCSubC, ScaleEdges)
{
    const Tav16s m[2] = {-32768, 3};
    Tav16s d[2];
    ASSERT_EQ(tavsAddC_16s_Sfs(m, -32768, d, 1, 17), StatusOk); // -0.5 ties to 0
    EXPECT_EQ(d[0], 0);
    ASSERT_EQ(tavsAddC_16s_Sfs(m, -32768, d, 1, 16), StatusOk);
    EXPECT_EQ(d[0], -1);
    const Tav16s one = 1, mone = -1, zero = 0;
    ASSERT_EQ(tavsAddC_16s_Sfs(&zero, 1, d, 1, -16), StatusOk);
    EXPECT_EQ(d[0], 32767);
    ASSERT_EQ(tavsAddC_16s_Sfs(&zero, -1, d, 1, -16), StatusOk);
    EXPECT_EQ(d[0], -32768);
    ASSERT_EQ(tavsAddC_16s_Sfs(&one, -1, d, 1, INT_MIN), StatusOk);
    EXPECT_EQ(d[0], 0);
    ASSERT_EQ(tavsAddC_16s_Sfs(&mone, 0, d, 1, INT_MIN), StatusOk); // sign only
    EXPECT_EQ(d[0], -32768);
    // Sums 3, 5, -1, -3 at scale 1 store 2, 2, 0, -2.
    const Tav16s sums[4] = {2, 4, -2, -4};
    Tav16s out[4];
    ASSERT_EQ(tavsAddC_16s_Sfs(sums, 1, out, 4, 1), StatusOk);
    EXPECT_EQ(out[0], 2);
    EXPECT_EQ(out[1], 2);
    EXPECT_EQ(out[2], 0);
    EXPECT_EQ(out[3], -2);
    // Scale 0 saturates without rounding.
    const Tav16s big = 32000;
    ASSERT_EQ(tavsAddC_16s_Sfs(&big, 1000, d, 1, 0), StatusOk);
    EXPECT_EQ(d[0], 32767);
    // 8u: 255 + 255 at scale 9 is 1 (510 / 512 rounds up), at 10 it is 0.
    const Tav8u b = 255;
    Tav8u e;
    ASSERT_EQ(tavsAddC_8u_Sfs(&b, 255, &e, 1, 9), StatusOk);
    EXPECT_EQ(e, 1);
    ASSERT_EQ(tavsAddC_8u_Sfs(&b, 255, &e, 1, 10), StatusOk);
    EXPECT_EQ(e, 0);
    const Tav8u z8 = 0;
    ASSERT_EQ(tavsSubCRev_8u_Sfs(&z8, 255, &e, 1, 8), StatusOk); // 255 / 256 rounds to 1
    EXPECT_EQ(e, 1);
    ASSERT_EQ(tavsSubCRev_8u_Sfs(&z8, 255, &e, 1, 9), StatusOk);
    EXPECT_EQ(e, 0);
    ASSERT_EQ(tavsSubC_8u_Sfs(&b, 0, &e, 1, 8), StatusOk);
    EXPECT_EQ(e, 1);
    // 16u sums reach 131070: 1 at scale 17, 0 at 18.
    const Tav16u w = 65535;
    Tav16u f;
    ASSERT_EQ(tavsAddC_16u_Sfs(&w, 65535, &f, 1, 17), StatusOk);
    EXPECT_EQ(f, 1);
    ASSERT_EQ(tavsAddC_16u_Sfs(&w, 65535, &f, 1, 18), StatusOk);
    EXPECT_EQ(f, 0);
}

TEST(AddCSubC, FillShortcutsDoNotReadTheSource)
{
    cd::NoAccessPage page;
    ASSERT_TRUE(page.ok());
    // Below the sign limit a non-zero constant makes every sum positive.
    std::vector<Tav16u> d(9, 7);
    ASSERT_EQ(tavsAddC_16u_Sfs(page.get<Tav16u>(), 1, d.data(), 9, -16), StatusOk);
    for (Tav16u x : d) EXPECT_EQ(x, 65535);
    std::vector<Tav8u> e(9, 7);
    ASSERT_EQ(tavsAddC_8u_Sfs(page.get<Tav8u>(), 3, e.data(), 9, -8), StatusOk);
    for (Tav8u x : e) EXPECT_EQ(x, 255);
    // Above the zero limit dst is zero-filled.
    std::vector<Tav16s> f(9, 7);
    ASSERT_EQ(tavsAddC_16s_Sfs(page.get<Tav16s>(), 3, f.data(), 9, 17), StatusOk);
    for (Tav16s x : f) EXPECT_EQ(x, 0);
    std::vector<Tav32s> g(9, 7);
    ASSERT_EQ(tavsSubCRev_32s_Sfs(page.get<Tav32s>(), 3, g.data(), 9, 33), StatusOk);
    for (Tav32s x : g) EXPECT_EQ(x, 0);
    // In place: sign limit with a zero element still gives the maximum.
    Tav16u h[3] = {0, 5, 65535};
    ASSERT_EQ(tavsAddC_16u_ISfs(2, h, 3, INT_MIN), StatusOk);
    EXPECT_EQ(h[0], 65535);
    EXPECT_EQ(h[1], 65535);
    // A zero constant at the sign limit is no shortcut: 0 stays 0.
    Tav16u k[2] = {0, 4};
    ASSERT_EQ(tavsAddC_16u_ISfs(0, k, 2, -16), StatusOk);
    EXPECT_EQ(k[0], 0);
    EXPECT_EQ(k[1], 65535);
}

// ---- the six-argument 64-bit members ---------------------------------------------------
// e / 2^s by rndMode on the magnitude: 0 truncates, 1 ties to even, others
// round half away from zero.
i128 ref_mode(i128 e, int s, int mode)
{
    if (s <= 0) return cd::ref_round(e, s);
    const i128 mag = e < 0 ? -e : e;
    i128 q = s >= 127 ? 0 : mag >> s;
    const i128 rem = s >= 127 ? mag : mag - (q << s);
    const i128 half = s >= 127 ? (i128(1) << 126) : (i128(1) << (s - 1));
    if (mode == 1) {
        if (rem > half || (rem == half && (q & 1))) q += 1;
    } else if (mode != 0) {
        if (rem >= half && rem != 0) q += 1;
    }
    return e < 0 ? -q : q;
}

template <class T> void sweep64(Status (*fn)(const T*, T, T*, int, int, int), uint64_t seed)
{
    tt::Rng r(seed);
    const int n = 33;
    const i128 lo = std::numeric_limits<T>::min(), hi = std::numeric_limits<T>::max();
    for (int s : cd::sweep_scales())
        for (int mode : {0, 1, 2, 7, -1}) {
            const T v = r.element<T>();
            const auto src = tt::random_vector<T>(r, n);
            std::vector<T> dst(n);
            ASSERT_EQ(fn(src.data(), v, dst.data(), n, s, mode), StatusOk);
            for (int i = 0; i < n; ++i) {
                i128 e = i128(src[i]) + i128(v);
                if (s != 1) e = e > hi ? hi : e < lo ? lo : e; // saturating add; exact at scale 1
                // Below -62 the sign alone decides (for 64u any non-zero sum gives the maximum).
                const T want = s < -62 ? (e == 0 ? T(0) : e > 0 ? T(hi) : T(lo)) : cd::sat<T>(ref_mode(e, s, mode));
                ASSERT_EQ(dst[i], want) << "s=" << s << " mode=" << mode;
            }
        }
}

TEST(AddC64, SaturatedSumScaledByTheMode)
{
    sweep64<Tav64s>(tavsAddC_64s_Sfs, 71);
    sweep64<Tav64u>(tavsAddC_64u_Sfs, 72);
}

TEST(AddC64, HalvingIsExactAndTiesFollowTheMode)
{
    const Tav64s mx = INT64_MAX, mn = INT64_MIN;
    Tav64s d;
    ASSERT_EQ(tavsAddC_64s_Sfs(&mx, INT64_MAX, &d, 1, 1, 1), StatusOk); // (2^64 - 2) / 2
    EXPECT_EQ(d, INT64_MAX);
    ASSERT_EQ(tavsAddC_64s_Sfs(&mn, -1, &d, 1, 1, 1), StatusOk); // -2^63 - 1 halves to -2^62 - 0.5: even
    EXPECT_EQ(d, -(INT64_C(1) << 62));
    ASSERT_EQ(tavsAddC_64s_Sfs(&mn, -1, &d, 1, 1, 2), StatusOk);
    EXPECT_EQ(d, -(INT64_C(1) << 62) - 1);
    ASSERT_EQ(tavsAddC_64s_Sfs(&mn, -1, &d, 1, 1, 0), StatusOk);
    EXPECT_EQ(d, -(INT64_C(1) << 62));
    ASSERT_EQ(tavsAddC_64s_Sfs(&mx, INT64_MAX, &d, 1, 2, 1), StatusOk); // saturated first, then scaled
    EXPECT_EQ(d, INT64_C(1) << 61);
    const Tav64s five = 5, m5 = -5;
    ASSERT_EQ(tavsAddC_64s_Sfs(&five, 0, &d, 1, 1, 1), StatusOk);
    EXPECT_EQ(d, 2);
    ASSERT_EQ(tavsAddC_64s_Sfs(&five, 0, &d, 1, 1, 2), StatusOk);
    EXPECT_EQ(d, 3);
    ASSERT_EQ(tavsAddC_64s_Sfs(&m5, 0, &d, 1, 1, 0), StatusOk);
    EXPECT_EQ(d, -2);
    ASSERT_EQ(tavsAddC_64s_Sfs(&m5, 0, &d, 1, -63, 1), StatusOk);
    EXPECT_EQ(d, INT64_MIN);
    ASSERT_EQ(tavsAddC_64s_Sfs(&mn, 0, &d, 1, 64, 2), StatusOk); // -0.5 away from zero
    EXPECT_EQ(d, -1);
    ASSERT_EQ(tavsAddC_64s_Sfs(&mn, 0, &d, 1, 64, 1), StatusOk);
    EXPECT_EQ(d, 0);
    const Tav64u um = UINT64_MAX;
    Tav64u u;
    ASSERT_EQ(tavsAddC_64u_Sfs(&um, 1, &u, 1, 0, 1), StatusOk);
    EXPECT_EQ(u, UINT64_MAX);
    ASSERT_EQ(tavsAddC_64u_Sfs(&um, UINT64_MAX, &u, 1, 1, 1), StatusOk);
    EXPECT_EQ(u, UINT64_MAX);
    ASSERT_EQ(tavsAddC_64u_Sfs(&um, 0, &u, 1, 64, 1), StatusOk);
    EXPECT_EQ(u, 1u);
    ASSERT_EQ(tavsAddC_64u_Sfs(&um, 0, &u, 1, 65, 1), StatusOk);
    EXPECT_EQ(u, 0u);
    ASSERT_EQ(tavsAddC_64u_Sfs(&um, 0, &u, 1, 64, 0), StatusOk);
    EXPECT_EQ(u, 0u);
}

TEST(AddC64, OnlyAZeroLengthIsRefused)
{
    Tav64s a[2] = {1, 2}, d[2] = {9, 9};
    Tav64u ua[2] = {1, 2}, ud[2] = {9, 9};
    EXPECT_EQ(tavsAddC_64s_Sfs(nullptr, 1, d, 2, 0, 1), ErrNullPtr);
    EXPECT_EQ(tavsAddC_64s_Sfs(a, 1, nullptr, 0, 0, 1), ErrNullPtr);
    EXPECT_EQ(tavsAddC_64s_Sfs(nullptr, 1, d, -1, 0, 1), ErrNullPtr);
    EXPECT_EQ(tavsAddC_64s_Sfs(a, 1, d, 0, 0, 1), ErrSize);
    EXPECT_EQ(tavsAddC_64u_Sfs(nullptr, 1, ud, 2, 0, 1), ErrNullPtr);
    EXPECT_EQ(tavsAddC_64u_Sfs(ua, 1, nullptr, 2, 0, 1), ErrNullPtr);
    EXPECT_EQ(tavsAddC_64u_Sfs(ua, 1, ud, 0, 0, 1), ErrSize);
    EXPECT_EQ(d[0], 9);
    EXPECT_EQ(ud[0], 9u);
    EXPECT_EQ(tavsAddC_64s_Sfs(a, 1, a, 2, 0, 1), StatusOk); // in place through the same vector
    EXPECT_EQ(a[1], 3);
}

// A negative length is taken for a huge count: the call runs on past the
// end of the vectors and faults at the guard page behind them.
TEST(AddC64DeathTest, NegativeLengthIsAVeryLongVector)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const size_t page = size_t(sysconf(_SC_PAGESIZE));
    void* m = mmap(nullptr, 2 * page, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    ASSERT_NE(m, MAP_FAILED);
    ASSERT_EQ(mprotect(static_cast<char*>(m) + page, page, PROT_NONE), 0);
    auto* dst = static_cast<Tav64s*>(m);
    auto* src = reinterpret_cast<Tav64s*>(static_cast<char*>(m) + page / 2);
    EXPECT_DEATH(tavsAddC_64s_Sfs(src, 1, dst, -1, 0, 1), "");
    EXPECT_DEATH(tavsAddC_64u_Sfs(reinterpret_cast<Tav64u*>(src), 1, reinterpret_cast<Tav64u*>(dst), INT_MIN, 2, 0), "");
    munmap(m, 2 * page);
}

} // namespace

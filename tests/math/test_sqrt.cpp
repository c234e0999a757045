// Square roots: float and complex forms, integer forms over every input of
// the 8- and 16-bit types at every scale-factor branch, 32- and 64-bit
// sources on random samples, WarnSqrtNegative and the check order.
#include <gtest/gtest.h>

#include <climits>
#include <complex>
#include <vector>

#include "math_test_util.h"
#include "tavs.h"
#include "test_util.h"

namespace {

TEST(SqrtFloat, NegativesNaNAndNegativeZero)
{
    float x[5] = {4.0f, NAN, -1.0f, -0.0f, INFINITY}, y[5];
    EXPECT_EQ(tavsSqrt_32f(x, y, 5), WarnSqrtNegative);
    EXPECT_EQ(y[0], 2.0f);
    EXPECT_EQ(mt::bits(y[1]), 0xFFC00000u);
    EXPECT_EQ(mt::bits(y[2]), 0xFFC00000u);
    EXPECT_EQ(mt::bits(y[3]), 0x80000000u);
    EXPECT_EQ(y[4], INFINITY);
    float z = -0.0f;
    EXPECT_EQ(tavsSqrt_32f(&z, y, 1), StatusOk);
    double xd[3] = {-2.0, 9.0, NAN}, yd[3];
    EXPECT_EQ(tavsSqrt_64f(xd, yd, 3), WarnSqrtNegative);
    EXPECT_EQ(mt::bits(yd[0]), 0xFFF8000000000000ull);
    EXPECT_EQ(yd[1], 3.0);
    EXPECT_EQ(mt::bits(yd[2]), 0xFFF8000000000000ull);
}

TEST(SqrtFloat, ValuesInPlaceAndOffsets)
{
    tt::Rng rng(51);
    for (int len = 1; len <= 40; ++len) {
        std::vector<float> x(static_cast<size_t>(len));
        std::vector<double> xd(static_cast<size_t>(len));
        for (int i = 0; i < len; ++i) {
            x[size_t(i)] = float(rng.uniform(0, 1e6));
            xd[size_t(i)] = rng.uniform(0, 1e300);
        }
        tt::Guarded<float> y(static_cast<size_t>(len), size_t(len % 4) * 4);
        tt::Guarded<double> yd(static_cast<size_t>(len), size_t(len % 2) * 8);
        ASSERT_EQ(tavsSqrt_32f(x.data(), y.data(), len), StatusOk);
        ASSERT_EQ(tavsSqrt_64f(xd.data(), yd.data(), len), StatusOk);
        EXPECT_TRUE(y.borders_intact() && yd.borders_intact());
        for (int i = 0; i < len; ++i) {
            ASSERT_EQ(y.data()[i], std::sqrt(x[size_t(i)]));
            ASSERT_EQ(yd.data()[i], std::sqrt(xd[size_t(i)]));
        }
        ASSERT_EQ(tavsSqrt_32f_I(x.data(), len), StatusOk);
        ASSERT_EQ(tavsSqrt_64f_I(xd.data(), len), StatusOk);
        EXPECT_EQ(0, std::memcmp(x.data(), y.data(), x.size() * 4));
        EXPECT_EQ(0, std::memcmp(xd.data(), yd.data(), xd.size() * 8));
    }
}

TEST(SqrtComplex, PrincipalRoot)
{
    tt::Rng rng(52);
    const int n = 3000;
    std::vector<Tav32fc> x(n), y(n);
    std::vector<Tav64fc> xd(n), yd(n);
    for (int i = 0; i < n; ++i) {
        const double scale = std::pow(10.0, rng.uniform(-10, 10));
        x[size_t(i)] = {float(rng.uniform(-1, 1) * scale), float(rng.uniform(-1, 1) * scale)};
        xd[size_t(i)] = {rng.uniform(-1, 1) * scale, rng.uniform(-1, 1) * scale};
    }
    x[0] = {0, 0}, x[1] = {-4, 0}, x[2] = {0, 8}, x[3] = {0, -8}, x[4] = {-9, -0.0f}, x[5] = {3e38f, 3e38f};
    xd[0] = {0, 0}, xd[1] = {-4, 0}, xd[2] = {0, 8};
    ASSERT_EQ(tavsSqrt_32fc(x.data(), y.data(), n), StatusOk);
    ASSERT_EQ(tavsSqrt_64fc(xd.data(), yd.data(), n), StatusOk);
    for (int i = 0; i < n; ++i) {
        const auto r = std::sqrt(std::complex<long double>(x[size_t(i)].re, x[size_t(i)].im));
        const long double tol = std::abs(r) * 2e-7L;
        ASSERT_NEAR(y[size_t(i)].re, double(r.real()), double(tol)) << i;
        ASSERT_NEAR(y[size_t(i)].im, double(r.imag()), double(tol)) << i;
        const auto rd = std::sqrt(std::complex<long double>(xd[size_t(i)].re, xd[size_t(i)].im));
        const long double told = std::abs(rd) * 1e-15L;
        ASSERT_NEAR(yd[size_t(i)].re, double(rd.real()), double(told)) << i;
        ASSERT_NEAR(yd[size_t(i)].im, double(rd.imag()), double(told)) << i;
    }
    EXPECT_EQ(y[0].re, 0.0f);
    EXPECT_EQ(y[0].im, 0.0f);
    EXPECT_EQ(y[1].re, 0.0f);
    EXPECT_EQ(y[1].im, 2.0f);
    EXPECT_EQ(y[2].re, 2.0f);
    EXPECT_EQ(y[2].im, 2.0f);
    EXPECT_EQ(y[3].im, -2.0f);
    EXPECT_EQ(y[4].im, -3.0f); // the sign of im, negative zero included
    std::vector<Tav32fc> io = x;
    std::vector<Tav64fc> iod = xd;
    ASSERT_EQ(tavsSqrt_32fc_I(io.data(), n), StatusOk);
    ASSERT_EQ(tavsSqrt_64fc_I(iod.data(), n), StatusOk);
    EXPECT_EQ(0, std::memcmp(io.data(), y.data(), size_t(n) * 8));
    EXPECT_EQ(0, std::memcmp(iod.data(), yd.data(), size_t(n) * 16));
}

// ---- integer forms -----------------------------------------------------------------------
// The documented float path: sf above high gives 0, below low saturates;
// sf <= 0 shifts by -2 sf with the clamp at max^2 - 1, sqrt in float and
// the current rounding; sf >= 1 is the float root times 2^-sf, nearest even.
int64_t ref_float_path(int64_t x, int sf, int64_t maxv, int low, int high)
{
    if (sf > high) return 0;
    if (sf < low) return x == 0 ? 0 : maxv;
    int64_t r;
    if (sf <= 0) {
        const uint64_t clampV = uint64_t(maxv) * uint64_t(maxv) - 1;
        const int s2 = -2 * sf;
        const uint64_t v = uint64_t(x) > (clampV >> s2) ? clampV : uint64_t(x) << s2;
        r = std::lrint(std::sqrt(float(v)));
    } else {
        r = std::lrint(std::ldexp(std::sqrt(float(x)), -sf));
    }
    return std::min(r, maxv);
}

// round(sqrt(x) 2^-sf), ties to even, exactly, by integer search.
int64_t ref_exact(uint64_t x, int sf, int64_t maxv)
{
    using u128 = unsigned __int128;
    if (sf <= 0) {
        if (x == 0) return 0;
        if (sf < -40) return maxv;
        const int s = -sf;
        if (s > 40 || (64 - __builtin_clzll(x)) + 2 * s > 126) return maxv; // root >= 2^63
        const u128 v = u128(x) << (2 * s);
        uint64_t lo = 0, hi = uint64_t(1) << 63;
        while (lo < hi) { // largest k with k^2 <= v
            const uint64_t mid = lo + (hi - lo + 1) / 2;
            if (u128(mid) * mid <= v)
                lo = mid;
            else
                hi = mid - 1;
        }
        const uint64_t k = lo + ((v - u128(lo) * lo) > lo ? 1 : 0);
        return k > uint64_t(maxv) ? maxv : int64_t(k);
    }
    if (sf > 32) return 0;                           // sqrt(x) < 2^32
    uint64_t lo = 0, hi = (uint64_t(1) << 32) >> sf; // largest k with (k 2^sf)^2 <= x
    while (lo < hi) {
        const uint64_t mid = lo + (hi - lo + 1) / 2;
        if ((u128(mid) << sf) * (u128(mid) << sf) <= x)
            lo = mid;
        else
            hi = mid - 1;
    }
    const u128 x4 = u128(x) << 2, half = (u128(2 * lo + 1) << sf) * (u128(2 * lo + 1) << sf);
    uint64_t k = lo;
    if (x4 > half || (x4 == half && (lo & 1))) ++k;
    return k > uint64_t(maxv) ? maxv : int64_t(k);
}

const int kSfs[] = {INT_MIN, -40, -16, -15, -14, -8, -7, -3, -1, 0, 1, 2, 4, 5, 8, 9, 16, 17, 40, INT_MAX};

TEST(SqrtInt, Every8u16u16sInput)
{
    std::vector<Tav8u> x8(256), y8(256);
    std::vector<Tav16u> xu(65536), yu(65536);
    std::vector<Tav16s> xs(65536), ys(65536);
    for (int i = 0; i < 256; ++i)
        x8[size_t(i)] = Tav8u(i);
    for (int i = 0; i < 65536; ++i)
        xu[size_t(i)] = Tav16u(i), xs[size_t(i)] = Tav16s(i - 32768);
    long off16s = 0;
    for (int sf : kSfs) {
        ASSERT_EQ(tavsSqrt_8u_Sfs(x8.data(), y8.data(), 256, sf), StatusOk);
        ASSERT_EQ(tavsSqrt_16u_Sfs(xu.data(), yu.data(), 65536, sf), StatusOk);
        ASSERT_EQ(tavsSqrt_16s_Sfs(xs.data(), ys.data(), 65536, sf), WarnSqrtNegative);
        for (int i = 0; i < 256; ++i) {
            ASSERT_EQ(y8[size_t(i)], ref_float_path(i, sf, 255, -7, 4)) << i << " sf " << sf;
            ASSERT_EQ(y8[size_t(i)], ref_exact(uint64_t(i), sf, 255))
                << i << " sf " << sf; // exact for 8 bits
        }
        for (int i = 0; i < 65536; ++i) {
            ASSERT_EQ(yu[size_t(i)], ref_float_path(i, sf, 65535, -15, 8)) << i << " sf " << sf;
            const int xv = i - 32768;
            ASSERT_EQ(ys[size_t(i)], xv < 0 ? 0 : ref_float_path(xv, sf, 32767, -14, 8))
                << xv << " sf " << sf;
            if (xv >= 0) {
                const int64_t e = ref_exact(uint64_t(xv), sf, 32767);
                ASSERT_LE(std::abs(ys[size_t(i)] - e), 1); // the float root is off by one at most
                off16s += ys[size_t(i)] != e;
            }
        }
    }
    std::printf("Sqrt_16s_Sfs: %ld results differ by one from the exactly rounded root\n", off16s);
    std::vector<Tav16s> io = xs;
    EXPECT_EQ(tavsSqrt_16s_ISfs(io.data(), 65536, -3), WarnSqrtNegative);
    EXPECT_EQ(tavsSqrt_16s_Sfs(xs.data(), ys.data(), 65536, -3), WarnSqrtNegative);
    EXPECT_EQ(io, ys);
    std::vector<Tav16u> iou = xu;
    ASSERT_EQ(tavsSqrt_16u_ISfs(iou.data(), 65536, 2), StatusOk);
    ASSERT_EQ(tavsSqrt_16u_Sfs(xu.data(), yu.data(), 65536, 2), StatusOk);
    EXPECT_EQ(iou, yu);
    std::vector<Tav8u> io8 = x8;
    ASSERT_EQ(tavsSqrt_8u_ISfs(io8.data(), 256, -2), StatusOk);
    ASSERT_EQ(tavsSqrt_8u_Sfs(x8.data(), y8.data(), 256, -2), StatusOk);
    EXPECT_EQ(io8, y8);
}

TEST(SqrtInt, DocumentedEdge)
{
    Tav16s x = -1, y = 5;
    EXPECT_EQ(tavsSqrt_16s_Sfs(&x, &y, 1, 9), WarnSqrtNegative);
    EXPECT_EQ(y, 0);
}

TEST(SqrtInt, WideSourcesRandom)
{
    tt::Rng rng(53);
    std::vector<Tav32s> x32(3000);
    std::vector<Tav64s> x64(3000);
    for (auto& v : x32)
        v = rng.element<Tav32s>();
    for (auto& v : x64)
        v = rng.next() % 3 ? rng.element<Tav64s>() : Tav64s(rng.range(0, 1LL << 40));
    x64[0] = 9; // exact ties at sf 1
    x64[1] = 25;
    x64[2] = INT64_MAX;
    x64[3] = (int64_t(1) << 62) + 1;
    const int n = 3000;
    std::vector<Tav16s> y16(3000), z16(3000);
    std::vector<Tav64s> y64(3000);
    for (int sf : kSfs) {
        EXPECT_EQ(tavsSqrt_32s16s_Sfs(x32.data(), y16.data(), n, sf), WarnSqrtNegative);
        EXPECT_EQ(tavsSqrt_64s16s_Sfs(x64.data(), z16.data(), n, sf), WarnSqrtNegative);
        EXPECT_EQ(tavsSqrt_64s_Sfs(x64.data(), y64.data(), n, sf), WarnSqrtNegative);
        for (int i = 0; i < n; ++i) {
            const int64_t a = x32[size_t(i)], b = x64[size_t(i)];
            ASSERT_EQ(y16[size_t(i)], a < 0 ? 0 : ref_float_path(a, sf, 32767, -14, 16)) << a << " sf " << sf;
            ASSERT_EQ(z16[size_t(i)], b < 0 ? 0 : ref_exact(uint64_t(b), sf, 32767)) << b << " sf " << sf;
            ASSERT_EQ(y64[size_t(i)], b < 0 ? 0 : ref_exact(uint64_t(b), sf, INT64_MAX)) << b << " sf " << sf;
        }
    }
    std::vector<Tav64s> io = x64;
    EXPECT_EQ(tavsSqrt_64s_ISfs(io.data(), n, 1), WarnSqrtNegative);
    EXPECT_EQ(tavsSqrt_64s_Sfs(x64.data(), y64.data(), n, 1), WarnSqrtNegative);
    EXPECT_EQ(io, y64);
    EXPECT_EQ(y64[0], 2); // sqrt(9)/2 = 1.5 goes to even
    EXPECT_EQ(y64[1], 2); // 2.5 goes to even
}

// 16sc: the complex formula in double; each part scaled, rounded, saturated.
Tav16s ref_part(double v, int sf)
{
    if (sf < -7) return v > 0 ? 32767 : (v < 0 ? -32768 : 0);
    const double s = std::nearbyint(std::ldexp(v, -std::min(sf, 64)));
    return Tav16s(std::clamp(s, -32768.0, 32767.0));
}

TEST(SqrtInt, Complex16sc)
{
    tt::Rng rng(54);
    const int n = 5000;
    std::vector<Tav16sc> x(n), y(n);
    for (auto& v : x)
        v = {rng.element<Tav16s>(), rng.element<Tav16s>()};
    x[0] = {0, 0}, x[1] = {-4, 0}, x[2] = {0, -8}, x[3] = {25, 0};
    for (int sf : {INT_MIN, -9, -8, -7, -5, -1, 0, 1, 2, 8, 9, 70, INT_MAX}) {
        ASSERT_EQ(tavsSqrt_16sc_Sfs(x.data(), y.data(), n, sf), StatusOk);
        for (int i = 0; i < n; ++i) {
            const std::complex<double> r = std::sqrt(std::complex<double>(x[size_t(i)].re, x[size_t(i)].im));
            const double re = r.real(),
                         im = x[size_t(i)].im == 0 && x[size_t(i)].re < 0 ? std::fabs(r.imag()) : r.imag();
            // the library's formula and std::sqrt agree to well below half a unit
            const Tav16s er = ref_part(re, sf), ei = ref_part(im, sf);
            ASSERT_LE(std::abs(y[size_t(i)].re - er), 1) << i << " sf " << sf;
            ASSERT_LE(std::abs(y[size_t(i)].im - ei), 1) << i << " sf " << sf;
        }
    }
    ASSERT_EQ(tavsSqrt_16sc_Sfs(x.data(), y.data(), 4, 0), StatusOk);
    EXPECT_EQ(y[0].re, 0);
    EXPECT_EQ(y[0].im, 0);
    EXPECT_EQ(y[1].re, 0);
    EXPECT_EQ(y[1].im, 2);
    EXPECT_EQ(y[2].re, 2);
    EXPECT_EQ(y[2].im, -2);
    EXPECT_EQ(y[3].re, 5);
    ASSERT_EQ(tavsSqrt_16sc_Sfs(x.data(), y.data(), 4, -8), StatusOk);
    EXPECT_EQ(y[2].re, 32767);
    EXPECT_EQ(y[2].im, -32768);
    EXPECT_EQ(y[0].re, 0);
    std::vector<Tav16sc> io = x;
    ASSERT_EQ(tavsSqrt_16sc_ISfs(io.data(), n, -2), StatusOk);
    ASSERT_EQ(tavsSqrt_16sc_Sfs(x.data(), y.data(), n, -2), StatusOk);
    EXPECT_EQ(0, std::memcmp(io.data(), y.data(), size_t(n) * 4));
}

TEST(Sqrt, Errors)
{
    tt::Guarded<Tav64fc> g(4);
    void* d = g.data();
    Tav64fc src[4] = {};
    const void* s = src;
    EXPECT_EQ(tavsSqrt_32f(nullptr, (Tav32f*)d, 4), ErrNullPtr);
    EXPECT_EQ(tavsSqrt_32f((const Tav32f*)s, nullptr, 4), ErrNullPtr);
    EXPECT_EQ(tavsSqrt_32f((const Tav32f*)s, (Tav32f*)d, 0), ErrSize);
    EXPECT_EQ(tavsSqrt_32f_I(nullptr, 0), ErrNullPtr);
    EXPECT_EQ(tavsSqrt_64f((const Tav64f*)s, (Tav64f*)d, -1), ErrSize);
    EXPECT_EQ(tavsSqrt_64f_I((Tav64f*)d, 0), ErrSize);
    EXPECT_EQ(tavsSqrt_32fc(nullptr, (Tav32fc*)d, 1), ErrNullPtr);
    EXPECT_EQ(tavsSqrt_32fc_I((Tav32fc*)d, 0), ErrSize);
    EXPECT_EQ(tavsSqrt_64fc((const Tav64fc*)s, (Tav64fc*)d, 0), ErrSize);
    EXPECT_EQ(tavsSqrt_64fc_I(nullptr, 2), ErrNullPtr);
    EXPECT_EQ(tavsSqrt_8u_Sfs((const Tav8u*)s, nullptr, 4, 0), ErrNullPtr);
    EXPECT_EQ(tavsSqrt_8u_ISfs((Tav8u*)d, 0, 0), ErrSize);
    EXPECT_EQ(tavsSqrt_16u_Sfs(nullptr, (Tav16u*)d, 0, 0), ErrNullPtr);
    EXPECT_EQ(tavsSqrt_16u_ISfs(nullptr, 1, 0), ErrNullPtr);
    EXPECT_EQ(tavsSqrt_16s_Sfs((const Tav16s*)s, (Tav16s*)d, 0, 0), ErrSize);
    EXPECT_EQ(tavsSqrt_16s_ISfs((Tav16s*)d, -5, 0), ErrSize);
    EXPECT_EQ(tavsSqrt_16sc_Sfs((const Tav16sc*)s, nullptr, 1, 0), ErrNullPtr);
    EXPECT_EQ(tavsSqrt_16sc_ISfs((Tav16sc*)d, 0, 0), ErrSize);
    EXPECT_EQ(tavsSqrt_32s16s_Sfs((const Tav32s*)s, (Tav16s*)d, 0, 0), ErrSize);
    EXPECT_EQ(tavsSqrt_64s16s_Sfs(nullptr, (Tav16s*)d, 1, 0), ErrNullPtr);
    EXPECT_EQ(tavsSqrt_64s_Sfs((const Tav64s*)s, (Tav64s*)d, 0, 0), ErrSize);
    EXPECT_EQ(tavsSqrt_64s_ISfs(nullptr, 0, 0), ErrNullPtr);
    EXPECT_TRUE(g.untouched());
}

} // namespace

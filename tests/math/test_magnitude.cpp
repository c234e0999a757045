// Magnitudes, squared magnitudes and power spectra: float forms bit for bit
// against the plain formula (vector and scalar paths alike over lengths and
// offsets), integer forms against references of their scaling rules.
#include <gtest/gtest.h>

#include <climits>
#include <vector>

#include "math_test_util.h"
#include "tavs.h"
#include "test_util.h"

namespace {

const int kSfs[] = {INT_MIN, -40, -31, -30, -16, -15, -14, -13, -5, -1, 0,
                    1,       2,   9,   16,  17,  31,  32,  40,  63, 64, INT_MAX};

std::vector<Tav16sc> pairs16(tt::Rng& rng, int n)
{
    std::vector<Tav16sc> v(static_cast<size_t>(n));
    for (auto& p : v)
        p = {rng.element<Tav16s>(), rng.element<Tav16s>()};
    v[0] = {-32768, -32768};
    v[1] = {0, 0};
    v[2] = {3, 4};
    v[3] = {-32768, 0};
    return v;
}

// ---- float ----------------------------------------------------------------------------------
TEST(MagnitudeFloat, BitExactOverLengthsAndOffsets)
{
    tt::Rng rng(71);
    for (int len = 1; len <= 70; ++len)
        for (int off = 0; off < 16; ++off) {
            std::vector<float> re(static_cast<size_t>(len)), im(static_cast<size_t>(len));
            std::vector<Tav32fc> c(static_cast<size_t>(len));
            for (int i = 0; i < len; ++i) {
                re[size_t(i)] = float(rng.uniform(-1e3, 1e3));
                im[size_t(i)] = float(rng.uniform(-1e3, 1e3));
                c[size_t(i)] = {re[size_t(i)], im[size_t(i)]};
            }
            tt::Guarded<float> a(static_cast<size_t>(len), size_t(off) * 4),
                b(static_cast<size_t>(len), size_t(off) * 4), p(static_cast<size_t>(len), size_t(off) * 4),
                q(static_cast<size_t>(len), size_t(off) * 4);
            ASSERT_EQ(tavsMagnitude_32f(re.data(), im.data(), a.data(), len), StatusOk);
            ASSERT_EQ(tavsMagnitude_32fc(c.data(), b.data(), len), StatusOk);
            ASSERT_EQ(tavsPowerSpectr_32f(re.data(), im.data(), p.data(), len), StatusOk);
            ASSERT_EQ(tavsPowerSpectr_32fc(c.data(), q.data(), len), StatusOk);
            for (int i = 0; i < len; ++i) {
                const float r = re[size_t(i)], m = im[size_t(i)];
                const float mag = std::sqrt(r * r + m * m), pw = r * r + m * m;
                ASSERT_TRUE(tt::same_bits(a.data()[i], mag)) << len << " " << i;
                ASSERT_TRUE(tt::same_bits(b.data()[i], mag)) << len << " " << i;
                ASSERT_TRUE(tt::same_bits(p.data()[i], pw));
                ASSERT_TRUE(tt::same_bits(q.data()[i], pw));
            }
            EXPECT_TRUE(a.borders_intact() && b.borders_intact() && p.borders_intact() && q.borders_intact());
        }
}

TEST(MagnitudeFloat, DoubleFormsAndWidening)
{
    tt::Rng rng(72);
    const int n = 300;
    std::vector<double> re(n), im(n), a(n), b(n), p(n), q(n), ms(n);
    std::vector<Tav64fc> c(n);
    std::vector<Tav32fc> cf(n);
    for (int i = 0; i < n; ++i) {
        re[size_t(i)] = rng.uniform(-1e100, 1e100);
        im[size_t(i)] = rng.uniform(-1e100, 1e100);
        c[size_t(i)] = {re[size_t(i)], im[size_t(i)]};
        cf[size_t(i)] = {float(rng.uniform(-1e30, 1e30)), float(rng.uniform(-1e30, 1e30))};
    }
    ASSERT_EQ(tavsMagnitude_64f(re.data(), im.data(), a.data(), n), StatusOk);
    ASSERT_EQ(tavsMagnitude_64fc(c.data(), b.data(), n), StatusOk);
    ASSERT_EQ(tavsPowerSpectr_64f(re.data(), im.data(), p.data(), n), StatusOk);
    ASSERT_EQ(tavsPowerSpectr_64fc(c.data(), q.data(), n), StatusOk);
    ASSERT_EQ(tavsMagSquared_32fc64f(cf.data(), ms.data(), n), StatusOk);
    for (int i = 0; i < n; ++i) {
        const double r = re[size_t(i)], m = im[size_t(i)];
        ASSERT_EQ(a[size_t(i)], std::sqrt(r * r + m * m));
        ASSERT_EQ(b[size_t(i)], std::sqrt(r * r + m * m));
        ASSERT_EQ(p[size_t(i)], r * r + m * m);
        ASSERT_EQ(q[size_t(i)], r * r + m * m);
        const double fr = cf[size_t(i)].re, fm = cf[size_t(i)].im;
        ASSERT_EQ(ms[size_t(i)], fr * fr + fm * fm); // widened first: no float overflow
    }
    const float big[2] = {3e38f, 3e38f}; // squares, not a scaled hypot: overflows
    float out = 0;
    ASSERT_EQ(tavsMagnitude_32f(big, big + 1, &out, 1), StatusOk);
    EXPECT_EQ(out, INFINITY);
}

TEST(Magnitude16s, FloatDestinations)
{
    tt::Rng rng(73);
    const int n = 2000;
    auto c = pairs16(rng, n);
    std::vector<Tav16s> re(n), im(n);
    for (int i = 0; i < n; ++i)
        re[size_t(i)] = c[size_t(i)].re, im[size_t(i)] = c[size_t(i)].im;
    std::vector<float> a(n), b(n), p(n), q(n);
    ASSERT_EQ(tavsMagnitude_16s32f(re.data(), im.data(), a.data(), n), StatusOk);
    ASSERT_EQ(tavsMagnitude_16sc32f(c.data(), b.data(), n), StatusOk);
    ASSERT_EQ(tavsPowerSpectr_16s32f(re.data(), im.data(), p.data(), n), StatusOk);
    ASSERT_EQ(tavsPowerSpectr_16sc32f(c.data(), q.data(), n), StatusOk);
    for (int i = 0; i < n; ++i) {
        const int r = re[size_t(i)], m = im[size_t(i)];
        const float pw = float(r * r) + float(m * m);
        ASSERT_EQ(p[size_t(i)], pw);
        ASSERT_EQ(q[size_t(i)], pw);
        ASSERT_EQ(a[size_t(i)], std::sqrt(pw));
        ASSERT_EQ(b[size_t(i)], std::sqrt(pw));
    }
    EXPECT_EQ(p[0], 2147483648.0f);
}

// ---- fixed point ---------------------------------------------------------------------------
int64_t ref_exact_root(uint64_t sum, int sf)
{
    if (sf > 40) return 0;
    // floor(sqrt(sum) / 2^sf) by search, then ties to even at the half point
    uint64_t lo = 0, hi = 1 << 17;
    while (lo < hi) {
        const uint64_t mid = (lo + hi + 1) / 2;
        if ((unsigned __int128)(mid << sf) * (mid << sf) <= sum)
            lo = mid;
        else
            hi = mid - 1;
    }
    const unsigned __int128 h = (unsigned __int128)((2 * lo + 1) << sf) * ((2 * lo + 1) << sf),
                            s4 = (unsigned __int128)sum * 4;
    if (s4 > h || (s4 == h && (lo & 1))) ++lo;
    return std::min<int64_t>(int64_t(lo), 32767);
}

int64_t ref_mag16(int re, int im, int sf)
{
    const uint64_t sum = uint64_t(re * re) + uint64_t(im * im);
    if (sf >= 1) return ref_exact_root(sum, sf);
    if (sf < -14) return sum == 0 ? 0 : 32767;
    const int s2 = -2 * sf;
    const uint64_t v = sum > (0x3FFF0000u >> s2) ? 0x3FFF0000u : sum << s2;
    return std::min<int64_t>(std::lrint(std::sqrt(float(v))), 32767);
}

int64_t ref_pow16(int re, int im, int sf)
{
    const int64_t sum = int64_t(re) * re + int64_t(im) * im;
    if (sf < -14) return sum == 0 ? 0 : 32767;
    if (sf <= 0) return std::min<int64_t>(sum << -sf, 32767);
    const int s = std::min(sf, 31);
    int64_t q = sum >> s;
    const int64_t rem = sum - (q << s), half = int64_t(1) << (s - 1);
    if (rem > half || (rem == half && (q & 1))) ++q;
    return std::min<int64_t>(q, 32767);
}

TEST(Magnitude16s, ScaledForms)
{
    tt::Rng rng(74);
    const int n = 20000 / mt::kSlow;
    auto c = pairs16(rng, n);
    std::vector<Tav16s> re(static_cast<size_t>(n)), im(static_cast<size_t>(n));
    for (int i = 0; i < n; ++i)
        re[size_t(i)] = c[size_t(i)].re, im[size_t(i)] = c[size_t(i)].im;
    std::vector<Tav16s> a(static_cast<size_t>(n)), b(static_cast<size_t>(n)), p(static_cast<size_t>(n)),
        q(static_cast<size_t>(n));
    for (int sf : kSfs) {
        ASSERT_EQ(tavsMagnitude_16s_Sfs(re.data(), im.data(), a.data(), n, sf), StatusOk);
        ASSERT_EQ(tavsMagnitude_16sc_Sfs(c.data(), b.data(), n, sf), StatusOk);
        ASSERT_EQ(tavsPowerSpectr_16s_Sfs(re.data(), im.data(), p.data(), n, sf), StatusOk);
        ASSERT_EQ(tavsPowerSpectr_16sc_Sfs(c.data(), q.data(), n, sf), StatusOk);
        for (int i = 0; i < n; ++i) {
            const int r = re[size_t(i)], m = im[size_t(i)];
            ASSERT_EQ(a[size_t(i)], ref_mag16(r, m, sf)) << r << "," << m << " sf " << sf;
            ASSERT_EQ(b[size_t(i)], a[size_t(i)]);
            ASSERT_EQ(p[size_t(i)], ref_pow16(r, m, sf)) << r << "," << m << " sf " << sf;
            ASSERT_EQ(q[size_t(i)], p[size_t(i)]);
        }
    }
    Tav16sc z = {-32768, -32768};
    Tav16s o = 0;
    ASSERT_EQ(tavsMagnitude_16sc_Sfs(&z, &o, 1, 0), StatusOk);
    EXPECT_EQ(o, 32767);
    ASSERT_EQ(tavsMagnitude_16sc_Sfs(&z, &o, 1, 1), StatusOk);
    EXPECT_EQ(o, 23170); // sqrt(2^31) / 2 = 23170.48
    ASSERT_EQ(tavsPowerSpectr_16sc_Sfs(&z, &o, 1, 40), StatusOk);
    EXPECT_EQ(o, 1); // 2^31 shifted by the capped count of 31
}

TEST(Magnitude32sc, ScaledInDouble)
{
    tt::Rng rng(75);
    const int n = 3000;
    std::vector<Tav32sc> c(n);
    for (auto& p : c)
        p = {rng.element<Tav32s>(), rng.element<Tav32s>()};
    c[0] = {0, 0};
    std::vector<Tav32s> a(n), m(n);
    for (int sf : kSfs) {
        ASSERT_EQ(tavsMagnitude_32sc_Sfs(c.data(), a.data(), n, sf), StatusOk);
        ASSERT_EQ(tavsMagSquared_32sc32s_Sfs(c.data(), m.data(), n, sf), StatusOk);
        for (int i = 0; i < n; ++i) {
            const double re = c[size_t(i)].re, im = c[size_t(i)].im;
            int64_t ra;
            if (sf <= -31)
                ra = (re == 0 && im == 0) ? 0 : INT32_MAX;
            else {
                const double v = std::sqrt(re * re + im * im) * std::pow(2.0, -double(sf)) + 0.5;
                ra = v >= 2147483647.0 ? INT32_MAX : int64_t(v);
            }
            ASSERT_EQ(a[size_t(i)], ra) << i << " sf " << sf;
            const unsigned __int128 sum = (unsigned __int128)((__int128)c[size_t(i)].re * c[size_t(i)].re) +
                                          (unsigned __int128)((__int128)c[size_t(i)].im * c[size_t(i)].im);
            unsigned __int128 v;
            if (sf > 63)
                v = 0;
            else if (sf >= 0)
                v = sum >> sf;
            else if (sf >= -30)
                v = sum >= ((unsigned __int128)1 << 31) ? INT32_MAX : sum << -sf;
            else
                v = sum == 0 ? 0 : INT32_MAX;
            ASSERT_EQ(m[size_t(i)], int64_t(v > INT32_MAX ? INT32_MAX : v)) << i << " sf " << sf;
        }
    }
    Tav32sc one[3] = {{3, 4}, {-46341, 0}, {7, 0}};
    Tav32s o[3] = {5, 5, 5};
    ASSERT_EQ(tavsMagSquared_32sc32s_Sfs(one, o, 3, 64), StatusOk);
    EXPECT_EQ(o[0], 0);
    EXPECT_EQ(o[1], 0);
    EXPECT_EQ(o[2], 0);
    ASSERT_EQ(tavsMagSquared_32sc32s_Sfs(one, o, 3, 1), StatusOk);
    EXPECT_EQ(o[0], 12); // 25 >> 1, truncated
}

TEST(Magnitude, Errors)
{
    tt::Guarded<double> g(8);
    void* d = g.data();
    double s[8] = {};
    const void* p = s;
    EXPECT_EQ(tavsMagnitude_32f(nullptr, (const float*)p, (float*)d, 4), ErrNullPtr);
    EXPECT_EQ(tavsMagnitude_32f((const float*)p, nullptr, (float*)d, 4), ErrNullPtr);
    EXPECT_EQ(tavsMagnitude_32f((const float*)p, (const float*)p, (float*)d, 0), ErrSize);
    EXPECT_EQ(tavsMagnitude_64f((const double*)p, (const double*)p, nullptr, 4), ErrNullPtr);
    EXPECT_EQ(tavsMagnitude_64f((const double*)p, (const double*)p, (double*)d, -1), ErrSize);
    EXPECT_EQ(tavsMagnitude_16s_Sfs((const Tav16s*)p, (const Tav16s*)p, (Tav16s*)d, 0, 0), ErrSize);
    EXPECT_EQ(tavsMagnitude_16s32f(nullptr, nullptr, nullptr, 0), ErrNullPtr);
    EXPECT_EQ(tavsMagnitude_32fc(nullptr, (float*)d, 4), ErrNullPtr);
    EXPECT_EQ(tavsMagnitude_32fc((const Tav32fc*)p, (float*)d, 0), ErrSize);
    EXPECT_EQ(tavsMagnitude_64fc((const Tav64fc*)p, nullptr, 4), ErrNullPtr);
    EXPECT_EQ(tavsMagnitude_16sc_Sfs((const Tav16sc*)p, (Tav16s*)d, 0, 3), ErrSize);
    EXPECT_EQ(tavsMagnitude_16sc32f((const Tav16sc*)p, nullptr, 1), ErrNullPtr);
    EXPECT_EQ(tavsMagnitude_32sc_Sfs((const Tav32sc*)p, (Tav32s*)d, 0, 0), ErrSize);
    EXPECT_EQ(tavsMagSquared_32fc64f(nullptr, (double*)d, 4), ErrNullPtr);
    EXPECT_EQ(tavsMagSquared_32sc32s_Sfs((const Tav32sc*)p, (Tav32s*)d, 0, 64), ErrSize);
    EXPECT_EQ(tavsPowerSpectr_32f((const float*)p, nullptr, (float*)d, 4), ErrNullPtr);
    EXPECT_EQ(tavsPowerSpectr_64f((const double*)p, (const double*)p, (double*)d, 0), ErrSize);
    EXPECT_EQ(tavsPowerSpectr_16s_Sfs((const Tav16s*)p, (const Tav16s*)p, nullptr, 4, 0), ErrNullPtr);
    EXPECT_EQ(tavsPowerSpectr_16s32f((const Tav16s*)p, (const Tav16s*)p, (float*)d, 0), ErrSize);
    EXPECT_EQ(tavsPowerSpectr_32fc((const Tav32fc*)p, (float*)d, 0), ErrSize);
    EXPECT_EQ(tavsPowerSpectr_64fc(nullptr, (double*)d, 0), ErrNullPtr);
    EXPECT_EQ(tavsPowerSpectr_16sc_Sfs((const Tav16sc*)p, (Tav16s*)d, -2, 0), ErrSize);
    EXPECT_EQ(tavsPowerSpectr_16sc32f((const Tav16sc*)p, nullptr, 2), ErrNullPtr);
    EXPECT_TRUE(g.untouched());
}

} // namespace

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <limits>

#include <xmmintrin.h>

#include "convert_check.h"
#include "tavs.h"
#include "test_util.h"

namespace {

uint32_t fbits(float f)
{
    uint32_t b;
    std::memcpy(&b, &f, 4);
    return b;
}
float from_bits(uint32_t b)
{
    float f;
    std::memcpy(&f, &b, 4);
    return f;
}
Tav16f half(uint16_t b) { return Tav16f{b}; }

// ---- a decoder from the definition of binary16 ----------------------------------

// The exact value of a finite half.
double half_value(uint16_t h)
{
    const int e = (h >> 10) & 31, f = h & 1023;
    const double mag = e == 0 ? std::ldexp(double(f), -24) : std::ldexp(double(1024 + f), e - 25);
    return (h & 0x8000) ? -mag : mag;
}

uint32_t ref_decode(uint16_t h)
{
    if (((h >> 10) & 31) == 31) return uint32_t(h & 0x8000) << 16 | 0x7F800000u | uint32_t(h & 1023) << 13;
    return fbits(float(half_value(h)));
}

// ---- 32f to 16f as the rule states it, on the raw bits x (sign included) --------

uint16_t ref_nearest(uint32_t x)
{
    const uint32_t e = (x >> 23) & 0xFF, sign = (x >> 31) << 15;
    if (e == 255) return (x & 0x7FFFFF) ? 0x7DFF : uint16_t(0x7C00 | sign);
    if ((x & 0x7F800000) < 0x32800001) return uint16_t(sign);
    if (e >= 113) {
        const uint32_t sum = x + ((x >> 13) & 1) + 0xFFF;
        const uint32_t es = (sum >> 23) & 0xFF;
        if (es >= 143) return (es == 255 && (sum & 0x7FFFFF) != 0) ? 0x7DFF : uint16_t(0x7C00 | sign);
        return uint16_t((((sum + 0x8000000) >> 13) & 0x7FFF) | ((sum >> 16) & 0x8000));
    }
    const uint32_t k = 113 - e;
    uint32_t add = (0xFFFu << k) | 0xFFFu;
    if (((x >> (13 + k)) & 1) != 0 || k >= 10) add += 1;
    const uint32_t sum = x + add;
    const uint32_t es = (sum >> 23) & 0x1F; // the five low bits, as in a half exponent
    return uint16_t((((sum & 0xFFFFFF) | 0x800000) >> (30 - es)) | sign);
}

uint16_t ref_trunc(uint32_t x)
{
    const uint32_t e = (x >> 23) & 0xFF, sign = (x >> 31) << 15;
    if (e == 255) return (x & 0x7FFFFF) ? 0x7DFF : uint16_t(0x7C00 | sign);
    if (e >= 143) return uint16_t(0x7BFF | sign);
    if (e >= 113) return uint16_t((((x + 0x8000000) >> 13) & 0x7FFF) | sign);
    if ((x & 0x7F800000) > 0x33000000)
        return uint16_t((((x & 0xFFFFFF) | 0x800000) >> (30 - (e & 0x1F))) | sign);
    return uint16_t(sign);
}

// Every boundary the rule names, with both signs and the fractions that sit on
// and beside each rounding step.
std::vector<uint32_t> boundary_patterns()
{
    std::vector<uint32_t> v;
    const uint32_t fracs[] = {0,        1,        2,        0xFFF,    0x1000,   0x1001,   0x1FFF,   0x2000,
                              0x3000,   0x3FFF,   0x4000,   0x7FFF,   0x8000,   0x400000, 0x3FFFFF, 0x401000,
                              0x7FE000, 0x7FEFFF, 0x7FF000, 0x7FF001, 0x7FFFFF, 0x7FDFFF, 0x1800,   0x200000};
    for (uint32_t e = 0; e < 256; ++e)
        for (uint32_t f : fracs)
            for (uint32_t s : {0u, 1u})
                v.push_back(s << 31 | e << 23 | f);
    // Subnormal ties at every shift: the bit just below the kept ones.
    for (uint32_t e = 100; e <= 114; ++e)
        for (uint32_t k = 10; k <= 24; ++k)
            for (uint32_t d : {0u, 1u, 2u}) {
                const uint32_t f = ((1u << (k - 1)) + d - 1) & 0x7FFFFF;
                v.push_back(e << 23 | f);
                v.push_back(e << 23 | (f | (1u << k)) & 0x7FFFFF);
            }
    for (uint32_t b : {0x32800000u, 0x32800001u, 0x33000000u, 0x33000001u, 0x33800000u, 0x387FFFFFu,
                       0x38800000u, 0x477FE000u, 0x477FEFFFu, 0x477FF000u, 0x47800000u, 0x7F7FF000u,
                       0x7F7FEFFFu, 0x7F7FFFFFu, 0x7F800000u, 0x7F800001u, 0x7FC00000u, 0x7FFFFFFFu})
        for (uint32_t s : {0u, 0x80000000u})
            v.push_back(b | s);
    return v;
}

std::vector<uint32_t> random_patterns(size_t n)
{
    tt::Rng r(0x16f);
    std::vector<uint32_t> v(n);
    for (size_t i = 0; i < n; ++i) {
        const uint64_t z = r.next();
        // Half the draws anywhere, half with exponents around the half range.
        if (i % 2)
            v[i] = uint32_t(z);
        else
            v[i] = uint32_t(z & 0x807FFFFF) | uint32_t(95 + (z >> 40) % 55) << 23;
    }
    return v;
}

auto call_32f16f(int mode)
{
    return [mode](const void* s, void* d, int len) {
        return tavsConvert_32f16f(static_cast<const Tav32f*>(s), static_cast<Tav16f*>(d), len, mode);
    };
}

// The library against the rule, in one vector call and element by element
// (single elements take the scalar path).
void check_32f16f_bits(const std::vector<uint32_t>& pats, bool elementwise)
{
    std::vector<float> src(pats.size());
    for (size_t i = 0; i < pats.size(); ++i)
        src[i] = from_bits(pats[i]);
    for (int mode : {1, 0, 7, -1}) {
        auto ref = [mode](float f) { return half(mode == 1 ? ref_nearest(fbits(f)) : ref_trunc(fbits(f))); };
        ct::bulk<Tav32f, Tav16f>(src, call_32f16f(mode), ref);
        if (!elementwise) continue;
        for (size_t i = 0; i < src.size(); ++i) {
            Tav16f d{0xAAAA};
            ASSERT_EQ(tavsConvert_32f16f(&src[i], &d, 1, mode), StatusOk);
            ASSERT_EQ(d.bits, ref(src[i]).bits) << std::hex << "source 0x" << pats[i] << " mode " << mode;
        }
    }
}

TEST(ConvertHalf, Float32To16AgainstRuleBoundaries) { check_32f16f_bits(boundary_patterns(), true); }

TEST(ConvertHalf, Float32To16AgainstRuleRandom) { check_32f16f_bits(random_patterns(1 << 20), false); }

// Runs of normal values, so whole vectors take the short path, up to the edges
// where it must hand over to the full rule, and single odd lanes among them.
TEST(ConvertHalf, Float32To16NormalRuns)
{
    std::vector<uint32_t> pats;
    for (uint32_t base :
         {0x38800000u, 0x387FFFF8u, 0x477FEFF0u, 0x477FEFF8u, 0x477FFFF8u, 0x3F800000u, 0x46FFFFF0u})
        for (uint32_t k = 0; k < 64; ++k)
            pats.push_back((base + k) | (k % 3 == 0 ? 0x80000000u : 0));
    tt::Rng r(99);
    for (int i = 0; i < 200000; ++i) {
        uint32_t x = uint32_t(r.next() & 0x807FFFFF) | uint32_t(113 + r.next() % 30) << 23;
        if (i % 97 == 0) x = uint32_t(r.next()); // now and then a lane from anywhere
        pats.push_back(x);
    }
    check_32f16f_bits(pats, false);
}

// The conversions work on the bits: neither the caller's rounding direction
// nor flush-to-zero and denormals-are-zero change a result.
TEST(ConvertHalf, IndependentOfFloatControlState)
{
    auto pats = boundary_patterns();
    const auto more = random_patterns(1 << 14);
    pats.insert(pats.end(), more.begin(), more.end());
    std::vector<float> src(pats.size());
    for (size_t i = 0; i < pats.size(); ++i)
        src[i] = from_bits(pats[i]);
    std::vector<Tav16f> all(65536);
    for (uint32_t h = 0; h < 65536; ++h)
        all[h] = half(uint16_t(h));
    const unsigned saved = _mm_getcsr();
    // Round up, then toward zero, each with FTZ and DAZ set.
    for (unsigned control : {0x4000u | 0x8040u, 0x6000u | 0x8040u}) {
        std::vector<Tav16f> n(src.size()), t(src.size());
        std::vector<Tav32f> w(all.size());
        _mm_setcsr((saved & ~0xE040u) | control);
        const Status a = tavsConvert_32f16f(src.data(), n.data(), int(src.size()), RoundHalfEven);
        const Status b = tavsConvert_32f16f(src.data(), t.data(), int(src.size()), RoundTowardZero);
        const Status c = tavsConvert_16f32f(all.data(), w.data(), int(all.size()));
        _mm_setcsr(saved);
        ASSERT_EQ(a, StatusOk);
        ASSERT_EQ(b, StatusOk);
        ASSERT_EQ(c, StatusOk);
        for (size_t i = 0; i < src.size(); ++i) {
            ASSERT_EQ(n[i].bits, ref_nearest(pats[i])) << std::hex << pats[i];
            ASSERT_EQ(t[i].bits, ref_trunc(pats[i])) << std::hex << pats[i];
        }
        for (uint32_t h = 0; h < 65536; ++h)
            ASSERT_EQ(fbits(w[h]), ref_decode(uint16_t(h))) << h;
    }
}

// What the rule means: nearest is the correctly rounded half with ties to
// even (apart from 2^-25, which goes up, and the sums just below FLT_MAX that
// store 0x7DFF); truncation is rounding toward zero, with the largest finite
// value for anything beyond it.
TEST(ConvertHalf, Float32To16MeansRounding)
{
    std::vector<double> table; // every non-negative finite half, in order
    for (uint16_t h = 0; h < 0x7C00; ++h)
        table.push_back(half_value(h));
    auto pats = random_patterns(1 << 17);
    const auto more = boundary_patterns();
    pats.insert(pats.end(), more.begin(), more.end());
    std::vector<float> src;
    for (uint32_t p : pats) {
        const float f = from_bits(p);
        if (!std::isnan(f) && std::fabs(f) < 1e30f) src.push_back(f);
    }
    std::vector<Tav16f> nearest(src.size()), trunc(src.size());
    ASSERT_EQ(tavsConvert_32f16f(src.data(), nearest.data(), int(src.size()), RoundHalfEven), StatusOk);
    ASSERT_EQ(tavsConvert_32f16f(src.data(), trunc.data(), int(src.size()), RoundTowardZero), StatusOk);
    for (size_t i = 0; i < src.size(); ++i) {
        const double a = std::fabs(double(src[i]));
        const uint16_t sign = std::signbit(src[i]) ? 0x8000 : 0;
        // Largest half at or below a, and the next one up.
        const size_t lo = size_t(std::upper_bound(table.begin(), table.end(), a) - table.begin()) - 1;
        const uint16_t t = uint16_t(lo) | sign;
        ASSERT_EQ(trunc[i].bits, t) << "truncating " << src[i];
        uint16_t n;
        if (a >= 65520.0)
            n = 0x7C00 | sign;
        else if (lo + 1 == table.size())
            n = uint16_t(lo) | sign;
        else {
            const double below = table[lo], above = table[lo + 1];
            const bool up = a - below > above - a || (a - below == above - a && (lo & 1) != 0);
            n = uint16_t(up ? lo + 1 : lo) | sign;
        }
        if (a == 0x1p-25) n = 1 | sign;
        ASSERT_EQ(nearest[i].bits, n) << "nearest " << src[i];
    }
}

TEST(ConvertHalf, Float32To16DocumentedValues)
{
    const float src[6] = {65520.0f, 0x1p-25f, -65520.0f, 65504.0f, 1.0f, -0x1p-25f};
    Tav16f d[6];
    ASSERT_EQ(tavsConvert_32f16f(src, d, 6, RoundHalfEven), StatusOk);
    EXPECT_EQ(d[0].bits, 0x7C00);
    EXPECT_EQ(d[1].bits, 0x0001); // the deliberate tie: up to the smallest subnormal
    EXPECT_EQ(d[2].bits, 0xFC00);
    EXPECT_EQ(d[3].bits, 0x7BFF);
    EXPECT_EQ(d[4].bits, 0x3C00);
    EXPECT_EQ(d[5].bits, 0x8001);
    ASSERT_EQ(tavsConvert_32f16f(src, d, 6, RoundTowardZero), StatusOk);
    EXPECT_EQ(d[0].bits, 0x7BFF);
    EXPECT_EQ(d[1].bits, 0x0000);
    EXPECT_EQ(d[2].bits, 0xFBFF);
    // rndMode 7 truncates too.
    Tav16f e[6];
    ASSERT_EQ(tavsConvert_32f16f(src, e, 6, 7), StatusOk);
    for (int i = 0; i < 6; ++i)
        EXPECT_EQ(e[i].bits, d[i].bits);
    // Infinity, NaN, and a finite value whose rounded sum has the shape of a NaN.
    const float sp[4] = {std::numeric_limits<float>::infinity(), -std::numeric_limits<float>::infinity(),
                         std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::max()};
    ASSERT_EQ(tavsConvert_32f16f(sp, d, 4, RoundHalfEven), StatusOk);
    EXPECT_EQ(d[0].bits, 0x7C00);
    EXPECT_EQ(d[1].bits, 0xFC00);
    EXPECT_EQ(d[2].bits, 0x7DFF);
    EXPECT_EQ(d[3].bits, 0x7DFF);
    ASSERT_EQ(tavsConvert_32f16f(sp, d, 4, RoundTowardZero), StatusOk);
    EXPECT_EQ(d[0].bits, 0x7C00);
    EXPECT_EQ(d[2].bits, 0x7DFF);
    EXPECT_EQ(d[3].bits, 0x7BFF);
}

template <class S, class D, class Call> void check_round_mode_errors(Call call)
{
    ct::check_errors<S, D>([&](const void* s, void* d, int len) { return call(s, d, len, 2); });
    tt::Guarded<S> s(8);
    tt::Guarded<D> d(8);
    std::memset(s.data(), 0, 8 * sizeof(S));
    // rndMode is checked after the pointers and the length.
    EXPECT_EQ(call(s.data(), d.data(), 8, 2), ErrRoundMode);
    EXPECT_EQ(call(s.data(), d.data(), 0, 5), ErrSize);
    EXPECT_TRUE(d.untouched());
    for (int mode : {0, 1, 3, 7, -1, INT_MIN})
        EXPECT_EQ(call(s.data(), d.data(), 8, mode), StatusOk);
}

TEST(ConvertHalf, RoundModeErrors)
{
    check_round_mode_errors<Tav32f, Tav16f>([](const void* s, void* d, int len, int m) {
        return tavsConvert_32f16f(static_cast<const Tav32f*>(s), static_cast<Tav16f*>(d), len, m);
    });
    check_round_mode_errors<Tav16s, Tav16f>([](const void* s, void* d, int len, int m) {
        return tavsConvert_16s16f(static_cast<const Tav16s*>(s), static_cast<Tav16f*>(d), len, m);
    });
    check_round_mode_errors<Tav16f, Tav16s>([](const void* s, void* d, int len, int m) {
        return tavsConvert_16f16s_Sfs(static_cast<const Tav16f*>(s), static_cast<Tav16s*>(d), len, m, 0);
    });
}

TEST(ConvertHalf, Float32To16Sweep)
{
    const auto b = boundary_patterns();
    std::vector<float> pool;
    for (size_t i = 0; i < b.size(); i += 37)
        pool.push_back(from_bits(b[i]));
    tt::Rng r(3);
    for (int i = 0; i < 100; ++i)
        pool.push_back(float(r.uniform(-70000.0, 70000.0)));
    for (int mode : {0, 1}) {
        auto ref = [mode](float f) { return half(mode == 1 ? ref_nearest(fbits(f)) : ref_trunc(fbits(f))); };
        ct::sweep<Tav32f, Tav16f>(pool, call_32f16f(mode), ref);
    }
}

// ---- 16f to 32f: all 65,536 inputs ------------------------------------------------

TEST(ConvertHalf, HalfTo32Exhaustive)
{
    std::vector<Tav16f> all(65536);
    for (uint32_t h = 0; h < 65536; ++h)
        all[h] = half(uint16_t(h));
    auto call = [](const void* s, void* d, int len) {
        return tavsConvert_16f32f(static_cast<const Tav16f*>(s), static_cast<Tav32f*>(d), len);
    };
    auto ref = [](Tav16f h) { return from_bits(ref_decode(h.bits)); };
    ct::bulk<Tav16f, Tav32f>(all, call, ref);
    // The same through the scalar path: a destination off its element alignment.
    tt::Guarded<Tav32f> g(65536, 1);
    ASSERT_EQ(tavsConvert_16f32f(all.data(), g.data(), 65536), StatusOk);
    for (uint32_t h = 0; h < 65536; ++h)
        ASSERT_EQ(ct::get<uint32_t>(g.data(), h), ref_decode(uint16_t(h))) << h;
    EXPECT_TRUE(g.borders_intact());
    ct::check_errors<Tav16f, Tav32f>(call);
    std::vector<Tav16f> pool(all.begin() + 0x7B00, all.begin() + 0x7C80);
    for (uint16_t h : {0x0000, 0x8000, 0x0001, 0x83FF, 0x0400, 0x7C00, 0xFC00, 0x7E00, 0x7C01, 0xFFFF})
        pool[size_t(h) % pool.size()] = half(h);
    ct::sweep<Tav16f, Tav32f>(pool, call, ref);
    // A few by value.
    const Tav16f v[4] = {half(0x3C00), half(0x0001), half(0xFBFF), half(0x7D55)};
    float f[4];
    ASSERT_EQ(tavsConvert_16f32f(v, f, 4), StatusOk);
    EXPECT_EQ(f[0], 1.0f);
    EXPECT_EQ(f[1], 0x1p-24f);
    EXPECT_EQ(f[2], -65504.0f);
    EXPECT_EQ(fbits(f[3]), 0x7FAAA000u); // the signalling payload is kept as it is
}

// ---- 16s to 16f: all 65,536 inputs ------------------------------------------------

TEST(ConvertHalf, Int16To16Exhaustive)
{
    std::vector<Tav16s> all(65536);
    for (int v = 0; v < 65536; ++v)
        all[size_t(v)] = Tav16s(v - 32768);
    for (int mode : {1, 0, 9}) {
        auto call = [mode](const void* s, void* d, int len) {
            return tavsConvert_16s16f(static_cast<const Tav16s*>(s), static_cast<Tav16f*>(d), len, mode);
        };
        auto ref = [mode](Tav16s v) {
            const uint32_t x = fbits(float(v));
            return half(mode == 1 ? ref_nearest(x) : ref_trunc(x));
        };
        ct::bulk<Tav16s, Tav16f>(all, call, ref);
        ct::sweep<Tav16s, Tav16f>(std::vector<Tav16s>(all.begin() + 30000, all.begin() + 30200), call, ref);
    }
    const Tav16s s[3] = {2049, 2051, -32768};
    Tav16f d[3];
    ASSERT_EQ(tavsConvert_16s16f(s, d, 3, RoundHalfEven), StatusOk);
    EXPECT_EQ(d[0].bits, 0x6800); // 2048, the tie to even
    EXPECT_EQ(d[1].bits, 0x6802); // 2052
    EXPECT_EQ(d[2].bits, 0xF800);
    ASSERT_EQ(tavsConvert_16s16f(s, d, 3, RoundTowardZero), StatusOk);
    EXPECT_EQ(d[1].bits, 0x6801); // 2050
}

TEST(ConvertHalf, InPlace)
{
    tt::Rng r(5);
    const auto p16 = tt::random_vector<Tav16s>(r, 70);
    std::vector<Tav16f> ph(70);
    for (auto& h : ph)
        h = half(uint16_t(r.next()));
    for (int mode : {0, 1}) {
        ct::in_place<Tav16s, Tav16f>(p16, [mode](const void* s, void* d, int len) {
            return tavsConvert_16s16f(static_cast<const Tav16s*>(s), static_cast<Tav16f*>(d), len, mode);
        });
        ct::in_place<Tav16f, Tav16s>(ph, [mode](const void* s, void* d, int len) {
            return tavsConvert_16f16s_Sfs(static_cast<const Tav16f*>(s), static_cast<Tav16s*>(d), len, mode,
                                          -3);
        });
    }
}

// ---- 16f to 16s ----------------------------------------------------------------------

// The exact value times 2^-sf, rounded (ties to even) or truncated, saturated;
// NaN gives 0.
Tav16s ref_half_16s(uint16_t h, bool nearest, int sf)
{
    if (((h >> 10) & 31) == 31) return (h & 1023) ? 0 : ((h & 0x8000) ? -32768 : 32767);
    const int e = sf < -1000 ? 1000 : (sf > 1000 ? -1000 : -sf);
    const double y = std::ldexp(half_value(h), e);
    const double r = nearest ? std::nearbyint(y) : std::trunc(y);
    return Tav16s(r > 32767 ? 32767 : (r < -32768 ? -32768 : r));
}

TEST(ConvertHalf, HalfTo16s)
{
    std::vector<Tav16f> all(65536);
    for (uint32_t h = 0; h < 65536; ++h)
        all[h] = half(uint16_t(h));
    tt::Rng r(1616);
    for (int mode : {1, 0, 6}) {
        for (int sf = -40; sf <= 70; ++sf) {
            auto call = [&](const void* s, void* d, int len) {
                return tavsConvert_16f16s_Sfs(static_cast<const Tav16f*>(s), static_cast<Tav16s*>(d), len,
                                              mode, sf);
            };
            auto ref = [&](Tav16f h) { return ref_half_16s(h.bits, mode == 1, sf); };
            if (sf == -20 || sf == -1 || sf == 0 || sf == 5 || sf == 14 || sf == 26) {
                ct::bulk<Tav16f, Tav16s>(all, call, ref);
            } else {
                std::vector<Tav16f> some(500);
                for (auto& h : some)
                    h = all[r.next() % 65536];
                ct::bulk<Tav16f, Tav16s>(some, call, ref);
            }
            if (sf == 0)
                ct::sweep<Tav16f, Tav16s>(std::vector<Tav16f>(all.begin() + 0x7000, all.begin() + 0x7100),
                                          call, ref);
        }
    }
    const Tav16f v[6] = {half(0x3E00), half(0x4100), half(0xFC00), half(0x7C00), half(0x7E00), half(0x0001)};
    Tav16s d[6];
    ASSERT_EQ(tavsConvert_16f16s_Sfs(v, d, 6, RoundHalfEven, 0), StatusOk);
    EXPECT_EQ(d[0], 2); // 1.5
    EXPECT_EQ(d[1], 2); // 2.5
    EXPECT_EQ(d[2], -32768);
    EXPECT_EQ(d[3], 32767);
    EXPECT_EQ(d[4], 0); // NaN
    EXPECT_EQ(d[5], 0);
    ASSERT_EQ(tavsConvert_16f16s_Sfs(v, d, 6, RoundTowardZero, -24), StatusOk);
    EXPECT_EQ(d[5], 1); // 2^-24 * 2^24
    EXPECT_EQ(d[0], 32767);
    ASSERT_EQ(tavsConvert_16f16s_Sfs(v, d, 6, RoundHalfEven, INT_MAX), StatusOk);
    EXPECT_EQ(d[1], 0);
    ASSERT_EQ(tavsConvert_16f16s_Sfs(v, d, 6, RoundHalfEven, INT_MIN), StatusOk);
    EXPECT_EQ(d[1], 32767);
    EXPECT_EQ(d[5], 32767);
}

} // namespace

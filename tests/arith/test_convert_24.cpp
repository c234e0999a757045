#include <gtest/gtest.h>

#include <cfenv>
#include <climits>
#include <cmath>
#include <limits>

#include "convert_check.h"
#include "tavs.h"
#include "test_util.h"

namespace {

using ct::B3;

std::vector<B3> pool24(tt::Rng& r, size_t n)
{
    std::vector<B3> v(n);
    for (auto& e : v) {
        switch (r.next() % 5) {
        case 0:
            e = ct::make24(0x7FFFFF);
            break;
        case 1:
            e = ct::make24(0x800000);
            break;
        case 2:
            e = ct::make24(r.range(-3, 3));
            break;
        default:
            e = ct::make24(int64_t(r.next()));
        }
    }
    return v;
}

template <class D, class Fn, class Ref> void check_from24(Fn fn, Ref ref)
{
    tt::Rng r(24);
    auto call = [&](const void* s, void* d, int len) {
        return fn(static_cast<const Tav8u*>(s), static_cast<D*>(d), len);
    };
    ct::check_errors<B3, D>(call);
    ct::sweep<B3, D>(pool24(r, 200), call, ref);
}

TEST(Convert24, Widen)
{
    check_from24<Tav32s>(tavsConvert_24s32s, [](B3 e) { return Tav32s(ct::as24s(e)); });
    check_from24<Tav32u>(tavsConvert_24u32u, [](B3 e) { return Tav32u(ct::as24u(e)); });
    check_from24<Tav32f>(tavsConvert_24s32f, [](B3 e) { return Tav32f(ct::as24s(e)); });
    check_from24<Tav32f>(tavsConvert_24u32f, [](B3 e) { return Tav32f(ct::as24u(e)); });
}

TEST(Convert24, DocumentedValues)
{
    const Tav8u src[6] = {0xFF, 0xFF, 0xFF, 0x00, 0x00, 0x80};
    Tav32s s[2];
    Tav32u u[2];
    Tav32f f[2];
    ASSERT_EQ(tavsConvert_24s32s(src, s, 2), StatusOk);
    EXPECT_EQ(s[0], -1);
    EXPECT_EQ(s[1], -8388608);
    ASSERT_EQ(tavsConvert_24u32u(src, u, 2), StatusOk);
    EXPECT_EQ(u[0], 16777215u);
    EXPECT_EQ(u[1], 8388608u);
    // The integer value, not a fraction of full scale.
    ASSERT_EQ(tavsConvert_24s32f(src, f, 2), StatusOk);
    EXPECT_EQ(f[0], -1.0f);
    EXPECT_EQ(f[1], -8388608.0f);
    ASSERT_EQ(tavsConvert_24u32f(src, f, 2), StatusOk);
    EXPECT_EQ(f[0], 16777215.0f);
}

template <class S, class Fn> void check_int_to24(Fn fn, int64_t lo, int64_t hi)
{
    tt::Rng r(2424 + sizeof(S));
    for (int sf = -40; sf <= 70; ++sf) {
        auto call = [&](const void* s, void* d, int len) {
            return fn(static_cast<const S*>(s), static_cast<Tav8u*>(d), len, sf);
        };
        auto ref = [&](S v) { return ct::make24(ct::ref_scale(int64_t(v), sf, 31, 31, 1, lo, hi)); };
        if (sf == 0) {
            ct::check_errors<S, B3>(call);
            ct::sweep<S, B3>(tt::random_vector<S>(r, 200), call, ref);
        }
        auto pool = tt::random_vector<S>(r, 300);
        if (sf >= 1 && sf <= 30)
            for (size_t i = 0; i < pool.size(); i += 4)
                pool[i] = S((uint64_t(r.range(0, 3)) << sf) + (uint64_t(1) << (sf - 1)));
        std::vector<B3> dst(pool.size());
        ASSERT_EQ(fn(pool.data(), reinterpret_cast<Tav8u*>(dst.data()), int(pool.size()), sf), StatusOk);
        for (size_t i = 0; i < pool.size(); ++i) {
            const B3 want = ref(pool[i]);
            ASSERT_EQ(std::memcmp(&want, &dst[i], 3), 0) << "sf " << sf << " value " << int64_t(pool[i]);
        }
    }
}

TEST(Convert24, ScaledFromInt)
{
    check_int_to24<Tav32s>(tavsConvert_32s24s_Sfs, -8388608, 8388607);
    check_int_to24<Tav32u>(tavsConvert_32u24u_Sfs, 0, 16777215);
    // Right counts stop at 31.
    const Tav32s s[2] = {INT32_MIN, INT32_MAX};
    const Tav32u u[1] = {0xFFFFFFFFu};
    Tav8u d[6];
    ASSERT_EQ(tavsConvert_32s24s_Sfs(s, d, 2, 50), StatusOk);
    EXPECT_EQ(ct::as24s(ct::get<B3>(d, 0)), -1);
    EXPECT_EQ(ct::as24s(ct::get<B3>(d, 1)), 1);
    ASSERT_EQ(tavsConvert_32u24u_Sfs(u, d, 1, INT_MAX), StatusOk);
    EXPECT_EQ(ct::as24u(ct::get<B3>(d, 0)), 2u);
    // A left scale saturates, -1 included.
    const Tav32s m[2] = {-1, 1};
    ASSERT_EQ(tavsConvert_32s24s_Sfs(m, d, 2, -30), StatusOk);
    EXPECT_EQ(ct::as24s(ct::get<B3>(d, 0)), -8388608);
    EXPECT_EQ(ct::as24s(ct::get<B3>(d, 1)), 8388607);
    ASSERT_EQ(tavsConvert_32s24s_Sfs(m, d, 2, -23), StatusOk);
    EXPECT_EQ(ct::as24s(ct::get<B3>(d, 0)), -8388608);
    EXPECT_EQ(ct::as24s(ct::get<B3>(d, 1)), 8388607);
    ASSERT_EQ(tavsConvert_32s24s_Sfs(m, d, 2, -22), StatusOk);
    EXPECT_EQ(ct::as24s(ct::get<B3>(d, 0)), -4194304);
}

// 32f to 24 bits: the factor sits in the exponent field of 1.0f, the scale
// clamped to -126..127 (127 gives a zero factor); nearest, ties to even.
int64_t ref_f24(float x, int sf, double lo, double hi)
{
    float p = x;
    if (sf != 0) {
        const int s = sf < -126 ? -126 : (sf > 127 ? 127 : sf);
        p = x * (s == 127 ? 0.0f : std::ldexp(1.0f, -s));
    }
    double d = double(p);
    d = d < lo ? lo : (d > hi ? hi : d);
    return int64_t(std::nearbyint(d));
}

template <class Fn> void check_f24(Fn fn, double lo, double hi)
{
    tt::Rng r{uint64_t(hi)};
    for (int sf :
         {INT_MIN, -200, -127, -126, -40, -10, -1, 0, 1, 2, 10, 23, 40, 100, 126, 127, 128, INT_MAX}) {
        auto call = [&](const void* s, void* d, int len) {
            return fn(static_cast<const Tav32f*>(s), static_cast<Tav8u*>(d), len, sf);
        };
        auto ref = [&](float x) { return ct::make24(ref_f24(x, sf, lo, hi)); };
        if (sf == 0 || sf == 2) ct::check_errors<Tav32f, B3>(call);
        ct::sweep<Tav32f, B3>(ct::float_pool(r, 200, float(hi)), call, ref, sf == 0 ? 70 : 16);
    }
}

TEST(Convert24, ScaledFromFloat)
{
    check_f24(tavsConvert_32f24s_Sfs, -8388608.0, 8388607.0);
    check_f24(tavsConvert_32f24u_Sfs, 0.0, 16777215.0);
    const float src[6] = {2.5f, 3.5f, -2.5f, 8388607.5f, -1e9f, 1e-36f};
    Tav8u d[18];
    ASSERT_EQ(tavsConvert_32f24s_Sfs(src, d, 6, 0), StatusOk);
    EXPECT_EQ(ct::as24s(ct::get<B3>(d, 0)), 2);
    EXPECT_EQ(ct::as24s(ct::get<B3>(d, 1)), 4);
    EXPECT_EQ(ct::as24s(ct::get<B3>(d, 2)), -2);
    EXPECT_EQ(ct::as24s(ct::get<B3>(d, 3)), 8388607);
    EXPECT_EQ(ct::as24s(ct::get<B3>(d, 4)), -8388608);
    // The factor stops at 2^126, so 1e-36 only reaches about 85.
    ASSERT_EQ(tavsConvert_32f24s_Sfs(src, d, 6, INT_MIN), StatusOk);
    EXPECT_EQ(ct::as24s(ct::get<B3>(d, 0)), 8388607);
    EXPECT_EQ(ct::as24s(ct::get<B3>(d, 5)), 85);
    ASSERT_EQ(tavsConvert_32f24u_Sfs(src, d, 6, 1), StatusOk);
    EXPECT_EQ(ct::as24u(ct::get<B3>(d, 0)), 1u); // 1.25
    EXPECT_EQ(ct::as24u(ct::get<B3>(d, 1)), 2u); // 1.75
    EXPECT_EQ(ct::as24u(ct::get<B3>(d, 2)), 0u);
}

// The tie is compared explicitly after the product: the caller's rounding
// direction does not move it.
TEST(Convert24, TieIgnoresCallerRounding)
{
    const float src[2] = {2.5f, -3.5f};
    Tav8u d[6];
    const int old = std::fegetround();
    std::fesetround(FE_UPWARD);
    const Status st = tavsConvert_32f24s_Sfs(src, d, 2, 0);
    std::fesetround(old);
    ASSERT_EQ(st, StatusOk);
    EXPECT_EQ(ct::as24s(ct::get<B3>(d, 0)), 2);
    EXPECT_EQ(ct::as24s(ct::get<B3>(d, 1)), -4);
}

} // namespace

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "convert_check.h"
#include "tavs.h"
#include "test_util.h"

namespace {

using ct::B3;

Tav16s ref_join16(float x)
{
    if (x > 1.0f) return 32767;
    if (x < -1.0f) return -32768;
    float y = 32767.5f * x;
    y = y - 0.5f;
    return Tav16s(std::nearbyint(y));
}
int32_t ref_join24(float x)
{
    if (x > 1.0f) return 8388607;
    if (x < -1.0f) return -8388608;
    return int32_t(std::nearbyint(8388607.5 * double(x) - 0.5));
}
float ref_split16(Tav16s v)
{
    float y = float(v) * 3.0518044e-5f;
    return y + 1.5259022e-5f;
}
float ref_split24(int32_t v) { return float(double(v) * 1.19209296656209e-07 + 5.96046483281045e-08); }

std::vector<float> samples(tt::Rng& r, size_t n)
{
    std::vector<float> v(n);
    for (auto& x : v) {
        switch (r.next() % 6) {
        case 0:
            x = float(r.range(-2, 2)) * 0.5f;
            break;
        case 1:
            x = float(r.uniform(-1.3, 1.3));
            break;
        // Values whose scaled form is a tie k + 0.5.
        case 2:
            x = float((double(r.range(-32768, 32767)) + 1.0) / 32767.5);
            break;
        case 3:
            x = std::nextafter(r.next() % 2 ? 1.0f : -1.0f, 0.0f);
            break;
        default:
            x = float(r.uniform(-1.0, 1.0));
        }
    }
    return v;
}

TEST(JoinSplit, JoinInterleavesAndScales)
{
    tt::Rng r(77);
    for (int nCh = 1; nCh <= 5; ++nCh) {
        for (int len : {1, 2, 7, 16, 33}) {
            std::vector<std::vector<float>> ch(static_cast<size_t>(nCh));
            std::vector<const Tav32f*> ptrs;
            for (auto& c : ch) {
                c = samples(r, size_t(len));
                ptrs.push_back(c.data());
            }
            tt::Guarded<Tav16s> d16(size_t(nCh * len), 1);
            tt::Guarded<B3> d24(size_t(nCh * len), 3);
            ASSERT_EQ(tavsJoinScaled_32f16s_D2L(ptrs.data(), nCh, len, d16.data()), StatusOk);
            ASSERT_EQ(tavsJoinScaled_32f24s_D2L(ptrs.data(), nCh, len, reinterpret_cast<Tav8u*>(d24.data())),
                      StatusOk);
            for (int i = 0; i < len; ++i)
                for (int c = 0; c < nCh; ++c) {
                    const size_t k = size_t(i * nCh + c);
                    const float x = ch[size_t(c)][size_t(i)];
                    ASSERT_EQ(ct::get<Tav16s>(d16.data(), k), ref_join16(x)) << x;
                    ASSERT_EQ(ct::as24s(ct::get<B3>(d24.data(), k)), ref_join24(x)) << x;
                }
            EXPECT_TRUE(d16.borders_intact());
            EXPECT_TRUE(d24.borders_intact());
        }
    }
}

TEST(JoinSplit, JoinDocumentedValues)
{
    const float a[7] = {0.0f, 1.0f, -1.0f, 1.5f, -7.0f, std::numeric_limits<float>::infinity(), 0.5f};
    const Tav32f* p[1] = {a};
    Tav16s d[7];
    ASSERT_EQ(tavsJoinScaled_32f16s_D2L(p, 1, 7, d), StatusOk);
    EXPECT_EQ(d[0], 0); // -0.5 goes to the even neighbour
    EXPECT_EQ(d[1], 32767);
    EXPECT_EQ(d[2], -32768);
    EXPECT_EQ(d[3], 32767);
    EXPECT_EQ(d[4], -32768);
    EXPECT_EQ(d[5], 32767);
    EXPECT_EQ(d[6], 16383); // 32767.5 * 0.5 - 0.5 = 16383.25
    Tav8u w[21];
    ASSERT_EQ(tavsJoinScaled_32f24s_D2L(p, 1, 7, w), StatusOk);
    EXPECT_EQ(ct::as24s(ct::get<B3>(w, 0)), 0);
    EXPECT_EQ(ct::as24s(ct::get<B3>(w, 1)), 8388607);
    EXPECT_EQ(ct::as24s(ct::get<B3>(w, 2)), -8388608);
}

TEST(JoinSplit, SplitDeinterleavesAndScales)
{
    tt::Rng r(78);
    for (int nCh = 1; nCh <= 5; ++nCh) {
        for (int len : {1, 3, 8, 31}) {
            auto s16 = tt::random_vector<Tav16s>(r, size_t(nCh * len));
            std::vector<B3> s24(size_t(nCh * len));
            for (auto& e : s24)
                e = ct::make24(int64_t(r.next()));
            std::vector<tt::Guarded<Tav32f>> out16, out24;
            std::vector<Tav32f*> p16, p24;
            for (int c = 0; c < nCh; ++c) {
                out16.emplace_back(size_t(len), size_t(c));
                out24.emplace_back(size_t(len), size_t(c) * 4);
            }
            for (int c = 0; c < nCh; ++c) {
                p16.push_back(out16[size_t(c)].data());
                p24.push_back(out24[size_t(c)].data());
            }
            ASSERT_EQ(tavsSplitScaled_16s32f_D2L(s16.data(), p16.data(), nCh, len), StatusOk);
            ASSERT_EQ(
                tavsSplitScaled_24s32f_D2L(reinterpret_cast<const Tav8u*>(s24.data()), p24.data(), nCh, len),
                StatusOk);
            for (int c = 0; c < nCh; ++c) {
                for (int i = 0; i < len; ++i) {
                    const size_t k = size_t(i * nCh + c);
                    const float a = ct::get<Tav32f>(p16[size_t(c)], size_t(i)), b = ref_split16(s16[k]);
                    ASSERT_EQ(ct::bits_of(a), ct::bits_of(b));
                    const float e = ct::get<Tav32f>(p24[size_t(c)], size_t(i)),
                                f = ref_split24(ct::as24s(s24[k]));
                    ASSERT_EQ(ct::bits_of(e), ct::bits_of(f));
                }
                EXPECT_TRUE(out16[size_t(c)].borders_intact());
                EXPECT_TRUE(out24[size_t(c)].borders_intact());
            }
        }
    }
}

// The full range maps onto -1..1 symmetrically, and back.
TEST(JoinSplit, RoundTrip)
{
    const Tav16s s[3] = {-32768, 32767, 0};
    float f[3];
    Tav32f* p[1] = {f};
    ASSERT_EQ(tavsSplitScaled_16s32f_D2L(s, p, 1, 3), StatusOk);
    EXPECT_NEAR(f[0], -1.0f, 1e-6f);
    EXPECT_NEAR(f[1], 1.0f, 1e-6f);
    EXPECT_NEAR(f[2], 1.5259022e-5f, 1e-12f);
    std::vector<Tav16s> all(65536), back(65536);
    for (int i = 0; i < 65536; ++i)
        all[size_t(i)] = Tav16s(i - 32768);
    std::vector<float> mid(65536);
    Tav32f* m[1] = {mid.data()};
    const Tav32f* cm[1] = {mid.data()};
    ASSERT_EQ(tavsSplitScaled_16s32f_D2L(all.data(), m, 1, 65536), StatusOk);
    ASSERT_EQ(tavsJoinScaled_32f16s_D2L(cm, 1, 65536, back.data()), StatusOk);
    for (int i = 0; i < 65536; ++i)
        ASSERT_EQ(back[size_t(i)], all[size_t(i)]);
}

// The interleaved vector first, then both counts, then the channel array and
// each of its pointers; nothing is written on error.
TEST(JoinSplit, CheckOrder)
{
    float a[4] = {0, 0, 0, 0}, b[4] = {0, 0, 0, 0};
    const Tav32f* src[2] = {a, b};
    const Tav32f* srcHole[2] = {a, nullptr};
    tt::Guarded<Tav16s> d(8);
    tt::Guarded<B3> d3(8);
    auto j16 = [&](const Tav32f* const* s, int n, int l, Tav16s* o) {
        return tavsJoinScaled_32f16s_D2L(s, n, l, o);
    };
    auto j24 = [&](const Tav32f* const* s, int n, int l, Tav8u* o) {
        return tavsJoinScaled_32f24s_D2L(s, n, l, o);
    };
    Tav8u* d24 = reinterpret_cast<Tav8u*>(d3.data());
    EXPECT_EQ(j16(src, 2, 4, nullptr), ErrNullPtr);
    EXPECT_EQ(j16(nullptr, 0, 0, nullptr), ErrNullPtr);
    EXPECT_EQ(j16(nullptr, 0, 4, d.data()), ErrSize);
    EXPECT_EQ(j16(nullptr, 2, 0, d.data()), ErrSize);
    EXPECT_EQ(j16(srcHole, -1, 4, d.data()), ErrSize);
    EXPECT_EQ(j16(nullptr, 2, 4, d.data()), ErrNullPtr);
    EXPECT_EQ(j16(srcHole, 2, 4, d.data()), ErrNullPtr);
    EXPECT_EQ(j24(src, 2, 4, nullptr), ErrNullPtr);
    EXPECT_EQ(j24(nullptr, 2, 0, d24), ErrSize);
    EXPECT_EQ(j24(nullptr, 2, 4, d24), ErrNullPtr);
    EXPECT_EQ(j24(srcHole, 2, 4, d24), ErrNullPtr);
    EXPECT_TRUE(d.untouched());
    EXPECT_TRUE(d3.untouched());

    tt::Guarded<Tav32f> o1(4), o2(4);
    Tav32f* dst[2] = {o1.data(), o2.data()};
    Tav32f* dstHole[2] = {o1.data(), nullptr};
    const Tav16s s16[8] = {1, 2, 3, 4, 5, 6, 7, 8};
    const Tav8u s24[24] = {};
    EXPECT_EQ(tavsSplitScaled_16s32f_D2L(nullptr, dst, 2, 4), ErrNullPtr);
    EXPECT_EQ(tavsSplitScaled_16s32f_D2L(nullptr, nullptr, 0, 0), ErrNullPtr);
    EXPECT_EQ(tavsSplitScaled_16s32f_D2L(s16, nullptr, 0, 4), ErrSize);
    EXPECT_EQ(tavsSplitScaled_16s32f_D2L(s16, dstHole, 2, -3), ErrSize);
    EXPECT_EQ(tavsSplitScaled_16s32f_D2L(s16, nullptr, 2, 4), ErrNullPtr);
    EXPECT_EQ(tavsSplitScaled_16s32f_D2L(s16, dstHole, 2, 4), ErrNullPtr);
    EXPECT_EQ(tavsSplitScaled_24s32f_D2L(nullptr, dst, 2, 4), ErrNullPtr);
    EXPECT_EQ(tavsSplitScaled_24s32f_D2L(s24, nullptr, 2, 0), ErrSize);
    EXPECT_EQ(tavsSplitScaled_24s32f_D2L(s24, nullptr, 2, 4), ErrNullPtr);
    EXPECT_EQ(tavsSplitScaled_24s32f_D2L(s24, dstHole, 2, 4), ErrNullPtr);
    EXPECT_TRUE(o1.untouched());
    EXPECT_TRUE(o2.untouched());
}

} // namespace

// Real floating FIR records: sizes, outputs against a long-double
// convolution on the direct and the real-FFT path, streaming, taps, delay
// lines, errors; the 32s-tap record; the 32f stream record.
#include <gtest/gtest.h>

#include "fir_float_tests.h"

namespace {

const firt::Kind<Tav32f, Tav32f> k32f = {
    "_32f", 0, false, false,
    [](int n, int* s) { return tavsFIRGetStateSize_32f(n, s); },
    [](void** pp, const Tav32f* t, int n, const Tav32f* d, Tav8u* b) { return tavsFIRInit_32f(reinterpret_cast<FIRState_32f**>(pp), t, n, d, b); },
    [](void** pp, const Tav32f* t, int n, const Tav32f* d) { return tavsFIRInitAlloc_32f(reinterpret_cast<FIRState_32f**>(pp), t, n, d); },
    [](void* p) { return tavsFIRFree_32f(static_cast<FIRState_32f*>(p)); },
    [](const void* p, Tav32f* t) { return tavsFIRGetTaps_32f(static_cast<const FIRState_32f*>(p), t); },
    [](const Tav32f* t, void* p) { return tavsFIRSetTaps_32f(t, static_cast<FIRState_32f*>(p)); },
    [](const void* p, Tav32f* d) { return tavsFIRGetDlyLine_32f(static_cast<const FIRState_32f*>(p), d); },
    [](void* p, const Tav32f* d) { return tavsFIRSetDlyLine_32f(static_cast<FIRState_32f*>(p), d); },
    [](const Tav32f* s, Tav32f* d, int l, void* p, int) { return tavsFIR_32f(s, d, l, static_cast<FIRState_32f*>(p)); },
    [](Tav32f* s, int l, void* p, int) { return tavsFIR_32f_I(s, l, static_cast<FIRState_32f*>(p)); },
    [](Tav32f x, Tav32f* y, void* p, int) { return tavsFIROne_32f(x, y, static_cast<FIRState_32f*>(p)); }};

const firt::Kind<Tav32f, Tav16s> k32f_16s = {
    "32f_16s", 0, true, false,
    [](int n, int* s) { return tavsFIRGetStateSize32f_16s(n, s); },
    [](void** pp, const Tav32f* t, int n, const Tav16s* d, Tav8u* b) { return tavsFIRInit32f_16s(reinterpret_cast<FIRState32f_16s**>(pp), t, n, d, b); },
    [](void** pp, const Tav32f* t, int n, const Tav16s* d) { return tavsFIRInitAlloc32f_16s(reinterpret_cast<FIRState32f_16s**>(pp), t, n, d); },
    [](void* p) { return tavsFIRFree32f_16s(static_cast<FIRState32f_16s*>(p)); },
    [](const void* p, Tav32f* t) { return tavsFIRGetTaps32f_16s(static_cast<const FIRState32f_16s*>(p), t); },
    [](const Tav32f* t, void* p) { return tavsFIRSetTaps32f_16s(t, static_cast<FIRState32f_16s*>(p)); },
    [](const void* p, Tav16s* d) { return tavsFIRGetDlyLine32f_16s(static_cast<const FIRState32f_16s*>(p), d); },
    [](void* p, const Tav16s* d) { return tavsFIRSetDlyLine32f_16s(static_cast<FIRState32f_16s*>(p), d); },
    [](const Tav16s* s, Tav16s* d, int l, void* p, int sf) { return tavsFIR32f_16s_Sfs(s, d, l, static_cast<FIRState32f_16s*>(p), sf); },
    [](Tav16s* s, int l, void* p, int sf) { return tavsFIR32f_16s_ISfs(s, l, static_cast<FIRState32f_16s*>(p), sf); },
    [](Tav16s x, Tav16s* y, void* p, int sf) { return tavsFIROne32f_16s_Sfs(x, y, static_cast<FIRState32f_16s*>(p), sf); }};

const firt::Kind<Tav64f, Tav64f> k64f = {
    "_64f", 2, false, false,
    [](int n, int* s) { return tavsFIRGetStateSize_64f(n, s); },
    [](void** pp, const Tav64f* t, int n, const Tav64f* d, Tav8u* b) { return tavsFIRInit_64f(reinterpret_cast<FIRState_64f**>(pp), t, n, d, b); },
    [](void** pp, const Tav64f* t, int n, const Tav64f* d) { return tavsFIRInitAlloc_64f(reinterpret_cast<FIRState_64f**>(pp), t, n, d); },
    [](void* p) { return tavsFIRFree_64f(static_cast<FIRState_64f*>(p)); },
    [](const void* p, Tav64f* t) { return tavsFIRGetTaps_64f(static_cast<const FIRState_64f*>(p), t); },
    [](const Tav64f* t, void* p) { return tavsFIRSetTaps_64f(t, static_cast<FIRState_64f*>(p)); },
    [](const void* p, Tav64f* d) { return tavsFIRGetDlyLine_64f(static_cast<const FIRState_64f*>(p), d); },
    [](void* p, const Tav64f* d) { return tavsFIRSetDlyLine_64f(static_cast<FIRState_64f*>(p), d); },
    [](const Tav64f* s, Tav64f* d, int l, void* p, int) { return tavsFIR_64f(s, d, l, static_cast<FIRState_64f*>(p)); },
    [](Tav64f* s, int l, void* p, int) { return tavsFIR_64f_I(s, l, static_cast<FIRState_64f*>(p)); },
    [](Tav64f x, Tav64f* y, void* p, int) { return tavsFIROne_64f(x, y, static_cast<FIRState_64f*>(p)); }};

const firt::Kind<Tav64f, Tav32f> k64f_32f = {
    "64f_32f", 2, false, false,
    [](int n, int* s) { return tavsFIRGetStateSize64f_32f(n, s); },
    [](void** pp, const Tav64f* t, int n, const Tav32f* d, Tav8u* b) { return tavsFIRInit64f_32f(reinterpret_cast<FIRState64f_32f**>(pp), t, n, d, b); },
    [](void** pp, const Tav64f* t, int n, const Tav32f* d) { return tavsFIRInitAlloc64f_32f(reinterpret_cast<FIRState64f_32f**>(pp), t, n, d); },
    [](void* p) { return tavsFIRFree64f_32f(static_cast<FIRState64f_32f*>(p)); },
    [](const void* p, Tav64f* t) { return tavsFIRGetTaps64f_32f(static_cast<const FIRState64f_32f*>(p), t); },
    [](const Tav64f* t, void* p) { return tavsFIRSetTaps64f_32f(t, static_cast<FIRState64f_32f*>(p)); },
    [](const void* p, Tav32f* d) { return tavsFIRGetDlyLine64f_32f(static_cast<const FIRState64f_32f*>(p), d); },
    [](void* p, const Tav32f* d) { return tavsFIRSetDlyLine64f_32f(static_cast<FIRState64f_32f*>(p), d); },
    [](const Tav32f* s, Tav32f* d, int l, void* p, int) { return tavsFIR64f_32f(s, d, l, static_cast<FIRState64f_32f*>(p)); },
    [](Tav32f* s, int l, void* p, int) { return tavsFIR64f_32f_I(s, l, static_cast<FIRState64f_32f*>(p)); },
    [](Tav32f x, Tav32f* y, void* p, int) { return tavsFIROne64f_32f(x, y, static_cast<FIRState64f_32f*>(p)); }};

const firt::Kind<Tav64f, Tav32s> k64f_32s = {
    "64f_32s", 2, true, false,
    [](int n, int* s) { return tavsFIRGetStateSize64f_32s(n, s); },
    [](void** pp, const Tav64f* t, int n, const Tav32s* d, Tav8u* b) { return tavsFIRInit64f_32s(reinterpret_cast<FIRState64f_32s**>(pp), t, n, d, b); },
    [](void** pp, const Tav64f* t, int n, const Tav32s* d) { return tavsFIRInitAlloc64f_32s(reinterpret_cast<FIRState64f_32s**>(pp), t, n, d); },
    [](void* p) { return tavsFIRFree64f_32s(static_cast<FIRState64f_32s*>(p)); },
    [](const void* p, Tav64f* t) { return tavsFIRGetTaps64f_32s(static_cast<const FIRState64f_32s*>(p), t); },
    [](const Tav64f* t, void* p) { return tavsFIRSetTaps64f_32s(t, static_cast<FIRState64f_32s*>(p)); },
    [](const void* p, Tav32s* d) { return tavsFIRGetDlyLine64f_32s(static_cast<const FIRState64f_32s*>(p), d); },
    [](void* p, const Tav32s* d) { return tavsFIRSetDlyLine64f_32s(static_cast<FIRState64f_32s*>(p), d); },
    [](const Tav32s* s, Tav32s* d, int l, void* p, int sf) { return tavsFIR64f_32s_Sfs(s, d, l, static_cast<FIRState64f_32s*>(p), sf); },
    [](Tav32s* s, int l, void* p, int sf) { return tavsFIR64f_32s_ISfs(s, l, static_cast<FIRState64f_32s*>(p), sf); },
    [](Tav32s x, Tav32s* y, void* p, int sf) { return tavsFIROne64f_32s_Sfs(x, y, static_cast<FIRState64f_32s*>(p), sf); }};

const firt::Kind<Tav64f, Tav16s> k64f_16s = {
    "64f_16s", 2, true, false,
    [](int n, int* s) { return tavsFIRGetStateSize64f_16s(n, s); },
    [](void** pp, const Tav64f* t, int n, const Tav16s* d, Tav8u* b) { return tavsFIRInit64f_16s(reinterpret_cast<FIRState64f_16s**>(pp), t, n, d, b); },
    [](void** pp, const Tav64f* t, int n, const Tav16s* d) { return tavsFIRInitAlloc64f_16s(reinterpret_cast<FIRState64f_16s**>(pp), t, n, d); },
    [](void* p) { return tavsFIRFree64f_16s(static_cast<FIRState64f_16s*>(p)); },
    [](const void* p, Tav64f* t) { return tavsFIRGetTaps64f_16s(static_cast<const FIRState64f_16s*>(p), t); },
    [](const Tav64f* t, void* p) { return tavsFIRSetTaps64f_16s(t, static_cast<FIRState64f_16s*>(p)); },
    [](const void* p, Tav16s* d) { return tavsFIRGetDlyLine64f_16s(static_cast<const FIRState64f_16s*>(p), d); },
    [](void* p, const Tav16s* d) { return tavsFIRSetDlyLine64f_16s(static_cast<FIRState64f_16s*>(p), d); },
    [](const Tav16s* s, Tav16s* d, int l, void* p, int sf) { return tavsFIR64f_16s_Sfs(s, d, l, static_cast<FIRState64f_16s*>(p), sf); },
    [](Tav16s* s, int l, void* p, int sf) { return tavsFIR64f_16s_ISfs(s, l, static_cast<FIRState64f_16s*>(p), sf); },
    [](Tav16s x, Tav16s* y, void* p, int sf) { return tavsFIROne64f_16s_Sfs(x, y, static_cast<FIRState64f_16s*>(p), sf); }};


struct Foreign {
    alignas(64) unsigned char b[4096] = {1, 0, 0, 0};
};

TEST(FirReal, StateSizes)
{
    firt::check_sizes(k32f);
    firt::check_sizes(k64f);
    firt::check_sizes(k32f_16s);
    firt::check_sizes(k64f_32f);
    firt::check_sizes(k64f_32s);
    firt::check_sizes(k64f_16s);
    for (int n : {1, 2, 31, 32, 300, 5000}) {
        int a = 0, b = 0;
        ASSERT_EQ(tavsFIRStreamGetStateSize_32f(n, &a), StatusOk);
        ASSERT_EQ(tavsFIRGetStateSize_32f(n, &b), StatusOk);
        EXPECT_EQ(a, b);
        ASSERT_EQ(tavsFIRGetStateSize_32s(n, &a), StatusOk);
        EXPECT_EQ(a, firt::a16(24 * n + 32) + firt::a16(8 * n) + 32975);
    }
    int s = 0;
    EXPECT_EQ(tavsFIRGetStateSize_32s(0, &s), ErrFilterLen);
    EXPECT_EQ(tavsFIRStreamGetStateSize_32f(0, &s), ErrFilterLen);
}

TEST(FirReal, BlocksAgainstReference)
{
    const std::vector<int> taps = {1, 5, 63, 64, 200, 1000}, lens = {1, 511, 512, 4096, 4608};
    firt::check_blocks(k32f, taps, lens, 1);
    firt::check_blocks(k64f, taps, lens, 2);
}

TEST(FirReal, ConvertingBlocksAgainstReference)
{
    const std::vector<int> taps = {1, 5, 64}, lens = {1, 511, 512, 2100, 4608};
    firt::check_blocks(k32f_16s, taps, lens, 3);
    firt::check_blocks(k64f_32f, taps, lens, 4);
    firt::check_blocks(k64f_32s, taps, lens, 5);
    firt::check_blocks(k64f_16s, taps, lens, 6);
}

TEST(FirReal, PiecesOneSampleAndDelayContinueOneSignal)
{
    for (int n : {1, 5, 70}) {
        firt::check_stream(k32f, n, 10 + uint64_t(n));
        firt::check_stream(k64f, n, 20 + uint64_t(n));
        firt::check_stream(k32f_16s, n, 30 + uint64_t(n));
        firt::check_stream(k64f_32f, n, 40 + uint64_t(n));
        firt::check_stream(k64f_32s, n, 50 + uint64_t(n));
        firt::check_stream(k64f_16s, n, 60 + uint64_t(n));
    }
}

TEST(FirReal, ErrorsAndTags)
{
    Foreign f;
    firt::check_errors(k32f, f.b);
    firt::check_errors(k64f, f.b);
    firt::check_errors(k32f_16s, f.b);
    firt::check_errors(k64f_32f, f.b);
    firt::check_errors(k64f_32s, f.b);
    firt::check_errors(k64f_16s, f.b);
}

TEST(FirReal, TapsGetAndSet)
{
    for (int n : {3, 40, 100}) {
        firt::check_taps(k32f, n, 700);
        firt::check_taps(k64f, n, 700);
        firt::check_taps(k32f_16s, n, 700);
        firt::check_taps(k64f_32f, n, 700);
        firt::check_taps(k64f_32s, n, 700);
        firt::check_taps(k64f_16s, n, 700);
    }
}

TEST(FirReal, NullDelayIsSilence)
{
    firt::check_silence(k32f, 70);
    firt::check_silence(k64f, 70);
    firt::check_silence(k32f_16s, 70);
    firt::check_silence(k64f_32f, 70);
    firt::check_silence(k64f_32s, 70);
    firt::check_silence(k64f_16s, 70);
}

template <class X>
std::vector<X> direct_emulation(const std::vector<X>& taps, const std::vector<X>& dly, const std::vector<X>& x)
{
    const int n = int(taps.size());
    std::vector<X> rt(taps.rbegin(), taps.rend()), ext(size_t(n) + x.size()), y(x.size());
    for (int i = 0; i < n; ++i) ext[size_t(i)] = dly[size_t(n - 1 - i)];
    std::copy(x.begin(), x.end(), ext.begin() + n);
    for (size_t j = 0; j < x.size(); ++j) tavs::fir::correlate_scalar(rt.data(), n, ext.data() + j + 1, &y[j], 1);
    return y;
}
template <class X> bool all_same(const X* a, const X* b, size_t n)
{
    for (size_t i = 0; i < n; ++i)
        if (!tt::same_bits(a[i], b[i])) return false;
    return true;
}

TEST(FirReal, PathChoiceAndRecordFields)
{
    tt::Rng r(5);
    // One tap: blockLimit 5, the delay value no output uses.
    {
        const std::vector<Tav32f> h = {2.0f};
        const std::vector<Tav32f> d = {7.0f};
        firt::Rec<Tav32f, Tav32f> rc(k32f, h, d.data());
        EXPECT_EQ(rc.rec()->blockLimit, 5);
        EXPECT_EQ(rc.rec()->fftLen, -1);
        const Tav32f x[3] = {1, 2, 3};
        Tav32f y[3];
        ASSERT_EQ(tavsFIR_32f(x, y, 3, static_cast<FIRState_32f*>(rc.st)), StatusOk);
        EXPECT_EQ(y[0], 2.0f);
        EXPECT_EQ(y[2], 6.0f);
    }
    // 63 taps never prepare the FFT; 64 do with L = 256.
    for (int n : {63, 64}) {
        const auto h = firt::rnd_vec<Tav32f>(r, size_t(n), 0.1);
        firt::Rec<Tav32f, Tav32f> rc(k32f, h, nullptr);
        EXPECT_EQ(rc.rec()->fftLen, n == 64 ? 256 : -1);
        EXPECT_EQ(rc.rec()->blockLimit, ((n + 3) & ~3) + 1);
        EXPECT_EQ(rc.rec()->tag, 0x46493031);
    }
    {
        const auto h = firt::rnd_vec<Tav64f>(r, 32, 0.1);
        firt::Rec<Tav64f, Tav64f> rc(k64f, h, nullptr);
        EXPECT_EQ(rc.rec()->fftLen, 128);
        EXPECT_EQ(rc.rec()->tag, 0x46493133);
    }
    const int n = 64;
    const auto h = firt::rnd_vec<Tav32f>(r, n, 0.1);
    const auto dly = firt::rnd_vec<Tav32f>(r, n, 1.0);
    for (int len : {511, 512}) {
        const auto x = firt::rnd_vec<Tav32f>(r, size_t(len), 1.0);
        firt::Rec<Tav32f, Tav32f> rc(k32f, h, dly.data());
        std::vector<Tav32f> y(static_cast<size_t>(len));
        ASSERT_EQ(tavsFIR_32f(x.data(), y.data(), len, static_cast<FIRState_32f*>(rc.st)), StatusOk);
        EXPECT_EQ(all_same(y.data(), direct_emulation(h, dly, x).data(), size_t(len)), len == 511) << len;
    }
    for (int len : {4096, 4608}) {
        const auto x = firt::rnd_vec<Tav32f>(r, size_t(len), 1.0);
        const auto e = direct_emulation(h, dly, x);
        firt::Rec<Tav32f, Tav32f> rc(k32f, h, dly.data());
        std::vector<Tav32f> y = x;
        ASSERT_EQ(tavsFIR_32f_I(y.data(), len, static_cast<FIRState_32f*>(rc.st)), StatusOk);
        EXPECT_EQ(all_same(y.data(), e.data(), 4096), len == 4096);
        if (len == 4608) EXPECT_TRUE(all_same(y.data() + 4096, e.data() + 4096, 512));
        // src == dst on the out-of-place entry is the same in-place rule.
        firt::Rec<Tav32f, Tav32f> rc2(k32f, h, dly.data());
        std::vector<Tav32f> z = x;
        ASSERT_EQ(tavsFIR_32f(z.data(), z.data(), len, static_cast<FIRState_32f*>(rc2.st)), StatusOk);
        EXPECT_TRUE(all_same(z.data(), y.data(), size_t(len)));
        firt::Rec<Tav32f, Tav32f> rc3(k32f, h, dly.data());
        std::vector<Tav32f> w(static_cast<size_t>(len));
        ASSERT_EQ(tavsFIR_32f(x.data(), w.data(), len, static_cast<FIRState_32f*>(rc3.st)), StatusOk);
        EXPECT_FALSE(all_same(w.data(), e.data(), size_t(len)));
    }
}

TEST(FirReal, Taps32sRecord)
{
    tt::Rng r(17);
    for (int n : {1, 7, 40}) {
        std::vector<Tav32s> h(static_cast<size_t>(n));
        for (auto& v : h) v = Tav32s(r.range(-1000, 1000));
        const auto dly = firt::rnd_vec<Tav32s>(r, size_t(n), 100000.0);
        const auto x = firt::rnd_vec<Tav32s>(r, 1500, 100000.0);
        int sz = 0;
        ASSERT_EQ(tavsFIRGetStateSize_32s(n, &sz), StatusOk);
        std::vector<Tav8u> blk(size_t(sz) + 64, 0xCD);
        FIRState_32s* s = nullptr;
        ASSERT_EQ(tavsFIRInit_32s(&s, h.data(), n, dly.data(), blk.data() + 9), StatusOk);
        for (size_t i = size_t(sz) + 9; i < blk.size(); ++i) ASSERT_EQ(blk[i], 0xCD);
        auto* rec = reinterpret_cast<tavs::fir::State*>(s);
        EXPECT_EQ(rec->tag, 0x46493231);
        EXPECT_EQ(rec->fftLen, -1);
        EXPECT_EQ(rec->fftSpec, nullptr);
        std::vector<Tav32s> back(static_cast<size_t>(n));
        ASSERT_EQ(tavsFIRGetTaps_32s(s, back.data()), StatusOk);
        EXPECT_EQ(back, h);
        // Exact integer arithmetic in 64f: outputs equal the exact sums.
        std::vector<Tav32s> y(x.size());
        ASSERT_EQ(tavsFIR_32s_Sfs(x.data(), y.data(), 700, s, 1), StatusOk);
        for (int j = 0; j < 100; ++j) ASSERT_EQ(tavsFIROne_32s_Sfs(x[size_t(700 + j)], &y[size_t(700 + j)], s, 1), StatusOk);
        std::copy(x.begin() + 800, x.end(), y.begin() + 800);
        ASSERT_EQ(tavsFIR_32s_ISfs(y.data() + 800, 700, s, 1), StatusOk);
        const auto ref = firt::reference(h, dly, x);
        for (size_t j = 0; j < y.size(); ++j) {
            const long double e = ref[j].real() / 2;
            long double want = std::nearbyint(e);
            if (std::fabs(e - std::trunc(e)) == 0.5L) want = 2 * std::nearbyint(e / 2); // ties to even
            want = std::min<long double>(std::max<long double>(want, -2147483648.0L), 2147483647.0L);
            ASSERT_EQ(y[j], Tav32s(want)) << n << " " << j;
        }
        // The 64f_32s entries take the same record.
        ASSERT_EQ(tavsFIR64f_32s_Sfs(x.data(), y.data(), 10, reinterpret_cast<FIRState64f_32s*>(s), 0), StatusOk);
        ASSERT_EQ(tavsFIRSetTaps_32s(h.data(), s), StatusOk);
        Foreign f;
        EXPECT_EQ(tavsFIRSetTaps_32s(h.data(), reinterpret_cast<FIRState_32s*>(f.b)), ErrContextMismatch);
        EXPECT_EQ(tavsFIRGetTaps_32s(reinterpret_cast<FIRState_32s*>(f.b), back.data()), ErrContextMismatch);
        EXPECT_EQ(tavsFIRGetTaps_32s(s, nullptr), ErrNullPtr);
        EXPECT_EQ(tavsFIR_32s_Sfs(x.data(), y.data(), 0, s, 0), ErrSize);
        EXPECT_EQ(tavsFIR_32s_ISfs(y.data(), 5, reinterpret_cast<FIRState_32s*>(f.b), 0), ErrContextMismatch);
        EXPECT_EQ(tavsFIROne_32s_Sfs(1, nullptr, s, 0), ErrNullPtr);
        EXPECT_EQ(tavsFIRFree_32s(s), StatusOk);
        EXPECT_EQ(tavsFIRFree_32s(reinterpret_cast<FIRState_32s*>(f.b)), ErrContextMismatch);
    }
    std::vector<Tav8u> blk(100000);
    FIRState_32s* s = nullptr;
    const Tav32s t[2] = {1, 2};
    EXPECT_EQ(tavsFIRInit_32s(&s, nullptr, 2, nullptr, blk.data()), ErrNullPtr);
    EXPECT_EQ(tavsFIRInit_32s(&s, t, 0, nullptr, blk.data()), ErrFilterLen);
    EXPECT_EQ(tavsFIRInitAlloc_32s(&s, t, -1, nullptr), ErrFilterLen);
    const int fails = tt::for_each_alloc_failure([&]() {
        FIRState_32s* p = nullptr;
        const Status st = tavsFIRInitAlloc_32s(&p, t, 2, nullptr);
        if (st == ErrMemAlloc) return true;
        EXPECT_EQ(tavsFIRFree_32s(p), StatusOk);
        return false;
    });
    EXPECT_EQ(fails, 1);
}

TEST(FirReal, StreamRecord32f)
{
    tt::Rng r(23);
    for (int n : {1, 10, 64, 100}) {
        const auto h = firt::rnd_vec<Tav32f>(r, size_t(n), 0.3);
        int sz = 0;
        ASSERT_EQ(tavsFIRStreamGetStateSize_32f(n, &sz), StatusOk);
        std::vector<Tav8u> blk(size_t(sz) + 64, 0xCD);
        FIRState_32f* s = nullptr;
        ASSERT_EQ(tavsFIRStreamInit_32f(&s, h.data(), n, blk.data() + 5), StatusOk);
        for (size_t i = size_t(sz) + 5; i < blk.size(); ++i) ASSERT_EQ(blk[i], 0xCD);
        EXPECT_EQ(reinterpret_cast<tavs::fir::State*>(s)->tag, 0x46493333);
        const int len = 1000;
        const auto src = firt::rnd_vec<Tav32f>(r, size_t(len + n - 1), 1.0);
        std::vector<Tav32f> y(static_cast<size_t>(len));
        // Twice: nothing is remembered between calls.
        for (int rep = 0; rep < 2; ++rep) {
            ASSERT_EQ(tavsFIR_32f(src.data(), y.data(), len, s), StatusOk);
            std::vector<Tav32f> rt(h.rbegin(), h.rend()), e(static_cast<size_t>(len));
            tavs::fir::correlate_scalar(rt.data(), n, src.data(), e.data(), len);
            EXPECT_TRUE(all_same(y.data(), e.data(), size_t(len)));
        }
        // In place and the delay, taps and one-sample calls are refused.
        std::vector<Tav32f> z = src;
        EXPECT_EQ(tavsFIR_32f_I(z.data(), len, s), ErrContextMismatch);
        EXPECT_EQ(tavsFIR_32f(z.data(), z.data(), len, s), ErrContextMismatch);
        EXPECT_EQ(tavsFIRGetDlyLine_32f(s, z.data()), ErrContextMismatch);
        EXPECT_EQ(tavsFIRSetDlyLine_32f(s, z.data()), ErrContextMismatch);
        EXPECT_EQ(tavsFIRGetTaps_32f(s, z.data()), ErrContextMismatch);
        EXPECT_EQ(tavsFIRSetTaps_32f(h.data(), s), ErrContextMismatch);
        EXPECT_EQ(tavsFIROne_32f(1.0f, z.data(), s), ErrContextMismatch);
        EXPECT_EQ(tavsFIRFree_32f(s), StatusOk);
    }
    FIRState_32f* s = nullptr;
    const Tav32f t[2] = {1, 2};
    std::vector<Tav8u> blk(100000);
    EXPECT_EQ(tavsFIRStreamInit_32f(&s, t, 0, blk.data()), ErrFilterLen);
    EXPECT_EQ(tavsFIRStreamInit_32f(&s, t, 2, nullptr), ErrNullPtr);
    EXPECT_EQ(tavsFIRStreamInitAlloc_32f(&s, nullptr, 2), ErrNullPtr);
    const int fails = tt::for_each_alloc_failure([&]() {
        FIRState_32f* p = nullptr;
        const Status st = tavsFIRStreamInitAlloc_32f(&p, t, 2);
        if (st == ErrMemAlloc) return true;
        EXPECT_EQ(reinterpret_cast<tavs::fir::State*>(p)->isAllocated, 1);
        EXPECT_EQ(tavsFIRFree_32f(p), StatusOk);
        return false;
    });
    EXPECT_EQ(fails, 1);
}

} // namespace

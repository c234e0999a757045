// Complex floating FIR records: sizes, outputs against a long-double
// convolution on both paths, streaming, taps, delay lines, errors.
#include <gtest/gtest.h>

#include "fir_float_tests.h"

namespace {

const firt::Kind<Tav32fc, Tav32fc> k32fc = {
    "_32fc", 1, false, false,
    [](int n, int* s) { return tavsFIRGetStateSize_32fc(n, s); },
    [](void** pp, const Tav32fc* t, int n, const Tav32fc* d, Tav8u* b) { return tavsFIRInit_32fc(reinterpret_cast<FIRState_32fc**>(pp), t, n, d, b); },
    [](void** pp, const Tav32fc* t, int n, const Tav32fc* d) { return tavsFIRInitAlloc_32fc(reinterpret_cast<FIRState_32fc**>(pp), t, n, d); },
    [](void* p) { return tavsFIRFree_32fc(static_cast<FIRState_32fc*>(p)); },
    [](const void* p, Tav32fc* t) { return tavsFIRGetTaps_32fc(static_cast<const FIRState_32fc*>(p), t); },
    [](const Tav32fc* t, void* p) { return tavsFIRSetTaps_32fc(t, static_cast<FIRState_32fc*>(p)); },
    [](const void* p, Tav32fc* d) { return tavsFIRGetDlyLine_32fc(static_cast<const FIRState_32fc*>(p), d); },
    [](void* p, const Tav32fc* d) { return tavsFIRSetDlyLine_32fc(static_cast<FIRState_32fc*>(p), d); },
    [](const Tav32fc* s, Tav32fc* d, int l, void* p, int) { return tavsFIR_32fc(s, d, l, static_cast<FIRState_32fc*>(p)); },
    [](Tav32fc* s, int l, void* p, int) { return tavsFIR_32fc_I(s, l, static_cast<FIRState_32fc*>(p)); },
    [](Tav32fc x, Tav32fc* y, void* p, int) { return tavsFIROne_32fc(x, y, static_cast<FIRState_32fc*>(p)); }};

const firt::Kind<Tav32fc, Tav16sc> k32fc_16sc = {
    "32fc_16sc", 1, true, false,
    [](int n, int* s) { return tavsFIRGetStateSize32fc_16sc(n, s); },
    [](void** pp, const Tav32fc* t, int n, const Tav16sc* d, Tav8u* b) { return tavsFIRInit32fc_16sc(reinterpret_cast<FIRState32fc_16sc**>(pp), t, n, d, b); },
    [](void** pp, const Tav32fc* t, int n, const Tav16sc* d) { return tavsFIRInitAlloc32fc_16sc(reinterpret_cast<FIRState32fc_16sc**>(pp), t, n, d); },
    [](void* p) { return tavsFIRFree32fc_16sc(static_cast<FIRState32fc_16sc*>(p)); },
    [](const void* p, Tav32fc* t) { return tavsFIRGetTaps32fc_16sc(static_cast<const FIRState32fc_16sc*>(p), t); },
    [](const Tav32fc* t, void* p) { return tavsFIRSetTaps32fc_16sc(t, static_cast<FIRState32fc_16sc*>(p)); },
    [](const void* p, Tav16sc* d) { return tavsFIRGetDlyLine32fc_16sc(static_cast<const FIRState32fc_16sc*>(p), d); },
    [](void* p, const Tav16sc* d) { return tavsFIRSetDlyLine32fc_16sc(static_cast<FIRState32fc_16sc*>(p), d); },
    [](const Tav16sc* s, Tav16sc* d, int l, void* p, int sf) { return tavsFIR32fc_16sc_Sfs(s, d, l, static_cast<FIRState32fc_16sc*>(p), sf); },
    [](Tav16sc* s, int l, void* p, int sf) { return tavsFIR32fc_16sc_ISfs(s, l, static_cast<FIRState32fc_16sc*>(p), sf); },
    [](Tav16sc x, Tav16sc* y, void* p, int sf) { return tavsFIROne32fc_16sc_Sfs(x, y, static_cast<FIRState32fc_16sc*>(p), sf); }};

const firt::Kind<Tav64fc, Tav64fc> k64fc = {
    "_64fc", 3, false, false,
    [](int n, int* s) { return tavsFIRGetStateSize_64fc(n, s); },
    [](void** pp, const Tav64fc* t, int n, const Tav64fc* d, Tav8u* b) { return tavsFIRInit_64fc(reinterpret_cast<FIRState_64fc**>(pp), t, n, d, b); },
    [](void** pp, const Tav64fc* t, int n, const Tav64fc* d) { return tavsFIRInitAlloc_64fc(reinterpret_cast<FIRState_64fc**>(pp), t, n, d); },
    [](void* p) { return tavsFIRFree_64fc(static_cast<FIRState_64fc*>(p)); },
    [](const void* p, Tav64fc* t) { return tavsFIRGetTaps_64fc(static_cast<const FIRState_64fc*>(p), t); },
    [](const Tav64fc* t, void* p) { return tavsFIRSetTaps_64fc(t, static_cast<FIRState_64fc*>(p)); },
    [](const void* p, Tav64fc* d) { return tavsFIRGetDlyLine_64fc(static_cast<const FIRState_64fc*>(p), d); },
    [](void* p, const Tav64fc* d) { return tavsFIRSetDlyLine_64fc(static_cast<FIRState_64fc*>(p), d); },
    [](const Tav64fc* s, Tav64fc* d, int l, void* p, int) { return tavsFIR_64fc(s, d, l, static_cast<FIRState_64fc*>(p)); },
    [](Tav64fc* s, int l, void* p, int) { return tavsFIR_64fc_I(s, l, static_cast<FIRState_64fc*>(p)); },
    [](Tav64fc x, Tav64fc* y, void* p, int) { return tavsFIROne_64fc(x, y, static_cast<FIRState_64fc*>(p)); }};

const firt::Kind<Tav64fc, Tav32fc> k64fc_32fc = {
    "64fc_32fc", 3, false, false,
    [](int n, int* s) { return tavsFIRGetStateSize64fc_32fc(n, s); },
    [](void** pp, const Tav64fc* t, int n, const Tav32fc* d, Tav8u* b) { return tavsFIRInit64fc_32fc(reinterpret_cast<FIRState64fc_32fc**>(pp), t, n, d, b); },
    [](void** pp, const Tav64fc* t, int n, const Tav32fc* d) { return tavsFIRInitAlloc64fc_32fc(reinterpret_cast<FIRState64fc_32fc**>(pp), t, n, d); },
    [](void* p) { return tavsFIRFree64fc_32fc(static_cast<FIRState64fc_32fc*>(p)); },
    [](const void* p, Tav64fc* t) { return tavsFIRGetTaps64fc_32fc(static_cast<const FIRState64fc_32fc*>(p), t); },
    [](const Tav64fc* t, void* p) { return tavsFIRSetTaps64fc_32fc(t, static_cast<FIRState64fc_32fc*>(p)); },
    [](const void* p, Tav32fc* d) { return tavsFIRGetDlyLine64fc_32fc(static_cast<const FIRState64fc_32fc*>(p), d); },
    [](void* p, const Tav32fc* d) { return tavsFIRSetDlyLine64fc_32fc(static_cast<FIRState64fc_32fc*>(p), d); },
    [](const Tav32fc* s, Tav32fc* d, int l, void* p, int) { return tavsFIR64fc_32fc(s, d, l, static_cast<FIRState64fc_32fc*>(p)); },
    [](Tav32fc* s, int l, void* p, int) { return tavsFIR64fc_32fc_I(s, l, static_cast<FIRState64fc_32fc*>(p)); },
    [](Tav32fc x, Tav32fc* y, void* p, int) { return tavsFIROne64fc_32fc(x, y, static_cast<FIRState64fc_32fc*>(p)); }};

const firt::Kind<Tav64fc, Tav32sc> k64fc_32sc = {
    "64fc_32sc", 3, true, false,
    [](int n, int* s) { return tavsFIRGetStateSize64fc_32sc(n, s); },
    [](void** pp, const Tav64fc* t, int n, const Tav32sc* d, Tav8u* b) { return tavsFIRInit64fc_32sc(reinterpret_cast<FIRState64fc_32sc**>(pp), t, n, d, b); },
    [](void** pp, const Tav64fc* t, int n, const Tav32sc* d) { return tavsFIRInitAlloc64fc_32sc(reinterpret_cast<FIRState64fc_32sc**>(pp), t, n, d); },
    [](void* p) { return tavsFIRFree64fc_32sc(static_cast<FIRState64fc_32sc*>(p)); },
    [](const void* p, Tav64fc* t) { return tavsFIRGetTaps64fc_32sc(static_cast<const FIRState64fc_32sc*>(p), t); },
    [](const Tav64fc* t, void* p) { return tavsFIRSetTaps64fc_32sc(t, static_cast<FIRState64fc_32sc*>(p)); },
    [](const void* p, Tav32sc* d) { return tavsFIRGetDlyLine64fc_32sc(static_cast<const FIRState64fc_32sc*>(p), d); },
    [](void* p, const Tav32sc* d) { return tavsFIRSetDlyLine64fc_32sc(static_cast<FIRState64fc_32sc*>(p), d); },
    [](const Tav32sc* s, Tav32sc* d, int l, void* p, int sf) { return tavsFIR64fc_32sc_Sfs(s, d, l, static_cast<FIRState64fc_32sc*>(p), sf); },
    [](Tav32sc* s, int l, void* p, int sf) { return tavsFIR64fc_32sc_ISfs(s, l, static_cast<FIRState64fc_32sc*>(p), sf); },
    [](Tav32sc x, Tav32sc* y, void* p, int sf) { return tavsFIROne64fc_32sc_Sfs(x, y, static_cast<FIRState64fc_32sc*>(p), sf); }};

const firt::Kind<Tav64fc, Tav16sc> k64fc_16sc = {
    "64fc_16sc", 3, true, false,
    [](int n, int* s) { return tavsFIRGetStateSize64fc_16sc(n, s); },
    [](void** pp, const Tav64fc* t, int n, const Tav16sc* d, Tav8u* b) { return tavsFIRInit64fc_16sc(reinterpret_cast<FIRState64fc_16sc**>(pp), t, n, d, b); },
    [](void** pp, const Tav64fc* t, int n, const Tav16sc* d) { return tavsFIRInitAlloc64fc_16sc(reinterpret_cast<FIRState64fc_16sc**>(pp), t, n, d); },
    [](void* p) { return tavsFIRFree64fc_16sc(static_cast<FIRState64fc_16sc*>(p)); },
    [](const void* p, Tav64fc* t) { return tavsFIRGetTaps64fc_16sc(static_cast<const FIRState64fc_16sc*>(p), t); },
    [](const Tav64fc* t, void* p) { return tavsFIRSetTaps64fc_16sc(t, static_cast<FIRState64fc_16sc*>(p)); },
    [](const void* p, Tav16sc* d) { return tavsFIRGetDlyLine64fc_16sc(static_cast<const FIRState64fc_16sc*>(p), d); },
    [](void* p, const Tav16sc* d) { return tavsFIRSetDlyLine64fc_16sc(static_cast<FIRState64fc_16sc*>(p), d); },
    [](const Tav16sc* s, Tav16sc* d, int l, void* p, int sf) { return tavsFIR64fc_16sc_Sfs(s, d, l, static_cast<FIRState64fc_16sc*>(p), sf); },
    [](Tav16sc* s, int l, void* p, int sf) { return tavsFIR64fc_16sc_ISfs(s, l, static_cast<FIRState64fc_16sc*>(p), sf); },
    [](Tav16sc x, Tav16sc* y, void* p, int sf) { return tavsFIROne64fc_16sc_Sfs(x, y, static_cast<FIRState64fc_16sc*>(p), sf); }};


// A block that carries the tag of no FIR record.
struct Foreign {
    alignas(64) unsigned char b[4096] = {1, 0, 0, 0};
};

TEST(FirCplx, StateSizes)
{
    firt::check_sizes(k32fc);
    firt::check_sizes(k64fc);
    firt::check_sizes(k32fc_16sc);
    firt::check_sizes(k64fc_32fc);
    firt::check_sizes(k64fc_32sc);
    firt::check_sizes(k64fc_16sc);
}

TEST(FirCplx, BlocksAgainstReference)
{
    const std::vector<int> taps = {1, 5, 63, 64, 200, 1000}, lens = {1, 511, 512, 4096, 4608};
    firt::check_blocks(k32fc, taps, lens, 1);
    firt::check_blocks(k64fc, taps, lens, 2);
}

TEST(FirCplx, ConvertingBlocksAgainstReference)
{
    const std::vector<int> taps = {1, 5, 64}, lens = {1, 255, 256, 2100, 4608};
    firt::check_blocks(k32fc_16sc, taps, lens, 3);
    firt::check_blocks(k64fc_32fc, taps, lens, 4);
    firt::check_blocks(k64fc_32sc, taps, lens, 5);
    firt::check_blocks(k64fc_16sc, taps, lens, 6);
}

TEST(FirCplx, PiecesOneSampleAndDelayContinueOneSignal)
{
    for (int n : {1, 5, 40}) {
        firt::check_stream(k32fc, n, 10 + uint64_t(n));
        firt::check_stream(k64fc, n, 20 + uint64_t(n));
        firt::check_stream(k32fc_16sc, n, 30 + uint64_t(n));
        firt::check_stream(k64fc_32fc, n, 40 + uint64_t(n));
        firt::check_stream(k64fc_32sc, n, 50 + uint64_t(n));
        firt::check_stream(k64fc_16sc, n, 60 + uint64_t(n));
    }
}

TEST(FirCplx, ErrorsAndTags)
{
    Foreign f;
    firt::check_errors(k32fc, f.b);
    firt::check_errors(k64fc, f.b);
    firt::check_errors(k32fc_16sc, f.b);
    firt::check_errors(k64fc_32fc, f.b);
    firt::check_errors(k64fc_32sc, f.b);
    firt::check_errors(k64fc_16sc, f.b);
    // A record of another kind is refused too.
    tt::Rng r(1);
    const auto h = firt::rnd_vec<Tav32fc>(r, 8, 1.0);
    firt::Rec<Tav32fc, Tav32fc> other(k32fc, h, nullptr);
    std::vector<Tav16sc> x(4), y(4);
    EXPECT_EQ(tavsFIR32fc_16sc_Sfs(x.data(), y.data(), 4, static_cast<FIRState32fc_16sc*>(other.st), 0),
              ErrContextMismatch);
}

TEST(FirCplx, TapsGetAndSet)
{
    for (int n : {3, 20, 100}) {
        firt::check_taps(k32fc, n, 600);
        firt::check_taps(k64fc, n, 600);
        firt::check_taps(k32fc_16sc, n, 600);
        firt::check_taps(k64fc_32fc, n, 600);
        firt::check_taps(k64fc_32sc, n, 600);
        firt::check_taps(k64fc_16sc, n, 600);
    }
}

TEST(FirCplx, NullDelayIsSilence)
{
    firt::check_silence(k32fc, 30);
    firt::check_silence(k64fc, 30);
    firt::check_silence(k32fc_16sc, 30);
    firt::check_silence(k64fc_32fc, 30);
    firt::check_silence(k64fc_32sc, 30);
    firt::check_silence(k64fc_16sc, 30);
}

// Outputs of the direct path, formed here with the scalar kernel in the
// same order: equal bits mean the block ran direct.
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

TEST(FirCplx, PathChoiceAndRecordFields)
{
    tt::Rng r(5);
    // Fifteen taps never prepare the FFT; sixteen do, with L = 64.
    for (int n : {15, 16}) {
        const auto h = firt::rnd_vec<Tav32fc>(r, size_t(n), 0.3);
        firt::Rec<Tav32fc, Tav32fc> rc(k32fc, h, nullptr);
        EXPECT_EQ(rc.rec()->fftLen, n == 16 ? 64 : -1);
        EXPECT_EQ(rc.rec()->fftSpec != nullptr, n == 16);
        EXPECT_EQ(rc.rec()->blockLimit, (n + 3) & ~3);
        EXPECT_EQ(rc.rec()->tag, 0x46493032);
        EXPECT_EQ(rc.rec()->dlyLen, n);
    }
    {
        const auto h = firt::rnd_vec<Tav64fc>(r, 1, 0.3);
        firt::Rec<Tav64fc, Tav64fc> rc(k64fc, h, nullptr);
        EXPECT_EQ(rc.rec()->blockLimit, 4);
        EXPECT_EQ(rc.rec()->tag, 0x46493134);
    }
    const int n = 40;
    const auto h = firt::rnd_vec<Tav32fc>(r, n, 0.3);
    const auto dly = firt::rnd_vec<Tav32fc>(r, n, 1.0);
    for (int len : {255, 256}) {
        const auto x = firt::rnd_vec<Tav32fc>(r, size_t(len), 1.0);
        firt::Rec<Tav32fc, Tav32fc> rc(k32fc, h, dly.data());
        std::vector<Tav32fc> y(static_cast<size_t>(len));
        ASSERT_EQ(tavsFIR_32fc(x.data(), y.data(), len, static_cast<FIRState_32fc*>(rc.st)), StatusOk);
        const auto e = direct_emulation(h, dly, x);
        EXPECT_EQ(all_same(y.data(), e.data(), size_t(len)), len == 255) << len;
    }
    // In place: 4096 samples run direct; 4608 take the FFT for the first
    // chunk (512 remain) and run the last one direct.
    for (int len : {4096, 4608}) {
        const auto x = firt::rnd_vec<Tav32fc>(r, size_t(len), 1.0);
        firt::Rec<Tav32fc, Tav32fc> rc(k32fc, h, dly.data());
        std::vector<Tav32fc> y = x;
        ASSERT_EQ(tavsFIR_32fc_I(y.data(), len, static_cast<FIRState_32fc*>(rc.st)), StatusOk);
        const auto e = direct_emulation(h, dly, x);
        EXPECT_EQ(all_same(y.data(), e.data(), 4096), len == 4096);
        if (len == 4608) EXPECT_TRUE(all_same(y.data() + 4096, e.data() + 4096, 512));
        // The same call out of place takes the FFT.
        firt::Rec<Tav32fc, Tav32fc> rc2(k32fc, h, dly.data());
        std::vector<Tav32fc> z(static_cast<size_t>(len));
        ASSERT_EQ(tavsFIR_32fc(x.data(), z.data(), len, static_cast<FIRState_32fc*>(rc2.st)), StatusOk);
        EXPECT_FALSE(all_same(z.data(), e.data(), size_t(len)));
    }
}

// The vector kernels give the bits of the scalar kernel at every length and
// destination offset.
template <class X> void kernel_matches(tt::Rng& r)
{
    for (int n : {1, 2, 3, 7, 16, 33})
        for (int cnt = 0; cnt <= 70; ++cnt)
            for (int off = 0; off < 16; off += (cnt < 20 ? 1 : 5)) {
                const auto h = firt::rnd_vec<X>(r, size_t(n), 1.0);
                const auto x = firt::rnd_vec<X>(r, size_t(cnt + n + off), 1.0);
                std::vector<X> a(size_t(cnt + 16)), b(size_t(cnt + 16));
                tavs::fir::correlate(h.data(), n, x.data() + off, a.data() + off, cnt);
                tavs::fir::correlate_scalar(h.data(), n, x.data() + off, b.data() + off, cnt);
                ASSERT_TRUE(all_same(a.data(), b.data(), a.size())) << n << " " << cnt << " " << off;
            }
}
TEST(FirCplx, VectorKernelsEqualScalar)
{
    tt::Rng r(11);
    kernel_matches<Tav32f>(r);
    kernel_matches<Tav64f>(r);
    kernel_matches<Tav32fc>(r);
    kernel_matches<Tav64fc>(r);
}

} // namespace

// Fixed-point FFT records: the 16-bit kinds with their integer path or
// nested floating record, the 32-bit kinds and R_16s32s with theirs.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <vector>

#include "alloc_fault.h"
#include "fft_sizes.h"
#include "fft_test_util.h"
#include "internal/fft.h"
#include "tavs.h"
#include "test_util.h"

namespace {

using tavs::fft::FloatSpec;
using tavs::fft::SmallFixedSpec;
using tavs::fft::WideFixedSpec;

// A fixed-point kind: the record kind with its header type.
template <class Spec, class Hdr_> struct FixedKind : ft::RecordKind<Spec> {
    using Hdr = Hdr_;
};

const FixedKind<FFTSpec_C_16sc, SmallFixedSpec> kC16sc{"C_16sc", 1, 27, tavsFFTGetSize_C_16sc, tavsFFTInit_C_16sc,
                                                        tavsFFTInitAlloc_C_16sc, tavsFFTFree_C_16sc, tavsFFTGetBufSize_C_16sc};
const FixedKind<FFTSpec_C_16s, SmallFixedSpec> kC16s{"C_16s", 2, 27, tavsFFTGetSize_C_16s, tavsFFTInit_C_16s,
                                                      tavsFFTInitAlloc_C_16s, tavsFFTFree_C_16s, tavsFFTGetBufSize_C_16s};
const FixedKind<FFTSpec_R_16s, SmallFixedSpec> kR16s{"R_16s", 3, 28, tavsFFTGetSize_R_16s, tavsFFTInit_R_16s,
                                                      tavsFFTInitAlloc_R_16s, tavsFFTFree_R_16s, tavsFFTGetBufSize_R_16s};
const FixedKind<FFTSpec_C_32sc, WideFixedSpec> kC32sc{"C_32sc", 0x434D414C, 26, tavsFFTGetSize_C_32sc, tavsFFTInit_C_32sc,
                                                       tavsFFTInitAlloc_C_32sc, tavsFFTFree_C_32sc, tavsFFTGetBufSize_C_32sc};
const FixedKind<FFTSpec_C_32s, WideFixedSpec> kC32s{"C_32s", 0x434D414D, 26, tavsFFTGetSize_C_32s, tavsFFTInit_C_32s,
                                                     tavsFFTInitAlloc_C_32s, tavsFFTFree_C_32s, tavsFFTGetBufSize_C_32s};
const FixedKind<FFTSpec_R_32s, WideFixedSpec> kR32s{"R_32s", 0x434D414E, 27, tavsFFTGetSize_R_32s, tavsFFTInit_R_32s,
                                                     tavsFFTInitAlloc_R_32s, tavsFFTFree_R_32s, tavsFFTGetBufSize_R_32s};
const FixedKind<FFTSpec_R_16s32s, WideFixedSpec> kR16s32s{"R_16s32s", 0x434D414F, 28, tavsFFTGetSize_R_16s32s,
                                                           tavsFFTInit_R_16s32s, tavsFFTInitAlloc_R_16s32s,
                                                           tavsFFTFree_R_16s32s, tavsFFTGetBufSize_R_16s32s};

template <class F> void for_each_small(F f)
{
    f(kC16sc);
    f(kC16s);
    f(kR16s);
}
template <class F> void for_each_wide(F f)
{
    f(kC32sc);
    f(kC32s);
    f(kR32s);
    f(kR16s32s);
}
template <class F> void for_each_fixed(F f)
{
    for_each_small(f);
    for_each_wide(f);
}

template <class K> const typename K::Hdr* hdr(const K&, const void* p) { return static_cast<const typename K::Hdr*>(p); }

TEST(FFTFixedRecords, TagsAreTheDocumentedWords)
{
    EXPECT_EQ(std::memcmp(&kC32sc.tag, "LAMC", 4), 0);
    EXPECT_EQ(std::memcmp(&kC32s.tag, "MAMC", 4), 0);
    EXPECT_EQ(std::memcmp(&kR32s.tag, "NAMC", 4), 0);
    EXPECT_EQ(std::memcmp(&kR16s32s.tag, "OAMC", 4), 0);
}

TEST(FFTFixedRecords, GetSizeCheckOrder)
{
    int a, b, c;
    for_each_fixed([&](const auto& k) {
        EXPECT_EQ(k.getSize(-1, 3, 0, nullptr, nullptr, nullptr), ErrFftOrder) << k.name;
        EXPECT_EQ(k.getSize(3, 3, 0, &a, nullptr, &c), ErrNullPtr) << k.name;
        EXPECT_EQ(k.getSize(30, 3, 0, &a, &b, &c), ErrFftFlag) << k.name;
        EXPECT_EQ(k.getSize(k.limit + 1, ScaleNever, 0, &a, &b, &c), ErrFftOrder) << k.name;
        EXPECT_EQ(k.getSize(k.limit, ScaleNever, 99, &a, &b, &c), StatusOk) << k.name;
    });
}

TEST(FFTFixedRecords, SmallInitCheckOrderAndPaths)
{
    for_each_small([](const auto& k) {
        using Spec = typename std::decay_t<decltype(k)>::Spec;
        std::vector<Tav8u> block(1 << 16, 0xA5), ib(1 << 12);
        Spec* p = nullptr;
        EXPECT_EQ(k.init(nullptr, -1, 3, 0, nullptr, nullptr), ErrNullPtr);
        EXPECT_EQ(k.init(&p, -1, ScaleNever, 0, block.data(), ib.data()), ErrFftOrder);
        EXPECT_EQ(k.init(&p, k.limit + 1, ScaleNever, 0, block.data(), ib.data()), ErrFftOrder);
        EXPECT_EQ(k.init(&p, 3, 3, 0, nullptr, nullptr), ErrNullPtr);
        for (size_t i = 0; i < 256; ++i) ASSERT_EQ(block[i], 0xA5);
        EXPECT_EQ(k.init(&p, 3, 3, 0, block.data(), nullptr), ErrFftFlag);
        EXPECT_EQ(p, nullptr);
        EXPECT_EQ(hdr(k, tavs::align64(block.data()))->tag, 0);
        // The float path needs the init buffer from order 11; the integer
        // path never does.
        EXPECT_EQ(k.init(&p, 11, ScaleNever, 0, block.data(), nullptr), ErrNullPtr);
        EXPECT_EQ(hdr(k, tavs::align64(block.data()))->tag, 0);
        for (int order = 0; order <= 10; ++order)
            for (int hint : {0, 1, 2, 99}) {
                int spec, init, work;
                ASSERT_EQ(k.getSize(order, ScaleBothBySqrtLen, hint, &spec, &init, &work), StatusOk);
                tt::Guarded<Tav8u> blk(size_t(spec), 5), ibuf(size_t(init), 9);
                ASSERT_EQ(k.init(&p, order, ScaleBothBySqrtLen, hint, blk.data(), ibuf.data()), StatusOk)
                    << k.name << " " << order << " " << hint;
                EXPECT_TRUE(blk.borders_intact()) << k.name << " " << order << " " << hint;
                EXPECT_TRUE(ibuf.borders_intact());
                const SmallFixedSpec* h = hdr(k, p);
                EXPECT_EQ(h->tag, k.tag);
                EXPECT_EQ(h->order, order);
                EXPECT_EQ(h->hint, hint);
                const bool integer = order == 0 || ((hint == 0 || hint == 1) && order <= 8);
                EXPECT_EQ(h->usesFloat, integer ? 0 : 1) << k.name << " " << order << " " << hint;
                EXPECT_EQ(h->fwdShift, order >> 1);
                EXPECT_EQ(h->invShift, order >> 1);
                EXPECT_EQ(h->oddOrder, order & 1);
                EXPECT_EQ(h->workSize >= 1 ? h->workSize + 64 : 0, work);
                int buf = 0;
                EXPECT_EQ(k.bufSize(p, &buf), StatusOk);
                EXPECT_EQ(buf, work);
                if (integer) {
                    EXPECT_EQ(h->nested, nullptr);
                    if (order > 0) EXPECT_NE(h->twiddles, nullptr);
                } else {
                    ASSERT_NE(h->nested, nullptr);
                    const auto* n = static_cast<const FloatSpec<float>*>(h->nested);
                    const int32_t want = k.tag == 3 ? 6 : k.tag == 2 ? 5 : 4;
                    EXPECT_EQ(n->tag, want);
                    EXPECT_EQ(n->order, order);
                    EXPECT_EQ(n->fwdScales, 1);
                    EXPECT_EQ(n->invScales, 1);
                    EXPECT_EQ(n->hint, 0);
                }
            }
    });
}

TEST(FFTFixedRecords, SmallShiftsByFlag)
{
    struct Row {
        int flag, fwd, inv, odd;
    };
    for (int order : {1, 4, 7, 8})
        for (const Row r : {Row{ScaleFwdByLen, order, 0, 0}, Row{ScaleInvByLen, 0, order, 0},
                            Row{ScaleBothBySqrtLen, order >> 1, order >> 1, order & 1}, Row{ScaleNever, 0, 0, 0}}) {
            FFTSpec_C_16sc* p = nullptr;
            ASSERT_EQ(tavsFFTInitAlloc_C_16sc(&p, order, r.flag, 1), StatusOk);
            const SmallFixedSpec* h = reinterpret_cast<const SmallFixedSpec*>(p);
            EXPECT_EQ(h->fwdShift, r.fwd);
            EXPECT_EQ(h->invShift, r.inv);
            EXPECT_EQ(h->oddOrder, r.odd);
            EXPECT_EQ(h->allocated, 1);
            EXPECT_EQ(tavsFFTFree_C_16sc(p), StatusOk);
        }
}

// Q14 (c, s, -s, c) entries from the 256-entry quarter table by folding.
TEST(FFTFixedRecords, IntegerTwiddlesAndSwapLists)
{
    auto q14 = [](int k) -> int { return k == 256 ? 16384 : int(std::lround(16384 * std::sin(2 * M_PI * k / 1024))); };
    FFTSpec_C_16s* c = nullptr;
    ASSERT_EQ(tavsFFTInitAlloc_C_16s(&c, 8, ScaleNever, 0), StatusOk);
    FFTSpec_R_16s* r = nullptr;
    ASSERT_EQ(tavsFFTInitAlloc_R_16s(&r, 6, ScaleNever, 1), StatusOk);
    const auto* hc = reinterpret_cast<const SmallFixedSpec*>(c);
    const auto* hr = reinterpret_cast<const SmallFixedSpec*>(r);
    auto check = [&](const Tav16s* t, int L) {
        for (int k = 0; k < L; ++k) {
            const int e = k * (1024 / L);
            int co, si;
            if (e <= 256) co = q14(256 - e), si = q14(e);
            else if (e <= 512) co = -q14(e - 256), si = q14(512 - e);
            else if (e <= 768) co = -q14(768 - e), si = -q14(e - 512);
            else co = q14(e - 768), si = -q14(1024 - e);
            ASSERT_EQ(t[4 * k], co) << L << " " << k;
            ASSERT_EQ(t[4 * k + 1], si) << L << " " << k;
            ASSERT_EQ(t[4 * k + 2], -si) << L << " " << k;
            ASSERT_EQ(t[4 * k + 3], co) << L << " " << k;
        }
    };
    check(hc->twiddles, 256);
    EXPECT_EQ(hc->twiddles[4 * 32], 11585); // cos(pi/4) in Q14
    check(hr->twiddles, 32);
    check(hr->twiddles2, 64);
    // The swap list of the complex length (N for C, N/2 for R): its first
    // pair is (4, 4 rev(1)).
    EXPECT_EQ(hc->swapList[0], 4);
    EXPECT_EQ(hc->swapList[1], 4 * 32);
    EXPECT_EQ(hr->swapList[0], 4);
    EXPECT_EQ(hr->swapList[1], 4 * 4);
    EXPECT_EQ(hr->swapList[8], 0);
    tavsFFTFree_C_16s(c);
    tavsFFTFree_R_16s(r);
}

TEST(FFTFixedRecords, WideInitBuildsTheNestedRecord)
{
    for_each_wide([](const auto& k) {
        using Spec = typename std::decay_t<decltype(k)>::Spec;
        std::vector<Tav8u> block(1 << 16, 0xA5);
        Spec* p = nullptr;
        EXPECT_EQ(k.init(nullptr, 31, 3, 0, nullptr, nullptr), ErrNullPtr);
        EXPECT_EQ(k.init(&p, 31, 3, 0, nullptr, nullptr), ErrFftOrder);
        EXPECT_EQ(k.init(&p, -2, 3, 0, nullptr, nullptr), ErrFftOrder);
        EXPECT_EQ(k.init(&p, k.limit + 1, 3, 0, nullptr, nullptr), ErrNullPtr);
        // The nested Init's own checks follow: the order limit, the flag.
        EXPECT_EQ(k.init(&p, k.limit + 1, 3, 0, block.data(), nullptr), ErrFftOrder);
        EXPECT_EQ(k.init(&p, 5, 3, 0, block.data(), nullptr), ErrFftFlag);
        EXPECT_EQ(k.init(&p, 12, ScaleNever, 0, block.data(), nullptr), ErrNullPtr);
        EXPECT_EQ(hdr(k, tavs::align64(block.data()))->tag, 0);
        EXPECT_EQ(p, nullptr);
        for (int order : {0, 3, 6, 7, 11, 12, 13}) {
            int spec, init, work;
            ASSERT_EQ(k.getSize(order, ScaleInvByLen, 2, &spec, &init, &work), StatusOk);
            tt::Guarded<Tav8u> blk(size_t(spec), 33), ibuf(size_t(std::max(init, 1)), 1);
            ASSERT_EQ(k.init(&p, order, ScaleInvByLen, 2, blk.data(), init ? ibuf.data() : nullptr), StatusOk)
                << k.name << " " << order;
            EXPECT_TRUE(blk.borders_intact()) << k.name << " " << order;
            EXPECT_TRUE(ibuf.borders_intact());
            const WideFixedSpec* h = hdr(k, p);
            EXPECT_EQ(h->tag, k.tag);
            EXPECT_EQ(h->order, order);
            EXPECT_EQ(h->hint, 2);
            EXPECT_EQ(h->workSize + 64, work);
            ASSERT_NE(h->nested, nullptr);
            EXPECT_EQ(reinterpret_cast<uintptr_t>(h->nested) & 63, 0u);
            const int32_t nestedTag = *static_cast<const int32_t*>(h->nested);
            const int32_t want = k.tag == 0x434D414C ? 7 : k.tag == 0x434D414D ? 8 : k.tag == 0x434D414E ? 9 : 6;
            EXPECT_EQ(nestedTag, want);
            EXPECT_EQ(static_cast<const FloatSpec<float>*>(h->nested)->hint, 0);
            EXPECT_EQ(static_cast<const FloatSpec<float>*>(h->nested)->invScales, 1);
            int buf = 0;
            EXPECT_EQ(k.bufSize(p, &buf), StatusOk);
            EXPECT_EQ(buf, work);
        }
    });
}

// The nested complex record is complete: the floating transform runs on it.
TEST(FFTFixedRecords, NestedRecordsTransform)
{
    FFTSpec_C_32sc* w = nullptr;
    ASSERT_EQ(tavsFFTInitAlloc_C_32sc(&w, 7, ScaleNever, 0), StatusOk);
    const auto* nested = static_cast<const FFTSpec_C_64fc*>(reinterpret_cast<const WideFixedSpec*>(w)->nested);
    std::vector<Tav64fc> x(128, Tav64fc{0, 0}), y(128);
    x[1].re = 1;
    ASSERT_EQ(tavsFFTFwd_CToC_64fc(x.data(), y.data(), nested, nullptr), StatusOk);
    EXPECT_NEAR(y[32].re, 0.0, 1e-15);
    EXPECT_NEAR(y[32].im, -1.0, 1e-15);
    tavsFFTFree_C_32sc(w);
    FFTSpec_C_16s* s = nullptr;
    ASSERT_EQ(tavsFFTInitAlloc_C_16s(&s, 10, ScaleNever, 2), StatusOk);
    const auto* ns = static_cast<const FFTSpec_C_32f*>(reinterpret_cast<const SmallFixedSpec*>(s)->nested);
    std::vector<float> re(1024, 0.0f), im(1024, 0.0f);
    re[0] = 1;
    ASSERT_EQ(tavsFFTFwd_CToC_32f_I(re.data(), im.data(), ns, nullptr), StatusOk);
    EXPECT_EQ(re[513], 1.0f);
    tavsFFTFree_C_16s(s);
}

TEST(FFTFixedRecords, InitAllocFreeAndBufSize)
{
    for_each_fixed([](const auto& k) {
        using Spec = typename std::decay_t<decltype(k)>::Spec;
        for (int order : {0, 4, 9, 12}) {
            const long live = tt::live_blocks();
            Spec* p = nullptr;
            ASSERT_EQ(k.initAlloc(&p, order, ScaleFwdByLen, 0), StatusOk) << k.name << " " << order;
            EXPECT_EQ(hdr(k, p)->allocated, 1);
            EXPECT_EQ(tt::live_blocks(), live + 1);
            EXPECT_EQ(k.free(p), StatusOk);
            EXPECT_EQ(tt::live_blocks(), live);
            int spec, init, work;
            ASSERT_EQ(k.getSize(order, ScaleFwdByLen, 0, &spec, &init, &work), StatusOk);
            const int runs = tt::for_each_alloc_failure([&] {
                Spec* q = nullptr;
                const Status st = k.initAlloc(&q, order, ScaleFwdByLen, 0);
                if (st == ErrMemAlloc) return true;
                k.free(q);
                return false;
            });
            EXPECT_EQ(runs, init > 0 ? 2 : 1) << k.name << " " << order;
        }
        EXPECT_EQ(k.free(nullptr), ErrNullPtr);
        int n = 0;
        EXPECT_EQ(k.bufSize(nullptr, &n), ErrNullPtr);
        std::vector<Tav8u> block(4096);
        Spec* p = nullptr;
        ASSERT_EQ(k.init(&p, 2, ScaleNever, 0, block.data(), nullptr), StatusOk);
        EXPECT_EQ(k.bufSize(p, nullptr), ErrNullPtr);
        EXPECT_EQ(k.free(p), StatusOk);
        EXPECT_EQ(k.free(p), ErrContextMismatch);
        EXPECT_EQ(k.bufSize(p, &n), ErrContextMismatch);
        EXPECT_EQ(k.initAlloc(nullptr, 2, ScaleNever, 0), ErrNullPtr);
    });
    // Records of one kind are refused by the others.
    FFTSpec_C_16sc* p = nullptr;
    ASSERT_EQ(tavsFFTInitAlloc_C_16sc(&p, 3, ScaleNever, 0), StatusOk);
    EXPECT_EQ(tavsFFTFree_C_16s(reinterpret_cast<FFTSpec_C_16s*>(p)), ErrContextMismatch);
    EXPECT_EQ(tavsFFTFree_C_32sc(reinterpret_cast<FFTSpec_C_32sc*>(p)), ErrContextMismatch);
    EXPECT_EQ(tavsFFTFree_C_16sc(p), StatusOk);
}

} // namespace

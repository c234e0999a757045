// FFT records: Init check order and carving, InitAlloc, Free, GetBufSize,
// and the scaling fields, for every floating kind.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <vector>

#include "alloc_fault.h"
#include "fft_test_util.h"
#include "internal/fft.h"
#include "tavs.h"
#include "test_util.h"

namespace {

// A floating kind: the record kind with its part type.
template <class Spec, class S_> struct FloatKind : ft::RecordKind<Spec> {
    using S = S_;
};

const FloatKind<FFTSpec_C_32fc, float> k32fc{"C_32fc", 4, 27, tavsFFTGetSize_C_32fc, tavsFFTInit_C_32fc,
                                              tavsFFTInitAlloc_C_32fc, tavsFFTFree_C_32fc, tavsFFTGetBufSize_C_32fc};
const FloatKind<FFTSpec_C_32f, float> k32f{"C_32f", 5, 27, tavsFFTGetSize_C_32f, tavsFFTInit_C_32f,
                                            tavsFFTInitAlloc_C_32f, tavsFFTFree_C_32f, tavsFFTGetBufSize_C_32f};
const FloatKind<FFTSpec_R_32f, float> kR32f{"R_32f", 6, 28, tavsFFTGetSize_R_32f, tavsFFTInit_R_32f,
                                             tavsFFTInitAlloc_R_32f, tavsFFTFree_R_32f, tavsFFTGetBufSize_R_32f};
const FloatKind<FFTSpec_C_64fc, double> k64fc{"C_64fc", 7, 26, tavsFFTGetSize_C_64fc, tavsFFTInit_C_64fc,
                                               tavsFFTInitAlloc_C_64fc, tavsFFTFree_C_64fc, tavsFFTGetBufSize_C_64fc};
const FloatKind<FFTSpec_C_64f, double> k64f{"C_64f", 8, 26, tavsFFTGetSize_C_64f, tavsFFTInit_C_64f,
                                             tavsFFTInitAlloc_C_64f, tavsFFTFree_C_64f, tavsFFTGetBufSize_C_64f};
const FloatKind<FFTSpec_R_64f, double> kR64f{"R_64f", 9, 27, tavsFFTGetSize_R_64f, tavsFFTInit_R_64f,
                                              tavsFFTInitAlloc_R_64f, tavsFFTFree_R_64f, tavsFFTGetBufSize_R_64f};

template <class F> void for_each_kind(F f)
{
    f(k32fc);
    f(k32f);
    f(kR32f);
    f(k64fc);
    f(k64f);
    f(kR64f);
}

template <class K> const tavs::fft::FloatSpec<typename K::S>* hdr(const typename K::Spec* p)
{
    return reinterpret_cast<const tavs::fft::FloatSpec<typename K::S>*>(p);
}

TEST(FFTInit, CheckOrder)
{
    for_each_kind([](const auto& k) {
        using Spec = typename std::decay_t<decltype(k)>::Spec;
        std::vector<Tav8u> block(4096, 0xA5), ib(64, 0);
        Spec* p = nullptr;
        // ppSpec first, even before the order.
        EXPECT_EQ(k.init(nullptr, -1, 3, 0, nullptr, nullptr), ErrNullPtr) << k.name;
        EXPECT_EQ(k.init(&p, -1, ScaleNever, 0, block.data(), ib.data()), ErrFftOrder) << k.name;
        EXPECT_EQ(k.init(&p, 31, ScaleNever, 0, block.data(), ib.data()), ErrFftOrder) << k.name;
        EXPECT_EQ(k.init(&p, k.limit + 1, 3, 0, nullptr, nullptr), ErrFftOrder) << k.name;
        EXPECT_EQ(k.init(&p, 4, 3, 0, nullptr, nullptr), ErrNullPtr) << k.name;
        // Nothing written so far.
        for (Tav8u b : block) ASSERT_EQ(b, 0xA5);
        EXPECT_EQ(p, nullptr);
        // A bad flag is found after the header is cleared: the tag stays 0.
        EXPECT_EQ(k.init(&p, 4, 3, 0, block.data() + 1, nullptr), ErrFftFlag) << k.name;
        EXPECT_EQ(p, nullptr);
        const Tav8u* rec = block.data() + 1 + ((64 - (reinterpret_cast<uintptr_t>(block.data() + 1) & 63)) & 63);
        for (int i = 0; i < 144; ++i) ASSERT_EQ(rec[i], 0) << k.name << " byte " << i;
        // initBuf is needed above order 10 only.
        std::vector<Tav8u> big(1 << 16);
        EXPECT_EQ(k.init(&p, 11, ScaleNever, 0, big.data(), nullptr), ErrNullPtr) << k.name;
        EXPECT_EQ(*reinterpret_cast<const int32_t*>(tavs::align64(big.data())), 0);
        int spec, init, work;
        ASSERT_EQ(k.getSize(10, ScaleNever, 0, &spec, &init, &work), StatusOk);
        EXPECT_EQ(init, 0);
        std::vector<Tav8u> b10(static_cast<size_t>(spec));
        EXPECT_EQ(k.init(&p, 10, ScaleNever, 0, b10.data(), nullptr), StatusOk) << k.name;
        EXPECT_EQ(hdr<std::decay_t<decltype(k)>>(p)->tag, k.tag);
    });
}

// The record is carved at the caller's block rounded up to 64 and stays
// inside the size that GetSize reported, for every start offset.
TEST(FFTInit, CarvesInsideTheReportedSize)
{
    for_each_kind([](const auto& k) {
        using K = std::decay_t<decltype(k)>;
        using Spec = typename K::Spec;
        for (int order : {0, 5, 6, 7, 10, 11, 12, 13, 14}) {
            int spec, init, work;
            ASSERT_EQ(k.getSize(order, ScaleFwdByLen, 0, &spec, &init, &work), StatusOk);
            for (size_t off : {size_t(0), size_t(1), size_t(17), size_t(63)}) {
                tt::Guarded<Tav8u> block(size_t(spec), off), ib(size_t(std::max(init, 1)), 63 - off);
                Spec* p = nullptr;
                ASSERT_EQ(k.init(&p, order, ScaleFwdByLen, 7, block.data(), init ? ib.data() : nullptr), StatusOk)
                    << k.name << " " << order;
                EXPECT_TRUE(block.borders_intact()) << k.name << " order " << order << " offset " << off;
                EXPECT_TRUE(ib.borders_intact()) << k.name << " order " << order;
                EXPECT_EQ(reinterpret_cast<uintptr_t>(p) & 63, 0u);
                EXPECT_EQ(reinterpret_cast<Tav8u*>(p), tavs::align64(block.data()));
                const auto* h = hdr<K>(p);
                EXPECT_EQ(h->tag, k.tag);
                EXPECT_EQ(h->order, order);
                EXPECT_EQ(h->hint, 7);
                EXPECT_EQ(h->allocated, 0);
                int buf = -1;
                ASSERT_EQ(k.bufSize(p, &buf), StatusOk);
                EXPECT_EQ(buf, work) << k.name << " order " << order;
            }
        }
    });
}

TEST(FFTInit, ScalingFields)
{
    for_each_kind([](const auto& k) {
        using K = std::decay_t<decltype(k)>;
        using S = typename K::S;
        for (int order : {0, 3, 6, 9}) {
            const double N = double(1 << order);
            struct {
                int flag, fwd, inv;
                S scale;
            } rows[] = {{ScaleFwdByLen, 1, 0, S(1) / S(N)},
                        {ScaleInvByLen, 0, 1, S(1) / S(N)},
                        {ScaleBothBySqrtLen, 1, 1, S(1.0 / std::sqrt(N))},
                        {ScaleNever, 0, 0, S(0)}};
            for (const auto& r : rows) {
                typename K::Spec* p = nullptr;
                ASSERT_EQ(k.initAlloc(&p, order, r.flag, 0), StatusOk);
                const auto* h = hdr<K>(p);
                EXPECT_EQ(h->fwdScales, r.fwd);
                EXPECT_EQ(h->invScales, r.inv);
                EXPECT_EQ(h->scale.value, r.scale) << k.name << " " << order << " " << r.flag;
                EXPECT_EQ(k.free(p), StatusOk);
            }
        }
    });
}

TEST(FFTInitAlloc, AllocatesFreesAndFailsCleanly)
{
    for_each_kind([](const auto& k) {
        using K = std::decay_t<decltype(k)>;
        for (int order : {0, 6, 11, 13}) {
            const long live = tt::live_blocks();
            typename K::Spec* p = nullptr;
            ASSERT_EQ(k.initAlloc(&p, order, ScaleInvByLen, 1), StatusOk);
            EXPECT_EQ(hdr<K>(p)->allocated, 1);
            EXPECT_EQ(hdr<K>(p)->base, static_cast<const void*>(p));
            EXPECT_EQ(tt::live_blocks(), live + 1); // the init scratch is gone again
            EXPECT_EQ(k.free(p), StatusOk);
            EXPECT_EQ(tt::live_blocks(), live);
            const int runs = tt::for_each_alloc_failure([&] {
                typename K::Spec* q = nullptr;
                const Status st = k.initAlloc(&q, order, ScaleInvByLen, 1);
                if (st == ErrMemAlloc) {
                    EXPECT_EQ(q, nullptr);
                    return true;
                }
                EXPECT_EQ(st, StatusOk);
                k.free(q);
                return false;
            });
            EXPECT_EQ(runs, order > 10 ? 2 : 1) << k.name << " " << order;
        }
        // The checks of GetSize come first; a failing Init releases the block.
        typename K::Spec* p = nullptr;
        const long live = tt::live_blocks();
        EXPECT_EQ(k.initAlloc(&p, -3, ScaleNever, 0), ErrFftOrder);
        EXPECT_EQ(k.initAlloc(&p, 4, 3, 0), ErrFftFlag);
        EXPECT_EQ(k.initAlloc(&p, k.limit + 1, ScaleNever, 0), ErrFftOrder);
        EXPECT_EQ(k.initAlloc(nullptr, 4, ScaleNever, 0), ErrNullPtr);
        EXPECT_EQ(tt::live_blocks(), live);
        EXPECT_EQ(p, nullptr);
    });
}

TEST(FFTFree, TagsAndBlocks)
{
    for_each_kind([](const auto& k) {
        using K = std::decay_t<decltype(k)>;
        EXPECT_EQ(k.free(nullptr), ErrNullPtr);
        typename K::Spec* p = nullptr;
        ASSERT_EQ(k.initAlloc(&p, 7, ScaleNever, 0), StatusOk);
        EXPECT_EQ(k.free(p), StatusOk);
        // Freed: the tag is 0, so a second Free is a mismatch (the block is
        // still ours here: it comes from the test's own Init below).
        std::vector<Tav8u> block(8192);
        ASSERT_EQ(k.init(&p, 7, ScaleNever, 0, block.data(), nullptr), StatusOk);
        const long live = tt::live_blocks();
        EXPECT_EQ(k.free(p), StatusOk); // an Init record: nothing released
        EXPECT_EQ(tt::live_blocks(), live);
        EXPECT_EQ(hdr<K>(p)->tag, 0);
        EXPECT_EQ(k.free(p), ErrContextMismatch);
        int n = -1;
        EXPECT_EQ(k.bufSize(p, &n), ErrContextMismatch);
        EXPECT_EQ(n, -1);
    });
}

TEST(FFTGetBufSize, ChecksAndValues)
{
    for_each_kind([](const auto& k) {
        using K = std::decay_t<decltype(k)>;
        typename K::Spec* p = nullptr;
        ASSERT_EQ(k.initAlloc(&p, 14, ScaleNever, 0), StatusOk);
        int n = -1;
        EXPECT_EQ(k.bufSize(nullptr, &n), ErrNullPtr);
        EXPECT_EQ(k.bufSize(p, nullptr), ErrNullPtr);
        EXPECT_EQ(k.bufSize(p, &n), StatusOk);
        EXPECT_EQ(n, hdr<K>(p)->workSize + 64);
        EXPECT_GT(n, 64);
        k.free(p);
        ASSERT_EQ(k.initAlloc(&p, 10, ScaleNever, 0), StatusOk);
        EXPECT_EQ(k.bufSize(p, &n), StatusOk);
        EXPECT_EQ(n, 0);
        k.free(p);
    });
    // A record of another kind is a mismatch.
    FFTSpec_C_32fc* p = nullptr;
    ASSERT_EQ(tavsFFTInitAlloc_C_32fc(&p, 5, ScaleNever, 0), StatusOk);
    int n = -1;
    EXPECT_EQ(tavsFFTGetBufSize_C_64fc(reinterpret_cast<const FFTSpec_C_64fc*>(p), &n), ErrContextMismatch);
    EXPECT_EQ(tavsFFTGetBufSize_C_32f(reinterpret_cast<const FFTSpec_C_32f*>(p), &n), ErrContextMismatch);
    EXPECT_EQ(tavsFFTFree_R_32f(reinterpret_cast<FFTSpec_R_32f*>(p)), ErrContextMismatch);
    EXPECT_EQ(tavsFFTFree_C_32fc(p), StatusOk);
    // Order 13 in 32f: R = 32, so 32 * 32 + 64 bytes.
    ASSERT_EQ(tavsFFTInitAlloc_C_32fc(&p, 13, ScaleNever, 0), StatusOk);
    EXPECT_EQ(tavsFFTGetBufSize_C_32fc(p, &n), StatusOk);
    EXPECT_EQ(n, 32 * 32 + 64);
    tavsFFTFree_C_32fc(p);
}

// The init buffer is scratch only: overwriting it after Init changes nothing.
TEST(FFTInit, InitBufferIsOnlyScratch)
{
    int spec, init, work;
    ASSERT_EQ(tavsFFTGetSize_C_32fc(14, ScaleNever, 0, &spec, &init, &work), StatusOk);
    std::vector<Tav8u> block(static_cast<size_t>(spec)), ib(static_cast<size_t>(init));
    FFTSpec_C_32fc* p = nullptr;
    ASSERT_EQ(tavsFFTInit_C_32fc(&p, 14, ScaleNever, 0, block.data(), ib.data()), StatusOk);
    FFTSpec_C_32fc* q = nullptr;
    ASSERT_EQ(tavsFFTInitAlloc_C_32fc(&q, 14, ScaleNever, 0), StatusOk);
    std::fill(ib.begin(), ib.end(), Tav8u(0x7F));
    tt::Rng rng(3);
    const auto x = ft::random_signal<float>(rng, 1 << 14);
    std::vector<float> a(x.size()), b(x.size());
    ASSERT_EQ(tavsFFTFwd_CToC_32fc(reinterpret_cast<const Tav32fc*>(x.data()), reinterpret_cast<Tav32fc*>(a.data()), p, nullptr), StatusOk);
    ASSERT_EQ(tavsFFTFwd_CToC_32fc(reinterpret_cast<const Tav32fc*>(x.data()), reinterpret_cast<Tav32fc*>(b.data()), q, nullptr), StatusOk);
    EXPECT_EQ(a, b);
    tavsFFTFree_C_32fc(q);
}

} // namespace

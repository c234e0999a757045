// The complex FFT bodies: check order, outputs untouched on error, the work
// buffer rules, unaligned data, and round trips under every flag.
#include "alloc_fault.h"
#include "fft_test_util.h"

namespace {

template <class L> class Exec : public ::testing::Test {};
TYPED_TEST_SUITE(Exec, ft::Layouts);

// Calls one direction and placement of a layout on raw pointers.
template <class L>
Status call(bool inverse, bool inPlace, const typename L::S* src, typename L::S* dst, size_t n,
            const typename L::Spec* spec, Tav8u* wsp)
{
    using S = typename L::S;
    if constexpr (L::split) {
        if (inPlace) return inverse ? L::inv_i(dst, spec, wsp, n) : L::fwd_i(dst, spec, wsp, n);
        return inverse ? L::inv(src, dst, spec, wsp, n) : L::fwd(src, dst, spec, wsp, n);
    } else {
        (void)n;
        if (inPlace) return inverse ? L::inv_i(dst, spec, wsp) : L::fwd_i(dst, spec, wsp);
        return inverse ? L::inv(src, dst, spec, wsp) : L::fwd(src, dst, spec, wsp);
    }
    (void)sizeof(S);
}

TYPED_TEST(Exec, CheckOrderAndUntouchedOutputs)
{
    using L = TypeParam;
    using S = typename L::S;
    const size_t n = 64;
    ft::Record<L> rec(6, ScaleNever);
    std::vector<S> src(2 * n, S(1));
    for (bool inv : {false, true}) {
        tt::Guarded<S> dst(2 * n);
        // The record first, even with null data.
        EXPECT_EQ(call<L>(inv, false, nullptr, nullptr, n, nullptr, nullptr), ErrNullPtr);
        EXPECT_EQ(call<L>(inv, true, nullptr, nullptr, n, nullptr, nullptr), ErrNullPtr);
        // A record of another kind (a real record) is a mismatch, before the data.
        FFTSpec_R_32f* other = nullptr;
        ASSERT_EQ(tavsFFTInitAlloc_R_32f(&other, 6, ScaleNever, 0), StatusOk);
        const auto* wrong = reinterpret_cast<const typename L::Spec*>(other);
        EXPECT_EQ(call<L>(inv, false, nullptr, nullptr, n, wrong, nullptr), ErrContextMismatch);
        EXPECT_EQ(call<L>(inv, false, src.data(), dst.data(), n, wrong, nullptr), ErrContextMismatch);
        tavsFFTFree_R_32f(other);
        // Null data.
        EXPECT_EQ(call<L>(inv, false, nullptr, dst.data(), n, rec.p, nullptr), ErrNullPtr);
        EXPECT_EQ(call<L>(inv, false, src.data(), nullptr, n, rec.p, nullptr), ErrNullPtr);
        EXPECT_EQ(call<L>(inv, true, nullptr, nullptr, n, rec.p, nullptr), ErrNullPtr);
        EXPECT_TRUE(dst.untouched());
    }
}

TEST(Exec, SplitNullHalves)
{
    ft::Record<ft::L32f> r(4, ScaleNever);
    ft::Record<ft::L64f> d(4, ScaleNever);
    float f[16] = {}, g[16] = {};
    double a[16] = {}, b[16] = {};
    EXPECT_EQ(tavsFFTFwd_CToC_32f(f, nullptr, g, g, r.p, nullptr), ErrNullPtr);
    EXPECT_EQ(tavsFFTInv_CToC_32f(f, f, g, nullptr, r.p, nullptr), ErrNullPtr);
    EXPECT_EQ(tavsFFTFwd_CToC_32f_I(f, nullptr, r.p, nullptr), ErrNullPtr);
    EXPECT_EQ(tavsFFTInv_CToC_32f_I(nullptr, f, r.p, nullptr), ErrNullPtr);
    EXPECT_EQ(tavsFFTFwd_CToC_64f(a, a, nullptr, b, d.p, nullptr), ErrNullPtr);
    EXPECT_EQ(tavsFFTInv_CToC_64f(nullptr, a, b, b, d.p, nullptr), ErrNullPtr);
    EXPECT_EQ(tavsFFTFwd_CToC_64f_I(a, nullptr, d.p, nullptr), ErrNullPtr);
    EXPECT_EQ(tavsFFTInv_CToC_64f_I(nullptr, a, d.p, nullptr), ErrNullPtr);
    // Split records are not interleaved ones.
    EXPECT_EQ(tavsFFTFwd_CToC_32fc(reinterpret_cast<Tav32fc*>(f), reinterpret_cast<Tav32fc*>(g),
                                   reinterpret_cast<const FFTSpec_C_32fc*>(r.p), nullptr),
              ErrContextMismatch);
    EXPECT_EQ(tavsFFTInv_CToC_64fc(reinterpret_cast<Tav64fc*>(a), reinterpret_cast<Tav64fc*>(b),
                                   reinterpret_cast<const FFTSpec_C_64fc*>(d.p), nullptr),
              ErrContextMismatch);
}

TYPED_TEST(Exec, FreedRecordIsAMismatch)
{
    using L = TypeParam;
    using S = typename L::S;
    typename L::Spec* p = nullptr;
    ASSERT_EQ(L::alloc(&p, 3, ScaleNever, 0), StatusOk);
    // An Init record in our own block stays readable after Free.
    std::vector<Tav8u> block(512);
    ASSERT_EQ(L::free(p), StatusOk);
    ASSERT_EQ(L::init(&p, 3, ScaleNever, 0, block.data(), nullptr), StatusOk);
    ASSERT_EQ(L::free(p), StatusOk);
    tt::Guarded<S> dst(16);
    std::vector<S> src(16, S(1));
    EXPECT_EQ(call<L>(false, false, src.data(), dst.data(), 8, p, nullptr), ErrContextMismatch);
    EXPECT_EQ(call<L>(true, false, src.data(), dst.data(), 8, p, nullptr), ErrContextMismatch);
    EXPECT_TRUE(dst.untouched());
}

// A null buffer at an order that needs one allocates it and frees it; when
// the allocation fails the destination is untouched. An order without work
// allocates nothing; a caller's buffer at any offset is used as it is.
TYPED_TEST(Exec, WorkBufferRules)
{
    using L = TypeParam;
    using S = typename L::S;
    const int order = 13; // two factors in both precisions
    const size_t n = size_t(1) << order;
    ft::Record<L> rec(order, ScaleNever);
    int bufSize = 0;
    ASSERT_EQ(L::buf_size(rec.p, &bufSize), StatusOk);
    ASSERT_GT(bufSize, 64);
    tt::Rng rng(11);
    const std::vector<S> x = ft::random_signal<S>(rng, n);
    Status st;
    const long calls = tt::alloc_calls(), live = tt::live_blocks();
    const std::vector<S> ref = ft::transform<L>(rec.p, false, false, x, nullptr, &st);
    ASSERT_EQ(st, StatusOk);
    EXPECT_EQ(tt::alloc_calls(), calls + 1);
    EXPECT_EQ(tt::live_blocks(), live);
    for (size_t off : {size_t(0), size_t(1), size_t(8), size_t(63)}) {
        tt::Guarded<Tav8u> wsp(size_t(bufSize), off);
        const long c0 = tt::alloc_calls();
        EXPECT_EQ(ft::transform<L>(rec.p, false, false, x, wsp.data(), &st), ref);
        EXPECT_EQ(st, StatusOk);
        EXPECT_EQ(ft::transform<L>(rec.p, false, true, x, wsp.data(), &st), ref);
        EXPECT_EQ(tt::alloc_calls(), c0);
        EXPECT_TRUE(wsp.borders_intact()) << "offset " << off;
    }
    for (bool inv : {false, true})
        for (bool inPlace : {false, true}) {
            tt::Guarded<S> dst(2 * n);
            std::vector<S> src = ft::to_split(x);
            S* d = inPlace ? src.data() : dst.data();
            if (!L::split && inPlace) src = x;
            const std::vector<S> before = src;
            tt::fail_alloc_at(1);
            EXPECT_EQ(call<L>(inv, inPlace, src.data(), d, n, rec.p, nullptr), ErrMemAlloc);
            tt::fail_alloc_at(0);
            EXPECT_TRUE(dst.untouched());
            EXPECT_EQ(src, before);
            EXPECT_EQ(tt::live_blocks(), live);
        }
    // Order 12 in 32f and 11 in 64f need no buffer: nothing is allocated.
    ft::Record<L> small(sizeof(S) == 4 ? 12 : 11, ScaleNever);
    ASSERT_EQ(L::buf_size(small.p, &bufSize), StatusOk);
    EXPECT_EQ(bufSize, 0);
    const std::vector<S> y = ft::random_signal<S>(rng, size_t(1) << (sizeof(S) == 4 ? 12 : 11));
    tt::fail_alloc_at(1);
    ft::transform<L>(small.p, true, false, y, nullptr, &st);
    tt::fail_alloc_at(0);
    EXPECT_EQ(st, StatusOk);
}

// Unaligned source and destination give the same bits as aligned ones.
TYPED_TEST(Exec, UnalignedData)
{
    using L = TypeParam;
    using S = typename L::S;
    for (int order : {3, 6, 10, 11, 13}) {
        const size_t n = size_t(1) << order;
        ft::Record<L> rec(order, ScaleBothBySqrtLen);
        tt::Rng rng(5);
        const std::vector<S> x = L::split ? ft::to_split(ft::random_signal<S>(rng, n)) : ft::random_signal<S>(rng, n);
        std::vector<S> a(2 * n);
        ASSERT_EQ(call<L>(false, false, x.data(), a.data(), n, rec.p, nullptr), StatusOk);
        for (size_t off : {size_t(1), size_t(3)}) {
            std::vector<S> s(2 * n + 4), d(2 * n + 4);
            std::copy(x.begin(), x.end(), s.begin() + long(off));
            ASSERT_EQ(call<L>(false, false, s.data() + off, d.data() + off + 1, n, rec.p, nullptr), StatusOk);
            EXPECT_TRUE(std::equal(a.begin(), a.end(), d.begin() + long(off) + 1)) << order << " " << off;
        }
    }
}

// Forward then inverse: ScaleNever gives N times the input; every other
// flag gives the input back up to rounding.
TYPED_TEST(Exec, RoundTripsWithEveryFlag)
{
    using L = TypeParam;
    using S = typename L::S;
    for (int order : {0, 1, 4, 5, 6, 9, 11, 12, 14})
        for (int flag : {ScaleFwdByLen, ScaleInvByLen, ScaleBothBySqrtLen, ScaleNever}) {
            const size_t n = size_t(1) << order;
            ft::Record<L> rec(order, flag);
            tt::Rng rng(order * 10 + flag);
            const std::vector<S> x = ft::random_signal<S>(rng, n);
            Status st;
            const std::vector<S> y = ft::transform<L>(rec.p, false, false, x, nullptr, &st);
            const std::vector<S> z = ft::transform<L>(rec.p, true, true, y, nullptr, &st);
            const double f = flag == ScaleNever ? double(n) : 1.0;
            double num = 0, den = 0;
            for (size_t i = 0; i < 2 * n; ++i) {
                const double e = double(z[i]) - f * double(x[i]);
                num += e * e;
                den += f * f * double(x[i]) * double(x[i]);
            }
            EXPECT_LT(std::sqrt(num / den), 2 * ft::bound<S>(order)) << L::name << " " << order << " " << flag;
        }
}

} // namespace

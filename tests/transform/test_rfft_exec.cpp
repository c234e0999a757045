// The real FFT bodies: accuracy against a long-double reference at every
// order in both directions and every layout, the layouts' slots exactly,
// in place against out of place, the check order, the work buffer and its
// allocation failure, round trips with every flag.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <initializer_list>
#include <vector>

#include "alloc_fault.h"
#include "rfft_test_util.h"

namespace {

using rt::CCS;
using rt::cld;
using rt::Pack;
using rt::Perm;

template <class P> struct RealExec : ::testing::Test {};
TYPED_TEST_SUITE(RealExec, rt::Precisions);

// Forward in every layout, out of place and in place, against the
// reference spectrum; the three layouts hold the very same values.
template <class P> void check_forward(int order, const std::vector<double>& x, const std::vector<cld>& ref, int flag)
{
    using S = typename P::S;
    const size_t n = size_t(1) << order;
    rt::Record<P> rec(order, flag);
    ASSERT_NE(rec.p, nullptr);
    const long double f = flag == ScaleFwdByLen ? 1.0L / (long double)n
                          : flag == ScaleBothBySqrtLen ? 1.0L / sqrtl((long double)n) : 1.0L;
    const std::vector<S> xs(x.begin(), x.end());
    std::vector<S> perm;
    for (int l : {Perm, Pack, CCS}) {
        const size_t len = rt::layout_len(l, n);
        tt::Guarded<S> out(len);
        std::vector<S> src = xs;
        ASSERT_EQ(P::fwd(l, src.data(), out.data(), rec.p, nullptr), StatusOk);
        ASSERT_TRUE(out.borders_intact()) << P::name << " order " << order << " " << rt::layout_name(l);
        EXPECT_EQ(src, xs) << "source changed";
        const std::vector<S> got(out.data(), out.data() + len);
        if (l == Perm) {
            perm = got;
            const double err = rt::spectrum_error(ref, rt::from_layout(Perm, got, n), f);
            EXPECT_LT(err, ft::bound<S>(order)) << P::name << " order " << order << " flag " << flag;
        } else {
            // Every slot where the layout puts it: the Perm values moved, the
            // CCS imaginary slots of X[0] and X[N/2] exactly +0.
            const std::vector<S> want = rt::to_layout<S>(l, rt::from_layout(Perm, perm, n), n);
            EXPECT_EQ(std::memcmp(want.data(), got.data(), len * sizeof(S)), 0)
                << P::name << " order " << order << " " << rt::layout_name(l);
        }
        // In place: the CCS buffer holds N + 2 values.
        tt::Guarded<S> io(len);
        std::copy(xs.begin(), xs.end(), io.data());
        ASSERT_EQ(P::fwd_i(l, io.data(), rec.p, nullptr), StatusOk);
        EXPECT_TRUE(io.borders_intact());
        EXPECT_EQ(std::memcmp(io.data(), got.data(), len * sizeof(S)), 0)
            << P::name << " order " << order << " " << rt::layout_name(l) << ": in place differs";
    }
}

// Inverse from every layout, out of place and in place: one result.
template <class P> void check_inverse(int order, const std::vector<cld>& X, const std::vector<long double>& ref, int flag)
{
    using S = typename P::S;
    const size_t n = size_t(1) << order;
    rt::Record<P> rec(order, flag);
    ASSERT_NE(rec.p, nullptr);
    const long double f = flag == ScaleInvByLen ? 1.0L / (long double)n
                          : flag == ScaleBothBySqrtLen ? 1.0L / sqrtl((long double)n) : 1.0L;
    std::vector<S> first;
    for (int l : {Perm, Pack, CCS}) {
        const size_t len = rt::layout_len(l, n);
        const std::vector<S> in = rt::to_layout<S>(l, X, n);
        std::vector<S> src = in;
        tt::Guarded<S> out(n);
        ASSERT_EQ(P::inv(l, src.data(), out.data(), rec.p, nullptr), StatusOk);
        ASSERT_TRUE(out.borders_intact()) << P::name << " order " << order << " " << rt::layout_name(l);
        EXPECT_EQ(src, in) << "source changed";
        const std::vector<S> got(out.data(), out.data() + n);
        if (first.empty()) {
            first = got;
            const double err = rt::signal_error(ref, got.data(), f);
            EXPECT_LT(err, ft::bound<S>(order)) << P::name << " order " << order << " flag " << flag;
        } else {
            EXPECT_EQ(got, first) << P::name << " order " << order << " " << rt::layout_name(l);
        }
        tt::Guarded<S> io(len);
        std::copy(in.begin(), in.end(), io.data());
        ASSERT_EQ(P::inv_i(l, io.data(), rec.p, nullptr), StatusOk);
        EXPECT_TRUE(io.borders_intact());
        EXPECT_EQ(std::memcmp(io.data(), first.data(), n * sizeof(S)), 0)
            << P::name << " order " << order << " " << rt::layout_name(l) << ": in place differs";
    }
}

// The halved references of the large orders against the plain ones.
TEST(RealExec, HalvedReferenceAgreesWithThePlainOne)
{
    for (int order : {12, 13}) {
        const size_t n = size_t(1) << order;
        const std::vector<double> x = rt::random_real(7, n);
        EXPECT_LT(rt::spectrum_error(rt::ref_forward(x, false), rt::ref_forward(x, true)), 1e-17);
        const std::vector<cld> X = rt::random_spectrum(8, n);
        const std::vector<long double> a = rt::ref_inverse(X, n, false), b = rt::ref_inverse(X, n, true);
        long double num = 0, den = 0;
        for (size_t i = 0; i < n; ++i) num += (a[i] - b[i]) * (a[i] - b[i]), den += a[i] * a[i];
        EXPECT_LT(double(sqrtl(num / den)), 1e-17);
    }
}

// Every order from 1 point up, both precisions, both directions: this
// crosses the direct kernels (0 .. 5), the 32-point complex kernel (6), the
// single-level radix-4 (7 .. 11), the blocked merge and the two factors at
// half length, and the two-level real tables (19 in 32f, 18 in 64f).
TEST(RealExec, EveryOrderAgainstTheReference)
{
    for (int order = 0; order <= ft::kMaxTestedOrder; ++order) {
        const size_t n = size_t(1) << order;
        const std::vector<double> x = rt::random_real(0x51u + unsigned(order), n);
        const std::vector<cld> ref = rt::ref_forward(x);
        check_forward<rt::R32>(order, x, ref, ScaleNever);
        check_forward<rt::R64>(order, x, ref, ScaleNever);
        const std::vector<cld> X = rt::random_spectrum(0x99u + unsigned(order), n);
        const std::vector<long double> y = rt::ref_inverse(X, n);
        check_inverse<rt::R32>(order, X, y, ScaleNever);
        check_inverse<rt::R64>(order, X, y, ScaleNever);
    }
}

// The scaling flags in each direction against the same references.
TEST(RealExec, ScalingFlags)
{
    for (int order : {0, 1, 3, 5, 6, 7, 10, 12, 14}) {
        const size_t n = size_t(1) << order;
        const std::vector<double> x = rt::random_real(0x77u + unsigned(order), n);
        const std::vector<cld> ref = rt::ref_forward(x);
        const std::vector<cld> X = rt::random_spectrum(0x33u + unsigned(order), n);
        const std::vector<long double> y = rt::ref_inverse(X, n);
        for (int flag : {ScaleFwdByLen, ScaleInvByLen, ScaleBothBySqrtLen}) {
            check_forward<rt::R32>(order, x, ref, flag);
            check_forward<rt::R64>(order, x, ref, flag);
            check_inverse<rt::R32>(order, X, y, flag);
            check_inverse<rt::R64>(order, X, y, flag);
        }
    }
}

// Forward then inverse through each layout: ScaleNever gives N times the
// input (the pre-step doubles the spectrum), every other flag the input.
TYPED_TEST(RealExec, RoundTripsWithEveryFlag)
{
    using P = TypeParam;
    using S = typename P::S;
    for (int order : {0, 1, 2, 4, 5, 6, 8, 11, 13, 16}) {
        const size_t n = size_t(1) << order;
        const std::vector<double> x = rt::random_real(0x11u + unsigned(order), n);
        for (int flag : {ScaleFwdByLen, ScaleInvByLen, ScaleBothBySqrtLen, ScaleNever}) {
            rt::Record<P> rec(order, flag);
            const long double f = flag == ScaleNever ? (long double)n : 1.0L;
            for (int l : {Perm, Pack, CCS}) {
                std::vector<S> buf(rt::layout_len(l, n));
                std::copy(x.begin(), x.end(), buf.begin());
                ASSERT_EQ(P::fwd_i(l, buf.data(), rec.p, nullptr), StatusOk);
                ASSERT_EQ(P::inv_i(l, buf.data(), rec.p, nullptr), StatusOk);
                long double num = 0, den = 0;
                for (size_t i = 0; i < n; ++i) {
                    const long double d = (long double)buf[i] - f * x[i];
                    num += d * d;
                    den += f * x[i] * f * x[i];
                }
                EXPECT_LT(double(sqrtl(num / den)), 2 * ft::bound<S>(order))
                    << P::name << " order " << order << " flag " << flag << " " << rt::layout_name(l);
            }
        }
    }
}

// The inverse of a random spectrum in layout l out of place, into dst at
// each (byte offset, work buffer) case, against the same in place: the same
// bits, the source untouched, nothing written outside dst.
struct OutCase {
    size_t off;
    Tav8u* wsp;
};
template <class P>
void inverse_matches_in_place(tt::Rng& rng, const typename P::Spec* spec, int order, int l,
                              std::initializer_list<OutCase> cases)
{
    using S = typename P::S;
    const size_t n = size_t(1) << order;
    std::vector<S> in(rt::layout_len(l, n));
    for (S& v : in) v = S(rng.uniform(-1.0, 1.0));
    const std::vector<S> keep = in;
    std::vector<S> io = in;
    ASSERT_EQ(P::inv_i(l, io.data(), spec, nullptr), StatusOk);
    for (const OutCase& c : cases) {
        tt::Guarded<S> out(n, c.off);
        ASSERT_EQ(P::inv(l, in.data(), out.data(), spec, c.wsp), StatusOk);
        EXPECT_TRUE(out.borders_intact()) << P::name << " order " << order << " " << rt::layout_name(l);
        EXPECT_EQ(in, keep) << "source changed";
        EXPECT_EQ(std::memcmp(out.data(), io.data(), n * sizeof(S)), 0)
            << P::name << " order " << order << " " << rt::layout_name(l) << (c.wsp ? " with buffer" : "");
    }
}

// Out of place the inverse writes the pre-step into bit-reversed order (or
// goes through a scratch block at small orders); in place it keeps the
// pre-step in natural order and the swap list. Both give the same bits, at
// every order from 6 up, in every layout, scaled or not, with the
// destination at any offset.
TYPED_TEST(RealExec, InverseOutOfPlaceEqualsInPlace)
{
    using P = TypeParam;
    using S = typename P::S;
    tt::Rng rng(0x1e5u);
    for (int order = 6; order <= ft::kMaxTestedOrder; ++order) {
        rt::Record<P> rec(order, order % 2 ? ScaleInvByLen : ScaleNever);
        for (int l : {Perm, Pack, CCS})
            inverse_matches_in_place<P>(rng, rec.p, order, l, {{(size_t(order) * 5 % 16) * sizeof(S), nullptr}});
    }
}

// 32f out of place from 16384 to 131072 points runs the pre-step as the
// rows of the half-length transform are read in (the first pair of each
// row group, column 0 with the two real values and the middle column take
// their own paths). Against in place, which runs the pre-step on its own:
// the same bits for every layout and flag, with the caller's work buffer
// and without, the source untouched, nothing written outside dst.
TYPED_TEST(RealExec, InverseWithPreStepInTheRowsEqualsInPlace)
{
    using P = TypeParam;
    using S = typename P::S;
    tt::Rng rng(0x7a11u);
    for (int order = 13; order <= 18; ++order)
        for (int flag : {ScaleNever, ScaleInvByLen, ScaleBothBySqrtLen}) {
            rt::Record<P> rec(order, flag);
            int bufSize = 0;
            ASSERT_EQ(P::buf_size(rec.p, &bufSize), StatusOk);
            std::vector<Tav8u> buf(size_t(bufSize) + 64);
            for (int l : {Perm, Pack, CCS})
                inverse_matches_in_place<P>(rng, rec.p, order, l, {{0, nullptr}, {4 * sizeof(S), buf.data()}});
        }
}

// Record null, then its tag, then the data pointers; nothing written.
TYPED_TEST(RealExec, CheckOrderAndUntouchedOutputs)
{
    using P = TypeParam;
    using S = typename P::S;
    rt::Record<P> rec(4, ScaleNever);
    std::vector<S> src(18, S(1));
    for (int l : {Perm, Pack, CCS}) {
        tt::Guarded<S> dst(18);
        EXPECT_EQ(P::fwd(l, nullptr, nullptr, nullptr, nullptr), ErrNullPtr);
        EXPECT_EQ(P::fwd(l, src.data(), dst.data(), nullptr, nullptr), ErrNullPtr);
        EXPECT_EQ(P::inv(l, src.data(), dst.data(), nullptr, nullptr), ErrNullPtr);
        EXPECT_EQ(P::fwd_i(l, dst.data(), nullptr, nullptr), ErrNullPtr);
        EXPECT_EQ(P::inv_i(l, dst.data(), nullptr, nullptr), ErrNullPtr);
        EXPECT_EQ(P::fwd(l, src.data(), nullptr, rec.p, nullptr), ErrNullPtr);
        EXPECT_EQ(P::fwd(l, nullptr, dst.data(), rec.p, nullptr), ErrNullPtr);
        EXPECT_EQ(P::inv(l, src.data(), nullptr, rec.p, nullptr), ErrNullPtr);
        EXPECT_EQ(P::inv(l, nullptr, dst.data(), rec.p, nullptr), ErrNullPtr);
        EXPECT_EQ(P::fwd_i(l, nullptr, rec.p, nullptr), ErrNullPtr);
        EXPECT_EQ(P::inv_i(l, nullptr, rec.p, nullptr), ErrNullPtr);
        // A record of another kind, or a freed one, is a mismatch even with
        // null data pointers.
        using Other = std::conditional_t<sizeof(S) == 4, FFTSpec_C_32fc, FFTSpec_C_64fc>;
        Other* other = nullptr;
        if constexpr (sizeof(S) == 4) ASSERT_EQ(tavsFFTInitAlloc_C_32fc(&other, 4, ScaleNever, 0), StatusOk);
        else ASSERT_EQ(tavsFFTInitAlloc_C_64fc(&other, 4, ScaleNever, 0), StatusOk);
        const auto* wrong = reinterpret_cast<const typename P::Spec*>(other);
        EXPECT_EQ(P::fwd(l, nullptr, nullptr, wrong, nullptr), ErrContextMismatch);
        EXPECT_EQ(P::inv(l, src.data(), dst.data(), wrong, nullptr), ErrContextMismatch);
        EXPECT_EQ(P::fwd_i(l, dst.data(), wrong, nullptr), ErrContextMismatch);
        EXPECT_EQ(P::inv_i(l, nullptr, wrong, nullptr), ErrContextMismatch);
        if constexpr (sizeof(S) == 4) tavsFFTFree_C_32fc(other);
        else tavsFFTFree_C_64fc(other);
        typename P::Spec* gone = nullptr;
        ASSERT_EQ(P::alloc(&gone, 4, ScaleNever), StatusOk);
        std::vector<unsigned char> keep(reinterpret_cast<unsigned char*>(gone),
                                        reinterpret_cast<unsigned char*>(gone) + 144);
        ASSERT_EQ(P::free(gone), StatusOk);
        // The freed block is gone; a copy of its header with the tag cleared
        // stands for a stale record.
        std::memset(keep.data(), 0, 4);
        const auto* stale = reinterpret_cast<const typename P::Spec*>(keep.data());
        EXPECT_EQ(P::fwd(l, src.data(), dst.data(), stale, nullptr), ErrContextMismatch);
        EXPECT_EQ(P::inv(l, src.data(), dst.data(), stale, nullptr), ErrContextMismatch);
        EXPECT_TRUE(dst.untouched());
    }
}

// A null buffer at an order that needs work space allocates it and frees
// it; when that fails the destination is untouched and nothing leaks. A
// caller's buffer at any offset gives the same result without allocating.
TYPED_TEST(RealExec, WorkBufferRules)
{
    using P = TypeParam;
    using S = typename P::S;
    const int order = 15; // two factors at half length in both precisions
    const size_t n = size_t(1) << order;
    rt::Record<P> rec(order, ScaleInvByLen);
    int bufSize = 0;
    ASSERT_EQ(P::buf_size(rec.p, &bufSize), StatusOk);
    ASSERT_GT(bufSize, 64);
    const std::vector<double> xd = rt::random_real(3, n + 2);
    const std::vector<S> x(xd.begin(), xd.end());
    const long live = tt::live_blocks();
    for (int l : {Perm, Pack, CCS})
        for (bool inv : {false, true}) {
            const size_t len = rt::layout_len(l, n);
            std::vector<S> ref(len + 2);
            const long c0 = tt::alloc_calls();
            ASSERT_EQ(inv ? P::inv(l, x.data(), ref.data(), rec.p, nullptr) : P::fwd(l, x.data(), ref.data(), rec.p, nullptr),
                      StatusOk);
            EXPECT_EQ(tt::alloc_calls(), c0 + 1);
            EXPECT_EQ(tt::live_blocks(), live);
            for (size_t off : {size_t(0), size_t(1), size_t(63)}) {
                tt::Guarded<Tav8u> wsp(size_t(bufSize), off);
                std::vector<S> got(len + 2);
                const long c1 = tt::alloc_calls();
                ASSERT_EQ(inv ? P::inv(l, x.data(), got.data(), rec.p, wsp.data())
                              : P::fwd(l, x.data(), got.data(), rec.p, wsp.data()),
                          StatusOk);
                EXPECT_EQ(tt::alloc_calls(), c1);
                EXPECT_EQ(got, ref);
                EXPECT_TRUE(wsp.borders_intact());
            }
            tt::Guarded<S> dst(len);
            std::vector<S> io(x.begin(), x.begin() + long(len));
            const std::vector<S> before = io;
            tt::fail_alloc_at(1);
            EXPECT_EQ(inv ? P::inv(l, x.data(), dst.data(), rec.p, nullptr) : P::fwd(l, x.data(), dst.data(), rec.p, nullptr),
                      ErrMemAlloc);
            tt::fail_alloc_at(1);
            EXPECT_EQ(inv ? P::inv_i(l, io.data(), rec.p, nullptr) : P::fwd_i(l, io.data(), rec.p, nullptr),
                      ErrMemAlloc);
            tt::fail_alloc_at(0);
            EXPECT_TRUE(dst.untouched());
            EXPECT_EQ(io, before);
            EXPECT_EQ(tt::live_blocks(), live);
        }
    // Orders whose half length needs no work space allocate nothing.
    for (int o : {0, 5, 6, 11, 12}) {
        rt::Record<P> small(o, ScaleNever);
        std::vector<S> buf(rt::layout_len(CCS, size_t(1) << o), S(1));
        tt::fail_alloc_at(1);
        EXPECT_EQ(P::fwd_i(CCS, buf.data(), small.p, nullptr), StatusOk) << o;
        EXPECT_EQ(P::inv_i(CCS, buf.data(), small.p, nullptr), StatusOk) << o;
        tt::fail_alloc_at(0);
    }
}

// Unaligned source and destination give the same bits as aligned ones.
TYPED_TEST(RealExec, UnalignedData)
{
    using P = TypeParam;
    using S = typename P::S;
    for (int order : {2, 6, 9, 12}) {
        const size_t n = size_t(1) << order;
        rt::Record<P> rec(order, ScaleNever);
        const std::vector<double> xd = rt::random_real(21, n + 2);
        const std::vector<S> x(xd.begin(), xd.end());
        for (int l : {Perm, Pack, CCS}) {
            const size_t len = rt::layout_len(l, n);
            std::vector<S> a(len), b(n);
            ASSERT_EQ(P::fwd(l, x.data(), a.data(), rec.p, nullptr), StatusOk);
            ASSERT_EQ(P::inv(l, x.data(), b.data(), rec.p, nullptr), StatusOk);
            for (size_t off : {size_t(1), size_t(3)}) {
                std::vector<S> s(len + 4), d(len + 4);
                std::copy(x.begin(), x.begin() + long(len), s.begin() + long(off));
                ASSERT_EQ(P::fwd(l, s.data() + off, d.data() + off + 1, rec.p, nullptr), StatusOk);
                EXPECT_TRUE(std::equal(a.begin(), a.end(), d.begin() + long(off) + 1)) << order << " " << off;
                ASSERT_EQ(P::inv(l, s.data() + off, d.data() + off + 1, rec.p, nullptr), StatusOk);
                EXPECT_TRUE(std::equal(b.begin(), b.end(), d.begin() + long(off) + 1)) << order << " " << off;
            }
        }
    }
}

} // namespace

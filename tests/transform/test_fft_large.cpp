// Orders above 10: the blocked merge and the two-factor levels.
#include "fft_test_util.h"

#include <cstring>
#include <memory>
#include <vector>

namespace {

TEST(LargeOrders, ForwardAndInverseUpToOrder20)
{
    const int top = std::min(20, ft::kMaxTestedOrder);
    for (int order = 11; order <= top; ++order)
    {
        const ft::Case f = ft::make_case(order, false);
        ft::check_all_layouts(f);
        ft::check_all_layouts(ft::mirrored(f));
    }
}

// Above order 20 one transform each: forward for the interleaved layouts,
// inverse for the split ones.
TEST(LargeOrders, Orders21And22)
{
    for (int order = 21; order <= ft::kMaxTestedOrder; ++order) {
        const ft::Case f = ft::make_case(order, false);
        ft::check_case<ft::L32fc>(f, ScaleNever, false);
        ft::check_case<ft::L64fc>(f, ScaleNever, false);
        const ft::Case i = ft::mirrored(f);
        ft::check_case<ft::L32f>(i, ScaleNever, false);
        ft::check_case<ft::L64f>(i, ScaleNever, false);
    }
}

// The crossings between the paths, with every flag: 10 -> 11 (single level
// to blocked merge), 12 -> 13 in 32f and 11 -> 12 in 64f (blocked merge to
// two factors).
TEST(LargeOrders, PathCrossingsWithEveryFlag)
{
    for (int order : {10, 11, 12, 13})
        for (bool inv : {false, true}) {
            const ft::Case c = ft::make_case(order, inv);
            for (int flag : {ScaleFwdByLen, ScaleInvByLen, ScaleBothBySqrtLen}) ft::check_all_layouts(c, flag);
        }
}

// 32fc orders whose rows (256 or 512 points) run four side by side, read
// through the bit reversal out of place and turned in place: every flag in
// both directions, the scale applied on the way out of the rows.
TEST(LargeOrders, RowsFourAtATimeWithEveryFlag)
{
    for (int order : {14, 15, 16, 17, 19}) {
        if (order > ft::kMaxTestedOrder) continue;
        for (bool inv : {false, true}) {
            const ft::Case c = ft::make_case(order, inv);
            for (int flag : {ScaleFwdByLen, ScaleInvByLen, ScaleBothBySqrtLen}) ft::check_case<ft::L32fc>(c, flag);
        }
    }
}

// The interleaved 32fc column pass (eight columns a walk, or four where the
// columns are longer than 256 points) and the split 32f one (four columns,
// one value at a time in the gather) do the same operations on every value:
// the two layouts give the same bits, in both directions, scaled or not.
TEST(LargeOrders, InterleavedColumnsMatchSplitBitForBit)
{
    tt::Rng rng(0xc01u);
    for (int order = 11; order <= std::min(20, ft::kMaxTestedOrder); ++order) {
        const size_t n = size_t(1) << order;
        std::vector<Tav32fc> x(n), y(n);
        std::vector<float> re(n), im(n), yr(n), yi(n);
        for (size_t i = 0; i < n; ++i) {
            x[i].re = re[i] = float(rng.uniform(-1.0, 1.0));
            x[i].im = im[i] = float(rng.uniform(-1.0, 1.0));
        }
        for (int flag : {ScaleNever, ScaleBothBySqrtLen}) {
            FFTSpec_C_32fc* a = nullptr;
            FFTSpec_C_32f* b = nullptr;
            ASSERT_EQ(tavsFFTInitAlloc_C_32fc(&a, order, flag, 0), StatusOk);
            ASSERT_EQ(tavsFFTInitAlloc_C_32f(&b, order, flag, 0), StatusOk);
            for (bool inv : {false, true}) {
                if (inv) {
                    ASSERT_EQ(tavsFFTInv_CToC_32fc(x.data(), y.data(), a, nullptr), StatusOk);
                    ASSERT_EQ(tavsFFTInv_CToC_32f(re.data(), im.data(), yr.data(), yi.data(), b, nullptr), StatusOk);
                } else {
                    ASSERT_EQ(tavsFFTFwd_CToC_32fc(x.data(), y.data(), a, nullptr), StatusOk);
                    ASSERT_EQ(tavsFFTFwd_CToC_32f(re.data(), im.data(), yr.data(), yi.data(), b, nullptr), StatusOk);
                }
                size_t diffs = 0;
                for (size_t i = 0; i < n; ++i)
                    diffs += size_t(std::memcmp(&y[i].re, &yr[i], sizeof(float)) != 0) +
                             size_t(std::memcmp(&y[i].im, &yi[i], sizeof(float)) != 0);
                EXPECT_EQ(diffs, 0u) << "order " << order << " flag " << flag << (inv ? " inverse" : " forward");
            }
            tavsFFTFree_C_32fc(a);
            tavsFFTFree_C_32f(b);
        }
    }
}

} // namespace

// ---- orders 23 and up ---------------------------------------------------------

namespace {

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define FT_INSTRUMENTED 1
#endif
#endif
#if defined(__SANITIZE_ADDRESS__) || !defined(NDEBUG)
#ifndef FT_INSTRUMENTED
#define FT_INSTRUMENTED 1
#endif
#endif
#ifdef FT_INSTRUMENTED
constexpr bool kQuick = true; // instrumented or unoptimised: order 23 only
#else
constexpr bool kQuick = false;
#endif

// Complex product written out: the library's operator checks for
// infinities on every call, which costs more than the whole transform here.
inline ft::cld cmul(const ft::cld& a, const ft::cld& b)
{
    return {a.real() * b.real() - a.imag() * b.imag(), a.real() * b.imag() + a.imag() * b.real()};
}

// exp(+2 pi i p / N) for any p, from two tables of N / 4096 and 4096 entries
// (one product per value): in long double for the direct transform, and
// rounded to double for the signal, which the transforms see in 32f or 64f.
class Circle {
public:
    explicit Circle(int order) : mask_((uint64_t(1) << order) - 1), hi_(size_t(1) << (order - 12)), lo_(4096)
    {
        const long double pi = 3.141592653589793238462643383279502884L, n = (long double)(mask_ + 1);
        for (size_t i = 0; i < hi_.size(); ++i) hi_[i] = std::polar(1.0L, 2 * pi * (long double)(i * 4096) / n);
        for (size_t i = 0; i < lo_.size(); ++i) lo_[i] = std::polar(1.0L, 2 * pi * (long double)i / n);
        for (const auto& v : hi_) hiD_.emplace_back(double(v.real()), double(v.imag()));
        for (const auto& v : lo_) loD_.emplace_back(double(v.real()), double(v.imag()));
    }
    ft::cld operator()(uint64_t p) const
    {
        p &= mask_;
        return cmul(hi_[p >> 12], lo_[p & 4095]);
    }
    // The same in double: re and im of exp(2 pi i p / N).
    void d(uint64_t p, double& re, double& im) const
    {
        p &= mask_;
        const auto& a = hiD_[p >> 12];
        const auto& b = loD_[p & 4095];
        re = a.real() * b.real() - a.imag() * b.imag();
        im = a.real() * b.imag() + a.imag() * b.real();
    }

private:
    uint64_t mask_;
    std::vector<ft::cld> hi_, lo_;
    std::vector<std::complex<double>> hiD_, loD_;
};

// exp(2 pi i k n / N) for n = 0, 1, 2, ... by repeated products with the
// step, restarted from the tables every 1024 values so the error stays at
// a few units of long double.
class Rotor {
public:
    Rotor(const Circle& e, uint64_t k) : e_(e), k_(k), step_(e(k)) {}
    ft::cld next()
    {
        w_ = (n_ & 1023) == 0 ? e_(k_ * n_) : cmul(w_, step_);
        ++n_;
        return w_;
    }

private:
    const Circle& e_;
    uint64_t k_, n_ = 0;
    ft::cld step_, w_;
};

// The test signal: four tones at known bins (0, k1, N/4, N/2) plus three
// impulses, so that the spectrum is known in closed form at the tone bins
// and the data is far from periodic (every twiddle of every stage matters).
struct HugeSignal {
    int order;
    uint64_t N, k1;
    ft::cld tone[4] = {{0.1L, 0.0L}, {0.5L, -0.25L}, {0.125L, 0.375L}, {-0.3L, 0.2L}};
    uint64_t toneBin[4];
    uint64_t pos[3];
    ft::cld imp[3] = {{0.75L, -0.5L}, {-0.625L, 0.25L}, {0.5L, 0.5L}};

    explicit HugeSignal(int o) : order(o), N(uint64_t(1) << o), k1((N / 3) | 1)
    {
        const uint64_t b[4] = {0, k1, N / 4, N / 2};
        std::copy(b, b + 4, toneBin);
        pos[0] = N / 7, pos[1] = 12345, pos[2] = N - 3;
    }
    // Value n in double (the tones' amplitudes are exact in double).
    void value(const Circle& e, uint64_t n, double& re, double& im) const
    {
        double wr, wi;
        e.d(sig_k1(n), wr, wi);
        const double ar = double(tone[1].real()), ai = double(tone[1].imag());
        re = double(tone[0].real()) + (ar * wr - ai * wi);
        im = double(tone[0].imag()) + (ar * wi + ai * wr);
        const double tr = double(tone[2].real()), ti = double(tone[2].imag()); // times i^n
        const int q = int(n % 4);
        re += q == 0 ? tr : q == 1 ? -ti : q == 2 ? -tr : ti;
        im += q == 0 ? ti : q == 1 ? tr : q == 2 ? -ti : -tr;
        const double sg = (n & 1) ? -1.0 : 1.0;
        re += sg * double(tone[3].real());
        im += sg * double(tone[3].imag());
        for (int j = 0; j < 3; ++j)
            if (n == pos[j]) re += double(imp[j].real()), im += double(imp[j].imag());
    }
    uint64_t sig_k1(uint64_t n) const { return k1 * n; }
    // The forward transform of the signal (before rounding) at bin k.
    ft::cld spectrum(const Circle& e, uint64_t k) const
    {
        ft::cld X = 0;
        for (int j = 0; j < 4; ++j)
            if (k == toneBin[j]) X += tone[j] * (long double)N;
        for (int j = 0; j < 3; ++j) X += cmul(imp[j], e(N - ((k * pos[j]) & (N - 1)))); // exp(-2 pi i k n / N)
        return X;
    }
};

template <class S, class C, class Spec> struct HugeKind {
    const char* name;
    Status (*initAlloc)(Spec**, int, int, int);
    Status (*fwd)(const C*, C*, const Spec*, Tav8u*);
    Status (*inv)(C*, const Spec*, Tav8u*);
    Status (*free)(Spec*);
};

// Forward out of place (the bit reversal fused with the first pass), then
// inverse in place (the swap list) at one order: eight bins against the closed
// form, at order 23 two bins against a direct long-double transform of the
// stored (rounded) data, and the round trip against the stored data.
template <class S, class C, class Spec> void check_huge(const HugeKind<S, C, Spec>& k, int order, int flag)
{
    const HugeSignal sig(order);
    const Circle e(order);
    const uint64_t N = sig.N;
    Spec* spec = nullptr;
    ASSERT_EQ(k.initAlloc(&spec, order, flag, 0), StatusOk) << k.name << " order " << order;
    // The input stays as it is for the round trip; the spectrum goes to data.
    std::unique_ptr<S[]> input(new S[2 * N]), data(new S[2 * N]);
    // Direct transform in long double at two bins off the tones, accumulated
    // while the data is written (the twiddle of value n is exp(-2 pi i k n /
    // N)); at the first order only, as it costs more than the transforms.
    const bool direct = order == 23;
    const uint64_t bins[2] = {5, N - 777};
    ft::cld dft[2] = {0, 0};
    Rotor r0(e, N - bins[0]), r1(e, N - bins[1]);
    double energy = 0;
    for (uint64_t n = 0; n < N; ++n) {
        double re, im;
        sig.value(e, n, re, im);
        input[2 * n] = S(re);
        input[2 * n + 1] = S(im);
        energy += double(input[2 * n]) * double(input[2 * n]) + double(input[2 * n + 1]) * double(input[2 * n + 1]);
        if (direct) {
            const ft::cld xs((long double)input[2 * n], (long double)input[2 * n + 1]);
            dft[0] += cmul(xs, r0.next());
            dft[1] += cmul(xs, r1.next());
        }
    }
    ASSERT_EQ(k.fwd(reinterpret_cast<const C*>(input.get()), reinterpret_cast<C*>(data.get()), spec, nullptr),
              StatusOk);
    // Per-bin tolerance: the RMS error per bin that the bound on the relative
    // RMS error allows (Parseval: |X|^2 sums to N * energy), times 64 as the
    // rounding gathers in the bins next to a tone, plus the bound relative to
    // the bin itself (a tone bin carries most of the energy, and with it most
    // of the rounding). A wrong twiddle anywhere misses by orders more.
    const long double fwdScale = flag == ScaleFwdByLen ? 1.0L / (long double)N : 1.0L;
    const long double tolAll = 64 * ft::bound<S>(order) * std::sqrt((long double)energy) * fwdScale;
    auto tol = [&](const ft::cld& want) { return tolAll + 8 * ft::bound<S>(order) * std::abs(want); };
    auto got = [&](uint64_t b) { return ft::cld((long double)data[2 * b], (long double)data[2 * b + 1]); };
    // The tone bins and four others against the closed form (the rounding of
    // the input to S moves them by far less than the tolerance).
    const uint64_t closed[8] = {sig.toneBin[0], sig.toneBin[1], sig.toneBin[2], sig.toneBin[3],
                                bins[0],        bins[1],        N / 2 + 1,      3 * N / 8 + 11};
    for (uint64_t b : closed) {
        const ft::cld want = sig.spectrum(e, b) * fwdScale;
        EXPECT_LT(std::abs(got(b) - want), tol(want)) << k.name << " order " << order << " bin " << b;
    }
    if (direct)
        for (int j = 0; j < 2; ++j)
            EXPECT_LT(std::abs(got(bins[j]) - dft[j] * fwdScale), tol(dft[j] * fwdScale))
                << k.name << " order " << order << " direct, bin " << bins[j];
    ASSERT_EQ(k.inv(reinterpret_cast<C*>(data.get()), spec, nullptr), StatusOk);
    double err = 0;
    for (uint64_t n = 0; n < 2 * N; ++n) {
        const double d = double(data[n]) - double(input[n]);
        err += d * d;
    }
    EXPECT_LT(double(std::sqrt(err / energy)), 2 * ft::bound<S>(order)) << k.name << " order " << order << " round trip";
    EXPECT_EQ(k.free(spec), StatusOk);
}

const HugeKind<float, Tav32fc, FFTSpec_C_32fc> kHuge32fc{"32fc", tavsFFTInitAlloc_C_32fc, tavsFFTFwd_CToC_32fc,
                                                          tavsFFTInv_CToC_32fc_I, tavsFFTFree_C_32fc};
const HugeKind<double, Tav64fc, FFTSpec_C_64fc> kHuge64fc{"64fc", tavsFFTInitAlloc_C_64fc, tavsFFTFwd_CToC_64fc,
                                                           tavsFFTInv_CToC_64fc_I, tavsFFTFree_C_64fc};

// The largest orders, one record at a time, every one of them end to end;
// the scaling flag alternates between the two that make a round trip return
// the input.
TEST(LargeOrders, Orders23AndUp)
{
    const std::vector<int> o32 = kQuick ? std::vector<int>{23} : std::vector<int>{23, 24, 25, 26, 27};
    const std::vector<int> o64 = kQuick ? std::vector<int>{23} : std::vector<int>{23, 24, 25, 26};
    for (int order : o32) check_huge(kHuge32fc, order, order % 2 ? ScaleFwdByLen : ScaleInvByLen);
    for (int order : o64) check_huge(kHuge64fc, order, order % 2 ? ScaleInvByLen : ScaleFwdByLen);
}

} // namespace

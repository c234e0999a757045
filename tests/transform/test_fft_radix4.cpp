// Orders 6 to 10: permutation and the single-level radix-4 kernel.
#include "fft_test_util.h"
#include "internal/fft.h"

#include <limits>

namespace {

template <class L> class Radix4 : public ::testing::Test {};
TYPED_TEST_SUITE(Radix4, ft::Layouts);

TEST(Radix4, EveryOrderEveryFlagBothDirections)
{
    for (int order = 6; order <= 10; ++order)
        for (bool inv : {false, true}) {
            const ft::Case c = ft::make_case(order, inv);
            for (int flag : {ScaleFwdByLen, ScaleInvByLen, ScaleBothBySqrtLen, ScaleNever}) ft::check_all_layouts(c, flag);
        }
}

// A unit impulse at position p transforms to W^(p k): this checks the
// permutation and the stage twiddles value by value.
TYPED_TEST(Radix4, ImpulsesGiveExactPhases)
{
    using S = typename TypeParam::S;
    for (int order : {6, 7, 10}) {
        const size_t n = size_t(1) << order;
        ft::Record<TypeParam> rec(order, ScaleNever);
        for (size_t p : {size_t(0), size_t(1), n / 2 - 1, n / 2, n - 1}) {
            std::vector<S> x(2 * n, S(0));
            x[2 * p] = S(1);
            Status st = -1;
            const std::vector<S> y = ft::transform<TypeParam>(rec.p, false, false, x, nullptr, &st);
            ASSERT_EQ(st, StatusOk);
            const double tol = sizeof(S) == 4 ? 2e-6 : 4e-15;
            for (size_t k = 0; k < n; ++k) {
                const long double t = -2 * 3.141592653589793238L * (long double)((p * k) % n) / (long double)n;
                EXPECT_NEAR(double(y[2 * k]), double(cosl(t)), tol) << order << " " << p << " " << k;
                EXPECT_NEAR(double(y[2 * k + 1]), double(sinl(t)), tol) << order << " " << p << " " << k;
            }
        }
    }
}

} // namespace

// ---- the kernel written out value by value ---------------------------------

namespace {

template <class S> struct Cv {
    S r, i;
};
template <class S> Cv<S> operator+(Cv<S> a, Cv<S> b) { return {a.r + b.r, a.i + b.i}; }
template <class S> Cv<S> operator-(Cv<S> a, Cv<S> b) { return {a.r - b.r, a.i - b.i}; }

// x * w forward, x * conj(w) inverse; -i x forward, +i x inverse.
template <class S> Cv<S> twist(Cv<S> x, Cv<S> w, bool inv)
{
    if (inv) return {x.r * w.r + x.i * w.i, x.i * w.r - x.r * w.i};
    return {x.r * w.r - x.i * w.i, x.r * w.i + x.i * w.r};
}
template <class S> Cv<S> turn(Cv<S> x, bool inv) { return inv ? Cv<S>{-x.i, x.r} : Cv<S>{x.i, -x.r}; }

template <class S> void bfly(Cv<S>* a, Cv<S>* b, Cv<S>* c, Cv<S>* d, bool inv)
{
    const Cv<S> t0 = *a + *b, t1 = *a - *b, t2 = *c + *d, t3 = turn(*c - *d, inv);
    *a = t0 + t2, *b = t1 + t3, *c = t0 - t2, *d = t1 - t3;
}

// The radix-4 decimation-in-time kernel of N = 2^order points on
// interleaved values: bit reversal, stage one, the radix-2 stage of span 8
// for an odd order, then the radix-4 stages with the record's table, whose
// first butterfly of each group is not multiplied.
template <class S> std::vector<S> kernel_model(const std::vector<S>& x, int order, const S* tw, bool inv)
{
    const size_t n = size_t(1) << order;
    std::vector<Cv<S>> v(n);
    for (size_t j = 0; j < n; ++j) {
        size_t r = 0;
        for (int b = 0; b < order; ++b) r |= ((j >> b) & 1) << (order - 1 - b);
        v[r] = {x[2 * j], x[2 * j + 1]};
    }
    for (size_t g = 0; g < n; g += 4) bfly(&v[g], &v[g + 1], &v[g + 2], &v[g + 3], inv);
    size_t span = 16;
    if (order & 1) {
        const S c = sizeof(S) == 4 ? S(0.70710677f) : S(0.70710678118654752);
        for (size_t b = 0; b < n; b += 8) {
            Cv<S>* e = &v[b];
            Cv<S> o[4] = {e[4], twist(e[5], {c, -c}, inv), turn(e[6], inv), twist(e[7], {-c, -c}, inv)};
            for (int m = 0; m < 4; ++m) {
                const Cv<S> s = e[m];
                e[m] = s + o[m];
                e[m + 4] = s - o[m];
            }
        }
        span = 32;
    }
    for (; span <= n; span *= 4) {
        const size_t q = span / 4, stride = 6 * (n / span);
        for (size_t k = 0; k < q; ++k) {
            const S* t = tw + k * stride;
            for (size_t b = k; b < n; b += span) {
                Cv<S> a = v[b], p = v[b + q], c = v[b + 2 * q], d = v[b + 3 * q];
                if (k != 0) {
                    p = twist(p, {t[2], t[3]}, inv);
                    c = twist(c, {t[0], t[1]}, inv);
                    d = twist(d, {t[4], t[5]}, inv);
                }
                bfly(&a, &p, &c, &d, inv);
                v[b] = a, v[b + q] = p, v[b + 2 * q] = c, v[b + 3 * q] = d;
            }
        }
    }
    std::vector<S> y(2 * n);
    for (size_t k = 0; k < n; ++k) y[2 * k] = v[k].r, y[2 * k + 1] = v[k].i;
    return y;
}

// Each layout's kernel against the model, out of place and in place, on data
// made of zeros of both signs, infinities and plain values: the same bits
// wherever the model has a number (zeros with their signs), NaN where it
// has NaN.
TYPED_TEST(Radix4, KernelBitForBitOnZerosAndInfinities)
{
    using S = typename TypeParam::S;
    const S inf = std::numeric_limits<S>::infinity();
    tt::Rng rng(0x4a4u);
    for (int order = 6; order <= 10; ++order) {
        const size_t n = size_t(1) << order;
        ft::Record<TypeParam> rec(order, ScaleNever);
        const S* tw = reinterpret_cast<const tavs::fft::FloatSpec<S>*>(rec.p)->radixFour;
        for (int trial = 0; trial < 4; ++trial) {
            // All negative zeros, then mostly zeros of random signs, so that
            // the stages make zeros of both signs; in the last trials one
            // infinity as well.
            std::vector<S> x(2 * n);
            for (size_t j = 0; j < 2 * n; ++j) {
                const double u = rng.uniform(0.0, 1.0);
                x[j] = trial == 0 ? -S(0) : u < 0.45 ? S(0) : u < 0.9 ? -S(0) : u < 0.95 ? S(1) : S(-0.5);
            }
            if (trial >= 2) x[size_t(rng.uniform(0.0, double(2 * n) - 0.001))] = trial == 2 ? inf : -inf;
            for (bool inv : {false, true}) {
                const std::vector<S> want = kernel_model(x, order, tw, inv);
                for (bool inPlace : {false, true}) {
                    Status st = -1;
                    const std::vector<S> got = ft::transform<TypeParam>(rec.p, inv, inPlace, x, nullptr, &st);
                    ASSERT_EQ(st, StatusOk);
                    size_t diffs = 0, zeros = 0, infs = 0;
                    for (size_t j = 0; j < 2 * n; ++j) {
                        if (std::isnan(want[j])) {
                            diffs += size_t(!std::isnan(got[j]));
                        } else {
                            zeros += size_t(want[j] == S(0));
                            infs += size_t(std::isinf(want[j]));
                            diffs += size_t(std::memcmp(&want[j], &got[j], sizeof(S)) != 0);
                        }
                    }
                    EXPECT_EQ(diffs, 0u) << TypeParam::name << " order " << order << " trial " << trial
                                         << (inv ? " inverse" : " forward") << (inPlace ? " in place" : "");
                    // The data did what they are for.
                    if (trial == 0) EXPECT_EQ(zeros, 2 * n) << order;
                    if (trial >= 2) EXPECT_GT(infs, 0u) << order;
                }
            }
        }
    }
}

} // namespace

// The real FFT's post-step (half-length spectrum to the spectrum of the real
// signal, Perm order) and pre-step (its inverse, doubled so that the
// unscaled round trip gives N times the input, as the complex one does).
// Each pairs index k with its mirror M - k; the pairs k = 1 .. M/2 - 1 run
// in SSE2 lanes of four (32f) or two (64f) pairs, the tail one pair at a
// time with the same operations.
#include "internal/body.h"
#include "internal/rfft.h"
#include "internal/rfft_lanes.h"

namespace tavs::fft {

namespace {

using lanes::One;
using lanes::Wide;

// Runs body<V>(k) over k in [k0, k1), register lanes first, then one pair
// at a time. k1 <= M/2 keeps every mirror M - k above every k of a group.
template <class S, class Body> inline void over_pairs(int64_t k0, int64_t k1, Body body)
{
    using V = typename Wide<S>::T;
    int64_t k = k0;
    for (; k + V::W <= k1; k += V::W) body.template operator()<V>(k);
    for (; k < k1; ++k) body.template operator()<One<S>>(k);
}

// True when the record's real tables have the two-level form.
template <class S> bool two_level(const FloatSpec<S>* spec) { return spec->order >= Dims<S>::kTwoLevelReal; }

} // namespace

template <class S> void real_post_step(const FloatSpec<S>* spec, S* d)
{
    const int64_t M = int64_t(1) << (spec->order - 1);
    const S* tw = spec->realFwd;
    {
        const S z0 = d[0], z1 = d[1];
        d[0] = z0 + z1; // X[0]
        d[1] = z0 - z1; // X[N/2]
    }
    if (!two_level(spec)) {
        // (p, q) = (0.5 cos t, 0.5 - 0.5 sin t): one multiplication set per pair.
        over_pairs<S>(1, M / 2, [&]<class V>(int64_t k) {
            V a, b, c, e, p, q;
            V::load_fwd(d + 2 * k, a, b);
            V::load_rev(d + 2 * (M - k), c, e);
            V::load_fwd(tw + 2 * k, p, q);
            const V u = a - c, v = b + e;
            const V w = p * v + q * u, x = v * q - u * p;
            V::store_fwd(d + 2 * k, c + w, x - e);
            V::store_rev(d + 2 * (M - k), a - w, x - b);
        });
    } else {
        // Inner entries (cos, -sin) of t = 2 pi k / N for k below the block,
        // outer entries of the block starts; their product is the twiddle.
        const int64_t B = Dims<S>::kRealBlock;
        for (int64_t j = 0; j * B < M / 2; ++j) {
            const int64_t base = j * B;
            const int64_t k0 = base == 0 ? 1 : base, k1 = base + B < M / 2 ? base + B : M / 2;
            const S so = tw[2 * (B + j)], to = tw[2 * (B + j) + 1];
            over_pairs<S>(k0, k1, [&]<class V>(int64_t k) {
                V a, b, c, e, p, q;
                V::load_fwd(d + 2 * k, a, b);
                V::load_rev(d + 2 * (M - k), c, e);
                V::load_fwd(tw + 2 * (k - base), p, q);
                const V s = V::splat(so), t = V::splat(to), half = V::splat(S(0.5));
                const V g = p * s - q * t, h = p * t + q * s;
                const V u = (a - c) * half, v = (b + e) * half, ee = (a + c) * half, f = (b - e) * half;
                const V w = h * u + g * v, x = h * v - g * u;
                V::store_fwd(d + 2 * k, w + ee, x + f);
                V::store_rev(d + 2 * (M - k), ee - w, x - f);
            });
        }
    }
    d[M + 1] = -d[M + 1]; // k = M/2: the twist is the identity, the imaginary sign flips
}
template void real_post_step<float>(const FloatSpec<float>*, float*);
template void real_post_step<double>(const FloatSpec<double>*, double*);

template <class S> void real_pre_step(const FloatSpec<S>* spec, S s0, S s1, const S* src, S* d)
{
    const int64_t M = int64_t(1) << (spec->order - 1);
    const S* tw = spec->realInv;
    // s0 and s1 come as values: in place, d[1] may be the word of one of them.
    // The pairs never touch slots 0, 1, M, M + 1.
    // One pair: (p, q) the twiddle (cos t, -sin t) of k.
    auto pair = [&]<class V>(int64_t k, V p, V q) {
        V a, b, c, e;
        V::load_fwd(src + 2 * k, a, b);
        V::load_rev(src + 2 * (M - k), c, e);
        const V u = a - c, v = b + e;
        const V g = q * u - p * v, h = p * u + q * v;
        V::store_fwd(d + 2 * k, a + c + g, b - e + h);
        V::store_rev(d + 2 * (M - k), a + c - g, h - (b - e));
    };
    if (!two_level(spec)) {
        over_pairs<S>(1, M / 2, [&]<class V>(int64_t k) {
            V p, q;
            V::load_fwd(tw + 2 * k, p, q);
            pair(k, p, q);
        });
    } else {
        // The twiddle of k is the product of the outer entry of its block
        // and the inner entry of its place in the block.
        const int64_t B = Dims<S>::kRealBlock;
        for (int64_t j = 0; j * B < M / 2; ++j) {
            const int64_t base = j * B;
            const int64_t k0 = base == 0 ? 1 : base, k1 = base + B < M / 2 ? base + B : M / 2;
            const S so = tw[2 * (B + j)], to = tw[2 * (B + j) + 1];
            over_pairs<S>(k0, k1, [&]<class V>(int64_t k) {
                V p, q;
                V::load_fwd(tw + 2 * (k - base), p, q);
                const V s = V::splat(so), t = V::splat(to);
                pair(k, p * s - q * t, p * t + q * s);
            });
        }
    }
    d[0] = s0 + s1;
    d[1] = s0 - s1;
    d[M] = S(2) * src[M];
    d[M + 1] = S(-2) * src[M + 1];
}
template void real_pre_step<float>(const FloatSpec<float>*, float, float, const float*, float*);
template void real_pre_step<double>(const FloatSpec<double>*, double, double, const double*, double*);

} // namespace tavs::fft

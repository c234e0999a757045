// The real FFT's post-step (half-length spectrum to the spectrum of the real
// signal, Perm order) and pre-step (its inverse, doubled so that the
// unscaled round trip gives N times the input, as the complex one does).
// Each pairs index k with its mirror M - k; the pairs k = 1 .. M/2 - 1 run
// in SSE2 lanes of four (32f) or two (64f) pairs, the tail one pair at a
// time with the same operations. The pre-step also comes in a form that
// writes each value into its bit-reversed place, for the complex inverse
// that then runs without a permutation pass.
#include "internal/body.h"
#include "internal/rfft.h"
#include "internal/fft_kernels.h"
#include "internal/rfft_lanes.h"

namespace tavs::fft {

namespace {

using lanes::One;
using lanes::pre_pair;
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

// The inverse twiddle of the lanes k .. k + W - 1 (all in one block of the
// two-level table): the small table directly, or the product of the outer
// entry of the block and the inner entry of the place in the block.
template <class S, class V> inline void inverse_twiddle(const S* tw, bool two, int64_t k, V& p, V& q)
{
    if (!two) {
        V::load_fwd(tw + 2 * k, p, q);
        return;
    }
    const int64_t B = Dims<S>::kRealBlock, j = k / B;
    V ip, iq;
    V::load_fwd(tw + 2 * (k - j * B), ip, iq);
    const V s = V::splat(tw[2 * (B + j)]), t = V::splat(tw[2 * (B + j) + 1]);
    p = ip * s - iq * t;
    q = ip * t + iq * s;
}

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
            V a, b, c, e, p, q, fr, fi, mr, mi;
            V::load_fwd(d + 2 * k, a, b);
            V::load_rev(d + 2 * (M - k), c, e);
            V::load_fwd(tw + 2 * k, p, q);
            lanes::post_pair(a, b, c, e, p, q, fr, fi, mr, mi);
            V::store_fwd(d + 2 * k, fr, fi);
            V::store_rev(d + 2 * (M - k), mr, mi);
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

namespace {

template <class S, bool Two> void pre_step_pairs(const FloatSpec<S>* spec, const S* src, int off, S* d)
{
    using V = typename Wide<S>::T;
    const int64_t M = int64_t(1) << (spec->order - 1);
    const S* tw = spec->realInv;
    auto body = [&]<class L>(int64_t k) {
        L a, b, c, e, p, q, fr, fi, mr, mi;
        L::load_fwd(src + (2 * k + off), a, b);
        L::load_rev(src + (2 * (M - k) + off), c, e);
        inverse_twiddle<S>(tw, Two, k, p, q);
        pre_pair(a, b, c, e, p, q, fr, fi, mr, mi);
        L::store_fwd(d + 2 * k, fr, fi);
        L::store_rev(d + 2 * (M - k), mr, mi);
    };
    // With two-level tables a group of lanes must not cross a block.
    const int64_t B = Two ? Dims<S>::kRealBlock : M / 2;
    for (int64_t base = 0; base < M / 2; base += B) {
        const int64_t k0 = base == 0 ? 1 : base, k1 = base + B < M / 2 ? base + B : M / 2;
        if (src != d && k1 - k0 > V::W && (k1 - k0) % V::W != 0) {
            // Out of place, a short tail is one more group of lanes ending
            // at k1: the pairs it shares with the group before are only
            // written again with the same values.
            int64_t k = k0;
            for (; k + V::W <= k1; k += V::W) body.template operator()<V>(k);
            body.template operator()<V>(k1 - V::W);
        } else {
            over_pairs<S>(k0, k1, body);
        }
    }
}

} // namespace

template <class S> void real_pre_step(const FloatSpec<S>* spec, S s0, S s1, const S* src, int off, S* d)
{
    const int64_t M = int64_t(1) << (spec->order - 1);
    // s0 and s1 come as values: in place, d[1] may be the word of one of them.
    // The pairs never touch slots 0, 1, M, M + 1.
    if (two_level(spec)) pre_step_pairs<S, true>(spec, src, off, d);
    else pre_step_pairs<S, false>(spec, src, off, d);
    d[0] = s0 + s1;
    d[1] = s0 - s1;
    d[M] = S(2) * src[M + off];
    d[M + 1] = S(-2) * src[M + 1 + off];
}
template void real_pre_step<float>(const FloatSpec<float>*, float, float, const float*, int, float*);
template void real_pre_step<double>(const FloatSpec<double>*, double, double, const double*, int, double*);

namespace {

// The reversal of a 4-bit index.
constexpr int kRev4[16] = {0, 8, 4, 12, 2, 10, 6, 14, 1, 9, 5, 13, 3, 11, 7, 15};

// The reversal of i < W (log2 W bits), W = 1, 2 or 4.
template <int W> constexpr int64_t lane_rev(int i) { return W == 4 ? (i & 1) * 2 + (i >> 1) : i; }

// One group of the reversed pre-step: the pairs k = h * step + j0 + i for
// h0 <= h < 8 and the lanes i < W (j0 a multiple of W). Index k = h * step
// + j (h the top 4 bits) has its reversed place in block rev(j) of 16
// values, slot rev4(h); its mirror M - k is (15 - h) * step + (step - j),
// block rev(step - j), slot rev4(15 - h), except for j = 0, where it is
// (16 - h) * step: block 0, slot rev4(16 - h) (the first group, lane 0).
// The blocks of the lanes: rev(j0 + i) = rev(j0) + rev(i), rev(i) =
// lane_rev(i) * step / W; the mirrors of lanes i >= 1: rev(step - j0 - W)
// + rev(W - i); of lane 0: rev(step - j0), block 0 for the first group.
// Block bases come as three pointers so that the loop keeps them in
// registers across the scattered stores.
template <class S, class V, bool Two, bool First>
void reversed_group(const S* x, const S* y, const S* tw, int64_t step, int64_t j0, int h0, S* f, S* r0, S* r)
{
    constexpr int W = int(V::W);
    const int64_t bs = 32 * (step / W); // one rev(i) unit, in elements
    for (int h = h0; h < 8; ++h) {
        const int64_t k = h * step + j0, o = 2 * h * step;
        V a, b, c, e, p, q, fr, fi, mr, mi;
        V::load_fwd(x + o, a, b);
        V::load_rev(y - o, c, e);
        inverse_twiddle<S>(tw, Two, k, p, q);
        pre_pair(a, b, c, e, p, q, fr, fi, mr, mi);
        const int64_t fo = 2 * kRev4[h], ro = 2 * kRev4[15 - h];
        V::store_each([&](int i) { return f + lane_rev<W>(i) * bs + fo; }, fr, fi);
        V::store_each(
            [&](int i) {
                if (i == 0) return r0 + (First ? 2 * kRev4[(16 - h) & 15] : ro);
                return r + lane_rev<W>(W - i) * bs + ro;
            },
            mr, mi);
    }
}

template <class S, bool Two> void pre_step_reversed(const FloatSpec<S>* spec, const S* src, int off, S* d)
{
    using V = typename Wide<S>::T;
    constexpr int W = int(V::W);
    const int m = spec->order - 1;
    const int64_t M = int64_t(1) << m, step = M >> 4;
    const int bits = m - 4;
    const S* tw = spec->realInv;
    // Complex j of the source and its mirror M - j.
    auto x = [&](int64_t j) { return src + (2 * j + off); };
    auto y = [&](int64_t j) { return src + (2 * (M - j) + off); };
    auto blk = [&](int64_t j) { return d + 32 * rev_bits(j & (step - 1), bits); };
    auto group = [&](int64_t j0) {
        if (j0 != 0) {
            reversed_group<S, V, Two, false>(x(j0), y(j0), tw, step, j0, 0, blk(j0), blk(step - j0), blk(step - j0 - W));
            return;
        }
        reversed_group<S, V, Two, true>(x(0), y(0), tw, step, 0, 1, d, d, blk(step - W));
        // h = 0: the pairs k = 1 .. W - 1 one at a time (k = 0 has no
        // mirror among the pairs).
        for (int i = 1; i < W; ++i) {
            One<S> a, b, c, e, p, q, fr, fi, mr, mi;
            One<S>::load_fwd(x(i), a, b);
            One<S>::load_rev(y(i), c, e);
            inverse_twiddle<S>(tw, Two, i, p, q);
            pre_pair(a, b, c, e, p, q, fr, fi, mr, mi);
            One<S>::store_each([&](int) { return blk(i); }, fr, fi);
            One<S>::store_each([&](int) { return blk(step - i) + 2 * kRev4[15]; }, mr, mi);
        }
    };
    // Groups from both ends in turn: the mirrors of a group fill the other
    // halves of the blocks of the group just done or the next one.
    const int64_t G = step / W;
    for (int64_t lo = 0, hi = G - 1; lo <= hi; ++lo, --hi) {
        group(lo * W);
        if (hi != lo) group(hi * W);
    }
}

} // namespace

template <class S> void real_pre_step_reversed(const FloatSpec<S>* spec, S s0, S s1, const S* src, int off, S* d)
{
    if (two_level(spec)) pre_step_reversed<S, true>(spec, src, off, d);
    else pre_step_reversed<S, false>(spec, src, off, d);
    // k = 0 stays at 0; k = M/2 has its reversed place at 1.
    const int64_t M = int64_t(1) << (spec->order - 1);
    d[0] = s0 + s1;
    d[1] = s0 - s1;
    d[2] = S(2) * src[M + off];
    d[3] = S(-2) * src[M + 1 + off];
}
template void real_pre_step_reversed<float>(const FloatSpec<float>*, float, float, const float*, int, float*);
template void real_pre_step_reversed<double>(const FloatSpec<double>*, double, double, const double*, int, double*);

} // namespace tavs::fft

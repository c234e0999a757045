// The radix-4 kernel on split arrays: stage one (and the radix-2 stage of an
// odd order) value by value, the later stages in SSE2 lanes across k.
#include "internal/body.h"
#include "internal/fft_kernels.h"
#include "internal/fft_simd.h"

namespace tavs::fft {

using namespace simd;

namespace {

// ---- radix-4 stages on split arrays: SSE2 lanes run across k ----------------

// Lanes of float (4) or double (2) values with the few operations the
// split stages need.
inline __m128 vadd(__m128 a, __m128 b) { return _mm_add_ps(a, b); }
inline __m128 vsub(__m128 a, __m128 b) { return _mm_sub_ps(a, b); }
inline __m128 vmul(__m128 a, __m128 b) { return _mm_mul_ps(a, b); }
inline __m128d vadd(__m128d a, __m128d b) { return _mm_add_pd(a, b); }
inline __m128d vsub(__m128d a, __m128d b) { return _mm_sub_pd(a, b); }
inline __m128d vmul(__m128d a, __m128d b) { return _mm_mul_pd(a, b); }
inline __m128 vload(const float* p) { return _mm_loadu_ps(p); }
inline __m128d vload(const double* p) { return _mm_loadu_pd(p); }
inline void vstore(float* p, __m128 v) { _mm_storeu_ps(p, v); }
inline void vstore(double* p, __m128d v) { _mm_storeu_pd(p, v); }

template <class S> struct Lanes;
template <> struct Lanes<float> {
    using V = __m128;
    static constexpr int n = 4;
    static void twiddle(const float* t, int64_t stride, bool first, V& wr, V& wi) { twiddle4(t, stride, first, wr, wi); }
    static V neg(V v) { return _mm_xor_ps(v, _mm_set1_ps(-0.0f)); }
    // y with lane 0 taken from x.
    static V keep0(V y, V x) { return _mm_move_ss(y, x); }
};
template <> struct Lanes<double> {
    using V = __m128d;
    static constexpr int n = 2;
    // The entries k and k + 1; the entry k = 0 is not read when first is
    // set (the stage does not use that lane's product).
    static void twiddle(const double* t, int64_t stride, bool first, V& wr, V& wi)
    {
        const __m128d c0 = first ? _mm_setr_pd(1.0, 0.0) : _mm_load_pd(t);
        const __m128d c1 = _mm_load_pd(t + stride);
        wr = _mm_unpacklo_pd(c0, c1);
        wi = _mm_unpackhi_pd(c0, c1);
    }
    static V neg(V v) { return _mm_xor_pd(v, _mm_set1_pd(-0.0)); }
    static V keep0(V y, V x) { return _mm_move_sd(y, x); }
};

// The stages of spans from `span` up to N, four (two) values of k at once.
template <bool Inv, class S> void split_stages(S* re, S* im, int64_t N, const S* tw, int64_t span)
{
    using L = Lanes<S>;
    using V = typename L::V;
    for (; span <= N; span *= 4) {
        const int64_t q = span / 4, stride = 6 * (N / span);
        // The group of k = 0 goes first: its lane 0 is not multiplied.
        auto column = [&]<bool First>(int64_t k) {
            V w[3][2];
            for (int j = 0; j < 3; ++j) {
                L::twiddle(tw + k * stride + 2 * j, stride, First, w[j][0], w[j][1]);
                if (Inv) w[j][1] = L::neg(w[j][1]); // conjugate
            }
            for (int64_t b = k; b < N; b += span) {
                S *r0 = re + b, *i0 = im + b;
                const V ar = vload(r0), ai = vload(i0);
                V x[3][2]; // quarters 1, 2, 3 times W^2k, W^k, W^3k
                const int tj[3] = {1, 0, 2};
                for (int u = 0; u < 3; ++u) {
                    const V xr = vload(r0 + (u + 1) * q), xi = vload(i0 + (u + 1) * q);
                    const V* wv = w[tj[u]];
                    x[u][0] = vsub(vmul(xr, wv[0]), vmul(xi, wv[1]));
                    x[u][1] = vadd(vmul(xr, wv[1]), vmul(xi, wv[0]));
                    if (First) {
                        x[u][0] = L::keep0(x[u][0], xr);
                        x[u][1] = L::keep0(x[u][1], xi);
                    }
                }
                const V t0r = vadd(ar, x[0][0]), t0i = vadd(ai, x[0][1]);
                const V t1r = vsub(ar, x[0][0]), t1i = vsub(ai, x[0][1]);
                const V t2r = vadd(x[1][0], x[2][0]), t2i = vadd(x[1][1], x[2][1]);
                const V t3r = vsub(x[1][0], x[2][0]), t3i = vsub(x[1][1], x[2][1]);
                vstore(r0, vadd(t0r, t2r));
                vstore(i0, vadd(t0i, t2i));
                vstore(r0 + 2 * q, vsub(t0r, t2r));
                vstore(i0 + 2 * q, vsub(t0i, t2i));
                // X1 = t1 - i t3 and X3 = t1 + i t3 forward; the other way inverse.
                if (Inv) {
                    vstore(r0 + q, vsub(t1r, t3i));
                    vstore(i0 + q, vadd(t1i, t3r));
                    vstore(r0 + 3 * q, vadd(t1r, t3i));
                    vstore(i0 + 3 * q, vsub(t1i, t3r));
                } else {
                    vstore(r0 + q, vadd(t1r, t3i));
                    vstore(i0 + q, vsub(t1i, t3r));
                    vstore(r0 + 3 * q, vsub(t1r, t3i));
                    vstore(i0 + 3 * q, vadd(t1i, t3r));
                }
            }
        };
        column.template operator()<true>(0);
        for (int64_t k = L::n; k < q; k += L::n) column.template operator()<false>(k);
    }
}

template <class S, bool Inv> void radix4_split_impl(S* re, S* im, int64_t N, const S* tw)
{
    auto rotate = [](S& xr, S& xi) { // -i x forward, +i x inverse
        const S r = xr;
        if (Inv) {
            xr = -xi;
            xi = r;
        } else {
            xr = xi;
            xi = -r;
        }
    };
    auto bfly = [&](int64_t i0, int64_t i1, int64_t i2, int64_t i3, S br, S bi, S cr, S ci, S dr, S di) {
        const S ar = re[i0], ai = im[i0];
        S t0r = ar + br, t0i = ai + bi, t1r = ar - br, t1i = ai - bi;
        S t2r = cr + dr, t2i = ci + di, t3r = cr - dr, t3i = ci - di;
        rotate(t3r, t3i);
        re[i0] = t0r + t2r;
        im[i0] = t0i + t2i;
        re[i2] = t0r - t2r;
        im[i2] = t0i - t2i;
        re[i1] = t1r + t3r;
        im[i1] = t1i + t3i;
        re[i3] = t1r - t3r;
        im[i3] = t1i - t3i;
    };
    auto mul = [](S xr, S xi, const S* w, S& yr, S& yi) {
        const S wr = w[0], wi = Inv ? -w[1] : w[1];
        yr = xr * wr - xi * wi;
        yi = xr * wi + xi * wr;
    };
    for (int64_t i = 0; i < N; i += 4)
        bfly(i, i + 1, i + 2, i + 3, re[i + 1], im[i + 1], re[i + 2], im[i + 2], re[i + 3], im[i + 3]);
    int64_t span = 16;
    if (N & 0xAAAAAAAAAAAAAAAAll) {
        const S c = S(0.70710678118654752);
        const S w[4][2] = {{S(1), S(0)}, {c, -c}, {S(0), S(-1)}, {-c, -c}};
        for (int64_t i = 0; i < N; i += 8)
            for (int k = 0; k < 4; ++k) {
                S orr = re[i + 4 + k], oi = im[i + 4 + k];
                if (k == 2) rotate(orr, oi);
                else if (k != 0) mul(orr, oi, w[k], orr, oi);
                const S er = re[i + k], ei = im[i + k];
                re[i + k] = er + orr;
                im[i + k] = ei + oi;
                re[i + 4 + k] = er - orr;
                im[i + 4 + k] = ei - oi;
            }
        span = 32;
    }
    split_stages<Inv>(re, im, N, tw, span);
}

} // namespace

template <class S, bool Inverse> void radix4_split(S* re, S* im, int64_t N, const S* tw)
{
    radix4_split_impl<S, Inverse>(re, im, N, tw);
}
template void radix4_split<float, false>(float*, float*, int64_t, const float*);
template void radix4_split<float, true>(float*, float*, int64_t, const float*);
template void radix4_split<double, false>(double*, double*, int64_t, const double*);
template void radix4_split<double, true>(double*, double*, int64_t, const double*);

} // namespace tavs::fft

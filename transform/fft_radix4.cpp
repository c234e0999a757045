// The radix-4 in-place kernel (decimation in time over bit-reversed input),
// the bit-reversal permutations and the scale pass. Interleaved data runs
// on SSE2 registers: two 32f complex values or one 64f value per register.
#include "internal/body.h"
#include "internal/fft_kernels.h"

#include <emmintrin.h>

#include <utility>

namespace tavs::fft {

namespace {

// ---- SSE2 complex helpers, 32f: [re0 im0 re1 im1] -------------------------

inline __m128 swap_ri(__m128 x) { return _mm_shuffle_ps(x, x, _MM_SHUFFLE(2, 3, 0, 1)); }
inline __m128 sign_even() { return _mm_castsi128_ps(_mm_set_epi32(0, int(0x80000000u), 0, int(0x80000000u))); }
inline __m128 sign_odd() { return _mm_castsi128_ps(_mm_set_epi32(int(0x80000000u), 0, int(0x80000000u), 0)); }

// x * w, or x * conj(w) for the inverse direction.
template <bool Inv> inline __m128 cmul(__m128 x, __m128 w)
{
    const __m128 wr = _mm_shuffle_ps(w, w, _MM_SHUFFLE(2, 2, 0, 0));
    const __m128 wi = _mm_shuffle_ps(w, w, _MM_SHUFFLE(3, 3, 1, 1));
    const __m128 t = _mm_mul_ps(swap_ri(x), wi);
    return _mm_add_ps(_mm_mul_ps(x, wr), _mm_xor_ps(t, Inv ? sign_odd() : sign_even()));
}
// -i x (forward) or +i x (inverse).
template <bool Inv> inline __m128 rot(__m128 x) { return _mm_xor_ps(swap_ri(x), Inv ? sign_even() : sign_odd()); }

inline __m128 load2(const float* a, const float* b)
{
    return _mm_loadh_pi(_mm_castpd_ps(_mm_load_sd(reinterpret_cast<const double*>(a))),
                        reinterpret_cast<const __m64*>(b));
}

// ---- 64f: [re im] ---------------------------------------------------------

inline __m128d swap_ri(__m128d x) { return _mm_shuffle_pd(x, x, 1); }
inline __m128d sign_lo() { return _mm_castsi128_pd(_mm_set_epi64x(0, int64_t(0x8000000000000000ull))); }
inline __m128d sign_hi() { return _mm_castsi128_pd(_mm_set_epi64x(int64_t(0x8000000000000000ull), 0)); }

template <bool Inv> inline __m128d cmul(__m128d x, __m128d w)
{
    const __m128d wr = _mm_unpacklo_pd(w, w);
    const __m128d wi = _mm_unpackhi_pd(w, w);
    const __m128d t = _mm_mul_pd(swap_ri(x), wi);
    return _mm_add_pd(_mm_mul_pd(x, wr), _mm_xor_pd(t, Inv ? sign_hi() : sign_lo()));
}
template <bool Inv> inline __m128d rot(__m128d x) { return _mm_xor_pd(swap_ri(x), Inv ? sign_lo() : sign_hi()); }

// The 4-point butterfly on already twiddled quarters: a, b (from the second
// quarter, the x[4n+2] sub-transform), c, d.
template <bool Inv, class V> inline void bfly4(V a, V b, V c, V d, V& x0, V& x1, V& x2, V& x3)
{
    const V t0 = a + b, t1 = a - b, t2 = c + d, t3 = rot<Inv>(c - d);
    x0 = t0 + t2;
    x2 = t0 - t2;
    x1 = t1 + t3;
    x3 = t1 - t3;
}

} // namespace

// ---- radix-4, interleaved 32f ---------------------------------------------

template <> void radix4_interleaved<float, false>(float*, int64_t, const float*);
template <> void radix4_interleaved<float, true>(float*, int64_t, const float*);

namespace {

template <bool Inv> void radix4_32fc(float* d, int64_t N, const float* tw)
{
    // Stage one: groups of four, no multiplications. In bit-reversed order a
    // group holds (x0, x2, x1, x3) of its 4-point problem.
    for (int64_t i = 0; i < N; i += 4) {
        float* p = d + 2 * i;
        const __m128 v0 = _mm_loadu_ps(p), v1 = _mm_loadu_ps(p + 4);
        const __m128 u = _mm_movelh_ps(v0, v1); // [A, C]
        const __m128 w = _mm_movehl_ps(v1, v0); // [B, D]
        const __m128 s = _mm_add_ps(u, w);      // [A+B, C+D]
        const __m128 df = _mm_sub_ps(u, w);     // [A-B, C-D]
        const __m128 r = rot<Inv>(df);          // hi lane: -/+ i (C-D)
        const __m128 lo = _mm_movelh_ps(s, df); // [A+B, A-B]
        const __m128 hi = _mm_movehl_ps(r, s);  // [C+D, rot(C-D)]
        _mm_storeu_ps(p, _mm_add_ps(lo, hi));
        _mm_storeu_ps(p + 4, _mm_sub_ps(lo, hi));
    }
    int64_t span = 16;
    if (N & 0xAAAAAAAAAAAAAAAAll) {
        // Odd order: one radix-2 stage of span 8 with 1, W8, W8^2, W8^3.
        const float c = 0.70710677f;
        const __m128 w01 = _mm_setr_ps(1.0f, 0.0f, c, -c);
        const __m128 w23 = _mm_setr_ps(0.0f, -1.0f, -c, -c);
        for (int64_t i = 0; i < N; i += 8) {
            float* p = d + 2 * i;
            const __m128 e0 = _mm_loadu_ps(p), e1 = _mm_loadu_ps(p + 4);
            const __m128 o0 = cmul<Inv>(_mm_loadu_ps(p + 8), w01);
            const __m128 o1 = cmul<Inv>(_mm_loadu_ps(p + 12), w23);
            _mm_storeu_ps(p, _mm_add_ps(e0, o0));
            _mm_storeu_ps(p + 4, _mm_add_ps(e1, o1));
            _mm_storeu_ps(p + 8, _mm_sub_ps(e0, o0));
            _mm_storeu_ps(p + 12, _mm_sub_ps(e1, o1));
        }
        span = 32;
    }
    const __m128 one = _mm_setr_ps(1.0f, 0.0f, 0.0f, 0.0f);
    for (; span <= N; span *= 4) {
        const int64_t q = span / 4;
        const int64_t stride = 6 * (N / span); // floats between consecutive k
        for (int64_t b = 0; b < N; b += span) {
            float* p0 = d + 2 * b;
            float* p1 = p0 + 2 * q;
            float* p2 = p1 + 2 * q;
            float* p3 = p2 + 2 * q;
            for (int64_t k = 0; k < q; k += 2) {
                const float* t0 = tw + k * stride;
                const float* t1 = t0 + stride;
                __m128 w1, w2, w3;
                if (k == 0) {
                    // The entry k = 0 is not read: its butterfly needs no product.
                    w1 = _mm_loadh_pi(one, reinterpret_cast<const __m64*>(t1));
                    w2 = _mm_loadh_pi(one, reinterpret_cast<const __m64*>(t1 + 2));
                    w3 = _mm_loadh_pi(one, reinterpret_cast<const __m64*>(t1 + 4));
                } else {
                    w1 = load2(t0, t1);
                    w2 = load2(t0 + 2, t1 + 2);
                    w3 = load2(t0 + 4, t1 + 4);
                }
                const __m128 a = _mm_loadu_ps(p0 + 2 * k);
                const __m128 bb = cmul<Inv>(_mm_loadu_ps(p1 + 2 * k), w2);
                const __m128 c = cmul<Inv>(_mm_loadu_ps(p2 + 2 * k), w1);
                const __m128 dd = cmul<Inv>(_mm_loadu_ps(p3 + 2 * k), w3);
                __m128 x0, x1, x2, x3;
                bfly4<Inv>(a, bb, c, dd, x0, x1, x2, x3);
                _mm_storeu_ps(p0 + 2 * k, x0);
                _mm_storeu_ps(p1 + 2 * k, x1);
                _mm_storeu_ps(p2 + 2 * k, x2);
                _mm_storeu_ps(p3 + 2 * k, x3);
            }
        }
    }
}

template <bool Inv> void radix4_64fc(double* d, int64_t N, const double* tw)
{
    for (int64_t i = 0; i < N; i += 4) {
        double* p = d + 2 * i;
        const __m128d a = _mm_loadu_pd(p), b = _mm_loadu_pd(p + 2), c = _mm_loadu_pd(p + 4),
                      e = _mm_loadu_pd(p + 6);
        __m128d x0, x1, x2, x3;
        bfly4<Inv>(a, b, c, e, x0, x1, x2, x3);
        _mm_storeu_pd(p, x0);
        _mm_storeu_pd(p + 2, x1);
        _mm_storeu_pd(p + 4, x2);
        _mm_storeu_pd(p + 6, x3);
    }
    int64_t span = 16;
    if (N & 0xAAAAAAAAAAAAAAAAll) {
        const double c = 0.70710678118654752;
        const __m128d w1 = _mm_setr_pd(c, -c), w3 = _mm_setr_pd(-c, -c);
        for (int64_t i = 0; i < N; i += 8) {
            double* p = d + 2 * i;
            const __m128d e0 = _mm_loadu_pd(p), e1 = _mm_loadu_pd(p + 2), e2 = _mm_loadu_pd(p + 4),
                          e3 = _mm_loadu_pd(p + 6);
            const __m128d o0 = _mm_loadu_pd(p + 8);
            const __m128d o1 = cmul<Inv>(_mm_loadu_pd(p + 10), w1);
            const __m128d o2 = rot<Inv>(_mm_loadu_pd(p + 12));
            const __m128d o3 = cmul<Inv>(_mm_loadu_pd(p + 14), w3);
            _mm_storeu_pd(p, _mm_add_pd(e0, o0));
            _mm_storeu_pd(p + 2, _mm_add_pd(e1, o1));
            _mm_storeu_pd(p + 4, _mm_add_pd(e2, o2));
            _mm_storeu_pd(p + 6, _mm_add_pd(e3, o3));
            _mm_storeu_pd(p + 8, _mm_sub_pd(e0, o0));
            _mm_storeu_pd(p + 10, _mm_sub_pd(e1, o1));
            _mm_storeu_pd(p + 12, _mm_sub_pd(e2, o2));
            _mm_storeu_pd(p + 14, _mm_sub_pd(e3, o3));
        }
        span = 32;
    }
    for (; span <= N; span *= 4) {
        const int64_t q = span / 4;
        const int64_t stride = 6 * (N / span);
        for (int64_t b = 0; b < N; b += span) {
            double* p0 = d + 2 * b;
            double* p1 = p0 + 2 * q;
            double* p2 = p1 + 2 * q;
            double* p3 = p2 + 2 * q;
            {
                __m128d x0, x1, x2, x3;
                bfly4<Inv>(_mm_loadu_pd(p0), _mm_loadu_pd(p1), _mm_loadu_pd(p2), _mm_loadu_pd(p3), x0, x1, x2, x3);
                _mm_storeu_pd(p0, x0);
                _mm_storeu_pd(p1, x1);
                _mm_storeu_pd(p2, x2);
                _mm_storeu_pd(p3, x3);
            }
            for (int64_t k = 1; k < q; ++k) {
                const double* t = tw + k * stride;
                const __m128d a = _mm_loadu_pd(p0 + 2 * k);
                const __m128d bb = cmul<Inv>(_mm_loadu_pd(p1 + 2 * k), _mm_load_pd(t + 2));
                const __m128d c = cmul<Inv>(_mm_loadu_pd(p2 + 2 * k), _mm_load_pd(t));
                const __m128d dd = cmul<Inv>(_mm_loadu_pd(p3 + 2 * k), _mm_load_pd(t + 4));
                __m128d x0, x1, x2, x3;
                bfly4<Inv>(a, bb, c, dd, x0, x1, x2, x3);
                _mm_storeu_pd(p0 + 2 * k, x0);
                _mm_storeu_pd(p1 + 2 * k, x1);
                _mm_storeu_pd(p2 + 2 * k, x2);
                _mm_storeu_pd(p3 + 2 * k, x3);
            }
        }
    }
}

// ---- radix-4, split arrays (scalar; the compiler keeps it in registers) ----

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
    for (; span <= N; span *= 4) {
        const int64_t q = span / 4;
        const int64_t stride = 6 * (N / span);
        for (int64_t b = 0; b < N; b += span) {
            bfly(b, b + q, b + 2 * q, b + 3 * q, re[b + q], im[b + q], re[b + 2 * q], im[b + 2 * q], re[b + 3 * q],
                 im[b + 3 * q]);
            for (int64_t k = 1; k < q; ++k) {
                const S* t = tw + k * stride;
                S br, bi, cr, ci, dr, di;
                mul(re[b + q + k], im[b + q + k], t + 2, br, bi);
                mul(re[b + 2 * q + k], im[b + 2 * q + k], t, cr, ci);
                mul(re[b + 3 * q + k], im[b + 3 * q + k], t + 4, dr, di);
                bfly(b + k, b + q + k, b + 2 * q + k, b + 3 * q + k, br, bi, cr, ci, dr, di);
            }
        }
    }
}

} // namespace

template <> void radix4_interleaved<float, false>(float* d, int64_t N, const float* tw) { radix4_32fc<false>(d, N, tw); }
template <> void radix4_interleaved<float, true>(float* d, int64_t N, const float* tw) { radix4_32fc<true>(d, N, tw); }
template <> void radix4_interleaved<double, false>(double* d, int64_t N, const double* tw)
{
    radix4_64fc<false>(d, N, tw);
}
template <> void radix4_interleaved<double, true>(double* d, int64_t N, const double* tw)
{
    radix4_64fc<true>(d, N, tw);
}

template <class S, bool Inverse> void radix4_split(S* re, S* im, int64_t N, const S* tw)
{
    radix4_split_impl<S, Inverse>(re, im, N, tw);
}
template void radix4_split<float, false>(float*, float*, int64_t, const float*);
template void radix4_split<float, true>(float*, float*, int64_t, const float*);
template void radix4_split<double, false>(double*, double*, int64_t, const double*);
template void radix4_split<double, true>(double*, double*, int64_t, const double*);

// ---- permutations -----------------------------------------------------------

// List entries are 4i (pairs (4i, 4j) first, self-reversed ones at the
// back); halved they are p = 2i, q = 2j. With H = N/2 a pair moves four
// couples of elements; a self-reversed index exchanges p+1 and H+p. The
// index 0 is self-reversed too but cannot be listed (0 ends the list).
template <class E> void permute_in_place(E* a, const int32_t* list, int64_t N)
{
    if (N < 4) return;
    const int64_t H = N / 2;
    std::swap(a[1], a[H]);
    const int32_t* e = list;
    for (; *e != 0; e += 2) {
        const int64_t p = e[0] / 2, q = e[1] / 2;
        std::swap(a[p], a[q]);
        std::swap(a[p + 1], a[H + q]);
        std::swap(a[H + p], a[q + 1]);
        std::swap(a[H + p + 1], a[H + q + 1]);
    }
    for (const int32_t* s = list + N / 4 - 1; *s != 0; --s) {
        const int64_t p = *s / 2;
        std::swap(a[p + 1], a[H + p]);
    }
}

template <class E> void permute_copy(const E* src, E* dst, const int32_t* list, int64_t N)
{
    if (N < 8) {
        dst[0] = src[0];
        dst[N - 1] = src[N - 1];
        if (N > 2) {
            dst[1] = src[2];
            dst[2] = src[1];
        }
        return;
    }
    const int64_t H = N / 2;
    dst[0] = src[0];
    dst[1] = src[H];
    dst[H] = src[1];
    dst[H + 1] = src[H + 1];
    for (const int32_t* e = list; *e != 0; e += 2) {
        const int64_t p = e[0] / 2, q = e[1] / 2;
        dst[p] = src[q];
        dst[q] = src[p];
        dst[p + 1] = src[H + q];
        dst[H + q] = src[p + 1];
        dst[H + p] = src[q + 1];
        dst[q + 1] = src[H + p];
        dst[H + p + 1] = src[H + q + 1];
        dst[H + q + 1] = src[H + p + 1];
    }
    for (const int32_t* s = list + N / 4 - 1; *s != 0; --s) {
        const int64_t p = *s / 2;
        dst[p] = src[p];
        dst[p + 1] = src[H + p];
        dst[H + p] = src[p + 1];
        dst[H + p + 1] = src[H + p + 1];
    }
}

template void permute_in_place<float>(float*, const int32_t*, int64_t);
template void permute_in_place<double>(double*, const int32_t*, int64_t);
template void permute_in_place<Tav32fc>(Tav32fc*, const int32_t*, int64_t);
template void permute_in_place<Tav64fc>(Tav64fc*, const int32_t*, int64_t);
template void permute_copy<float>(const float*, float*, const int32_t*, int64_t);
template void permute_copy<double>(const double*, double*, const int32_t*, int64_t);
template void permute_copy<Tav32fc>(const Tav32fc*, Tav32fc*, const int32_t*, int64_t);
template void permute_copy<Tav64fc>(const Tav64fc*, Tav64fc*, const int32_t*, int64_t);

// ---- scale pass -------------------------------------------------------------

template <> void scale_values<float>(float* p, int64_t n, float s)
{
    const __m128 v = _mm_set1_ps(s);
    int64_t i = 0;
    for (; i + 4 <= n; i += 4) _mm_storeu_ps(p + i, _mm_mul_ps(_mm_loadu_ps(p + i), v));
    for (; i < n; ++i) p[i] *= s;
}
template <> void scale_values<double>(double* p, int64_t n, double s)
{
    const __m128d v = _mm_set1_pd(s);
    int64_t i = 0;
    for (; i + 2 <= n; i += 2) _mm_storeu_pd(p + i, _mm_mul_pd(_mm_loadu_pd(p + i), v));
    for (; i < n; ++i) p[i] *= s;
}

} // namespace tavs::fft

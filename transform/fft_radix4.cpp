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
    return _mm_loadh_pi(_mm_castsi128_ps(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(a))),
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

// A twiddle ready for products: its real part in both lanes of each value,
// its imaginary part with the sign of the product folded in, so that
// x * w = x * wr + swap(x) * wi (conjugated w in the inverse direction).
struct Tw32 {
    __m128 wr, wi;
};
template <bool Inv> inline Tw32 prep(__m128 w)
{
    return {_mm_shuffle_ps(w, w, _MM_SHUFFLE(2, 2, 0, 0)),
            _mm_xor_ps(_mm_shuffle_ps(w, w, _MM_SHUFFLE(3, 3, 1, 1)), Inv ? sign_odd() : sign_even())};
}
inline __m128 mul(__m128 x, Tw32 w) { return _mm_add_ps(_mm_mul_ps(x, w.wr), _mm_mul_ps(swap_ri(x), w.wi)); }

// Stage one on a group of four values held in two registers: (x0, x2, x1,
// x3) of a 4-point problem in, its transform in natural order out.
template <bool Inv> inline void group4(__m128& v0, __m128& v1)
{
    const __m128 u = _mm_movelh_ps(v0, v1); // [A, C]
    const __m128 w = _mm_movehl_ps(v1, v0); // [B, D]
    const __m128 s = _mm_add_ps(u, w);      // [A+B, C+D]
    const __m128 df = _mm_sub_ps(u, w);     // [A-B, C-D]
    const __m128 r = rot<Inv>(df);          // high lane: -/+ i (C-D)
    const __m128 lo = _mm_movelh_ps(s, df); // [A+B, A-B]
    const __m128 hi = _mm_movehl_ps(r, s);  // [C+D, rot(C-D)]
    v0 = _mm_add_ps(lo, hi);
    v1 = _mm_sub_ps(lo, hi);
}

// One radix-4 butterfly on two consecutive k: quarters a, b (twiddle W^2k),
// c (W^k), d (W^3k) at p0 .. p3.
template <bool Inv>
inline void bfly_32(float* p0, float* p1, float* p2, float* p3, const Tw32& w1, const Tw32& w2, const Tw32& w3)
{
    const __m128 a = _mm_loadu_ps(p0);
    const __m128 b = mul(_mm_loadu_ps(p1), w2);
    const __m128 c = mul(_mm_loadu_ps(p2), w1);
    const __m128 d = mul(_mm_loadu_ps(p3), w3);
    __m128 x0, x1, x2, x3;
    bfly4<Inv>(a, b, c, d, x0, x1, x2, x3);
    _mm_storeu_ps(p0, x0);
    _mm_storeu_ps(p1, x1);
    _mm_storeu_ps(p2, x2);
    _mm_storeu_ps(p3, x3);
}

// The first pass of the kernel over blocks of B values (B = 16 for an even
// order: stage one and the span-16 stage; B = 8 for an odd order: stage one
// and the radix-2 stage of span 8). load(i, j) gives values 2j, 2j+1 of
// block i, so the same pass runs on data in place or straight from the
// source through the bit reversal. L is the kernel's length, tw its table.
// Block order of the first pass: blocks in place, or (fused with the bit
// reversal) the block that a running source index feeds.
struct Natural {
    int64_t operator()(int64_t i) const { return i; }
};

inline int first_block(int64_t L) { return (L & 0xAAAAAAAAAAAAAAAAll) ? 8 : (L >= 16 ? 16 : 4); }

template <bool Inv, class Load, class Order = Natural> void first_pass_32(float* d, int64_t N, int64_t L, const float* tw, Load load, Order order = Order())
{
    const int B = first_block(L);
    if (B == 8) {
        const float c = 0.70710677f;
        const Tw32 w01 = prep<Inv>(_mm_setr_ps(1.0f, 0.0f, c, -c));
        const Tw32 w23 = prep<Inv>(_mm_setr_ps(0.0f, -1.0f, -c, -c));
        for (int64_t i = 0; i < N / 8; ++i) {
            float* p = d + 16 * order(i);
            __m128 e0 = load(i, 0), e1 = load(i, 1), o0 = load(i, 2), o1 = load(i, 3);
            group4<Inv>(e0, e1);
            group4<Inv>(o0, o1);
            o0 = mul(o0, w01);
            o1 = mul(o1, w23);
            _mm_storeu_ps(p, _mm_add_ps(e0, o0));
            _mm_storeu_ps(p + 4, _mm_add_ps(e1, o1));
            _mm_storeu_ps(p + 8, _mm_sub_ps(e0, o0));
            _mm_storeu_ps(p + 12, _mm_sub_ps(e1, o1));
        }
    } else if (B == 16) {
        const __m128 one = _mm_setr_ps(1.0f, 0.0f, 0.0f, 0.0f);
        const int64_t stride = 6 * (L / 16);
        auto pair = [&](int64_t k, int j) {
            const float* t1 = tw + (k + 1) * stride + 2 * (j - 1);
            if (k == 0) return prep<Inv>(_mm_loadh_pi(one, reinterpret_cast<const __m64*>(t1)));
            return prep<Inv>(load2(t1 - stride, t1));
        };
        const Tw32 a1 = pair(0, 1), a2 = pair(0, 2), a3 = pair(0, 3);
        const Tw32 b1 = pair(2, 1), b2 = pair(2, 2), b3 = pair(2, 3);
        for (int64_t i = 0; i < N / 16; ++i) {
            float* p = d + 32 * order(i);
            __m128 v[8];
            for (int j = 0; j < 8; ++j) v[j] = load(i, j);
            for (int g = 0; g < 4; ++g) group4<Inv>(v[2 * g], v[2 * g + 1]);
            __m128 x0, x1, x2, x3;
            bfly4<Inv>(v[0], mul(v[2], a2), mul(v[4], a1), mul(v[6], a3), x0, x1, x2, x3);
            _mm_storeu_ps(p, x0);
            _mm_storeu_ps(p + 8, x1);
            _mm_storeu_ps(p + 16, x2);
            _mm_storeu_ps(p + 24, x3);
            bfly4<Inv>(v[1], mul(v[3], b2), mul(v[5], b1), mul(v[7], b3), x0, x1, x2, x3);
            _mm_storeu_ps(p + 4, x0);
            _mm_storeu_ps(p + 12, x1);
            _mm_storeu_ps(p + 20, x2);
            _mm_storeu_ps(p + 28, x3);
        }
    } else {
        for (int64_t i = 0; i < N / 4; ++i) {
            __m128 v0 = load(i, 0), v1 = load(i, 1);
            group4<Inv>(v0, v1);
            float* p = d + 8 * order(i);
            _mm_storeu_ps(p, v0);
            _mm_storeu_ps(p + 4, v1);
        }
    }
}

// The radix-4 stages after the first pass; the twiddles of a pair of k
// serve every block of the stage, so k is the outer loop.
template <bool Inv> void later_32(float* d, int64_t N, const float* tw)
{
    const __m128 one = _mm_setr_ps(1.0f, 0.0f, 0.0f, 0.0f);
    for (int64_t span = first_block(N) * 4; span <= N; span *= 4) {
        const int64_t q = span / 4;
        const int64_t stride = 6 * (N / span);
        for (int64_t k = 0; k < q; k += 2) {
            auto pair = [&](int j) {
                const float* t1 = tw + (k + 1) * stride + 2 * (j - 1);
                // The entry k = 0 is not read: that lane multiplies by exactly 1.
                if (k == 0) return prep<Inv>(_mm_loadh_pi(one, reinterpret_cast<const __m64*>(t1)));
                return prep<Inv>(load2(t1 - stride, t1));
            };
            const Tw32 w1 = pair(1), w2 = pair(2), w3 = pair(3);
            float* p0 = d + 2 * k;
            for (int64_t b = 0; b < N; b += span, p0 += 2 * span)
                bfly_32<Inv>(p0, p0 + 2 * q, p0 + 4 * q, p0 + 6 * q, w1, w2, w3);
        }
    }
}

template <bool Inv> void radix4_32fc(float* d, int64_t N, const float* tw)
{
    const int64_t B = first_block(N);
    first_pass_32<Inv>(d, N, N, tw, [d, B](int64_t i, int j) { return _mm_loadu_ps(d + 2 * i * B + 4 * j); });
    later_32<Inv>(d, N, tw);
}

// ---- 64f --------------------------------------------------------------------

struct Tw64 {
    __m128d wr, wi;
};
template <bool Inv> inline Tw64 prep(__m128d w)
{
    return {_mm_unpacklo_pd(w, w), _mm_xor_pd(_mm_unpackhi_pd(w, w), Inv ? sign_hi() : sign_lo())};
}
inline __m128d mul(__m128d x, Tw64 w) { return _mm_add_pd(_mm_mul_pd(x, w.wr), _mm_mul_pd(swap_ri(x), w.wi)); }

template <bool Inv>
inline void bfly_64(double* p0, double* p1, double* p2, double* p3, const Tw64& w1, const Tw64& w2, const Tw64& w3)
{
    const __m128d a = _mm_loadu_pd(p0);
    const __m128d b = mul(_mm_loadu_pd(p1), w2);
    const __m128d c = mul(_mm_loadu_pd(p2), w1);
    const __m128d e = mul(_mm_loadu_pd(p3), w3);
    __m128d x0, x1, x2, x3;
    bfly4<Inv>(a, b, c, e, x0, x1, x2, x3);
    _mm_storeu_pd(p0, x0);
    _mm_storeu_pd(p1, x1);
    _mm_storeu_pd(p2, x2);
    _mm_storeu_pd(p3, x3);
}

template <bool Inv, class Load, class Order = Natural> void first_pass_64(double* d, int64_t N, int64_t L, const double* tw, Load load, Order order = Order())
{
    const int B = first_block(L);
    if (B == 8) {
        const double c = 0.70710678118654752;
        const Tw64 w1 = prep<Inv>(_mm_setr_pd(c, -c)), w3 = prep<Inv>(_mm_setr_pd(-c, -c));
        for (int64_t i = 0; i < N / 8; ++i) {
            double* p = d + 16 * order(i);
            __m128d e0, e1, e2, e3, o0, o1, o2, o3;
            bfly4<Inv>(load(i, 0), load(i, 1), load(i, 2), load(i, 3), e0, e1, e2, e3);
            bfly4<Inv>(load(i, 4), load(i, 5), load(i, 6), load(i, 7), o0, o1, o2, o3);
            o1 = mul(o1, w1);
            o2 = rot<Inv>(o2);
            o3 = mul(o3, w3);
            _mm_storeu_pd(p, _mm_add_pd(e0, o0));
            _mm_storeu_pd(p + 2, _mm_add_pd(e1, o1));
            _mm_storeu_pd(p + 4, _mm_add_pd(e2, o2));
            _mm_storeu_pd(p + 6, _mm_add_pd(e3, o3));
            _mm_storeu_pd(p + 8, _mm_sub_pd(e0, o0));
            _mm_storeu_pd(p + 10, _mm_sub_pd(e1, o1));
            _mm_storeu_pd(p + 12, _mm_sub_pd(e2, o2));
            _mm_storeu_pd(p + 14, _mm_sub_pd(e3, o3));
        }
    } else if (B == 16) {
        auto twid = [&](int64_t k, int j) { return prep<Inv>(_mm_load_pd(tw + k * 6 * (L / 16) + 2 * (j - 1))); };
        const Tw64 w[4][3] = {{},
                              {twid(1, 1), twid(1, 2), twid(1, 3)},
                              {twid(2, 1), twid(2, 2), twid(2, 3)},
                              {twid(3, 1), twid(3, 2), twid(3, 3)}};
        for (int64_t i = 0; i < N / 16; ++i) {
            double* p = d + 32 * order(i);
            __m128d v[16];
            for (int g = 0; g < 4; ++g)
                bfly4<Inv>(load(i, 4 * g), load(i, 4 * g + 1), load(i, 4 * g + 2), load(i, 4 * g + 3), v[4 * g],
                           v[4 * g + 1], v[4 * g + 2], v[4 * g + 3]);
            for (int k = 0; k < 4; ++k) {
                __m128d x0, x1, x2, x3;
                if (k == 0) bfly4<Inv>(v[0], v[4], v[8], v[12], x0, x1, x2, x3);
                else
                    bfly4<Inv>(v[k], mul(v[4 + k], w[k][1]), mul(v[8 + k], w[k][0]), mul(v[12 + k], w[k][2]), x0, x1,
                               x2, x3);
                _mm_storeu_pd(p + 2 * k, x0);
                _mm_storeu_pd(p + 2 * k + 8, x1);
                _mm_storeu_pd(p + 2 * k + 16, x2);
                _mm_storeu_pd(p + 2 * k + 24, x3);
            }
        }
    } else {
        for (int64_t i = 0; i < N / 4; ++i) {
            double* p = d + 8 * order(i);
            __m128d x0, x1, x2, x3;
            bfly4<Inv>(load(i, 0), load(i, 1), load(i, 2), load(i, 3), x0, x1, x2, x3);
            _mm_storeu_pd(p, x0);
            _mm_storeu_pd(p + 2, x1);
            _mm_storeu_pd(p + 4, x2);
            _mm_storeu_pd(p + 6, x3);
        }
    }
}

template <bool Inv> void later_64(double* d, int64_t N, const double* tw)
{
    for (int64_t span = first_block(N) * 4; span <= N; span *= 4) {
        const int64_t q = span / 4;
        for (int64_t b = 0; b < N; b += span) {
            // k = 0 needs no product.
            double* p0 = d + 2 * b;
            __m128d x0, x1, x2, x3;
            bfly4<Inv>(_mm_loadu_pd(p0), _mm_loadu_pd(p0 + 2 * q), _mm_loadu_pd(p0 + 4 * q), _mm_loadu_pd(p0 + 6 * q), x0,
                       x1, x2, x3);
            _mm_storeu_pd(p0, x0);
            _mm_storeu_pd(p0 + 2 * q, x1);
            _mm_storeu_pd(p0 + 4 * q, x2);
            _mm_storeu_pd(p0 + 6 * q, x3);
        }
        const int64_t stride = 6 * (N / span);
        for (int64_t k = 1; k < q; ++k) {
            const double* t = tw + k * stride;
            const Tw64 w1 = prep<Inv>(_mm_load_pd(t)), w2 = prep<Inv>(_mm_load_pd(t + 2)), w3 = prep<Inv>(_mm_load_pd(t + 4));
            double* p0 = d + 2 * k;
            for (int64_t b = 0; b < N; b += span, p0 += 2 * span)
                bfly_64<Inv>(p0, p0 + 2 * q, p0 + 4 * q, p0 + 6 * q, w1, w2, w3);
        }
    }
}

template <bool Inv> void radix4_64fc(double* d, int64_t N, const double* tw)
{
    const int64_t B = first_block(N);
    first_pass_64<Inv>(d, N, N, tw, [d, B](int64_t i, int j) { return _mm_loadu_pd(d + 2 * i * B + 2 * j); });
    later_64<Inv>(d, N, tw);
}

constexpr int8_t kRev16[16] = {0, 8, 4, 12, 2, 10, 6, 14, 1, 9, 5, 13, 3, 11, 7, 15};
constexpr int8_t kRev8[8] = {0, 4, 2, 6, 1, 5, 3, 7};
constexpr int8_t kRev4[4] = {0, 2, 1, 3};

// ---- four columns at once ------------------------------------------------------

// The radix-4 kernel on R rows of four complex values: four transforms of
// length R side by side, every step the same as in the one-column kernel,
// with each twiddle (which depends on the row only) serving all four.
template <bool Inv> void rows4_32fc(float* d, int64_t R, const float* tw)
{
    auto ld = [d](int64_t r, int h) { return _mm_load_ps(d + 8 * r + 4 * h); };
    auto st = [d](int64_t r, int h, __m128 v) { _mm_store_ps(d + 8 * r + 4 * h, v); };
    auto bcast = [](const float* t) {
        const __m128 w = _mm_castsi128_ps(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(t)));
        return prep<Inv>(_mm_movelh_ps(w, w));
    };
    for (int64_t i = 0; i < R; i += 4)
        for (int h = 0; h < 2; ++h) {
            __m128 x0, x1, x2, x3;
            bfly4<Inv>(ld(i, h), ld(i + 1, h), ld(i + 2, h), ld(i + 3, h), x0, x1, x2, x3);
            st(i, h, x0);
            st(i + 1, h, x1);
            st(i + 2, h, x2);
            st(i + 3, h, x3);
        }
    int64_t span = 16;
    if (R & 0xAAAAAAAAAAAAAAAAll) {
        const float c = 0.70710677f;
        const float w1v[2] = {c, -c}, w3v[2] = {-c, -c};
        const Tw32 w1 = bcast(w1v), w3 = bcast(w3v);
        for (int64_t i = 0; i < R; i += 8)
            for (int h = 0; h < 2; ++h)
                for (int k = 0; k < 4; ++k) {
                    const __m128 e = ld(i + k, h);
                    __m128 o = ld(i + 4 + k, h);
                    if (k == 1) o = mul(o, w1);
                    else if (k == 2) o = rot<Inv>(o);
                    else if (k == 3) o = mul(o, w3);
                    st(i + k, h, _mm_add_ps(e, o));
                    st(i + 4 + k, h, _mm_sub_ps(e, o));
                }
        span = 32;
    }
    for (; span <= R; span *= 4) {
        const int64_t q = span / 4, stride = 6 * (R / span);
        for (int64_t k = 0; k < q; ++k) {
            const float* t = tw + k * stride;
            const Tw32 w1 = bcast(t), w2 = bcast(t + 2), w3 = bcast(t + 4);
            for (int64_t b = k; b < R; b += span)
                for (int h = 0; h < 2; ++h) {
                    __m128 x0, x1, x2, x3;
                    if (k == 0) bfly4<Inv>(ld(b, h), ld(b + q, h), ld(b + 2 * q, h), ld(b + 3 * q, h), x0, x1, x2, x3);
                    else
                        bfly4<Inv>(ld(b, h), mul(ld(b + q, h), w2), mul(ld(b + 2 * q, h), w1), mul(ld(b + 3 * q, h), w3),
                                   x0, x1, x2, x3);
                    st(b, h, x0);
                    st(b + q, h, x1);
                    st(b + 2 * q, h, x2);
                    st(b + 3 * q, h, x3);
                }
        }
    }
}

template <bool Inv> void rows4_64fc(double* d, int64_t R, const double* tw)
{
    auto ld = [d](int64_t r, int h) { return _mm_load_pd(d + 8 * r + 2 * h); };
    auto st = [d](int64_t r, int h, __m128d v) { _mm_store_pd(d + 8 * r + 2 * h, v); };
    for (int64_t i = 0; i < R; i += 4)
        for (int h = 0; h < 4; ++h) {
            __m128d x0, x1, x2, x3;
            bfly4<Inv>(ld(i, h), ld(i + 1, h), ld(i + 2, h), ld(i + 3, h), x0, x1, x2, x3);
            st(i, h, x0);
            st(i + 1, h, x1);
            st(i + 2, h, x2);
            st(i + 3, h, x3);
        }
    int64_t span = 16;
    if (R & 0xAAAAAAAAAAAAAAAAll) {
        const double c = 0.70710678118654752;
        const Tw64 w1 = prep<Inv>(_mm_setr_pd(c, -c)), w3 = prep<Inv>(_mm_setr_pd(-c, -c));
        for (int64_t i = 0; i < R; i += 8)
            for (int h = 0; h < 4; ++h)
                for (int k = 0; k < 4; ++k) {
                    const __m128d e = ld(i + k, h);
                    __m128d o = ld(i + 4 + k, h);
                    if (k == 1) o = mul(o, w1);
                    else if (k == 2) o = rot<Inv>(o);
                    else if (k == 3) o = mul(o, w3);
                    st(i + k, h, _mm_add_pd(e, o));
                    st(i + 4 + k, h, _mm_sub_pd(e, o));
                }
        span = 32;
    }
    for (; span <= R; span *= 4) {
        const int64_t q = span / 4, stride = 6 * (R / span);
        for (int64_t k = 0; k < q; ++k) {
            const double* t = tw + k * stride;
            const Tw64 w1 = prep<Inv>(_mm_load_pd(t)), w2 = prep<Inv>(_mm_load_pd(t + 2)), w3 = prep<Inv>(_mm_load_pd(t + 4));
            for (int64_t b = k; b < R; b += span)
                for (int h = 0; h < 4; ++h) {
                    __m128d x0, x1, x2, x3;
                    if (k == 0) bfly4<Inv>(ld(b, h), ld(b + q, h), ld(b + 2 * q, h), ld(b + 3 * q, h), x0, x1, x2, x3);
                    else
                        bfly4<Inv>(ld(b, h), mul(ld(b + q, h), w2), mul(ld(b + 2 * q, h), w1), mul(ld(b + 3 * q, h), w3),
                                   x0, x1, x2, x3);
                    st(b, h, x0);
                    st(b + q, h, x1);
                    st(b + 2 * q, h, x2);
                    st(b + 3 * q, h, x3);
                }
        }
    }
}

// ---- radix-4, split arrays (scalar; the compiler keeps it in registers) ----

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
    // Real and imaginary parts of the table entries k .. k+3, stride apart
    // (in floats); the entry k = 0, when asked for, is replaced by 1.
    static void twiddle(const float* t, int64_t stride, bool first, V& wr, V& wi)
    {
        const __m128 c01 = load2(first ? t + stride : t, t + stride);
        const __m128 c23 = load2(t + 2 * stride, t + 3 * stride);
        wr = _mm_shuffle_ps(c01, c23, _MM_SHUFFLE(2, 0, 2, 0));
        wi = _mm_shuffle_ps(c01, c23, _MM_SHUFFLE(3, 1, 3, 1));
        if (first) {
            wr = _mm_move_ss(wr, _mm_set_ss(1.0f));
            wi = _mm_move_ss(wi, _mm_setzero_ps());
        }
    }
    static V neg(V v) { return _mm_xor_ps(v, _mm_set1_ps(-0.0f)); }
};
template <> struct Lanes<double> {
    using V = __m128d;
    static constexpr int n = 2;
    static void twiddle(const double* t, int64_t stride, bool first, V& wr, V& wi)
    {
        const __m128d c0 = first ? _mm_setr_pd(1.0, 0.0) : _mm_load_pd(t);
        const __m128d c1 = _mm_load_pd(t + stride);
        wr = _mm_unpacklo_pd(c0, c1);
        wi = _mm_unpackhi_pd(c0, c1);
    }
    static V neg(V v) { return _mm_xor_pd(v, _mm_set1_pd(-0.0)); }
};

// The stages of spans from `span` up to N, four (two) values of k at once.
template <bool Inv, class S> void split_stages(S* re, S* im, int64_t N, const S* tw, int64_t span)
{
    using L = Lanes<S>;
    using V = typename L::V;
    for (; span <= N; span *= 4) {
        const int64_t q = span / 4, stride = 6 * (N / span);
        for (int64_t k = 0; k < q; k += L::n) {
            V w[3][2];
            for (int j = 0; j < 3; ++j) {
                L::twiddle(tw + k * stride + 2 * j, stride, k == 0, w[j][0], w[j][1]);
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
        }
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

template <> void radix4_rows4<float, false>(float* d, int64_t R, const float* tw) { rows4_32fc<false>(d, R, tw); }
template <> void radix4_rows4<float, true>(float* d, int64_t R, const float* tw) { rows4_32fc<true>(d, R, tw); }
template <> void radix4_rows4<double, false>(double* d, int64_t R, const double* tw) { rows4_64fc<false>(d, R, tw); }
template <> void radix4_rows4<double, true>(double* d, int64_t R, const double* tw) { rows4_64fc<true>(d, R, tw); }

template <> void radix4_after_first<float, false>(float* d, int64_t N, const float* tw) { later_32<false>(d, N, tw); }
template <> void radix4_after_first<float, true>(float* d, int64_t N, const float* tw) { later_32<true>(d, N, tw); }
template <> void radix4_after_first<double, false>(double* d, int64_t N, const double* tw) { later_64<false>(d, N, tw); }
template <> void radix4_after_first<double, true>(double* d, int64_t N, const double* tw) { later_64<true>(d, N, tw); }

// Block i of dst holds src[rev(i * B + t)] = src[rev_B(t) * (N / B) + rev(i)]:
// each block is read straight from the source and goes through the first
// pass on its way to dst.
template <class S, bool Inverse> void permute_first_pass(const S* src, S* dst, int64_t N, int64_t L, const S* tw)
{
    const int B = first_block(L);
    const int8_t* rb = B == 16 ? kRev16 : B == 8 ? kRev8 : kRev4;
    const int64_t step = N / B;
    // The source index j runs in natural order, so the B streams read
    // consecutive addresses; block rev(j) of dst receives the result.
    struct Reversed {
        int64_t half;
        mutable int64_t last = -1, r = 0;
        int64_t operator()(int64_t j) const
        {
            if (j == 0) r = 0;
            else if (j != last) {
                int64_t m = half;
                while (r & m) r ^= m, m >>= 1;
                r |= m;
            }
            last = j;
            return r;
        }
    };
    const Reversed order{step / 2};
    if constexpr (sizeof(S) == 4) {
        first_pass_32<Inverse>(dst, N, L, tw,
                               [&](int64_t j, int t) {
                                   return load2(src + 2 * (rb[2 * t] * step + j), src + 2 * (rb[2 * t + 1] * step + j));
                               },
                               order);
    } else {
        first_pass_64<Inverse>(dst, N, L, tw, [&](int64_t j, int t) { return _mm_loadu_pd(src + 2 * (rb[t] * step + j)); },
                               order);
    }
}
template void permute_first_pass<float, false>(const float*, float*, int64_t, int64_t, const float*);
template void permute_first_pass<float, true>(const float*, float*, int64_t, int64_t, const float*);
template void permute_first_pass<double, false>(const double*, double*, int64_t, int64_t, const double*);
template void permute_first_pass<double, true>(const double*, double*, int64_t, int64_t, const double*);

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
    if (N >= 16) {
        // By blocks of 16: block rev(j) of dst is src[rev16(t) * N/16 + j],
        // t = 0 .. 15, with j running in order, so the reads follow sixteen
        // ascending streams and each block is written whole. This writes
        // every element once, as the walk of the list does.
        const int64_t step = N / 16, half = step / 2;
        int64_t r = 0;
        for (int64_t j = 0; j < step; ++j) {
            if (j > 0) {
                int64_t m = half;
                while (r & m) r ^= m, m >>= 1;
                r |= m;
            }
            E* d = dst + 16 * r;
            for (int t = 0; t < 16; ++t) d[t] = src[kRev16[t] * step + j];
        }
        return;
    }
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

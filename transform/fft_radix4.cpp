// The radix-4 in-place kernel (decimation in time over bit-reversed input)
// on interleaved data, in SSE2 registers: two 32f complex values or one 64f
// value per register. Also its first pass fused with the out-of-place bit
// reversal, and the four-column form of the two-factor step.
#include "internal/body.h"
#include "internal/fft_kernels.h"
#include "internal/fft_simd.h"

namespace tavs::fft {

using namespace simd;

// ---- radix-4, interleaved 32f ---------------------------------------------

template <> void radix4_interleaved<float, false>(float*, int64_t, const float*);
template <> void radix4_interleaved<float, true>(float*, int64_t, const float*);

namespace {

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

// Block order of the first pass: blocks in place, or (fused with the bit
// reversal) the block that a running source index feeds.
struct Natural {
    int64_t operator()(int64_t i) const { return i; }
};

// The first pass of the kernel runs over blocks of B values (B = 16 for an
// even order: stage one and the span-16 stage; B = 8 for an odd order: stage
// one and the radix-2 stage of span 8). load(i, j) gives values 2j, 2j+1 (in
// 64f value j) of block i, so the same pass runs on data in place or straight
// from the source through the bit reversal. L is the kernel's length, tw its
// table.
inline int first_block(int64_t L) { return (L & 0xAAAAAAAAAAAAAAAAll) ? 8 : (L >= 16 ? 16 : 4); }

// Between the first pass and the last stage the 32f kernel keeps its data
// in blocks of four values, [re0 re1 re2 re3 im0 im1 im2 im3], at the same
// addresses as the interleaved values: the stages after the first then need
// no shuffles. The first pass writes that form when stages follow it (soa),
// the last stage writes the interleaved form back.
inline void store_block(float* p, __m128 lo, __m128 hi, bool soa)
{
    if (soa) {
        _mm_storeu_ps(p, _mm_shuffle_ps(lo, hi, _MM_SHUFFLE(2, 0, 2, 0)));
        _mm_storeu_ps(p + 4, _mm_shuffle_ps(lo, hi, _MM_SHUFFLE(3, 1, 3, 1)));
    } else {
        _mm_storeu_ps(p, lo);
        _mm_storeu_ps(p + 4, hi);
    }
}

template <bool Inv, class Load, class Order = Natural>
void first_pass_32(float* d, int64_t N, int64_t L, const float* tw, Load load, Order order = Order())
{
    const int B = first_block(L);
    const bool soa = L > B;
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
            store_block(p, _mm_add_ps(e0, o0), _mm_add_ps(e1, o1), soa);
            store_block(p + 8, _mm_sub_ps(e0, o0), _mm_sub_ps(e1, o1), soa);
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
            __m128 x0, x1, x2, x3, y0, y1, y2, y3;
            bfly4<Inv>(v[0], mul(v[2], a2), mul(v[4], a1), mul(v[6], a3), x0, x1, x2, x3);
            bfly4<Inv>(v[1], mul(v[3], b2), mul(v[5], b1), mul(v[7], b3), y0, y1, y2, y3);
            store_block(p, x0, y0, soa);
            store_block(p + 8, x1, y1, soa);
            store_block(p + 16, x2, y2, soa);
            store_block(p + 24, x3, y3, soa);
        }
    } else {
        for (int64_t i = 0; i < N / 4; ++i) {
            __m128 v0 = load(i, 0), v1 = load(i, 1);
            group4<Inv>(v0, v1);
            store_block(d + 8 * order(i), v0, v1, false);
        }
    }
}

// Real and imaginary parts of the table entries k .. k+3 (stride floats
// apart), conjugated for the inverse; the entry k = 0 is not read when first
// is set: lane 0 becomes exactly 1.
template <bool Inv> inline void twiddle4(const float* t, int64_t stride, bool first, __m128& wr, __m128& wi)
{
    const __m128 c01 = load2(first ? t + stride : t, t + stride);
    const __m128 c23 = load2(t + 2 * stride, t + 3 * stride);
    wr = _mm_shuffle_ps(c01, c23, _MM_SHUFFLE(2, 0, 2, 0));
    wi = _mm_shuffle_ps(c01, c23, _MM_SHUFFLE(3, 1, 3, 1));
    if (first) {
        wr = _mm_move_ss(wr, _mm_set_ss(1.0f));
        wi = _mm_move_ss(wi, _mm_setzero_ps());
    }
    if (Inv) wi = _mm_xor_ps(wi, _mm_set1_ps(-0.0f));
}

// One radix-4 stage of span `span` on blocks of four (k .. k+3); the
// twiddles of those k serve every block of the stage, so k is the outer
// loop. The last stage writes the interleaved form back (Last is a template
// argument so each loop keeps its values in registers).
template <bool Inv, bool Last> void stage_32(float* d, int64_t N, const float* tw, int64_t span)
{
    const int64_t q = span / 4;
    const int64_t stride = 6 * (N / span);
    for (int64_t k = 0; k < q; k += 4) {
        __m128 wr0, wi0, wr1, wi1, wr2, wi2;
        twiddle4<Inv>(tw + k * stride, stride, k == 0, wr0, wi0);
        twiddle4<Inv>(tw + k * stride + 2, stride, k == 0, wr1, wi1);
        twiddle4<Inv>(tw + k * stride + 4, stride, k == 0, wr2, wi2);
        float* p0 = d + 2 * k;
        for (int64_t b = 0; b < N; b += span, p0 += 2 * span) {
            float* p1 = p0 + 2 * q;
            float* p2 = p1 + 2 * q;
            float* p3 = p2 + 2 * q;
            const __m128 ar = _mm_loadu_ps(p0), ai = _mm_loadu_ps(p0 + 4);
            // Quarter 1 times W^2k, quarter 2 times W^k, quarter 3 times W^3k.
            auto twid = [](const float* p, __m128 r, __m128 i, __m128& yr, __m128& yi) {
                const __m128 xr = _mm_loadu_ps(p), xi = _mm_loadu_ps(p + 4);
                yr = _mm_sub_ps(_mm_mul_ps(xr, r), _mm_mul_ps(xi, i));
                yi = _mm_add_ps(_mm_mul_ps(xr, i), _mm_mul_ps(xi, r));
            };
            __m128 br, bi, cr, ci, dr, di;
            twid(p1, wr1, wi1, br, bi);
            twid(p2, wr0, wi0, cr, ci);
            twid(p3, wr2, wi2, dr, di);
            const __m128 t0r = _mm_add_ps(ar, br), t0i = _mm_add_ps(ai, bi);
            const __m128 t1r = _mm_sub_ps(ar, br), t1i = _mm_sub_ps(ai, bi);
            const __m128 t2r = _mm_add_ps(cr, dr), t2i = _mm_add_ps(ci, di);
            const __m128 t3r = _mm_sub_ps(cr, dr), t3i = _mm_sub_ps(ci, di);
            const __m128 x0r = _mm_add_ps(t0r, t2r), x0i = _mm_add_ps(t0i, t2i);
            const __m128 x2r = _mm_sub_ps(t0r, t2r), x2i = _mm_sub_ps(t0i, t2i);
            // X1 = t1 - i t3, X3 = t1 + i t3 forward; the other way inverse.
            __m128 x1r, x1i, x3r, x3i;
            if (Inv) {
                x1r = _mm_sub_ps(t1r, t3i), x1i = _mm_add_ps(t1i, t3r);
                x3r = _mm_add_ps(t1r, t3i), x3i = _mm_sub_ps(t1i, t3r);
            } else {
                x1r = _mm_add_ps(t1r, t3i), x1i = _mm_sub_ps(t1i, t3r);
                x3r = _mm_sub_ps(t1r, t3i), x3i = _mm_add_ps(t1i, t3r);
            }
            if (Last) {
                _mm_storeu_ps(p0, _mm_unpacklo_ps(x0r, x0i));
                _mm_storeu_ps(p0 + 4, _mm_unpackhi_ps(x0r, x0i));
                _mm_storeu_ps(p1, _mm_unpacklo_ps(x1r, x1i));
                _mm_storeu_ps(p1 + 4, _mm_unpackhi_ps(x1r, x1i));
                _mm_storeu_ps(p2, _mm_unpacklo_ps(x2r, x2i));
                _mm_storeu_ps(p2 + 4, _mm_unpackhi_ps(x2r, x2i));
                _mm_storeu_ps(p3, _mm_unpacklo_ps(x3r, x3i));
                _mm_storeu_ps(p3 + 4, _mm_unpackhi_ps(x3r, x3i));
            } else {
                _mm_storeu_ps(p0, x0r);
                _mm_storeu_ps(p0 + 4, x0i);
                _mm_storeu_ps(p1, x1r);
                _mm_storeu_ps(p1 + 4, x1i);
                _mm_storeu_ps(p2, x2r);
                _mm_storeu_ps(p2 + 4, x2i);
                _mm_storeu_ps(p3, x3r);
                _mm_storeu_ps(p3 + 4, x3i);
            }
        }
    }
}

// The radix-4 stages after the first pass.
template <bool Inv> void later_32(float* d, int64_t N, const float* tw)
{
    for (int64_t span = first_block(N) * 4; span <= N; span *= 4) {
        if (span * 4 > N) stage_32<Inv, true>(d, N, tw, span);
        else stage_32<Inv, false>(d, N, tw, span);
    }
}

template <bool Inv> void radix4_32fc(float* d, int64_t N, const float* tw)
{
    const int64_t B = first_block(N);
    first_pass_32<Inv>(d, N, N, tw, [d, B](int64_t i, int j) { return _mm_loadu_ps(d + 2 * i * B + 4 * j); });
    later_32<Inv>(d, N, tw);
}

// ---- 64f --------------------------------------------------------------------

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
            __m128d in[8], e0, e1, e2, e3, o0, o1, o2, o3;
            for (int t = 0; t < 8; ++t) in[t] = load(i, t); // in order: the loader may stage data
            bfly4<Inv>(in[0], in[1], in[2], in[3], e0, e1, e2, e3);
            bfly4<Inv>(in[4], in[5], in[6], in[7], o0, o1, o2, o3);
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
            __m128d in[16], v[16];
            for (int t = 0; t < 16; ++t) in[t] = load(i, t);
            for (int g = 0; g < 4; ++g)
                bfly4<Inv>(in[4 * g], in[4 * g + 1], in[4 * g + 2], in[4 * g + 3], v[4 * g], v[4 * g + 1], v[4 * g + 2],
                           v[4 * g + 3]);
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
            __m128d in[4], x0, x1, x2, x3;
            for (int t = 0; t < 4; ++t) in[t] = load(i, t);
            bfly4<Inv>(in[0], in[1], in[2], in[3], x0, x1, x2, x3);
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
    // 32f: with long streams (4 KB apart and more) the B reads of one block
    // fall into the same cache sets and evict each other before the next
    // block reads the neighbouring values. Then each stream is read a whole
    // cache line at a time (J values) into a small buffer, and J blocks are
    // made from it. In 64f (four values a line) the plain reads measured as
    // fast or faster at every length.
    if constexpr (sizeof(S) == 4) {
        constexpr int64_t J = 8;
        if (step * 8 >= 4096) {
            alignas(64) float buf[16][2 * J];
            first_pass_32<Inverse>(dst, N, L, tw,
                                   [&](int64_t j, int t) {
                                       const int64_t jj = j & (J - 1);
                                       if (t == 0 && jj == 0)
                                           for (int u = 0; u < B; ++u)
                                               for (int64_t h = 0; h < 2 * J; h += 4)
                                                   _mm_store_ps(&buf[u][h], _mm_loadu_ps(src + 2 * (rb[u] * step + j) + h));
                                       return load2(&buf[2 * t][2 * jj], &buf[2 * t + 1][2 * jj]);
                                   },
                                   order);
        } else {
            first_pass_32<Inverse>(dst, N, L, tw,
                                   [&](int64_t j, int t) {
                                       return load2(src + 2 * (rb[2 * t] * step + j),
                                                    src + 2 * (rb[2 * t + 1] * step + j));
                                   },
                                   order);
        }
    } else {
        first_pass_64<Inverse>(dst, N, L, tw, [&](int64_t j, int t) { return _mm_loadu_pd(src + 2 * (rb[t] * step + j)); },
                               order);
    }
}
template void permute_first_pass<float, false>(const float*, float*, int64_t, int64_t, const float*);
template void permute_first_pass<float, true>(const float*, float*, int64_t, int64_t, const float*);
template void permute_first_pass<double, false>(const double*, double*, int64_t, int64_t, const double*);
template void permute_first_pass<double, true>(const double*, double*, int64_t, int64_t, const double*);

} // namespace tavs::fft

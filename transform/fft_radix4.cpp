// The radix-4 in-place kernel (decimation in time over bit-reversed input)
// on interleaved data, in SSE2 registers: two 32f complex values or one 64f
// value per register. Also its first pass fused with the out-of-place bit
// reversal.
#include "internal/body.h"
#include "internal/fft_kernels.h"
#include "internal/fft_simd.h"

namespace tavs::fft {

using namespace simd;

// ---- radix-4, interleaved 32f ---------------------------------------------

template <> void radix4_interleaved<float, false>(float*, int64_t, const float*);
template <> void radix4_interleaved<float, true>(float*, int64_t, const float*);

namespace {

// Block order of the first pass: blocks in place, or (fused with the bit
// reversal) the block that a running source index feeds.
struct Natural {
    int64_t operator()(int64_t i) const { return i; }
};

// The first pass of the kernel runs over blocks of B values (B = 16 for an
// even order: stage one and the span-16 stage; B = 8 for an odd order: stage
// one and the radix-2 stage of span 8). The loader gives the values of a
// block, so the same pass runs on data in place or straight from the source
// through the bit reversal. L is the kernel's length (at least 32), tw its
// table.
inline int first_block(int64_t L) { return (L & 0xAAAAAAAAAAAAAAAAll) ? 8 : (L >= 16 ? 16 : 4); }

// Between the first pass and the last stage the 32f kernel keeps its data
// in blocks of four values, [re0 re1 re2 re3 im0 im1 im2 im3], at the same
// addresses as the interleaved values: the stages after the first then need
// no shuffles. The first pass writes that form, the last stage writes the
// interleaved form back.

// Quarter m of a block (values 4m .. 4m+3 in the four registers x[0..3],
// each [re im] of block a then of block b) stored in the [re x4, im x4]
// form of both blocks.
inline void store_quarters(float* pa, float* pb, __m128 x0, __m128 x1, __m128 x2, __m128 x3)
{
    transpose4(x0, x1, x2, x3);
    _mm_storeu_ps(pa, x0);
    _mm_storeu_ps(pa + 4, x1);
    _mm_storeu_ps(pb, x2);
    _mm_storeu_ps(pb + 4, x3);
}

// The first pass on two blocks at once when stages follow it: register t
// holds value t of block i and of block i+1, so the butterflies need no
// shuffles (the two blocks run side by side) and a fused bit reversal reads
// two neighbouring source values with one load. load(i, t) (i even) gives
// those two values; order(i) is the destination block of i. Every butterfly
// does the same operations as the one-block pass.
template <bool Inv, class Load, class Order>
void first_pass_pairs_32(float* d, int64_t N, int64_t L, const float* tw, Load load, Order order)
{
    const int B = first_block(L); // 8 or 16 from L = 32 on
    auto dup = [](__m128 w) { return _mm_movelh_ps(w, w); };
    if (B == 8) {
        const float c = 0.70710677f;
        const Tw32 w1 = prep<Inv>(_mm_setr_ps(c, -c, c, -c));
        const Tw32 w3 = prep<Inv>(_mm_setr_ps(-c, -c, -c, -c));
        for (int64_t i = 0; i < N / 8; i += 2) {
            __m128 in[8];
            for (int t = 0; t < 8; ++t) in[t] = load(i, t); // in order: the loader may stage data
            float* pa = d + 16 * order(i);
            float* pb = d + 16 * order(i + 1);
            __m128 e0, e1, e2, e3, o0, o1, o2, o3;
            bfly4<Inv>(in[0], in[1], in[2], in[3], e0, e1, e2, e3);
            bfly4<Inv>(in[4], in[5], in[6], in[7], o0, o1, o2, o3);
            o1 = mul(o1, w1);
            o2 = rot<Inv>(o2);
            o3 = mul(o3, w3);
            store_quarters(pa, pb, _mm_add_ps(e0, o0), _mm_add_ps(e1, o1), _mm_add_ps(e2, o2), _mm_add_ps(e3, o3));
            store_quarters(pa + 8, pb + 8, _mm_sub_ps(e0, o0), _mm_sub_ps(e1, o1), _mm_sub_ps(e2, o2),
                           _mm_sub_ps(e3, o3));
        }
    } else {
        // Span-16 stage: value k + 4m of a block; the twiddles of k = 1..3.
        const int64_t stride = 6 * (L / 16);
        auto twid = [&](int64_t k, int j) {
            return prep<Inv>(dup(_mm_castsi128_ps(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(tw + k * stride + 2 * (j - 1))))));
        };
        const Tw32 w11 = twid(1, 1), w12 = twid(1, 2), w13 = twid(1, 3);
        const Tw32 w21 = twid(2, 1), w22 = twid(2, 2), w23 = twid(2, 3);
        const Tw32 w31 = twid(3, 1), w32 = twid(3, 2), w33 = twid(3, 3);
        for (int64_t i = 0; i < N / 16; i += 2) {
            __m128 v[16];
            for (int t = 0; t < 16; ++t) v[t] = load(i, t);
            float* pa = d + 32 * order(i);
            float* pb = d + 32 * order(i + 1);
            for (int g = 0; g < 4; ++g)
                bfly4<Inv>(v[4 * g], v[4 * g + 1], v[4 * g + 2], v[4 * g + 3], v[4 * g], v[4 * g + 1], v[4 * g + 2],
                           v[4 * g + 3]);
            // Quarter 1 times W^2k, quarter 2 times W^k, quarter 3 times W^3k.
            __m128 x[4][4];
            bfly4<Inv>(v[0], v[4], v[8], v[12], x[0][0], x[1][0], x[2][0], x[3][0]);
            bfly4<Inv>(v[1], mul(v[5], w12), mul(v[9], w11), mul(v[13], w13), x[0][1], x[1][1], x[2][1], x[3][1]);
            bfly4<Inv>(v[2], mul(v[6], w22), mul(v[10], w21), mul(v[14], w23), x[0][2], x[1][2], x[2][2], x[3][2]);
            bfly4<Inv>(v[3], mul(v[7], w32), mul(v[11], w31), mul(v[15], w33), x[0][3], x[1][3], x[2][3], x[3][3]);
            for (int m = 0; m < 4; ++m) store_quarters(pa + 8 * m, pb + 8 * m, x[m][0], x[m][1], x[m][2], x[m][3]);
        }
    }
}

// The twiddles of one group of four k: W^k, W^2k, W^3k.
struct Tw4 {
    __m128 r1, i1, r2, i2, r3, i3;
};
inline Tw4 twiddles4(const float* t, int64_t stride, bool first)
{
    Tw4 w;
    twiddle4(t, stride, first, w.r1, w.i1);
    twiddle4(t + 2, stride, first, w.r2, w.i2);
    twiddle4(t + 4, stride, first, w.r3, w.i3);
    return w;
}

// One radix-4 butterfly on four k side by side, quarters at p0 .. p3 in
// blocks of four. x * conj(w) in the inverse is (xr wr + xi wi, xi wr - xr
// wi): the same bits as the product with the negated imaginary part. In
// the group of k = 0 (First) lane 0 is not multiplied: its values go into
// the butterfly as they are. The last stage writes the interleaved form
// back.
template <bool Inv, bool Last, bool First = false>
inline void blocks_bfly(float* p0, float* p1, float* p2, float* p3, const Tw4& w)
{
    const __m128 ar = _mm_loadu_ps(p0), ai = _mm_loadu_ps(p0 + 4);
    // Quarter 1 times W^2k, quarter 2 times W^k, quarter 3 times W^3k.
    auto twid = [](const float* p, __m128 r, __m128 i, __m128& yr, __m128& yi) {
        const __m128 xr = _mm_loadu_ps(p), xi = _mm_loadu_ps(p + 4);
        if (Inv) {
            yr = _mm_add_ps(_mm_mul_ps(xr, r), _mm_mul_ps(xi, i));
            yi = _mm_sub_ps(_mm_mul_ps(xi, r), _mm_mul_ps(xr, i));
        } else {
            yr = _mm_sub_ps(_mm_mul_ps(xr, r), _mm_mul_ps(xi, i));
            yi = _mm_add_ps(_mm_mul_ps(xr, i), _mm_mul_ps(xi, r));
        }
        if (First) {
            yr = _mm_move_ss(yr, xr);
            yi = _mm_move_ss(yi, xi);
        }
    };
    __m128 br, bi, cr, ci, dr, di;
    twid(p1, w.r2, w.i2, br, bi);
    twid(p2, w.r1, w.i1, cr, ci);
    twid(p3, w.r3, w.i3, dr, di);
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
    auto put = [](float* p, __m128 r, __m128 i) {
        if (Last) {
            _mm_storeu_ps(p, _mm_unpacklo_ps(r, i));
            _mm_storeu_ps(p + 4, _mm_unpackhi_ps(r, i));
        } else {
            _mm_storeu_ps(p, r);
            _mm_storeu_ps(p + 4, i);
        }
    };
    put(p0, x0r, x0i);
    put(p1, x1r, x1i);
    put(p2, x2r, x2i);
    put(p3, x3r, x3i);
}

// One radix-4 stage of span `span` on blocks of four (k .. k+3); the
// twiddles of those k serve every block of the stage, so k is the outer
// loop. A stage of span N is one block: its loop runs over k alone. Last
// (a template argument so each loop keeps its values in registers) writes
// the interleaved form back.
template <bool Inv, bool Last> void stage_32(float* d, int64_t N, const float* tw, int64_t span)
{
    const int64_t q = span / 4;
    const int64_t stride = 6 * (N / span);
    if (span == N) {
        // stride 6: the group's table entries are consecutive. The group of
        // k = 0 goes first, so the loop itself needs no test of k.
        auto group = [&]<bool First>(int64_t k) {
            float* p0 = d + 2 * k;
            blocks_bfly<Inv, Last, First>(p0, p0 + 2 * q, p0 + 4 * q, p0 + 6 * q, twiddles4(tw + 6 * k, 6, First));
        };
        group.template operator()<true>(0);
        for (int64_t k = 4; k < q; k += 4) group.template operator()<false>(k);
        return;
    }
    auto column = [&]<bool First>(int64_t k) {
        const Tw4 w = twiddles4(tw + k * stride, stride, First);
        float* p0 = d + 2 * k;
        for (int64_t b = 0; b < N; b += span, p0 += 2 * span)
            blocks_bfly<Inv, Last, First>(p0, p0 + 2 * q, p0 + 4 * q, p0 + 6 * q, w);
    };
    column.template operator()<true>(0);
    for (int64_t k = 4; k < q; k += 4) column.template operator()<false>(k);
}

// The radix-4 stages after the first pass. With Blocks the last stage too
// leaves its values in blocks of four, for a caller that reads them so.
template <bool Inv, bool Blocks = false> void later_32(float* d, int64_t N, const float* tw)
{
    for (int64_t span = first_block(N) * 4; span <= N; span *= 4) {
        if (span * 4 > N && !Blocks) stage_32<Inv, true>(d, N, tw, span);
        else stage_32<Inv, false>(d, N, tw, span);
    }
}

template <bool Inv, bool Blocks = false> void radix4_32fc(float* d, int64_t N, const float* tw)
{
    const int64_t B = first_block(N);
    first_pass_pairs_32<Inv>(
        d, N, N, tw, [d, B](int64_t i, int t) { return load2(d + 2 * (i * B + t), d + 2 * ((i + 1) * B + t)); },
        Natural());
    later_32<Inv, Blocks>(d, N, tw);
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

constexpr int8_t kRev8[8] = {0, 4, 2, 6, 1, 5, 3, 7};
constexpr int8_t kRev4[4] = {0, 2, 1, 3};

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


template <> void radix4_after_first<float, false>(float* d, int64_t N, const float* tw) { later_32<false>(d, N, tw); }
template <> void radix4_after_first<float, true>(float* d, int64_t N, const float* tw) { later_32<true>(d, N, tw); }
template <> void radix4_after_first<double, false>(double* d, int64_t N, const double* tw) { later_64<false>(d, N, tw); }
template <> void radix4_after_first<double, true>(double* d, int64_t N, const double* tw) { later_64<true>(d, N, tw); }

void radix4_fwd_blocks_32f(float* d, int64_t N, const float* tw, bool firstDone)
{
    if (firstDone) later_32<false, true>(d, N, tw);
    else radix4_32fc<false, true>(d, N, tw);
}

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
            first_pass_pairs_32<Inverse>(dst, N, L, tw,
                                         [&](int64_t j, int t) {
                                             const int64_t jj = j & (J - 1);
                                             if (t == 0 && jj == 0)
                                                 for (int u = 0; u < B; ++u)
                                                     for (int64_t h = 0; h < 2 * J; h += 4)
                                                         _mm_store_ps(&buf[u][h],
                                                                      _mm_loadu_ps(src + 2 * (rb[u] * step + j) + h));
                                             return _mm_load_ps(&buf[t][2 * jj]);
                                         },
                                         order);
        } else {
            first_pass_pairs_32<Inverse>(
                dst, N, L, tw, [&](int64_t j, int t) { return _mm_loadu_ps(src + 2 * (rb[t] * step + j)); }, order);
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

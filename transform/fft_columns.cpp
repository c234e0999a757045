// The four-column form of the radix-4 kernel: the column transforms of the
// two-factor step, four transforms of length R side by side on rows of the
// work buffer, every twiddle (which depends on the row only) serving all
// four.
#include "internal/body.h"
#include "internal/fft_kernels.h"
#include "internal/fft_simd.h"
#include "internal/fft_soa.h"
#include "internal/rfft.h"
#include "internal/rfft_lanes.h"

namespace tavs::fft {

using namespace simd;
using namespace soa;

namespace {

// The radix-4 kernel on R rows of four complex values (64f, one value a
// register): four transforms of length R side by side, every step the same
// as in the one-column kernel, with each twiddle (which depends on the row
// only) serving all four.
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

// rows4_32fc on rows in the [re x4, im x4] form: the same butterflies, the
// rotations by -i or +i become a choice of operands. With SkipLast the last
// stage (span R, always radix 4 for R >= 16) is left to the caller, with
// SkipFirst the first (the caller did it on its way in). With NB = 2 the
// same on two blocks of rows at once, sharing the twiddles and the loops.
template <bool Inv, bool SkipLast = false, bool SkipFirst = false, int NB = 1>
void rows_soa_32fc(float* d0, float* d1, int64_t R, const float* tw)
{
    auto ld = [](const float* d, int64_t r) { return Soa{_mm_load_ps(d + 8 * r), _mm_load_ps(d + 8 * r + 4)}; };
    auto st = [](float* d, int64_t r, Soa v) {
        _mm_store_ps(d + 8 * r, v.r);
        _mm_store_ps(d + 8 * r + 4, v.i);
    };
    // Each step on block d0, then on d1 when there are two.
    auto both = [&](auto step) {
        step(d0);
        if constexpr (NB == 2) step(d1);
    };
    for (int64_t i = 0; i < (SkipFirst ? 0 : R); i += 4)
        both([&](float* d) {
            Soa x0, x1, x2, x3;
            bfly4_soa<Inv>(ld(d, i), ld(d, i + 1), ld(d, i + 2), ld(d, i + 3), x0, x1, x2, x3);
            st(d, i, x0);
            st(d, i + 1, x1);
            st(d, i + 2, x2);
            st(d, i + 3, x3);
        });
    int64_t span = 16;
    if (R & 0xAAAAAAAAAAAAAAAAll) {
        const __m128 c = _mm_set1_ps(0.70710677f), mc = _mm_set1_ps(-0.70710677f), neg = _mm_set1_ps(-0.0f);
        for (int64_t i = 0; i < R; i += 8)
            for (int k = 0; k < 4; ++k)
                both([&](float* d) {
                    const Soa e = ld(d, i + k);
                    Soa o = ld(d, i + 4 + k);
                    if (k == 1) o = mul_soa<Inv>(o, c, mc);
                    else if (k == 2) o = Inv ? Soa{_mm_xor_ps(o.i, neg), o.r} : Soa{o.i, _mm_xor_ps(o.r, neg)};
                    else if (k == 3) o = mul_soa<Inv>(o, mc, mc);
                    st(d, i + k, {_mm_add_ps(e.r, o.r), _mm_add_ps(e.i, o.i)});
                    st(d, i + 4 + k, {_mm_sub_ps(e.r, o.r), _mm_sub_ps(e.i, o.i)});
                });
        span = 32;
    }
    for (; span <= (SkipLast ? R / 4 : R); span *= 4) {
        const int64_t q = span / 4, stride = 6 * (R / span);
        for (int64_t b = 0; b < R; b += span)
            both([&](float* d) {
                Soa x0, x1, x2, x3;
                bfly4_soa<Inv>(ld(d, b), ld(d, b + q), ld(d, b + 2 * q), ld(d, b + 3 * q), x0, x1, x2, x3);
                st(d, b, x0);
                st(d, b + q, x1);
                st(d, b + 2 * q, x2);
                st(d, b + 3 * q, x3);
            });
        for (int64_t k = 1; k < q; ++k) {
            const float* t = tw + k * stride;
            const __m128 w1r = _mm_set1_ps(t[0]), w1i = _mm_set1_ps(t[1]);
            const __m128 w2r = _mm_set1_ps(t[2]), w2i = _mm_set1_ps(t[3]);
            const __m128 w3r = _mm_set1_ps(t[4]), w3i = _mm_set1_ps(t[5]);
            for (int64_t b = k; b < R; b += span)
                both([&](float* d) {
                    Soa x0, x1, x2, x3;
                    bfly4_soa<Inv>(ld(d, b), mul_soa<Inv>(ld(d, b + q), w2r, w2i),
                                   mul_soa<Inv>(ld(d, b + 2 * q), w1r, w1i), mul_soa<Inv>(ld(d, b + 3 * q), w3r, w3i),
                                   x0, x1, x2, x3);
                    st(d, b, x0);
                    st(d, b + q, x1);
                    st(d, b + 2 * q, x2);
                    st(d, b + 3 * q, x3);
                });
        }
    }
}
template <bool Inv, bool SkipLast = false, bool SkipFirst = false>
void rows4_soa_32fc(float* d, int64_t R, const float* tw)
{
    rows_soa_32fc<Inv, SkipLast, SkipFirst, 1>(d, nullptr, R, tw);
}

// Four rows held side by side in blk (place k as [re x4, im x4]): the
// kernel on all four, the scale, and each row written to its place, two
// values of a row at a time. The kernel's last stage (span M) writes the
// rows itself: its butterflies k and k + 1 give places k + i M/4 and
// k + 1 + i M/4, which a transpose turns into two values of each row.
template <bool Inv, bool FirstDone = false>
void rows4_out(float* blk, float* const row[4], int64_t M, const float* tw, bool scaled, float scale)
{
    rows4_soa_32fc<Inv, true, FirstDone>(blk, M, tw);
    const __m128 s = _mm_set1_ps(scale);
    const int64_t q = M / 4;
    auto out = [&](int64_t k, Soa a, Soa b) {
        __m128 r0 = a.r, i0 = a.i, r1 = b.r, i1 = b.i;
        if (scaled) {
            r0 = _mm_mul_ps(r0, s);
            i0 = _mm_mul_ps(i0, s);
            r1 = _mm_mul_ps(r1, s);
            i1 = _mm_mul_ps(i1, s);
        }
        // Row u's values k and k + 1: [re im re im].
        transpose4(r0, i0, r1, i1);
        _mm_storeu_ps(row[0] + 2 * k, r0);
        _mm_storeu_ps(row[1] + 2 * k, i0);
        _mm_storeu_ps(row[2] + 2 * k, r1);
        _mm_storeu_ps(row[3] + 2 * k, i1);
    };
    for (int64_t k = 0; k < q; k += 2) {
        Soa a0, a1, a2, a3, b0, b1, b2, b3;
        last_stage_bfly<Inv>(blk, q, tw, k, a0, a1, a2, a3);
        last_stage_bfly<Inv>(blk, q, tw, k + 1, b0, b1, b2, b3);
        out(k, a0, b0);
        out(k + q, a1, b1);
        out(k + 2 * q, a2, b2);
        out(k + 3 * q, a3, b3);
    }
}

inline void store_soa(float* o, Soa v)
{
    _mm_store_ps(o, v.r);
    _mm_store_ps(o + 4, v.i);
}

// rev(q + 1) from p = rev(q) over log2(M) bits, without a branch: the
// increment flips the trailing ones of q and the zero above them, which
// reversed are the top ctz(q + 1) + 1 bits.
inline int64_t next_rev(int64_t p, int64_t q, int64_t M)
{
    return p ^ (M - (M >> (__builtin_ctzll(uint64_t(q + 1)) + 1)));
}

inline int log2_of(int64_t n)
{
    int b = 0;
    while ((int64_t(1) << b) < n) ++b;
    return b;
}

// Out of place (see fft_kernels.h). Rows rev(j) .. rev(j + G - 1) read the
// source columns j .. j + G - 1, which for each place are G neighbouring
// values (eight: one cache line); the reads walk the source in order and
// the places go to p = rev(q) of the local blocks of four rows each.
template <bool Inv>
void rows_from_src(const float* src, float* dst, int64_t N, int64_t M, const float* tw, bool scaled, float scale)
{
    const int64_t R = N / M;
    const int F = log2_of(R);
    const int G = M * 16 <= kSoaRowsFloats ? 8 : 4; // rows a group
    alignas(64) float blk[kSoaRowsFloats];
    // Places i .. i+3 (i = 4 t) hold q = rev(i) + {0, M/2, M/4, 3M/4}, rev(i)
    // = rev(t) over log2(M) - 2 bits: the kernel's first stage (a butterfly
    // on each four places) is done right as they are read. The walk goes
    // up q0 = rev(t), so that the reads go up four streams.
    const int64_t qs[4] = {0, M / 2, M / 4, 3 * M / 4};
    for (int64_t j = 0; j < R; j += G) {
        int64_t t = 0; // rev(q0)
        for (int64_t q0 = 0; q0 < M / 4; ++q0) {
            for (int h = 0; h < G / 4; ++h) {
                Soa x[4];
                for (int u = 0; u < 4; ++u) {
                    const float* s = src + 2 * ((q0 + qs[u]) * R + j) + 8 * h;
                    const __m128 a = _mm_loadu_ps(s), b = _mm_loadu_ps(s + 4);
                    x[u] = {_mm_shuffle_ps(a, b, _MM_SHUFFLE(2, 0, 2, 0)), _mm_shuffle_ps(a, b, _MM_SHUFFLE(3, 1, 3, 1))};
                }
                Soa y0, y1, y2, y3;
                bfly4_soa<Inv>(x[0], x[1], x[2], x[3], y0, y1, y2, y3);
                float* o = blk + h * 8 * M + 32 * t;
                store_soa(o, y0);
                store_soa(o + 8, y1);
                store_soa(o + 16, y2);
                store_soa(o + 24, y3);
            }
            t = next_rev(t, q0, M / 4);
        }
        for (int h = 0; h < G / 4; ++h) {
            float* row[4];
            for (int u = 0; u < 4; ++u) row[u] = dst + 2 * M * rev_bits(j + 4 * h + u, F);
            rows4_out<Inv, true>(blk + h * 8 * M, row, M, tw, scaled, scale);
        }
    }
}

// In place on rows already in bit-reversed order: four neighbouring rows
// at a time into the local block and back.
template <bool Inv> void rows_in_place(float* d, int64_t N, int64_t M, const float* tw, bool scaled, float scale)
{
    alignas(64) float blk[kSoaRowsFloats];
    for (int64_t r = 0; r < N / M; r += 4) {
        float* const row[4] = {d + 2 * M * r, d + 2 * M * (r + 1), d + 2 * M * (r + 2), d + 2 * M * (r + 3)};
        for (int64_t k = 0; k < M; k += 2) {
            __m128 a = _mm_loadu_ps(row[0] + 2 * k), b = _mm_loadu_ps(row[1] + 2 * k);
            __m128 c = _mm_loadu_ps(row[2] + 2 * k), e = _mm_loadu_ps(row[3] + 2 * k);
            transpose4(a, b, c, e);
            _mm_store_ps(blk + 8 * k, a);
            _mm_store_ps(blk + 8 * k + 4, b);
            _mm_store_ps(blk + 8 * k + 8, c);
            _mm_store_ps(blk + 8 * k + 12, e);
        }
        rows4_out<Inv>(blk, row, M, tw, scaled, scale);
    }
}

} // namespace

// The flat index i = q R + c (row q < M, column c < R of the natural order)
// has its bit-reversed place in row rev(c), at place rev(q). Each pair
// (i, N - i) of the pre-step joins column c to column R - c: the columns
// j .. j + 3 (block A, j < R / 2 a multiple of 4) and R - j .. R - j - 3
// (block B) hold each other's mirrors, with rows q and M - 1 - q facing
// each other. Column 0 (its own mirror across rows q and M - q, with the
// two real values) and column R / 2 (its own mirror) are done one pair at
// a time; the latter takes lane 0 of block B in the first group, where
// R - 0 is no column.
//
// The blocks are filled four places at a time, so that the kernel's first
// stage (a butterfly on places i .. i + 3, i = 4 t) runs on the values as
// they are made. Those places of A hold rows q0 = rev(i), q0 + M/2, q0 +
// M/4, q0 + 3M/4, and the pairs that make them make places M - 4 - i ..
// M - 1 - i of B: rows q0 and q0 + M/4 of A with their mirrors, and rows
// M/2 - 1 - q0 and M/4 - 1 - q0 of B with theirs. The walk goes up q0.
void real_rows_from_pre(const float* src, int off, float s0, float s1, const float* rtw, float* dst, int64_t N,
                        int64_t M, const float* tw, bool scaled, float scale)
{
    using V = lanes::F4;
    using One = lanes::One<float>;
    const int64_t R = N / M;
    const int F = log2_of(R);
    alignas(64) float blk[kSoaRowsFloats];
    float* const A = blk;
    float* const B = blk + 8 * M;
    // The pair with lower index k, one lane: (fr, fi) to the place at f,
    // (mr, mi) to the place at r (re at [0], im at [4]).
    auto one = [&](int64_t k, float* f, float* r) {
        One a, b, c, e, p, q, fr, fi, mr, mi;
        One::load_fwd(src + (2 * k + off), a, b);
        One::load_rev(src + (2 * (N - k) + off), c, e);
        One::load_fwd(rtw + 2 * k, p, q);
        lanes::pre_pair(a, b, c, e, p, q, fr, fi, mr, mi);
        f[0] = fr.v, f[4] = fi.v, r[0] = mr.v, r[4] = mi.v;
    };
    // Lower indices k + u in block A's lanes, mirrors in block B's; with
    // down, lower indices k - u in block B's lanes, mirrors in block A's.
    auto group = [&]<bool Down>(int64_t k, Soa& f, Soa& m) {
        V a, b, c, e, tp, tq, fr, fi, mr, mi;
        if constexpr (Down) {
            V::load_rev(src + (2 * k + off), a, b);
            V::load_fwd(src + (2 * (N - k) + off), c, e);
            V::load_rev(rtw + 2 * k, tp, tq);
        } else {
            V::load_fwd(src + (2 * k + off), a, b);
            V::load_rev(src + (2 * (N - k) + off), c, e);
            V::load_fwd(rtw + 2 * k, tp, tq);
        }
        lanes::pre_pair(a, b, c, e, tp, tq, fr, fi, mr, mi);
        f = {fr.v, fi.v};
        m = {mr.v, mi.v};
    };
    auto up = [&](int64_t k, Soa& f, Soa& m) { group.template operator()<false>(k, f, m); };
    auto down = [&](int64_t k, Soa& f, Soa& m) { group.template operator()<true>(k, f, m); };
    // The same on lanes 1 to 3 only (lower indices k + dir u), lane 0 left
    // zero (it would be the pair of k = 0, or of k = N / 2).
    auto edge = [&](int64_t k, int64_t dir, Soa& f, Soa& m) {
        alignas(16) float t[16] = {};
        for (int u = 1; u < 4; ++u) one(k + dir * u, t + u, t + 8 + u);
        f = {_mm_load_ps(t), _mm_load_ps(t + 4)};
        m = {_mm_load_ps(t + 8), _mm_load_ps(t + 12)};
    };
    // Lane 0 of x from the place at p (written there before).
    auto lane0_from = [](Soa& x, const float* p) {
        x.r = _mm_move_ss(x.r, _mm_load_ss(p));
        x.i = _mm_move_ss(x.i, _mm_load_ss(p + 4));
    };
    for (int64_t j = 0; j < R / 2; j += 4) {
        if (j == 0) {
            // Lane 0 of A: column 0, pairs (q R, (M - q) R), and the two
            // real values at 0 and N / 2 (places 0 and rev(M / 2) = 1);
            // rev(M - q) = (M - 1) ^ rev(q - 1).
            for (int64_t q = 1, p = 0; q < M / 2; ++q) {
                const int64_t pq = next_rev(p, q - 1, M);
                one(q * R, A + 8 * pq, A + 8 * (p ^ (M - 1)));
                p = pq;
            }
            A[0] = s0 + s1;
            A[4] = s0 - s1;
            A[8] = 2.0f * src[N + off];
            A[12] = -2.0f * src[N + 1 + off];
            // Lane 0 of B: column R / 2, rows q and M - 1 - q.
            for (int64_t q = 0, p = 0; q < M / 2; p = next_rev(p, q, M), ++q)
                one(q * R + R / 2, B + 8 * p, B + 8 * (p ^ (M - 1)));
        }
        int64_t t = 0; // rev(q0) over log2(M) - 2 bits
        for (int64_t q0 = 0; q0 < M / 4; ++q0) {
            const int64_t i = 4 * t, g = M - 4 - i;
            Soa a[4], b[4];
            if (j == 0 && q0 == 0) {
                edge(0, 1, a[0], b[3]);
                edge(N / 2, -1, b[2], a[1]);
            } else {
                up(q0 * R + j, a[0], b[3]);
                down((M / 2 - q0) * R - j, b[2], a[1]);
            }
            up((q0 + M / 4) * R + j, a[2], b[1]);
            down((M / 4 - q0) * R - j, b[0], a[3]);
            if (j == 0)
                for (int u = 0; u < 4; ++u) {
                    lane0_from(a[u], A + 8 * (i + u));
                    lane0_from(b[u], B + 8 * (g + u));
                }
            Soa x0, x1, x2, x3;
            bfly4_soa<true>(a[0], a[1], a[2], a[3], x0, x1, x2, x3);
            store_soa(A + 8 * i, x0);
            store_soa(A + 8 * i + 8, x1);
            store_soa(A + 8 * i + 16, x2);
            store_soa(A + 8 * i + 24, x3);
            bfly4_soa<true>(b[0], b[1], b[2], b[3], x0, x1, x2, x3);
            store_soa(B + 8 * g, x0);
            store_soa(B + 8 * g + 8, x1);
            store_soa(B + 8 * g + 16, x2);
            store_soa(B + 8 * g + 24, x3);
            t = next_rev(t, q0, M / 4);
        }
        float* rowA[4];
        float* rowB[4];
        for (int u = 0; u < 4; ++u) {
            rowA[u] = dst + 2 * M * rev_bits(j + u, F);
            rowB[u] = dst + 2 * M * rev_bits(R - j - u, F);
        }
        if (j == 0) rowB[0] = dst + 2 * M * rev_bits(R / 2, F);
        rows4_out<true, true>(A, rowA, M, tw, scaled, scale);
        rows4_out<true, true>(B, rowB, M, tw, scaled, scale);
    }
}

template <> void radix4_rows4<false>(double* d, int64_t R, const double* tw) { rows4_64fc<false>(d, R, tw); }
template <> void radix4_rows4_soa<false>(float* d, int64_t R, const float* tw) { rows4_soa_32fc<false>(d, R, tw); }
template <> void radix4_rows4_soa<true>(float* d, int64_t R, const float* tw) { rows4_soa_32fc<true>(d, R, tw); }
template <> void radix4_rows4_soa_after_first<false>(float* d0, float* d1, int64_t R, const float* tw)
{
    rows_soa_32fc<false, false, true, 2>(d0, d1, R, tw);
}
template <> void radix4_rows4_soa_after_first<true>(float* d0, float* d1, int64_t R, const float* tw)
{
    rows_soa_32fc<true, false, true, 2>(d0, d1, R, tw);
}
template <> void radix4_rows4<true>(double* d, int64_t R, const double* tw) { rows4_64fc<true>(d, R, tw); }

template <>
void rows_soa_from_src<false>(const float* src, float* dst, int64_t N, int64_t M, const float* tw, bool scaled,
                              float scale)
{
    rows_from_src<false>(src, dst, N, M, tw, scaled, scale);
}
template <>
void rows_soa_from_src<true>(const float* src, float* dst, int64_t N, int64_t M, const float* tw, bool scaled,
                             float scale)
{
    rows_from_src<true>(src, dst, N, M, tw, scaled, scale);
}
template <> void rows_soa_in_place<false>(float* d, int64_t N, int64_t M, const float* tw, bool scaled, float scale)
{
    rows_in_place<false>(d, N, M, tw, scaled, scale);
}
template <> void rows_soa_in_place<true>(float* d, int64_t N, int64_t M, const float* tw, bool scaled, float scale)
{
    rows_in_place<true>(d, N, M, tw, scaled, scale);
}

} // namespace tavs::fft

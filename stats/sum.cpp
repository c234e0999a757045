// Sums of one vector. Float forms accumulate in double in fixed lane
// shapes (the order of additions decides the last bit); Sum_32f with
// HintFast sums blocks of 1024 in single precision, in a shape that depends
// on the address of the data. Integer forms are exact in 64 bits and scale
// once at the end.
#include "internal/body.h"

#include <emmintrin.h>

#include "internal/check.h"
#include "internal/stats_lanes.h"
#include "internal/stats_scale.h"

using namespace tavs;
using namespace tavs::stats;

namespace {

// ---- Sum_32f --------------------------------------------------------------

// Accurate path: sixteen double lanes over the widened elements.
double sum_32f_accurate(const float* p, int64_t n)
{
    return sum16(n, [p](int64_t i) { return widen2(p + i); }, [p](int64_t i) { return double(ld(p, i)); });
}

// Single-precision sum of one block (or of the rest) of the fast path. An
// address that is not a multiple of 4 is summed element by element; else a
// scalar takes elements up to the next 16-byte boundary, and when at least
// 32 elements follow, 32 float lanes in eight groups of four take whole
// runs of 32, the groups combine ((G0+G1)+(G2+G3))+((G4+G5)+(G6+G7)),
// leftover runs of four go into the combined group, single elements into
// the scalar, and the four lanes fold as (a0+a2)+(a1+a3) before the
// scalar is added.
float sum_block_32f(const float* p, int64_t n)
{
    uintptr_t a = reinterpret_cast<uintptr_t>(p);
    float s = 0.0f;
    int64_t head = (a & 3) ? n : int64_t(((16 - (a & 15)) & 15) / 4);
    if (head > n || n - head < 32) head = n;
    int64_t i = 0;
    for (; i < head; ++i) s += ld(p, i);
    if (i == n) return s;
    __m128 g[8];
    for (auto& v : g) v = _mm_setzero_ps();
    for (; i + 32 <= n; i += 32)
        for (int k = 0; k < 8; ++k) g[k] = _mm_add_ps(g[k], _mm_load_ps(p + i + 4 * k));
    __m128 c = _mm_add_ps(_mm_add_ps(_mm_add_ps(g[0], g[1]), _mm_add_ps(g[2], g[3])),
                          _mm_add_ps(_mm_add_ps(g[4], g[5]), _mm_add_ps(g[6], g[7])));
    for (; i + 4 <= n; i += 4) c = _mm_add_ps(c, _mm_load_ps(p + i));
    for (; i < n; ++i) s += p[i];
    __m128 h = _mm_add_ps(c, _mm_movehl_ps(c, c)); // (a0+a2, a1+a3)
    float f = _mm_cvtss_f32(_mm_add_ss(h, _mm_shuffle_ps(h, h, 1)));
    return f + s;
}

// Fast path: blocks of exactly 1024 in single precision, each block's sum
// and then the rest's added to a double total.
double sum_32f_fast(const float* p, int64_t n)
{
    double total = 0.0;
    int64_t i = 0;
    for (; i + 1024 <= n; i += 1024) total += double(sum_block_32f(p + i, 1024));
    if (i < n) total += double(sum_block_32f(p + i, n - i));
    return total;
}

// ---- Sum_64f --------------------------------------------------------------

// Sixteen double lanes from a 16-byte boundary: an element before the
// boundary seeds lane pair P0; a vector that is not even 8-byte aligned is
// summed element by element. After the lanes fold, the tail goes on from
// the folded value, two at a time into a pair seeded with it, then singly.
double sum_64f(const double* p, int64_t n)
{
    uintptr_t a = reinterpret_cast<uintptr_t>(p);
    double v = 0.0;
    if (a & 7) {
        for (int64_t i = 0; i < n; ++i) v += ld(p, i);
        return v;
    }
    int64_t head = (a & 15) ? 1 : 0, i = head;
    if (head) v = p[0];
    if (n - head >= 16) {
        const double* q = p + head;
        int64_t done = 0;
        __m128d c = lanes16(n - head, [q](int64_t k) { return _mm_load_pd(q + k); }, pair_of(v, 0.0), &done);
        v = lo(c) + hi(c);
        i += done;
    }
    if (n - i >= 2) {
        __m128d t = pair_of(v, 0.0);
        for (; i + 2 <= n; i += 2) t = _mm_add_pd(t, _mm_loadu_pd(p + i));
        v = lo(t) + hi(t);
    }
    for (; i < n; ++i) v += p[i];
    return v;
}

// ---- complex float sums: per component, eight lanes --------------------------

template <class C> void sum_complex(const C* src, int64_t n, double* re, double* im)
{
    using P = part_t<C>;
    const P* p = reinterpret_cast<const P*>(src);
    auto pairs = [p](int64_t i, int part) {
        if constexpr (sizeof(P) == 4) {
            __m128 v = _mm_loadu_ps(p + 2 * i); // re0 im0 re1 im1
            __m128 s = part ? _mm_shuffle_ps(v, v, _MM_SHUFFLE(3, 1, 3, 1)) : _mm_shuffle_ps(v, v, _MM_SHUFFLE(2, 0, 2, 0));
            return _mm_cvtps_pd(s);
        } else {
            __m128d a = _mm_loadu_pd(p + 2 * i), b = _mm_loadu_pd(p + 2 * i + 2);
            return part ? _mm_unpackhi_pd(a, b) : _mm_unpacklo_pd(a, b);
        }
    };
    *re = sum8(n, [&](int64_t i) { return pairs(i, 0); }, [p](int64_t i) { return double(p[2 * i]); });
    *im = sum8(n, [&](int64_t i) { return pairs(i, 1); }, [p](int64_t i) { return double(p[2 * i + 1]); });
}

} // namespace

namespace tavs::stats {
// Exact sums of 32-bit elements: even and odd indices in two 64-bit sums.
int64_t sum_32s_exact(const int32_t* p, int64_t n)
{
    int64_t e = 0, o = 0, i = 0;
    for (; i + 2 <= n; i += 2) {
        e += p[i];
        o += p[i + 1];
    }
    if (i < n) e += p[i];
    return e + o;
}
} // namespace tavs::stats

namespace {

// The 16-bit sum rule: the exact sum scaled as Sum_32s_Sfs (counts above
// 48 give 0, the exact sum never reaches 2^47).
int32_t scale_sum16(int64_t sum, int sf) { return sf >= 49 ? 0 : scale_sum32(sum, sf); }

} // namespace

extern "C" Status tavsSum_32f_body(const Tav32f* src, int len, Tav32f* sum, int hint)
{
    if (Status st = check_ptrs_len(len, src, sum)) return st;
    double t = hint == HintFast ? sum_32f_fast(src, len) : sum_32f_accurate(src, len);
    *sum = float(t);
    return StatusOk;
}

extern "C" Status tavsSum_64f_body(const Tav64f* src, int len, Tav64f* sum)
{
    if (Status st = check_ptrs_len(len, src, sum)) return st;
    *sum = sum_64f(src, len);
    return StatusOk;
}

extern "C" Status tavsSum_32fc_body(const Tav32fc* src, int len, Tav32fc* sum)
{
    if (Status st = check_ptrs_len(len, src, sum)) return st;
    double re, im;
    sum_complex(src, len, &re, &im);
    sum->re = float(re);
    sum->im = float(im);
    return StatusOk;
}

extern "C" Status tavsSum_64fc_body(const Tav64fc* src, int len, Tav64fc* sum)
{
    if (Status st = check_ptrs_len(len, src, sum)) return st;
    double re, im;
    sum_complex(src, len, &re, &im);
    sum->re = re;
    sum->im = im;
    return StatusOk;
}

extern "C" Status tavsSum_16s32s_Sfs_body(const Tav16s* src, int len, Tav32s* sum, int scaleFactor)
{
    if (Status st = check_ptrs_len(len, src, sum)) return st;
    int64_t e, o;
    sum_16s_exact(src, len, &e, &o);
    *sum = scale_sum16(e + o, scaleFactor);
    return StatusOk;
}

extern "C" Status tavsSum_16s_Sfs_body(const Tav16s* src, int len, Tav16s* sum, int scaleFactor)
{
    if (Status st = check_ptrs_len(len, src, sum)) return st;
    Tav32s wide;
    tavsSum_16s32s_Sfs_body(src, len, &wide, scaleFactor);
    *sum = sat<Tav16s>(wide);
    return StatusOk;
}

extern "C" Status tavsSum_16sc32sc_Sfs_body(const Tav16sc* src, int len, Tav32sc* sum, int scaleFactor)
{
    if (Status st = check_ptrs_len(len, src, sum)) return st;
    int64_t re, im;
    sum_16s_exact(reinterpret_cast<const int16_t*>(src), int64_t(len) * 2, &re, &im);
    sum->re = scale_sum16(re, scaleFactor);
    sum->im = scale_sum16(im, scaleFactor);
    return StatusOk;
}

extern "C" Status tavsSum_16sc_Sfs_body(const Tav16sc* src, int len, Tav16sc* sum, int scaleFactor)
{
    if (Status st = check_ptrs_len(len, src, sum)) return st;
    Tav32sc wide;
    tavsSum_16sc32sc_Sfs_body(src, len, &wide, scaleFactor);
    sum->re = sat<Tav16s>(wide.re);
    sum->im = sat<Tav16s>(wide.im);
    return StatusOk;
}

extern "C" Status tavsSum_32s_Sfs_body(const Tav32s* src, int len, Tav32s* sum, int scaleFactor)
{
    if (Status st = check_ptrs_len(len, src, sum)) return st;
    *sum = scale_sum32(sum_32s_exact(src, len), scaleFactor);
    return StatusOk;
}

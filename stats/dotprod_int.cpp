// Integer dot products. 16-bit data give an exact 64-bit sum, delivered as
// it is, converted to float, or scaled once with rounding half to even and
// saturation; 32-bit data sum in double and scale by a power of two built
// on the exponent bits.
#include "internal/body.h"

#include <emmintrin.h>

#include <type_traits>

#include "internal/check.h"
#include "internal/stats_dot.h"
#include "internal/stats_lanes.h"
#include "internal/stats_scale.h"

using namespace tavs;
using namespace tavs::stats;

namespace {

// Exact sum of products of two 16-bit vectors. A pair of products lies in
// [-2147418112, 2^31]; offset by 2147418112 it fits an unsigned 32-bit lane
// exactly, is widened to 64 bits, and the offsets are taken off at the end.
int64_t dot_16s(const int16_t* a, const int16_t* b, int64_t n)
{
    const __m128i off = _mm_set1_epi32(2147418112);
    __m128i acc = _mm_setzero_si128();
    int64_t i = 0;
    for (; i + 8 <= n; i += 8) {
        __m128i x = _mm_loadu_si128(reinterpret_cast<const __m128i*>(a + i));
        __m128i y = _mm_loadu_si128(reinterpret_cast<const __m128i*>(b + i));
        __m128i p = _mm_add_epi32(_mm_madd_epi16(x, y), off);
        acc = _mm_add_epi64(acc, _mm_unpacklo_epi32(p, _mm_setzero_si128()));
        acc = _mm_add_epi64(acc, _mm_unpackhi_epi32(p, _mm_setzero_si128()));
    }
    alignas(16) uint64_t l[2];
    _mm_store_si128(reinterpret_cast<__m128i*>(l), acc);
    uint64_t s = l[0] + l[1] - uint64_t(i / 2) * 2147418112u;
    for (; i < n; ++i) s += uint64_t(int64_t(a[i]) * b[i]);
    return int64_t(s);
}

// Exact complex sums: (ar br - ai bi, ar bi + ai br), or (a br, a bi) for a
// real first vector. Every term is at most 2^31 in magnitude, so the 64-bit
// sums cannot overflow for any 32-bit length.
void dot_16sc(const int16_t* a, const Tav16sc* b, int64_t n, bool realA, int64_t* re, int64_t* im)
{
    int64_t r = 0, m = 0;
    for (int64_t i = 0; i < n; ++i) {
        int64_t br = b[i].re, bi = b[i].im;
        if (realA) {
            r += a[i] * br;
            m += a[i] * bi;
        } else {
            int64_t ar = a[2 * i], ai = a[2 * i + 1];
            r += ar * br - ai * bi;
            m += ar * bi + ai * br;
        }
    }
    *re = r;
    *im = m;
}

const int16_t* parts(const Tav16sc* p) { return reinterpret_cast<const int16_t*>(p); }

int32_t to32(int64_t s, int sf) { return int32_t(scale_dot(s, sf, 31, INT32_MIN, INT32_MAX)); }
int16_t to16(int64_t s, int sf) { return int16_t(scale_dot(s, sf, 15, INT16_MIN, INT16_MAX)); }

// A dot product with a 16sc second vector: the exact 64-bit sums of the
// parts (the first vector complex too, or real), each part stored through
// out: as it is, as a float, or scaled and saturated.
template <class S1, class D, class Out>
Status dot_16sc_to(const S1* src1, const Tav16sc* src2, int len, D* dp, Out out)
{
    if (Status st = check_ptrs_len(len, src1, src2, dp)) return st;
    int64_t re, im;
    if constexpr (std::is_same_v<S1, Tav16sc>)
        dot_16sc(parts(src1), src2, len, false, &re, &im);
    else
        dot_16sc(src1, src2, len, true, &re, &im);
    dp->re = out(re);
    dp->im = out(im);
    return StatusOk;
}

// 2^-sf with sf capped to -31..93, built directly on the exponent field.
double exp_scale(int sf)
{
    int s = sf < -31 ? -31 : (sf > 93 ? 93 : sf);
    uint64_t bits = uint64_t(0x3FF - s) << 52;
    double d;
    std::memcpy(&d, &bits, 8);
    return d;
}

// Scaled double sum rounded to nearest (the caller's rounding state) and
// saturated to 32 bits.
int32_t round_sat32(double sum, int sf)
{
    double v = sum * exp_scale(sf);
    if (v >= 2147483648.0) return INT32_MAX;
    if (v <= -2147483649.0) return INT32_MIN;
    int64_t r = _mm_cvtsd_si64(_mm_set_sd(v));
    return int32_t(r > INT32_MAX ? INT32_MAX : (r < INT32_MIN ? INT32_MIN : r));
}

} // namespace

// ---- 16-bit to 64-bit and to float ---------------------------------------------------------
extern "C" Status tavsDotProd_16s64s_body(const Tav16s* src1, const Tav16s* src2, int len, Tav64s* dp)
{
    if (Status st = check_ptrs_len(len, src1, src2, dp)) return st;
    *dp = dot_16s(src1, src2, len);
    return StatusOk;
}
extern "C" Status tavsDotProd_16sc64sc_body(const Tav16sc* src1, const Tav16sc* src2, int len, Tav64sc* dp)
{
    return dot_16sc_to(src1, src2, len, dp, [](int64_t v) { return v; });
}
extern "C" Status tavsDotProd_16s16sc64sc_body(const Tav16s* src1, const Tav16sc* src2, int len, Tav64sc* dp)
{
    return dot_16sc_to(src1, src2, len, dp, [](int64_t v) { return v; });
}
extern "C" Status tavsDotProd_16s32f_body(const Tav16s* src1, const Tav16s* src2, int len, Tav32f* dp)
{
    if (Status st = check_ptrs_len(len, src1, src2, dp)) return st;
    *dp = float(dot_16s(src1, src2, len));
    return StatusOk;
}
extern "C" Status tavsDotProd_16sc32fc_body(const Tav16sc* src1, const Tav16sc* src2, int len, Tav32fc* dp)
{
    return dot_16sc_to(src1, src2, len, dp, [](int64_t v) { return float(v); });
}
extern "C" Status tavsDotProd_16s16sc32fc_body(const Tav16s* src1, const Tav16sc* src2, int len, Tav32fc* dp)
{
    return dot_16sc_to(src1, src2, len, dp, [](int64_t v) { return float(v); });
}

// ---- 16-bit, scaled ------------------------------------------------------------------------
extern "C" Status tavsDotProd_16s32s_Sfs_body(const Tav16s* src1, const Tav16s* src2, int len, Tav32s* dp,
                                              int scaleFactor)
{
    if (Status st = check_ptrs_len(len, src1, src2, dp)) return st;
    *dp = to32(dot_16s(src1, src2, len), scaleFactor);
    return StatusOk;
}
extern "C" Status tavsDotProd_16s_Sfs_body(const Tav16s* src1, const Tav16s* src2, int len, Tav16s* dp, int scaleFactor)
{
    if (Status st = check_ptrs_len(len, src1, src2, dp)) return st;
    *dp = to16(dot_16s(src1, src2, len), scaleFactor);
    return StatusOk;
}
extern "C" Status tavsDotProd_16sc32sc_Sfs_body(const Tav16sc* src1, const Tav16sc* src2, int len, Tav32sc* dp,
                                                int scaleFactor)
{
    return dot_16sc_to(src1, src2, len, dp, [=](int64_t v) { return to32(v, scaleFactor); });
}
extern "C" Status tavsDotProd_16sc_Sfs_body(const Tav16sc* src1, const Tav16sc* src2, int len, Tav16sc* dp,
                                            int scaleFactor)
{
    return dot_16sc_to(src1, src2, len, dp, [=](int64_t v) { return to16(v, scaleFactor); });
}
extern "C" Status tavsDotProd_16s16sc32sc_Sfs_body(const Tav16s* src1, const Tav16sc* src2, int len, Tav32sc* dp,
                                                   int scaleFactor)
{
    return dot_16sc_to(src1, src2, len, dp, [=](int64_t v) { return to32(v, scaleFactor); });
}
extern "C" Status tavsDotProd_16s16sc_Sfs_body(const Tav16s* src1, const Tav16sc* src2, int len, Tav16sc* dp,
                                               int scaleFactor)
{
    return dot_16sc_to(src1, src2, len, dp, [=](int64_t v) { return to16(v, scaleFactor); });
}
// 16-bit times 32-bit: the products need 47 bits, so the 64-bit sum wraps
// for very long extreme vectors; the wrap is done on unsigned arithmetic.
extern "C" Status tavsDotProd_16s32s32s_Sfs_body(const Tav16s* src1, const Tav32s* src2, int len, Tav32s* dp,
                                                 int scaleFactor)
{
    if (Status st = check_ptrs_len(len, src1, src2, dp)) return st;
    uint64_t s = 0;
    for (int i = 0; i < len; ++i) s += uint64_t(int64_t(src1[i]) * src2[i]);
    *dp = to32(int64_t(s), scaleFactor);
    return StatusOk;
}

// ---- 32-bit, summed in double ------------------------------------------------------------------
extern "C" Status tavsDotProd_32s_Sfs_body(const Tav32s* src1, const Tav32s* src2, int len, Tav32s* dp, int scaleFactor)
{
    if (Status st = check_ptrs_len(len, src1, src2, dp)) return st;
    double s = sum8(len, [=](int64_t i) { return _mm_mul_pd(widen2(src1 + i), widen2(src2 + i)); },
                    [=](int64_t i) { return double(src1[i]) * double(src2[i]); });
    *dp = round_sat32(s, scaleFactor);
    return StatusOk;
}
extern "C" Status tavsDotProd_32sc_Sfs_body(const Tav32sc* src1, const Tav32sc* src2, int len, Tav32sc* dp,
                                            int scaleFactor)
{
    if (Status st = check_ptrs_len(len, src1, src2, dp)) return st;
    double re, im;
    const auto* a = reinterpret_cast<const int32_t*>(src1);
    dot_wide_cplx(WideCplx<int32_t>{a, reinterpret_cast<const int32_t*>(src2), false}, len, &re, &im);
    dp->re = round_sat32(re, scaleFactor);
    dp->im = round_sat32(im, scaleFactor);
    return StatusOk;
}
extern "C" Status tavsDotProd_32s32sc_Sfs_body(const Tav32s* src1, const Tav32sc* src2, int len, Tav32sc* dp,
                                               int scaleFactor)
{
    if (Status st = check_ptrs_len(len, src1, src2, dp)) return st;
    double re, im;
    dot_wide_cplx(WideCplx<int32_t>{src1, reinterpret_cast<const int32_t*>(src2), true}, len, &re, &im);
    dp->re = round_sat32(re, scaleFactor);
    dp->im = round_sat32(im, scaleFactor);
    return StatusOk;
}

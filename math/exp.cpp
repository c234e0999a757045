// tavsExp_32f, tavsExp_64f, tavsExp_32f64f and their in-place forms.
//
// Elements are sorted on their bits into special ones (written at once) and
// ordinary ones, which are gathered four at a time walking from the last
// element to the first. A group is evaluated in double with one division
// shared by the four elements; the one to three ordinary elements left at
// the end, and every element of a call with len below 4, go to the math
// library's exp.
#include <emmintrin.h>

#include <cmath>

#include "internal/body.h"
#include "internal/check.h"
#include "internal/math_common.h"

namespace {

using namespace tavs::math;

// ---- shared pieces of both batches -----------------------------------------
const double kLog2e = 1.4426950408889634;
const double kShifter = 0x1.8p52; // x*log2e + shifter keeps n in its low bits

// Reciprocals of four denominators from one division: I = 1/(D0 D1 D2 D3),
// then 1/Dk = I times the other three.
inline void shared_reciprocal(__m128d d01, __m128d d23, __m128d& r01, __m128d& r23)
{
    const __m128d s01 = _mm_shuffle_pd(d01, d01, 1); // D1, D0
    const __m128d s23 = _mm_shuffle_pd(d23, d23, 1); // D3, D2
    const __m128d p01 = _mm_mul_pd(d01, s01);        // D0 D1 in both lanes
    const __m128d p23 = _mm_mul_pd(d23, s23);        // D2 D3 in both lanes
    const __m128d inv = _mm_div_pd(_mm_set1_pd(1.0), _mm_mul_pd(p01, p23));
    r01 = _mm_mul_pd(_mm_mul_pd(inv, s01), p23);
    r23 = _mm_mul_pd(_mm_mul_pd(inv, s23), p01);
}

// ---- float exponential -------------------------------------------------------
// Triage on the bits; true when the element is special and out is its result.
inline bool exp32_special(uint32_t b, float& out)
{
    const uint32_t mag = b & 0x7FFFFFFFu;
    if (mag < 0x00800000u) { // zero and denormals
        out = 1.0f;
        return true;
    }
    if (b & 0x80000000u) {
        if (b < 0xC2AEAC50u) return false;
        out = mag > 0x7F800000u ? float_of(kNegQNaN32) : 0.0f;
        return true;
    }
    if (b < 0x42B17218u) return false;
    out = mag > 0x7F800000u ? float_of(b | 0x00400000u) : INFINITY;
    return true;
}

// Four ordinary elements: n = nearest(x log2e), r = x - n ln2, the order-3
// Pade form (B + A) / (B - A) with A = r (60 + r^2), B = 12 (r^2 + 10); the
// numerator and the reciprocal are rounded to float and multiplied there,
// and n goes into the exponent bits.
inline __m128 exp32_group(__m128 x)
{
    const __m128d lg = _mm_set1_pd(kLog2e), sh = _mm_set1_pd(kShifter), ln2 = _mm_set1_pd(0.6931471805599453);
    const __m128d c60 = _mm_set1_pd(60.0), c12 = _mm_set1_pd(12.0), c10 = _mm_set1_pd(10.0);
    const __m128d x01 = _mm_cvtps_pd(x), x23 = _mm_cvtps_pd(_mm_movehl_ps(x, x));
    const __m128d t01 = _mm_add_pd(_mm_mul_pd(x01, lg), sh), t23 = _mm_add_pd(_mm_mul_pd(x23, lg), sh);
    const __m128d n01 = _mm_sub_pd(t01, sh), n23 = _mm_sub_pd(t23, sh);
    const __m128d r01 = _mm_sub_pd(x01, _mm_mul_pd(n01, ln2)), r23 = _mm_sub_pd(x23, _mm_mul_pd(n23, ln2));
    const __m128d q01 = _mm_mul_pd(r01, r01), q23 = _mm_mul_pd(r23, r23);
    const __m128d a01 = _mm_mul_pd(r01, _mm_add_pd(c60, q01)), a23 = _mm_mul_pd(r23, _mm_add_pd(c60, q23));
    const __m128d b01 = _mm_mul_pd(c12, _mm_add_pd(q01, c10)), b23 = _mm_mul_pd(c12, _mm_add_pd(q23, c10));
    __m128d i01, i23;
    shared_reciprocal(_mm_sub_pd(b01, a01), _mm_sub_pd(b23, a23), i01, i23);
    const __m128 num = _mm_movelh_ps(_mm_cvtpd_ps(_mm_add_pd(b01, a01)), _mm_cvtpd_ps(_mm_add_pd(b23, a23)));
    const __m128 rec = _mm_movelh_ps(_mm_cvtpd_ps(i01), _mm_cvtpd_ps(i23));
    const __m128 y = _mm_mul_ps(num, rec);
    // n sits in the low word of each shifted sum.
    const __m128i w01 = _mm_shuffle_epi32(_mm_castpd_si128(t01), _MM_SHUFFLE(3, 1, 2, 0));
    const __m128i w23 = _mm_shuffle_epi32(_mm_castpd_si128(t23), _MM_SHUFFLE(3, 1, 2, 0));
    const __m128i n = _mm_unpacklo_epi64(w01, w23);
    return _mm_castsi128_ps(_mm_add_epi32(_mm_castps_si128(y), _mm_slli_epi32(n, 23)));
}

inline float exp32_libm(float x) { return float(std::exp(double(x))); }

// True when all four floats are ordinary: magnitude bits at or above
// 0x00800000 and below 0x42AEAC50 (negative) or 0x42B17218 (positive).
inline bool exp32_all_ordinary(__m128 x)
{
    const __m128i b = _mm_castps_si128(x);
    const __m128i mag = _mm_and_si128(b, _mm_set1_epi32(0x7FFFFFFF));
    const __m128i neg = _mm_srai_epi32(b, 31);
    const __m128i lim = _mm_or_si128(_mm_and_si128(neg, _mm_set1_epi32(0x42AEAC50)),
                                     _mm_andnot_si128(neg, _mm_set1_epi32(0x42B17218)));
    const __m128i ok =
        _mm_and_si128(_mm_cmplt_epi32(mag, lim), _mm_cmpgt_epi32(mag, _mm_set1_epi32(0x007FFFFF)));
    return _mm_movemask_ps(_mm_castsi128_ps(ok)) == 0xF;
}

Status exp_32f(const Tav32f* src, Tav32f* dst, int len)
{
    if (Status st = tavs::check_ptrs_len(len, src, dst)) return st;
    MathFpScope scope;
    if (len < 4) {
        for (int i = 0; i < len; ++i) {
            float s;
            dst[i] = exp32_special(bits_of(src[i]), s) ? s : exp32_libm(src[i]);
        }
        return StatusOk;
    }
    alignas(16) float gx[4];
    int gi[4], cnt = 0;
    for (int i = len - 1; i >= 0; --i) {
        // Four ordinary neighbours with an empty group form the next group
        // by themselves. Their order in memory is the reverse of the walk,
        // which keeps the pairs (and so every bit) of the shared division.
        if (cnt == 0 && i >= 7) { // two such groups at once
            const __m128 hi4 = _mm_loadu_ps(src + i - 3), lo4 = _mm_loadu_ps(src + i - 7);
            if (exp32_all_ordinary(hi4) && exp32_all_ordinary(lo4)) {
                const __m128 yh = exp32_group(hi4), yl = exp32_group(lo4);
                _mm_storeu_ps(dst + i - 3, yh);
                _mm_storeu_ps(dst + i - 7, yl);
                i -= 7;
                continue;
            }
        }
        if (cnt == 0 && i >= 3) {
            const __m128 x4 = _mm_loadu_ps(src + i - 3);
            if (exp32_all_ordinary(x4)) {
                _mm_storeu_ps(dst + i - 3, exp32_group(x4));
                i -= 3;
                continue;
            }
        }
        float s;
        if (exp32_special(bits_of(src[i]), s)) {
            dst[i] = s;
            continue;
        }
        gx[cnt] = src[i];
        gi[cnt++] = i;
        if (cnt == 4) {
            alignas(16) float out[4];
            _mm_store_ps(out, exp32_group(_mm_load_ps(gx)));
            for (int k = 0; k < 4; ++k)
                dst[gi[k]] = out[k];
            cnt = 0;
        }
    }
    for (int k = 0; k < cnt; ++k)
        dst[gi[k]] = exp32_libm(gx[k]);
    return StatusOk;
}

// ---- double exponential --------------------------------------------------------
const uint64_t kExp64Over = 0x40862E42FEFA39E6ull;  // 709.782712893383
const uint64_t kExp64Under = 0x4086232BDD7ABCD2ull; // 708.3964185322641

inline bool exp64_special(uint64_t b, double& out)
{
    const uint64_t mag = b & 0x7FFFFFFFFFFFFFFFull;
    if (mag < kExp64Under) return false;
    const bool nan = mag > 0x7FF0000000000000ull;
    if (nan) {
        out = double_of(b | 0x0008000000000000ull);
        return true;
    }
    if (b >> 63) { // past -708.396: exactly 0, never a denormal
        out = 0.0;
        return true;
    }
    if (b < kExp64Over) return false;
    out = INFINITY;
    return true;
}

// Four ordinary elements: r = (x - n ln2hi) - n ln2lo, c = r - r^2 P(r^2),
// exp(r) = ((hi + 1) - lo) + r c / (2 - c) with the four 2 - c sharing one
// division, and n added to the exponent field.
inline void exp64_pair_reduce(__m128d x, __m128d& t, __m128d& hi, __m128d& lo, __m128d& r, __m128d& c)
{
    const __m128d lg = _mm_set1_pd(kLog2e), sh = _mm_set1_pd(kShifter);
    t = _mm_add_pd(_mm_mul_pd(x, lg), sh);
    const __m128d n = _mm_sub_pd(t, sh);
    hi = _mm_sub_pd(x, _mm_mul_pd(n, _mm_set1_pd(0.6931471803691238)));
    lo = _mm_mul_pd(n, _mm_set1_pd(1.9082149292705877e-10));
    r = _mm_sub_pd(hi, lo);
    const __m128d q = _mm_mul_pd(r, r);
    __m128d p = _mm_set1_pd(4.1381367970572385e-8);
    p = _mm_add_pd(_mm_set1_pd(-1.6533902205465252e-6), _mm_mul_pd(q, p));
    p = _mm_add_pd(_mm_set1_pd(6.613756321437934e-5), _mm_mul_pd(q, p));
    p = _mm_add_pd(_mm_set1_pd(-0.0027777777777015593), _mm_mul_pd(q, p));
    p = _mm_add_pd(_mm_set1_pd(0.16666666666666602), _mm_mul_pd(q, p));
    c = _mm_sub_pd(r, _mm_mul_pd(q, p));
}

inline __m128d exp64_pair_finish(__m128d t, __m128d hi, __m128d lo, __m128d r, __m128d c, __m128d rec)
{
    const __m128d y =
        _mm_add_pd(_mm_sub_pd(_mm_add_pd(hi, _mm_set1_pd(1.0)), lo), _mm_mul_pd(_mm_mul_pd(r, c), rec));
    const __m128i n = _mm_sub_epi64(_mm_castpd_si128(t), _mm_castpd_si128(_mm_set1_pd(kShifter)));
    return _mm_castsi128_pd(_mm_add_epi64(_mm_castpd_si128(y), _mm_slli_epi64(n, 52)));
}

inline void exp64_group(__m128d x01, __m128d x23, double* out)
{
    __m128d t01, h01, l01, r01, c01, t23, h23, l23, r23, c23;
    exp64_pair_reduce(x01, t01, h01, l01, r01, c01);
    exp64_pair_reduce(x23, t23, h23, l23, r23, c23);
    const __m128d two = _mm_set1_pd(2.0);
    __m128d i01, i23;
    shared_reciprocal(_mm_sub_pd(two, c01), _mm_sub_pd(two, c23), i01, i23);
    _mm_storeu_pd(out, exp64_pair_finish(t01, h01, l01, r01, c01, i01));
    _mm_storeu_pd(out + 2, exp64_pair_finish(t23, h23, l23, r23, c23, i23));
}

// Four neighbouring inputs as two pairs of doubles.
inline void load4(const double* p, __m128d& lo, __m128d& hi)
{
    lo = _mm_loadu_pd(p);
    hi = _mm_loadu_pd(p + 2);
}
inline void load4(const float* p, __m128d& lo, __m128d& hi)
{
    const __m128 x = _mm_loadu_ps(p);
    lo = _mm_cvtps_pd(x);
    hi = _mm_cvtps_pd(_mm_movehl_ps(x, x));
}

// True when x is ordinary: magnitude below 708.3964185322641, or positive
// and below 709.782712893383.
inline bool exp64_ordinary(double x)
{
    const uint64_t b = bits_of(x), mag = b & 0x7FFFFFFFFFFFFFFFull;
    return mag < kExp64Under || (!(b >> 63) && b < kExp64Over);
}

// The 64f evaluation over inputs of type S (double, or float widened).
template <class S> Status exp_to_64f(const S* src, Tav64f* dst, int len)
{
    if (Status st = tavs::check_ptrs_len(len, src, dst)) return st;
    MathFpScope scope;
    if (len < 4) { // no triage here: the math library gives denormals too
        for (int i = 0; i < len; ++i)
            dst[i] = std::exp(double(src[i]));
        return StatusOk;
    }
    alignas(16) double gx[4];
    int gi[4], cnt = 0;
    for (int i = len - 1; i >= 0; --i) {
        // Four ordinary neighbours with an empty group: the group in memory
        // order (the pairs of the shared division are the same).
        if (cnt == 0 && i >= 3 && exp64_ordinary(src[i]) && exp64_ordinary(src[i - 1]) &&
            exp64_ordinary(src[i - 2]) && exp64_ordinary(src[i - 3])) {
            __m128d lo, hi;
            load4(src + i - 3, lo, hi);
            exp64_group(lo, hi, dst + i - 3); // all four are read before the stores
            i -= 3;
            continue;
        }
        const double x = src[i];
        double s;
        if (exp64_special(bits_of(x), s)) {
            dst[i] = s;
            continue;
        }
        gx[cnt] = x;
        gi[cnt++] = i;
        if (cnt == 4) {
            alignas(16) double out[4];
            exp64_group(_mm_load_pd(gx), _mm_load_pd(gx + 2), out);
            for (int k = 0; k < 4; ++k)
                dst[gi[k]] = out[k];
            cnt = 0;
        }
    }
    for (int k = 0; k < cnt; ++k)
        dst[gi[k]] = std::exp(gx[k]);
    return StatusOk;
}

} // namespace

extern "C" {
Status tavsExp_32f_body(const Tav32f* src, Tav32f* dst, int len) { return exp_32f(src, dst, len); }
Status tavsExp_32f_I_body(Tav32f* srcDst, int len) { return exp_32f(srcDst, srcDst, len); }
Status tavsExp_64f_body(const Tav64f* src, Tav64f* dst, int len) { return exp_to_64f(src, dst, len); }
Status tavsExp_64f_I_body(Tav64f* srcDst, int len) { return exp_to_64f<Tav64f>(srcDst, srcDst, len); }
Status tavsExp_32f64f_body(const Tav32f* src, Tav64f* dst, int len) { return exp_to_64f(src, dst, len); }
}

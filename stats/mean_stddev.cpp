// Means, sample standard deviations, and both in one pass. Float forms
// accumulate in double in fixed lane shapes; the integer means round with
// their own tie rules, and the deviation divides by len - 1.
#include "internal/body.h"

#include <emmintrin.h>

#include <cmath>

#include "internal/check.h"
#include "internal/stats_lanes.h"
#include "internal/stats_scale.h"

using namespace tavs;
using namespace tavs::stats;

namespace tavs::stats {
int64_t sum_32s_exact(const int32_t* p, int64_t n); // sum.cpp
}

namespace {

// ---- the mean's even/odd shape ----------------------------------------------
// Groups of eight: elements 0 then 2 into lane 0 of the even pair, 4 then 6
// into its lane 1; 1, 3 and 5, 7 likewise into the odd pair. A and B are
// the lane sums of the even and odd pair; a leftover group of four adds x0
// then x2 to A and x1 then x3 to B; T = B + A. Returns T, *done the count
// taken.
template <class Load> double mean_groups(int64_t n, Load pair, int64_t* done)
{
    __m128d e = _mm_setzero_pd(), o = _mm_setzero_pd();
    int64_t i = 0;
    for (; i + 8 <= n; i += 8) {
        __m128d a = pair(i), b = pair(i + 2), c = pair(i + 4), d = pair(i + 6);
        e = _mm_add_pd(e, _mm_unpacklo_pd(a, c));
        e = _mm_add_pd(e, _mm_unpacklo_pd(b, d));
        o = _mm_add_pd(o, _mm_unpackhi_pd(a, c));
        o = _mm_add_pd(o, _mm_unpackhi_pd(b, d));
    }
    double A = lo(e) + hi(e), B = lo(o) + hi(o);
    if (n - i >= 4) {
        __m128d a = pair(i), b = pair(i + 2);
        A += lo(a);
        A += lo(b);
        B += hi(a);
        B += hi(b);
        i += 4;
    }
    *done = i;
    return B + A;
}

// Mean_32f: the tail of one element is added to T; of two, their sum; of
// three, the third first, then the sum of the first two.
double mean_sum_32f(const float* p, int64_t n)
{
    int64_t i;
    double t = mean_groups(n, [p](int64_t k) { return widen2(p + k); }, &i);
    const int64_t rem = n - i;
    if (rem == 1) t += double(p[i]);
    else if (rem == 2) t += double(p[i]) + double(p[i + 1]);
    else if (rem == 3) {
        t += double(p[i + 2]);
        t += double(p[i]) + double(p[i + 1]);
    }
    return t;
}

// Mean_64f: the tail goes on as the tail of Sum_64f: two at a time into a
// pair seeded with T, folded, then singly.
double mean_sum_64f(const double* p, int64_t n)
{
    int64_t i;
    double t = mean_groups(n, [p](int64_t k) { return _mm_loadu_pd(p + k); }, &i);
    if (n - i >= 2) {
        __m128d q = _mm_add_pd(pair_of(t, 0.0), _mm_loadu_pd(p + i));
        t = lo(q) + hi(q);
        i += 2;
    }
    if (i < n) t += p[i];
    return t;
}

template <class C> void sum_parts(const C* src, int64_t n, double* re, double* im)
{
    using P = part_t<C>;
    const P* p = reinterpret_cast<const P*>(src);
    if constexpr (sizeof(P) == 4) {
        *re = sum8(n, [p](int64_t i) {
            __m128 v = _mm_loadu_ps(p + 2 * i);
            return _mm_cvtps_pd(_mm_shuffle_ps(v, v, _MM_SHUFFLE(2, 0, 2, 0)));
        }, [p](int64_t i) { return double(p[2 * i]); });
        *im = sum8(n, [p](int64_t i) {
            __m128 v = _mm_loadu_ps(p + 2 * i);
            return _mm_cvtps_pd(_mm_shuffle_ps(v, v, _MM_SHUFFLE(3, 1, 3, 1)));
        }, [p](int64_t i) { return double(p[2 * i + 1]); });
    } else {
        *re = sum8(n, [p](int64_t i) { return _mm_unpacklo_pd(_mm_loadu_pd(p + 2 * i), _mm_loadu_pd(p + 2 * i + 2)); },
                   [p](int64_t i) { return p[2 * i]; });
        *im = sum8(n, [p](int64_t i) { return _mm_unpackhi_pd(_mm_loadu_pd(p + 2 * i), _mm_loadu_pd(p + 2 * i + 2)); },
                   [p](int64_t i) { return p[2 * i + 1]; });
    }
}

// Mean_16s_Sfs on an exact sum: magnitude and length in double, doubled
// per step of the scale factor, x = v/d + 0.5 truncated with the tie moved
// to even, sign restored, clamped to 16 bits.
Tav16s mean_16s_rule(int64_t sum, int64_t len, int sf)
{
    if (sf < -14) return sum == 0 ? 0 : (sum > 0 ? 32767 : -32768);
    double v = std::fabs(double(sum)), d = double(len);
    for (int k = sf; k < 0; ++k) v *= 2.0;
    for (int k = 0; k < sf; ++k) d *= 2.0;
    double x = v / d + 0.5;
    int32_t t = trunc32(x);
    if ((t & 1) && x == double(t)) t -= 1;
    return sat<Tav16s>(sum < 0 ? -int64_t(t) : int64_t(t));
}

// Integer division of an exact sum by len on its magnitude, half to even.
int64_t div_round_even(int64_t s, int64_t len)
{
    uint64_t m = s < 0 ? 0 - uint64_t(s) : uint64_t(s);
    uint64_t q = m / uint64_t(len), r = m % uint64_t(len);
    if (2 * r > uint64_t(len)) q += 1;
    else if (2 * r == uint64_t(len)) q += q & 1;
    return s < 0 ? -int64_t(q) : int64_t(q);
}

// ---- deviation --------------------------------------------------------------

// Sum and sum of squares of the widened elements in the eight-lane shape.
template <class Pair, class One> void moments8(int64_t n, Pair pair, One one, double* s1, double* s2)
{
    Lanes8 a, b;
    int64_t i = 0;
    for (; i + 8 <= n; i += 8) {
        __m128d x0 = pair(i), x1 = pair(i + 2), x2 = pair(i + 4), x3 = pair(i + 6);
        a.add(x0, x1, x2, x3);
        b.add(_mm_mul_pd(x0, x0), _mm_mul_pd(x1, x1), _mm_mul_pd(x2, x2), _mm_mul_pd(x3, x3));
    }
    double u = a.fold(), v = b.fold();
    for (; i < n; ++i) {
        double x = one(i);
        u += x;
        v += x * x;
    }
    *s1 = u;
    *s2 = v;
}

// StdDev_32f: groups of eight as lane pair sums (x0+x2, x4+x6) and
// (x1+x3, x5+x7), likewise of the squares; each pair's lanes added, the
// even total plus the odd total; then the rest singly.
void moments_stddev_32f(const float* p, int64_t n, double* s1, double* s2)
{
    __m128d se = _mm_setzero_pd(), so = _mm_setzero_pd(), qe = _mm_setzero_pd(), qo = _mm_setzero_pd();
    int64_t i = 0;
    for (; i + 8 <= n; i += 8) {
        __m128d a = widen2(p + i), b = widen2(p + i + 2), c = widen2(p + i + 4), d = widen2(p + i + 6);
        __m128d e1 = _mm_unpacklo_pd(a, c), e2 = _mm_unpacklo_pd(b, d);
        __m128d o1 = _mm_unpackhi_pd(a, c), o2 = _mm_unpackhi_pd(b, d);
        se = _mm_add_pd(se, _mm_add_pd(e1, e2));
        so = _mm_add_pd(so, _mm_add_pd(o1, o2));
        qe = _mm_add_pd(qe, _mm_add_pd(_mm_mul_pd(e1, e1), _mm_mul_pd(e2, e2)));
        qo = _mm_add_pd(qo, _mm_add_pd(_mm_mul_pd(o1, o1), _mm_mul_pd(o2, o2)));
    }
    double u = (lo(se) + hi(se)) + (lo(so) + hi(so));
    double v = (lo(qe) + hi(qe)) + (lo(qo) + hi(qo));
    for (; i < n; ++i) {
        double x = p[i];
        u += x;
        v += x * x;
    }
    *s1 = u;
    *s2 = v;
}

// sqrt(D / ((n-1) n)) with D = S2 n - S1 S1; 0 when D is not above 0 (a
// rounding-negative or NaN D).
double deviation(double s1, double s2, int64_t len)
{
    double n = double(len);
    double d = s2 * n - s1 * s1;
    return d > 0.0 ? std::sqrt(d / ((n - 1.0) * n)) : 0.0;
}

template <class T> void moments_plain(const T* p, int64_t n, double* s1, double* s2)
{
    if constexpr (sizeof(T) == 4) moments8(n, [p](int64_t i) { return widen2(p + i); }, [p](int64_t i) { return double(p[i]); }, s1, s2);
    else if constexpr (sizeof(T) == 8) moments8(n, [p](int64_t i) { return _mm_loadu_pd(p + i); }, [p](int64_t i) { return p[i]; }, s1, s2);
    else
        moments8(n, [p](int64_t i) {
            __m128i v = _mm_cvtsi32_si128(int32_t(uint32_t(uint16_t(p[i])) | (uint32_t(uint16_t(p[i + 1])) << 16)));
            return _mm_cvtepi32_pd(_mm_srai_epi32(_mm_unpacklo_epi16(v, v), 16));
        }, [p](int64_t i) { return double(p[i]); }, s1, s2);
}

// The deviation of 16-bit data scaled by 2^-sf and rounded half to even,
// clamped above only.
int32_t scaled_deviation(double dev, int sf) { return round_even_from_half(pow2_steps(sf) * dev + 0.5); }

// The mean scaled by doubling or halving for each step of sf, rounded half
// away from zero and saturated.
int32_t scaled_mean(double mean, int sf)
{
    int64_t n = sf < 0 ? neg_count(sf) : int64_t(sf);
    if (n > 1100) n = 1100; // further steps change nothing
    for (int64_t i = 0; i < n; ++i) mean = sf < 0 ? mean * 2.0 : mean * 0.5;
    double v = mean < 0.0 ? mean - 0.5 : mean + 0.5;
    if (v <= -2147483648.0) return INT32_MIN;
    if (v >= 2147483647.0) return INT32_MAX;
    return trunc32(v);
}

Status check_dev(int len) { return len < 2 ? ErrSize : StatusOk; }

} // namespace

extern "C" Status tavsMean_32f_body(const Tav32f* src, int len, Tav32f* mean)
{
    if (Status st = check_ptrs_len(len, src, mean)) return st;
    *mean = float(mean_sum_32f(src, len) / double(len));
    return StatusOk;
}

extern "C" Status tavsMean_64f_body(const Tav64f* src, int len, Tav64f* mean)
{
    if (Status st = check_ptrs_len(len, src, mean)) return st;
    *mean = mean_sum_64f(src, len) / double(len);
    return StatusOk;
}

extern "C" Status tavsMean_32fc_body(const Tav32fc* src, int len, Tav32fc* mean)
{
    if (Status st = check_ptrs_len(len, src, mean)) return st;
    double re, im;
    sum_parts(src, len, &re, &im);
    mean->re = float(re / double(len));
    mean->im = float(im / double(len));
    return StatusOk;
}

extern "C" Status tavsMean_64fc_body(const Tav64fc* src, int len, Tav64fc* mean)
{
    if (Status st = check_ptrs_len(len, src, mean)) return st;
    double r = 1.0 / double(len); // a product by the reciprocal, not a division
    double re, im;
    sum_parts(src, len, &re, &im);
    mean->re = re * r;
    mean->im = im * r;
    return StatusOk;
}

extern "C" Status tavsMean_16s_Sfs_body(const Tav16s* src, int len, Tav16s* mean, int scaleFactor)
{
    if (Status st = check_ptrs_len(len, src, mean)) return st;
    if (scaleFactor >= 16) { // below half a unit for every input: no element is read
        *mean = 0;
        return StatusOk;
    }
    int64_t e, o;
    sum_16s_exact(src, len, &e, &o);
    *mean = mean_16s_rule(e + o, len, scaleFactor);
    return StatusOk;
}

extern "C" Status tavsMean_16sc_Sfs_body(const Tav16sc* src, int len, Tav16sc* mean, int scaleFactor)
{
    if (Status st = check_ptrs_len(len, src, mean)) return st;
    if (scaleFactor >= 16) {
        mean->re = mean->im = 0;
        return StatusOk;
    }
    int64_t re, im;
    sum_16s_exact(reinterpret_cast<const int16_t*>(src), int64_t(len) * 2, &re, &im);
    mean->re = mean_16s_rule(re, len, scaleFactor);
    mean->im = mean_16s_rule(im, len, scaleFactor);
    return StatusOk;
}

extern "C" Status tavsMean_32s_Sfs_body(const Tav32s* src, int len, Tav32s* mean, int scaleFactor)
{
    if (Status st = check_ptrs_len(len, src, mean)) return st;
    const int64_t sum = sum_32s_exact(src, len);
    int64_t r;
    if (scaleFactor == 0) r = div_round_even(sum, len);
    else if (scaleFactor < 0) {
        int64_t k = neg_count(scaleFactor);
        if (k >= 32) {
            int64_t q = div_round_even(sum, len);
            r = q > 0 ? INT32_MAX : (q < 0 ? INT32_MIN : 0);
        } else if (sum >= INT32_MIN && sum <= INT32_MAX) r = div_round_even(wrap_shl64(sum, int(k)), len);
        else r = wrap_shl64(div_round_even(sum, len), int(k));
    } else {
        // The rounded mean is rounded again, with the shift counts wrapping
        // as 32- and 64-bit shifts do.
        int64_t q = div_round_even(sum, len);
        int s = scaleFactor & 63;
        int64_t half = int32_t(uint32_t(1) << ((s - 1) & 31));
        r = (q + half + ((q >> s) & 1) - 1) >> s;
    }
    *mean = sat<Tav32s>(r);
    return StatusOk;
}

extern "C" Status tavsStdDev_32f_body(const Tav32f* src, int len, Tav32f* stdDev)
{
    if (any_null(src, stdDev)) return ErrNullPtr;
    if (Status st = check_dev(len)) return st;
    double s1, s2;
    moments_stddev_32f(src, len, &s1, &s2);
    *stdDev = float(deviation(s1, s2, len));
    return StatusOk;
}

extern "C" Status tavsStdDev_64f_body(const Tav64f* src, int len, Tav64f* stdDev)
{
    if (any_null(src, stdDev)) return ErrNullPtr;
    if (Status st = check_dev(len)) return st;
    double s1, s2;
    moments_plain(src, len, &s1, &s2);
    *stdDev = deviation(s1, s2, len);
    return StatusOk;
}

extern "C" Status tavsStdDev_16s32s_Sfs_body(const Tav16s* src, int len, Tav32s* stdDev, int scaleFactor)
{
    if (any_null(src, stdDev)) return ErrNullPtr;
    if (Status st = check_dev(len)) return st;
    double s1, s2;
    moments_plain(src, len, &s1, &s2);
    *stdDev = scaled_deviation(deviation(s1, s2, len), scaleFactor);
    return StatusOk;
}

extern "C" Status tavsStdDev_16s_Sfs_body(const Tav16s* src, int len, Tav16s* stdDev, int scaleFactor)
{
    if (any_null(src, stdDev)) return ErrNullPtr;
    if (Status st = check_dev(len)) return st;
    Tav32s wide;
    tavsStdDev_16s32s_Sfs_body(src, len, &wide, scaleFactor);
    *stdDev = sat<Tav16s>(wide);
    return StatusOk;
}

extern "C" Status tavsMeanStdDev_32f_body(const Tav32f* src, int len, Tav32f* mean, Tav32f* stdDev)
{
    if (any_null(src, mean, stdDev)) return ErrNullPtr;
    if (Status st = check_dev(len)) return st;
    double s1, s2;
    moments_plain(src, len, &s1, &s2);
    *mean = float(s1 / double(len));
    *stdDev = float(deviation(s1, s2, len));
    return StatusOk;
}

extern "C" Status tavsMeanStdDev_64f_body(const Tav64f* src, int len, Tav64f* mean, Tav64f* stdDev)
{
    if (any_null(src, mean, stdDev)) return ErrNullPtr;
    if (Status st = check_dev(len)) return st;
    double s1, s2;
    moments_plain(src, len, &s1, &s2);
    *mean = s1 / double(len);
    *stdDev = deviation(s1, s2, len);
    return StatusOk;
}

extern "C" Status tavsMeanStdDev_16s32s_Sfs_body(const Tav16s* src, int len, Tav32s* mean, Tav32s* stdDev,
                                                 int scaleFactor)
{
    if (any_null(src, mean, stdDev)) return ErrNullPtr;
    if (Status st = check_dev(len)) return st;
    double s1, s2;
    moments_plain(src, len, &s1, &s2);
    *mean = scaled_mean(s1 / double(len), scaleFactor);
    *stdDev = scaled_deviation(deviation(s1, s2, len), scaleFactor);
    return StatusOk;
}

extern "C" Status tavsMeanStdDev_16s_Sfs_body(const Tav16s* src, int len, Tav16s* mean, Tav16s* stdDev,
                                              int scaleFactor)
{
    if (any_null(src, mean, stdDev)) return ErrNullPtr;
    if (Status st = check_dev(len)) return st;
    Tav32s m, d;
    tavsMeanStdDev_16s32s_Sfs_body(src, len, &m, &d, scaleFactor);
    *mean = sat<Tav16s>(m);
    *stdDev = sat<Tav16s>(d);
    return StatusOk;
}

// Float dot products: the sum of src1[i] * src2[i] with no conjugation.
// Same-precision forms run four lanes in the precision of the data (two
// complex lanes for complex data); the forms with a double result widen
// first and sum in the eight-lane double shape.
#include "internal/body.h"

#include <emmintrin.h>

#include "internal/check.h"
#include "internal/stats_dot.h"
#include "internal/stats_lanes.h"

using namespace tavs;
using namespace tavs::stats;

namespace {

// ---- four lanes in the data's precision --------------------------------------------------
// Lane k takes the products of elements 4r+k; the lanes fold as
// (l0+l2)+(l1+l3), then the remaining products are added one by one.

float dot_32f(const float* a, const float* b, int64_t n)
{
    __m128 acc = _mm_setzero_ps();
    int64_t i = 0;
    for (; i + 4 <= n; i += 4) acc = _mm_add_ps(acc, _mm_mul_ps(_mm_loadu_ps(a + i), _mm_loadu_ps(b + i)));
    __m128 h = _mm_add_ps(acc, _mm_movehl_ps(acc, acc));
    float s = _mm_cvtss_f32(_mm_add_ss(h, _mm_shuffle_ps(h, h, 1)));
    for (; i < n; ++i) s += a[i] * b[i];
    return s;
}

double dot_64f(const double* a, const double* b, int64_t n)
{
    __m128d l01 = _mm_setzero_pd(), l23 = _mm_setzero_pd();
    int64_t i = 0;
    for (; i + 4 <= n; i += 4) {
        l01 = _mm_add_pd(l01, _mm_mul_pd(_mm_loadu_pd(a + i), _mm_loadu_pd(b + i)));
        l23 = _mm_add_pd(l23, _mm_mul_pd(_mm_loadu_pd(a + i + 2), _mm_loadu_pd(b + i + 2)));
    }
    __m128d h = _mm_add_pd(l01, l23);
    double s = lo(h) + hi(h);
    for (; i < n; ++i) s += a[i] * b[i];
    return s;
}

// Complex lanes: elements 2r and 2r+1 go to two complex accumulators, which
// are added at the end; a last odd element is added to that sum. Each
// product is (ar br - ai bi, ar bi + ai br) in the data's precision; a real
// first operand gives (a br, a bi).
void dot_32fc(const float* a, const float* b, int64_t n, bool realA, float* re, float* im)
{
    const __m128 neg = _mm_castsi128_ps(_mm_set_epi32(0, INT32_MIN, 0, INT32_MIN));
    __m128 acc = _mm_setzero_ps();
    int64_t i = 0;
    for (; i + 2 <= n; i += 2) {
        __m128 y = _mm_loadu_ps(b + 2 * i); // br0 bi0 br1 bi1
        if (realA) {
            __m128 x = _mm_castsi128_ps(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(a + i))); // a0 a1
            acc = _mm_add_ps(acc, _mm_mul_ps(_mm_unpacklo_ps(x, x), y));
        } else {
            __m128 x = _mm_loadu_ps(a + 2 * i); // ar0 ai0 ar1 ai1
            __m128 t1 = _mm_mul_ps(x, _mm_shuffle_ps(y, y, _MM_SHUFFLE(2, 2, 0, 0)));
            __m128 t2 = _mm_mul_ps(_mm_shuffle_ps(x, x, _MM_SHUFFLE(2, 3, 0, 1)), _mm_shuffle_ps(y, y, _MM_SHUFFLE(3, 3, 1, 1)));
            acc = _mm_add_ps(acc, _mm_add_ps(t1, _mm_xor_ps(t2, neg)));
        }
    }
    __m128 h = _mm_add_ps(acc, _mm_movehl_ps(acc, acc));
    alignas(16) float l[4];
    _mm_store_ps(l, h);
    float r = l[0], m = l[1];
    if (i < n) {
        float br = b[2 * i], bi = b[2 * i + 1];
        if (realA) {
            r += a[i] * br;
            m += a[i] * bi;
        } else {
            float ar = a[2 * i], ai = a[2 * i + 1];
            r += ar * br - ai * bi;
            m += ar * bi + ai * br;
        }
    }
    *re = r;
    *im = m;
}

void dot_64fc(const double* a, const double* b, int64_t n, bool realA, double* re, double* im)
{
    const __m128d neg = _mm_set_pd(0.0, -0.0);
    __m128d e = _mm_setzero_pd(), o = _mm_setzero_pd();
    auto prod = [&](int64_t k) {
        __m128d y = _mm_loadu_pd(b + 2 * k); // br bi
        if (realA) return _mm_mul_pd(_mm_set1_pd(a[k]), y);
        __m128d x = _mm_loadu_pd(a + 2 * k); // ar ai
        __m128d t1 = _mm_mul_pd(x, _mm_unpacklo_pd(y, y));
        __m128d t2 = _mm_mul_pd(_mm_shuffle_pd(x, x, 1), _mm_unpackhi_pd(y, y));
        return _mm_add_pd(t1, _mm_xor_pd(t2, neg));
    };
    int64_t i = 0;
    for (; i + 2 <= n; i += 2) {
        e = _mm_add_pd(e, prod(i));
        o = _mm_add_pd(o, prod(i + 1));
    }
    __m128d s = _mm_add_pd(e, o);
    if (i < n) s = _mm_add_pd(s, prod(i));
    *re = lo(s);
    *im = hi(s);
}

const float* fl(const Tav32fc* p) { return reinterpret_cast<const float*>(p); }
const double* db(const Tav64fc* p) { return reinterpret_cast<const double*>(p); }

} // namespace

extern "C" Status tavsDotProd_32f_body(const Tav32f* src1, const Tav32f* src2, int len, Tav32f* dp)
{
    if (Status st = check_ptrs_len(len, src1, src2, dp)) return st;
    *dp = dot_32f(src1, src2, len);
    return StatusOk;
}

extern "C" Status tavsDotProd_64f_body(const Tav64f* src1, const Tav64f* src2, int len, Tav64f* dp)
{
    if (Status st = check_ptrs_len(len, src1, src2, dp)) return st;
    *dp = dot_64f(src1, src2, len);
    return StatusOk;
}

extern "C" Status tavsDotProd_32fc_body(const Tav32fc* src1, const Tav32fc* src2, int len, Tav32fc* dp)
{
    if (Status st = check_ptrs_len(len, src1, src2, dp)) return st;
    dot_32fc(fl(src1), fl(src2), len, false, &dp->re, &dp->im);
    return StatusOk;
}

extern "C" Status tavsDotProd_32f32fc_body(const Tav32f* src1, const Tav32fc* src2, int len, Tav32fc* dp)
{
    if (Status st = check_ptrs_len(len, src1, src2, dp)) return st;
    dot_32fc(src1, fl(src2), len, true, &dp->re, &dp->im);
    return StatusOk;
}

extern "C" Status tavsDotProd_64fc_body(const Tav64fc* src1, const Tav64fc* src2, int len, Tav64fc* dp)
{
    if (Status st = check_ptrs_len(len, src1, src2, dp)) return st;
    dot_64fc(db(src1), db(src2), len, false, &dp->re, &dp->im);
    return StatusOk;
}

extern "C" Status tavsDotProd_64f64fc_body(const Tav64f* src1, const Tav64fc* src2, int len, Tav64fc* dp)
{
    if (Status st = check_ptrs_len(len, src1, src2, dp)) return st;
    dot_64fc(src1, db(src2), len, true, &dp->re, &dp->im);
    return StatusOk;
}

extern "C" Status tavsDotProd_32f64f_body(const Tav32f* src1, const Tav32f* src2, int len, Tav64f* dp)
{
    if (Status st = check_ptrs_len(len, src1, src2, dp)) return st;
    *dp = sum8(len, [=](int64_t i) { return _mm_mul_pd(widen2(src1 + i), widen2(src2 + i)); },
               [=](int64_t i) { return double(src1[i]) * double(src2[i]); });
    return StatusOk;
}

extern "C" Status tavsDotProd_32fc64fc_body(const Tav32fc* src1, const Tav32fc* src2, int len, Tav64fc* dp)
{
    if (Status st = check_ptrs_len(len, src1, src2, dp)) return st;
    dot_wide_cplx(WideCplx<float>{fl(src1), fl(src2), false}, len, &dp->re, &dp->im);
    return StatusOk;
}

extern "C" Status tavsDotProd_32f32fc64fc_body(const Tav32f* src1, const Tav32fc* src2, int len, Tav64fc* dp)
{
    if (Status st = check_ptrs_len(len, src1, src2, dp)) return st;
    dot_wide_cplx(WideCplx<float>{src1, fl(src2), true}, len, &dp->re, &dp->im);
    return StatusOk;
}

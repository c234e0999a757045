// Element-wise minimum and maximum of two vectors, nearest-value look-up
// in an ascending table, and the count of values strictly between two
// bounds.
#include "internal/body.h"

#include <emmintrin.h>

#include "internal/check.h"
#include "internal/stats_extrema.h"

using namespace tavs;
using namespace tavs::stats::ext;

namespace {

// d[i] = a[i] when strictly greater (IsMax) or less than b[i], else b[i]:
// with a NaN on either side b[i] is delivered. Each element is read before
// the same index is written.
template <class T, bool IsMax> void every(const T* a, const T* b, T* d, int64_t n, bool vector)
{
    using Ops = V<T>;
    constexpr int W = Ops::W;
    int64_t i = 0;
    if (vector)
        for (; i + W <= n; i += W) {
            auto x = Plain<T>::load(a + i), y = Plain<T>::load(b + i);
            Ops::store(d + i, IsMax ? Ops::max(x, y) : Ops::min(x, y));
        }
    for (; i < n; ++i) {
        T x = a[i], y = b[i];
        d[i] = IsMax ? (x > y ? x : y) : (x < y ? x : y);
    }
}

// True when dst starts less than one vector's length after src: a vector
// step would then read elements that the one-by-one order has already
// overwritten.
bool close_after(const void* src, const void* dst)
{
    uintptr_t s = reinterpret_cast<uintptr_t>(src), d = reinterpret_cast<uintptr_t>(dst);
    return d > s && d - s < 16;
}

template <class T, bool IsMax> Status every_out(const T* src1, const T* src2, T* dst, Tav32u len)
{
    if (any_null(src1, src2, dst)) return ErrNullPtr;
    if (len == 0) return ErrSize;
    // The overlap test is made from 7 elements on; shorter vectors run one
    // by one anyway.
    bool vector = len >= 7 && !close_after(src1, dst) && !close_after(src2, dst);
    every<T, IsMax>(src1, src2, dst, int64_t(len), vector);
    return StatusOk;
}

template <class T, bool IsMax> Status every_in(const T* src, T* srcDst, int len)
{
    if (Status st = check_ptrs_len(len, src, srcDst)) return st;
    bool vector = !close_after(src, srcDst);
    every<T, IsMax>(src, srcDst, srcDst, len, vector);
    return StatusOk;
}

// Index of the entry of an ascending table nearest to x; an exact tie
// between two neighbours goes to the lower index.
int nearest(int x, const Tav16u* table, int tableLen)
{
    if (tableLen == 1 || x <= table[0]) return 0;
    if (x >= table[tableLen - 1]) return tableLen - 1;
    int base = 0, span = tableLen - 1;
    while (span > 1) {
        int half = span >> 1;
        if (x >= table[base + half]) {
            base += half;
            span -= half;
        } else span = half;
    }
    return (x - table[base] > table[base + 1] - x) ? base + 1 : base;
}

} // namespace

#define TAVS_EVERY(NAME, T, MAX)                                                                     \
    extern "C" Status tavs##NAME##_body(const T* src1, const T* src2, T* dst, Tav32u len)          \
    {                                                                                                \
        return every_out<T, MAX>(src1, src2, dst, len);                                              \
    }
TAVS_EVERY(MaxEvery_8u, Tav8u, true)
TAVS_EVERY(MaxEvery_16u, Tav16u, true)
TAVS_EVERY(MaxEvery_32f, Tav32f, true)
TAVS_EVERY(MaxEvery_64f, Tav64f, true)
TAVS_EVERY(MinEvery_8u, Tav8u, false)
TAVS_EVERY(MinEvery_16u, Tav16u, false)
TAVS_EVERY(MinEvery_32f, Tav32f, false)
TAVS_EVERY(MinEvery_64f, Tav64f, false)
#undef TAVS_EVERY

#define TAVS_EVERY_I(NAME, T, MAX)                                                     \
    extern "C" Status tavs##NAME##_body(const T* src, T* srcDst, int len)            \
    {                                                                                  \
        return every_in<T, MAX>(src, srcDst, len);                                     \
    }
TAVS_EVERY_I(MaxEvery_8u_I, Tav8u, true)
TAVS_EVERY_I(MaxEvery_16u_I, Tav16u, true)
TAVS_EVERY_I(MaxEvery_16s_I, Tav16s, true)
TAVS_EVERY_I(MaxEvery_32s_I, Tav32s, true)
TAVS_EVERY_I(MaxEvery_32f_I, Tav32f, true)
TAVS_EVERY_I(MaxEvery_64f_I, Tav64f, true)
TAVS_EVERY_I(MinEvery_8u_I, Tav8u, false)
TAVS_EVERY_I(MinEvery_16u_I, Tav16u, false)
TAVS_EVERY_I(MinEvery_16s_I, Tav16s, false)
TAVS_EVERY_I(MinEvery_32s_I, Tav32s, false)
TAVS_EVERY_I(MinEvery_32f_I, Tav32f, false)
TAVS_EVERY_I(MinEvery_64f_I, Tav64f, false)
#undef TAVS_EVERY_I

extern "C" Status tavsFindNearest_16u_body(const Tav16u* src, Tav16u* val, int* indx, int len, const Tav16u* table,
                                           int tableLen)
{
    if (any_null(src, val, indx, table)) return ErrNullPtr;
    if (len < 1 || tableLen < 1) return ErrSize;
    for (int i = 0; i < len; ++i) {
        int k = nearest(src[i], table, tableLen);
        val[i] = table[k];
        indx[i] = k;
    }
    return StatusOk;
}

extern "C" Status tavsFindNearestOne_16u_body(Tav16u input, Tav16u* val, int* indx, const Tav16u* table, int tableLen)
{
    if (any_null(val, indx, table)) return ErrNullPtr;
    if (tableLen < 1) return ErrSize;
    int k = nearest(input, table, tableLen);
    *val = table[k];
    *indx = k;
    return StatusOk;
}

extern "C" Status tavsCountInRange_32s_body(const Tav32s* src, int len, int* count, Tav32s lowerBound, Tav32s upperBound)
{
    if (Status st = check_ptrs_len(len, src, count)) return st;
    *count = 0;
    const __m128i lo = _mm_set1_epi32(lowerBound), hi = _mm_set1_epi32(upperBound);
    __m128i acc = _mm_setzero_si128();
    int i = 0;
    // Lane counts grow by at most one per step; 2^31 elements cannot wrap them.
    for (; i + 4 <= len; i += 4) {
        __m128i x = _mm_loadu_si128(reinterpret_cast<const __m128i*>(src + i));
        acc = _mm_sub_epi32(acc, _mm_and_si128(_mm_cmpgt_epi32(x, lo), _mm_cmpgt_epi32(hi, x)));
    }
    alignas(16) uint32_t l[4];
    _mm_store_si128(reinterpret_cast<__m128i*>(l), acc);
    uint32_t c = l[0] + l[1] + l[2] + l[3];
    for (; i < len; ++i) c += (src[i] > lowerBound && src[i] < upperBound) ? 1u : 0u;
    *count = int(c);
    return StatusOk;
}

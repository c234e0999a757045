// Extremum values with the first index at which they occur. The index
// pointer of the one-extremum forms may be null: the call then delivers the
// value alone. The magnitude forms clamp each magnitude to the positive
// maximum before comparing, so the most negative value ties with it.
#include "internal/body.h"

#include <emmintrin.h>

#include <type_traits>

#include "internal/check.h"
#include "internal/stats_extrema.h"

using namespace tavs;
using namespace tavs::stats::ext;

namespace {

// One pass for 32f: each of four lanes keeps its first best value and its
// index; among the lanes equal to the final extremum the smallest index
// wins, and the tail continues the walk. A NaN seed is kept at index 0.
template <bool IsMax> int64_t index_32f(const float* p, int64_t n)
{
    const float first = p[0];
    if (first != first) return 0;
    __m128 best = _mm_set1_ps(first);
    __m128i at = _mm_setzero_si128(), cur = _mm_set_epi32(3, 2, 1, 0);
    const __m128i four = _mm_set1_epi32(4);
    int64_t i = 0;
    for (; i + 4 <= n; i += 4) {
        __m128 v = _mm_loadu_ps(p + i);
        __m128 m = IsMax ? _mm_cmpgt_ps(v, best) : _mm_cmplt_ps(v, best);
        best = _mm_or_ps(_mm_and_ps(m, v), _mm_andnot_ps(m, best));
        __m128i mi = _mm_castps_si128(m);
        at = _mm_or_si128(_mm_and_si128(mi, cur), _mm_andnot_si128(mi, at));
        cur = _mm_add_epi32(cur, four);
    }
    alignas(16) float b[4];
    alignas(16) int32_t k[4];
    _mm_store_ps(b, best);
    _mm_store_si128(reinterpret_cast<__m128i*>(k), at);
    float m = b[0];
    for (int j = 1; j < 4; ++j)
        if (IsMax ? b[j] > m : b[j] < m) m = b[j];
    int64_t idx = INT32_MAX;
    for (int j = 0; j < 4; ++j)
        if (b[j] == m && k[j] < idx) idx = k[j];
    for (; i < n; ++i)
        if (IsMax ? p[i] > m : p[i] < m) {
            m = p[i];
            idx = i;
        }
    return idx;
}

template <class S, bool IsMax>
Status extreme_index(const typename S::Elem* src, int len, typename S::Elem* out, int* index)
{
    using T = typename S::Elem;
    if (Status st = check_ptrs_len(len, src, out)) return st;
    if constexpr (std::is_same_v<S, Plain<float>>) {
        int64_t i = index_32f<IsMax>(src, len);
        *out = src[i];
        if (index) *index = int(i);
        return StatusOk;
    }
    typename S::K m;
    if constexpr (IsMax) reduce<S, false, true>(src, len, nullptr, &m);
    else reduce<S, true, false>(src, len, &m, nullptr);
    if constexpr (is_float<T>) {
        // The value is the element at the first index: this keeps the sign
        // of the first zero.
        int64_t i = index_of<S>(src, len, m);
        *out = src[i];
        if (index) *index = int(i);
    } else {
        *out = T(m);
        if (index) *index = int(index_of<S>(src, len, m));
    }
    return StatusOk;
}

template <class T> Status min_max_index(const T* src, int len, T* mn, int* minIndx, T* mx, int* maxIndx)
{
    if (any_null(src, mn, minIndx, mx, maxIndx)) return ErrNullPtr;
    if (len < 1) return ErrSize;
    T a, b;
    reduce<Plain<T>, true, true>(src, len, &a, &b);
    int64_t ia = index_of<Plain<T>>(src, len, a), ib = index_of<Plain<T>>(src, len, b);
    *mn = src[ia];
    *minIndx = int(ia);
    *mx = src[ib];
    *maxIndx = int(ib);
    return StatusOk;
}

} // namespace

#define TAVS_EXT_INDEX(NAME, T, S, MAX)                                                \
    extern "C" Status tavs##NAME##_body(const T* src, int len, T* value, int* index) \
    {                                                                                  \
        return extreme_index<S, MAX>(src, len, value, index);                          \
    }
TAVS_EXT_INDEX(MaxIndx_16s, Tav16s, Plain<Tav16s>, true)
TAVS_EXT_INDEX(MaxIndx_32s, Tav32s, Plain<Tav32s>, true)
TAVS_EXT_INDEX(MaxIndx_32f, Tav32f, Plain<Tav32f>, true)
TAVS_EXT_INDEX(MaxIndx_64f, Tav64f, Plain<Tav64f>, true)
TAVS_EXT_INDEX(MinIndx_16s, Tav16s, Plain<Tav16s>, false)
TAVS_EXT_INDEX(MinIndx_32s, Tav32s, Plain<Tav32s>, false)
TAVS_EXT_INDEX(MinIndx_32f, Tav32f, Plain<Tav32f>, false)
TAVS_EXT_INDEX(MinIndx_64f, Tav64f, Plain<Tav64f>, false)
TAVS_EXT_INDEX(MaxAbsIndx_16s, Tav16s, AbsClamp16, true)
TAVS_EXT_INDEX(MaxAbsIndx_32s, Tav32s, AbsClamp32, true)
TAVS_EXT_INDEX(MinAbsIndx_16s, Tav16s, AbsClamp16, false)
TAVS_EXT_INDEX(MinAbsIndx_32s, Tav32s, AbsClamp32, false)
#undef TAVS_EXT_INDEX

#define TAVS_MINMAX_INDEX(NAME, T)                                                                  \
    extern "C" Status tavs##NAME##_body(const T* src, int len, T* min, int* minIndx, T* max, int* maxIndx) \
    {                                                                                               \
        return min_max_index(src, len, min, minIndx, max, maxIndx);                                 \
    }
TAVS_MINMAX_INDEX(MinMaxIndx_8u, Tav8u)
TAVS_MINMAX_INDEX(MinMaxIndx_16u, Tav16u)
TAVS_MINMAX_INDEX(MinMaxIndx_32u, Tav32u)
TAVS_MINMAX_INDEX(MinMaxIndx_16s, Tav16s)
TAVS_MINMAX_INDEX(MinMaxIndx_32s, Tav32s)
TAVS_MINMAX_INDEX(MinMaxIndx_32f, Tav32f)
TAVS_MINMAX_INDEX(MinMaxIndx_64f, Tav64f)
#undef TAVS_MINMAX_INDEX

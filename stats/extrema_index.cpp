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

// One pass for 32f: each of sixteen lanes (four independent groups, so
// the compare-and-select chains overlap) keeps its first best value and
// its index; among the lanes equal to the final extremum the smallest
// index wins, and the tail continues the walk. A NaN seed is kept at
// index 0.
template <bool IsMax> int64_t index_32f(const float* p, int64_t n)
{
    const float first = p[0];
    if (first != first) return 0;
    // A lane records the round (of 16 elements) in which it last improved;
    // its index follows from the round, its group and its position.
    __m128 best[4];
    __m128i round[4];
    for (int g = 0; g < 4; ++g) {
        best[g] = _mm_set1_ps(first);
        round[g] = _mm_setzero_si128();
    }
    __m128i r = _mm_setzero_si128();
    const __m128i one = _mm_set1_epi32(1);
    int64_t i = 0;
    for (; i + 16 <= n; i += 16) {
        for (int g = 0; g < 4; ++g) {
            __m128 v = _mm_loadu_ps(p + i + 4 * g);
            __m128i m = _mm_castps_si128(IsMax ? _mm_cmpgt_ps(v, best[g]) : _mm_cmplt_ps(v, best[g]));
            best[g] = IsMax ? _mm_max_ps(v, best[g]) : _mm_min_ps(v, best[g]); // v only when strictly better
            round[g] = _mm_xor_si128(round[g], _mm_and_si128(m, _mm_xor_si128(round[g], r)));
        }
        r = _mm_add_epi32(r, one);
    }
    alignas(16) float b[16];
    alignas(16) int32_t k[16];
    for (int g = 0; g < 4; ++g) {
        _mm_store_ps(b + 4 * g, best[g]);
        _mm_store_si128(reinterpret_cast<__m128i*>(k + 4 * g), round[g]);
    }
    float m = b[0];
    for (int j = 1; j < 16; ++j)
        if (IsMax ? b[j] > m : b[j] < m) m = b[j];
    int64_t idx = INT64_MAX; // lanes not equal to the extremum take no part
    for (int j = 0; j < 16; ++j)
        if (b[j] == m) {
            int64_t at = int64_t(k[j]) * 16 + j; // j = 4 * group + position
            if (at < idx) idx = at;
        }
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

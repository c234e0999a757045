// Extremum values with the first index at which they occur. The index
// pointer of the one-extremum forms may be null: the call then delivers the
// value alone. The magnitude forms clamp each magnitude to the positive
// maximum before comparing, so the most negative value ties with it.
#include "internal/body.h"

#include "internal/check.h"
#include "internal/stats_extrema.h"

using namespace tavs;
using namespace tavs::stats::ext;

namespace {

template <class S, bool IsMax>
Status extreme_index(const typename S::Elem* src, int len, typename S::Elem* out, int* index)
{
    using T = typename S::Elem;
    if (Status st = check_ptrs_len(len, src, out)) return st;
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

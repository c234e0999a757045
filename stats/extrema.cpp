// Extremum values of one vector: Max, Min, MinMax, and the magnitude forms
// MaxAbs and MinAbs, which read the magnitude of the most negative value
// as unsigned and clamp the result to the positive range.
#include "internal/body.h"

#include "internal/check.h"
#include "internal/stats_extrema.h"

using namespace tavs;
using namespace tavs::stats::ext;

namespace {

template <class T, bool IsMax> Status extreme(const T* src, int len, T* out)
{
    if (Status st = check_ptrs_len(len, src, out)) return st;
    T m;
    if constexpr (IsMax) reduce<Plain<T>, false, true>(src, len, nullptr, &m);
    else reduce<Plain<T>, true, false>(src, len, &m, nullptr);
    if constexpr (is_float<T>) m = float_value(src, len, m);
    *out = m;
    return StatusOk;
}

template <class T> Status min_max(const T* src, int len, T* mn, T* mx)
{
    if (any_null(src, mn, mx)) return ErrNullPtr;
    if (len < 1) return ErrSize;
    T a, b;
    reduce<Plain<T>, true, true>(src, len, &a, &b);
    if constexpr (is_float<T>) {
        a = float_value(src, len, a);
        b = float_value(src, len, b);
    }
    *mn = a;
    *mx = b;
    return StatusOk;
}

// Magnitude read as unsigned, result clamped to the positive maximum.
template <class S, bool IsMax> Status extreme_abs(const typename S::Elem* src, int len, typename S::Elem* out)
{
    using T = typename S::Elem;
    if (Status st = check_ptrs_len(len, src, out)) return st;
    typename S::K m;
    if constexpr (IsMax) reduce<S, false, true>(src, len, nullptr, &m);
    else reduce<S, true, false>(src, len, &m, nullptr);
    constexpr auto top = typename S::K(Limits<T>::max);
    *out = T(m > top ? top : m);
    return StatusOk;
}

} // namespace

extern "C" Status tavsMax_16s_body(const Tav16s* src, int len, Tav16s* max) { return extreme<Tav16s, true>(src, len, max); }
extern "C" Status tavsMax_32s_body(const Tav32s* src, int len, Tav32s* max) { return extreme<Tav32s, true>(src, len, max); }
extern "C" Status tavsMax_32f_body(const Tav32f* src, int len, Tav32f* max) { return extreme<Tav32f, true>(src, len, max); }
extern "C" Status tavsMax_64f_body(const Tav64f* src, int len, Tav64f* max) { return extreme<Tav64f, true>(src, len, max); }
extern "C" Status tavsMin_16s_body(const Tav16s* src, int len, Tav16s* min) { return extreme<Tav16s, false>(src, len, min); }
extern "C" Status tavsMin_32s_body(const Tav32s* src, int len, Tav32s* min) { return extreme<Tav32s, false>(src, len, min); }
extern "C" Status tavsMin_32f_body(const Tav32f* src, int len, Tav32f* min) { return extreme<Tav32f, false>(src, len, min); }
extern "C" Status tavsMin_64f_body(const Tav64f* src, int len, Tav64f* min) { return extreme<Tav64f, false>(src, len, min); }

extern "C" Status tavsMaxAbs_16s_body(const Tav16s* src, int len, Tav16s* maxAbs)
{
    return extreme_abs<AbsWide16, true>(src, len, maxAbs);
}
extern "C" Status tavsMaxAbs_32s_body(const Tav32s* src, int len, Tav32s* maxAbs)
{
    return extreme_abs<AbsWide32, true>(src, len, maxAbs);
}
extern "C" Status tavsMinAbs_16s_body(const Tav16s* src, int len, Tav16s* minAbs)
{
    return extreme_abs<AbsWide16, false>(src, len, minAbs);
}
extern "C" Status tavsMinAbs_32s_body(const Tav32s* src, int len, Tav32s* minAbs)
{
    return extreme_abs<AbsWide32, false>(src, len, minAbs);
}

extern "C" Status tavsMinMax_8u_body(const Tav8u* src, int len, Tav8u* min, Tav8u* max) { return min_max(src, len, min, max); }
extern "C" Status tavsMinMax_16u_body(const Tav16u* src, int len, Tav16u* min, Tav16u* max) { return min_max(src, len, min, max); }
extern "C" Status tavsMinMax_32u_body(const Tav32u* src, int len, Tav32u* min, Tav32u* max) { return min_max(src, len, min, max); }
extern "C" Status tavsMinMax_16s_body(const Tav16s* src, int len, Tav16s* min, Tav16s* max) { return min_max(src, len, min, max); }
extern "C" Status tavsMinMax_32s_body(const Tav32s* src, int len, Tav32s* min, Tav32s* max) { return min_max(src, len, min, max); }
extern "C" Status tavsMinMax_32f_body(const Tav32f* src, int len, Tav32f* min, Tav32f* max) { return min_max(src, len, min, max); }
extern "C" Status tavsMinMax_64f_body(const Tav64f* src, int len, Tav64f* min, Tav64f* max) { return min_max(src, len, min, max); }

// The element passes the threshold bodies share, real and complex alike:
// the ascending map, the keep-or-replace pass of the value forms and the
// level-0 reciprocal pass that reports a zero element.
#pragma once

#include <cstddef>

#include "internal/lane_loop.h"
#include "internal/types.h"

namespace tavs::thresh {

// dst[i] = f(src[i]) in ascending order, so an in-place call reads every
// element before it replaces it.
template <class T, class F> inline void map(const T* src, T* dst, int len, F f)
{
    for (size_t i = 0, n = size_t(len); i < n; ++i)
        lanes::st(dst, i, f(lanes::ld(src, i)));
}

// x stays when key(x) >= level (Low) or level >= key(x), else value. Written
// as the rule states it, so an unordered key (NaN) takes value.
template <bool Low, class T, class K, class Key>
inline void keep_or_value(const T* src, T* dst, int len, K level, T value, Key key)
{
    map(src, dst, len, [=](T x) {
        const K k = key(x);
        return (Low ? k >= level : level >= k) ? x : value;
    });
}

// The reciprocal pass at level 0: f(x, zero) gives the element's result and
// sets zero when x is a zero element (whose result is +Inf); the pass then
// reports WarnInvZero, having converted every element.
template <class T, class F> inline Status map_inv_zero(const T* src, T* dst, int len, F f)
{
    bool zero = false;
    map(src, dst, len, [&](T x) { return f(x, zero); });
    return zero ? WarnInvZero : StatusOk;
}

} // namespace tavs::thresh

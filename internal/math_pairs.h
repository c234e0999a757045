// Access to the (re, im) pairs of the two layouts of the polar families:
// separate real and imaginary vectors, or interleaved complex elements.
// One kernel per family serves both through these views.
#pragma once

#include "internal/check.h"
#include "internal/types.h"

namespace tavs::math {

template <class T> struct SplitPairs {
    using part = T;
    const T* re;
    const T* im;
    T r(int i) const { return re[i]; }
    T m(int i) const { return im[i]; }
    // ErrNullPtr for any null pointer (the sources first), then ErrSize.
    template <class... D> Status check(int len, const D*... dst) const
    {
        return check_ptrs_len(len, re, im, dst...);
    }
};

template <class C> struct PackedPairs {
    using part = part_t<C>;
    const C* p;
    part r(int i) const { return p[i].re; }
    part m(int i) const { return p[i].im; }
    template <class... D> Status check(int len, const D*... dst) const
    {
        return check_ptrs_len(len, p, dst...);
    }
};

template <class T> inline SplitPairs<T> pairs(const T* re, const T* im) { return {re, im}; }
template <class C> inline PackedPairs<C> pairs(const C* p) { return {p}; }

} // namespace tavs::math

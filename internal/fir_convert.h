// The edges of the converting FIR records: samples widened exactly to the
// record's element, results converted out by the conversion bodies with
// rounding mode 1 and the caller's scale (complex values as their parts).
#pragma once

#include <type_traits>

#include "internal/body.h"

namespace tavs::fir {

template <class X, class D> inline X widen(const D& v)
{
    if constexpr (std::is_same_v<X, D>) {
        return v;
    } else if constexpr (std::is_same_v<X, Tav32fc> || std::is_same_v<X, Tav64fc>) {
        X r;
        r.re = decltype(r.re)(v.re);
        r.im = decltype(r.im)(v.im);
        return r;
    } else {
        return X(v);
    }
}

// n values of a part type out, rounded to nearest even, scaled, limited.
inline void narrow_parts(const Tav32f* s, Tav16s* d, int n, int sf) { tavsConvert_32f16s_Sfs_body(s, d, n, RoundHalfEven, sf); }
inline void narrow_parts(const Tav64f* s, Tav16s* d, int n, int sf) { tavsConvert_64f16s_Sfs_body(s, d, n, RoundHalfEven, sf); }
inline void narrow_parts(const Tav64f* s, Tav32s* d, int n, int sf) { tavsConvert_64f32s_Sfs_body(s, d, n, RoundHalfEven, sf); }
inline void narrow_parts(const Tav64f* s, Tav32f* d, int n, int) { tavsConvert_64f32f_body(s, d, n); }

template <class T> struct PartOf {
    using type = T;
    static constexpr int k = 1;
};
template <> struct PartOf<Tav32fc> {
    using type = Tav32f;
    static constexpr int k = 2;
};
template <> struct PartOf<Tav64fc> {
    using type = Tav64f;
    static constexpr int k = 2;
};
template <> struct PartOf<Tav16sc> {
    using type = Tav16s;
    static constexpr int k = 2;
};
template <> struct PartOf<Tav32sc> {
    using type = Tav32s;
    static constexpr int k = 2;
};

template <class X, class D> inline void narrow_block(const X* s, D* d, int n, int sf)
{
    if constexpr (std::is_same_v<X, D>) {
        for (int i = 0; i < n; ++i) d[i] = s[i];
    } else {
        using XP = typename PartOf<X>::type;
        using DP = typename PartOf<D>::type;
        narrow_parts(reinterpret_cast<const XP*>(s), reinterpret_cast<DP*>(d), n * PartOf<X>::k, sf);
    }
}

template <class D, class X> inline D narrow_one(const X& v)
{
    D r;
    narrow_block(&v, &r, 1, 0);
    return r;
}
template <class D, class X> inline D narrow_tap(const X& v) { return narrow_one<D>(v); }

} // namespace tavs::fir

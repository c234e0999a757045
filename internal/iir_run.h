// The filtering calls of the record forms: argument checks in their order,
// then one kernel over the record's layout with the data widened to the
// taps' precision on the way in and converted on the way out.
#pragma once

#include "internal/check.h"
#include "internal/iir.h"
#include "internal/iir_kernel.h"

namespace tavs::iir {

// A sample of the data type in the taps' precision T.
template <class T, class S> inline T widen(S v)
{
    if constexpr (IsCx<T>::value) {
        using F = decltype(T::re);
        return T{F(v.re), F(v.im)};
    } else {
        return T(v);
    }
}

// The transposed layouts of record r over len samples: widen each source
// element to T, hand each output to conv, store its result.
template <class T, class S, class D, class Conv>
inline void run_data(Record* r, Layout l, const S* src, D* dst, int len, Conv conv)
{
    run_tdf2<T>(
        r, l, len, [src](int i) { return widen<T>(ld<S>(src, i)); },
        [dst, &conv](int i, T y) { st<D>(dst, i, conv(y)); });
}

// Block form: state, src, dst null, then len below 1, then the tag.
// kern(record, layout, src, dst, len) does the work.
template <class R, class S, class D, class K>
inline Status block(const S* src, D* dst, int len, R* rec, K kern)
{
    if (any_null(rec, src, dst)) return ErrNullPtr;
    if (len < 1) return ErrSize;
    const Layout l = layout_of<R>(rec->tag);
    if (l == Layout::None) return ErrContextMismatch;
    kern(static_cast<Record*>(rec), l, src, dst, len);
    return StatusOk;
}

// One-sample form: state and output null, then the tag.
template <class R, class E, class K> inline Status one(E x, E* y, R* rec, K kern)
{
    if (any_null(rec, y)) return ErrNullPtr;
    const Layout l = layout_of<R>(rec->tag);
    if (l == Layout::None) return ErrContextMismatch;
    E out{};
    kern(static_cast<Record*>(rec), l, &x, &out, 1);
    st<E>(y, 0, out);
    return StatusOk;
}

} // namespace tavs::iir

// Life of a recursive-filter record: size, layout in a block, the tap step
// (division by a0), delay store, InitAlloc and Free, delay-line copies.
// Every public record type goes through these templates with its Traits.
#pragma once

#include <new>

#include "internal/body.h"
#include "internal/check.h"
#include "internal/iir.h"
#include "internal/iir_kernel.h"
#include "internal/memory.h"

namespace tavs::iir {

template <class T> inline bool is_zero(T v) { return v == T(0); }
template <class F> inline bool is_zero(Cx<F> v) { return v.re == F(0) && v.im == F(0); }
template <class T> inline bool is_one(T v) { return v == T(1); }
template <class F> inline bool is_one(Cx<F> v) { return v.re == F(1) && v.im == F(0); }
template <class T> inline T recip(T v) { return T(1) / v; }
// 1/v by scaling with the larger part first, so that no square of a part
// over- or underflows.
template <class F> inline Cx<F> recip(Cx<F> v)
{
    const F are = v.re < 0 ? -v.re : v.re, aim = v.im < 0 ? -v.im : v.im;
    if (are >= aim) {
        const F t = v.im / v.re, den = v.re + v.im * t;
        return {F(1) / den, -t / den};
    }
    const F t = v.re / v.im, den = v.re * t + v.im;
    return {t / den, F(-1) / den};
}

// The order n (arbitrary layout) or section count of a live record.
inline int count_of(const Record* r, Layout l) { return l == Layout::Arb ? r->dlyLen : r->numBq; }

// ErrDivByZero when the caller's taps would fail the tap step; Init asks
// this first so that it writes nothing for taps it refuses.
template <class T> Status check_taps(const void* given, Layout l, int n)
{
    if (l == Layout::Arb) return is_zero(ld<T>(given, n + 1)) ? ErrDivByZero : StatusOk;
    for (int k = 0; k < n; ++k) {
        const T a0 = ld<T>(given, 6 * k + 3);
        if (l == Layout::Df1 && is_one(a0)) continue;
        if (is_zero(a0) || (l == Layout::Bq && is_zero(ld<T>(given, 6 * k)))) return ErrDivByZero;
    }
    return StatusOk;
}

// The tap step: the caller's taps divided by a0 into the record. Biquad
// sections are stored in order and a bad one stops the step with the
// sections before it stored; direct form I copies a section whose a0 is
// exactly 1 and accepts b0 = 0.
template <class T> Status store_taps(Record* r, const void* given, Layout l)
{
    T* h = static_cast<T*>(r->taps);
    if (l == Layout::Arb) {
        const int n = r->dlyLen;
        const T a0 = ld<T>(given, n + 1);
        if (is_zero(a0)) return ErrDivByZero;
        const T q = recip(a0);
        for (int i = 0; i <= n; ++i)
            h[i] = ld<T>(given, i) * q;
        for (int i = 1; i <= n; ++i)
            h[n + i] = ld<T>(given, n + 1 + i) * q;
        return StatusOk;
    }
    for (int k = 0; k < r->numBq; ++k) {
        const int g = 6 * k;
        const T a0 = ld<T>(given, g + 3);
        T* s = h + 5 * k;
        if (l == Layout::Df1 && is_one(a0)) {
            s[0] = ld<T>(given, g);
            s[1] = ld<T>(given, g + 1);
            s[2] = ld<T>(given, g + 2);
            s[3] = ld<T>(given, g + 4);
            s[4] = ld<T>(given, g + 5);
            continue;
        }
        if (is_zero(a0) || (l == Layout::Bq && is_zero(ld<T>(given, g)))) return ErrDivByZero;
        const T q = recip(a0);
        s[0] = ld<T>(given, g) * q;
        s[1] = ld<T>(given, g + 1) * q;
        s[2] = ld<T>(given, g + 2) * q;
        s[3] = ld<T>(given, g + 4) * q;
        s[4] = ld<T>(given, g + 5) * q;
    }
    return StatusOk;
}

// The bytes of one delay value: the taps' type, except the direct form I
// of 32s data, which holds 32s samples.
template <class R> constexpr size_t dly_elem(Layout l)
{
    return (Traits<R>::cls == Cls::F64 && l == Layout::Df1) ? sizeof(int32_t)
                                                            : sizeof(typename Traits<R>::Tap);
}

// Lays a record of order (or section count) n out in buf: the header at buf
// aligned up to 32 bytes, the taps behind it and the delay behind the taps,
// each on 16 bytes (32 for 32-bit complex taps); stores the delay (or
// zeroes, and the extra arbitrary-order element is always 0), then the taps,
// which the caller has checked. Returns the record.
template <class R> R* build(Tav8u* buf, const void* taps, int n, Layout l, const void* dly)
{
    using T = typename Traits<R>::Tap;
    const uintptr_t al = Traits<R>::cls == Cls::C32 ? 32 : 16;
    const uintptr_t u = reinterpret_cast<uintptr_t>(buf);
    const uintptr_t base = u + ((0 - u) & 31);
    auto up = [al](uintptr_t v) { return (v + al - 1) & ~(al - 1); };
    const uintptr_t tapsAt = up(base + sizeof(Record));
    const uintptr_t dlyAt = up(tapsAt + uintptr_t(held_taps(l, n)) * sizeof(T));

    R* r = new (reinterpret_cast<void*>(base)) R{};
    r->tag = tag_of<R>(l);
    r->taps = reinterpret_cast<void*>(tapsAt);
    r->dlyLine = reinterpret_cast<void*>(dlyAt);
    r->dlyLen = dly_len(l, n);
    r->numBq = l == Layout::Arb ? 0 : n;
    r->isAllocated = 0;

    const size_t elem = dly_elem<R>(l);
    unsigned char* d = static_cast<unsigned char*>(r->dlyLine);
    const size_t given = size_t(r->dlyLen) * elem;
    if (dly)
        std::memcpy(d, dly, given);
    else
        std::memset(d, 0, given);
    if (l == Layout::Arb) std::memset(d + given, 0, elem);
    store_taps<T>(r, taps, l);
    return r;
}

// Size query: size null, then the count below 1; a count whose record
// would pass the 32-bit size range is refused as ErrFilterOrder.
template <class R> Status get_size(Layout l, int n, int* size)
{
    if (!size) return ErrNullPtr;
    if (n < 1) return ErrFilterOrder;
    const int64_t bytes = state_bytes(Traits<R>::cls, l, n);
    if (bytes > INT32_MAX) return ErrFilterOrder;
    *size = int(bytes);
    return StatusOk;
}

template <class R> inline bool fits(Layout l, int n)
{
    return state_bytes(Traits<R>::cls, l, n) <= INT32_MAX;
}

// Init over the caller's block: taps, state, buffer null, then the count.
template <class R> Status init(R** pp, const void* taps, int n, Layout l, const void* dly, Tav8u* buf)
{
    if (any_null(taps, pp, buf)) return ErrNullPtr;
    if (n < 1 || !fits<R>(l, n)) return ErrFilterOrder;
    if (Status s = check_taps<typename Traits<R>::Tap>(taps, l, n); s != StatusOk) return s;
    *pp = build<R>(buf, taps, n, l, dly);
    return StatusOk;
}

// InitAlloc: the block comes from the tavsMalloc_8u body, 64-byte aligned,
// so the record sits at its start and Free hands that address back.
template <class R> Status init_alloc(R** pp, const void* taps, int n, Layout l, const void* dly)
{
    if (any_null(taps, pp)) return ErrNullPtr;
    if (n < 1 || !fits<R>(l, n)) return ErrFilterOrder;
    if (Status s = check_taps<typename Traits<R>::Tap>(taps, l, n); s != StatusOk) return s;
    auto* blk = static_cast<Tav8u*>(alloc_bytes(int(state_bytes(Traits<R>::cls, l, n))));
    if (!blk) return ErrMemAlloc;
    R* r = build<R>(blk, taps, n, l, dly);
    r->isAllocated = 1;
    *pp = r;
    return StatusOk;
}

// Taps given as 32s (or 32sc) with a factor: converted by the
// tavsConvert_32s32f_Sfs body into a temporary of `count` taps from the
// tavsMalloc_8u body, released before return on every path.
template <class T> struct ScaledTaps {
    T* p = nullptr;
    Status make(const void* src, int count, int factor)
    {
        const int parts = int(sizeof(T) / sizeof(float));
        p = static_cast<T*>(alloc_bytes(int(int64_t(count) * int64_t(sizeof(T)))));
        if (!p) return ErrMemAlloc;
        return tavsConvert_32s32f_Sfs_body(static_cast<const Tav32s*>(src), reinterpret_cast<Tav32f*>(p),
                                           count * parts, factor);
    }
    ~ScaledTaps() { tavsFree_body(p); }
};

template <class R>
Status init_32s(R** pp, const void* taps, int n, Layout l, int factor, const void* dly, Tav8u* buf)
{
    using T = typename Traits<R>::Tap;
    if (any_null(taps, pp, buf)) return ErrNullPtr;
    if (n < 1 || !fits<R>(l, n)) return ErrFilterOrder;
    ScaledTaps<T> t;
    if (Status s = t.make(taps, int(given_taps(l, n)), factor); s != StatusOk) return s;
    return init<R>(pp, t.p, n, l, dly, buf);
}

template <class R>
Status init_alloc_32s(R** pp, const void* taps, int n, Layout l, int factor, const void* dly)
{
    using T = typename Traits<R>::Tap;
    if (any_null(taps, pp)) return ErrNullPtr;
    if (n < 1 || !fits<R>(l, n)) return ErrFilterOrder;
    auto* blk = static_cast<Tav8u*>(alloc_bytes(int(state_bytes(Traits<R>::cls, l, n))));
    if (!blk) return ErrMemAlloc;
    ScaledTaps<T> t;
    Status s = t.make(taps, int(given_taps(l, n)), factor);
    if (s == StatusOk) s = check_taps<T>(t.p, l, n);
    if (s != StatusOk) {
        tavsFree_body(blk);
        return s;
    }
    R* r = build<R>(blk, t.p, n, l, dly);
    r->isAllocated = 1;
    *pp = r;
    return StatusOk;
}

// Free: state null, then its tag; releases only what InitAlloc made.
template <class R> Status free_state(R* r)
{
    if (!r) return ErrNullPtr;
    if (layout_of<R>(r->tag) == Layout::None) return ErrContextMismatch;
    if (r->isAllocated) {
        r->tag = 0;
        tavsFree_body(r);
    }
    return StatusOk;
}

// SetTaps: taps, state null, then the tag; the delay is left as it is.
template <class R> Status set_taps(const void* taps, R* r)
{
    if (any_null(taps, r)) return ErrNullPtr;
    const Layout l = layout_of<R>(r->tag);
    if (l == Layout::None) return ErrContextMismatch;
    return store_taps<typename Traits<R>::Tap>(r, taps, l);
}

// SetTaps from 32s taps with a factor; the temporary holds the larger of
// 2*dlyLen+2 and 6*numBq taps.
template <class R> Status set_taps_32s(const void* taps, R* r, int factor)
{
    using T = typename Traits<R>::Tap;
    if (any_null(taps, r)) return ErrNullPtr;
    const Layout l = layout_of<R>(r->tag);
    if (l == Layout::None) return ErrContextMismatch;
    const int64_t a = 2 * int64_t(r->dlyLen) + 2, b = 6 * int64_t(r->numBq);
    ScaledTaps<T> t;
    if (Status s = t.make(taps, int(a > b ? a : b), factor); s != StatusOk) return s;
    return store_taps<T>(r, t.p, l);
}

// Get and Set move the dlyLen delay values as plain copies. `df1` says
// whether the call serves the direct form I tag (the 32s form of it has
// calls of its own) or the two transposed layouts.
template <class R> Layout dly_layout(const R* r, bool df1)
{
    const Layout l = layout_of<R>(r->tag);
    if (Traits<R>::cls == Cls::F64 && Traits<R>::df1 != 0)
        return (l == Layout::Df1) == df1 ? l : Layout::None;
    return l;
}

template <class R> Status get_dly(const R* r, void* dly, bool df1 = false)
{
    if (any_null(r, dly)) return ErrNullPtr;
    const Layout l = dly_layout(r, df1);
    if (l == Layout::None) return ErrContextMismatch;
    std::memcpy(dly, r->dlyLine, size_t(r->dlyLen) * dly_elem<R>(l));
    return StatusOk;
}

template <class R> Status set_dly(R* r, const void* dly, bool df1 = false)
{
    if (any_null(r, dly)) return ErrNullPtr;
    const Layout l = dly_layout(r, df1);
    if (l == Layout::None) return ErrContextMismatch;
    std::memcpy(r->dlyLine, dly, size_t(r->dlyLen) * dly_elem<R>(l));
    return StatusOk;
}

} // namespace tavs::iir

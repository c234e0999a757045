// Element-wise kernels of the add, subtract, multiply, add-product, square
// and abs families: one template per shape, instantiated by the bodies.
//
// Every kernel reads all sources of element i before it writes element i,
// so identical source and destination pointers work. Elements are read and
// written through memcpy, since no vector is required to be aligned. Vector
// paths (SSE2) run the same expression as the scalar path, lane by lane, so
// they give the same bits; they are taken only when the destination is
// element-aligned and no source overlaps the destination other than by
// being the same vector.
#pragma once

#include <cstdint>
#include <cstring>
#include <type_traits>

#include "internal/check.h"
#include "internal/fixed.h"
#include "internal/movers.h"
#include "internal/simd.h"
#include "internal/types.h"

namespace tavs {

// ---- element access ------------------------------------------------------------
template <class T> inline T ld(const T* p, intptr_t i)
{
    T v;
    std::memcpy(&v, p + i, sizeof(T));
    return v;
}
template <class T> inline void st(T* p, intptr_t i, T v) { std::memcpy(p + i, &v, sizeof(T)); }

// True when no source overlaps dst, except by being dst itself (same
// element size). Overlapping vectors take the element loop, which works in
// order, so a vector step never reads an element the loop has rewritten.
template <class D, class... S> inline bool apart(const D* d, int len, const S*... src)
{
    const uintptr_t b = uintptr_t(d), bn = uintptr_t(len) * sizeof(D);
    auto ok = [&](auto* p) {
        const uintptr_t a = uintptr_t(p), an = uintptr_t(len) * sizeof(*p);
        if (a == b) return sizeof(*p) == sizeof(D);
        return a + an <= b || b + bn <= a;
    };
    return (ok(src) && ...);
}

// The element loop with a vector body: one(i) handles element i, many(i)
// elements i .. i+Step-1 with an aligned destination. The destination is
// brought to a 16-byte boundary element by element first; a destination
// that is not on a multiple of its element size (or a short vector) takes
// the element loop throughout.
template <size_t ElemBytes, int Step, class One, class Many>
inline void drive(const void* dst, int len, bool vec, One one, Many many)
{
    intptr_t i = 0;
    const intptr_t n = len;
    if (vec) {
        const uintptr_t a = uintptr_t(dst);
        constexpr uintptr_t unit = ElemBytes < 16 ? ElemBytes : 16;
        if (a % unit == 0) {
            const intptr_t head = intptr_t(((0 - a) & 15) / ElemBytes);
            if (n >= head + Step) {
                for (; i < head; ++i) one(i);
                for (; i + Step <= n; i += Step) many(i);
            }
        }
    }
    for (; i < n; ++i) one(i);
}

// ---- float arithmetic -----------------------------------------------------------
// The scalar twin of simd::Vec: the same operation names on plain values, so
// one expression serves both paths.
template <class T> struct Scalar {
    using R = T;
    static R add(R a, R b) { return a + b; }
    static R sub(R a, R b) { return a - b; }
    static R mul(R a, R b) { return a * b; }
    static R set1(T v) { return v; }
    static R neg(R a) { return flip(a, true); }
    static R abs(R a) { return flip(a, false); }

private:
    // Sign bit flipped or cleared on the bits alone, so NaNs keep their payload.
    static R flip(R a, bool toggle)
    {
        using U = std::conditional_t<sizeof(T) == 4, uint32_t, uint64_t>;
        const U sign = U(1) << (sizeof(T) * 8 - 1);
        U u;
        std::memcpy(&u, &a, sizeof u);
        u = toggle ? (u ^ sign) : (u & ~sign);
        std::memcpy(&a, &u, sizeof u);
        return a;
    }
};

// d[i] = op(src[i]...) over real float vectors (32f or 64f), eight elements a
// vector step. A source may be d itself (the accumulating forms).
template <class T, class Op, class... S> inline void fmap(T* d, int len, Op op, const S*... src)
{
    using V = simd::Vec<T>;
    drive<sizeof(T), 8>(
        d, len, apart(d, len, src...),
        [&](intptr_t i) { st(d, i, op.template f<Scalar<T>>(ld(src, i)...)); },
        [&](intptr_t i) {
            for (int k = 0; k < 8; k += V::lanes) V::store(d + i + k, op.template f<V>(V::load(src + i + k)...));
        });
}

// Parts of one complex element, or of four complex elements in two registers.
template <class M> struct Parts {
    typename M::R re, im;
};

// A complex source (pointer to its parts) and a real source, read as one
// element or, in the vector path, as four (32f parts only).
template <class T> struct CplxSrc {
    const T* p;
    Parts<Scalar<T>> one(intptr_t i) const { return {ld(p, 2 * i), ld(p, 2 * i + 1)}; }
    Parts<simd::Vec<T>> four(intptr_t i) const
    {
        Parts<simd::Vec<T>> r;
        simd::deinterleave(_mm_loadu_ps(p + 2 * i), _mm_loadu_ps(p + 2 * i + 4), r.re, r.im);
        return r;
    }
    const void* addr() const { return p; }
    static constexpr size_t bytes = 2 * sizeof(T);
};
template <class T> struct RealSrc {
    const T* p;
    T one(intptr_t i) const { return ld(p, i); }
    __m128 four(intptr_t i) const { return _mm_loadu_ps(p + i); }
    const void* addr() const { return p; }
    static constexpr size_t bytes = sizeof(T);
};

// Overlap test of apart() on the sources of a complex kernel.
template <class... S> inline bool apart_c(const void* d, int len, size_t dBytes, const S&... src)
{
    const uintptr_t b = uintptr_t(d), bn = uintptr_t(len) * dBytes;
    auto ok = [&](const auto& s) {
        const uintptr_t a = uintptr_t(s.addr()), an = uintptr_t(len) * s.bytes;
        if (a == b) return s.bytes == dBytes;
        return a + an <= b || b + bn <= a;
    };
    return (ok(src) && ...);
}

// Complex destination (pointer to its parts): op.f<M>(re, im, parts...) sets
// the parts of element i. The 32fc vector step takes four elements: parts
// are split into a real and an imaginary register, so the lanes run the
// scalar expression unchanged.
template <class T, class Op, class... S> inline void cmap(T* d, int len, Op op, const S&... src)
{
    auto one = [&](intptr_t i) {
        T re, im;
        op.template f<Scalar<T>>(re, im, src.one(i)...);
        st(d, 2 * i, re);
        st(d, 2 * i + 1, im);
    };
    if constexpr (std::is_same_v<T, float>) {
        drive<2 * sizeof(T), 4>(d, len, apart_c(d, len, 2 * sizeof(T), src...), one, [&](intptr_t i) {
            __m128 re, im, x0, x1;
            op.template f<simd::Vec<float>>(re, im, src.four(i)...);
            simd::interleave(re, im, x0, x1);
            _mm_store_ps(d + 2 * i, x0);
            _mm_store_ps(d + 2 * i + 4, x1);
        });
    } else {
        for (intptr_t i = 0; i < len; ++i) one(i);
    }
}

// ---- integer arithmetic -----------------------------------------------------------
// How a family scales: a sum is shifted in its wide width and saturated once;
// a product is saturated to the destination before a left shift.
enum class Rule { Sum, Product };

template <Rule R, class D> inline D scale_one(int64_t e, int s)
{
    if constexpr (R == Rule::Sum) return scale_sum<D>(e, s);
    else return scale_product<D>(e, s);
}

// The vector body of a 16-bit destination: e(i, lo, hi) sets the exact
// results of elements i .. i+7 as 32-bit lanes, signed, or unsigned when
// UnsignedE (a 16u product may use all 32 bits).
template <class D, bool UnsignedE, class E> struct Vec16 {
    static constexpr bool unsignedE = UnsignedE;
    E e;
};
struct NoVec {};

template <class D, bool UnsignedE, class E> inline Vec16<D, UnsignedE, E> vec16(E e) { return {e}; }

// Eight scaled results from their exact values e (two registers of four
// 32-bit lanes), for -15 <= s <= 31: the same rounding and saturation as
// scale_one, which for 16-bit destinations is saturate(e) at s = 0, the
// ties-to-even shift at s > 0, and saturate(saturate(e) << -s) at s < 0.
template <class D, bool UnsignedE> inline __m128i finish16(__m128i lo, __m128i hi, int s, const simd::RneShift* k)
{
    static_assert(std::is_same_v<D, Tav16s> || std::is_same_v<D, Tav16u>);
    static_assert(!UnsignedE || std::is_same_v<D, Tav16u>);
    constexpr bool dSigned = std::is_same_v<D, Tav16s>;
    auto pack = [](__m128i l, __m128i h) {
        return dSigned ? simd::pack_sat_s16(l, h) : simd::pack_sat_u16(l, h);
    };
    if (s > 0) return pack(simd::rne_shift<UnsignedE>(lo, *k), simd::rne_shift<UnsignedE>(hi, *k));
    if (UnsignedE) {
        lo = simd::clamp_u32_to_u16(lo);
        hi = simd::clamp_u32_to_u16(hi);
    }
    if (s == 0) return pack(lo, hi);
    // s < 0: saturate, then shift (at most 15 places: |value| < 2^16 stays
    // below 2^31), then saturate again.
    __m128i p = pack(lo, hi);
    if constexpr (dSigned) simd::widen_s16(p, lo, hi);
    else simd::widen_u16(p, lo, hi);
    const __m128i n = _mm_cvtsi32_si128(-s);
    return pack(_mm_sll_epi32(lo, n), _mm_sll_epi32(hi, n));
}

// d[i] = the scaled e(i), where e(i) is the exact result of element i as a
// 64-bit value: zero-filled at s >= zeroFrom through the zero body (whose
// status is returned), sign-only at s <= signTo, else the scale rule.
template <Rule R, class D, class E, class V = NoVec>
inline Status scaled(D* d, int len, int s, ScaleLimits lim, E e, bool vecOk = false, V v = {})
{
    switch (scale_path(s, lim)) {
    case ScalePath::Zero: return zero_fill(d, len);
    case ScalePath::SignOnly:
        for (intptr_t i = 0; i < len; ++i) st(d, i, sign_sat<D>(e(i)));
        return StatusOk;
    case ScalePath::Shift: break;
    }
    auto one = [&](intptr_t i) { st(d, i, scale_one<R, D>(e(i), s)); };
    if constexpr (!std::is_same_v<V, NoVec>) {
        if (vecOk && s >= -15 && s <= 31) {
            const simd::RneShift k(s > 0 ? s : 1);
            drive<sizeof(D), 8>(d, len, true, one, [&](intptr_t i) {
                __m128i lo, hi;
                v.e(i, lo, hi);
                simd::store_i(d + i, finish16<D, V::unsignedE>(lo, hi, s, &k));
            });
            return StatusOk;
        }
    }
    for (intptr_t i = 0; i < len; ++i) one(i);
    return StatusOk;
}

// The exact parts of one complex result.
struct CplxE {
    int64_t re, im;
};

// Complex destination C: both parts of e(i) scaled alone, same paths as
// scaled(); the zero fill clears whole complex elements.
template <Rule R, class C, class E> inline Status scaled_c(C* d, int len, int s, ScaleLimits lim, E e)
{
    using P = part_t<C>;
    const ScalePath path = scale_path(s, lim);
    if (path == ScalePath::Zero) return zero_fill(d, len);
    for (intptr_t i = 0; i < len; ++i) {
        const CplxE x = e(i);
        C r;
        if (path == ScalePath::SignOnly) {
            r.re = sign_sat<P>(x.re);
            r.im = sign_sat<P>(x.im);
        } else {
            r.re = scale_one<R, P>(x.re, s);
            r.im = scale_one<R, P>(x.im, s);
        }
        st(d, i, r);
    }
    return StatusOk;
}

// ---- operations shared by the bodies ------------------------------------------------
// Float operations, written once for Scalar<T> and simd::Vec<T>.
struct AddOp {
    template <class M> auto f(auto a, auto b) const { return M::add(a, b); }
};
// The second operand minus the first.
struct SubRevOp {
    template <class M> auto f(auto a, auto b) const { return M::sub(b, a); }
};
struct MulOp {
    template <class M> auto f(auto a, auto b) const { return M::mul(a, b); }
};
// d + a * b, the destination read as an accumulator.
struct AddProductOp {
    template <class M> auto f(auto a, auto b, auto d) const { return M::add(d, M::mul(a, b)); }
};
struct SqrOp {
    template <class M> auto f(auto a) const { return M::mul(a, a); }
};
struct AbsOp {
    template <class M> auto f(auto a) const { return M::abs(a); }
};

// Exact integer operations on 64-bit values, with the 32-bit lanes of eight
// 16-bit elements for the vector path: lanes(lo, hi, sources...).
template <class T> inline void widen16(__m128i v, __m128i& lo, __m128i& hi)
{
    if constexpr (std::is_same_v<T, Tav16s>) simd::widen_s16(v, lo, hi);
    else simd::widen_u16(v, lo, hi);
}
template <class T> inline void mul16(__m128i a, __m128i b, __m128i& lo, __m128i& hi)
{
    if constexpr (std::is_same_v<T, Tav16s>) simd::mul_s16(a, b, lo, hi);
    else simd::mul_u16(a, b, lo, hi);
}
// Sums and differences of 16s lanes come from one multiply-add of the
// interleaved pairs (a, b) by (1, 1) or (-1, 1); 16u lanes are zero-extended.
template <class T> inline void madd_pairs(__m128i a, __m128i b, __m128i w, __m128i& lo, __m128i& hi)
{
    lo = _mm_madd_epi16(_mm_unpacklo_epi16(a, b), w);
    hi = _mm_madd_epi16(_mm_unpackhi_epi16(a, b), w);
}
struct IAdd {
    template <class T> static constexpr bool unsignedE = false;
    int64_t operator()(int64_t a, int64_t b) const { return a + b; }
    template <class T> void lanes(__m128i& lo, __m128i& hi, __m128i a, __m128i b) const
    {
        if constexpr (std::is_same_v<T, Tav16s>) {
            madd_pairs<T>(a, b, _mm_set1_epi16(1), lo, hi);
        } else {
            __m128i al, ah, bl, bh;
            widen16<T>(a, al, ah);
            widen16<T>(b, bl, bh);
            lo = _mm_add_epi32(al, bl);
            hi = _mm_add_epi32(ah, bh);
        }
    }
    // The saturated result at scale factor 0, in the 16-bit lanes themselves.
    template <class T> __m128i sat0(__m128i a, __m128i b) const
    {
        return std::is_same_v<T, Tav16s> ? _mm_adds_epi16(a, b) : _mm_adds_epu16(a, b);
    }
};
// The second operand minus the first.
struct ISubRev {
    template <class T> static constexpr bool unsignedE = false;
    int64_t operator()(int64_t a, int64_t b) const { return b - a; }
    template <class T> void lanes(__m128i& lo, __m128i& hi, __m128i a, __m128i b) const
    {
        if constexpr (std::is_same_v<T, Tav16s>) {
            madd_pairs<T>(a, b, _mm_set1_epi32(0x0001ffff), lo, hi);
        } else {
            __m128i al, ah, bl, bh;
            widen16<T>(a, al, ah);
            widen16<T>(b, bl, bh);
            lo = _mm_sub_epi32(bl, al);
            hi = _mm_sub_epi32(bh, ah);
        }
    }
    template <class T> __m128i sat0(__m128i a, __m128i b) const
    {
        return std::is_same_v<T, Tav16s> ? _mm_subs_epi16(b, a) : _mm_subs_epu16(b, a);
    }
};
struct IMul {
    // A 16u product needs all 32 bits of a lane.
    template <class T> static constexpr bool unsignedE = std::is_same_v<T, Tav16u>;
    int64_t operator()(int64_t a, int64_t b) const { return a * b; }
    template <class T> void lanes(__m128i& lo, __m128i& hi, __m128i a, __m128i b) const { mul16<T>(a, b, lo, hi); }
};

// ---- checked bodies of the common shapes --------------------------------------------
// Float d = op(a, b).
template <class T, class Op> inline Status float2(const T* a, const T* b, T* d, int len, Op op)
{
    if (Status r = check_ptrs_len(len, a, b, d)) return r;
    fmap(d, len, op, a, b);
    return StatusOk;
}
// Float d = op(a).
template <class T, class Op> inline Status float1(const T* a, T* d, int len, Op op)
{
    if (Status r = check_ptrs_len(len, a, d)) return r;
    fmap(d, len, op, a);
    return StatusOk;
}

// The scaled integer kernel of d = op(src...) without checks; the vector
// path serves 16-bit element types when vecOk.
template <Rule R, class D, class Op, class... S>
inline Status int_kernel(D* d, int len, int s, ScaleLimits lim, Op op, bool vecOk, const S*... src)
{
    auto e = [&](intptr_t i) { return op(int64_t(ld(src, i))...); };
    constexpr bool lanes16 = (std::is_same_v<D, Tav16s> || std::is_same_v<D, Tav16u>) && (std::is_same_v<S, D> && ...);
    if constexpr (lanes16) {
        vecOk = vecOk && apart(d, len, src...);
        // At scale factor 0 a sum or difference saturates in its own lanes.
        if constexpr (requires(__m128i x) { op.template sat0<D>(x, x); }) {
            if (vecOk && s == 0) {
                drive<sizeof(D), 8>(
                    d, len, true, [&](intptr_t i) { st(d, i, sat<D>(e(i))); },
                    [&](intptr_t i) { simd::store_i(d + i, op.template sat0<D>(simd::load_i(src + i)...)); });
                return StatusOk;
            }
        }
        auto v = [&](intptr_t i, __m128i& lo, __m128i& hi) { op.template lanes<D>(lo, hi, simd::load_i(src + i)...); };
        return scaled<R>(d, len, s, lim, e, vecOk, vec16<D, Op::template unsignedE<D>>(v));
    } else {
        return scaled<R>(d, len, s, lim, e);
    }
}

// Checked integer d = op(src...): pointers, then length, then the scale paths.
template <Rule R, class D, class Op, class... S>
inline Status int_checked(D* d, int len, int s, ScaleLimits lim, Op op, bool vec, const S*... src)
{
    if (Status r = check_ptrs_len(len, src..., d)) return r;
    return int_kernel<R>(d, len, s, lim, op, vec, src...);
}
template <Rule R, class A, class B, class D, class Op>
inline Status int2(const A* a, const B* b, D* d, int len, int s, ScaleLimits lim, Op op, bool vec = false)
{
    return int_checked<R>(d, len, s, lim, op, vec, a, b);
}

// The 16u members whose zero-fill path comes before the destination tests:
// sources, then (at s >= zeroFrom) the zero body's own tests of dst and len.
// Their vector path needs at least 7 elements.
template <Rule R, class Op>
inline Status int2_16u_zero_first(const Tav16u* a, const Tav16u* b, Tav16u* d, int len, int s, ScaleLimits lim, Op op)
{
    if (any_null(a, b)) return ErrNullPtr;
    if (s >= lim.zeroFrom) return zero_fill(d, len);
    if (Status r = check_ptrs_len(len, d)) return r;
    return int_kernel<R>(d, len, s, lim, op, len >= 7, a, b);
}

// The complex members that are their real member over 2 * len parts: the
// length is tested first, then the real member runs (pointer tests first)
// on the doubled count, a 32-bit product that turns negative from 2^30 on.
template <class Real> inline Status as_parts(int len, Real real)
{
    if (len < 1) return ErrSize;
    return real(int32_t(uint32_t(len) * 2u));
}
template <class C> inline auto parts(C* p) { return reinterpret_cast<part_t<std::remove_const_t<C>>*>(p); }
template <class C> inline auto parts(const C* p) { return reinterpret_cast<const part_t<C>*>(p); }

// Both 16s sources converted to 32f exactly, then one float operation.
template <class Op> inline Status widen_16s32f(const Tav16s* a, const Tav16s* b, Tav32f* d, int len, Op op)
{
    if (Status r = check_ptrs_len(len, a, b, d)) return r;
    for (intptr_t i = 0; i < len; ++i) st(d, i, op.template f<Scalar<float>>(float(ld(a, i)), float(ld(b, i))));
    return StatusOk;
}

// Exact complex integer product a * b with both parts formed in twice the
// part width (32 bits for 16sc, 64 for 32sc): the one sum that width cannot
// hold, +2^(2w-1) from four minimum factors, is replaced by the width's
// maximum. No other sum reaches past the width.
template <class C> inline CplxE cmul_exact(C a, C b)
{
    const int64_t rr = int64_t(a.re) * b.re, ii = int64_t(a.im) * b.im;
    const int64_t ri = int64_t(a.re) * b.im, ir = int64_t(a.im) * b.re;
    if constexpr (sizeof(part_t<C>) == 2) return {clamp_to<Tav32s>(rr - ii), clamp_to<Tav32s>(ri + ir)};
    else return {sat_sub64(rr, ii), sat_add64(ri, ir)};
}

} // namespace tavs

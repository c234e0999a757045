// Generic checkers for the element-wise arithmetic tests: randomized
// comparison with a reference, sweeps over lengths and offsets (every path:
// element loop, alignment head, vector body, tail), in place against out of
// place, and the error statuses with outputs untouched.
#pragma once

#include <cstdio>
#include <string>
#include <vector>

#include "arith_ref.h"

// Uniform call shapes for the checkers: (src1, src2, dst, len, s) and
// (src, srcDst, len, s); members without a scale factor ignore s.
#define AR_SFS2(fn) [](const auto* a, const auto* b, auto* d, int len, int s) { return fn(a, b, d, len, s); }
#define AR_PLAIN2(fn) [](const auto* a, const auto* b, auto* d, int len, int) { return fn(a, b, d, len); }
#define AR_SFSI(fn) [](const auto* a, auto* sd, int len, int s) { return fn(a, sd, len, s); }
#define AR_PLAINI(fn) [](const auto* a, auto* sd, int len, int) { return fn(a, sd, len); }
#define AR_SFS0(fn) [](auto* sd, int len, int s) { return fn(sd, len, s); }
#define AR_PLAIN0(fn) [](auto* sd, int len, int) { return fn(sd, len); }

namespace ar {

template <class T> struct IsCplx : std::false_type {};
template <> struct IsCplx<Tav16sc> : std::true_type {};
template <> struct IsCplx<Tav32sc> : std::true_type {};
template <> struct IsCplx<Tav32fc> : std::true_type {};
template <> struct IsCplx<Tav64fc> : std::true_type {};

// A random element of any element type used here.
template <class T> T any(tt::Rng& r)
{
    if constexpr (IsCplx<T>::value) {
        using P = decltype(T{}.re);
        return T{any<P>(r), any<P>(r)};
    } else if constexpr (std::is_floating_point_v<T>) {
        return rnd_float<T>(r, true);
    } else {
        return r.element<T>();
    }
}
template <class T> std::vector<T> any_vec(tt::Rng& r, size_t n)
{
    std::vector<T> v(n);
    for (auto& x : v) x = any<T>(r);
    return v;
}

// Equality: integers bit for bit, floats bit for bit with any NaN matching.
template <class T> bool same(const T& a, const T& b)
{
    if constexpr (IsCplx<T>::value) return same(a.re, b.re) && same(a.im, b.im);
    else if constexpr (std::is_floating_point_v<T>) return same_float(a, b);
    else return a == b;
}

template <class T> std::string show(const T& v)
{
    if constexpr (IsCplx<T>::value) return "(" + show(v.re) + ", " + show(v.im) + ")";
    else if constexpr (std::is_floating_point_v<T>) {
        char buf[64];
        std::snprintf(buf, sizeof buf, "%a", double(v));
        return buf;
    } else return std::to_string(int64_t(v));
}

// ---- randomized comparison ------------------------------------------------------
// call(a, b, d, len, s) runs the member; ref(a_i, b_i, d_i before, s) is the
// expected element. Several rounds per scale factor.
template <class A, class B, class D, class Call, class Ref>
void random2(Call call, Ref ref, const std::vector<int>& scales, uint64_t seed, int rounds = 3, bool exactBits = false)
{
    tt::Rng r(seed);
    for (int s : scales)
        for (int k = 0; k < rounds; ++k) {
            const int len = int(r.range(1, 40));
            const auto a = any_vec<A>(r, size_t(len));
            const auto b = any_vec<B>(r, size_t(len));
            const auto d0 = any_vec<D>(r, size_t(len));
            auto d = d0;
            ASSERT_EQ(call(a.data(), b.data(), d.data(), len, s), StatusOk) << "s=" << s;
            for (int i = 0; i < len; ++i) {
                const D want = ref(a[size_t(i)], b[size_t(i)], d0[size_t(i)], s);
                ASSERT_TRUE(exactBits ? tt::same_bits(d[size_t(i)], want) : same(d[size_t(i)], want))
                    << "s=" << s << " i=" << i << " a=" << show(a[size_t(i)]) << " b=" << show(b[size_t(i)])
                    << " d=" << show(d0[size_t(i)]) << " got " << show(d[size_t(i)]) << " want " << show(want);
            }
        }
}

// One-source members: call(a, d, len, s), ref(a_i, s).
template <class A, class D, class Call, class Ref>
void random1(Call call, Ref ref, const std::vector<int>& scales, uint64_t seed, bool exactBits = false)
{
    random2<A, A, D>([&](const A* a, const A*, D* d, int len, int s) { return call(a, d, len, s); },
                     [&](A a, A, D, int s) { return ref(a, s); }, scales, seed, 3, exactBits);
}

// ---- lengths 1..70, destination byte offsets 0..15 -----------------------------------
// Sources sit at other offsets (odd ones included); the destination starts
// with random contents (read by the accumulating members). The expected
// values come from the element reference, so the element loop and the
// vector body are both held to it. Scale factors cycle through `scales`.
template <class A, class B, class D, class Call, class Ref>
void sweep2(Call call, Ref ref, const std::vector<int>& scales, uint64_t seed, bool exactBits = false)
{
    tt::Rng r(seed);
    size_t k = 0;
    for (int len = 1; len <= 70; ++len)
        for (size_t off = 0; off < 16; ++off) {
            const int s = scales[k++ % scales.size()];
            const size_t n = size_t(len);
            std::vector<unsigned char> ra(n * sizeof(A) + 16), rb(n * sizeof(B) + 16);
            void* pa = ra.data() + (off * 5 + 1) % 16;
            void* pb = rb.data() + (off * 3 + 8) % 16;
            std::vector<A> a(n);
            std::vector<B> b(n);
            std::vector<D> d0(n);
            tt::Guarded<D> g(n, off);
            for (size_t i = 0; i < n; ++i) {
                a[i] = any<A>(r);
                b[i] = any<B>(r);
                d0[i] = any<D>(r);
                put(pa, i, a[i]);
                put(pb, i, b[i]);
                put(g.data(), i, d0[i]);
            }
            ASSERT_EQ(call(static_cast<const A*>(pa), static_cast<const B*>(pb), g.data(), len, s), StatusOk);
            for (size_t i = 0; i < n; ++i) {
                const D got = get<D>(g.data(), i), want = ref(a[i], b[i], d0[i], s);
                ASSERT_TRUE(exactBits ? tt::same_bits(got, want) : same(got, want)) << "len=" << len << " off=" << off << " s=" << s << " i=" << i
                                             << " got " << show(got) << " want " << show(want);
            }
            ASSERT_TRUE(g.borders_intact()) << "len=" << len << " off=" << off;
        }
}
template <class A, class D, class Call, class Ref>
void sweep1(Call call, Ref ref, const std::vector<int>& scales, uint64_t seed, bool exactBits = false)
{
    sweep2<A, A, D>([&](const A* a, const A*, D* d, int len, int s) { return call(a, d, len, s); },
                    [&](A a, A, D, int s) { return ref(a, s); }, scales, seed, exactBits);
}

// ---- in place equals out of place -------------------------------------------------
// inPlace(src, srcDst, len, s) against outOfPlace(src, srcDst copy, dst, len, s).
template <class A, class D, class In, class Out>
void inplace2(In inPlace, Out outOfPlace, const std::vector<int>& scales, uint64_t seed)
{
    tt::Rng r(seed);
    for (int s : scales) {
        const int len = int(r.range(1, 70));
        const auto a = any_vec<A>(r, size_t(len));
        const auto d0 = any_vec<D>(r, size_t(len));
        auto sd = d0;
        std::vector<D> out(static_cast<size_t>(len));
        ASSERT_EQ(inPlace(a.data(), sd.data(), len, s), StatusOk);
        ASSERT_EQ(outOfPlace(a.data(), d0.data(), out.data(), len, s), StatusOk);
        for (size_t i = 0; i < size_t(len); ++i)
            ASSERT_TRUE(same(sd[i], out[i])) << "s=" << s << " i=" << i << " " << show(sd[i]) << " vs " << show(out[i]);
    }
}
// One-source in-place forms: inPlace(srcDst, len, s) against outOfPlace(src, dst, len, s).
template <class D, class In, class Out>
void inplace1(In inPlace, Out outOfPlace, const std::vector<int>& scales, uint64_t seed)
{
    inplace2<D, D>([&](const D*, D* sd, int len, int s) { return inPlace(sd, len, s); },
                   [&](const D*, const D* src, D* dst, int len, int s) { return outOfPlace(src, dst, len, s); },
                   scales, seed);
}

// ---- error statuses ------------------------------------------------------------------
// call(nullMask, len, s): the member with pointer k null when bit k is set,
// valid buffers otherwise; untouched() tells that no output was written.
// Pointers are tested before the length, except for the members that test
// the length first (lengthFirst), where the doubled length of 2^30 or more
// is refused too.
template <class Call, class Untouched>
void errors(int nptr, Call call, Untouched untouched, bool lengthFirst = false)
{
    const int all = (1 << nptr) - 1;
    for (int s : {0, 1, -1, 40, -40, INT32_MIN, INT32_MAX}) {
        for (int k = 0; k < nptr; ++k) {
            EXPECT_EQ(call(1 << k, 4, s), ErrNullPtr) << "pointer " << k << " s=" << s;
            EXPECT_EQ(call(1 << k, 0, s), lengthFirst ? ErrSize : ErrNullPtr) << "pointer " << k;
            EXPECT_EQ(call(1 << k, -1, s), lengthFirst ? ErrSize : ErrNullPtr) << "pointer " << k;
        }
        EXPECT_EQ(call(all, 0, s), lengthFirst ? ErrSize : ErrNullPtr);
        EXPECT_EQ(call(all, INT32_MIN, s), lengthFirst ? ErrSize : ErrNullPtr);
        for (int len : {0, -1, -2, INT32_MIN}) EXPECT_EQ(call(0, len, s), ErrSize) << "len=" << len << " s=" << s;
        if (lengthFirst) {
            EXPECT_EQ(call(0, 1 << 30, s), ErrSize);
            EXPECT_EQ(call(0, (1 << 30) + 1, s), ErrSize);
            EXPECT_EQ(call(0, INT32_MAX, s), ErrSize);
            EXPECT_EQ(call(1, 1 << 30, s), ErrNullPtr);
        }
    }
    EXPECT_TRUE(untouched());
}

// Error checks of the common argument shapes: fn(src1, src2, dst, len[, s]),
// fn(src, srcDst, len[, s]), fn(srcDst, len[, s]).
template <class A, class B, class D, class Fn> void errors_2src(Fn fn, bool lengthFirst = false)
{
    std::vector<A> a(8);
    std::vector<B> b(8);
    tt::Guarded<D> g(8);
    errors(3, [&](int m, int len, int s) {
        const A* pa = (m & 1) ? nullptr : a.data();
        const B* pb = (m & 2) ? nullptr : b.data();
        D* pd = (m & 4) ? nullptr : g.data();
        if constexpr (std::is_invocable_v<Fn, const A*, const B*, D*, int, int>) return fn(pa, pb, pd, len, s);
        else return fn(pa, pb, pd, len);
    }, [&] { return g.untouched(); }, lengthFirst);
}
template <class A, class D, class Fn> void errors_1src(Fn fn, bool lengthFirst = false)
{
    std::vector<A> a(8);
    tt::Guarded<D> g(8);
    errors(2, [&](int m, int len, int s) {
        const A* pa = (m & 1) ? nullptr : a.data();
        D* pd = (m & 2) ? nullptr : g.data();
        if constexpr (std::is_invocable_v<Fn, const A*, D*, int, int>) return fn(pa, pd, len, s);
        else return fn(pa, pd, len);
    }, [&] { return g.untouched(); }, lengthFirst);
}
template <class D, class Fn> void errors_0src(Fn fn)
{
    tt::Guarded<D> g(8);
    errors(1, [&](int m, int len, int s) {
        D* pd = (m & 1) ? nullptr : g.data();
        if constexpr (std::is_invocable_v<Fn, D*, int, int>) return fn(pd, len, s);
        else return fn(pd, len);
    }, [&] { return g.untouched(); });
}

} // namespace ar

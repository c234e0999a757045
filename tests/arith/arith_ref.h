// Plain references and checkers for the element-wise arithmetic tests.
// Integer references use exact 128-bit arithmetic: e * 2^-s rounded to
// nearest with ties to even, then saturated, with each family's limits
// written as the words that state them ("above 9", "18 or more", ...).
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <type_traits>
#include <vector>

#include "tavs.h"
#include "test_util.h"

namespace ar {

using i128 = __int128;

// ---- unaligned element access (vectors may start at odd addresses) -----
template <class T> T get(const void* base, size_t i)
{
    T v;
    std::memcpy(&v, static_cast<const unsigned char*>(base) + i * sizeof(T), sizeof(T));
    return v;
}
template <class T> void put(void* base, size_t i, T v)
{
    std::memcpy(static_cast<unsigned char*>(base) + i * sizeof(T), &v, sizeof(T));
}

// ---- scale limits as stated ------------------------------------------------
struct Lim {
    int zeroFrom; // zero fill when s >= zeroFrom
    int signTo;   // sign only when s <= signTo
};
constexpr int zero_above(int x) { return x + 1; }
constexpr int zero_from(int x) { return x; } // "x or more"
constexpr int sign_at_or_below(int x) { return x; }
constexpr int sign_below(int x) { return x - 1; }

template <class T> constexpr int64_t tmin() { return int64_t(std::numeric_limits<T>::min()); }
template <class T> constexpr int64_t tmax()
{
    return std::is_same_v<T, uint64_t> ? INT64_MAX : int64_t(std::numeric_limits<T>::max());
}

template <class T> T sat_ref(i128 v)
{
    if (v < i128(tmin<T>())) return T(tmin<T>());
    if (v > i128(tmax<T>())) return T(tmax<T>());
    return T(v);
}

// floor(e / 2^s) and the tie-to-even correction, by division only.
inline i128 round_div_pow2(i128 e, int s)
{
    const i128 p = i128(1) << s;
    i128 q = e / p, r = e % p;
    if (r < 0) {
        r += p;
        q -= 1;
    }
    if (2 * r > p || (2 * r == p && (q & 1) != 0)) q += 1;
    return q;
}

// The stored value for exact result e at scale factor s.
template <class T> T scale_ref(i128 e, int64_t s, Lim lim)
{
    if (s >= lim.zeroFrom) return T(0);
    if (s <= lim.signTo) {
        if (e == 0) return T(0);
        if (tmin<T>() == 0 || e > 0) return T(tmax<T>());
        return T(tmin<T>());
    }
    if (s == 0) return sat_ref<T>(e);
    if (s > 0) return sat_ref<T>(round_div_pow2(e, int(s)));
    return sat_ref<T>(e * (i128(1) << int(-s)));
}

// The scale factors every integer member is tried with.
inline std::vector<int> all_scales()
{
    std::vector<int> v;
    for (int s = -70; s <= 140; ++s) v.push_back(s);
    v.insert(v.end(), {INT32_MIN, INT32_MIN + 1, INT32_MAX - 1, INT32_MAX});
    return v;
}

// Scale factors around the limits for the length and offset sweeps.
inline std::vector<int> sweep_scales() { return {-17, -16, -15, -9, -1, 0, 1, 2, 7, 15, 16, 17, 18, 30, 31, 32, 33}; }

// Random integer element of T (limits and small values often).
template <class T> T rnd(tt::Rng& r) { return r.element<T>(); }

template <class T> std::vector<T> rnd_vec(tt::Rng& r, size_t n)
{
    std::vector<T> v(n);
    for (auto& x : v) x = rnd<T>(r);
    return v;
}

// Random float with special values mixed in: zeros of both signs,
// infinities, denormals, NaN (when withNaN), and values of wide range.
template <class F> F rnd_float(tt::Rng& r, bool withNaN)
{
    using L = std::numeric_limits<F>;
    switch (r.next() % 16) {
    case 0: return F(0);
    case 1: return -F(0);
    case 2: return (r.next() & 1) ? L::infinity() : -L::infinity();
    case 3: return F(r.uniform(-4, 4)) * L::denorm_min() * F(r.range(1, 1000));
    case 4: {
        if (!withNaN) return F(1);
        // Any NaN: random sign and payload, quiet or signalling.
        using U = std::conditional_t<sizeof(F) == 4, uint32_t, uint64_t>;
        const int mant = L::digits - 1;
        const U expo = ((U(1) << (sizeof(F) * 8 - 1 - mant)) - 1) << mant;
        U frac = U(r.next()) & ((U(1) << mant) - 1);
        if (frac == 0) frac = 1;
        U bits = expo | frac | ((r.next() & 1) ? U(1) << (sizeof(F) * 8 - 1) : 0);
        F v;
        std::memcpy(&v, &bits, sizeof v);
        return v;
    }
    case 5: return F(r.range(-40000, 40000));
    case 6: return F(r.uniform(-1, 1)) * L::max();
    default: return F(std::ldexp(r.uniform(-1, 1), int(r.range(-60, 60))));
    }
}

// Bitwise equality, NaN matching any NaN.
template <class F> bool same_float(F a, F b)
{
    if (std::isnan(a) && std::isnan(b)) return true;
    return std::memcmp(&a, &b, sizeof(F)) == 0;
}

} // namespace ar

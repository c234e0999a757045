// Helpers of the elementary-function tests: bit access, ulp measures against
// long double references, sweep strides that stay short under sanitizers.
#pragma once

#include <bit>
#include <cfenv>
#include <cmath>
#include <cstdint>
#include <limits>

#include "tavs.h"

namespace mt {

#if defined(__SANITIZE_ADDRESS__)
inline constexpr int kSlow = 16; // sanitized builds take every 16th sample
#else
inline constexpr int kSlow = 1;
#endif

inline uint32_t bits(float f) { return std::bit_cast<uint32_t>(f); }
inline uint64_t bits(double d) { return std::bit_cast<uint64_t>(d); }
inline float f32(uint32_t b) { return std::bit_cast<float>(b); }
inline double f64(uint64_t b) { return std::bit_cast<double>(b); }

// Error of got in units of the last place of T at the exact value ref (the
// spacing of T in ref's binade; denorm_min below the normal range).
template <class T> double ulp_error(T got, long double ref)
{
    if (std::isnan(ref)) return std::isnan(got) ? 0.0 : 1e9;
    if (std::isnan(got)) return 1e9;
    if (std::isinf(got) || std::fabs(ref) > static_cast<long double>(std::numeric_limits<T>::max()))
        return (static_cast<long double>(got) == ref || (std::isinf(got) && std::isinf(T(ref)))) ? 0.0 : 1e9;
    int e = 0;
    std::frexp(ref, &e);
    e = e < std::numeric_limits<T>::min_exponent ? std::numeric_limits<T>::min_exponent : e;
    const long double ulp = std::ldexp(1.0L, e - std::numeric_limits<T>::digits);
    return double(std::fabs(static_cast<long double>(got) - ref) / ulp);
}

// Runs fn with the caller's rounding direction set to mode, then restores it.
template <class F> void with_rounding(int mode, F fn)
{
    const int saved = std::fegetround();
    std::fesetround(mode);
    fn();
    std::fesetround(saved);
}

} // namespace mt

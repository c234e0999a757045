// Reference of the 16-bit integer FIR records: how taps become 16-bit
// values and a power of two, the 32-bit wrapping sums and the output rules.
#pragma once

#include <cmath>
#include <cstdint>
#include <vector>

#include "tavs.h"

namespace firi {


inline int32_t wrap32(int64_t v) { return int32_t(uint32_t(uint64_t(v))); }
inline Tav16s sat(int64_t v) { return Tav16s(v > 32767 ? 32767 : v < -32768 ? -32768 : v); }

// Block rule: shift = tapsFactor - scaleFactor in [-31, 31]; sums wrap at
// 32 bits, and so does the rounding addition.
inline Tav16s rule(int32_t s, int64_t tf, int sf)
{
    int64_t sh = tf - sf;
    sh = sh > 31 ? 31 : sh < -31 ? -31 : sh;
    if (sh > 0) return sat(wrap32(int64_t(uint64_t(uint32_t(s)) << sh)));
    const int k = int(-sh);
    const int64_t c = k >= 1 ? (int64_t(1) << (k - 1)) - 1 : 0;
    const int32_t t = wrap32(int64_t(s) + c + ((s >> k) & 1));
    return sat(t >> k);
}
inline Tav16s stream_rule(int32_t s, int64_t tf, int sf, int mode)
{
    int64_t sh = tf - sf;
    sh = sh > 31 ? 31 : sh < -31 ? -31 : sh;
    if (sh >= 0) return sat(wrap32(int64_t(uint64_t(uint32_t(s)) << sh)));
    const int k = int(-sh);
    const long double exact = std::ldexp((long double)s, -k);
    if (mode == 0) return sat(int64_t(std::floor(exact)));
    if (mode == 2) return sat(int64_t(std::round(exact))); // halves away from zero
    const long double f = std::floor(exact);
    const long double d = exact - f;
    int64_t r = int64_t(f);
    if (d > 0.5L || (d == 0.5L && (r & 1))) ++r;
    return sat(r);
}

struct Held {
    std::vector<Tav16s> t; // values in caller order (parts for complex)
    int32_t tf;
};
inline Held held_from_16s(const std::vector<Tav16s>& taps, int f)
{
    bool h = false;
    for (auto v : taps) h = h || v == -32768;
    Held r{taps, f};
    if (h) {
        for (auto& v : r.t) v = Tav16s(v / 2 - (v < 0 && (v & 1) ? 1 : 0));
        r.tf = f + 1;
    }
    return r;
}
inline Held held_from_32s(const std::vector<Tav32s>& parts, int f)
{
    int64_t m = 0;
    for (auto v : parts) {
        const int64_t a = v == INT32_MIN ? int64_t(INT32_MIN) : (v < 0 ? -int64_t(v) : v);
        m = a > m ? a : m;
    }
    int s = 0;
    while (m > 32766) m /= 2, ++s;
    Held r{{}, int32_t(f + s)};
    for (auto v : parts) r.t.push_back(Tav16s(int16_t(uint16_t(uint32_t(int64_t(v) >> s)))));
    return r;
}
inline Held held_from_32f(const std::vector<Tav32f>& parts)
{
    double m = 0;
    for (auto v : parts) m = std::max(m, double(std::fabs(v)));
    int e = 0;
    if (m > 32767.0) {
        while (e <= 31 && m > 32767.0) m /= 2, ++e;
    } else if (2 * m < 32767.0) {
        while (e >= -31 && 2 * m < 32767.0) m *= 2, --e;
    }
    Held r{{}, e};
    for (auto v : parts) r.t.push_back(Tav16s(std::lround(std::ldexp(double(v), -e))));
    return r;
}

// Outputs for data x after the newest-first delay dly (parts interleaved
// for complex, cx true).
inline std::vector<Tav16s> ref_out(const Held& h, bool cx, const std::vector<Tav16s>& dly, const std::vector<Tav16s>& x,
                            int sf, int mode = -1)
{
    const int k = cx ? 2 : 1, n = int(h.t.size()) / k, len = int(x.size()) / k;
    std::vector<Tav16s> y(x.size());
    auto at = [&](long idx, int q) -> int64_t {
        return idx >= 0 ? x[size_t(k * idx + q)] : dly[size_t(k * (-idx - 1) + q)];
    };
    for (int j = 0; j < len; ++j) {
        int64_t re = 0, im = 0;
        for (int i = 0; i < n; ++i) {
            const int64_t a = h.t[size_t(k * i)], b = cx ? h.t[size_t(k * i + 1)] : 0;
            const int64_t c = at(j - i, 0), d = cx ? at(j - i, 1) : 0;
            re += a * c - b * d;
            im += a * d + b * c;
        }
        for (int q = 0; q < k; ++q) {
            const int32_t s = wrap32(q == 0 ? re : im);
            y[size_t(k * j + q)] = mode < 0 ? rule(s, h.tf, sf) : stream_rule(s, h.tf, sf, mode);
        }
    }
    return y;
}

} // namespace firi

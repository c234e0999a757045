// Plain references for the statistics tests: each lane shape written out
// with arrays of scalars in its documented order, so the vector code of the
// library can be compared bit for bit. Also the data generators and the
// length/offset sweep shared by the statistics tests.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <functional>
#include <vector>

#include "tavs.h"
#include "test_util.h"

namespace sref {

// Lengths that reach every path: short ones, the 1024 block edge of the
// float sums and the 65536 block edge of the 16-bit sums.
inline std::vector<int> lengths()
{
    std::vector<int> v;
    for (int n = 1; n <= 100; ++n) v.push_back(n);
    for (int n : {1023, 1024, 1025, 65535, 65536, 65537}) v.push_back(n);
    return v;
}

// Calls f(len, offset) for every length and offsets 0..15; the long lengths
// use every offset only when all is set (else two), to keep run time small.
inline void sweep(const std::function<void(int, int)>& f, bool all = false)
{
    for (int n : lengths())
        for (int off = 0; off < 16; ++off) {
            if (n > 2000 && !all && off != 0 && off != 3) continue;
            f(n, off);
        }
}

// Random floats of mixed signs and magnitudes, so sums round differently
// in different orders.
template <class T> std::vector<T> floats(tt::Rng& r, size_t n, int spread = 20)
{
    std::vector<T> v(n);
    for (auto& x : v) x = T(std::ldexp(r.uniform(-1.0, 1.0), int(r.range(-spread, spread))));
    return v;
}

template <class T> std::vector<T> ints(tt::Rng& r, size_t n)
{
    std::vector<T> v(n);
    for (auto& x : v) x = r.element<T>();
    return v;
}

// A copy of the values placed at a byte offset from a 64-byte boundary, to
// hand the library a vector at any address.
template <class T> class Placed {
public:
    Placed(const std::vector<T>& v, size_t offBytes) : raw_(v.size() * sizeof(T) + offBytes + 128)
    {
        uintptr_t a = reinterpret_cast<uintptr_t>(raw_.data());
        size_t pad = (64 - (a & 63)) & 63;
        p_ = raw_.data() + pad + offBytes;
        if (!v.empty()) std::memcpy(p_, v.data(), v.size() * sizeof(T));
    }
    const T* ptr() const { return reinterpret_cast<const T*>(p_); }
    T* ptr() { return reinterpret_cast<T*>(p_); }
    uintptr_t addr() const { return reinterpret_cast<uintptr_t>(p_); }

private:
    std::vector<unsigned char> raw_;
    unsigned char* p_;
};

// ---- lane shapes ------------------------------------------------------------------

// Eight lanes: element 8r+e into lane e; pairs Q0..Q3 = lanes (0,1), (2,3),
// (4,5), (6,7); fold ((Q0+Q1)+(Q2+Q3)) lane-wise; low + high; then singles.
inline double sum8(const std::vector<double>& v)
{
    double L[8] = {0, 0, 0, 0, 0, 0, 0, 0};
    size_t n8 = v.size() / 8 * 8, i = 0;
    for (; i < n8; ++i) L[i % 8] += v[i];
    double lo = (L[0] + L[2]) + (L[4] + L[6]);
    double hi = (L[1] + L[3]) + (L[5] + L[7]);
    double s = lo + hi;
    for (; i < v.size(); ++i) s += v[i];
    return s;
}

// Sixteen lanes combined as ((P0+P1)+(P2+P3))+((P4+P5)+(P6+P7)); pairs of
// the rest into the combined pair, a last element into a scalar.
inline double sum16(const std::vector<double>& v)
{
    double L[16] = {};
    size_t n16 = v.size() / 16 * 16, i = 0;
    for (; i < n16; ++i) L[i % 16] += v[i];
    double lo = ((L[0] + L[2]) + (L[4] + L[6])) + ((L[8] + L[10]) + (L[12] + L[14]));
    double hi = ((L[1] + L[3]) + (L[5] + L[7])) + ((L[9] + L[11]) + (L[13] + L[15]));
    for (; i + 2 <= v.size(); i += 2) {
        lo += v[i];
        hi += v[i + 1];
    }
    double scalar = 0.0;
    if (i < v.size()) scalar += v[i];
    return (lo + hi) + scalar;
}

// Scale factors to try for a length and offset: every one from -70 to 100
// at offset 0 of the short lengths, the edges of every rule elsewhere (the
// scale is applied once, after the reduction that the offsets exercise).
inline std::vector<int> scales(int n, int off)
{
    std::vector<int> v;
    if (n <= 100 && off == 0)
        for (int sf = -70; sf <= 100; ++sf) v.push_back(sf);
    else if (n > 2000)
        v = {-70, -31, -15, -1, 0, 1, 2, 15, 16, 31, 48, 49, 100};
    else
        v = {-70, -33, -32, -31, -30, -16, -15, -14, -1, 0, 1, 2, 3, 15, 16, 17, 30, 31, 32, 33, 47, 48, 49, 63, 64, 65, 100};
    return v;
}

template <class T> std::vector<double> widen(const std::vector<T>& v) { return std::vector<double>(v.begin(), v.end()); }

} // namespace sref

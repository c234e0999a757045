// Helpers shared by the tests: deterministic random data, bit comparison of
// floats, guarded buffers that show whether a call wrote outside its range.
#pragma once

#include <cstdint>
#include <cstring>
#include <limits>
#include <type_traits>
#include <vector>

#include "tavs.h"

namespace tt {

// splitmix64: small, fast, and the same sequence everywhere.
class Rng {
public:
    explicit Rng(uint64_t seed = 0x5eed) : s_(seed) {}
    uint64_t next()
    {
        uint64_t z = (s_ += 0x9e3779b97f4a7c15ull);
        z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9ull;
        z = (z ^ (z >> 27)) * 0x94d049bb133111ebull;
        return z ^ (z >> 31);
    }
    // Uniform in [lo, hi] for integers.
    int64_t range(int64_t lo, int64_t hi)
    {
        uint64_t span = uint64_t(hi) - uint64_t(lo) + 1;
        return span == 0 ? int64_t(next()) : int64_t(uint64_t(lo) + next() % span);
    }
    double uniform(double lo, double hi) { return lo + (hi - lo) * (double(next() >> 11) * 0x1.0p-53); }

    // Random element of an integer type, with its limits and small values
    // drawn often so saturation and rounding edges are reached.
    template <class T> T element()
    {
        using L = std::numeric_limits<T>;
        switch (next() % 8) {
        case 0: return L::max();
        case 1: return L::min();
        case 2: return T(range(-3, 3));
        case 3: return T(range(int64_t(L::max()) - 3, int64_t(L::max())));
        default: return T(next());
        }
    }

private:
    uint64_t s_;
};

template <class T> std::vector<T> random_vector(Rng& r, size_t n)
{
    std::vector<T> v(n);
    for (auto& x : v) x = r.element<T>();
    return v;
}

// Equality of the bytes of two objects (floats compared bit for bit).
template <class T> bool same_bits(const T& a, const T& b) { return std::memcmp(&a, &b, sizeof(T)) == 0; }

// A buffer with a fixed fill pattern around (and, before the call, inside)
// the region a function may write, so writes outside it or on error show.
template <class T> class Guarded {
public:
    explicit Guarded(size_t n, size_t offsetBytes = 0, unsigned char fill = 0xA5)
        : n_(n), off_(offsetBytes), fill_(fill), raw_(n * sizeof(T) + offsetBytes + 2 * kPad, fill)
    {
    }
    T* data() { return reinterpret_cast<T*>(raw_.data() + kPad + off_); }
    size_t size() const { return n_; }
    // True when every byte outside [data, data + n) still holds the fill.
    bool borders_intact() const
    {
        for (size_t i = 0; i < kPad + off_; ++i)
            if (raw_[i] != fill_) return false;
        for (size_t i = kPad + off_ + n_ * sizeof(T); i < raw_.size(); ++i)
            if (raw_[i] != fill_) return false;
        return true;
    }
    // True when nothing at all was written.
    bool untouched() const
    {
        for (auto b : raw_)
            if (b != fill_) return false;
        return true;
    }

private:
    static constexpr size_t kPad = 64;
    size_t n_, off_;
    unsigned char fill_;
    std::vector<unsigned char> raw_;
};

} // namespace tt

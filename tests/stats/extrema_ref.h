// References and data for the extremum tests: the one-by-one walk with a
// strict comparison, seeded with element 0.
#pragma once

#include <cmath>
#include <cstdint>
#include <limits>
#include <vector>

#include "stats_ref.h"

namespace xref {

// Data with many ties; float data also hold NaN, both zeros and infinities.
template <class T> std::vector<T> data(tt::Rng& r, size_t n)
{
    std::vector<T> v(n);
    const bool narrow = r.next() % 2 == 0;
    for (auto& x : v) {
        if constexpr (std::is_floating_point_v<T>) {
            switch (r.next() % 16) {
            case 0: x = std::numeric_limits<T>::quiet_NaN(); break;
            case 1: x = T(0.0); break;
            case 2: x = T(-0.0); break;
            case 3: x = (r.next() & 1) ? std::numeric_limits<T>::infinity() : -std::numeric_limits<T>::infinity(); break;
            default: x = narrow ? T(r.range(-3, 3)) : T(r.uniform(-1e6, 1e6));
            }
        } else {
            x = narrow ? T(r.range(std::numeric_limits<T>::min() == 0 ? 0 : -3, 3)) : r.element<T>();
            if (narrow && r.next() % 16 == 0) x = r.element<T>();
        }
    }
    return v;
}

// Index of the first extremum of key(v[i]) by the strict walk.
template <class T, class Key> size_t walk(const T* v, size_t n, Key key, bool isMax)
{
    auto best = key(v[0]);
    size_t at = 0;
    for (size_t i = 1; i < n; ++i) {
        auto k = key(v[i]);
        if (isMax ? (k > best) : (k < best)) {
            best = k;
            at = i;
        }
    }
    return at;
}

} // namespace xref

// The tables of the floating FFT records written out from their rules, on
// their own, so the library's builders can be compared with them bit for
// bit: the quarter-wave sine table, the (cos, -sin) lookup by quadrant
// folding, the swap list, the radix-4 triples, the merge table, the column
// twiddles of the two-factor levels and the real twiddles.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "fft_sizes.h"

namespace fref {

// Bit reversal of the low `bits` bits through a 16-bit lookup, so the large
// swap lists and column tables can be checked quickly.
class Reverser {
public:
    Reverser() : t_(65536)
    {
        for (uint32_t v = 0; v < 65536; ++v) {
            uint32_t r = 0;
            for (int b = 0; b < 16; ++b) r |= ((v >> b) & 1u) << (15 - b);
            t_[v] = uint16_t(r);
        }
    }
    uint32_t operator()(uint32_t v, int bits) const
    {
        if (bits == 0) return 0;
        const uint32_t full = (uint32_t(t_[v & 0xFFFF]) << 16) | t_[v >> 16];
        return full >> (32 - bits);
    }

private:
    std::vector<uint16_t> t_;
};

// The sine table of a circle of 2^t points (t >= 10): entry k of 0 .. 2^t/4
// is sin(2 pi k / 2^t) up to 2^t/8, the cosine of the complement above,
// rounded to S, and exactly 1 at the quarter.
template <class S> class Circle {
public:
    explicit Circle(int t) : n_(int64_t(1) << t), q_(n_ / 4), s_(size_t(q_ + 1))
    {
        const double twoPi = 2 * M_PI;
        for (int64_t k = 0; k < q_; ++k)
            s_[size_t(k)] = S(k <= n_ / 8 ? std::sin(twoPi * double(k) / double(n_))
                                          : std::cos(twoPi * double(q_ - k) / double(n_)));
        s_[size_t(q_)] = S(1);
    }
    int64_t points() const { return n_; }
    // W^e = exp(-2 pi i e / 2^t) as (cos, -sin), e reduced modulo 2^t, the
    // quadrant boundaries taken by the lower quadrant.
    void w(int64_t e, S& c, S& ms) const
    {
        e &= n_ - 1;
        const S* s = s_.data();
        S co, si;
        if (e <= q_) co = s[q_ - e], si = s[e];
        else if (e <= 2 * q_) co = -s[e - q_], si = s[2 * q_ - e];
        else if (e <= 3 * q_) co = -s[3 * q_ - e], si = -s[e - 2 * q_];
        else co = s[e - 3 * q_], si = -s[4 * q_ - e];
        c = co;
        ms = -si;
    }

private:
    int64_t n_, q_;
    std::vector<S> s_;
};

// Counts the entries of a table that differ in any bit from the rule and
// reports the first few.
template <class S> class Compare {
public:
    explicit Compare(std::string what) : what_(std::move(what)) {}
    void operator()(const S* got, int64_t i, S want)
    {
        if (std::memcmp(got + i, &want, sizeof(S)) == 0) return;
        if (++bad_ <= 3) ADD_FAILURE() << what_ << ": element " << i << " is " << got[i] << ", rule gives " << want;
    }
    int64_t bad() const { return bad_; }

private:
    std::string what_;
    int64_t bad_ = 0;
};

inline int64_t check_swap_list(const int32_t* list, int m, const Reverser& rev)
{
    const int bits = m - 2;
    const int32_t quarter = int32_t(1) << bits;
    int64_t bad = 0;
    int32_t front = 0, back = quarter - 1;
    auto expect = [&](int32_t at, int32_t want) {
        if (list[at] != want && ++bad <= 3) ADD_FAILURE() << "swap list " << m << ": slot " << at << " is " << list[at] << ", rule gives " << want;
    };
    for (int32_t i = 1; i < quarter; ++i) {
        const int32_t j = int32_t(rev(uint32_t(i), bits));
        if (i < j) {
            expect(front++, 4 * i);
            expect(front++, 4 * j);
        } else if (i == j) {
            expect(back--, 4 * i);
        }
    }
    expect(front, 0);
    expect(quarter, 0);
    return bad;
}

// Triples (W^k, W^2k, W^3k) of W = exp(-2 pi i / L) for k = 0 .. L/4.
template <class S> int64_t check_radix_four(const S* t, int64_t L, const Circle<S>& circ)
{
    Compare<S> cmp("radix-4 table of " + std::to_string(L));
    const int64_t stride = circ.points() / L;
    for (int64_t k = 0; k <= L / 4; ++k)
        for (int64_t j = 1; j <= 3; ++j) {
            S c, ms;
            circ.w(j * k * stride, c, ms);
            const int64_t at = 6 * k + 2 * (j - 1);
            cmp(t, at, c);
            cmp(t, at + 1, ms);
        }
    return cmp.bad();
}

// W_L^k for k < L/4.
template <class S> int64_t check_merge(const S* t, int64_t L, const Circle<S>& circ)
{
    Compare<S> cmp("merge table of " + std::to_string(L));
    const int64_t stride = circ.points() / L;
    for (int64_t k = 0; k < L / 4; ++k) {
        S c, ms;
        circ.w(k * stride, c, ms);
        cmp(t, 2 * k, c);
        cmp(t, 2 * k + 1, ms);
    }
    return cmp.bad();
}

// Column twiddles of a split N = R * M: for every group of four columns c,
// for the rows r in order, W_N^((c + j) * rev(r)) for j = 0 .. 3. Checked
// row by row (the exponents of one row step by rev(r)), so that the reads
// of the sine table move forward.
template <class S> int64_t check_columns(const S* t, int64_t R, int64_t M, const Circle<S>& circ, const Reverser& rev)
{
    Compare<S> cmp("column twiddles of " + std::to_string(R) + " x " + std::to_string(M));
    int bits = 0;
    while ((int64_t(1) << bits) < R) ++bits;
    const int64_t stride = circ.points() / (R * M);
    for (int64_t r = 0; r < R; ++r) {
        const int64_t step = int64_t(rev(uint32_t(r), bits)) * stride;
        for (int64_t c = 0; c < M; ++c) {
            S co, ms;
            circ.w(c * step, co, ms);
            const int64_t at = 2 * ((c / 4) * R * 4 + r * 4 + (c % 4));
            cmp(t, at, co);
            cmp(t, at + 1, ms);
            if (cmp.bad() > 3) return cmp.bad();
        }
    }
    return cmp.bad();
}

// Every complex table of a record whose complex length is 2^m, on the sine
// table of its circle: the swap list, then the radix-4 table (m <= 10), or
// the levels of the two-factor split down to the innermost radix-4 table or
// to the blocked merge's tables. Returns the number of levels seen.
template <class S, class Rec>
int check_complex_tables(const Rec* rec, int m, const Circle<S>& circ, const Reverser& rev)
{
    const fs::Prec prec{sizeof(S) == 8};
    if (m <= 5) {
        EXPECT_EQ(rec->swapList, nullptr);
        EXPECT_EQ(rec->radixFour, nullptr);
        return 0;
    }
    EXPECT_EQ(check_swap_list(rec->swapList, m, rev), 0);
    if (m <= 10) {
        EXPECT_EQ(check_radix_four(rec->radixFour, int64_t(1) << m, circ), 0);
        EXPECT_EQ(rec->levelColumns[0], nullptr);
        return 0;
    }
    int cur = m, level = 0;
    for (;;) {
        const int F = prec.ffb(cur);
        if (F == 0) {
            EXPECT_EQ(check_merge(rec->merge, int64_t(1) << cur, circ), 0);
            EXPECT_EQ(check_radix_four(rec->radixFour, int64_t(1024), circ), 0);
            break;
        }
        const int64_t R = int64_t(1) << F, M = int64_t(1) << (cur - F);
        EXPECT_LT(level, 3);
        if (level >= 3) break;
        EXPECT_EQ(check_radix_four(rec->levelRadixFour[level], R, circ), 0) << "level " << level;
        EXPECT_EQ(check_columns(rec->levelColumns[level], R, M, circ, rev), 0) << "level " << level;
        ++level;
        cur -= F;
        if (cur <= 10) {
            EXPECT_EQ(check_radix_four(rec->radixFour, M, circ), 0);
            EXPECT_EQ(rec->merge, nullptr);
            break;
        }
    }
    if (level < 3) EXPECT_EQ(rec->levelColumns[level], nullptr);
    return level;
}

// The real twiddles of a real record of order n >= 6 (N = 2^n): the small
// form (0.5 cos t, 0.5 - 0.5 sin t) forward, with the difference taken in
// double and rounded once, and (cos t, -sin t) inverse, for k < N/4; from
// the two-level order on, both tables hold the inner block of step 1 and
// the outer block of step `block`.
template <class S, class Rec> void check_real_tables(const Rec* rec, int n, const Circle<S>& circ)
{
    const int64_t N = int64_t(1) << n;
    const int64_t stride = circ.points() / N;
    const bool wide = sizeof(S) == 8;
    const int twoLevel = wide ? 18 : 19;
    const int64_t block = wide ? 512 : 1024;
    Compare<S> fwd("forward real table " + std::to_string(n)), inv("inverse real table " + std::to_string(n));
    if (n >= twoLevel) {
        const int64_t outer = (N / 4 + block - 1) / block;
        for (int64_t i = 0; i < block + outer; ++i) {
            S c, ms;
            circ.w((i < block ? i : (i - block) * block) * stride, c, ms);
            fwd(rec->realFwd, 2 * i, c);
            fwd(rec->realFwd, 2 * i + 1, ms);
            inv(rec->realInv, 2 * i, c);
            inv(rec->realInv, 2 * i + 1, ms);
        }
    } else {
        for (int64_t k = 0; k < N / 4; ++k) {
            S c, ms;
            circ.w(k * stride, c, ms);
            fwd(rec->realFwd, 2 * k, S(0.5) * c);
            fwd(rec->realFwd, 2 * k + 1, S(0.5 + 0.5 * double(ms)));
            inv(rec->realInv, 2 * k, c);
            inv(rec->realInv, 2 * k + 1, ms);
        }
    }
    EXPECT_EQ(fwd.bad(), 0);
    EXPECT_EQ(inv.bad(), 0);
}

} // namespace fref

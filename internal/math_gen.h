// Compile-time generation of the elementary functions' tables. Every table
// is computed here, in constant evaluation, from the rule that defines it:
// powers of e for the integer exponentials and the logarithm ladders, powers
// of ten for the decibel ladder, arctangents of k/64 for the batched arctangent.
// Nothing is typed in, and every table ends in a `static constexpr` object,
// so the module gains no writable data.
#pragma once

#include <array>
#include <bit>
#include <cstdint>

namespace tavs::mathgen {

// ---- unsigned fixed point: 3 integer limbs, 5 fraction limbs of 32 bits ----
// 160 fraction bits keep every table entry far from its rounding boundary;
// the boundary distance is checked below with static_assert.
struct Fix {
    static constexpr int L = 8, F = 5;
    uint32_t w[L]{};

    static constexpr Fix from_u64(uint64_t v)
    {
        Fix r;
        r.w[F] = uint32_t(v);
        r.w[F + 1] = uint32_t(v >> 32);
        return r;
    }
    constexpr bool is_zero() const
    {
        for (int i = 0; i < L; ++i)
            if (w[i]) return false;
        return true;
    }
};

constexpr int cmp(const Fix& a, const Fix& b)
{
    for (int i = Fix::L - 1; i >= 0; --i)
        if (a.w[i] != b.w[i]) return a.w[i] < b.w[i] ? -1 : 1;
    return 0;
}

constexpr Fix add(const Fix& a, const Fix& b)
{
    Fix r;
    uint64_t c = 0;
    for (int i = 0; i < Fix::L; ++i) {
        c += uint64_t(a.w[i]) + b.w[i];
        r.w[i] = uint32_t(c);
        c >>= 32;
    }
    return r;
}

// a - b for a >= b.
constexpr Fix sub(const Fix& a, const Fix& b)
{
    Fix r;
    int64_t borrow = 0;
    for (int i = 0; i < Fix::L; ++i) {
        int64_t d = int64_t(a.w[i]) - b.w[i] - borrow;
        borrow = d < 0;
        r.w[i] = uint32_t(d + (borrow << 32));
    }
    return r;
}

// Truncated product.
constexpr Fix mul(const Fix& a, const Fix& b)
{
    uint64_t acc[2 * Fix::L + 1]{};
    for (int i = 0; i < Fix::L; ++i) {
        uint64_t carry = 0;
        for (int j = 0; j < Fix::L; ++j) {
            uint64_t t = uint64_t(a.w[i]) * b.w[j] + acc[i + j] + carry;
            acc[i + j] = uint32_t(t);
            carry = t >> 32;
        }
        acc[i + Fix::L] += carry;
    }
    Fix r;
    for (int i = 0; i < Fix::L; ++i)
        r.w[i] = uint32_t(acc[i + Fix::F]);
    return r;
}

constexpr Fix mul_small(const Fix& a, uint32_t m)
{
    Fix r;
    uint64_t c = 0;
    for (int i = 0; i < Fix::L; ++i) {
        c += uint64_t(a.w[i]) * m;
        r.w[i] = uint32_t(c);
        c >>= 32;
    }
    return r;
}

// Truncated quotient by a small divisor.
constexpr Fix div_small(const Fix& a, uint32_t d)
{
    Fix r;
    uint64_t rem = 0;
    for (int i = Fix::L - 1; i >= 0; --i) {
        uint64_t cur = (rem << 32) | a.w[i];
        r.w[i] = uint32_t(cur / d);
        rem = cur % d;
    }
    return r;
}

// a * 2^n, n of either sign; bits shifted out are dropped.
constexpr Fix shift(const Fix& a, int n)
{
    Fix r;
    const int limbs = n >= 0 ? n / 32 : -((-n + 31) / 32); // floor(n / 32)
    const int bits = n - 32 * limbs;                       // 0 .. 31
    for (int i = 0; i < Fix::L; ++i) {
        const int lo = i - limbs; // source limb of the low part
        uint64_t v = 0;
        if (lo >= 0 && lo < Fix::L) v |= uint64_t(a.w[lo]) << bits;
        if (lo - 1 >= 0 && lo - 1 < Fix::L && bits) v |= uint64_t(a.w[lo - 1]) >> (32 - bits);
        r.w[i] = uint32_t(v);
    }
    return r;
}

// Integer part, or UINT64_MAX when it does not fit.
constexpr uint64_t int_part(const Fix& a)
{
    if (a.w[Fix::F + 2]) return UINT64_MAX;
    return uint64_t(a.w[Fix::F]) | (uint64_t(a.w[Fix::F + 1]) << 32);
}

// The top 64 fraction bits.
constexpr uint64_t frac_top(const Fix& a)
{
    return uint64_t(a.w[Fix::F - 2]) | (uint64_t(a.w[Fix::F - 1]) << 32);
}

constexpr bool frac_zero(const Fix& a)
{
    for (int i = 0; i < Fix::F; ++i)
        if (a.w[i]) return false;
    return true;
}

// ---- powers of e ---------------------------------------------------------
// e and 1/e from their series, then e^k by repeated products.
constexpr Fix e_series(bool inverse)
{
    Fix term = Fix::from_u64(1), pos = term, neg;
    for (uint32_t n = 1; n < 70; ++n) {
        term = div_small(term, n);
        if (inverse && (n & 1))
            neg = add(neg, term);
        else
            pos = add(pos, term);
    }
    return sub(pos, neg);
}

inline constexpr int kMaxPosPow = 44; // e^44 < 2^64
inline constexpr int kMaxNegPow = 22;

struct EPowers {
    Fix pos[kMaxPosPow + 1];
    Fix neg[kMaxNegPow + 1];
};

constexpr EPowers make_epowers()
{
    EPowers p;
    const Fix e = e_series(false), ei = e_series(true);
    p.pos[0] = Fix::from_u64(1);
    p.neg[0] = Fix::from_u64(1);
    for (int k = 1; k <= kMaxPosPow; ++k)
        p.pos[k] = mul(p.pos[k - 1], e);
    for (int k = 1; k <= kMaxNegPow; ++k)
        p.neg[k] = mul(p.neg[k - 1], ei);
    return p;
}

inline constexpr EPowers kEPow = make_epowers();

constexpr const Fix& epow(int x) { return x >= 0 ? kEPow.pos[x] : kEPow.neg[-x]; }

// floor(e^x * 2^-sf + 1/2) saturated at maxv; ok is cleared when the value
// lies so close to a rounding boundary that the working precision could not
// decide it (x = 0 is exact and always fine).
struct Rounded {
    uint64_t v;
    bool ok;
};

constexpr Rounded exp_rule(int x, int sf, uint64_t maxv)
{
    Fix v = shift(epow(x), -sf);
    v = add(v, shift(Fix::from_u64(1), -1));
    const uint64_t top = frac_top(v);
    const bool ok = (x == 0 && frac_zero(v)) || (top > 0xFFFF && top < ~uint64_t(0xFFFF));
    uint64_t ip = int_part(v);
    return {ip > maxv ? maxv : ip, ok};
}

// One row per scale factor: rows for sf in [0, posRows) cover x in
// [0, width), rows for sf in [-negRows, -1] cover x in [-(width/2), width/2].
template <class T, int Width, int PosRows, int NegRows> struct ExpTable {
    T pos[PosRows][Width];
    T neg[NegRows][Width];
    bool ok;
};

template <class T, int Width, int PosRows, int NegRows> constexpr auto make_exp_table(uint64_t maxv)
{
    ExpTable<T, Width, PosRows, NegRows> t{};
    t.ok = true;
    for (int sf = 0; sf < PosRows; ++sf)
        for (int x = 0; x < Width; ++x) {
            Rounded r = exp_rule(x, sf, maxv);
            t.pos[sf][x] = T(r.v);
            t.ok = t.ok && r.ok;
        }
    for (int k = 1; k <= NegRows; ++k)
        for (int i = 0; i < Width; ++i) {
            Rounded r = exp_rule(i - Width / 2, -k, maxv);
            t.neg[k - 1][i] = T(r.v);
            t.ok = t.ok && r.ok;
        }
    return t;
}

// ---- logarithm ladders ---------------------------------------------------
// ceil(e^m) for m = 0..44 (e^m is irrational for m > 0, so ceil = floor + 1):
// round(ln(x) * 2^-sf) with sf >= 1 steps up where ln x reaches an integer.
constexpr std::array<uint64_t, kMaxPosPow + 1> make_ceil_epow()
{
    std::array<uint64_t, kMaxPosPow + 1> a{};
    a[0] = 1;
    for (int m = 1; m <= kMaxPosPow; ++m)
        a[m] = int_part(kEPow.pos[m]) + 1;
    return a;
}

constexpr uint64_t isqrt64(uint64_t v)
{
    uint64_t r = 0;
    for (int b = 31; b >= 0; --b) {
        uint64_t c = r | (uint64_t(1) << b);
        if (c * c <= v) r = c;
    }
    return r;
}

// round(ln x) = k from the first x with ln x >= k - 1/2, that is the first x
// with x^2 > e^(2k-1): isqrt(floor(e^(2k-1))) + 1.
inline constexpr int kLnLadderTop = 22; // ladder thresholds for k = 1 .. 22
constexpr std::array<uint32_t, kLnLadderTop + 1> make_ln_ladder()
{
    std::array<uint32_t, kLnLadderTop + 1> a{};
    for (int k = 1; k <= kLnLadderTop; ++k)
        a[k] = uint32_t(isqrt64(int_part(kEPow.pos[2 * k - 1])) + 1);
    return a;
}

// ---- the decibel ladder ----------------------------------------------------
// k holds for x above 10^((k - 1/2)/10), i.e. for x^20 > 10^(2k-1). The
// threshold is found from a long double estimate and proved exactly with
// integer powers.
struct Big {
    static constexpr int N = 22; // 704 bits: (2^31)^20 and 10^185 fit
    uint32_t w[N]{};
};

constexpr Big big_mul(const Big& a, const Big& b)
{
    uint64_t acc[Big::N]{};
    for (int i = 0; i < Big::N; ++i) {
        if (!a.w[i]) continue;
        uint64_t carry = 0;
        for (int j = 0; i + j < Big::N; ++j) {
            uint64_t t = uint64_t(a.w[i]) * b.w[j] + acc[i + j] + carry;
            acc[i + j] = uint32_t(t);
            carry = t >> 32;
        }
    }
    Big r;
    for (int i = 0; i < Big::N; ++i)
        r.w[i] = uint32_t(acc[i]);
    return r;
}

constexpr Big big_from(uint64_t v)
{
    Big r;
    r.w[0] = uint32_t(v);
    r.w[1] = uint32_t(v >> 32);
    return r;
}

constexpr Big big_pow(uint64_t base, int e)
{
    Big r = big_from(1), b = big_from(base);
    while (e) {
        if (e & 1) r = big_mul(r, b);
        e >>= 1;
        if (e) b = big_mul(b, b);
    }
    return r;
}

constexpr int big_cmp(const Big& a, const Big& b)
{
    for (int i = Big::N - 1; i >= 0; --i)
        if (a.w[i] != b.w[i]) return a.w[i] < b.w[i] ? -1 : 1;
    return 0;
}

// Smallest x with x^20 > 10^m.
constexpr uint32_t decibel_threshold(int m)
{
    long double r = 1.12L; // 10^(1/20) by Newton's method
    for (int i = 0; i < 60; ++i) {
        long double p = 1;
        for (int j = 0; j < 19; ++j)
            p *= r;
        r -= (p * r - 10) / (20 * p);
    }
    long double y = 1;
    for (int j = 0; j < m; ++j)
        y *= r;
    const Big ten = big_pow(10, m);
    uint64_t c = uint64_t(y);
    c = c > 2 ? c - 2 : 1;
    while (big_cmp(big_pow(c, 20), ten) <= 0)
        ++c;
    while (c > 1 && big_cmp(big_pow(c - 1, 20), ten) > 0)
        --c;
    return uint32_t(c);
}

// Thresholds for k = 12, 14, ..., 92 and then 93.
inline constexpr int kDbSteps = 42;
constexpr std::array<uint32_t, kDbSteps> make_db_ladder()
{
    std::array<uint32_t, kDbSteps> a{};
    for (int i = 0; i < kDbSteps - 1; ++i)
        a[i] = decibel_threshold(2 * (12 + 2 * i) - 1);
    a[kDbSteps - 1] = decibel_threshold(2 * 93 - 1);
    return a;
}

// ---- arctangents of k/64 as double pairs (hi + lo) ---------------------------
// Euler's series: atan x = x/(1+x^2) * sum (2n)!!/(2n+1)!! * (x^2/(1+x^2))^n;
// with x = k/64 every term is a product of small integer ratios.
inline constexpr int kAtanSteps = 64;
constexpr Fix atan_k64(uint32_t k)
{
    if (k == 0) return Fix{};
    const uint32_t den = kAtanSteps * kAtanSteps + k * k;
    Fix term = div_small(Fix::from_u64(uint64_t(kAtanSteps) * k), den), sum = term;
    for (uint32_t n = 1; n < 260; ++n) {
        term = div_small(mul_small(term, 2 * n * k * k), (2 * n + 1) * den);
        sum = add(sum, term);
    }
    return sum;
}

// Nearest double to a non-negative fixed value below 2^64 (ties are of no
// concern at this precision).
constexpr double fix_to_double(const Fix& a)
{
    int top = -1;
    for (int bit = 32 * Fix::L - 1; bit >= 0; --bit)
        if ((a.w[bit / 32] >> (bit % 32)) & 1u) {
            top = bit;
            break;
        }
    if (top < 0) return 0.0;
    const Fix s = shift(a, 63 - top); // leading bit to position 63 of limbs 0..1
    const uint64_t m = uint64_t(s.w[0]) | (uint64_t(s.w[1]) << 32);
    double d = double(m);
    int e = top - 63 - 32 * Fix::F;
    for (; e > 0; --e)
        d *= 2.0;
    for (; e < 0; ++e)
        d *= 0.5;
    return d;
}

// Exact fixed value of a non-negative double in the range of Fix.
constexpr Fix double_to_fix(double d)
{
    const uint64_t bits = std::bit_cast<uint64_t>(d);
    const int ex = int((bits >> 52) & 0x7FF);
    if (ex == 0) return Fix{};
    const uint64_t mant = (bits & ((uint64_t(1) << 52) - 1)) | (uint64_t(1) << 52);
    return shift(Fix::from_u64(mant), ex - 1075);
}

struct DoublePair {
    double hi, lo;
};

constexpr DoublePair split_fix(const Fix& v)
{
    const double hi = fix_to_double(v);
    const Fix h = double_to_fix(hi);
    if (cmp(v, h) >= 0) return {hi, fix_to_double(sub(v, h))};
    return {hi, -fix_to_double(sub(h, v))};
}

// atan(k/64) and its complement pi/2 - atan(k/64), each as hi + lo.
struct AtanTable {
    double hi[kAtanSteps + 1], lo[kAtanSteps + 1];
    double chi[kAtanSteps + 1], clo[kAtanSteps + 1];
    double pio2_hi, pio2_lo;
};

constexpr AtanTable make_atan_table()
{
    AtanTable t{};
    const Fix pio2 = mul_small(atan_k64(kAtanSteps), 2); // pi/2 = 2 atan(1)
    for (uint32_t k = 0; k <= kAtanSteps; ++k) {
        const Fix a = atan_k64(k);
        DoublePair p = split_fix(a), c = split_fix(sub(pio2, a));
        t.hi[k] = p.hi;
        t.lo[k] = p.lo;
        t.chi[k] = c.hi;
        t.clo[k] = c.lo;
    }
    DoublePair h = split_fix(pio2);
    t.pio2_hi = h.hi;
    t.pio2_lo = h.lo;
    return t;
}

} // namespace tavs::mathgen

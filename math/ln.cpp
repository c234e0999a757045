// tavsLn_32f, tavsLn_64f, tavsLn_64f32f and the in-place forms, and the sums
// of logarithms tavsSumLn_*.
//
// Ln goes element by element and notes the first special element; SumLn
// multiplies mantissas in blocks of 512 so that one logarithm serves a whole
// block, and stops at the first special element.
#include <cmath>

#include "internal/body.h"
#include "internal/check.h"
#include "internal/math_common.h"

namespace {

using namespace tavs::math;

const double kLn2 = 0.6931471805599453;

// ---- Ln, element by element ---------------------------------------------------
// Sign bit set (-0 included): the negative quiet NaN and WarnLnNegative; a
// NaN stays a quiet NaN; zero gives -Inf and WarnLnZero; the rest is the
// math library's logarithm in double.
template <class S, class D> inline D ln_one(S x, FirstWarning& w)
{
    if (std::signbit(x)) {
        w.note(WarnLnNegative);
        return neg_qnan<D>();
    }
    if (x != x) return D(x + x);
    if (x == 0) {
        w.note(WarnLnZero);
        return -INFINITY;
    }
    return D(std::log(double(x)));
}

template <class S, class D> Status ln_simple(const S* src, D* dst, int len)
{
    if (Status st = tavs::check_ptrs_len(len, src, dst)) return st;
    FirstWarning w;
    for (int i = 0; i < len; ++i)
        dst[i] = ln_one<S, D>(src[i], w);
    return w.st;
}

// ---- Ln_64f32f, the batched form ------------------------------------------------
// ln x = e ln2 + ln m with the exponent e taken from the high word and m in
// [0.707, 1.414); ln m = 2 atanh(s), s = (m - 1)/(m + 1), |s| <= 0.1716, by
// its odd series (the cut-off term is below 1e-14 relative, far under the
// float result's precision). A zero exponent field (zero or denormal) takes
// the zero case.
inline float ln64_batched_one(double x, FirstWarning& w)
{
    const uint64_t b = bits_of(x);
    const uint32_t hi = uint32_t(b >> 32);
    if (hi & 0x80000000u) {
        w.note(WarnLnNegative);
        return float_of(kNegQNaN32);
    }
    const uint32_t ex = hi >> 20;
    if (ex == 0x7FF) return float(x + x); // +Inf stays, a NaN stays quiet
    if (ex == 0) {
        w.note(WarnLnZero);
        return -INFINITY;
    }
    int e = int(ex) - 1023;
    double m = double_of((b & 0x000FFFFFFFFFFFFFull) | 0x3FF0000000000000ull);
    if ((hi & 0xFFFFFu) >= 0x6A09Eu) { // m above sqrt(2): use m/2
        m *= 0.5;
        e += 1;
    }
    const double s = (m - 1.0) / (m + 1.0), z = s * s;
    double p = 1.0 / 17;
    p = 1.0 / 15 + z * p;
    p = 1.0 / 13 + z * p;
    p = 1.0 / 11 + z * p;
    p = 1.0 / 9 + z * p;
    p = 1.0 / 7 + z * p;
    p = 1.0 / 5 + z * p;
    p = 1.0 / 3 + z * p;
    const double lnm = 2.0 * s + 2.0 * s * (z * p);
    return float(double(e) * kLn2 + lnm);
}

Status ln_64f32f(const Tav64f* src, Tav32f* dst, int len)
{
    if (len < 4) return ln_simple(src, dst, len);
    if (Status st = tavs::check_ptrs_len(len, src, dst)) return st;
    MathFpScope scope;
    FirstWarning w;
    int i = 0;
    for (; i + 4 <= len; i += 4) {
        float out[4];
        for (int k = 0; k < 4; ++k)
            out[k] = ln64_batched_one(src[i + k], w);
        for (int k = 0; k < 4; ++k)
            dst[i + k] = out[k];
    }
    for (; i < len; ++i)
        dst[i] = ln64_batched_one(src[i], w);
    return w.st;
}

// ---- SumLn ------------------------------------------------------------------------
// What one element contributes: its exponent offset and its mantissa, or a
// stop with the value to store and the status.
struct Split {
    bool stop;
    Status st;
    double stopValue;
    int exp;
    double mant;
};

// Float elements: exponent offset (bits - 0x3F000000) >> 23, mantissa forced
// into [0.5, 1).
inline Split split32(float f)
{
    const uint32_t b = bits_of(f);
    if (b & 0x80000000u) return {true, WarnLnNegative, double_of(kNegQNaN64), 0, 0};
    if (b == 0) return {true, WarnLnZero, -INFINITY, 0, 0};
    if (b > 0x7F800000u) return {true, StatusOk, double(f + f), 0, 0};
    const int e = int32_t(b - 0x3F000000u) >> 23;
    return {false, StatusOk, 0, e, double(float_of((b & 0x007FFFFFu) | 0x3F000000u))};
}

// Double elements: exponent offset (high word - 0x3FF00000) >> 20, mantissa
// forced into [1, 2).
inline Split split64(double d)
{
    const uint64_t b = bits_of(d);
    if (b >> 63) return {true, WarnLnNegative, double_of(kNegQNaN64), 0, 0};
    if (b == 0) return {true, WarnLnZero, -INFINITY, 0, 0};
    if (b > 0x7FF0000000000000ull) return {true, StatusOk, d + d, 0, 0};
    const int e = int32_t(uint32_t(b >> 32) - 0x3FF00000u) >> 20;
    return {false, StatusOk, 0, e, double_of((b & 0x000FFFFFFFFFFFFFull) | 0x3FF0000000000000ull)};
}

// 512 mantissas in [0.5, 2) multiply in double without leaving its range.
constexpr int kSumLnBlock = 512;

template <class S, class D, class SplitFn> Status sum_ln(const S* src, int len, D* sum, SplitFn split)
{
    if (Status st = tavs::check_ptrs_len(len, src, sum)) return st;
    double total = 0.0;
    for (int start = 0; start < len; start += kSumLnBlock) {
        const int end = len - start > kSumLnBlock ? start + kSumLnBlock : len;
        double prod = 1.0;
        int64_t esum = 0;
        for (int i = start; i < end; ++i) {
            const Split s = split(src[i]);
            if (s.stop) {
                *sum = D(s.stopValue);
                return s.st;
            }
            esum += s.exp;
            prod *= s.mant;
        }
        total += std::log(prod) + double(esum) * kLn2;
    }
    *sum = D(total);
    return StatusOk;
}

} // namespace

extern "C" {
Status tavsLn_32f_body(const Tav32f* src, Tav32f* dst, int len) { return ln_simple(src, dst, len); }
Status tavsLn_32f_I_body(Tav32f* srcDst, int len) { return ln_simple<Tav32f, Tav32f>(srcDst, srcDst, len); }
Status tavsLn_64f_body(const Tav64f* src, Tav64f* dst, int len) { return ln_simple(src, dst, len); }
Status tavsLn_64f_I_body(Tav64f* srcDst, int len) { return ln_simple<Tav64f, Tav64f>(srcDst, srcDst, len); }
Status tavsLn_64f32f_body(const Tav64f* src, Tav32f* dst, int len) { return ln_64f32f(src, dst, len); }

Status tavsSumLn_32f_body(const Tav32f* src, int len, Tav32f* sum) { return sum_ln(src, len, sum, split32); }
Status tavsSumLn_64f_body(const Tav64f* src, int len, Tav64f* sum) { return sum_ln(src, len, sum, split64); }
Status tavsSumLn_32f64f_body(const Tav32f* src, int len, Tav64f* sum)
{
    return sum_ln(src, len, sum, split32);
}
Status tavsSumLn_16s32f_body(const Tav16s* src, int len, Tav32f* sum)
{
    return sum_ln(src, len, sum, [](Tav16s x) { return split32(float(x)); });
}
}

// tavsDiv_*: dst = src2 / src1, src1 being the divisor; the _I forms call the
// out-of-place body with the vector twice. Integer quotients are formed in
// floating point (16-bit types in 32f, 32-bit in 64f) and rounded once. A
// zero divisor never stops the loop: its element gets the documented value
// and the call returns WarnDivByZero once every element is written.
#include "internal/body.h"
#include "internal/constant_kernels.h"

using namespace tavs;

namespace {

inline Status warn_if(bool divByZero) { return divByZero ? WarnDivByZero : StatusOk; }

// ---- real floats ----------------------------------------------------------------
template <class F> inline F div_elem(F d, F n, bool& z)
{
    if (d == F(0)) {
        z = true;
        return float_div_by_zero(n);
    }
    return n / d;
}

// 32f in SSE2: lanes whose divisor is zero take +Inf, -Inf or the NaN by the
// dividend's sign; the other lanes are the plain IEEE quotient, as in the
// scalar loop.
bool div32f_kernel(const float* d, const float* n, float* dst, int len)
{
    bool z = false;
    int i = 0;
    if ((reinterpret_cast<uintptr_t>(dst) & 3) == 0)
        for (; i < len && (reinterpret_cast<uintptr_t>(dst + i) & 15) != 0; ++i) dst[i] = div_elem(d[i], n[i], z);
    if ((reinterpret_cast<uintptr_t>(dst + i) & 15) == 0) {
        const __m128 zero = _mm_setzero_ps();
        const __m128 pinf = _mm_set1_ps(std::numeric_limits<float>::infinity());
        const __m128 ninf = _mm_set1_ps(-std::numeric_limits<float>::infinity());
        const __m128 nan = _mm_set1_ps(neg_qnan_32f());
        for (; i + 4 <= len; i += 4) {
            const __m128 dv = _mm_loadu_ps(d + i), nv = _mm_loadu_ps(n + i);
            __m128 q = _mm_div_ps(nv, dv);
            const __m128 zm = _mm_cmpeq_ps(dv, zero);
            if (_mm_movemask_ps(zm) != 0) {
                const __m128 pos = _mm_cmpgt_ps(nv, zero), neg = _mm_cmplt_ps(nv, zero);
                __m128 sp = _mm_or_ps(_mm_and_ps(pos, pinf), _mm_and_ps(neg, ninf));
                sp = _mm_or_ps(sp, _mm_andnot_ps(_mm_or_ps(pos, neg), nan));
                q = _mm_or_ps(_mm_and_ps(zm, sp), _mm_andnot_ps(zm, q));
                z = true;
            }
            _mm_store_ps(dst + i, q);
        }
    }
    for (; i < len; ++i) dst[i] = div_elem(d[i], n[i], z);
    return z;
}

template <class F> Status float_member(const F* d, const F* n, F* dst, int len)
{
    if (Status st = check_ptrs_len(len, d, n, dst)) return st;
    bool z = false;
    if constexpr (sizeof(F) == 4) {
        z = div32f_kernel(d, n, dst, len);
    } else {
        for (int i = 0; i < len; ++i) dst[i] = div_elem(d[i], n[i], z);
    }
    return warn_if(z);
}

// ---- complex floats: m = |d|^2, r = 1 / m taken once ---------------------------
template <class C> Status cplx_member(const C* d, const C* n, C* dst, int len)
{
    using F = part_t<C>;
    if (Status st = check_ptrs_len(len, d, n, dst)) return st;
    bool z = false;
    for (int i = 0; i < len; ++i) {
        const C a = d[i], b = n[i];
        const F m = a.re * a.re + a.im * a.im;
        if (m == F(0)) { // an underflowing m counts as zero
            dst[i].re = dst[i].im = neg_qnan<F>();
            z = true;
            continue;
        }
        const F r = F(1) / m;
        dst[i].re = (a.re * b.re + a.im * b.im) * r;
        dst[i].im = r * (a.re * b.im - a.im * b.re);
    }
    return warn_if(z);
}

// ---- 16s: the quotient in 32f, rounded through an offset -------------------------
// q = n * f / d; inside -32768..32767 it is rounded as t = (q + 32768) + 0.5,
// r = trunc(t), one down when r is odd and t is integral, minus 32768 (the
// float sum decides what is a tie); outside, -32768 for a negative q and
// 32767 for anything else. For s > 0 q is always inside.
inline Tav16s div16s_elem(int32_t d, int32_t n, float f, bool& z)
{
    if (d == 0) {
        z = true;
        return int_div_by_zero<Tav16s>(n);
    }
    const float q = float(n) * f / float(d);
    if (!(q >= -32768.0f && q <= 32767.0f)) return q < -32768.0f ? Tav16s(-32768) : Tav16s(32767);
    const float t = q + 32768.0f + 0.5f;
    int32_t r = int32_t(t);
    if ((r & 1) && t == float(r)) --r;
    return Tav16s(r - 32768);
}

// SSE2, eight elements a step. Limiting q to -32768..32767 first (min
// before max, so a NaN becomes 32767) gives exactly the out-of-range results
// of the scalar rule, since the offset rounding maps the two limits to
// themselves. Zero divisors are patched in 16-bit lanes afterwards.
bool div16s_kernel(const Tav16s* d, const Tav16s* n, Tav16s* dst, int len, float f)
{
    bool z = false;
    int i = 0;
    if ((reinterpret_cast<uintptr_t>(dst) & 1) == 0)
        for (; i < len && (reinterpret_cast<uintptr_t>(dst + i) & 15) != 0; ++i) dst[i] = div16s_elem(d[i], n[i], f, z);
    if ((reinterpret_cast<uintptr_t>(dst + i) & 15) == 0) {
        const __m128 fv = _mm_set1_ps(f);
        const __m128 lo = _mm_set1_ps(-32768.0f), hi = _mm_set1_ps(32767.0f);
        const __m128 off = _mm_set1_ps(32768.0f), half = _mm_set1_ps(0.5f);
        const __m128i off_i = _mm_set1_epi32(32768), zero = _mm_setzero_si128();
        const __m128i max16 = _mm_set1_epi16(32767), min16 = _mm_set1_epi16(-32768);
        auto lanes = [&](__m128i dv, __m128i nv) {
            __m128 q = _mm_div_ps(_mm_mul_ps(_mm_cvtepi32_ps(nv), fv), _mm_cvtepi32_ps(dv));
            q = _mm_max_ps(_mm_min_ps(q, hi), lo);
            const __m128 t = _mm_add_ps(_mm_add_ps(q, off), half);
            __m128i r = _mm_cvttps_epi32(t);
            // One down where r is odd and t integral (both masks are -1 there).
            const __m128i odd = _mm_srai_epi32(_mm_slli_epi32(r, 31), 31);
            const __m128i whole = _mm_castps_si128(_mm_cmpeq_ps(t, _mm_cvtepi32_ps(r)));
            r = _mm_add_epi32(r, _mm_and_si128(odd, whole));
            return _mm_sub_epi32(r, off_i);
        };
        for (; i + 8 <= len; i += 8) {
            const __m128i dv = _mm_loadu_si128(reinterpret_cast<const __m128i*>(d + i));
            const __m128i nv = _mm_loadu_si128(reinterpret_cast<const __m128i*>(n + i));
            const __m128i a = lanes(_mm_srai_epi32(_mm_unpacklo_epi16(dv, dv), 16), _mm_srai_epi32(_mm_unpacklo_epi16(nv, nv), 16));
            const __m128i b = lanes(_mm_srai_epi32(_mm_unpackhi_epi16(dv, dv), 16), _mm_srai_epi32(_mm_unpackhi_epi16(nv, nv), 16));
            __m128i res = _mm_packs_epi32(a, b);
            const __m128i zm = _mm_cmpeq_epi16(dv, zero);
            if (_mm_movemask_epi8(zm) != 0) {
                const __m128i sg = _mm_or_si128(_mm_and_si128(_mm_cmpgt_epi16(nv, zero), max16),
                                                _mm_and_si128(_mm_cmplt_epi16(nv, zero), min16));
                res = _mm_or_si128(_mm_and_si128(zm, sg), _mm_andnot_si128(zm, res));
                z = true;
            }
            _mm_store_si128(reinterpret_cast<__m128i*>(dst + i), res);
        }
    }
    for (; i < len; ++i) dst[i] = div16s_elem(d[i], n[i], f, z);
    return z;
}

// ---- 8u and 16u: the quotient in floating point with the tie decided on it ----
// The rounding of these members is ours to fix: the exact quotient, rounded
// once to nearest-even. A quotient of 16-bit operands lies at least
// 1 / (2 d) from a tie unless it is one (ties are representable): for 8u the
// float quotient (below 2^8 where it matters, error under 2^-16) already
// keeps that distance; 16u needs the double quotient (below 2^16, error under
// 2^-36), since a float one can round onto a tie at negative scales.
// Beyond the scale limits every quotient is 0 (above), or every non-zero
// dividend saturates (below); a zero divisor gives the maximum or 0 there as
// everywhere, with the warning.
template <class T, class F> Status unsigned_member(const T* d, const T* n, T* dst, int len, int s, int zeroFrom, int signTo)
{
    if (Status st = check_ptrs_len(len, d, n, dst)) return st;
    bool z = false;
    const F maxv = F(lim_max<T>);
    const F f = pow2_steps<F>(s);
    for (int i = 0; i < len; ++i) {
        if (d[i] == 0) {
            z = true;
            dst[i] = int_div_by_zero<T>(n[i]);
        } else if (s >= zeroFrom) {
            dst[i] = 0;
        } else if (s <= signTo) {
            dst[i] = sign_sat<T>(n[i]);
        } else {
            const F q = F(n[i]) * f / F(d[i]);
            dst[i] = q >= maxv ? T(lim_max<T>) : T(round_even_exact(q));
        }
    }
    return warn_if(z);
}

// ---- 32s and 32s16s: the quotient in 64f -----------------------------------------
// Ties to even by comparing the fraction of the double quotient with one
// half: for a 16s result that is the exact rounding; for a 32s result at a
// negative scale the double quotient itself decides what counts as a tie.
// From zeroFrom up every quotient rounds to 0; at signTo and below every
// non-zero quotient saturates by its sign.
template <class N, class D, class R> Status wide_member(const D* d, const N* n, R* dst, int len, int s, int zeroFrom, int signTo)
{
    if (Status st = check_ptrs_len(len, d, n, dst)) return st;
    bool z = false;
    const double f = pow2_steps<double>(s);
    const double top = double(lim_max<R>) + 1.0, bottom = double(lim_min<R>) - 1.0;
    for (int i = 0; i < len; ++i) {
        const int64_t a = n[i], b = d[i];
        if (b == 0) {
            z = true;
            dst[i] = int_div_by_zero<R>(a);
        } else if (s >= zeroFrom) {
            dst[i] = 0;
        } else if (s <= signTo) {
            dst[i] = sign_sat<R>(a == 0 ? 0 : ((a < 0) != (b < 0) ? -1 : 1));
        } else {
            const double q = double(a) * f / double(b);
            dst[i] = q >= top ? R(lim_max<R>) : q <= bottom ? R(lim_min<R>) : sat<R>(round_even_exact(q));
        }
    }
    return warn_if(z);
}

// ---- 16sc: formed exactly ------------------------------------------------------------
// The order of operations of this member is ours to choose; the quotient is
// computed exactly in integers and rounded once, which is the most exact
// result the scale rule allows (zero divisor: see cdiv16sc_exact).
Status cplx16_member(const Tav16sc* d, const Tav16sc* n, Tav16sc* dst, int len, int s)
{
    if (Status st = check_ptrs_len(len, d, n, dst)) return st;
    bool z = false;
    for (int i = 0; i < len; ++i) dst[i] = cdiv16sc_exact(n[i], d[i], s, z);
    return warn_if(z);
}

} // namespace

extern "C" {

Status tavsDiv_32f_body(const Tav32f* s1, const Tav32f* s2, Tav32f* dst, int len) { return float_member(s1, s2, dst, len); }
Status tavsDiv_32f_I_body(const Tav32f* src, Tav32f* sd, int len) { return tavsDiv_32f_body(src, sd, sd, len); }
Status tavsDiv_64f_body(const Tav64f* s1, const Tav64f* s2, Tav64f* dst, int len) { return float_member(s1, s2, dst, len); }
Status tavsDiv_64f_I_body(const Tav64f* src, Tav64f* sd, int len) { return tavsDiv_64f_body(src, sd, sd, len); }
Status tavsDiv_32fc_body(const Tav32fc* s1, const Tav32fc* s2, Tav32fc* dst, int len) { return cplx_member(s1, s2, dst, len); }
Status tavsDiv_32fc_I_body(const Tav32fc* src, Tav32fc* sd, int len) { return tavsDiv_32fc_body(src, sd, sd, len); }
// 64fc: the formula of 32fc in double.
Status tavsDiv_64fc_body(const Tav64fc* s1, const Tav64fc* s2, Tav64fc* dst, int len) { return cplx_member(s1, s2, dst, len); }
Status tavsDiv_64fc_I_body(const Tav64fc* src, Tav64fc* sd, int len) { return tavsDiv_64fc_body(src, sd, sd, len); }

Status tavsDiv_16s_Sfs_body(const Tav16s* s1, const Tav16s* s2, Tav16s* dst, int len, int sf)
{
    if (Status st = check_ptrs_len(len, s1, s2, dst)) return st;
    return warn_if(div16s_kernel(s1, s2, dst, len, pow2_steps<float>(sf)));
}
Status tavsDiv_16s_ISfs_body(const Tav16s* src, Tav16s* sd, int len, int sf) { return tavsDiv_16s_Sfs_body(src, sd, sd, len, sf); }

// 8u: 0 above 8, saturation below -15.
Status tavsDiv_8u_Sfs_body(const Tav8u* s1, const Tav8u* s2, Tav8u* dst, int len, int sf) { return unsigned_member<Tav8u, float>(s1, s2, dst, len, sf, 9, -16); }
Status tavsDiv_8u_ISfs_body(const Tav8u* src, Tav8u* sd, int len, int sf) { return tavsDiv_8u_Sfs_body(src, sd, sd, len, sf); }
// 16u: 0 from 17 (65535 / 2^17 is below one half); from -32 down a non-zero
// dividend over any divisor reaches 65536, so it saturates. Both limits are
// exact: they give what the arithmetic gives.
Status tavsDiv_16u_Sfs_body(const Tav16u* s1, const Tav16u* s2, Tav16u* dst, int len, int sf) { return unsigned_member<Tav16u, double>(s1, s2, dst, len, sf, 17, -32); }
Status tavsDiv_16u_ISfs_body(const Tav16u* src, Tav16u* sd, int len, int sf) { return tavsDiv_16u_Sfs_body(src, sd, sd, len, sf); }

// 32s: 0 above 32, saturation by the quotient's sign below -62.
Status tavsDiv_32s_Sfs_body(const Tav32s* s1, const Tav32s* s2, Tav32s* dst, int len, int sf) { return wide_member(s1, s2, dst, len, sf, 33, -63); }
Status tavsDiv_32s_ISfs_body(const Tav32s* src, Tav32s* sd, int len, int sf) { return tavsDiv_32s_Sfs_body(src, sd, sd, len, sf); }
// 32s16s: 0 above 31, saturation by sign below -29.
Status tavsDiv_32s16s_Sfs_body(const Tav16s* s1, const Tav32s* s2, Tav16s* dst, int len, int sf) { return wide_member(s1, s2, dst, len, sf, 32, -30); }

Status tavsDiv_16sc_Sfs_body(const Tav16sc* s1, const Tav16sc* s2, Tav16sc* dst, int len, int sf) { return cplx16_member(s1, s2, dst, len, sf); }
Status tavsDiv_16sc_ISfs_body(const Tav16sc* src, Tav16sc* sd, int len, int sf) { return tavsDiv_16sc_Sfs_body(src, sd, sd, len, sf); }

} // extern "C"

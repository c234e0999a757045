// tavsAddC_*, tavsSubC_*, tavsSubCRev_*: one operand is a constant.
// AddC: dst = src + value; SubC: dst = src - value; SubCRev: dst = value - src.
// Integer forms take the exact sum or difference in 64 bits and scale it once
// (ties to even, saturation); the short paths at the scale limits and the
// shortcuts on the constant give the same values the arithmetic would.
#include "internal/body.h"
#include "internal/constant_kernels.h"

using namespace tavs;

namespace {

enum class Op { Add, Sub, SubRev };

template <Op op> inline int64_t apply(int64_t x, int64_t v)
{
    if constexpr (op == Op::Add) return x + v;
    else if constexpr (op == Op::Sub) return x - v;
    else return v - x;
}

// Scale limits of the sums and differences: zero fill from zeroFrom, sign
// only at signTo and below.
constexpr ScaleLimits kAdd8u{10, -8}, kSub8u{9, -8};
constexpr ScaleLimits kAdd16u{18, -16}, kSub16u{17, -16};
constexpr ScaleLimits k16s{17, -16}, k32s{33, -31};

// ---- integer kernels -----------------------------------------------------------
template <class T, Op op> void int_scalar(const T* src, T v, T* dst, int len, int s, ScalePath path)
{
    if (path == ScalePath::SignOnly) {
        for (int i = 0; i < len; ++i) dst[i] = sign_sat<T>(apply<op>(src[i], v));
        return;
    }
    for (int i = 0; i < len; ++i) dst[i] = scale_sum<T>(apply<op>(src[i], v), s);
}

// 16s in SSE2: the exact sum in 32-bit lanes (|e| <= 65536, so the rounding
// bias and a left shift up to 15 stay inside 32 bits), packed with signed
// saturation. The sign-only path shifts the sign (-1, 0, 1) by 15, which the
// pack saturates to the limits.
template <Op op> inline __m128i e32(__m128i x, __m128i v)
{
    if constexpr (op == Op::Add) return _mm_add_epi32(x, v);
    else if constexpr (op == Op::Sub) return _mm_sub_epi32(x, v);
    else return _mm_sub_epi32(v, x);
}

inline __m128i scale_lanes(__m128i e, int s, ScalePath path)
{
    if (path == ScalePath::SignOnly) {
        const __m128i zero = _mm_setzero_si128();
        __m128i pos = _mm_srli_epi32(_mm_cmpgt_epi32(e, zero), 31);
        __m128i neg = _mm_srli_epi32(_mm_cmplt_epi32(e, zero), 31);
        return _mm_slli_epi32(_mm_sub_epi32(pos, neg), 15);
    }
    if (s > 0) {
        const __m128i cnt = _mm_cvtsi32_si128(s);
        const __m128i bias = _mm_set1_epi32((1 << (s - 1)) - 1);
        __m128i odd = _mm_and_si128(_mm_sra_epi32(e, cnt), _mm_set1_epi32(1));
        return _mm_sra_epi32(_mm_add_epi32(_mm_add_epi32(e, bias), odd), cnt);
    }
    if (s < 0) return _mm_sll_epi32(e, _mm_cvtsi32_si128(-s));
    return e;
}

template <Op op> void int16s_kernel(const Tav16s* src, Tav16s v, Tav16s* dst, int len, int s, ScalePath path)
{
    int i = 0;
    if ((reinterpret_cast<uintptr_t>(dst) & 1) == 0)
        for (; i < len && (reinterpret_cast<uintptr_t>(dst + i) & 15) != 0; ++i) int_scalar<Tav16s, op>(src + i, v, dst + i, 1, s, path);
    if ((reinterpret_cast<uintptr_t>(dst + i) & 15) == 0) {
        const __m128i vv = _mm_set1_epi32(v);
        for (; i + 8 <= len; i += 8) {
            __m128i x = _mm_loadu_si128(reinterpret_cast<const __m128i*>(src + i));
            // Sign-extend the eight elements to two groups of 32-bit lanes.
            __m128i lo = _mm_srai_epi32(_mm_unpacklo_epi16(x, x), 16);
            __m128i hi = _mm_srai_epi32(_mm_unpackhi_epi16(x, x), 16);
            lo = scale_lanes(e32<op>(lo, vv), s, path);
            hi = scale_lanes(e32<op>(hi, vv), s, path);
            _mm_store_si128(reinterpret_cast<__m128i*>(dst + i), _mm_packs_epi32(lo, hi));
        }
    }
    int_scalar<Tav16s, op>(src + i, v, dst + i, len - i, s, path);
}

template <class T, Op op> void int_kernel(const T* src, T v, T* dst, int len, int s, ScalePath path)
{
    if constexpr (sizeof(T) == 2 && std::is_signed_v<T>) int16s_kernel<op>(src, v, dst, len, s, path);
    else int_scalar<T, op>(src, v, dst, len, s, path);
}

// The body of a real integer member after the pointer and length checks.
// copyAtZero: value 0 at scale 0 is a copy. fillMax: below the sign limit a
// non-zero value makes every sum positive, so dst is filled with the maximum.
template <class T, Op op>
Status int_member(const T* src, T v, T* dst, int len, int s, ScaleLimits lim, bool copyAtZero, bool fillMax)
{
    if (Status st = check_ptrs_len(len, src, dst)) return st;
    const ScalePath path = scale_path(s, lim);
    if (fillMax && path == ScalePath::SignOnly && v != 0) return fill_elems(dst, len, static_cast<T>(lim_max<T>));
    if (copyAtZero && v == 0 && s == 0) return copy_shortcut(src, dst, len);
    if (path == ScalePath::Zero) return zero_fill(dst, len);
    int_kernel<T, op>(src, v, dst, len, s, path);
    return StatusOk;
}

// Complex integer members: the parts are scaled independently.
template <class C, Op op> Status cplx_member(const C* src, C v, C* dst, int len, int s, ScaleLimits lim)
{
    using P = part_t<C>;
    if (Status st = check_ptrs_len(len, src, dst)) return st;
    const ScalePath path = scale_path(s, lim);
    if (path == ScalePath::Zero) return zero_fill(dst, len);
    for (int i = 0; i < len; ++i) {
        const int64_t re = apply<op>(src[i].re, v.re), im = apply<op>(src[i].im, v.im);
        if (path == ScalePath::SignOnly) {
            dst[i].re = sign_sat<P>(re);
            dst[i].im = sign_sat<P>(im);
        } else {
            dst[i].re = scale_sum<P>(re, s);
            dst[i].im = scale_sum<P>(im, s);
        }
    }
    return StatusOk;
}

// ---- float members --------------------------------------------------------------
template <class F, Op op> struct FloatOp {
    using VO = VecOf<F>;
    F v;
    typename VO::V vv;
    explicit FloatOp(F value) : v(value), vv(VO::set1(value)) {}
    F scalar(F x) const
    {
        if constexpr (op == Op::Add) return x + v;
        else if constexpr (op == Op::Sub) return x - v;
        else return v - x;
    }
    typename VO::V vec(typename VO::V x) const
    {
        if constexpr (op == Op::Add) return VO::add(x, vv);
        else if constexpr (op == Op::Sub) return VO::sub(x, vv);
        else return VO::sub(vv, x);
    }
};

// copyAtZero: AddC and SubC out of place copy src for a value equal to 0
// (either sign), so NaN payloads and signed zeros pass unchanged. The in-place
// forms have no such shortcut and do the arithmetic.
template <class F, Op op> Status float_member(const F* src, F v, F* dst, int len, bool copyAtZero)
{
    if (Status st = check_ptrs_len(len, src, dst)) return st;
    if (copyAtZero && v == F(0)) return copy_shortcut(src, dst, len);
    float_const_loop(src, dst, len, FloatOp<F, op>(v));
    return StatusOk;
}

template <class C, Op op> Status fcplx_member(const C* src, C v, C* dst, int len)
{
    if (Status st = check_ptrs_len(len, src, dst)) return st;
    for (int i = 0; i < len; ++i) {
        const FloatOp<part_t<C>, op> re(v.re), im(v.im);
        dst[i].re = re.scalar(src[i].re);
        dst[i].im = im.scalar(src[i].im);
    }
    return StatusOk;
}

// ---- 64-bit members with a rounding mode ---------------------------------------
// The quotient e / 2^s (1 <= s <= 127) rounded by rndMode: 0 toward zero, 1
// ties to even, any other value half away from zero.
inline __int128 round_shift128(__int128 e, int s, int rndMode)
{
    const unsigned __int128 mask = (static_cast<unsigned __int128>(1) << s) - 1;
    const unsigned __int128 half = static_cast<unsigned __int128>(1) << (s - 1);
    __int128 q = e >> s; // floor
    const unsigned __int128 rem = static_cast<unsigned __int128>(e) & mask;
    if (rem == 0) return q;
    if (rndMode == RoundTowardZero) return e < 0 ? q + 1 : q;
    if (rem > half) return q + 1;
    if (rem < half) return q;
    if (rndMode == RoundHalfEven) return (q & 1) ? q + 1 : q;
    return e < 0 ? q : q + 1;
}

template <class T> constexpr __int128 max128 = static_cast<__int128>(std::numeric_limits<T>::max());
template <class T> constexpr __int128 min128 = static_cast<__int128>(std::numeric_limits<T>::min());
template <class T> inline T sat128(__int128 v) { return v > max128<T> ? std::numeric_limits<T>::max() : v < min128<T> ? std::numeric_limits<T>::min() : static_cast<T>(v); }

// The sum at 64-bit width, saturated; at scale 1 it is used unsaturated, the
// halving taking it back into range without loss.
template <class T> inline __int128 sum64(T x, T v, bool exact)
{
    const __int128 e = static_cast<__int128>(x) + static_cast<__int128>(v);
    return exact ? e : static_cast<__int128>(sat128<T>(e));
}

// Scale 63 and above: the saturated sum is scaled exactly by the mode up to
// 65 (only a 64u sum can still round to 1 at 64, and -2^63 to -1 at 64 when
// ties go away from zero); from 66 every sum gives 0, so dst is zero-filled.
// Left shifts test the saturated sum against the limits shifted right and
// saturate; below -62 the sign alone decides.
template <class T> Status addc64_member(const T* src, T v, T* dst, int len, int s, int rndMode)
{
    if (any_null(src, dst)) return ErrNullPtr;
    // The length is read as unsigned: only 0 is refused, a negative count is
    // a very long vector.
    const uint32_t n = static_cast<uint32_t>(len);
    if (n == 0) return ErrSize;
    if (s >= 66) {
        for (uint32_t i = 0; i < n; ++i) dst[i] = 0;
        return StatusOk;
    }
    for (uint32_t i = 0; i < n; ++i) {
        const __int128 e = sum64(src[i], v, s == 1);
        if (s > 0) {
            dst[i] = sat128<T>(round_shift128(e, s, rndMode));
        } else if (s == 0) {
            dst[i] = static_cast<T>(e);
        } else if (s < -62) {
            dst[i] = e == 0 ? T(0) : e > 0 ? std::numeric_limits<T>::max() : std::numeric_limits<T>::min();
        } else {
            dst[i] = sat128<T>(e * (static_cast<__int128>(1) << -s)); // |e| <= 2^64, shift <= 62
        }
    }
    return StatusOk;
}

} // namespace

extern "C" {

// ---- AddC -------------------------------------------------------------------------
Status tavsAddC_8u_Sfs_body(const Tav8u* src, Tav8u v, Tav8u* dst, int len, int sf) { return int_member<Tav8u, Op::Add>(src, v, dst, len, sf, kAdd8u, true, true); }
Status tavsAddC_8u_ISfs_body(Tav8u v, Tav8u* sd, int len, int sf) { return int_member<Tav8u, Op::Add>(sd, v, sd, len, sf, kAdd8u, false, true); }
Status tavsAddC_16s_I_body(Tav16s v, Tav16s* sd, int len) { return int_member<Tav16s, Op::Add>(sd, v, sd, len, 0, k16s, false, false); }
Status tavsAddC_16s_Sfs_body(const Tav16s* src, Tav16s v, Tav16s* dst, int len, int sf) { return int_member<Tav16s, Op::Add>(src, v, dst, len, sf, k16s, true, false); }
Status tavsAddC_16s_ISfs_body(Tav16s v, Tav16s* sd, int len, int sf) { return int_member<Tav16s, Op::Add>(sd, v, sd, len, sf, k16s, false, false); }
Status tavsAddC_16u_Sfs_body(const Tav16u* src, Tav16u v, Tav16u* dst, int len, int sf) { return int_member<Tav16u, Op::Add>(src, v, dst, len, sf, kAdd16u, true, true); }
Status tavsAddC_16u_ISfs_body(Tav16u v, Tav16u* sd, int len, int sf) { return int_member<Tav16u, Op::Add>(sd, v, sd, len, sf, kAdd16u, false, true); }
Status tavsAddC_32s_Sfs_body(const Tav32s* src, Tav32s v, Tav32s* dst, int len, int sf) { return int_member<Tav32s, Op::Add>(src, v, dst, len, sf, k32s, true, false); }
Status tavsAddC_32s_ISfs_body(Tav32s v, Tav32s* sd, int len, int sf) { return int_member<Tav32s, Op::Add>(sd, v, sd, len, sf, k32s, false, false); }
Status tavsAddC_16sc_Sfs_body(const Tav16sc* src, Tav16sc v, Tav16sc* dst, int len, int sf) { return cplx_member<Tav16sc, Op::Add>(src, v, dst, len, sf, k16s); }
Status tavsAddC_16sc_ISfs_body(Tav16sc v, Tav16sc* sd, int len, int sf) { return cplx_member<Tav16sc, Op::Add>(sd, v, sd, len, sf, k16s); }
Status tavsAddC_32sc_Sfs_body(const Tav32sc* src, Tav32sc v, Tav32sc* dst, int len, int sf) { return cplx_member<Tav32sc, Op::Add>(src, v, dst, len, sf, k32s); }
Status tavsAddC_32sc_ISfs_body(Tav32sc v, Tav32sc* sd, int len, int sf) { return cplx_member<Tav32sc, Op::Add>(sd, v, sd, len, sf, k32s); }
Status tavsAddC_32f_body(const Tav32f* src, Tav32f v, Tav32f* dst, int len) { return float_member<Tav32f, Op::Add>(src, v, dst, len, true); }
Status tavsAddC_32f_I_body(Tav32f v, Tav32f* sd, int len) { return float_member<Tav32f, Op::Add>(sd, v, sd, len, false); }
Status tavsAddC_64f_body(const Tav64f* src, Tav64f v, Tav64f* dst, int len) { return float_member<Tav64f, Op::Add>(src, v, dst, len, true); }
Status tavsAddC_64f_I_body(Tav64f v, Tav64f* sd, int len) { return float_member<Tav64f, Op::Add>(sd, v, sd, len, false); }
Status tavsAddC_32fc_body(const Tav32fc* src, Tav32fc v, Tav32fc* dst, int len) { return fcplx_member<Tav32fc, Op::Add>(src, v, dst, len); }
Status tavsAddC_32fc_I_body(Tav32fc v, Tav32fc* sd, int len) { return fcplx_member<Tav32fc, Op::Add>(sd, v, sd, len); }
Status tavsAddC_64fc_body(const Tav64fc* src, Tav64fc v, Tav64fc* dst, int len) { return fcplx_member<Tav64fc, Op::Add>(src, v, dst, len); }
Status tavsAddC_64fc_I_body(Tav64fc v, Tav64fc* sd, int len) { return fcplx_member<Tav64fc, Op::Add>(sd, v, sd, len); }
Status tavsAddC_64s_Sfs_body(const Tav64s* src, Tav64s v, Tav64s* dst, int len, int sf, int rndMode) { return addc64_member(src, v, dst, len, sf, rndMode); }
Status tavsAddC_64u_Sfs_body(const Tav64u* src, Tav64u v, Tav64u* dst, int len, int sf, int rndMode) { return addc64_member(src, v, dst, len, sf, rndMode); }

// ---- SubC -------------------------------------------------------------------------
Status tavsSubC_8u_Sfs_body(const Tav8u* src, Tav8u v, Tav8u* dst, int len, int sf) { return int_member<Tav8u, Op::Sub>(src, v, dst, len, sf, kSub8u, true, false); }
Status tavsSubC_8u_ISfs_body(Tav8u v, Tav8u* sd, int len, int sf) { return int_member<Tav8u, Op::Sub>(sd, v, sd, len, sf, kSub8u, false, false); }
Status tavsSubC_16s_I_body(Tav16s v, Tav16s* sd, int len) { return int_member<Tav16s, Op::Sub>(sd, v, sd, len, 0, k16s, false, false); }
Status tavsSubC_16s_Sfs_body(const Tav16s* src, Tav16s v, Tav16s* dst, int len, int sf) { return int_member<Tav16s, Op::Sub>(src, v, dst, len, sf, k16s, true, false); }
Status tavsSubC_16s_ISfs_body(Tav16s v, Tav16s* sd, int len, int sf) { return int_member<Tav16s, Op::Sub>(sd, v, sd, len, sf, k16s, false, false); }
Status tavsSubC_16u_Sfs_body(const Tav16u* src, Tav16u v, Tav16u* dst, int len, int sf) { return int_member<Tav16u, Op::Sub>(src, v, dst, len, sf, kSub16u, true, false); }
Status tavsSubC_16u_ISfs_body(Tav16u v, Tav16u* sd, int len, int sf) { return int_member<Tav16u, Op::Sub>(sd, v, sd, len, sf, kSub16u, false, false); }
Status tavsSubC_32s_Sfs_body(const Tav32s* src, Tav32s v, Tav32s* dst, int len, int sf) { return int_member<Tav32s, Op::Sub>(src, v, dst, len, sf, k32s, true, false); }
Status tavsSubC_32s_ISfs_body(Tav32s v, Tav32s* sd, int len, int sf) { return int_member<Tav32s, Op::Sub>(sd, v, sd, len, sf, k32s, false, false); }
Status tavsSubC_16sc_Sfs_body(const Tav16sc* src, Tav16sc v, Tav16sc* dst, int len, int sf) { return cplx_member<Tav16sc, Op::Sub>(src, v, dst, len, sf, k16s); }
Status tavsSubC_16sc_ISfs_body(Tav16sc v, Tav16sc* sd, int len, int sf) { return cplx_member<Tav16sc, Op::Sub>(sd, v, sd, len, sf, k16s); }
Status tavsSubC_32sc_Sfs_body(const Tav32sc* src, Tav32sc v, Tav32sc* dst, int len, int sf) { return cplx_member<Tav32sc, Op::Sub>(src, v, dst, len, sf, k32s); }
Status tavsSubC_32sc_ISfs_body(Tav32sc v, Tav32sc* sd, int len, int sf) { return cplx_member<Tav32sc, Op::Sub>(sd, v, sd, len, sf, k32s); }
Status tavsSubC_32f_body(const Tav32f* src, Tav32f v, Tav32f* dst, int len) { return float_member<Tav32f, Op::Sub>(src, v, dst, len, true); }
Status tavsSubC_32f_I_body(Tav32f v, Tav32f* sd, int len) { return float_member<Tav32f, Op::Sub>(sd, v, sd, len, false); }
Status tavsSubC_64f_body(const Tav64f* src, Tav64f v, Tav64f* dst, int len) { return float_member<Tav64f, Op::Sub>(src, v, dst, len, true); }
Status tavsSubC_64f_I_body(Tav64f v, Tav64f* sd, int len) { return float_member<Tav64f, Op::Sub>(sd, v, sd, len, false); }
Status tavsSubC_32fc_body(const Tav32fc* src, Tav32fc v, Tav32fc* dst, int len) { return fcplx_member<Tav32fc, Op::Sub>(src, v, dst, len); }
Status tavsSubC_32fc_I_body(Tav32fc v, Tav32fc* sd, int len) { return fcplx_member<Tav32fc, Op::Sub>(sd, v, sd, len); }
Status tavsSubC_64fc_body(const Tav64fc* src, Tav64fc v, Tav64fc* dst, int len) { return fcplx_member<Tav64fc, Op::Sub>(src, v, dst, len); }
Status tavsSubC_64fc_I_body(Tav64fc v, Tav64fc* sd, int len) { return fcplx_member<Tav64fc, Op::Sub>(sd, v, sd, len); }

// ---- SubCRev ----------------------------------------------------------------------
Status tavsSubCRev_8u_Sfs_body(const Tav8u* src, Tav8u v, Tav8u* dst, int len, int sf) { return int_member<Tav8u, Op::SubRev>(src, v, dst, len, sf, kSub8u, false, false); }
Status tavsSubCRev_8u_ISfs_body(Tav8u v, Tav8u* sd, int len, int sf) { return int_member<Tav8u, Op::SubRev>(sd, v, sd, len, sf, kSub8u, false, false); }
Status tavsSubCRev_16s_Sfs_body(const Tav16s* src, Tav16s v, Tav16s* dst, int len, int sf) { return int_member<Tav16s, Op::SubRev>(src, v, dst, len, sf, k16s, false, false); }
Status tavsSubCRev_16s_ISfs_body(Tav16s v, Tav16s* sd, int len, int sf) { return int_member<Tav16s, Op::SubRev>(sd, v, sd, len, sf, k16s, false, false); }
Status tavsSubCRev_16u_Sfs_body(const Tav16u* src, Tav16u v, Tav16u* dst, int len, int sf) { return int_member<Tav16u, Op::SubRev>(src, v, dst, len, sf, kSub16u, false, false); }
Status tavsSubCRev_16u_ISfs_body(Tav16u v, Tav16u* sd, int len, int sf) { return int_member<Tav16u, Op::SubRev>(sd, v, sd, len, sf, kSub16u, false, false); }
Status tavsSubCRev_32s_Sfs_body(const Tav32s* src, Tav32s v, Tav32s* dst, int len, int sf) { return int_member<Tav32s, Op::SubRev>(src, v, dst, len, sf, k32s, false, false); }
Status tavsSubCRev_32s_ISfs_body(Tav32s v, Tav32s* sd, int len, int sf) { return int_member<Tav32s, Op::SubRev>(sd, v, sd, len, sf, k32s, false, false); }
Status tavsSubCRev_16sc_Sfs_body(const Tav16sc* src, Tav16sc v, Tav16sc* dst, int len, int sf) { return cplx_member<Tav16sc, Op::SubRev>(src, v, dst, len, sf, k16s); }
Status tavsSubCRev_16sc_ISfs_body(Tav16sc v, Tav16sc* sd, int len, int sf) { return cplx_member<Tav16sc, Op::SubRev>(sd, v, sd, len, sf, k16s); }
Status tavsSubCRev_32sc_Sfs_body(const Tav32sc* src, Tav32sc v, Tav32sc* dst, int len, int sf) { return cplx_member<Tav32sc, Op::SubRev>(src, v, dst, len, sf, k32s); }
Status tavsSubCRev_32sc_ISfs_body(Tav32sc v, Tav32sc* sd, int len, int sf) { return cplx_member<Tav32sc, Op::SubRev>(sd, v, sd, len, sf, k32s); }
Status tavsSubCRev_32f_body(const Tav32f* src, Tav32f v, Tav32f* dst, int len) { return float_member<Tav32f, Op::SubRev>(src, v, dst, len, false); }
Status tavsSubCRev_32f_I_body(Tav32f v, Tav32f* sd, int len) { return float_member<Tav32f, Op::SubRev>(sd, v, sd, len, false); }
Status tavsSubCRev_64f_body(const Tav64f* src, Tav64f v, Tav64f* dst, int len) { return float_member<Tav64f, Op::SubRev>(src, v, dst, len, false); }
Status tavsSubCRev_64f_I_body(Tav64f v, Tav64f* sd, int len) { return float_member<Tav64f, Op::SubRev>(sd, v, sd, len, false); }
Status tavsSubCRev_32fc_body(const Tav32fc* src, Tav32fc v, Tav32fc* dst, int len) { return fcplx_member<Tav32fc, Op::SubRev>(src, v, dst, len); }
Status tavsSubCRev_32fc_I_body(Tav32fc v, Tav32fc* sd, int len) { return fcplx_member<Tav32fc, Op::SubRev>(sd, v, sd, len); }
Status tavsSubCRev_64fc_body(const Tav64fc* src, Tav64fc v, Tav64fc* dst, int len) { return fcplx_member<Tav64fc, Op::SubRev>(src, v, dst, len); }
Status tavsSubCRev_64fc_I_body(Tav64fc v, Tav64fc* sd, int len) { return fcplx_member<Tav64fc, Op::SubRev>(sd, v, sd, len); }

} // extern "C"

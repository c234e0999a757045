// Half precision (IEEE binary16, 1-5-10 bits) to and from 32f and 16s.
//
// 32f to 16f works on the bits. Nearest (rndMode 1): NaN stores 0x7DFF and
// infinity 0x7C00 with the sign; an exponent field below 102 gives signed
// zero; from 113 the fraction is rounded by adding 0xFFF plus the kept low
// bit, and a sum at or above 0x47800000 stores infinity (or 0x7DFF when the
// sum has the shape of a NaN, which happens just below FLT_MAX); 102 to 112
// give subnormals rounded to nearest, ties to even, except that exactly
// 2^-25 rounds up to the smallest subnormal. Truncation (any other rndMode
// but 2, which is refused): finite values from field 143 store 0x7BFF with
// the sign, subnormals and normals drop the extra bits.
#include "internal/body.h"

#include <type_traits>

#include "internal/check.h"
#include "internal/convert.h"

using namespace tavs;
using namespace tavs::cvt;

namespace {

inline uint32_t float_bits(float f)
{
    uint32_t b;
    std::memcpy(&b, &f, 4);
    return b;
}

// ---- 16f to 32f -------------------------------------------------------------

uint32_t half_to_float_bits(uint16_t h)
{
    const uint32_t sign = uint32_t(h & 0x8000u) << 16;
    const uint32_t e = (h >> 10) & 0x1Fu, m = h & 0x3FFu;
    if (e == 31) return sign | 0x7F800000u | (m << 13); // infinities and NaN payloads
    if (e != 0) return sign | ((e + 112) << 23) | (m << 13);
    if (m == 0) return sign;
    // Subnormal m * 2^-24: normalise so the leading one becomes the hidden bit.
    const int sh = __builtin_clz(m) - 21;
    return sign | (uint32_t(113 - sh) << 23) | (((m << sh) & 0x3FFu) << 13);
}

// Four halves (in the low 16 bits of 32-bit lanes) to 32f bits.
inline __m128i v_half_to_float(__m128i h)
{
    const __m128i sign = _mm_slli_epi32(_mm_and_si128(h, _mm_set1_epi32(0x8000)), 16);
    const __m128i mag = _mm_and_si128(h, _mm_set1_epi32(0x7FFF));
    const __m128i e = _mm_and_si128(h, _mm_set1_epi32(0x7C00));
    const __m128i rebias = _mm_set1_epi32(112 << 23);
    __m128i normal = _mm_add_epi32(_mm_slli_epi32(mag, 13), rebias);
    // Exponent 31 needs the rebias once more to reach 255.
    const __m128i special = _mm_cmpeq_epi32(e, _mm_set1_epi32(0x7C00));
    normal = _mm_add_epi32(normal, _mm_and_si128(special, rebias));
    // Subnormal and zero: mag * 2^-24 is exact in 32f.
    const __m128i tiny = _mm_cmpeq_epi32(e, _mm_setzero_si128());
    const __m128i sub = _mm_castps_si128(_mm_mul_ps(_mm_cvtepi32_ps(mag), _mm_set1_ps(0x1p-24f)));
    return _mm_or_si128(sign, _mm_or_si128(_mm_and_si128(tiny, sub), _mm_andnot_si128(tiny, normal)));
}

// ---- 32f to 16f, scalar -------------------------------------------------------

uint16_t float_to_half_nearest(uint32_t x)
{
    const uint32_t a = x & 0x7FFFFFFFu, sign = (x >> 16) & 0x8000u, e = a >> 23;
    if (e == 255) return (a & 0x7FFFFFu) ? 0x7DFF : uint16_t(0x7C00u | sign);
    if (e < 102) return uint16_t(sign);
    if (e >= 113) {
        const uint32_t sum = a + ((a >> 13) & 1u) + 0xFFFu;
        if (sum >= 0x47800000u) return sum > 0x7F800000u ? 0x7DFF : uint16_t(0x7C00u | sign);
        return uint16_t((((sum + 0x8000000u) >> 13) & 0x7FFFu) | sign);
    }
    // Subnormal result: the kept bits start at bit 13 + k. The forced carry
    // for k >= 10 makes exactly 2^-25 round up.
    const uint32_t k = 113 - e;
    uint32_t add = (0xFFFu << k) | 0xFFFu;
    if (((a >> (13 + k)) & 1u) != 0 || k >= 10) add += 1;
    const uint32_t sum = a + add, es = sum >> 23;
    return uint16_t((((sum & 0xFFFFFFu) | 0x800000u) >> (126 - es)) | sign);
}

uint16_t float_to_half_trunc(uint32_t x)
{
    const uint32_t a = x & 0x7FFFFFFFu, sign = (x >> 16) & 0x8000u, e = a >> 23;
    if (e == 255) return (a & 0x7FFFFFu) ? 0x7DFF : uint16_t(0x7C00u | sign);
    if (e >= 143) return uint16_t(0x7BFFu | sign);
    if (e >= 113) return uint16_t((((a + 0x8000000u) >> 13) & 0x7FFFu) | sign);
    if (e >= 103) return uint16_t((((a & 0x7FFFFFu) | 0x800000u) >> (126 - e)) | sign);
    return uint16_t(sign);
}

// ---- 32f to 16f, four lanes ---------------------------------------------------
inline __m128i sel(__m128i mask, __m128i a, __m128i b)
{
    return _mm_or_si128(_mm_and_si128(mask, a), _mm_andnot_si128(mask, b));
}
inline __m128i c32(uint32_t v) { return _mm_set1_epi32(int(v)); }

// The subnormal range as |x| * 2^24 (exact, below 1024): truncated, or
// rounded to nearest with the fraction compared directly (so the caller's
// rounding direction plays no part) and 2^-25 sent up.
template <bool Nearest> inline __m128i v_subnormal(__m128i a)
{
    const __m128 f = _mm_mul_ps(_mm_castsi128_ps(a), _mm_set1_ps(0x1p24f));
    const __m128i t = _mm_cvttps_epi32(f);
    if constexpr (!Nearest) return t;
    const __m128 frac = _mm_sub_ps(f, _mm_cvtepi32_ps(t));
    const __m128 half = _mm_set1_ps(0.5f);
    const __m128i odd = _mm_cmpeq_epi32(_mm_and_si128(t, c32(1)), c32(1));
    __m128i up = _mm_castps_si128(_mm_cmpgt_ps(frac, half));
    up = _mm_or_si128(up, _mm_and_si128(_mm_castps_si128(_mm_cmpeq_ps(frac, half)), odd));
    up = _mm_or_si128(up, _mm_cmpeq_epi32(a, c32(0x33000000u)));
    return _mm_sub_epi32(t, up);
}

template <bool Nearest> inline __m128i v_float_to_half(__m128i x)
{
    const __m128i a = _mm_and_si128(x, c32(0x7FFFFFFFu));
    const __m128i sign = _mm_and_si128(_mm_srli_epi32(x, 16), c32(0x8000u));
    const __m128i inf = _mm_or_si128(c32(0x7C00u), sign), nan = c32(0x7DFFu);
    const __m128i isSpecial = _mm_cmpgt_epi32(a, c32(0x7F7FFFFFu));
    const __m128i isNan = _mm_cmpgt_epi32(a, c32(0x7F800000u));
    const __m128i special = sel(isNan, nan, inf);
    const __m128i isNormal = _mm_cmpgt_epi32(a, c32(0x387FFFFFu)); // field 113 and above
    const __m128i sub = _mm_or_si128(v_subnormal<Nearest>(a), sign);
    __m128i r;
    if constexpr (Nearest) {
        const __m128i sum =
            _mm_add_epi32(_mm_add_epi32(a, c32(0xFFFu)), _mm_and_si128(_mm_srli_epi32(a, 13), c32(1)));
        const __m128i normal = _mm_or_si128(
            _mm_and_si128(_mm_srli_epi32(_mm_add_epi32(sum, c32(0x8000000u)), 13), c32(0x7FFFu)), sign);
        const __m128i over = _mm_cmpgt_epi32(sum, c32(0x477FFFFFu));
        const __m128i overVal = sel(_mm_cmpgt_epi32(sum, c32(0x7F800000u)), nan, inf);
        r = sel(over, overVal, normal);
    } else {
        const __m128i normal = _mm_or_si128(
            _mm_and_si128(_mm_srli_epi32(_mm_add_epi32(a, c32(0x8000000u)), 13), c32(0x7FFFu)), sign);
        r = sel(_mm_cmpgt_epi32(a, c32(0x477FFFFFu)), _mm_or_si128(c32(0x7BFFu), sign), normal);
    }
    r = sel(isNormal, r, sub);
    return sel(isSpecial, special, r);
}

// The common case alone: every lane a normal half that cannot round up to
// the overflow threshold (field 113 and above, below 0x477FF000 for
// nearest). t = x - (112 << 23), plus the rounding increment for nearest,
// holds the half's magnitude in bits 13 to 27 and its sign in bit 31;
// spreading the sign over bits 28 to 30 makes t >> 13 the half as a signed
// 16-bit value, which the saturating pack then stores unchanged.
template <bool Nearest> inline __m128i v_plain_half(__m128i x)
{
    __m128i t = _mm_add_epi32(x, c32(Nearest ? 0xC8000FFFu : 0xC8000000u));
    if constexpr (Nearest) t = _mm_add_epi32(t, _mm_and_si128(_mm_srli_epi32(x, 13), c32(1)));
    const __m128i neg = _mm_cmplt_epi32(x, _mm_setzero_si128());
    return _mm_srai_epi32(_mm_or_si128(t, _mm_and_si128(neg, c32(0x70000000u))), 13);
}

// Lanes inside the common case: |x| from 0x38800000 up to the top, as one
// unsigned range test done signed with a bias of 2^31.
template <bool Nearest> inline __m128i v_inside_plain(__m128i x)
{
    constexpr uint32_t bottom = 0x38800000u, top = Nearest ? 0x477FEFFFu : 0x477FFFFFu;
    const __m128i a = _mm_and_si128(x, c32(0x7FFFFFFFu));
    const __m128i biased = _mm_add_epi32(a, c32(0x80000000u - bottom));
    return _mm_cmplt_epi32(biased, c32(top - bottom + 0x80000001u));
}

// The full rule for 8k lanes, kept out of line so that the common loop keeps
// its constants in registers.
template <bool Nearest, size_t K>
__attribute__((noinline)) void v_store_halves_full(Tav16f* d, const __m128i (&x)[2 * K])
{
    for (size_t k = 0; k < K; ++k)
        _mm_store_si128(
            reinterpret_cast<__m128i*>(d + 8 * k),
            pack_low16(v_float_to_half<Nearest>(x[2 * k]), v_float_to_half<Nearest>(x[2 * k + 1])));
}

// 8K 32f bit patterns to halves stored at an aligned d; the full rule runs
// only when some lane needs it.
template <bool Nearest, size_t K> inline void v_store_halves(Tav16f* d, const __m128i (&x)[2 * K])
{
    __m128i in = v_inside_plain<Nearest>(x[0]);
    for (size_t k = 1; k < 2 * K; ++k)
        in = _mm_and_si128(in, v_inside_plain<Nearest>(x[k]));
    if (_mm_movemask_epi8(in) != 0xFFFF) return v_store_halves_full<Nearest, K>(d, x);
    for (size_t k = 0; k < K; ++k)
        _mm_store_si128(
            reinterpret_cast<__m128i*>(d + 8 * k),
            _mm_packs_epi32(v_plain_half<Nearest>(x[2 * k]), v_plain_half<Nearest>(x[2 * k + 1])));
}

// Sixteen elements a step, then one step of eight where it fits.
template <bool Nearest> void f32_to_16f(const Tav32f* src, Tav16f* dst, size_t n)
{
    auto block = [&](size_t i, auto groups) {
        constexpr size_t K = decltype(groups)::value;
        __m128i x[2 * K];
        for (size_t k = 0; k < 2 * K; ++k)
            x[k] = _mm_loadu_si128(reinterpret_cast<const __m128i*>(src + i + 4 * k));
        v_store_halves<Nearest, K>(dst + i, x);
    };
    drive<16, 8>(
        dst, n, 4,
        [&](size_t i) {
            const uint32_t x = ld<uint32_t>(src, i);
            st<uint16_t>(dst, i, Nearest ? float_to_half_nearest(x) : float_to_half_trunc(x));
        },
        [&](size_t i) { block(i, std::integral_constant<size_t, 2>{}); },
        [&](size_t i) { block(i, std::integral_constant<size_t, 1>{}); });
}

template <bool Nearest> void s16_to_16f(const Tav16s* src, Tav16f* dst, size_t n)
{
    drive<8>(
        dst, n, 4,
        [&](size_t i) {
            const uint32_t x = float_bits(float(ld<Tav16s>(src, i)));
            st<uint16_t>(dst, i, Nearest ? float_to_half_nearest(x) : float_to_half_trunc(x));
        },
        [&](size_t i) {
            __m128i lo, hi;
            widen_16s(_mm_loadu_si128(reinterpret_cast<const __m128i*>(src + i)), lo, hi);
            const __m128i x[2] = {_mm_castps_si128(_mm_cvtepi32_ps(lo)),
                                  _mm_castps_si128(_mm_cvtepi32_ps(hi))};
            v_store_halves<Nearest, 1>(dst + i, x);
        });
}

// ---- 16f to 16s ---------------------------------------------------------------

// The mantissa m (hidden bit included for normals) is worth m * 2^(e - 25),
// subnormals taking e = 1. A left shift saturates the exact value; a right
// shift of more than 11 leaves nothing; otherwise it rounds ties to even by
// adding 2^(shift-1) - 1 and the kept low bit, or truncates.
Tav16s half_to_16s(uint16_t h, bool nearest, int sf)
{
    const bool neg = (h & 0x8000u) != 0;
    const uint32_t e = (h >> 10) & 0x1Fu, f = h & 0x3FFu;
    if (e == 31) return f != 0 ? 0 : (neg ? -32768 : 32767);
    const uint32_t m = e != 0 ? (f | 0x400u) : f;
    if (m == 0) return 0;
    const int64_t count = int64_t(e != 0 ? e : 1) - sf - 25;
    int64_t mag;
    if (count > 15) {
        mag = INT64_C(1) << 16; // saturates whatever the sign
    } else if (count >= 0) {
        mag = int64_t(m) << count;
    } else {
        const int64_t shift = -count;
        if (shift > 11) return 0;
        if (nearest)
            mag = ((1023u >> (11 - shift)) + m + ((m >> shift) & 1u)) >> shift;
        else
            mag = m >> shift;
    }
    return sat<Tav16s>(neg ? -mag : mag);
}

// rndMode 2 is refused; 1 is nearest, every other value truncates.
inline Status check_half_mode(int rndMode) { return rndMode == RoundHalfAway ? ErrRoundMode : StatusOk; }

} // namespace

extern "C" {

Status tavsConvert_16f32f_body(const Tav16f* src, Tav32f* dst, int len)
{
    if (Status chk = check_ptrs_len(len, src, dst); chk != StatusOk) return chk;
    drive<8>(
        dst, size_t(len), 4,
        [&](size_t i) { st<uint32_t>(dst, i, half_to_float_bits(ld<uint16_t>(src, i))); },
        [&](size_t i) {
            const __m128i h = _mm_loadu_si128(reinterpret_cast<const __m128i*>(src + i));
            const __m128i z = _mm_setzero_si128();
            _mm_store_si128(reinterpret_cast<__m128i*>(dst + i), v_half_to_float(_mm_unpacklo_epi16(h, z)));
            _mm_store_si128(reinterpret_cast<__m128i*>(dst + i + 4),
                            v_half_to_float(_mm_unpackhi_epi16(h, z)));
        });
    return StatusOk;
}

Status tavsConvert_32f16f_body(const Tav32f* src, Tav16f* dst, int len, int rndMode)
{
    if (Status chk = check_ptrs_len(len, src, dst); chk != StatusOk) return chk;
    if (Status chk = check_half_mode(rndMode); chk != StatusOk) return chk;
    if (rndMode == RoundHalfEven)
        f32_to_16f<true>(src, dst, size_t(len));
    else
        f32_to_16f<false>(src, dst, size_t(len));
    return StatusOk;
}

Status tavsConvert_16s16f_body(const Tav16s* src, Tav16f* dst, int len, int rndMode)
{
    if (Status chk = check_ptrs_len(len, src, dst); chk != StatusOk) return chk;
    if (Status chk = check_half_mode(rndMode); chk != StatusOk) return chk;
    if (rndMode == RoundHalfEven)
        s16_to_16f<true>(src, dst, size_t(len));
    else
        s16_to_16f<false>(src, dst, size_t(len));
    return StatusOk;
}

Status tavsConvert_16f16s_Sfs_body(const Tav16f* src, Tav16s* dst, int len, int rndMode, int scaleFactor)
{
    if (Status chk = check_ptrs_len(len, src, dst); chk != StatusOk) return chk;
    if (Status chk = check_half_mode(rndMode); chk != StatusOk) return chk;
    const bool nearest = rndMode == RoundHalfEven;
    for (size_t i = 0; i < size_t(len); ++i)
        st<Tav16s>(dst, i, half_to_16s(ld<uint16_t>(src, i), nearest, scaleFactor));
    return StatusOk;
}

} // extern "C"

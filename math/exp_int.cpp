// tavsExp_16s_Sfs, tavsExp_32s_Sfs, tavsExp_64s_Sfs and their in-place
// forms: floor(e^x * 2^-scaleFactor + 0.5), saturated above, 0 for very
// negative x. The result range is tiny, so the common scale factors read a
// table row generated at compile time from that rule; the others go through
// exp and pow in double.
#include <cmath>

#include "internal/body.h"
#include "internal/check.h"
#include "internal/math_gen.h"

namespace {

namespace gen = tavs::mathgen;

// 16s: rows for scale factors 0..16 hold x = 0..24, rows for -1..-16 hold
// x = -12..12. 32s: rows for 0..31 hold x = 0..44, rows for -1..-31 hold
// x = -22..22.
constexpr auto kExp16 = gen::make_exp_table<Tav16s, 25, 17, 16>(32767);
constexpr auto kExp32 = gen::make_exp_table<Tav32s, 45, 32, 31>(2147483647);
static_assert(kExp16.ok && kExp32.ok, "a table entry lies too close to its rounding boundary");

// 64s: round(e^k) for k = 0..44, saturated (e^44 is above the 64s range).
struct Exp64Row {
    Tav64s v[45];
    Tav64s halfOf44; // round(e^44 / 2), which the halved row cannot give
    bool ok;
};
constexpr Exp64Row make_exp64_row()
{
    Exp64Row r{};
    r.ok = true;
    for (int k = 0; k <= 44; ++k) {
        gen::Rounded x = gen::exp_rule(k, 0, uint64_t(INT64_MAX));
        r.v[k] = Tav64s(x.v);
        r.ok = r.ok && x.ok;
    }
    gen::Rounded h = gen::exp_rule(44, 1, uint64_t(INT64_MAX));
    r.halfOf44 = Tav64s(h.v);
    r.ok = r.ok && h.ok;
    return r;
}
constexpr Exp64Row kExp64 = make_exp64_row();
static_assert(kExp64.ok && kExp64.halfOf44 == 0x592D071B4DE0C7FALL);

// 16s and 32s: table rows where they exist, exp * pow in double elsewhere.
template <class T, class Tab, int Width, int PosRows, int NegRows>
inline T exp_int_one(int64_t x, int sf, const Tab& tab)
{
    constexpr T kMax = T(tavs::Limits<T>::max);
    if (sf >= 0 && sf < PosRows) {
        if (x < 0) return 0;
        if (x >= Width) return kMax;
        return tab.pos[sf][x];
    }
    if (sf < 0 && sf >= -NegRows) {
        constexpr int half = Width / 2;
        if (x > half) return kMax;
        if (x < -half) return 0;
        return tab.neg[-sf - 1][x + half];
    }
    const double v = std::exp(double(x)) * std::pow(2.0, -double(sf));
    if (v < double(kMax)) return T(int64_t(v + 0.5));
    return kMax; // also the NaN of 0 * inf
}

inline Tav64s exp_64s_one(Tav64s x, int sf)
{
    switch (sf) {
    case 0:
        if (x < 0) return 0;
        return x > 44 ? INT64_MAX : kExp64.v[x];
    case 1:
        if (x < 0) return 0;
        if (x > 44) return INT64_MAX;
        return x == 44 ? kExp64.halfOf44 : (kExp64.v[x] + 1) >> 1;
    case -1:
        if (x < 0) return 0;
        return x > 42 ? INT64_MAX : 2 * kExp64.v[x];
    default: {
        // The one path that truncates without adding 0.5.
        const double v = std::exp(double(x)) * std::pow(2.0, -double(sf));
        if (v < 9223372036854775808.0) return Tav64s(v);
        return INT64_MAX;
    }
    }
}

template <class T, class F> Status exp_int(const T* src, T* dst, int len, F one)
{
    if (Status st = tavs::check_ptrs_len(len, src, dst)) return st;
    for (int i = 0; i < len; ++i)
        dst[i] = one(src[i]);
    return StatusOk;
}

Status exp_16s(const Tav16s* src, Tav16s* dst, int len, int sf)
{
    return exp_int(src, dst, len, [sf](Tav16s x) {
        return exp_int_one<Tav16s, decltype(kExp16), 25, 17, 16>(x, sf, kExp16);
    });
}

Status exp_32s(const Tav32s* src, Tav32s* dst, int len, int sf)
{
    return exp_int(src, dst, len, [sf](Tav32s x) {
        return exp_int_one<Tav32s, decltype(kExp32), 45, 32, 31>(x, sf, kExp32);
    });
}

Status exp_64s(const Tav64s* src, Tav64s* dst, int len, int sf)
{
    return exp_int(src, dst, len, [sf](Tav64s x) { return exp_64s_one(x, sf); });
}

} // namespace

extern "C" {
Status tavsExp_16s_Sfs_body(const Tav16s* src, Tav16s* dst, int len, int sf)
{
    return exp_16s(src, dst, len, sf);
}
Status tavsExp_16s_ISfs_body(Tav16s* srcDst, int len, int sf) { return exp_16s(srcDst, srcDst, len, sf); }
Status tavsExp_32s_Sfs_body(const Tav32s* src, Tav32s* dst, int len, int sf)
{
    return exp_32s(src, dst, len, sf);
}
Status tavsExp_32s_ISfs_body(Tav32s* srcDst, int len, int sf) { return exp_32s(srcDst, srcDst, len, sf); }
Status tavsExp_64s_Sfs_body(const Tav64s* src, Tav64s* dst, int len, int sf)
{
    return exp_64s(src, dst, len, sf);
}
Status tavsExp_64s_ISfs_body(Tav64s* srcDst, int len, int sf) { return exp_64s(srcDst, srcDst, len, sf); }
}

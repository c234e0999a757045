// tavsAdd_* and tavsSub_*: dst = src1 + src2 and dst = src2 - src1 (in place:
// srcDst + src and srcDst - src). Integer forms saturate; the _Sfs forms
// scale their exact sum with the limits of each member below. Complex
// members are their real member over twice the length.
#include "internal/body.h"
#include "internal/arith_kernels.h"

using namespace tavs;

namespace {

// Scale limits {zero-fill from, sign-only up to}: each zero limit is the
// smallest s at which every exact result rounds to 0.
constexpr ScaleLimits kAdd8u{10, -8};  // sums reach 510
constexpr ScaleLimits kSub8u{9, -8};   // differences reach 255
constexpr ScaleLimits kAdd16u{18, -16};
constexpr ScaleLimits kSub16u{17, -16};
constexpr ScaleLimits kAddSub16s{17, -16}; // also the 16sc members
constexpr ScaleLimits kAddSub32s{33, -31}; // also the 32sc members
constexpr ScaleLimits kAdd64s{64, -63};

// A saturating 64-bit sum: the 64-bit member scales the saturated value.
struct SatAdd64 {
    int64_t operator()(int64_t a, int64_t b) const { return sat_add64(a, b); }
};

} // namespace

extern "C" {

// ---- float ---------------------------------------------------------------------------
Status tavsAdd_32f_body(const Tav32f* a, const Tav32f* b, Tav32f* d, int len) { return float2(a, b, d, len, AddOp{}); }
Status tavsAdd_32f_I_body(const Tav32f* s, Tav32f* sd, int len) { return float2(s, sd, sd, len, AddOp{}); }
Status tavsAdd_64f_body(const Tav64f* a, const Tav64f* b, Tav64f* d, int len) { return float2(a, b, d, len, AddOp{}); }
Status tavsAdd_64f_I_body(const Tav64f* s, Tav64f* sd, int len) { return float2(s, sd, sd, len, AddOp{}); }
Status tavsSub_32f_body(const Tav32f* a, const Tav32f* b, Tav32f* d, int len) { return float2(a, b, d, len, SubRevOp{}); }
Status tavsSub_32f_I_body(const Tav32f* s, Tav32f* sd, int len) { return float2(s, sd, sd, len, SubRevOp{}); }
Status tavsSub_64f_body(const Tav64f* a, const Tav64f* b, Tav64f* d, int len) { return float2(a, b, d, len, SubRevOp{}); }
Status tavsSub_64f_I_body(const Tav64f* s, Tav64f* sd, int len) { return float2(s, sd, sd, len, SubRevOp{}); }

Status tavsAdd_32fc_body(const Tav32fc* a, const Tav32fc* b, Tav32fc* d, int len)
{
    return as_parts(len, [&](int n) { return tavsAdd_32f_body(parts(a), parts(b), parts(d), n); });
}
Status tavsAdd_32fc_I_body(const Tav32fc* s, Tav32fc* sd, int len)
{
    return as_parts(len, [&](int n) { return tavsAdd_32f_I_body(parts(s), parts(sd), n); });
}
Status tavsAdd_64fc_body(const Tav64fc* a, const Tav64fc* b, Tav64fc* d, int len)
{
    return as_parts(len, [&](int n) { return tavsAdd_64f_body(parts(a), parts(b), parts(d), n); });
}
Status tavsAdd_64fc_I_body(const Tav64fc* s, Tav64fc* sd, int len)
{
    return as_parts(len, [&](int n) { return tavsAdd_64f_I_body(parts(s), parts(sd), n); });
}
Status tavsSub_32fc_body(const Tav32fc* a, const Tav32fc* b, Tav32fc* d, int len)
{
    return as_parts(len, [&](int n) { return tavsSub_32f_body(parts(a), parts(b), parts(d), n); });
}
Status tavsSub_32fc_I_body(const Tav32fc* s, Tav32fc* sd, int len)
{
    return as_parts(len, [&](int n) { return tavsSub_32f_I_body(parts(s), parts(sd), n); });
}
Status tavsSub_64fc_body(const Tav64fc* a, const Tav64fc* b, Tav64fc* d, int len)
{
    return as_parts(len, [&](int n) { return tavsSub_64f_body(parts(a), parts(b), parts(d), n); });
}
Status tavsSub_64fc_I_body(const Tav64fc* s, Tav64fc* sd, int len)
{
    return as_parts(len, [&](int n) { return tavsSub_64f_I_body(parts(s), parts(sd), n); });
}

Status tavsAdd_16s32f_body(const Tav16s* a, const Tav16s* b, Tav32f* d, int len)
{
    return widen_16s32f(a, b, d, len, AddOp{});
}
Status tavsSub_16s32f_body(const Tav16s* a, const Tav16s* b, Tav32f* d, int len)
{
    return widen_16s32f(a, b, d, len, SubRevOp{});
}

// ---- integer without scaling: saturated like scaleFactor 0 --------------------------
Status tavsAdd_16s_body(const Tav16s* a, const Tav16s* b, Tav16s* d, int len)
{
    return int2<Rule::Sum>(a, b, d, len, 0, kAddSub16s, IAdd{}, true);
}
Status tavsAdd_16s_I_body(const Tav16s* s, Tav16s* sd, int len)
{
    return int2<Rule::Sum>(s, sd, sd, len, 0, kAddSub16s, IAdd{}, true);
}
Status tavsSub_16s_body(const Tav16s* a, const Tav16s* b, Tav16s* d, int len)
{
    return int2<Rule::Sum>(a, b, d, len, 0, kAddSub16s, ISubRev{}, true);
}
Status tavsSub_16s_I_body(const Tav16s* s, Tav16s* sd, int len)
{
    return int2<Rule::Sum>(s, sd, sd, len, 0, kAddSub16s, ISubRev{}, true);
}
Status tavsAdd_16u_body(const Tav16u* a, const Tav16u* b, Tav16u* d, int len)
{
    return int2<Rule::Sum>(a, b, d, len, 0, kAdd16u, IAdd{}, len >= 7);
}
// 32-bit accumulator plus a 16s element, saturated to 32s.
Status tavsAdd_16s32s_I_body(const Tav16s* s, Tav32s* sd, int len)
{
    return int2<Rule::Sum>(s, sd, sd, len, 0, kAddSub32s, IAdd{});
}
// Sum in 64 bits, saturated at 4294967295.
Status tavsAdd_32u_body(const Tav32u* a, const Tav32u* b, Tav32u* d, int len)
{
    return int2<Rule::Sum>(a, b, d, len, 0, ScaleLimits{64, -64}, IAdd{});
}
// Exact in the destination: 255 + 255 fits 16u.
Status tavsAdd_8u16u_body(const Tav8u* a, const Tav8u* b, Tav16u* d, int len)
{
    return int2<Rule::Sum>(a, b, d, len, 0, ScaleLimits{64, -64}, IAdd{});
}

// ---- integer, scaled -------------------------------------------------------------------
Status tavsAdd_8u_Sfs_body(const Tav8u* a, const Tav8u* b, Tav8u* d, int len, int sf)
{
    return int2<Rule::Sum>(a, b, d, len, sf, kAdd8u, IAdd{});
}
Status tavsAdd_8u_ISfs_body(const Tav8u* s, Tav8u* sd, int len, int sf)
{
    return int2<Rule::Sum>(s, sd, sd, len, sf, kAdd8u, IAdd{});
}
Status tavsSub_8u_Sfs_body(const Tav8u* a, const Tav8u* b, Tav8u* d, int len, int sf)
{
    return int2<Rule::Sum>(a, b, d, len, sf, kSub8u, ISubRev{});
}
Status tavsSub_8u_ISfs_body(const Tav8u* s, Tav8u* sd, int len, int sf)
{
    return int2<Rule::Sum>(s, sd, sd, len, sf, kSub8u, ISubRev{});
}
Status tavsAdd_16u_Sfs_body(const Tav16u* a, const Tav16u* b, Tav16u* d, int len, int sf)
{
    return int2_16u_zero_first<Rule::Sum>(a, b, d, len, sf, kAdd16u, IAdd{});
}
Status tavsAdd_16u_ISfs_body(const Tav16u* s, Tav16u* sd, int len, int sf)
{
    return int2<Rule::Sum>(s, sd, sd, len, sf, kAdd16u, IAdd{}, len >= 7);
}
Status tavsSub_16u_Sfs_body(const Tav16u* a, const Tav16u* b, Tav16u* d, int len, int sf)
{
    return int2_16u_zero_first<Rule::Sum>(a, b, d, len, sf, kSub16u, ISubRev{});
}
Status tavsSub_16u_ISfs_body(const Tav16u* s, Tav16u* sd, int len, int sf)
{
    return int2<Rule::Sum>(s, sd, sd, len, sf, kSub16u, ISubRev{}, len >= 7);
}
Status tavsAdd_16s_Sfs_body(const Tav16s* a, const Tav16s* b, Tav16s* d, int len, int sf)
{
    return int2<Rule::Sum>(a, b, d, len, sf, kAddSub16s, IAdd{}, true);
}
Status tavsAdd_16s_ISfs_body(const Tav16s* s, Tav16s* sd, int len, int sf)
{
    return int2<Rule::Sum>(s, sd, sd, len, sf, kAddSub16s, IAdd{}, true);
}
Status tavsSub_16s_Sfs_body(const Tav16s* a, const Tav16s* b, Tav16s* d, int len, int sf)
{
    return int2<Rule::Sum>(a, b, d, len, sf, kAddSub16s, ISubRev{}, true);
}
Status tavsSub_16s_ISfs_body(const Tav16s* s, Tav16s* sd, int len, int sf)
{
    return int2<Rule::Sum>(s, sd, sd, len, sf, kAddSub16s, ISubRev{}, true);
}
Status tavsAdd_32s_Sfs_body(const Tav32s* a, const Tav32s* b, Tav32s* d, int len, int sf)
{
    return int2<Rule::Sum>(a, b, d, len, sf, kAddSub32s, IAdd{});
}
Status tavsAdd_32s_ISfs_body(const Tav32s* s, Tav32s* sd, int len, int sf)
{
    return int2<Rule::Sum>(s, sd, sd, len, sf, kAddSub32s, IAdd{});
}
Status tavsSub_32s_Sfs_body(const Tav32s* a, const Tav32s* b, Tav32s* d, int len, int sf)
{
    return int2<Rule::Sum>(a, b, d, len, sf, kAddSub32s, ISubRev{});
}
Status tavsSub_32s_ISfs_body(const Tav32s* s, Tav32s* sd, int len, int sf)
{
    return int2<Rule::Sum>(s, sd, sd, len, sf, kAddSub32s, ISubRev{});
}
Status tavsAdd_64s_Sfs_body(const Tav64s* a, const Tav64s* b, Tav64s* d, int len, int sf)
{
    return int2<Rule::Sum>(a, b, d, len, sf, kAdd64s, SatAdd64{});
}

// ---- complex integer: the real member over the parts ------------------------------------
Status tavsAdd_16sc_Sfs_body(const Tav16sc* a, const Tav16sc* b, Tav16sc* d, int len, int sf)
{
    return as_parts(len, [&](int n) { return tavsAdd_16s_Sfs_body(parts(a), parts(b), parts(d), n, sf); });
}
Status tavsAdd_16sc_ISfs_body(const Tav16sc* s, Tav16sc* sd, int len, int sf)
{
    return as_parts(len, [&](int n) { return tavsAdd_16s_ISfs_body(parts(s), parts(sd), n, sf); });
}
Status tavsSub_16sc_Sfs_body(const Tav16sc* a, const Tav16sc* b, Tav16sc* d, int len, int sf)
{
    return as_parts(len, [&](int n) { return tavsSub_16s_Sfs_body(parts(a), parts(b), parts(d), n, sf); });
}
Status tavsSub_16sc_ISfs_body(const Tav16sc* s, Tav16sc* sd, int len, int sf)
{
    return as_parts(len, [&](int n) { return tavsSub_16s_ISfs_body(parts(s), parts(sd), n, sf); });
}
Status tavsAdd_32sc_Sfs_body(const Tav32sc* a, const Tav32sc* b, Tav32sc* d, int len, int sf)
{
    return as_parts(len, [&](int n) { return tavsAdd_32s_Sfs_body(parts(a), parts(b), parts(d), n, sf); });
}
Status tavsAdd_32sc_ISfs_body(const Tav32sc* s, Tav32sc* sd, int len, int sf)
{
    return as_parts(len, [&](int n) { return tavsAdd_32s_ISfs_body(parts(s), parts(sd), n, sf); });
}
Status tavsSub_32sc_Sfs_body(const Tav32sc* a, const Tav32sc* b, Tav32sc* d, int len, int sf)
{
    return as_parts(len, [&](int n) { return tavsSub_32s_Sfs_body(parts(a), parts(b), parts(d), n, sf); });
}
Status tavsSub_32sc_ISfs_body(const Tav32sc* s, Tav32sc* sd, int len, int sf)
{
    return as_parts(len, [&](int n) { return tavsSub_32s_ISfs_body(parts(s), parts(sd), n, sf); });
}

} // extern "C"

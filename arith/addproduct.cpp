// tavsAddProduct_*: dst = dst + src1 * src2, the destination read as an
// accumulator; tavsAddProductC_32f: dst = dst + src * val. Integer forms
// take the exact sum in 32 or 64 bits and scale it once.
#include "internal/body.h"
#include "internal/arith_kernels.h"

using namespace tavs;

namespace {

constexpr ScaleLimits kAddProduct16s{32, -15};
constexpr ScaleLimits kAddProduct32s{63, -31};
constexpr ScaleLimits kAddProduct16s32s{33, -31};

// dst + src * val, the constant broadcast once.
template <class T> struct AddProductCOp {
    T val;
    template <class M> auto f(auto a, auto d) const { return M::add(d, M::mul(a, M::set1(val))); }
};

// Complex: re = a.re*b.re - a.im*b.im + d.re, im = a.re*b.im + b.re*a.im + d.im,
// added in that order.
struct CAddProductOp {
    template <class M>
    void f(typename M::R& re, typename M::R& im, const Parts<M>& a, const Parts<M>& b, const Parts<M>& d) const
    {
        re = M::add(M::sub(M::mul(a.re, b.re), M::mul(a.im, b.im)), d.re);
        im = M::add(M::add(M::mul(a.re, b.im), M::mul(b.re, a.im)), d.im);
    }
};

// d + a * b exactly; the 16s lanes hold it in 32 bits (|e| < 2^30 + 2^15).
struct IAddProduct {
    template <class T> static constexpr bool unsignedE = false;
    int64_t operator()(int64_t a, int64_t b, int64_t d) const { return d + a * b; }
    template <class T> void lanes(__m128i& lo, __m128i& hi, __m128i a, __m128i b, __m128i d) const
    {
        __m128i pl, ph, dl, dh;
        mul16<T>(a, b, pl, ph);
        widen16<T>(d, dl, dh);
        lo = _mm_add_epi32(pl, dl);
        hi = _mm_add_epi32(ph, dh);
    }
};

template <class T, class C> Status cplx_addproduct(const C* a, const C* b, C* d, int len)
{
    if (Status r = check_ptrs_len(len, a, b, d)) return r;
    cmap(parts(d), len, CAddProductOp{}, CplxSrc<T>{parts(a)}, CplxSrc<T>{parts(b)}, CplxSrc<T>{parts(d)});
    return StatusOk;
}

template <class T> Status float_addproduct(const T* a, const T* b, T* d, int len)
{
    if (Status r = check_ptrs_len(len, a, b, d)) return r;
    fmap(d, len, AddProductOp{}, a, b, const_cast<const T*>(d));
    return StatusOk;
}

} // namespace

extern "C" {

Status tavsAddProduct_32f_body(const Tav32f* a, const Tav32f* b, Tav32f* d, int len)
{
    return float_addproduct(a, b, d, len);
}
Status tavsAddProduct_64f_body(const Tav64f* a, const Tav64f* b, Tav64f* d, int len)
{
    return float_addproduct(a, b, d, len);
}
Status tavsAddProductC_32f_body(const Tav32f* s, Tav32f val, Tav32f* d, int len)
{
    if (Status r = check_ptrs_len(len, s, d)) return r;
    fmap(d, len, AddProductCOp<float>{val}, s, const_cast<const Tav32f*>(d));
    return StatusOk;
}
Status tavsAddProduct_32fc_body(const Tav32fc* a, const Tav32fc* b, Tav32fc* d, int len)
{
    return cplx_addproduct<float>(a, b, d, len);
}
Status tavsAddProduct_64fc_body(const Tav64fc* a, const Tav64fc* b, Tav64fc* d, int len)
{
    return cplx_addproduct<double>(a, b, d, len);
}

Status tavsAddProduct_16s_Sfs_body(const Tav16s* a, const Tav16s* b, Tav16s* d, int len, int sf)
{
    return int_checked<Rule::Product>(d, len, sf, kAddProduct16s, IAddProduct{}, true, a, b,
                                      const_cast<const Tav16s*>(d));
}
Status tavsAddProduct_32s_Sfs_body(const Tav32s* a, const Tav32s* b, Tav32s* d, int len, int sf)
{
    return int_checked<Rule::Product>(d, len, sf, kAddProduct32s, IAddProduct{}, false, a, b,
                                      const_cast<const Tav32s*>(d));
}
Status tavsAddProduct_16s32s_Sfs_body(const Tav16s* a, const Tav16s* b, Tav32s* d, int len, int sf)
{
    return int_checked<Rule::Product>(d, len, sf, kAddProduct16s32s, IAddProduct{}, false, a, b,
                                      const_cast<const Tav32s*>(d));
}

} // extern "C"

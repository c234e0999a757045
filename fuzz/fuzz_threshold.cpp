// Thresholds of 16s, 32s and 32f over invented vectors and levels, against
// the element rules written out here, and the whole-vector call against the
// same call one element at a time (the short path).
#include <cmath>
#include <type_traits>
#include <vector>

#include "fuzz_input.h"
#include "tavs.h"

namespace {

template <class T> bool same(T a, T b) { return std::memcmp(&a, &b, sizeof(T)) == 0 || (a != a && b != b); }

template <class T> T ref_lt(T x, T l) { return x > l ? x : l; }
template <class T> T ref_gt(T x, T l) { return x < l ? x : l; }
template <class T> T ref_ltval(T x, T l, T v) { return x >= l ? x : v; }
template <class T> T ref_gtval(T x, T l, T v) { return l >= x ? x : v; }
template <class T> T ref_ltvalgtval(T x, T lo, T lv, T hi, T hv) { return x < lo ? lv : (x > hi ? hv : x); }

template <class T, class F, class R> void run(FuzzInput& in, F call, R ref)
{
    const int len = int(in.pick(80)) + 1;
    std::vector<T> src(size_t(len) + 4), dst(size_t(len) + 4), one(size_t(len) + 4);
    for (auto& x : src) x = in.take<T>();
    const size_t off = in.pick(4);
    const Status st = call(src.data() + off, dst.data() + off, len);
    if (st < 0) return;
    for (int i = 0; i < len; ++i) {
        FUZZ_CHECK(call(src.data() + off + i, one.data() + off + i, 1) == st || st > 0);
        FUZZ_CHECK(same(dst[off + i], one[off + i]));
        FUZZ_CHECK(same(dst[off + i], ref(src[off + i])));
    }
}

template <class T> void forms(FuzzInput& in, unsigned which)
{
    const T l = in.take<T>(), v = in.take<T>(), l2 = in.take<T>(), v2 = in.take<T>();
    switch (which) {
    case 0:
        run<T>(in, [&](const T* s, T* d, int n) {
            if constexpr (std::is_same_v<T, Tav16s>) return tavsThreshold_LT_16s(s, d, n, l);
            else if constexpr (std::is_same_v<T, Tav32s>) return tavsThreshold_LT_32s(s, d, n, l);
            else return tavsThreshold_LT_32f(s, d, n, l);
        }, [&](T x) { return ref_lt(x, l); });
        break;
    case 1:
        run<T>(in, [&](const T* s, T* d, int n) {
            if constexpr (std::is_same_v<T, Tav16s>) return tavsThreshold_GT_16s(s, d, n, l);
            else if constexpr (std::is_same_v<T, Tav32s>) return tavsThreshold_GT_32s(s, d, n, l);
            else return tavsThreshold_GT_32f(s, d, n, l);
        }, [&](T x) { return ref_gt(x, l); });
        break;
    case 2:
        if constexpr (!std::is_same_v<T, Tav32s>) {
            run<T>(in, [&](const T* s, T* d, int n) {
                if constexpr (std::is_same_v<T, Tav16s>) return tavsThreshold_LTVal_16s(s, d, n, l, v);
                else return tavsThreshold_LTVal_32f(s, d, n, l, v);
            }, [&](T x) { return ref_ltval(x, l, v); });
            run<T>(in, [&](const T* s, T* d, int n) {
                if constexpr (std::is_same_v<T, Tav16s>) return tavsThreshold_GTVal_16s(s, d, n, l, v);
                else return tavsThreshold_GTVal_32f(s, d, n, l, v);
            }, [&](T x) { return ref_gtval(x, l, v); });
        }
        break;
    default: {
        const T lo = l < l2 ? l : l2, hi = l < l2 ? l2 : l;
        if (!(lo <= hi)) return; // NaN levels
        run<T>(in, [&](const T* s, T* d, int n) {
            if constexpr (std::is_same_v<T, Tav16s>) return tavsThreshold_LTValGTVal_16s(s, d, n, lo, v, hi, v2);
            else if constexpr (std::is_same_v<T, Tav32s>) return tavsThreshold_LTValGTVal_32s(s, d, n, lo, v, hi, v2);
            else return tavsThreshold_LTValGTVal_32f(s, d, n, lo, v, hi, v2);
        }, [&](T x) { return ref_ltvalgtval(x, lo, v, hi, v2); });
    }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    FuzzInput in(data, size);
    const unsigned type = in.pick(3), which = in.pick(4);
    if (type == 0) forms<Tav16s>(in, which);
    else if (type == 1) forms<Tav32s>(in, which);
    else forms<Tav32f>(in, which);
    return 0;
}

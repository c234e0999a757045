// Conversions over invented bit patterns: the whole-vector call (which takes
// the vector path where there is one) against the same call one element at a
// time (the scalar path), bit for bit, at every offset the input picks. NaN
// sources of float-to-integer conversions are left out: their result is not
// promised to agree between the paths.
#include <cmath>
#include <cstring>
#include <vector>

#include "fuzz_input.h"
#include "tavs.h"

namespace {

template <class S, class D, class F> void run(FuzzInput& in, F call, bool dropNaN)
{
    const size_t len = in.pick(90) + 1, off = in.pick(16);
    std::vector<unsigned char> sbuf((len + 2) * sizeof(S) + 16), dbuf((len + 2) * sizeof(D) + 16),
        obuf((len + 2) * sizeof(D) + 16);
    // Element-aligned sources and destinations at the offset the input picks.
    S* src = reinterpret_cast<S*>(sbuf.data() + (off / sizeof(S)) * sizeof(S));
    D* dst = reinterpret_cast<D*>(dbuf.data() + (off / sizeof(D)) * sizeof(D));
    D* one = reinterpret_cast<D*>(obuf.data() + (off / sizeof(D)) * sizeof(D));
    for (size_t i = 0; i < len; ++i) {
        S v = in.take<S>();
        if constexpr (std::is_floating_point_v<S>)
            if (dropNaN && std::isnan(v)) v = S(0);
        src[i] = v;
    }
    const Status st = call(src, dst, int(len));
    FUZZ_CHECK(st == StatusOk);
    for (size_t i = 0; i < len; ++i) {
        FUZZ_CHECK(call(src + i, one + i, 1) == st);
        FUZZ_CHECK(std::memcmp(dst + i, one + i, sizeof(D)) == 0);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    FuzzInput in(data, size);
    const unsigned which = in.pick(11);
    const int rnd = int(in.pick(4)); // 0, 1, 2 and one value outside the set
    const int sf = int(in.take<int8_t>()) % 40;
    switch (which) {
    case 0: run<Tav8u, Tav32f>(in, tavsConvert_8u32f, false); break;
    case 1: run<Tav16s, Tav32f>(in, tavsConvert_16s32f, false); break;
    case 2: run<Tav32s, Tav32f>(in, tavsConvert_32s32f, false); break;
    case 3: run<Tav64f, Tav32f>(in, tavsConvert_64f32f, false); break;
    case 4:
        run<Tav32s, Tav16s>(in, [&](const Tav32s* s, Tav16s* d, int n) { return tavsConvert_32s16s_Sfs(s, d, n, sf); }, false);
        break;
    case 5:
        run<Tav32f, Tav8u>(in, [&](const Tav32f* s, Tav8u* d, int n) { return tavsConvert_32f8u_Sfs(s, d, n, rnd, sf); }, true);
        break;
    case 6:
        run<Tav32f, Tav16s>(in, [&](const Tav32f* s, Tav16s* d, int n) { return tavsConvert_32f16s_Sfs(s, d, n, rnd, sf); }, true);
        break;
    case 7:
        run<Tav64f, Tav32s>(in, [&](const Tav64f* s, Tav32s* d, int n) { return tavsConvert_64f32s_Sfs(s, d, n, rnd, sf); }, true);
        break;
    case 8: run<Tav16f, Tav32f>(in, tavsConvert_16f32f, false); break;
    case 9: {
        const int mode = rnd == 2 ? 1 : rnd; // 2 is refused by the half-precision forms
        run<Tav32f, Tav16f>(in, [&](const Tav32f* s, Tav16f* d, int n) { return tavsConvert_32f16f(s, d, n, mode); }, false);
        break;
    }
    default: {
        const int mode = rnd == 2 ? 0 : rnd;
        run<Tav16s, Tav16f>(in, [&](const Tav16s* s, Tav16f* d, int n) { return tavsConvert_16s16f(s, d, n, mode); }, false);
    }
    }
    return 0;
}

// Scaled integer arithmetic over invented values and scale factors, against
// the exact result rounded to nearest with ties to even and saturated, and
// the whole-vector call against the same call one element at a time.
#include <cstdint>
#include <vector>

#include "fuzz_input.h"
#include "tavs.h"

namespace {

// e * 2^-s, ties to even, saturated to [lo, hi]; e exact in 128 bits.
int64_t exact_scaled(__int128 e, int s, int64_t lo, int64_t hi)
{
    if (s > 0) {
        if (s >= 100) return 0;
        __int128 d = __int128(1) << s;
        __int128 q = e / d, r = e % d;
        if (r < 0) { q -= 1; r += d; }
        if (2 * r > d || (2 * r == d && (q & 1))) q += 1;
        e = q;
    } else if (s < 0 && e != 0) {
        if (s <= -40) e = e > 0 ? __int128(hi) + 1 : __int128(lo) - 1;
        else e = e * (__int128(1) << -s);
    }
    return e < lo ? lo : (e > hi ? hi : int64_t(e));
}

int take_scale(FuzzInput& in)
{
    const int raw = in.take<int32_t>();
    switch (in.pick(4)) {
    case 0: return raw; // anything at all
    case 1: return raw % 80;
    default: return raw % 36;
    }
}

template <class T, class F, class R> void run(FuzzInput& in, F call, R exact)
{
    const int len = int(in.pick(70)) + 1;
    const int sf = take_scale(in);
    const size_t n = static_cast<size_t>(len);
    std::vector<T> a(n), b(n), d(n), one(n);
    for (int i = 0; i < len; ++i) {
        a[size_t(i)] = in.take<T>();
        b[size_t(i)] = in.take<T>();
    }
    FUZZ_CHECK(call(a.data(), b.data(), d.data(), len, sf) == StatusOk);
    for (int i = 0; i < len; ++i) {
        FUZZ_CHECK(call(&a[size_t(i)], &b[size_t(i)], &one[size_t(i)], 1, sf) == StatusOk);
        FUZZ_CHECK(one[size_t(i)] == d[size_t(i)]);
        FUZZ_CHECK(int64_t(d[size_t(i)]) == exact(a[size_t(i)], b[size_t(i)], sf));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    FuzzInput in(data, size);
    switch (in.pick(8)) {
    case 0:
        run<Tav16s>(in, tavsAdd_16s_Sfs, [](Tav16s x, Tav16s y, int s) { return exact_scaled(__int128(x) + y, s, -32768, 32767); });
        break;
    case 1: // Sub is the second operand minus the first
        run<Tav16s>(in, tavsSub_16s_Sfs, [](Tav16s x, Tav16s y, int s) { return exact_scaled(__int128(y) - x, s, -32768, 32767); });
        break;
    case 2:
        run<Tav16s>(in, tavsMul_16s_Sfs, [](Tav16s x, Tav16s y, int s) { return exact_scaled(__int128(x) * y, s, -32768, 32767); });
        break;
    case 3:
        run<Tav32s>(in, tavsMul_32s_Sfs, [](Tav32s x, Tav32s y, int s) { return exact_scaled(__int128(x) * y, s, INT32_MIN, INT32_MAX); });
        break;
    case 4:
        run<Tav32s>(in, tavsAdd_32s_Sfs, [](Tav32s x, Tav32s y, int s) { return exact_scaled(__int128(x) + y, s, INT32_MIN, INT32_MAX); });
        break;
    case 5:
        run<Tav16u>(in, tavsMul_16u_Sfs, [](Tav16u x, Tav16u y, int s) { return exact_scaled(__int128(x) * y, s, 0, 65535); });
        break;
    case 6:
        run<Tav8u>(in, tavsAdd_8u_Sfs, [](Tav8u x, Tav8u y, int s) { return exact_scaled(__int128(x) + y, s, 0, 255); });
        break;
    default:
        run<Tav16s>(in, [](const Tav16s* x, const Tav16s*, Tav16s* d, int n, int s) { return tavsSqr_16s_Sfs(x, d, n, s); },
                    [](Tav16s x, Tav16s, int s) { return exact_scaled(__int128(x) * x, s, -32768, 32767); });
    }
    return 0;
}

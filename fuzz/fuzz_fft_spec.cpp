// FFT records over invented orders, flags and hints: GetSize and Init agree
// on every status, Init builds in exactly the block GetSize asked for (the
// sanitizer sees any byte beyond it), InitAlloc agrees with both, and for
// orders that build, a forward and inverse transform round-trip to the
// input times the factor the flag leaves.
#include <cmath>
#include <cstdlib>
#include <vector>

#include "fuzz_input.h"
#include "tavs.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    FuzzInput in(data, size);
    const int order = int(in.take<int8_t>()) % 40;
    static const int flags[] = {ScaleFwdByLen, ScaleInvByLen, ScaleBothBySqrtLen, ScaleNever, 0, 3, 16, -1};
    const int flag = in.pick(5) == 0 ? in.take<int32_t>() : flags[in.pick(8)];
    const int hint = in.pick(4) == 0 ? in.take<int32_t>() : int(in.pick(3));

    int specSize = -1, initSize = -1, workSize = -1;
    const Status sz = tavsFFTGetSize_C_32fc(order, flag, hint, &specSize, &initSize, &workSize);
    FFTSpec_C_32fc* spec = nullptr;
    if (sz < 0 || order <= 16) { // the largest records take seconds to build
        const Status alloc = tavsFFTInitAlloc_C_32fc(&spec, order, flag, hint);
        FUZZ_CHECK(alloc == sz || (sz == StatusOk && alloc == ErrMemAlloc));
        if (alloc == StatusOk) tavsFFTFree_C_32fc(spec);
    }
    if (sz < 0 || order > 14) return 0;
    FUZZ_CHECK(specSize > 0 && initSize >= 0 && workSize >= 0);

    // Exactly the sizes asked for, each in its own heap block so any overrun is seen.
    Tav8u* block = static_cast<Tav8u*>(std::malloc(size_t(specSize)));
    Tav8u* initBuf = initSize ? static_cast<Tav8u*>(std::malloc(size_t(initSize))) : nullptr;
    const Status st = tavsFFTInit_C_32fc(&spec, order, flag, hint, block, initBuf);
    FUZZ_CHECK(st == StatusOk);
    int bufSize = -1;
    FUZZ_CHECK(tavsFFTGetBufSize_C_32fc(spec, &bufSize) == StatusOk && bufSize == workSize);

    const size_t n = size_t(1) << order;
    std::vector<Tav32fc> x(n), y(n), z(n);
    for (auto& v : x) v = {float(in.take<int8_t>()), float(in.take<int8_t>())};
    Tav8u* work = workSize ? static_cast<Tav8u*>(std::malloc(size_t(workSize))) : nullptr;
    FUZZ_CHECK(tavsFFTFwd_CToC_32fc(x.data(), y.data(), spec, work) == StatusOk);
    FUZZ_CHECK(tavsFFTInv_CToC_32fc(y.data(), z.data(), spec, work) == StatusOk);
    const double factor = flag == ScaleNever ? double(n) : 1.0;
    for (size_t i = 0; i < n; ++i) {
        const double tol = 1e-3 * factor * (1 + order);
        FUZZ_CHECK(std::fabs(z[i].re - factor * x[i].re) <= tol + 1e-4 * std::fabs(factor * x[i].re));
        FUZZ_CHECK(std::fabs(z[i].im - factor * x[i].im) <= tol + 1e-4 * std::fabs(factor * x[i].im));
    }
    std::free(work);
    std::free(initBuf);
    std::free(block);
    return 0;
}

// The bit-reversal permutations (in place through the swap list, out of
// place by blocks) and the scale pass.
#include "internal/body.h"
#include "internal/fft_kernels.h"
#include "internal/fft_simd.h"

#include <utility>

namespace tavs::fft {

using simd::kRev16;

// ---- permutations -----------------------------------------------------------

// List entries are 4i (pairs (4i, 4j) first, self-reversed ones at the
// back); halved they are p = 2i, q = 2j. With H = N/2 a pair moves four
// couples of elements; a self-reversed index exchanges p+1 and H+p. The
// index 0 is self-reversed too but cannot be listed (0 ends the list).
template <class E> void permute_in_place(E* a, const int32_t* list, int64_t N)
{
    if (N < 4) return;
    const int64_t H = N / 2;
    std::swap(a[1], a[H]);
    const int32_t* e = list;
    for (; *e != 0; e += 2) {
        const int64_t p = e[0] / 2, q = e[1] / 2;
        std::swap(a[p], a[q]);
        std::swap(a[p + 1], a[H + q]);
        std::swap(a[H + p], a[q + 1]);
        std::swap(a[H + p + 1], a[H + q + 1]);
    }
    for (const int32_t* s = list + N / 4 - 1; *s != 0; --s) {
        const int64_t p = *s / 2;
        std::swap(a[p + 1], a[H + p]);
    }
}

template <class E> void permute_copy(const E* src, E* dst, const int32_t* list, int64_t N)
{
    if (N >= 16) {
        // By blocks of 16: block rev(j) of dst is src[rev16(t) * N/16 + j],
        // t = 0 .. 15, with j running in order, so the reads follow sixteen
        // ascending streams and each block is written whole. This writes
        // every element once, as the walk of the list does.
        const int64_t step = N / 16, half = step / 2;
        int64_t r = 0;
        for (int64_t j = 0; j < step; ++j) {
            if (j > 0) {
                int64_t m = half;
                while (r & m) r ^= m, m >>= 1;
                r |= m;
            }
            E* d = dst + 16 * r;
            for (int t = 0; t < 16; ++t) d[t] = src[kRev16[t] * step + j];
        }
        return;
    }
    if (N < 8) {
        dst[0] = src[0];
        dst[N - 1] = src[N - 1];
        if (N > 2) {
            dst[1] = src[2];
            dst[2] = src[1];
        }
        return;
    }
    const int64_t H = N / 2;
    dst[0] = src[0];
    dst[1] = src[H];
    dst[H] = src[1];
    dst[H + 1] = src[H + 1];
    for (const int32_t* e = list; *e != 0; e += 2) {
        const int64_t p = e[0] / 2, q = e[1] / 2;
        dst[p] = src[q];
        dst[q] = src[p];
        dst[p + 1] = src[H + q];
        dst[H + q] = src[p + 1];
        dst[H + p] = src[q + 1];
        dst[q + 1] = src[H + p];
        dst[H + p + 1] = src[H + q + 1];
        dst[H + q + 1] = src[H + p + 1];
    }
    for (const int32_t* s = list + N / 4 - 1; *s != 0; --s) {
        const int64_t p = *s / 2;
        dst[p] = src[p];
        dst[p + 1] = src[H + p];
        dst[H + p] = src[p + 1];
        dst[H + p + 1] = src[H + p + 1];
    }
}

template void permute_in_place<float>(float*, const int32_t*, int64_t);
template void permute_in_place<double>(double*, const int32_t*, int64_t);
template void permute_in_place<Tav32fc>(Tav32fc*, const int32_t*, int64_t);
template void permute_in_place<Tav64fc>(Tav64fc*, const int32_t*, int64_t);
template void permute_copy<float>(const float*, float*, const int32_t*, int64_t);
template void permute_copy<double>(const double*, double*, const int32_t*, int64_t);

// ---- scale pass -------------------------------------------------------------

// The multiplication by a constant of the arithmetic family; every count
// here fits in 32 bits (at most 2^28 values).
template <> void scale_values<float>(float* p, int64_t n, float s) { tavsMulC_32f_I_body(s, p, int(n)); }
template <> void scale_values<double>(double* p, int64_t n, double s) { tavsMulC_64f_I_body(s, p, int(n)); }

} // namespace tavs::fft

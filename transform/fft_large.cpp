// The complex FFT drivers: direct kernels up to 32 points, the single-level
// radix-4 transform up to 1024 points, and above that the blocked merge
// (1024-point blocks joined by radix-2 passes) or the two-factor step
// N = R * M (rows of M points, then columns gathered four at a time into
// the work buffer, twiddled, transformed with R points and put back).
#include "internal/body.h"
#include "internal/fft.h"
#include "internal/fft_kernels.h"
#include "internal/fft_simd.h"
#include "internal/fft_soa.h"
#include "internal/rfft.h"

#include <emmintrin.h>

#include <type_traits>

namespace tavs::fft {

using namespace simd;

namespace {

// ---- views of the data: interleaved or split --------------------------------

template <class S> struct Inter {
    S* p;
    Inter at(int64_t i) const { return {p + 2 * i}; }
};
template <class S> struct Split {
    S* re;
    S* im;
    Split at(int64_t i) const { return {re + i, im + i}; }
};

// The kernel on a piece of the data; firstDone: its first pass already ran
// (fused with the bit reversal), interleaved data only.
template <class S, bool Inv> void radix4(Inter<S> v, int64_t n, const S* tw, bool firstDone)
{
    if (firstDone) radix4_after_first<S, Inv>(v.p, n, tw);
    else radix4_interleaved<S, Inv>(v.p, n, tw);
}
template <class S, bool Inv> void radix4(Split<S> v, int64_t n, const S* tw, bool)
{
    radix4_split<S, Inv>(v.re, v.im, n, tw);
}
template <class S> void scale_view(Inter<S> v, int64_t n, S s) { scale_values(v.p, 2 * n, s); }
template <class S> void scale_view(Split<S> v, int64_t n, S s)
{
    scale_values(v.re, n, s);
    scale_values(v.im, n, s);
}

// ---- complex products on one value -------------------------------------------

template <bool Inv, class S> inline void cmul1(S xr, S xi, S wr, S wi, S& yr, S& yi)
{
    if (Inv) wi = -wi;
    yr = xr * wr - xi * wi;
    yi = xr * wi + xi * wr;
}

// ---- merge pass: blocks of span s joined into blocks of 2s ------------------

constexpr int64_t kStrip32 = 256, kStrip64 = 128;

// Within each pair of adjacent blocks (a, c) of span s: for k < s/2 the
// butterfly (a + w c, a - w c) with w = W_2s^k from the merge table of L,
// then for k + s/2 the same entry rotated by -i (W^(k + s/2) = -i W^k).
template <bool Inv> void merge_pass(Inter<float> v, int64_t L, int64_t s, const float* T)
{
    const int64_t h = s / 2, step = L / (2 * s);
    for (int64_t b = 0; b < L; b += 2 * s) {
        float* a = v.p + 2 * b;
        float* c = a + 2 * s;
        for (int64_t ks = 0; ks < h; ks += kStrip32) {
            const int64_t ke = ks + kStrip32 < h ? ks + kStrip32 : h;
            for (int64_t k = ks; k < ke; k += 2) {
                const __m128 w = step == 1 ? _mm_load_ps(T + 2 * k) : load2(T + 2 * k * step, T + 2 * (k + 1) * step);
                const __m128 x = _mm_loadu_ps(a + 2 * k), t = cmul<Inv>(_mm_loadu_ps(c + 2 * k), w);
                _mm_storeu_ps(a + 2 * k, _mm_add_ps(x, t));
                _mm_storeu_ps(c + 2 * k, _mm_sub_ps(x, t));
            }
            for (int64_t k = ks; k < ke; k += 2) {
                const __m128 w = step == 1 ? _mm_load_ps(T + 2 * k) : load2(T + 2 * k * step, T + 2 * (k + 1) * step);
                float* a2 = a + 2 * (k + h);
                float* c2 = c + 2 * (k + h);
                const __m128 x = _mm_loadu_ps(a2), t = rot<Inv>(cmul<Inv>(_mm_loadu_ps(c2), w));
                _mm_storeu_ps(a2, _mm_add_ps(x, t));
                _mm_storeu_ps(c2, _mm_sub_ps(x, t));
            }
        }
    }
}
template <bool Inv> void merge_pass(Inter<double> v, int64_t L, int64_t s, const double* T)
{
    const int64_t h = s / 2, step = L / (2 * s);
    for (int64_t b = 0; b < L; b += 2 * s) {
        double* a = v.p + 2 * b;
        double* c = a + 2 * s;
        for (int64_t ks = 0; ks < h; ks += kStrip64) {
            const int64_t ke = ks + kStrip64 < h ? ks + kStrip64 : h;
            for (int64_t k = ks; k < ke; ++k) {
                const __m128d w = _mm_load_pd(T + 2 * k * step);
                const __m128d x = _mm_loadu_pd(a + 2 * k), t = cmul<Inv>(_mm_loadu_pd(c + 2 * k), w);
                _mm_storeu_pd(a + 2 * k, _mm_add_pd(x, t));
                _mm_storeu_pd(c + 2 * k, _mm_sub_pd(x, t));
            }
            for (int64_t k = ks; k < ke; ++k) {
                const __m128d w = _mm_load_pd(T + 2 * k * step);
                double* a2 = a + 2 * (k + h);
                double* c2 = c + 2 * (k + h);
                const __m128d x = _mm_loadu_pd(a2), t = rot<Inv>(cmul<Inv>(_mm_loadu_pd(c2), w));
                _mm_storeu_pd(a2, _mm_add_pd(x, t));
                _mm_storeu_pd(c2, _mm_sub_pd(x, t));
            }
        }
    }
}
template <bool Inv, class S> void merge_pass(Split<S> v, int64_t L, int64_t s, const S* T)
{
    const int64_t h = s / 2, step = L / (2 * s);
    const int64_t strip = sizeof(S) == 4 ? kStrip32 : kStrip64;
    for (int64_t b = 0; b < L; b += 2 * s) {
        S* ar = v.re + b;
        S* ai = v.im + b;
        S* cr = ar + s;
        S* ci = ai + s;
        for (int64_t ks = 0; ks < h; ks += strip) {
            const int64_t ke = ks + strip < h ? ks + strip : h;
            for (int64_t k = ks; k < ke; ++k) {
                S tr, ti;
                cmul1<Inv>(cr[k], ci[k], T[2 * k * step], T[2 * k * step + 1], tr, ti);
                const S xr = ar[k], xi = ai[k];
                ar[k] = xr + tr;
                ai[k] = xi + ti;
                cr[k] = xr - tr;
                ci[k] = xi - ti;
            }
            for (int64_t k = ks; k < ke; ++k) {
                S tr, ti;
                cmul1<Inv>(cr[k + h], ci[k + h], T[2 * k * step], T[2 * k * step + 1], tr, ti);
                const S r = tr; // rotation by -i (forward) or +i (inverse)
                if (Inv) {
                    tr = -ti;
                    ti = r;
                } else {
                    tr = ti;
                    ti = -r;
                }
                const S xr = ar[k + h], xi = ai[k + h];
                ar[k + h] = xr + tr;
                ai[k + h] = xi + ti;
                cr[k + h] = xr - tr;
                ci[k + h] = xi - ti;
            }
        }
    }
}

// ---- column gather and scatter ------------------------------------------------

// Four columns c .. c+3 of R rows of length M, each value times its column
// twiddle, into R rows of four values in the work buffer; the column
// transforms then run side by side on those rows. One row at a time here;
// the driver walks the rows.
// In 32f the rows of the work buffer hold [re x4, im x4] (the form of
// radix4_rows4_soa).
template <bool Inv> inline soa::Soa gather_soa(Inter<float> v, int64_t r, int64_t M, int64_t c, const float* ct)
{
    const float* row = v.p + 2 * (r * M + c);
    const __m128 x01 = _mm_loadu_ps(row), x23 = _mm_loadu_ps(row + 4);
    const __m128 w01 = _mm_load_ps(ct + 8 * r), w23 = _mm_load_ps(ct + 8 * r + 4);
    const __m128 xr = _mm_shuffle_ps(x01, x23, _MM_SHUFFLE(2, 0, 2, 0)), xi = _mm_shuffle_ps(x01, x23, _MM_SHUFFLE(3, 1, 3, 1));
    const __m128 wr = _mm_shuffle_ps(w01, w23, _MM_SHUFFLE(2, 0, 2, 0)), wi = _mm_shuffle_ps(w01, w23, _MM_SHUFFLE(3, 1, 3, 1));
    // x * w, or x * conj(w) for the inverse.
    if (Inv) return {_mm_add_ps(_mm_mul_ps(xr, wr), _mm_mul_ps(xi, wi)), _mm_sub_ps(_mm_mul_ps(xi, wr), _mm_mul_ps(xr, wi))};
    return {_mm_sub_ps(_mm_mul_ps(xr, wr), _mm_mul_ps(xi, wi)), _mm_add_ps(_mm_mul_ps(xi, wr), _mm_mul_ps(xr, wi))};
}
template <bool Inv> inline void gather_row(Inter<float> v, int64_t r, int64_t M, int64_t c, const float* ct, float* w)
{
    const soa::Soa x = gather_soa<Inv>(v, r, M, c, ct);
    _mm_store_ps(w + 8 * r, x.r);
    _mm_store_ps(w + 8 * r + 4, x.i);
}
// Rows r .. r+3 of columns c .. c+3 gathered, with the column kernel's
// first stage (a butterfly on each four rows) done on them, into w.
template <bool Inv>
inline void gather_first_stage(Inter<float> v, int64_t r, int64_t M, int64_t c, const float* ct, float* w)
{
    soa::Soa x0, x1, x2, x3;
    soa::bfly4_soa<Inv>(gather_soa<Inv>(v, r, M, c, ct), gather_soa<Inv>(v, r + 1, M, c, ct),
                        gather_soa<Inv>(v, r + 2, M, c, ct), gather_soa<Inv>(v, r + 3, M, c, ct), x0, x1, x2, x3);
    const soa::Soa x[4] = {x0, x1, x2, x3};
    for (int u = 0; u < 4; ++u) {
        _mm_store_ps(w + 8 * (r + u), x[u].r);
        _mm_store_ps(w + 8 * (r + u) + 4, x[u].i);
    }
}
inline void scatter_row(Inter<float> v, int64_t q, int64_t M, int64_t c, const float* w)
{
    float* row = v.p + 2 * (q * M + c);
    const __m128 re = _mm_load_ps(w + 8 * q), im = _mm_load_ps(w + 8 * q + 4);
    _mm_storeu_ps(row, _mm_unpacklo_ps(re, im));
    _mm_storeu_ps(row + 4, _mm_unpackhi_ps(re, im));
}
template <bool Inv>
inline void gather_row(Inter<double> v, int64_t r, int64_t M, int64_t c, const double* ct, double* w)
{
    const double* row = v.p + 2 * (r * M + c);
    for (int j = 0; j < 4; ++j)
        _mm_store_pd(w + 8 * r + 2 * j, cmul<Inv>(_mm_loadu_pd(row + 2 * j), _mm_load_pd(ct + 8 * r + 2 * j)));
}
inline void scatter_row(Inter<double> v, int64_t q, int64_t M, int64_t c, const double* w)
{
    double* row = v.p + 2 * (q * M + c);
    for (int j = 0; j < 4; ++j) _mm_storeu_pd(row + 2 * j, _mm_load_pd(w + 8 * q + 2 * j));
}
// Split data: the gather puts re and im into the same rows, as [re x4,
// im x4] in 32f and interleaved in 64f.
template <class S> constexpr int64_t kImOff = sizeof(S) == 4 ? 4 : 1; // offset of im j from re j
template <class S> constexpr int64_t kReStep = sizeof(S) == 4 ? 1 : 2; // from re j to re j+1
template <bool Inv, class S> inline void gather_row(Split<S> v, int64_t r, int64_t M, int64_t c, const S* ct, S* w)
{
    for (int j = 0; j < 4; ++j) {
        const int64_t i = r * M + c + j;
        S* o = w + 8 * r + kReStep<S> * j;
        cmul1<Inv>(v.re[i], v.im[i], ct[8 * r + 2 * j], ct[8 * r + 2 * j + 1], o[0], o[kImOff<S>]);
    }
}
template <class S> inline void scatter_row(Split<S> v, int64_t q, int64_t M, int64_t c, const S* w)
{
    for (int j = 0; j < 4; ++j) {
        const int64_t i = q * M + c + j;
        const S* o = w + 8 * q + kReStep<S> * j;
        v.re[i] = o[0];
        v.im[i] = o[kImOff<S>];
    }
}

// The column transforms on the rows of the work buffer.
template <bool Inv> inline void columns(float* w, int64_t R, const float* tw) { radix4_rows4_soa<Inv>(w, R, tw); }
template <bool Inv> inline void columns(double* w, int64_t R, const double* tw) { radix4_rows4<Inv>(w, R, tw); }

// ---- the large path -------------------------------------------------------------

// Floats of the second column block of the 32f column pass (columns of up
// to 256 points: 8 KB on the stack).
constexpr int64_t kSecondBlockFloats = 2048;

template <class S, bool Inv, class V> struct Large {
    const FloatSpec<S>* spec;
    bool scaled;
    S scale;
    S* work;
    bool firstDone;

    // A complete transform of 2^m points in place on bit-reversed data.
    void row(V v, int m, int level) const
    {
        const int64_t n = int64_t(1) << m;
        if (m <= 10) {
            radix4<S, Inv>(v, n, spec->radixFour, firstDone);
            if (scaled) scale_view(v, n, scale);
        } else if (first_factor_bits<S>(m) == 0) {
            blocked(v, m);
        } else {
            two_factor(v, m, level);
        }
    }

    // 1024-point blocks from the highest down, then radix-2 merges up to L.
    void blocked(V v, int m) const
    {
        const int64_t L = int64_t(1) << m; // 2048 or 4096: a single chunk
        for (int64_t b = L - 1024; b >= 0; b -= 1024) {
            radix4<S, Inv>(v.at(b), 1024, spec->radixFour, firstDone);
            if (scaled) scale_view(v.at(b), 1024, scale);
        }
        for (int64_t s = 1024; s < L; s *= 2) merge_pass<Inv>(v, L, s, spec->merge);
    }

    void two_factor(V v, int m, int level) const
    {
        const int F = first_factor_bits<S>(m);
        const int64_t R = int64_t(1) << F, M = int64_t(1) << (m - F);
        for (int64_t r = 0; r < R; ++r) row(v.at(r * M), m - F, level + 1);
        columns_pass(v, m, level);
    }

    // The column half of the two-factor step.
    void columns_pass(V v, int m, int level) const
    {
        const int F = first_factor_bits<S>(m);
        const int64_t R = int64_t(1) << F, M = int64_t(1) << (m - F);
        const S* cols = spec->levelColumns[level];
        const S* r4 = spec->levelRadixFour[level];
        if constexpr (std::is_same_v<V, Inter<float>>) {
            if (R * 8 <= kSecondBlockFloats && M % 8 == 0) {
                columns_by_eight(v, R, M, cols, r4);
                return;
            }
        }
        // The scatter of columns c .. c+3 and the gather of c+4 .. c+7 share
        // one walk over the rows: both touch the same cache line of a row,
        // which is then fetched once instead of twice.
        for (int64_t r = 0; r < R; ++r) gather_row<Inv>(v, r, M, 0, cols, work);
        for (int64_t c = 0; c < M; c += 4) {
            columns<Inv>(work, R, r4);
            if (c + 4 < M) {
                const S* next = cols + ((c + 4) / 4) * R * 8;
                for (int64_t r = 0; r < R; ++r) {
                    scatter_row(v, r, M, c, work);
                    gather_row<Inv>(v, r, M, c + 4, next, work);
                }
            } else {
                for (int64_t r = 0; r < R; ++r) scatter_row(v, r, M, c, work);
            }
        }
    }

    // 32f interleaved: eight columns (one cache line of a row) at a time,
    // in the work buffer and a second block on the stack. The walk that
    // scatters c .. c+7 and gathers c+8 .. c+15 then uses every row line it
    // touches whole, and it gathers four rows at a time to do the column
    // kernel's first stage on them before they are stored.
    void columns_by_eight(Inter<float> v, int64_t R, int64_t M, const float* cols, const float* r4) const
    {
        alignas(64) float second[kSecondBlockFloats];
        float* const w0 = work;
        float* const w1 = second;
        const int64_t T = R * 8; // floats of the twiddles of one group of four
        for (int64_t r = 0; r < R; r += 4) {
            gather_first_stage<Inv>(v, r, M, 0, cols, w0);
            gather_first_stage<Inv>(v, r, M, 4, cols + T, w1);
        }
        for (int64_t c = 0; c < M; c += 8) {
            radix4_rows4_soa_after_first<Inv>(w0, w1, R, r4);
            if (c + 8 < M) {
                const float* next = cols + ((c + 8) / 4) * T;
                for (int64_t r = 0; r < R; r += 4) {
                    for (int u = 0; u < 4; ++u) {
                        scatter_row(v, r + u, M, c, w0);
                        scatter_row(v, r + u, M, c + 4, w1);
                    }
                    gather_first_stage<Inv>(v, r, M, c + 8, next, w0);
                    gather_first_stage<Inv>(v, r, M, c + 12, next + T, w1);
                }
            } else {
                for (int64_t r = 0; r < R; ++r) {
                    scatter_row(v, r, M, c, w0);
                    scatter_row(v, r, M, c + 4, w1);
                }
            }
        }
    }
};

template <class S, bool Inv, class V>
void run(const FloatSpec<S>* spec, int m, bool scaled, S scale, V v, unsigned char* work, bool firstDone)
{
    Large<S, Inv, V> l{spec, scaled, scale, reinterpret_cast<S*>(work), firstDone};
    l.row(v, m, 0);
}

// Length of the innermost radix-4 kernel of order m: the rows of the last
// level, or the 1024-point blocks of a blocked merge.
template <class S> int64_t innermost_length(int m)
{
    while (m > 10 && first_factor_bits<S>(m) != 0) m -= first_factor_bits<S>(m);
    return m > 10 ? 1024 : int64_t(1) << m;
}

// One level of rows short enough for the local block (32f): the rows run
// four side by side, straight from the source when src is given (else in
// place on dst, already in bit-reversed order), then the columns.
template <class S> bool soa_rows_fit(int m)
{
    const int F = first_factor_bits<S>(m);
    return sizeof(S) == 4 && F != 0 && (int64_t(1) << (m - F)) <= kSoaRowsMax;
}
template <class S>
void soa_two_factor(const FloatSpec<S>* spec, int m, bool inverse, bool scaled, S scale, const S* src, S* dst,
                    unsigned char* work)
{
    if constexpr (sizeof(S) == 4) {
        const int64_t N = int64_t(1) << m, M = N >> first_factor_bits<S>(m);
        const float* tw = spec->radixFour;
        if (src && inverse) rows_soa_from_src<true>(src, dst, N, M, tw, scaled, scale);
        else if (src) rows_soa_from_src<false>(src, dst, N, M, tw, scaled, scale);
        else if (inverse) rows_soa_in_place<true>(dst, N, M, tw, scaled, scale);
        else rows_soa_in_place<false>(dst, N, M, tw, scaled, scale);
        S* w = reinterpret_cast<S*>(work);
        if (inverse) Large<S, true, Inter<S>>{spec, scaled, scale, w, true}.columns_pass(Inter<S>{dst}, m, 0);
        else Large<S, false, Inter<S>>{spec, scaled, scale, w, true}.columns_pass(Inter<S>{dst}, m, 0);
    }
}

template <class S> using Cplx = std::conditional_t<sizeof(S) == 4, Tav32fc, Tav64fc>;

} // namespace

template <class S>
void complex_interleaved(const FloatSpec<S>* spec, int m, bool inverse, bool scaled, S scale, const S* src, S* dst,
                         unsigned char* work)
{
    if (m <= 5) {
        direct_interleaved<S>(m, inverse, scaled, scale, src, dst);
        return;
    }
    const int64_t N = int64_t(1) << m;
    using C = Cplx<S>;
    // In place: the swap list. Out of place: the bit reversal fused with the
    // kernel's first pass, which reads every block straight from src.
    const bool fused = src != dst;
    if (soa_rows_fit<S>(m)) {
        if (!fused) permute_in_place(reinterpret_cast<C*>(dst), spec->swapList, N);
        soa_two_factor<S>(spec, m, inverse, scaled, scale, fused ? src : nullptr, dst, work);
        return;
    }
    if (!fused) permute_in_place(reinterpret_cast<C*>(dst), spec->swapList, N);
    else if (inverse) permute_first_pass<S, true>(src, dst, N, innermost_length<S>(m), spec->radixFour);
    else permute_first_pass<S, false>(src, dst, N, innermost_length<S>(m), spec->radixFour);
    if (inverse) run<S, true>(spec, m, scaled, scale, Inter<S>{dst}, work, fused);
    else run<S, false>(spec, m, scaled, scale, Inter<S>{dst}, work, fused);
}
template void complex_interleaved<float>(const FloatSpec<float>*, int, bool, bool, float, const float*, float*,
                                         unsigned char*);
template void complex_interleaved<double>(const FloatSpec<double>*, int, bool, bool, double, const double*, double*,
                                          unsigned char*);

template <class S>
void complex_interleaved_reversed(const FloatSpec<S>* spec, int m, bool inverse, bool scaled, S scale, S* d,
                                  unsigned char* work)
{
    if (soa_rows_fit<S>(m)) soa_two_factor<S>(spec, m, inverse, scaled, scale, nullptr, d, work);
    else if (inverse) run<S, true>(spec, m, scaled, scale, Inter<S>{d}, work, false);
    else run<S, false>(spec, m, scaled, scale, Inter<S>{d}, work, false);
}
template void complex_interleaved_reversed<float>(const FloatSpec<float>*, int, bool, bool, float, float*,
                                                  unsigned char*);
template void complex_interleaved_reversed<double>(const FloatSpec<double>*, int, bool, bool, double, double*,
                                                   unsigned char*);

bool real_inverse_fused(const FloatSpec<float>* spec, float s0, float s1, const float* src, int off, float* dst,
                        unsigned char* work)
{
    const int m = spec->order - 1;
    if (!soa_rows_fit<float>(m) || spec->order >= Dims<float>::kTwoLevelReal) return false;
    const int F = first_factor_bits<float>(m);
    const int64_t N = int64_t(1) << m, M = N >> F;
    if (16 * M > kSoaRowsFloats || (N / M) < 8) return false;
    const bool scaled = spec->invScales != 0;
    const float scale = spec->scale.value;
    real_rows_from_pre(src, off, s0, s1, spec->realInv, dst, N, M, spec->radixFour, scaled, scale);
    Large<float, true, Inter<float>>{spec, scaled, scale, reinterpret_cast<float*>(work), true}.columns_pass(
        Inter<float>{dst}, m, 0);
    return true;
}

template <class S>
void complex_split(const FloatSpec<S>* spec, int m, bool inverse, bool scaled, S scale, const S* srcRe,
                   const S* srcIm, S* dstRe, S* dstIm, unsigned char* work)
{
    if (m <= 5) {
        direct_split<S>(m, inverse, scaled, scale, srcRe, srcIm, dstRe, dstIm);
        return;
    }
    const int64_t N = int64_t(1) << m;
    if (srcRe == dstRe) permute_in_place(dstRe, spec->swapList, N);
    else permute_copy(srcRe, dstRe, spec->swapList, N);
    if (srcIm == dstIm) permute_in_place(dstIm, spec->swapList, N);
    else permute_copy(srcIm, dstIm, spec->swapList, N);
    if (inverse) run<S, true>(spec, m, scaled, scale, Split<S>{dstRe, dstIm}, work, false);
    else run<S, false>(spec, m, scaled, scale, Split<S>{dstRe, dstIm}, work, false);
}
template void complex_split<float>(const FloatSpec<float>*, int, bool, bool, float, const float*, const float*,
                                   float*, float*, unsigned char*);
template void complex_split<double>(const FloatSpec<double>*, int, bool, bool, double, const double*,
                                    const double*, double*, double*, unsigned char*);

} // namespace tavs::fft

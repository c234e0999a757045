// GetSize against the documented formulas for every kind, order, flag and
// hint; and the contents of the tables that Init lays in a record, every
// table of many records compared bit for bit with its rule.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <functional>
#include <vector>

#include "fft_sizes.h"
#include "fft_table_ref.h"
#include "internal/fft.h"
#include "tavs.h"

namespace {

using GetSizeFn = Status (*)(int, int, int, int*, int*, int*);

struct Kind {
    const char* name;
    GetSizeFn fn;
    int limit;
    std::function<fs::Sizes(int, int)> sizes; // (order, hint)
};

const std::vector<Kind>& kinds()
{
    static const std::vector<Kind> k = {
        {"C_32fc", tavsFFTGetSize_C_32fc, 27, [](int o, int) { return fs::complex_sizes(o, false); }},
        {"C_32f", tavsFFTGetSize_C_32f, 27, [](int o, int) { return fs::complex_sizes(o, false); }},
        {"C_64fc", tavsFFTGetSize_C_64fc, 26, [](int o, int) { return fs::complex_sizes(o, true); }},
        {"C_64f", tavsFFTGetSize_C_64f, 26, [](int o, int) { return fs::complex_sizes(o, true); }},
        {"R_32f", tavsFFTGetSize_R_32f, 28, [](int o, int) { return fs::real_sizes(o, false); }},
        {"R_64f", tavsFFTGetSize_R_64f, 27, [](int o, int) { return fs::real_sizes(o, true); }},
        {"C_16sc", tavsFFTGetSize_C_16sc, 27, [](int o, int h) { return fs::small_sizes(0, o, h); }},
        {"C_16s", tavsFFTGetSize_C_16s, 27, [](int o, int h) { return fs::small_sizes(1, o, h); }},
        {"R_16s", tavsFFTGetSize_R_16s, 28, [](int o, int h) { return fs::small_sizes(2, o, h); }},
        {"C_32sc", tavsFFTGetSize_C_32sc, 26, [](int o, int) { return fs::wide_sizes(0, o); }},
        {"C_32s", tavsFFTGetSize_C_32s, 26, [](int o, int) { return fs::wide_sizes(0, o); }},
        {"R_32s", tavsFFTGetSize_R_32s, 27, [](int o, int) { return fs::wide_sizes(1, o); }},
        {"R_16s32s", tavsFFTGetSize_R_16s32s, 28, [](int o, int) { return fs::wide_sizes(2, o); }},
    };
    return k;
}

TEST(FFTGetSize, EveryKindOrderFlagAndHintMatchesTheFormulas)
{
    for (const Kind& k : kinds())
        for (int order = 0; order <= 30; ++order)
            for (int flag : {ScaleFwdByLen, ScaleInvByLen, ScaleBothBySqrtLen, ScaleNever})
                for (int hint : {0, 1, 2, 99}) {
                    int spec = -1, init = -1, work = -1;
                    const Status st = k.fn(order, flag, hint, &spec, &init, &work);
                    if (order > k.limit) {
                        EXPECT_EQ(st, ErrFftOrder) << k.name << " " << order;
                        EXPECT_EQ(spec, -1);
                        continue;
                    }
                    ASSERT_EQ(st, StatusOk) << k.name << " " << order;
                    const fs::Sizes e = k.sizes(order, hint);
                    EXPECT_EQ(spec, e.spec) << k.name << " order " << order << " hint " << hint;
                    EXPECT_EQ(init, e.init) << k.name << " order " << order << " hint " << hint;
                    EXPECT_EQ(work, e.work) << k.name << " order " << order << " hint " << hint;
                }
}

TEST(FFTGetSize, CheckOrder)
{
    int a, b, c;
    for (const Kind& k : kinds()) {
        // The unsigned order test comes before the pointers.
        EXPECT_EQ(k.fn(-1, ScaleNever, 0, nullptr, nullptr, nullptr), ErrFftOrder) << k.name;
        EXPECT_EQ(k.fn(31, 3, 0, &a, &b, &c), ErrFftOrder) << k.name;
        EXPECT_EQ(k.fn(INT32_MIN, ScaleNever, 0, &a, &b, &c), ErrFftOrder) << k.name;
        // Pointers before the flag.
        EXPECT_EQ(k.fn(4, 3, 0, nullptr, &b, &c), ErrNullPtr) << k.name;
        EXPECT_EQ(k.fn(4, 3, 0, &a, nullptr, &c), ErrNullPtr) << k.name;
        EXPECT_EQ(k.fn(4, 3, 0, &a, &b, nullptr), ErrNullPtr) << k.name;
        // The flag before the kind's order limit.
        EXPECT_EQ(k.fn(30, 3, 0, &a, &b, &c), ErrFftFlag) << k.name;
        EXPECT_EQ(k.fn(k.limit + 1, ScaleNever, 0, &a, &b, &c), ErrFftOrder) << k.name;
        for (int bad : {0, 3, 5, 6, 7, 9, 12, 16, -1}) EXPECT_EQ(k.fn(4, bad, 0, &a, &b, &c), ErrFftFlag) << bad;
        // Hint is never a failure.
        EXPECT_EQ(k.fn(4, ScaleNever, 99, &a, &b, &c), StatusOk);
        EXPECT_EQ(k.fn(4, ScaleNever, -5, &a, &b, &c), StatusOk);
    }
}

TEST(FFTGetSize, DocumentedExamples)
{
    int spec, init, work;
    // Order 0 of the 16-bit kinds: a 136-byte record and no work.
    ASSERT_EQ(tavsFFTGetSize_C_16s(0, ScaleNever, 0, &spec, &init, &work), StatusOk);
    EXPECT_EQ(spec, 136);
    EXPECT_EQ(work, 0);
    ASSERT_EQ(tavsFFTGetSize_C_16sc(0, ScaleNever, 2, &spec, &init, &work), StatusOk);
    EXPECT_EQ(spec, 136);
    ASSERT_EQ(tavsFFTGetSize_R_16s(0, ScaleNever, 1, &spec, &init, &work), StatusOk);
    EXPECT_EQ(spec, 136);
    // Order 8 with hint 0 is the integer path, order 9 the float path.
    ASSERT_EQ(tavsFFTGetSize_C_16sc(8, ScaleNever, 0, &spec, &init, &work), StatusOk);
    EXPECT_EQ(work, 8 * 256 + 64);
    ASSERT_EQ(tavsFFTGetSize_C_16sc(9, ScaleNever, 0, &spec, &init, &work), StatusOk);
    EXPECT_EQ(work, 8 * 512 + 64);
    EXPECT_EQ(spec, fs::complex_sizes(9, false).spec + 192);
    // Hint 99 (or 2) selects the float path at any order.
    ASSERT_EQ(tavsFFTGetSize_C_16s(3, ScaleNever, 99, &spec, &init, &work), StatusOk);
    EXPECT_EQ(spec, 208 + 192);
    ASSERT_EQ(tavsFFTGetSize_C_32fc(0, ScaleNever, 0, &spec, &init, &work), StatusOk);
    EXPECT_EQ(spec, 208);
    EXPECT_EQ(work, 0);
    ASSERT_EQ(tavsFFTGetSize_C_32fc(5, ScaleNever, 0, &spec, &init, &work), StatusOk);
    EXPECT_EQ(spec, 208);
    ASSERT_EQ(tavsFFTGetSize_C_32fc(6, ScaleNever, 0, &spec, &init, &work), StatusOk);
    EXPECT_EQ(spec, 9 * 64 + 384);
    EXPECT_EQ(init, 0);
    // Order 13 in 32f: R = 32, work = 32 * 32 + 64.
    ASSERT_EQ(tavsFFTGetSize_C_32fc(13, ScaleNever, 0, &spec, &init, &work), StatusOk);
    EXPECT_EQ(work, 32 * 32 + 64);
    // FirstFactorBits 0 needs no work buffer.
    ASSERT_EQ(tavsFFTGetSize_C_32fc(12, ScaleNever, 0, &spec, &init, &work), StatusOk);
    EXPECT_EQ(work, 0);
    ASSERT_EQ(tavsFFTGetSize_C_64fc(11, ScaleNever, 0, &spec, &init, &work), StatusOk);
    EXPECT_EQ(work, 0);
    ASSERT_EQ(tavsFFTGetSize_C_64fc(12, ScaleNever, 0, &spec, &init, &work), StatusOk);
    EXPECT_EQ(work, 64 * 16 + 64);
}

// ---- table contents ---------------------------------------------------------

template <class S> struct Built {
    std::vector<unsigned char> block, scratch;
    tavs::fft::FloatSpec<S>* rec = nullptr;
};

template <class S, class Spec, class InitFn, class SizeFn>
Built<S> build(int order, SizeFn getSize, InitFn init)
{
    Built<S> b;
    int spec, initSz, work;
    EXPECT_EQ(getSize(order, ScaleNever, 0, &spec, &initSz, &work), StatusOk);
    b.block.assign(size_t(spec), 0xEE);
    b.scratch.assign(size_t(initSz) + 1, 0xEE);
    Spec* p = nullptr;
    EXPECT_EQ(init(&p, order, ScaleNever, 0, b.block.data(), initSz ? b.scratch.data() : nullptr), StatusOk);
    b.rec = reinterpret_cast<tavs::fft::FloatSpec<S>*>(p);
    return b;
}

double cos2pi(int64_t e, int64_t n) { return std::cos(2 * M_PI * double(e % n) / double(n)); }
double msin2pi(int64_t e, int64_t n) { return -std::sin(2 * M_PI * double(e % n) / double(n)); }

// The documented quarter-wave rule of the 1024-point circle, rounded to S,
// and the (cos, -sin) of W^e read from it by quadrant folding.
template <class S> S quarter(int64_t k)
{
    if (k == 256) return S(1);
    return S(k <= 128 ? std::sin(2 * M_PI * double(k) / 1024) : std::cos(2 * M_PI * double(256 - k) / 1024));
}
template <class S> void folded(int64_t e, S& c, S& ms)
{
    e &= 1023;
    S co, si;
    if (e <= 256) co = quarter<S>(256 - e), si = quarter<S>(e);
    else if (e <= 512) co = -quarter<S>(e - 256), si = quarter<S>(512 - e);
    else if (e <= 768) co = -quarter<S>(768 - e), si = -quarter<S>(e - 512);
    else co = quarter<S>(e - 768), si = -quarter<S>(1024 - e);
    c = co;
    ms = -si;
}

unsigned rev(unsigned v, int bits)
{
    unsigned r = 0;
    for (int b = 0; b < bits; ++b, v >>= 1) r = (r << 1) | (v & 1);
    return r;
}

TEST(FFTTables, SwapListLayout)
{
    for (int order : {6, 7, 8, 10, 11}) {
        auto b = build<float, FFTSpec_C_32fc>(order, tavsFFTGetSize_C_32fc, tavsFFTInit_C_32fc);
        const int32_t* list = b.rec->swapList;
        const int bits = order - 2;
        const int32_t quarter = 1 << bits;
        int pos = 0;
        std::vector<int32_t> self;
        for (int32_t i = 1; i < quarter; ++i) {
            const int32_t j = int32_t(rev(unsigned(i), bits));
            if (i < j) {
                EXPECT_EQ(list[pos], 4 * i);
                EXPECT_EQ(list[pos + 1], 4 * j);
                pos += 2;
            } else if (i == j) {
                self.push_back(4 * i);
            }
        }
        EXPECT_EQ(list[pos], 0);
        EXPECT_EQ(list[quarter], 0);
        for (size_t s = 0; s < self.size(); ++s) EXPECT_EQ(list[quarter - 1 - int(s)], self[s]);
    }
}

TEST(FFTTables, RadixFourTriples)
{
    for (int order : {6, 9, 10}) {
        auto b = build<float, FFTSpec_C_32fc>(order, tavsFFTGetSize_C_32fc, tavsFFTInit_C_32fc);
        auto d = build<double, FFTSpec_C_64fc>(order, tavsFFTGetSize_C_64fc, tavsFFTInit_C_64fc);
        const int64_t L = int64_t(1) << order;
        for (int64_t k = 0; k <= L / 4; ++k)
            for (int j = 1; j <= 3; ++j) {
                const float* t = b.rec->radixFour + 6 * k + 2 * (j - 1);
                const double* u = d.rec->radixFour + 6 * k + 2 * (j - 1);
                float c, ms;
                double dc, dms;
                folded<float>(j * k * (1024 / L), c, ms);
                folded<double>(j * k * (1024 / L), dc, dms);
                EXPECT_EQ(t[0], c) << order << " " << k;
                EXPECT_EQ(t[1], ms) << order << " " << k;
                EXPECT_EQ(u[0], dc) << order << " " << k;
                EXPECT_EQ(u[1], dms) << order << " " << k;
                EXPECT_NEAR(u[0], cos2pi(j * k, L), 1e-15);
                EXPECT_NEAR(u[1], msin2pi(j * k, L), 1e-15);
            }
        // The quarter-wave table has exact 0 and 1: W^(L/4) = (0, -1) exactly.
        const float* q = b.rec->radixFour + 6 * (L / 4);
        EXPECT_EQ(q[0], 0.0f);
        EXPECT_EQ(q[1], -1.0f);
    }
}

TEST(FFTTables, MergeAndColumnTables)
{
    // Order 11: the merge table of W_2048^k, k < 512, and the 1024 table.
    auto m = build<float, FFTSpec_C_32fc>(11, tavsFFTGetSize_C_32fc, tavsFFTInit_C_32fc);
    for (int64_t k = 0; k < 512; ++k) {
        EXPECT_NEAR(m.rec->merge[2 * k], cos2pi(k, 2048), 6e-8);
        EXPECT_NEAR(m.rec->merge[2 * k + 1], msin2pi(k, 2048), 6e-8);
    }
    EXPECT_NEAR(m.rec->radixFour[6 * 1], cos2pi(1, 1024), 6e-8);
    EXPECT_EQ(m.rec->levelColumns[0], nullptr);
    // Order 13: R = 32 columns' radix-4 table, then W_N^(c rev(r)) in groups of four.
    auto t = build<float, FFTSpec_C_32fc>(13, tavsFFTGetSize_C_32fc, tavsFFTInit_C_32fc);
    const int64_t R = 32, M = 256, N = R * M;
    ASSERT_NE(t.rec->levelColumns[0], nullptr);
    EXPECT_EQ(t.rec->levelColumns[1], nullptr);
    EXPECT_NEAR(t.rec->levelRadixFour[0][6 * 1], cos2pi(1, R), 6e-8);
    const float* col = t.rec->levelColumns[0];
    for (int64_t c = 0; c < M; c += 4)
        for (int64_t r = 0; r < R; ++r)
            for (int64_t j = 0; j < 4; ++j) {
                const int64_t e = (c + j) * rev(unsigned(r), 5);
                const float* v = col + 2 * ((c / 4) * R * 4 + r * 4 + j);
                ASSERT_NEAR(v[0], cos2pi(e, N), 6e-8) << c << " " << r << " " << j;
                ASSERT_NEAR(v[1], msin2pi(e, N), 6e-8);
            }
    // Every table is 64-byte aligned and lies inside the caller's block.
    const auto* lo = t.block.data();
    const auto* hi = lo + t.block.size();
    for (const void* p : {static_cast<const void*>(t.rec->swapList), static_cast<const void*>(t.rec->radixFour),
                          static_cast<const void*>(t.rec->levelRadixFour[0]), static_cast<const void*>(col)}) {
        EXPECT_EQ(reinterpret_cast<uintptr_t>(p) & 63, 0u);
        EXPECT_GE(static_cast<const unsigned char*>(p), lo);
        EXPECT_LT(static_cast<const unsigned char*>(p), hi);
    }
}

TEST(FFTTables, LevelsOfTheLargestOrders)
{
    // Order 27 in 32f is 2^10 by 2^17, then 2^8 by 2^9; only the sizes are
    // looked at here (the record would take more than a gigabyte).
    fs::Prec p32{false}, p64{true};
    EXPECT_EQ(p32.ffb(27), 10);
    EXPECT_EQ(p32.ffb(17), 8);
    EXPECT_EQ(p32.ffb(23), 8);
    EXPECT_EQ(p32.ffb(15), 7);
    EXPECT_EQ(p64.ffb(12), 4);
    // A two-level record at 64f order 20: 2^9 by 2^11, the rows by blocked merge.
    auto d = build<double, FFTSpec_C_64fc>(20, tavsFFTGetSize_C_64fc, tavsFFTInit_C_64fc);
    EXPECT_NE(d.rec->levelColumns[0], nullptr);
    EXPECT_EQ(d.rec->levelColumns[1], nullptr);
    EXPECT_NE(d.rec->merge, nullptr);
    EXPECT_EQ(d.rec->workSize, 64 * 512);
    // 32f order 23: two levels (2^8 by 2^15, 2^7 by 2^8).
    int spec, init, work;
    ASSERT_EQ(tavsFFTGetSize_C_32fc(23, ScaleNever, 0, &spec, &init, &work), StatusOk);
    EXPECT_EQ(work, 32 * 256 + 64);
}

TEST(FFTTables, RealTwiddles)
{
    // Small form: fwd (0.5 cos t, 0.5 - 0.5 sin t), inv (cos t, -sin t), k < N/4.
    auto r = build<float, FFTSpec_R_32f>(8, tavsFFTGetSize_R_32f, tavsFFTInit_R_32f);
    const int64_t N = 256;
    ASSERT_NE(r.rec->realFwd, nullptr);
    for (int64_t k = 0; k < N / 4; ++k) {
        const double c = cos2pi(k, N), s = -msin2pi(k, N);
        EXPECT_NEAR(r.rec->realFwd[2 * k], 0.5 * c, 3e-8);
        EXPECT_NEAR(r.rec->realFwd[2 * k + 1], 0.5 - 0.5 * s, 3e-8);
        EXPECT_NEAR(r.rec->realInv[2 * k], c, 6e-8);
        EXPECT_NEAR(r.rec->realInv[2 * k + 1], -s, 6e-8);
    }
    // Order 6 has only the two real tables; order 7 the half-length tables too.
    auto r6 = build<double, FFTSpec_R_64f>(6, tavsFFTGetSize_R_64f, tavsFFTInit_R_64f);
    EXPECT_EQ(r6.rec->swapList, nullptr);
    EXPECT_NE(r6.rec->realInv, nullptr);
    auto r7 = build<double, FFTSpec_R_64f>(7, tavsFFTGetSize_R_64f, tavsFFTInit_R_64f);
    EXPECT_NE(r7.rec->swapList, nullptr);
    EXPECT_NE(r7.rec->radixFour, nullptr);
    EXPECT_NEAR(r7.rec->radixFour[6], cos2pi(1, 64), 1e-15);
    // Two-level form (64f from order 18): 512 inner entries of step 1, then
    // the outer entries of step 512; both tables equal.
    auto t = build<double, FFTSpec_R_64f>(18, tavsFFTGetSize_R_64f, tavsFFTInit_R_64f);
    const int64_t N2 = int64_t(1) << 18;
    for (int64_t k = 0; k < 512; k += 37) EXPECT_NEAR(t.rec->realFwd[2 * k], cos2pi(k, N2), 1e-15);
    const int64_t outer = N2 / 4 / 512;
    for (int64_t j = 0; j < outer; ++j) {
        EXPECT_NEAR(t.rec->realFwd[2 * (512 + j)], cos2pi(512 * j, N2), 1e-15);
        EXPECT_NEAR(t.rec->realFwd[2 * (512 + j) + 1], msin2pi(512 * j, N2), 1e-15);
    }
    EXPECT_EQ(std::memcmp(t.rec->realFwd, t.rec->realInv, size_t(2 * (512 + outer)) * sizeof(double)), 0);
    // 32f: order 18 still has the small form, order 19 the two-level form
    // with 1024 inner entries and N/4096 outer ones.
    auto s18 = build<float, FFTSpec_R_32f>(18, tavsFFTGetSize_R_32f, tavsFFTInit_R_32f);
    EXPECT_NEAR(s18.rec->realFwd[2 * 1024], 0.5 * cos2pi(1024, int64_t(1) << 18), 3e-8);
    auto s19 = build<float, FFTSpec_R_32f>(19, tavsFFTGetSize_R_32f, tavsFFTInit_R_32f);
    const int64_t N3 = int64_t(1) << 19;
    EXPECT_NEAR(s19.rec->realFwd[2 * 5], cos2pi(5, N3), 6e-8);
    for (int64_t j = 0; j < N3 / 4096; ++j) {
        EXPECT_NEAR(s19.rec->realFwd[2 * (1024 + j)], cos2pi(1024 * j, N3), 6e-8);
        EXPECT_NEAR(s19.rec->realInv[2 * (1024 + j) + 1], msin2pi(1024 * j, N3), 6e-8);
    }
}

} // namespace

// ---- every table of a record, bit for bit --------------------------------------


namespace {

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define FTAB_INSTRUMENTED 1
#endif
#endif
#if defined(__SANITIZE_ADDRESS__) || !defined(NDEBUG)
#ifndef FTAB_INSTRUMENTED
#define FTAB_INSTRUMENTED 1
#endif
#endif

template <class S> using FSpec = tavs::fft::FloatSpec<S>;

// Builds one record through InitAlloc and compares all its tables with the
// rules; returns the number of two-factor levels of its complex tables.
template <class S, class Spec>
int check_record(Status (*initAlloc)(Spec**, int, int, int), Status (*release)(Spec*), int order, bool real,
                 const fref::Reverser& rev)
{
    Spec* p = nullptr;
    EXPECT_EQ(initAlloc(&p, order, ScaleNever, 0), StatusOk) << order;
    if (!p) return -1;
    const auto* rec = reinterpret_cast<const FSpec<S>*>(p);
    const fref::Circle<S> circ(std::max(order, 10));
    const int m = real ? order - 1 : order;
    int levels = 0;
    {
        SCOPED_TRACE(std::string(real ? "real " : "complex ") + (sizeof(S) == 4 ? "32f" : "64f") + " order " +
                     std::to_string(order));
        levels = fref::check_complex_tables<S>(rec, m, circ, rev);
        if (real && order >= 6) fref::check_real_tables<S>(rec, order, circ);
        if (real && order < 6) EXPECT_EQ(rec->realFwd, nullptr);
    }
    EXPECT_EQ(release(p), StatusOk);
    return levels;
}

#ifdef FTAB_INSTRUMENTED
// Every path of the builders, at orders an instrumented build covers quickly.
const std::vector<int> kComplex32 = {0, 5, 6, 7, 10, 11, 12, 13, 14, 16, 19, 20, 23};
const std::vector<int> kComplex64 = {0, 5, 6, 9, 10, 11, 12, 13, 17, 20, 21};
const std::vector<int> kReal32 = {5, 6, 7, 11, 12, 13, 14, 18, 19, 20};
const std::vector<int> kReal64 = {5, 6, 7, 11, 12, 13, 17, 18, 19};
#else
// Every order up to 24, and the largest: 27 in 32f (2^10 columns by rows of
// 2^17, which split again into 2^8 by 2^9).
std::vector<int> upto(int top, std::vector<int> extra = {})
{
    std::vector<int> v;
    for (int o = 0; o <= top; ++o) v.push_back(o);
    v.insert(v.end(), extra.begin(), extra.end());
    return v;
}
const std::vector<int> kComplex32 = upto(24, {27});
const std::vector<int> kComplex64 = upto(24);
const std::vector<int> kReal32 = upto(22);
const std::vector<int> kReal64 = upto(22);
#endif

TEST(FFTTables, ComplexRecordsMatchTheRulesBitForBit)
{
    const fref::Reverser rev;
    for (int order : kComplex32) {
        const int levels = check_record<float>(tavsFFTInitAlloc_C_32fc, tavsFFTFree_C_32fc, order, false, rev);
        if (order == 23 || order == 27) EXPECT_EQ(levels, 2) << order;
        if (order == 13 || order == 20) EXPECT_EQ(levels, 1) << order;
    }
    for (int order : kComplex64) {
        const int levels = check_record<double>(tavsFFTInitAlloc_C_64fc, tavsFFTFree_C_64fc, order, false, rev);
        if (order == 21 || order == 24) EXPECT_EQ(levels, 2) << order;
        if (order == 12 || order == 20) EXPECT_EQ(levels, 1) << order;
    }
}

TEST(FFTTables, RealRecordsMatchTheRulesBitForBit)
{
    const fref::Reverser rev;
    for (int order : kReal32) check_record<float>(tavsFFTInitAlloc_R_32f, tavsFFTFree_R_32f, order, true, rev);
    for (int order : kReal64) check_record<double>(tavsFFTInitAlloc_R_64f, tavsFFTFree_R_64f, order, true, rev);
}

} // namespace

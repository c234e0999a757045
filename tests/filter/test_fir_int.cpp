// 16-bit integer FIR records: tap handling (16s taps, 32s taps, 32f taps),
// the output shift and its rounding, bit-exact against a reference here.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <string>
#include <vector>

#include "alloc_fault.h"
#include "fir_int_ref.h"
#include "internal/fir.h"
#include "tavs.h"
#include "test_util.h"

namespace {

using tavs::fir::IntState;
using namespace firi;

int64_t a16(int64_t v) { return (v + 15) & ~int64_t(15); }

// ---- the kinds ------------------------------------------------------------------

struct IntKind {
    std::string name;
    bool cx;
    int32_t tag;
    std::function<Status(int, int*)> size;
    std::function<Status(void**, const std::vector<Tav16s>&, const std::vector<Tav32s>&, int, const Tav16s*, Tav8u*)>
        init; // 16s kinds read the first vector, 32s kinds the second
    std::function<Status(void*)> free;
    std::function<Status(const void*, Tav16s*)> getDly;
    std::function<Status(void*, const Tav16s*)> setDly;
    std::function<Status(const Tav16s*, Tav16s*, int, void*, int)> fir;
    std::function<Status(Tav16s*, int, void*, int)> firI;
    std::function<Status(const Tav16s*, Tav16s*, void*, int)> one; // one sample (k parts)
    int64_t (*bytes)(int64_t);
};

const IntKind k16s = {
    "_16s", false, 0x46493239, [](int n, int* s) { return tavsFIRGetStateSize_16s(n, s); },
    [](void** pp, const std::vector<Tav16s>& t, const std::vector<Tav32s>&, int f, const Tav16s* d, Tav8u* b) {
        return tavsFIRInit_16s(reinterpret_cast<FIRState_16s**>(pp), t.data(), int(t.size()), f, d, b);
    },
    [](void* p) { return tavsFIRFree_16s(static_cast<FIRState_16s*>(p)); },
    [](const void* p, Tav16s* d) { return tavsFIRGetDlyLine_16s(static_cast<const FIRState_16s*>(p), d); },
    [](void* p, const Tav16s* d) { return tavsFIRSetDlyLine_16s(static_cast<FIRState_16s*>(p), d); },
    [](const Tav16s* s, Tav16s* d, int l, void* p, int sf) { return tavsFIR_16s_Sfs(s, d, l, static_cast<FIRState_16s*>(p), sf); },
    [](Tav16s* s, int l, void* p, int sf) { return tavsFIR_16s_ISfs(s, l, static_cast<FIRState_16s*>(p), sf); },
    [](const Tav16s* x, Tav16s* y, void* p, int sf) { return tavsFIROne_16s_Sfs(*x, y, static_cast<FIRState_16s*>(p), sf); },
    [](int64_t n) { return a16(8 * n) + a16(6 * n + 8) + a16(2 * n) + 16512; }};

const IntKind k32s = {
    "32s_16s", false, 0x46493039, [](int n, int* s) { return tavsFIRGetStateSize32s_16s(n, s); },
    [](void** pp, const std::vector<Tav16s>&, const std::vector<Tav32s>& t, int f, const Tav16s* d, Tav8u* b) {
        return tavsFIRInit32s_16s(reinterpret_cast<FIRState32s_16s**>(pp), t.data(), int(t.size()), f, d, b);
    },
    [](void* p) { return tavsFIRFree32s_16s(static_cast<FIRState32s_16s*>(p)); },
    [](const void* p, Tav16s* d) { return tavsFIRGetDlyLine32s_16s(static_cast<const FIRState32s_16s*>(p), d); },
    [](void* p, const Tav16s* d) { return tavsFIRSetDlyLine32s_16s(static_cast<FIRState32s_16s*>(p), d); },
    [](const Tav16s* s, Tav16s* d, int l, void* p, int sf) { return tavsFIR32s_16s_Sfs(s, d, l, static_cast<FIRState32s_16s*>(p), sf); },
    [](Tav16s* s, int l, void* p, int sf) { return tavsFIR32s_16s_ISfs(s, l, static_cast<FIRState32s_16s*>(p), sf); },
    [](const Tav16s* x, Tav16s* y, void* p, int sf) { return tavsFIROne32s_16s_Sfs(*x, y, static_cast<FIRState32s_16s*>(p), sf); },
    [](int64_t n) { return a16(8 * n) + a16(6 * n + 8) + a16(4 * n) + 16512; }};

const IntKind k32sc = {
    "32sc_16sc", true, 0x46493130, [](int n, int* s) { return tavsFIRGetStateSize32sc_16sc(n, s); },
    [](void** pp, const std::vector<Tav16s>&, const std::vector<Tav32s>& t, int f, const Tav16s* d, Tav8u* b) {
        return tavsFIRInit32sc_16sc(reinterpret_cast<FIRState32sc_16sc**>(pp), reinterpret_cast<const Tav32sc*>(t.data()),
                                    int(t.size() / 2), f, reinterpret_cast<const Tav16sc*>(d), b);
    },
    [](void* p) { return tavsFIRFree32sc_16sc(static_cast<FIRState32sc_16sc*>(p)); },
    [](const void* p, Tav16s* d) {
        return tavsFIRGetDlyLine32sc_16sc(static_cast<const FIRState32sc_16sc*>(p), reinterpret_cast<Tav16sc*>(d));
    },
    [](void* p, const Tav16s* d) {
        return tavsFIRSetDlyLine32sc_16sc(static_cast<FIRState32sc_16sc*>(p), reinterpret_cast<const Tav16sc*>(d));
    },
    [](const Tav16s* s, Tav16s* d, int l, void* p, int sf) {
        return tavsFIR32sc_16sc_Sfs(reinterpret_cast<const Tav16sc*>(s), reinterpret_cast<Tav16sc*>(d), l,
                                    static_cast<FIRState32sc_16sc*>(p), sf);
    },
    [](Tav16s* s, int l, void* p, int sf) {
        return tavsFIR32sc_16sc_ISfs(reinterpret_cast<Tav16sc*>(s), l, static_cast<FIRState32sc_16sc*>(p), sf);
    },
    [](const Tav16s* x, Tav16s* y, void* p, int sf) {
        return tavsFIROne32sc_16sc_Sfs(*reinterpret_cast<const Tav16sc*>(x), reinterpret_cast<Tav16sc*>(y),
                                       static_cast<FIRState32sc_16sc*>(p), sf);
    },
    [](int64_t n) { return a16(12 * n + 16) + a16(8 * n) + 16512; }};

struct IRec {
    std::vector<Tav8u> block;
    void* st = nullptr;
    IRec(const IntKind& k, const std::vector<Tav16s>& t16, const std::vector<Tav32s>& t32, int n, int f,
         const Tav16s* dly, int off = 0)
    {
        int sz = 0;
        EXPECT_EQ(k.size(n, &sz), StatusOk);
        block.assign(size_t(sz + off + 64), 0xCD);
        EXPECT_EQ(k.init(&st, t16, t32, f, dly, block.data() + off), StatusOk);
        for (size_t i = size_t(sz + off); i < block.size(); ++i)
            if (block[i] != 0xCD) {
                ADD_FAILURE() << k.name << " wrote past its size";
                break;
            }
    }
    IntState* rec() const { return static_cast<IntState*>(st); }
};

Held held_for(const IntKind& k, const std::vector<Tav16s>& t16, const std::vector<Tav32s>& t32, int f)
{
    return k.name == "_16s" ? held_from_16s(t16, f) : held_from_32s(t32, f);
}

// Random taps: either small values or values that need reducing.
void make_taps(tt::Rng& r, int parts, std::vector<Tav16s>& t16, std::vector<Tav32s>& t32)
{
    t16.resize(size_t(parts));
    t32.resize(size_t(parts));
    const int mode = int(r.range(0, 2));
    for (int i = 0; i < parts; ++i) {
        t16[size_t(i)] = r.element<Tav16s>();
        t32[size_t(i)] = mode == 0 ? Tav32s(r.range(-32768, 32767)) : mode == 1 ? r.element<Tav32s>() : Tav32s(r.range(-3, 3));
    }
}

TEST(FirInt, StateSizes)
{
    for (const IntKind* k : {&k16s, &k32s, &k32sc})
        for (int n : {1, 2, 3, 17, 100, 255, 300, 1000, 70000}) {
            int sz = 0;
            ASSERT_EQ(k->size(n, &sz), StatusOk);
            EXPECT_EQ(sz, k->bytes(n)) << k->name << n;
        }
    for (int n = 1; n <= 300; ++n) {
        int a = 0, b = 0, c = 0, d = 0, e = 0, f = 0;
        ASSERT_EQ(tavsFIRGetStateSize32s_16s32f(n, &a), StatusOk);
        ASSERT_EQ(tavsFIRGetStateSize32s_16s(n, &b), StatusOk);
        ASSERT_EQ(tavsFIRGetStateSize32sc_16sc32fc(n, &c), StatusOk);
        ASSERT_EQ(tavsFIRGetStateSize32sc_16sc(n, &d), StatusOk);
        ASSERT_EQ(tavsFIRStreamGetStateSize_16s(n, &e), StatusOk);
        ASSERT_EQ(tavsFIRGetStateSize_16s(n, &f), StatusOk);
        EXPECT_EQ(a, b);
        EXPECT_EQ(c, d);
        EXPECT_EQ(e, a16(2 * n) + 128);
        EXPECT_EQ(f, k16s.bytes(n));
        EXPECT_EQ(b, k32s.bytes(n));
        EXPECT_EQ(d, k32sc.bytes(n));
    }
    int sz = 0;
    EXPECT_EQ(tavsFIRGetStateSize_16s(0, &sz), ErrFilterLen);
    EXPECT_EQ(tavsFIRStreamGetStateSize_16s(-5, &sz), ErrFilterLen);
    EXPECT_EQ(tavsFIRGetStateSize32sc_16sc(3, nullptr), ErrNullPtr);
}

TEST(FirInt, BlocksBitExact)
{
    tt::Rng r(21);
    for (const IntKind* k : {&k16s, &k32s, &k32sc}) {
        const int kk = k->cx ? 2 : 1;
        for (int n : {1, 5, 63, 64, 200})
            for (int len : {1, 511, 4096, 4608})
                for (int inPlace = 0; inPlace < 2; ++inPlace) {
                    std::vector<Tav16s> t16, dly, x;
                    std::vector<Tav32s> t32;
                    make_taps(r, kk * n, t16, t32);
                    const int f = int(r.range(-20, 20)), sf = int(r.range(-20, 40));
                    dly = tt::random_vector<Tav16s>(r, size_t(kk * n));
                    x = tt::random_vector<Tav16s>(r, size_t(kk * len));
                    IRec rc(*k, t16, t32, n, f, dly.data(), int(r.range(0, 15)));
                    std::vector<Tav16s> y(x.size());
                    if (inPlace) {
                        y = x;
                        ASSERT_EQ(k->firI(y.data(), len, rc.st, sf), StatusOk);
                    } else {
                        ASSERT_EQ(k->fir(x.data(), y.data(), len, rc.st, sf), StatusOk);
                    }
                    const auto e = ref_out(held_for(*k, t16, t32, f), k->cx, dly, x, sf);
                    ASSERT_EQ(y, e) << k->name << " n=" << n << " len=" << len << " f=" << f << " sf=" << sf;
                    EXPECT_EQ(rc.rec()->dlyIndex, 0);
                }
    }
}

TEST(FirInt, PiecesOneSampleAndDelay)
{
    tt::Rng r(22);
    for (const IntKind* k : {&k16s, &k32s, &k32sc}) {
        const int kk = k->cx ? 2 : 1;
        for (int n : {1, 6, 33}) {
            std::vector<Tav16s> t16, dly;
            std::vector<Tav32s> t32;
            make_taps(r, kk * n, t16, t32);
            dly = tt::random_vector<Tav16s>(r, size_t(kk * n));
            const int total = 2500;
            const auto x = tt::random_vector<Tav16s>(r, size_t(kk * total));
            IRec rc(*k, t16, t32, n, 3, dly.data());
            std::vector<Tav16s> y(x.size());
            int p = 0, step = 0;
            const int pieces[] = {1, 9, 700, 1, 2, 1300, 3, 480};
            while (p < total) {
                int c = std::min(pieces[step % 8], total - p);
                if (step % 3 == 1) {
                    for (int j = 0; j < c; ++j)
                        ASSERT_EQ(k->one(&x[size_t(kk * (p + j))], &y[size_t(kk * (p + j))], rc.st, 2), StatusOk);
                } else if (step % 3 == 2) {
                    std::copy(x.begin() + kk * p, x.begin() + kk * (p + c), y.begin() + kk * p);
                    ASSERT_EQ(k->firI(y.data() + kk * p, c, rc.st, 2), StatusOk);
                } else {
                    ASSERT_EQ(k->fir(x.data() + kk * p, y.data() + kk * p, c, rc.st, 2), StatusOk);
                }
                if (step % 2 == 1) {
                    std::vector<Tav16s> d(size_t(kk * n));
                    ASSERT_EQ(k->getDly(rc.st, d.data()), StatusOk);
                    ASSERT_EQ(k->setDly(rc.st, d.data()), StatusOk);
                    EXPECT_EQ(rc.rec()->dlyIndex, 0);
                }
                p += c;
                ++step;
            }
            EXPECT_EQ(y, ref_out(held_for(*k, t16, t32, 3), k->cx, dly, x, 2)) << k->name << n;
            // Null delay at Set: silence.
            ASSERT_EQ(k->setDly(rc.st, nullptr), StatusOk);
            std::vector<Tav16s> z(size_t(kk * 50)), out(size_t(kk * 50), 7);
            ASSERT_EQ(k->fir(z.data(), out.data(), 50, rc.st, 0), StatusOk);
            EXPECT_EQ(out, z);
        }
    }
}

TEST(FirInt, ErrorsAndTags)
{
    alignas(64) static unsigned char foreign[4096] = {1};
    for (const IntKind* k : {&k16s, &k32s, &k32sc}) {
        std::vector<Tav16s> t16(8, 100);
        std::vector<Tav32s> t32(16, 100);
        IRec rc(*k, t16, t32, 8, 0, nullptr);
        std::vector<Tav16s> x(16);
        tt::Guarded<Tav16s> g(16);
        EXPECT_EQ(k->fir(x.data(), g.data(), 8, nullptr, 0), ErrNullPtr);
        EXPECT_EQ(k->fir(nullptr, g.data(), 8, rc.st, 0), ErrNullPtr);
        EXPECT_EQ(k->fir(x.data(), nullptr, 8, rc.st, 0), ErrNullPtr);
        EXPECT_EQ(k->fir(x.data(), g.data(), 0, rc.st, 0), ErrSize);
        EXPECT_EQ(k->fir(x.data(), g.data(), -3, foreign, 0), ErrSize);
        EXPECT_EQ(k->fir(x.data(), g.data(), 8, foreign, 0), ErrContextMismatch);
        EXPECT_EQ(k->firI(g.data(), 8, foreign, 0), ErrContextMismatch);
        EXPECT_EQ(k->firI(nullptr, 8, rc.st, 0), ErrNullPtr);
        EXPECT_EQ(k->one(x.data(), g.data(), foreign, 0), ErrContextMismatch);
        EXPECT_EQ(k->one(x.data(), nullptr, rc.st, 0), ErrNullPtr);
        EXPECT_EQ(k->getDly(foreign, g.data()), ErrContextMismatch);
        EXPECT_EQ(k->getDly(rc.st, nullptr), ErrNullPtr);
        EXPECT_TRUE(g.untouched());
        EXPECT_EQ(k->setDly(foreign, x.data()), ErrContextMismatch);
        EXPECT_EQ(k->setDly(nullptr, x.data()), ErrNullPtr);
        EXPECT_EQ(k->free(foreign), ErrContextMismatch);
        EXPECT_EQ(k->free(nullptr), ErrNullPtr);
        EXPECT_EQ(k->free(rc.st), StatusOk);
        EXPECT_EQ(rc.rec()->tag, k->tag);
        std::vector<Tav8u> blk(100000);
        void* out = reinterpret_cast<void*>(0x1);
        EXPECT_EQ(k->init(nullptr, t16, t32, 0, nullptr, blk.data()), ErrNullPtr);
        EXPECT_EQ(k->init(&out, t16, t32, 0, nullptr, nullptr), ErrNullPtr);
        EXPECT_EQ(out, reinterpret_cast<void*>(0x1));
    }
    std::vector<Tav8u> blk(100000);
    FIRState_16s* s16 = nullptr;
    const Tav16s t[3] = {1, 2, 3};
    EXPECT_EQ(tavsFIRInit_16s(&s16, nullptr, 3, 0, nullptr, blk.data()), ErrNullPtr);
    EXPECT_EQ(tavsFIRInit_16s(&s16, t, 0, 0, nullptr, blk.data()), ErrFilterLen);
    FIRState32s_16s* s32 = nullptr;
    const Tav32s t32[3] = {1, 2, 3};
    const Tav32f tf[3] = {1, 2, 3};
    EXPECT_EQ(tavsFIRInit32s_16s(&s32, t32, -1, 0, nullptr, blk.data()), ErrFilterLen);
    EXPECT_EQ(tavsFIRInit32s_16s32f(&s32, nullptr, 3, nullptr, blk.data()), ErrNullPtr);
    EXPECT_EQ(tavsFIRInit32s_16s32f(&s32, tf, 0, nullptr, blk.data()), ErrFilterLen);
    FIRState32sc_16sc* sc = nullptr;
    EXPECT_EQ(tavsFIRInit32sc_16sc32fc(&sc, nullptr, 3, nullptr, blk.data()), ErrNullPtr);
    EXPECT_EQ(tavsFIRInitAlloc32sc_16sc32fc(&sc, reinterpret_cast<const Tav32fc*>(tf), 0, nullptr), ErrFilterLen);
    EXPECT_EQ(tavsFIRInitAlloc32s_16s32f(nullptr, tf, 3, nullptr), ErrNullPtr);
    // A record of another integer kind is refused.
    ASSERT_EQ(tavsFIRInit_16s(&s16, t, 3, 0, nullptr, blk.data()), StatusOk);
    Tav32s back[3];
    int fac = 0;
    EXPECT_EQ(tavsFIRGetTaps32s_16s(reinterpret_cast<FIRState32s_16s*>(s16), back, &fac), ErrContextMismatch);
    EXPECT_EQ(tavsFIRSetTaps32s_16s(t32, reinterpret_cast<FIRState32s_16s*>(s16), 0), ErrContextMismatch);
    EXPECT_EQ(tavsFIRGetTaps32s_16s32f(nullptr, reinterpret_cast<Tav32f*>(back)), ErrNullPtr);
    EXPECT_EQ(tavsFIRSetTaps32s_16s32f(tf, nullptr), ErrNullPtr);
    EXPECT_EQ(tavsFIRGetTaps_16s(s16, reinterpret_cast<Tav16s*>(back), nullptr), ErrNullPtr);
    EXPECT_EQ(tavsFIRSetTaps_16s(t, reinterpret_cast<FIRState_16s*>(foreign), 0), ErrContextMismatch);
}

TEST(FirInt, TapRules)
{
    std::vector<Tav8u> blk(100000);
    // tapsFactor equal to scaleFactor and an odd sum: one higher.
    FIRState_16s* s = nullptr;
    const Tav16s one[1] = {1};
    ASSERT_EQ(tavsFIRInit_16s(&s, one, 1, 4, nullptr, blk.data()), StatusOk);
    const Tav16s x[4] = {3, -3, 5, 4};
    Tav16s y[4];
    ASSERT_EQ(tavsFIR_16s_Sfs(x, y, 4, s, 4), StatusOk);
    EXPECT_EQ(y[0], 4);
    EXPECT_EQ(y[1], -2);
    EXPECT_EQ(y[2], 6);
    EXPECT_EQ(y[3], 4);
    // A tap of -32768: all halved, factor one more.
    const Tav16s t[3] = {-32768, 101, -7};
    ASSERT_EQ(tavsFIRInit_16s(&s, t, 3, 2, nullptr, blk.data()), StatusOk);
    Tav16s back[3];
    int f = 0;
    ASSERT_EQ(tavsFIRGetTaps_16s(s, back, &f), StatusOk);
    EXPECT_EQ(back[0], -16384);
    EXPECT_EQ(back[1], 50);
    EXPECT_EQ(back[2], -4);
    EXPECT_EQ(f, 3);
    const Tav16s ones[3] = {1, 0, 0};
    ASSERT_EQ(tavsFIRSetTaps_16s(ones, s, -3), StatusOk);
    ASSERT_EQ(tavsFIRGetTaps_16s(s, back, &f), StatusOk);
    EXPECT_EQ(back[0], 1);
    EXPECT_EQ(f, -3);
    ASSERT_EQ(tavsFIRSetTaps_16s(t, s, 0), StatusOk);
    ASSERT_EQ(tavsFIRGetTaps_16s(s, back, &f), StatusOk);
    EXPECT_EQ(back[2], -4);
    EXPECT_EQ(f, 1);

    // 32s taps: a largest tap of 32767 halves all; 32766 keeps them.
    FIRState32s_16s* r = nullptr;
    const Tav32s a[2] = {32767, -5};
    ASSERT_EQ(tavsFIRInit32s_16s(&r, a, 2, 7, nullptr, blk.data()), StatusOk);
    Tav32s b[2];
    ASSERT_EQ(tavsFIRGetTaps32s_16s(r, b, &f), StatusOk);
    EXPECT_EQ(b[0], 16383);
    EXPECT_EQ(b[1], -3);
    EXPECT_EQ(f, 8);
    const Tav32s a2[2] = {32766, -32766};
    ASSERT_EQ(tavsFIRSetTaps32s_16s(a2, r, -2), StatusOk);
    ASSERT_EQ(tavsFIRGetTaps32s_16s(r, b, &f), StatusOk);
    EXPECT_EQ(b[0], 32766);
    EXPECT_EQ(f, -2);
    // All zero taps: integer path keeps the factor; floating path reaches -32.
    const Tav32s z[3] = {0, 0, 0};
    ASSERT_EQ(tavsFIRSetTaps32s_16s(z, r, 5), StatusOk);
    ASSERT_EQ(tavsFIRGetTaps32s_16s(r, b, &f), StatusOk);
    EXPECT_EQ(f, 5);
    const Tav32f zf[2] = {0.0f, -0.0f};
    ASSERT_EQ(tavsFIRSetTaps32s_16s32f(zf, r), StatusOk);
    ASSERT_EQ(tavsFIRGetTaps32s_16s(r, b, &f), StatusOk);
    EXPECT_EQ(f, -32);
    EXPECT_EQ(b[0], 0);
    EXPECT_EQ(b[1], 0);
    // 32f taps in (-1, 1): values near 32767 and a factor of -15.
    const Tav32f fl[2] = {0.99f, -0.25f};
    ASSERT_EQ(tavsFIRInit32s_16s32f(&r, fl, 2, nullptr, blk.data()), StatusOk);
    ASSERT_EQ(tavsFIRGetTaps32s_16s(r, b, &f), StatusOk);
    EXPECT_EQ(f, -15);
    EXPECT_EQ(b[0], Tav32s(std::lround(0.99f * 32768.0)));
    EXPECT_EQ(b[1], -8192);
    Tav32f g[2];
    ASSERT_EQ(tavsFIRGetTaps32s_16s32f(r, g), StatusOk);
    EXPECT_EQ(g[0], float(b[0]) * std::ldexp(1.0f, -15));
    EXPECT_EQ(g[1], -0.25f);
    // Large 32f taps scale down.
    const Tav32f big[2] = {1.0e6f, 3.0f};
    ASSERT_EQ(tavsFIRInit32s_16s32f(&r, big, 2, nullptr, blk.data()), StatusOk);
    ASSERT_EQ(tavsFIRGetTaps32s_16s(r, b, &f), StatusOk);
    EXPECT_EQ(f, 5);
    EXPECT_EQ(b[0], 31250);
    EXPECT_EQ(b[1], 0);
    // Complex parts share one factor.
    FIRState32sc_16sc* c = nullptr;
    const Tav32sc ct[2] = {{70000, 1}, {-3, 8}};
    ASSERT_EQ(tavsFIRInit32sc_16sc(&c, ct, 2, 0, nullptr, blk.data()), StatusOk);
    Tav32sc cb[2];
    ASSERT_EQ(tavsFIRGetTaps32sc_16sc(c, cb, &f), StatusOk);
    EXPECT_EQ(f, 2);
    EXPECT_EQ(cb[0].re, 17500);
    EXPECT_EQ(cb[1].re, -1);
    EXPECT_EQ(cb[1].im, 2);
    const Tav32sc ct2[2] = {{1, 2}, {0, 0}};
    ASSERT_EQ(tavsFIRSetTaps32sc_16sc(ct2, c, 9), StatusOk);
    ASSERT_EQ(tavsFIRGetTaps32sc_16sc(c, cb, &f), StatusOk);
    EXPECT_EQ(f, 9);
    EXPECT_EQ(cb[0].im, 2);
    const Tav32fc cf[2] = {{0.5f, -0.5f}, {0.25f, 0.0f}};
    ASSERT_EQ(tavsFIRInit32sc_16sc32fc(&c, cf, 2, nullptr, blk.data()), StatusOk);
    Tav32fc cfb[2];
    ASSERT_EQ(tavsFIRGetTaps32sc_16sc32fc(c, cfb), StatusOk);
    EXPECT_EQ(cfb[0].re, 0.5f);
    EXPECT_EQ(cfb[0].im, -0.5f);
    EXPECT_EQ(cfb[1].re, 0.25f);
    // Largest re or im 0.25: doubled until 2m reaches 32767, so 2^16 and -16.
    const Tav32fc cq[2] = {{0.25f, 0.0f}, {0.0f, -0.125f}};
    ASSERT_EQ(tavsFIRSetTaps32sc_16sc32fc(cq, c), StatusOk);
    ASSERT_EQ(tavsFIRGetTaps32sc_16sc(c, cb, &f), StatusOk);
    EXPECT_EQ(f, -16);
    EXPECT_EQ(cb[0].re, 16384);
    EXPECT_EQ(cb[1].im, -8192);
}

TEST(FirInt, FloatTapsFilterBitExact)
{
    tt::Rng r(5);
    std::vector<Tav8u> blk(200000);
    for (int n : {1, 4, 37}) {
        std::vector<Tav32f> taps(size_t(2 * n));
        for (auto& v : taps) v = float(r.uniform(-1, 1));
        const auto dly = tt::random_vector<Tav16s>(r, size_t(2 * n));
        const auto x = tt::random_vector<Tav16s>(r, size_t(2 * 900));
        FIRState32s_16s* s = nullptr;
        ASSERT_EQ(tavsFIRInit32s_16s32f(&s, taps.data(), 2 * n, dly.data(), blk.data()), StatusOk);
        std::vector<Tav16s> y(x.size());
        ASSERT_EQ(tavsFIR32s_16s_Sfs(x.data(), y.data(), 2 * 900, s, -12), StatusOk);
        EXPECT_EQ(y, ref_out(held_from_32f(taps), false, dly, x, -12));
        FIRState32sc_16sc* c = nullptr;
        ASSERT_EQ(tavsFIRInit32sc_16sc32fc(&c, reinterpret_cast<const Tav32fc*>(taps.data()), n,
                                           reinterpret_cast<const Tav16sc*>(dly.data()), blk.data()),
                  StatusOk);
        ASSERT_EQ(tavsFIR32sc_16sc_Sfs(reinterpret_cast<const Tav16sc*>(x.data()), reinterpret_cast<Tav16sc*>(y.data()),
                                       900, c, -13),
                  StatusOk);
        EXPECT_EQ(y, ref_out(held_from_32f(taps), true, dly, x, -13));
    }
}

TEST(FirInt, InitAllocAndFailure)
{
    const Tav16s t16[4] = {1, -2, 3, 4};
    const Tav32s t32[8] = {1, -2, 3, 4, 5, 6, 7, 8};
    const Tav32f tf[8] = {1, -2, 3, 4, 5, 6, 7, 8};
    std::vector<std::function<Status(void**)>> makers = {
        [&](void** p) { return tavsFIRInitAlloc_16s(reinterpret_cast<FIRState_16s**>(p), t16, 4, 0, nullptr); },
        [&](void** p) { return tavsFIRStreamInitAlloc_16s(reinterpret_cast<FIRState_16s**>(p), t16, 4, 0, 1); },
        [&](void** p) { return tavsFIRInitAlloc32s_16s(reinterpret_cast<FIRState32s_16s**>(p), t32, 4, 0, t16); },
        [&](void** p) { return tavsFIRInitAlloc32s_16s32f(reinterpret_cast<FIRState32s_16s**>(p), tf, 4, nullptr); },
        [&](void** p) {
            return tavsFIRInitAlloc32sc_16sc(reinterpret_cast<FIRState32sc_16sc**>(p),
                                             reinterpret_cast<const Tav32sc*>(t32), 4, 0, nullptr);
        },
        [&](void** p) {
            return tavsFIRInitAlloc32sc_16sc32fc(reinterpret_cast<FIRState32sc_16sc**>(p),
                                                 reinterpret_cast<const Tav32fc*>(tf), 4, nullptr);
        }};
    int which = 0;
    for (auto& mk : makers) {
        const int fails = tt::for_each_alloc_failure([&]() {
            void* p = reinterpret_cast<void*>(0x1);
            const Status s = mk(&p);
            if (s == ErrMemAlloc) {
                EXPECT_EQ(p, reinterpret_cast<void*>(0x1));
                return true;
            }
            EXPECT_EQ(s, StatusOk);
            EXPECT_EQ(static_cast<IntState*>(p)->isAllocated, 1);
            Status fs;
            if (which < 2) fs = tavsFIRFree_16s(static_cast<FIRState_16s*>(p));
            else if (which < 4) fs = tavsFIRFree32s_16s(static_cast<FIRState32s_16s*>(p));
            else fs = tavsFIRFree32sc_16sc(static_cast<FIRState32sc_16sc*>(p));
            EXPECT_EQ(fs, StatusOk);
            return false;
        });
        EXPECT_EQ(fails, 1);
        ++which;
    }
}

TEST(FirInt, StreamRecord)
{
    tt::Rng r(8);
    std::vector<Tav8u> blk(100000);
    for (int mode = 0; mode < 3; ++mode)
        for (int n : {1, 3, 40}) {
            auto taps = tt::random_vector<Tav16s>(r, size_t(n));
            const int f = int(r.range(-5, 5)), sf = int(r.range(-2, 30));
            FIRState_16s* s = nullptr;
            int sz = 0;
            ASSERT_EQ(tavsFIRStreamGetStateSize_16s(n, &sz), StatusOk);
            std::vector<Tav8u> b(size_t(sz) + 64, 0xCD);
            ASSERT_EQ(tavsFIRStreamInit_16s(&s, taps.data(), n, f, mode, b.data() + 3), StatusOk);
            for (size_t i = size_t(sz) + 3; i < b.size(); ++i) ASSERT_EQ(b[i], 0xCD);
            const int len = 300;
            const auto src = tt::random_vector<Tav16s>(r, size_t(len + n - 1));
            std::vector<Tav16s> y(len);
            ASSERT_EQ(tavsFIR_16s_Sfs(src.data(), y.data(), len, s, sf), StatusOk);
            // dst[j] = sum rtaps[i] src[j+i]: the reference with x = src,
            // outputs from index n-1 on.
            const Held h = held_from_16s(taps, f);
            const std::vector<Tav16s> none;
            std::vector<Tav16s> e(static_cast<size_t>(len));
            for (int j = 0; j < len; ++j) {
                int64_t acc = 0;
                for (int i = 0; i < n; ++i) acc += int64_t(h.t[size_t(i)]) * src[size_t(j + n - 1 - i)];
                e[size_t(j)] = stream_rule(wrap32(acc), h.tf, sf, mode);
            }
            ASSERT_EQ(y, e) << mode << " " << n;
            // In place and the delay-line calls are refused; taps and Free are not.
            EXPECT_EQ(tavsFIR_16s_ISfs(y.data(), len, s, sf), ErrContextMismatch);
            EXPECT_EQ(tavsFIR_16s_Sfs(y.data(), y.data(), len, s, sf), ErrContextMismatch);
            Tav16s d[64];
            EXPECT_EQ(tavsFIRGetDlyLine_16s(s, d), ErrContextMismatch);
            EXPECT_EQ(tavsFIROne_16s_Sfs(1, d, s, 0), ErrContextMismatch);
            int tf = 0;
            ASSERT_EQ(tavsFIRGetTaps_16s(s, d, &tf), StatusOk);
            EXPECT_EQ(tf, h.tf);
            EXPECT_EQ(tavsFIRFree_16s(s), StatusOk);
        }
    // Round modes outside 0..2 are refused, after pointers and length.
    FIRState_16s* s = nullptr;
    const Tav16s t[2] = {-32768, 4};
    EXPECT_EQ(tavsFIRStreamInit_16s(&s, t, 2, 0, 3, blk.data()), ErrRoundMode);
    EXPECT_EQ(tavsFIRStreamInit_16s(&s, t, 2, 0, -1, blk.data()), ErrRoundMode);
    EXPECT_EQ(tavsFIRStreamInit_16s(&s, t, 0, 0, 3, blk.data()), ErrFilterLen);
    EXPECT_EQ(tavsFIRStreamInit_16s(&s, t, 2, 0, 3, nullptr), ErrNullPtr);
    EXPECT_EQ(tavsFIRStreamInitAlloc_16s(&s, t, 2, 0, 7), ErrRoundMode);
    // The -32768 halving runs in the stream Init too.
    ASSERT_EQ(tavsFIRStreamInit_16s(&s, t, 2, 0, 2, blk.data()), StatusOk);
    Tav16s back[2];
    int f = 0;
    ASSERT_EQ(tavsFIRGetTaps_16s(s, back, &f), StatusOk);
    EXPECT_EQ(back[0], -16384);
    EXPECT_EQ(back[1], 2);
    EXPECT_EQ(f, 1);
}

} // namespace

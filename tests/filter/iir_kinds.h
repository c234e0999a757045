// The record kinds of floating data, for typed tests: each names its record,
// tap and data types, the model's precision and the calls that serve it.
#pragma once

#include "iir_ref.h"

namespace iirt {

// Model value <-> element conversions.
template <class M, class E> M to_model(E v)
{
    if constexpr (std::is_arithmetic_v<E>)
        return M(v);
    else
        return M{decltype(M::re)(v.re), decltype(M::re)(v.im)};
}
template <class E, class M> E to_elem(M v)
{
    if constexpr (std::is_arithmetic_v<E>)
        return E(v);
    else
        return E{decltype(E::re)(v.re), decltype(E::re)(v.im)};
}

#define IIRT_KIND(NAME, REC, TAP, DATA, MODEL, SIZE, SIZEBQ, INIT, INITBQ, ALLOC, ALLOCBQ, FREE, TAPS, GET,  \
                  SET, RUN, RUNI, ONE)                                                                       \
    struct NAME {                                                                                            \
        using R = REC;                                                                                       \
        using Tap = TAP;                                                                                     \
        using Data = DATA;                                                                                   \
        using Model = MODEL;                                                                                 \
        static constexpr bool complex = !std::is_arithmetic_v<TAP>;                                          \
        static constexpr auto size = SIZE;                                                                   \
        static constexpr auto size_bq = SIZEBQ;                                                              \
        static constexpr auto init = INIT;                                                                   \
        static constexpr auto init_bq = INITBQ;                                                              \
        static constexpr auto alloc = ALLOC;                                                                 \
        static constexpr auto alloc_bq = ALLOCBQ;                                                            \
        static constexpr auto free_ = FREE;                                                                  \
        static constexpr auto set_taps = TAPS;                                                               \
        static constexpr auto get_dly = GET;                                                                 \
        static constexpr auto set_dly = SET;                                                                 \
        static constexpr auto run = RUN;                                                                     \
        static constexpr auto run_i = RUNI;                                                                  \
        static constexpr auto one = ONE;                                                                     \
    };

IIRT_KIND(K32f, IIRState_32f, Tav32f, Tav32f, float, tavsIIRGetStateSize_32f, tavsIIRGetStateSize_BiQuad_32f,
          tavsIIRInit_32f, tavsIIRInit_BiQuad_32f, tavsIIRInitAlloc_32f, tavsIIRInitAlloc_BiQuad_32f,
          tavsIIRFree_32f, tavsIIRSetTaps_32f, tavsIIRGetDlyLine_32f, tavsIIRSetDlyLine_32f, tavsIIR_32f,
          tavsIIR_32f_I, tavsIIROne_32f)
IIRT_KIND(K32fc, IIRState_32fc, Tav32fc, Tav32fc, Z<float>, tavsIIRGetStateSize_32fc,
          tavsIIRGetStateSize_BiQuad_32fc, tavsIIRInit_32fc, tavsIIRInit_BiQuad_32fc, tavsIIRInitAlloc_32fc,
          tavsIIRInitAlloc_BiQuad_32fc, tavsIIRFree_32fc, tavsIIRSetTaps_32fc, tavsIIRGetDlyLine_32fc,
          tavsIIRSetDlyLine_32fc, tavsIIR_32fc, tavsIIR_32fc_I, tavsIIROne_32fc)
IIRT_KIND(K64f, IIRState_64f, Tav64f, Tav64f, double, tavsIIRGetStateSize_64f, tavsIIRGetStateSize_BiQuad_64f,
          tavsIIRInit_64f, tavsIIRInit_BiQuad_64f, tavsIIRInitAlloc_64f, tavsIIRInitAlloc_BiQuad_64f,
          tavsIIRFree_64f, tavsIIRSetTaps_64f, tavsIIRGetDlyLine_64f, tavsIIRSetDlyLine_64f, tavsIIR_64f,
          tavsIIR_64f_I, tavsIIROne_64f)
IIRT_KIND(K64fc, IIRState_64fc, Tav64fc, Tav64fc, Z<double>, tavsIIRGetStateSize_64fc,
          tavsIIRGetStateSize_BiQuad_64fc, tavsIIRInit_64fc, tavsIIRInit_BiQuad_64fc, tavsIIRInitAlloc_64fc,
          tavsIIRInitAlloc_BiQuad_64fc, tavsIIRFree_64fc, tavsIIRSetTaps_64fc, tavsIIRGetDlyLine_64fc,
          tavsIIRSetDlyLine_64fc, tavsIIR_64fc, tavsIIR_64fc_I, tavsIIROne_64fc)
IIRT_KIND(K64f32f, IIRState64f_32f, Tav64f, Tav32f, double, tavsIIRGetStateSize64f_32f,
          tavsIIRGetStateSize64f_BiQuad_32f, tavsIIRInit64f_32f, tavsIIRInit64f_BiQuad_32f,
          tavsIIRInitAlloc64f_32f, tavsIIRInitAlloc64f_BiQuad_32f, tavsIIRFree64f_32f, tavsIIRSetTaps64f_32f,
          tavsIIRGetDlyLine64f_32f, tavsIIRSetDlyLine64f_32f, tavsIIR64f_32f, tavsIIR64f_32f_I,
          tavsIIROne64f_32f)
IIRT_KIND(K64fc32fc, IIRState64fc_32fc, Tav64fc, Tav32fc, Z<double>, tavsIIRGetStateSize64fc_32fc,
          tavsIIRGetStateSize64fc_BiQuad_32fc, tavsIIRInit64fc_32fc, tavsIIRInit64fc_BiQuad_32fc,
          tavsIIRInitAlloc64fc_32fc, tavsIIRInitAlloc64fc_BiQuad_32fc, tavsIIRFree64fc_32fc,
          tavsIIRSetTaps64fc_32fc, tavsIIRGetDlyLine64fc_32fc, tavsIIRSetDlyLine64fc_32fc, tavsIIR64fc_32fc,
          tavsIIR64fc_32fc_I, tavsIIROne64fc_32fc)

// Caller's taps of kind K from real double taps (complex kinds rotate them).
template <class K>
std::vector<typename K::Tap> kind_taps(tt::Rng& g, const std::vector<double>& t, int n, bool bq)
{
    using Tap = typename K::Tap;
    std::vector<Tap> out(t.size());
    if constexpr (K::complex) {
        auto z = complex_taps<double>(g, t, n, bq);
        for (size_t i = 0; i < t.size(); ++i)
            out[i] = to_elem<Tap>(z[i]);
    } else {
        for (size_t i = 0; i < t.size(); ++i)
            out[i] = Tap(t[i]);
    }
    return out;
}

// Random data of kind K in [-amp, amp] (both parts for complex kinds).
template <class E> std::vector<E> kind_data(tt::Rng& g, int len, double amp = 1.0)
{
    std::vector<E> v(size_t(len > 0 ? len : 0));
    for (auto& x : v) {
        if constexpr (std::is_arithmetic_v<E>)
            x = E(g.uniform(-amp, amp));
        else
            x = E{decltype(E::re)(g.uniform(-amp, amp)), decltype(E::re)(g.uniform(-amp, amp))};
    }
    return v;
}

} // namespace iirt

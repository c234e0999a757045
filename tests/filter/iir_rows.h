// Every Init form of the recursive-filter records as one row of a table,
// with the size, InitAlloc, SetTaps, Free and delay-line calls of its record,
// behind type-erased signatures, so that the record tests run over all of
// them.
#pragma once

#include <cstdint>
#include <cstring>
#include <vector>

#include "iir_ref.h"
#include "internal/iir.h"

namespace iirt {

using tavs::iir::Cls;
using tavs::iir::Layout;

// The tapsFactor given to the forms with 32s taps.
constexpr int kRowFactor = 2;

struct Row {
    const char* name;
    Cls cls;
    Layout layout;
    int32_t tag;
    bool factor;      // taps given as 32s (32sc) with a factor
    bool complex;     // complex taps and data
    size_t tapBytes;  // bytes of one caller's tap
    size_t heldBytes; // bytes of one held tap
    bool wide;        // held taps in 64f
    size_t dlyBytes;  // bytes of one delay value
    Status (*size)(int, int*);
    Status (*init)(void**, const void*, int, const void*, Tav8u*);
    Status (*alloc)(void**, const void*, int, const void*);
    Status (*setTaps)(const void*, void*);
    Status (*free_)(void*);
    Status (*get)(const void*, void*);
    Status (*set)(void*, const void*);
};

#define IIRT_INIT(F, R, T, D)                                                                                \
    [](void** p, const void* t, int n, const void* d, Tav8u* b) -> Status {                                  \
        return F(reinterpret_cast<R**>(p), static_cast<const T*>(t), n, static_cast<const D*>(d), b);        \
    }
#define IIRT_INITF(F, R, T, D)                                                                               \
    [](void** p, const void* t, int n, const void* d, Tav8u* b) -> Status {                                  \
        return F(reinterpret_cast<R**>(p), static_cast<const T*>(t), n, kRowFactor,                          \
                 static_cast<const D*>(d), b);                                                               \
    }
#define IIRT_ALLOC(F, R, T, D)                                                                               \
    [](void** p, const void* t, int n, const void* d) -> Status {                                            \
        return F(reinterpret_cast<R**>(p), static_cast<const T*>(t), n, static_cast<const D*>(d));           \
    }
#define IIRT_ALLOCF(F, R, T, D)                                                                              \
    [](void** p, const void* t, int n, const void* d) -> Status {                                            \
        return F(reinterpret_cast<R**>(p), static_cast<const T*>(t), n, kRowFactor,                          \
                 static_cast<const D*>(d));                                                                  \
    }
#define IIRT_TAPS(F, R, T)                                                                                   \
    [](const void* t, void* s) -> Status { return F(static_cast<const T*>(t), static_cast<R*>(s)); }
#define IIRT_TAPSF(F, R, T)                                                                                  \
    [](const void* t, void* s) -> Status {                                                                   \
        return F(static_cast<const T*>(t), static_cast<R*>(s), kRowFactor);                                  \
    }
#define IIRT_FREE(F, R) [](void* s) -> Status { return F(static_cast<R*>(s)); }
#define IIRT_GET(F, R, D)                                                                                    \
    [](const void* s, void* d) -> Status { return F(static_cast<const R*>(s), static_cast<D*>(d)); }
#define IIRT_SET(F, R, D)                                                                                    \
    [](void* s, const void* d) -> Status { return F(static_cast<R*>(s), static_cast<const D*>(d)); }

inline const std::vector<Row>& rows()
{
    static const std::vector<Row> all = {
        {"tavsIIRInit_32f", Cls::F32, Layout::Arb, 0x49493031, false, false, sizeof(Tav32f), 4, false,
         sizeof(Tav32f), tavsIIRGetStateSize_32f, IIRT_INIT(tavsIIRInit_32f, IIRState_32f, Tav32f, Tav32f),
         IIRT_ALLOC(tavsIIRInitAlloc_32f, IIRState_32f, Tav32f, Tav32f),
         IIRT_TAPS(tavsIIRSetTaps_32f, IIRState_32f, Tav32f), IIRT_FREE(tavsIIRFree_32f, IIRState_32f),
         IIRT_GET(tavsIIRGetDlyLine_32f, IIRState_32f, Tav32f),
         IIRT_SET(tavsIIRSetDlyLine_32f, IIRState_32f, Tav32f)},
        {"tavsIIRInit_BiQuad_32f", Cls::F32, Layout::Bq, 0x49493032, false, false, sizeof(Tav32f), 4, false,
         sizeof(Tav32f), tavsIIRGetStateSize_BiQuad_32f,
         IIRT_INIT(tavsIIRInit_BiQuad_32f, IIRState_32f, Tav32f, Tav32f),
         IIRT_ALLOC(tavsIIRInitAlloc_BiQuad_32f, IIRState_32f, Tav32f, Tav32f),
         IIRT_TAPS(tavsIIRSetTaps_32f, IIRState_32f, Tav32f), IIRT_FREE(tavsIIRFree_32f, IIRState_32f),
         IIRT_GET(tavsIIRGetDlyLine_32f, IIRState_32f, Tav32f),
         IIRT_SET(tavsIIRSetDlyLine_32f, IIRState_32f, Tav32f)},
        {"tavsIIRInit_BiQuad_DF1_32f", Cls::F32, Layout::Df1, 0x49493239, false, false, sizeof(Tav32f), 4,
         false, sizeof(Tav32f), tavsIIRGetStateSize_BiQuad_DF1_32f,
         IIRT_INIT(tavsIIRInit_BiQuad_DF1_32f, IIRState_32f, Tav32f, Tav32f),
         IIRT_ALLOC(tavsIIRInitAlloc_BiQuad_DF1_32f, IIRState_32f, Tav32f, Tav32f),
         IIRT_TAPS(tavsIIRSetTaps_32f, IIRState_32f, Tav32f), IIRT_FREE(tavsIIRFree_32f, IIRState_32f),
         IIRT_GET(tavsIIRGetDlyLine_32f, IIRState_32f, Tav32f),
         IIRT_SET(tavsIIRSetDlyLine_32f, IIRState_32f, Tav32f)},
        {"tavsIIRInit_32fc", Cls::C32, Layout::Arb, 0x49493033, false, true, sizeof(Tav32fc), 8, false,
         sizeof(Tav32fc), tavsIIRGetStateSize_32fc,
         IIRT_INIT(tavsIIRInit_32fc, IIRState_32fc, Tav32fc, Tav32fc),
         IIRT_ALLOC(tavsIIRInitAlloc_32fc, IIRState_32fc, Tav32fc, Tav32fc),
         IIRT_TAPS(tavsIIRSetTaps_32fc, IIRState_32fc, Tav32fc), IIRT_FREE(tavsIIRFree_32fc, IIRState_32fc),
         IIRT_GET(tavsIIRGetDlyLine_32fc, IIRState_32fc, Tav32fc),
         IIRT_SET(tavsIIRSetDlyLine_32fc, IIRState_32fc, Tav32fc)},
        {"tavsIIRInit_BiQuad_32fc", Cls::C32, Layout::Bq, 0x49493034, false, true, sizeof(Tav32fc), 8, false,
         sizeof(Tav32fc), tavsIIRGetStateSize_BiQuad_32fc,
         IIRT_INIT(tavsIIRInit_BiQuad_32fc, IIRState_32fc, Tav32fc, Tav32fc),
         IIRT_ALLOC(tavsIIRInitAlloc_BiQuad_32fc, IIRState_32fc, Tav32fc, Tav32fc),
         IIRT_TAPS(tavsIIRSetTaps_32fc, IIRState_32fc, Tav32fc), IIRT_FREE(tavsIIRFree_32fc, IIRState_32fc),
         IIRT_GET(tavsIIRGetDlyLine_32fc, IIRState_32fc, Tav32fc),
         IIRT_SET(tavsIIRSetDlyLine_32fc, IIRState_32fc, Tav32fc)},
        {"tavsIIRInit_64f", Cls::F64, Layout::Arb, 0x49493133, false, false, sizeof(Tav64f), 8, true,
         sizeof(Tav64f), tavsIIRGetStateSize_64f, IIRT_INIT(tavsIIRInit_64f, IIRState_64f, Tav64f, Tav64f),
         IIRT_ALLOC(tavsIIRInitAlloc_64f, IIRState_64f, Tav64f, Tav64f),
         IIRT_TAPS(tavsIIRSetTaps_64f, IIRState_64f, Tav64f), IIRT_FREE(tavsIIRFree_64f, IIRState_64f),
         IIRT_GET(tavsIIRGetDlyLine_64f, IIRState_64f, Tav64f),
         IIRT_SET(tavsIIRSetDlyLine_64f, IIRState_64f, Tav64f)},
        {"tavsIIRInit_BiQuad_64f", Cls::F64, Layout::Bq, 0x49493134, false, false, sizeof(Tav64f), 8, true,
         sizeof(Tav64f), tavsIIRGetStateSize_BiQuad_64f,
         IIRT_INIT(tavsIIRInit_BiQuad_64f, IIRState_64f, Tav64f, Tav64f),
         IIRT_ALLOC(tavsIIRInitAlloc_BiQuad_64f, IIRState_64f, Tav64f, Tav64f),
         IIRT_TAPS(tavsIIRSetTaps_64f, IIRState_64f, Tav64f), IIRT_FREE(tavsIIRFree_64f, IIRState_64f),
         IIRT_GET(tavsIIRGetDlyLine_64f, IIRState_64f, Tav64f),
         IIRT_SET(tavsIIRSetDlyLine_64f, IIRState_64f, Tav64f)},
        {"tavsIIRInit_64fc", Cls::C64, Layout::Arb, 0x49493135, false, true, sizeof(Tav64fc), 16, true,
         sizeof(Tav64fc), tavsIIRGetStateSize_64fc,
         IIRT_INIT(tavsIIRInit_64fc, IIRState_64fc, Tav64fc, Tav64fc),
         IIRT_ALLOC(tavsIIRInitAlloc_64fc, IIRState_64fc, Tav64fc, Tav64fc),
         IIRT_TAPS(tavsIIRSetTaps_64fc, IIRState_64fc, Tav64fc), IIRT_FREE(tavsIIRFree_64fc, IIRState_64fc),
         IIRT_GET(tavsIIRGetDlyLine_64fc, IIRState_64fc, Tav64fc),
         IIRT_SET(tavsIIRSetDlyLine_64fc, IIRState_64fc, Tav64fc)},
        {"tavsIIRInit_BiQuad_64fc", Cls::C64, Layout::Bq, 0x49493136, false, true, sizeof(Tav64fc), 16, true,
         sizeof(Tav64fc), tavsIIRGetStateSize_BiQuad_64fc,
         IIRT_INIT(tavsIIRInit_BiQuad_64fc, IIRState_64fc, Tav64fc, Tav64fc),
         IIRT_ALLOC(tavsIIRInitAlloc_BiQuad_64fc, IIRState_64fc, Tav64fc, Tav64fc),
         IIRT_TAPS(tavsIIRSetTaps_64fc, IIRState_64fc, Tav64fc), IIRT_FREE(tavsIIRFree_64fc, IIRState_64fc),
         IIRT_GET(tavsIIRGetDlyLine_64fc, IIRState_64fc, Tav64fc),
         IIRT_SET(tavsIIRSetDlyLine_64fc, IIRState_64fc, Tav64fc)},
        {"tavsIIRInit32f_16s", Cls::F32, Layout::Arb, 0x49493035, false, false, sizeof(Tav32f), 4, false,
         sizeof(Tav32f), tavsIIRGetStateSize32f_16s,
         IIRT_INIT(tavsIIRInit32f_16s, IIRState32f_16s, Tav32f, Tav32f),
         IIRT_ALLOC(tavsIIRInitAlloc32f_16s, IIRState32f_16s, Tav32f, Tav32f),
         IIRT_TAPS(tavsIIRSetTaps32f_16s, IIRState32f_16s, Tav32f),
         IIRT_FREE(tavsIIRFree32f_16s, IIRState32f_16s),
         IIRT_GET(tavsIIRGetDlyLine32f_16s, IIRState32f_16s, Tav32f),
         IIRT_SET(tavsIIRSetDlyLine32f_16s, IIRState32f_16s, Tav32f)},
        {"tavsIIRInit32f_BiQuad_16s", Cls::F32, Layout::Bq, 0x49493036, false, false, sizeof(Tav32f), 4,
         false, sizeof(Tav32f), tavsIIRGetStateSize32f_BiQuad_16s,
         IIRT_INIT(tavsIIRInit32f_BiQuad_16s, IIRState32f_16s, Tav32f, Tav32f),
         IIRT_ALLOC(tavsIIRInitAlloc32f_BiQuad_16s, IIRState32f_16s, Tav32f, Tav32f),
         IIRT_TAPS(tavsIIRSetTaps32f_16s, IIRState32f_16s, Tav32f),
         IIRT_FREE(tavsIIRFree32f_16s, IIRState32f_16s),
         IIRT_GET(tavsIIRGetDlyLine32f_16s, IIRState32f_16s, Tav32f),
         IIRT_SET(tavsIIRSetDlyLine32f_16s, IIRState32f_16s, Tav32f)},
        {"tavsIIRInit32fc_16sc", Cls::C32, Layout::Arb, 0x49493037, false, true, sizeof(Tav32fc), 8, false,
         sizeof(Tav32fc), tavsIIRGetStateSize32fc_16sc,
         IIRT_INIT(tavsIIRInit32fc_16sc, IIRState32fc_16sc, Tav32fc, Tav32fc),
         IIRT_ALLOC(tavsIIRInitAlloc32fc_16sc, IIRState32fc_16sc, Tav32fc, Tav32fc),
         IIRT_TAPS(tavsIIRSetTaps32fc_16sc, IIRState32fc_16sc, Tav32fc),
         IIRT_FREE(tavsIIRFree32fc_16sc, IIRState32fc_16sc),
         IIRT_GET(tavsIIRGetDlyLine32fc_16sc, IIRState32fc_16sc, Tav32fc),
         IIRT_SET(tavsIIRSetDlyLine32fc_16sc, IIRState32fc_16sc, Tav32fc)},
        {"tavsIIRInit32fc_BiQuad_16sc", Cls::C32, Layout::Bq, 0x49493038, false, true, sizeof(Tav32fc), 8,
         false, sizeof(Tav32fc), tavsIIRGetStateSize32fc_BiQuad_16sc,
         IIRT_INIT(tavsIIRInit32fc_BiQuad_16sc, IIRState32fc_16sc, Tav32fc, Tav32fc),
         IIRT_ALLOC(tavsIIRInitAlloc32fc_BiQuad_16sc, IIRState32fc_16sc, Tav32fc, Tav32fc),
         IIRT_TAPS(tavsIIRSetTaps32fc_16sc, IIRState32fc_16sc, Tav32fc),
         IIRT_FREE(tavsIIRFree32fc_16sc, IIRState32fc_16sc),
         IIRT_GET(tavsIIRGetDlyLine32fc_16sc, IIRState32fc_16sc, Tav32fc),
         IIRT_SET(tavsIIRSetDlyLine32fc_16sc, IIRState32fc_16sc, Tav32fc)},
        {"tavsIIRInit32s_16s", Cls::F32, Layout::Arb, 0x49493039, true, false, sizeof(Tav32s), 4, false,
         sizeof(Tav32f), tavsIIRGetStateSize32s_16s,
         IIRT_INITF(tavsIIRInit32s_16s, IIRState32s_16s, Tav32s, Tav32f),
         IIRT_ALLOCF(tavsIIRInitAlloc32s_16s, IIRState32s_16s, Tav32s, Tav32f),
         IIRT_TAPSF(tavsIIRSetTaps32s_16s, IIRState32s_16s, Tav32s),
         IIRT_FREE(tavsIIRFree32s_16s, IIRState32s_16s),
         IIRT_GET(tavsIIRGetDlyLine32s_16s, IIRState32s_16s, Tav32f),
         IIRT_SET(tavsIIRSetDlyLine32s_16s, IIRState32s_16s, Tav32f)},
        {"tavsIIRInit32s_16s32f", Cls::F32, Layout::Arb, 0x49493039, false, false, sizeof(Tav32f), 4, false,
         sizeof(Tav32f), tavsIIRGetStateSize32s_16s32f,
         IIRT_INIT(tavsIIRInit32s_16s32f, IIRState32s_16s, Tav32f, Tav32f),
         IIRT_ALLOC(tavsIIRInitAlloc32s_16s32f, IIRState32s_16s, Tav32f, Tav32f),
         IIRT_TAPS(tavsIIRSetTaps32s_16s32f, IIRState32s_16s, Tav32f),
         IIRT_FREE(tavsIIRFree32s_16s, IIRState32s_16s),
         IIRT_GET(tavsIIRGetDlyLine32s_16s, IIRState32s_16s, Tav32f),
         IIRT_SET(tavsIIRSetDlyLine32s_16s, IIRState32s_16s, Tav32f)},
        {"tavsIIRInit32s_BiQuad_16s", Cls::F32, Layout::Bq, 0x49493130, true, false, sizeof(Tav32s), 4, false,
         sizeof(Tav32f), tavsIIRGetStateSize32s_BiQuad_16s,
         IIRT_INITF(tavsIIRInit32s_BiQuad_16s, IIRState32s_16s, Tav32s, Tav32f),
         IIRT_ALLOCF(tavsIIRInitAlloc32s_BiQuad_16s, IIRState32s_16s, Tav32s, Tav32f),
         IIRT_TAPSF(tavsIIRSetTaps32s_16s, IIRState32s_16s, Tav32s),
         IIRT_FREE(tavsIIRFree32s_16s, IIRState32s_16s),
         IIRT_GET(tavsIIRGetDlyLine32s_16s, IIRState32s_16s, Tav32f),
         IIRT_SET(tavsIIRSetDlyLine32s_16s, IIRState32s_16s, Tav32f)},
        {"tavsIIRInit32s_BiQuad_16s32f", Cls::F32, Layout::Bq, 0x49493130, false, false, sizeof(Tav32f), 4,
         false, sizeof(Tav32f), tavsIIRGetStateSize32s_BiQuad_16s32f,
         IIRT_INIT(tavsIIRInit32s_BiQuad_16s32f, IIRState32s_16s, Tav32f, Tav32f),
         IIRT_ALLOC(tavsIIRInitAlloc32s_BiQuad_16s32f, IIRState32s_16s, Tav32f, Tav32f),
         IIRT_TAPS(tavsIIRSetTaps32s_16s32f, IIRState32s_16s, Tav32f),
         IIRT_FREE(tavsIIRFree32s_16s, IIRState32s_16s),
         IIRT_GET(tavsIIRGetDlyLine32s_16s, IIRState32s_16s, Tav32f),
         IIRT_SET(tavsIIRSetDlyLine32s_16s, IIRState32s_16s, Tav32f)},
        {"tavsIIRInit32sc_16sc", Cls::C32, Layout::Arb, 0x49493131, true, true, sizeof(Tav32sc), 8, false,
         sizeof(Tav32fc), tavsIIRGetStateSize32sc_16sc,
         IIRT_INITF(tavsIIRInit32sc_16sc, IIRState32sc_16sc, Tav32sc, Tav32fc),
         IIRT_ALLOCF(tavsIIRInitAlloc32sc_16sc, IIRState32sc_16sc, Tav32sc, Tav32fc),
         IIRT_TAPSF(tavsIIRSetTaps32sc_16sc, IIRState32sc_16sc, Tav32sc),
         IIRT_FREE(tavsIIRFree32sc_16sc, IIRState32sc_16sc),
         IIRT_GET(tavsIIRGetDlyLine32sc_16sc, IIRState32sc_16sc, Tav32fc),
         IIRT_SET(tavsIIRSetDlyLine32sc_16sc, IIRState32sc_16sc, Tav32fc)},
        {"tavsIIRInit32sc_16sc32fc", Cls::C32, Layout::Arb, 0x49493131, false, true, sizeof(Tav32fc), 8,
         false, sizeof(Tav32fc), tavsIIRGetStateSize32sc_16sc32fc,
         IIRT_INIT(tavsIIRInit32sc_16sc32fc, IIRState32sc_16sc, Tav32fc, Tav32fc),
         IIRT_ALLOC(tavsIIRInitAlloc32sc_16sc32fc, IIRState32sc_16sc, Tav32fc, Tav32fc),
         IIRT_TAPS(tavsIIRSetTaps32sc_16sc32fc, IIRState32sc_16sc, Tav32fc),
         IIRT_FREE(tavsIIRFree32sc_16sc, IIRState32sc_16sc),
         IIRT_GET(tavsIIRGetDlyLine32sc_16sc, IIRState32sc_16sc, Tav32fc),
         IIRT_SET(tavsIIRSetDlyLine32sc_16sc, IIRState32sc_16sc, Tav32fc)},
        {"tavsIIRInit32sc_BiQuad_16sc", Cls::C32, Layout::Bq, 0x49493132, true, true, sizeof(Tav32sc), 8,
         false, sizeof(Tav32fc), tavsIIRGetStateSize32sc_BiQuad_16sc,
         IIRT_INITF(tavsIIRInit32sc_BiQuad_16sc, IIRState32sc_16sc, Tav32sc, Tav32fc),
         IIRT_ALLOCF(tavsIIRInitAlloc32sc_BiQuad_16sc, IIRState32sc_16sc, Tav32sc, Tav32fc),
         IIRT_TAPSF(tavsIIRSetTaps32sc_16sc, IIRState32sc_16sc, Tav32sc),
         IIRT_FREE(tavsIIRFree32sc_16sc, IIRState32sc_16sc),
         IIRT_GET(tavsIIRGetDlyLine32sc_16sc, IIRState32sc_16sc, Tav32fc),
         IIRT_SET(tavsIIRSetDlyLine32sc_16sc, IIRState32sc_16sc, Tav32fc)},
        {"tavsIIRInit32sc_BiQuad_16sc32fc", Cls::C32, Layout::Bq, 0x49493132, false, true, sizeof(Tav32fc), 8,
         false, sizeof(Tav32fc), tavsIIRGetStateSize32sc_BiQuad_16sc32fc,
         IIRT_INIT(tavsIIRInit32sc_BiQuad_16sc32fc, IIRState32sc_16sc, Tav32fc, Tav32fc),
         IIRT_ALLOC(tavsIIRInitAlloc32sc_BiQuad_16sc32fc, IIRState32sc_16sc, Tav32fc, Tav32fc),
         IIRT_TAPS(tavsIIRSetTaps32sc_16sc32fc, IIRState32sc_16sc, Tav32fc),
         IIRT_FREE(tavsIIRFree32sc_16sc, IIRState32sc_16sc),
         IIRT_GET(tavsIIRGetDlyLine32sc_16sc, IIRState32sc_16sc, Tav32fc),
         IIRT_SET(tavsIIRSetDlyLine32sc_16sc, IIRState32sc_16sc, Tav32fc)},
        {"tavsIIRInit64f_16s", Cls::F64, Layout::Arb, 0x49493235, false, false, sizeof(Tav64f), 8, true,
         sizeof(Tav64f), tavsIIRGetStateSize64f_16s,
         IIRT_INIT(tavsIIRInit64f_16s, IIRState64f_16s, Tav64f, Tav64f),
         IIRT_ALLOC(tavsIIRInitAlloc64f_16s, IIRState64f_16s, Tav64f, Tav64f),
         IIRT_TAPS(tavsIIRSetTaps64f_16s, IIRState64f_16s, Tav64f),
         IIRT_FREE(tavsIIRFree64f_16s, IIRState64f_16s),
         IIRT_GET(tavsIIRGetDlyLine64f_16s, IIRState64f_16s, Tav64f),
         IIRT_SET(tavsIIRSetDlyLine64f_16s, IIRState64f_16s, Tav64f)},
        {"tavsIIRInit64f_BiQuad_16s", Cls::F64, Layout::Bq, 0x49493236, false, false, sizeof(Tav64f), 8, true,
         sizeof(Tav64f), tavsIIRGetStateSize64f_BiQuad_16s,
         IIRT_INIT(tavsIIRInit64f_BiQuad_16s, IIRState64f_16s, Tav64f, Tav64f),
         IIRT_ALLOC(tavsIIRInitAlloc64f_BiQuad_16s, IIRState64f_16s, Tav64f, Tav64f),
         IIRT_TAPS(tavsIIRSetTaps64f_16s, IIRState64f_16s, Tav64f),
         IIRT_FREE(tavsIIRFree64f_16s, IIRState64f_16s),
         IIRT_GET(tavsIIRGetDlyLine64f_16s, IIRState64f_16s, Tav64f),
         IIRT_SET(tavsIIRSetDlyLine64f_16s, IIRState64f_16s, Tav64f)},
        {"tavsIIRInit64fc_16sc", Cls::C64, Layout::Arb, 0x49493237, false, true, sizeof(Tav64fc), 16, true,
         sizeof(Tav64fc), tavsIIRGetStateSize64fc_16sc,
         IIRT_INIT(tavsIIRInit64fc_16sc, IIRState64fc_16sc, Tav64fc, Tav64fc),
         IIRT_ALLOC(tavsIIRInitAlloc64fc_16sc, IIRState64fc_16sc, Tav64fc, Tav64fc),
         IIRT_TAPS(tavsIIRSetTaps64fc_16sc, IIRState64fc_16sc, Tav64fc),
         IIRT_FREE(tavsIIRFree64fc_16sc, IIRState64fc_16sc),
         IIRT_GET(tavsIIRGetDlyLine64fc_16sc, IIRState64fc_16sc, Tav64fc),
         IIRT_SET(tavsIIRSetDlyLine64fc_16sc, IIRState64fc_16sc, Tav64fc)},
        {"tavsIIRInit64fc_BiQuad_16sc", Cls::C64, Layout::Bq, 0x49493238, false, true, sizeof(Tav64fc), 16,
         true, sizeof(Tav64fc), tavsIIRGetStateSize64fc_BiQuad_16sc,
         IIRT_INIT(tavsIIRInit64fc_BiQuad_16sc, IIRState64fc_16sc, Tav64fc, Tav64fc),
         IIRT_ALLOC(tavsIIRInitAlloc64fc_BiQuad_16sc, IIRState64fc_16sc, Tav64fc, Tav64fc),
         IIRT_TAPS(tavsIIRSetTaps64fc_16sc, IIRState64fc_16sc, Tav64fc),
         IIRT_FREE(tavsIIRFree64fc_16sc, IIRState64fc_16sc),
         IIRT_GET(tavsIIRGetDlyLine64fc_16sc, IIRState64fc_16sc, Tav64fc),
         IIRT_SET(tavsIIRSetDlyLine64fc_16sc, IIRState64fc_16sc, Tav64fc)},
        {"tavsIIRInit64f_32f", Cls::F64, Layout::Arb, 0x49493137, false, false, sizeof(Tav64f), 8, true,
         sizeof(Tav64f), tavsIIRGetStateSize64f_32f,
         IIRT_INIT(tavsIIRInit64f_32f, IIRState64f_32f, Tav64f, Tav64f),
         IIRT_ALLOC(tavsIIRInitAlloc64f_32f, IIRState64f_32f, Tav64f, Tav64f),
         IIRT_TAPS(tavsIIRSetTaps64f_32f, IIRState64f_32f, Tav64f),
         IIRT_FREE(tavsIIRFree64f_32f, IIRState64f_32f),
         IIRT_GET(tavsIIRGetDlyLine64f_32f, IIRState64f_32f, Tav64f),
         IIRT_SET(tavsIIRSetDlyLine64f_32f, IIRState64f_32f, Tav64f)},
        {"tavsIIRInit64f_BiQuad_32f", Cls::F64, Layout::Bq, 0x49493138, false, false, sizeof(Tav64f), 8, true,
         sizeof(Tav64f), tavsIIRGetStateSize64f_BiQuad_32f,
         IIRT_INIT(tavsIIRInit64f_BiQuad_32f, IIRState64f_32f, Tav64f, Tav64f),
         IIRT_ALLOC(tavsIIRInitAlloc64f_BiQuad_32f, IIRState64f_32f, Tav64f, Tav64f),
         IIRT_TAPS(tavsIIRSetTaps64f_32f, IIRState64f_32f, Tav64f),
         IIRT_FREE(tavsIIRFree64f_32f, IIRState64f_32f),
         IIRT_GET(tavsIIRGetDlyLine64f_32f, IIRState64f_32f, Tav64f),
         IIRT_SET(tavsIIRSetDlyLine64f_32f, IIRState64f_32f, Tav64f)},
        {"tavsIIRInit64fc_32fc", Cls::C64, Layout::Arb, 0x49493139, false, true, sizeof(Tav64fc), 16, true,
         sizeof(Tav64fc), tavsIIRGetStateSize64fc_32fc,
         IIRT_INIT(tavsIIRInit64fc_32fc, IIRState64fc_32fc, Tav64fc, Tav64fc),
         IIRT_ALLOC(tavsIIRInitAlloc64fc_32fc, IIRState64fc_32fc, Tav64fc, Tav64fc),
         IIRT_TAPS(tavsIIRSetTaps64fc_32fc, IIRState64fc_32fc, Tav64fc),
         IIRT_FREE(tavsIIRFree64fc_32fc, IIRState64fc_32fc),
         IIRT_GET(tavsIIRGetDlyLine64fc_32fc, IIRState64fc_32fc, Tav64fc),
         IIRT_SET(tavsIIRSetDlyLine64fc_32fc, IIRState64fc_32fc, Tav64fc)},
        {"tavsIIRInit64fc_BiQuad_32fc", Cls::C64, Layout::Bq, 0x49493230, false, true, sizeof(Tav64fc), 16,
         true, sizeof(Tav64fc), tavsIIRGetStateSize64fc_BiQuad_32fc,
         IIRT_INIT(tavsIIRInit64fc_BiQuad_32fc, IIRState64fc_32fc, Tav64fc, Tav64fc),
         IIRT_ALLOC(tavsIIRInitAlloc64fc_BiQuad_32fc, IIRState64fc_32fc, Tav64fc, Tav64fc),
         IIRT_TAPS(tavsIIRSetTaps64fc_32fc, IIRState64fc_32fc, Tav64fc),
         IIRT_FREE(tavsIIRFree64fc_32fc, IIRState64fc_32fc),
         IIRT_GET(tavsIIRGetDlyLine64fc_32fc, IIRState64fc_32fc, Tav64fc),
         IIRT_SET(tavsIIRSetDlyLine64fc_32fc, IIRState64fc_32fc, Tav64fc)},
        {"tavsIIRInit64f_32s", Cls::F64, Layout::Arb, 0x49493231, false, false, sizeof(Tav64f), 8, true,
         sizeof(Tav64f), tavsIIRGetStateSize64f_32s,
         IIRT_INIT(tavsIIRInit64f_32s, IIRState64f_32s, Tav64f, Tav64f),
         IIRT_ALLOC(tavsIIRInitAlloc64f_32s, IIRState64f_32s, Tav64f, Tav64f),
         IIRT_TAPS(tavsIIRSetTaps64f_32s, IIRState64f_32s, Tav64f),
         IIRT_FREE(tavsIIRFree64f_32s, IIRState64f_32s),
         IIRT_GET(tavsIIRGetDlyLine64f_32s, IIRState64f_32s, Tav64f),
         IIRT_SET(tavsIIRSetDlyLine64f_32s, IIRState64f_32s, Tav64f)},
        {"tavsIIRInit64f_BiQuad_32s", Cls::F64, Layout::Bq, 0x49493232, false, false, sizeof(Tav64f), 8, true,
         sizeof(Tav64f), tavsIIRGetStateSize64f_BiQuad_32s,
         IIRT_INIT(tavsIIRInit64f_BiQuad_32s, IIRState64f_32s, Tav64f, Tav64f),
         IIRT_ALLOC(tavsIIRInitAlloc64f_BiQuad_32s, IIRState64f_32s, Tav64f, Tav64f),
         IIRT_TAPS(tavsIIRSetTaps64f_32s, IIRState64f_32s, Tav64f),
         IIRT_FREE(tavsIIRFree64f_32s, IIRState64f_32s),
         IIRT_GET(tavsIIRGetDlyLine64f_32s, IIRState64f_32s, Tav64f),
         IIRT_SET(tavsIIRSetDlyLine64f_32s, IIRState64f_32s, Tav64f)},
        {"tavsIIRInit64f_BiQuad_DF1_32s", Cls::F64, Layout::Df1, 0x49493330, false, false, sizeof(Tav64f), 8,
         true, sizeof(Tav32s), tavsIIRGetStateSize64f_BiQuad_DF1_32s,
         IIRT_INIT(tavsIIRInit64f_BiQuad_DF1_32s, IIRState64f_32s, Tav64f, Tav32s),
         IIRT_ALLOC(tavsIIRInitAlloc64f_BiQuad_DF1_32s, IIRState64f_32s, Tav64f, Tav32s),
         IIRT_TAPS(tavsIIRSetTaps64f_32s, IIRState64f_32s, Tav64f),
         IIRT_FREE(tavsIIRFree64f_32s, IIRState64f_32s),
         IIRT_GET(tavsIIRGetDlyLine64f_DF1_32s, IIRState64f_32s, Tav32s),
         IIRT_SET(tavsIIRSetDlyLine64f_DF1_32s, IIRState64f_32s, Tav32s)},
        {"tavsIIRInit64fc_32sc", Cls::C64, Layout::Arb, 0x49493233, false, true, sizeof(Tav64fc), 16, true,
         sizeof(Tav64fc), tavsIIRGetStateSize64fc_32sc,
         IIRT_INIT(tavsIIRInit64fc_32sc, IIRState64fc_32sc, Tav64fc, Tav64fc),
         IIRT_ALLOC(tavsIIRInitAlloc64fc_32sc, IIRState64fc_32sc, Tav64fc, Tav64fc),
         IIRT_TAPS(tavsIIRSetTaps64fc_32sc, IIRState64fc_32sc, Tav64fc),
         IIRT_FREE(tavsIIRFree64fc_32sc, IIRState64fc_32sc),
         IIRT_GET(tavsIIRGetDlyLine64fc_32sc, IIRState64fc_32sc, Tav64fc),
         IIRT_SET(tavsIIRSetDlyLine64fc_32sc, IIRState64fc_32sc, Tav64fc)},
        {"tavsIIRInit64fc_BiQuad_32sc", Cls::C64, Layout::Bq, 0x49493234, false, true, sizeof(Tav64fc), 16,
         true, sizeof(Tav64fc), tavsIIRGetStateSize64fc_BiQuad_32sc,
         IIRT_INIT(tavsIIRInit64fc_BiQuad_32sc, IIRState64fc_32sc, Tav64fc, Tav64fc),
         IIRT_ALLOC(tavsIIRInitAlloc64fc_BiQuad_32sc, IIRState64fc_32sc, Tav64fc, Tav64fc),
         IIRT_TAPS(tavsIIRSetTaps64fc_32sc, IIRState64fc_32sc, Tav64fc),
         IIRT_FREE(tavsIIRFree64fc_32sc, IIRState64fc_32sc),
         IIRT_GET(tavsIIRGetDlyLine64fc_32sc, IIRState64fc_32sc, Tav64fc),
         IIRT_SET(tavsIIRSetDlyLine64fc_32sc, IIRState64fc_32sc, Tav64fc)},
    };
    return all;
}

#undef IIRT_INIT
#undef IIRT_INITF
#undef IIRT_ALLOC
#undef IIRT_ALLOCF
#undef IIRT_TAPS
#undef IIRT_TAPSF
#undef IIRT_FREE
#undef IIRT_GET
#undef IIRT_SET

// The count of a row's record (order, or sections) and its given, held and
// delay value counts.
inline size_t given_count(const Row& r, int n)
{
    return r.layout == Layout::Arb ? 2 * size_t(n) + 2 : 6 * size_t(n);
}
inline size_t held_count(const Row& r, int n)
{
    return r.layout == Layout::Arb ? 2 * size_t(n) + 1 : 5 * size_t(n);
}
inline size_t dly_count(const Row& r, int n)
{
    return r.layout == Layout::Arb ? size_t(n) : (r.layout == Layout::Bq ? 2 * size_t(n) : 4 * size_t(n));
}
inline bool int_delay(const Row& r) { return r.layout == Layout::Df1 && r.wide; }

// Caller's taps of a row from values v (imaginary parts ignored by real
// rows; 32s rows take the rounded value).
inline std::vector<unsigned char> tap_bytes(const Row& r, const std::vector<Z<double>>& v)
{
    std::vector<unsigned char> out(v.size() * r.tapBytes);
    for (size_t i = 0; i < v.size(); ++i) {
        unsigned char* p = out.data() + i * r.tapBytes;
        if (r.factor && r.complex) {
            Tav32sc e{Tav32s(std::lround(v[i].re)), Tav32s(std::lround(v[i].im))};
            std::memcpy(p, &e, sizeof e);
        } else if (r.factor) {
            Tav32s e = Tav32s(std::lround(v[i].re));
            std::memcpy(p, &e, sizeof e);
        } else if (r.complex && r.tapBytes == 8) {
            Tav32fc e{float(v[i].re), float(v[i].im)};
            std::memcpy(p, &e, sizeof e);
        } else if (r.complex) {
            Tav64fc e{v[i].re, v[i].im};
            std::memcpy(p, &e, sizeof e);
        } else if (r.tapBytes == 4) {
            float e = float(v[i].re);
            std::memcpy(p, &e, sizeof e);
        } else {
            double e = v[i].re;
            std::memcpy(p, &e, sizeof e);
        }
    }
    return out;
}

// The held taps a row's tap step stores for the caller's taps, as bytes: the
// caller's values in the held precision (32s ones times 2^-kRowFactor),
// each divided by its a0 as the models do.
template <class M> std::vector<unsigned char> held_as(const Row& r, const std::vector<Z<double>>& v, int n)
{
    auto given = [&](size_t i) -> M {
        if constexpr (std::is_arithmetic_v<M>) {
            if (r.factor) return M(float(Tav32s(std::lround(v[i].re))) * std::ldexp(1.0f, -kRowFactor));
            return r.tapBytes == 4 ? M(float(v[i].re)) : M(v[i].re);
        } else {
            using F = decltype(M::re);
            if (r.factor)
                return M{F(float(Tav32s(std::lround(v[i].re))) * std::ldexp(1.0f, -kRowFactor)),
                         F(float(Tav32s(std::lround(v[i].im))) * std::ldexp(1.0f, -kRowFactor))};
            if (r.tapBytes == 8) return M{F(float(v[i].re)), F(float(v[i].im))};
            return M{F(v[i].re), F(v[i].im)};
        }
    };
    std::vector<M> h;
    if (r.layout == Layout::Arb) {
        std::vector<M> t(given_count(r, n));
        for (size_t i = 0; i < t.size(); ++i)
            t[i] = given(i);
        Arb<M> a(t.data(), n);
        h = a.b;
        h.insert(h.end(), a.a.begin() + 1, a.a.end());
    } else {
        for (int k = 0; k < n; ++k) {
            M s[6];
            for (int j = 0; j < 6; ++j)
                s[j] = given(size_t(6 * k + j));
            if constexpr (std::is_arithmetic_v<M>) {
                if (r.layout == Layout::Df1) {
                    auto c = df1_taps(s, 1);
                    h.insert(h.end(), c.begin(), c.end());
                    continue;
                }
            }
            Bq<M> b(s, 1);
            h.insert(h.end(), b.c.begin(), b.c.end());
        }
    }
    std::vector<unsigned char> out(h.size() * sizeof(M));
    std::memcpy(out.data(), h.data(), out.size());
    return out;
}

inline std::vector<unsigned char> held_bytes(const Row& r, const std::vector<Z<double>>& v, int n)
{
    if (r.complex) return r.wide ? held_as<Z<double>>(r, v, n) : held_as<Z<float>>(r, v, n);
    return r.wide ? held_as<double>(r, v, n) : held_as<float>(r, v, n);
}

// Stable random taps for a row of count n, scaled up for the 32s rows.
inline std::vector<Z<double>> row_taps(tt::Rng& g, const Row& r, int n)
{
    std::vector<double> t = r.layout == Layout::Arb ? arb_taps(g, n) : bq_taps(g, n);
    std::vector<Z<double>> z = complex_taps<double>(g, t, n, r.layout != Layout::Arb);
    for (auto& v : z) {
        if (!r.complex) v.im = 0;
        if (r.factor) v.re = std::round(v.re * 1000), v.im = std::round(v.im * 1000);
    }
    return z;
}

// Delay values for a row as bytes.
inline std::vector<unsigned char> dly_bytes(tt::Rng& g, const Row& r, int n)
{
    std::vector<unsigned char> out(dly_count(r, n) * r.dlyBytes);
    for (size_t i = 0; i < dly_count(r, n); ++i) {
        unsigned char* p = out.data() + i * r.dlyBytes;
        if (int_delay(r)) {
            Tav32s e = Tav32s(g.range(-100000, 100000));
            std::memcpy(p, &e, 4);
        } else {
            for (size_t k = 0; k < r.dlyBytes / (r.wide ? 8 : 4); ++k) {
                if (r.wide) {
                    double e = g.uniform(-1, 1);
                    std::memcpy(p + 8 * k, &e, 8);
                } else {
                    float e = float(g.uniform(-1, 1));
                    std::memcpy(p + 4 * k, &e, 4);
                }
            }
        }
    }
    return out;
}

} // namespace iirt

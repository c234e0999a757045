/* tavsdefs.h - status values, selectors, element types and record declarations
 * shared by every function of the tavs library. Compiles as C99 and as C++. */
#ifndef TAVSDEFS_H
#define TAVSDEFS_H

#ifdef __cplusplus
extern "C" {
#endif

/* ---- element types ---------------------------------------------------- */
typedef unsigned char Tav8u;
typedef signed char Tav8s;
typedef unsigned short Tav16u;
typedef short Tav16s;
typedef unsigned int Tav32u;
typedef int Tav32s;
typedef float Tav32f;
typedef long long Tav64s;
typedef unsigned long long Tav64u;
typedef double Tav64f;

/* IEEE half precision, held as its 16 bits. */
typedef struct { Tav16u bits; } Tav16f;

/* Complex pairs, real part first. */
typedef struct { Tav8s re, im; } Tav8sc;
typedef struct { Tav16s re, im; } Tav16sc;
typedef struct { Tav32s re, im; } Tav32sc;
typedef struct { Tav64s re, im; } Tav64sc;
typedef struct { Tav32f re, im; } Tav32fc;
typedef struct { Tav64f re, im; } Tav64fc;

/* 24-bit vectors (24u, 24s) are passed as Tav8u pointers to packed
 * three-byte little-endian elements. */

/* ---- status ----------------------------------------------------------- */
/* Zero is success, negative an error (output untouched), positive a
 * warning (output complete). */
typedef int Status;

enum {
    StatusOk = 0,

    WarnSqrtNegative = 3,
    WarnInvZero = 4,
    WarnEvenMask = 5,
    WarnDivByZero = 6,
    WarnLnZero = 7,
    WarnLnNegative = 8,
    WarnNotFinite = 9,
    WarnBitCount = 27,

    ErrBadArg = -5,
    ErrSize = -6,
    ErrBadSelector = -7,
    ErrNullPtr = -8,
    ErrMemAlloc = -9,
    ErrDivByZero = -10,
    ErrNotPositive = -11,
    ErrDataType = -12,
    ErrBadState = -13,
    ErrFftOrder = -15,
    ErrFftFlag = -16,
    ErrContextMismatch = -17,
    ErrThresholdOrder = -18,
    ErrThresholdNegative = -19,
    ErrDelayIndex = -24,
    ErrFilterOrder = -25,
    ErrFilterLen = -26,
    ErrRelFreq = -27,
    ErrRatePhase = -28,
    ErrRateFactor = -29,
    ErrSamplePhase = -30,
    ErrSampleFactor = -31,
    ErrShift = -32,
    ErrWindowLen = -33,
    ErrWaveletOffset = -35,
    ErrJaehneMagn = -38,
    ErrKaiserAlpha = -39,
    ErrTriangleAsym = -40,
    ErrTrianglePhase = -41,
    ErrTriangleFreq = -42,
    ErrTriangleMagn = -43,
    ErrTonePhase = -44,
    ErrToneFreq = -45,
    ErrToneMagn = -46,
    ErrChannelCountFixed = -47,
    ErrChannelCount = -53,
    ErrMatrixStride = -182,
    ErrSparsePosition = -194,
    ErrSingular = -195,
    ErrIIRGenOrder = -206,
    ErrIIRGenFreq = -208,
    ErrIIRGenRipple = -209,
    ErrRoundMode = -213,
    ErrAlgType = -228
};

/* ---- selectors -------------------------------------------------------- */
enum { RoundTowardZero = 0, RoundHalfEven = 1, RoundHalfAway = 2 };
enum { HintNone = 0, HintFast = 1, HintAccurate = 2 };
enum { CmpLess = 0, CmpGreater = 4 };
enum { TypeSel32f = 13, TypeSel32fc = 14, TypeSel64f = 19, TypeSel64fc = 20 };
enum { AlgAuto = 0, AlgDirect = 1, AlgFFT = 2 };
enum { ScaleFwdByLen = 1, ScaleInvByLen = 2, ScaleBothBySqrtLen = 4, ScaleNever = 8 };

/* ---- version record --------------------------------------------------- */
typedef struct {
    int major;
    int minor;
    int majorBuild;
    int build;
    char targetCpu[4];
    const char* name;
    const char* version;
    const char* buildDate;
} TavLibVersion;

#ifdef __cplusplus
}
#endif

#endif /* TAVSDEFS_H */

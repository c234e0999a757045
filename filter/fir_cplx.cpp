#include "internal/body.h"
#include "internal/fir_entry.h"

// The complex floating records: overlap-save through the complex FFT.
namespace tag = tavs::fir::tag;

TAVS_FIR_FLOAT_KIND(_32fc, FIRState_32fc, Tav32fc, Tav32fc, tag::C32, 0)
TAVS_FIR_FLOAT_KIND(_64fc, FIRState_64fc, Tav64fc, Tav64fc, tag::C64, 0)
TAVS_FIR_FLOAT_KIND(64fc_32fc, FIRState64fc_32fc, Tav64fc, Tav32fc, tag::C64_32fc, 0)
TAVS_FIR_FLOAT_KIND_SFS(32fc_16sc, FIRState32fc_16sc, Tav32fc, Tav16sc, tag::C32_16sc)
TAVS_FIR_FLOAT_KIND_SFS(64fc_16sc, FIRState64fc_16sc, Tav64fc, Tav16sc, tag::C64_16sc)
TAVS_FIR_FLOAT_KIND_SFS(64fc_32sc, FIRState64fc_32sc, Tav64fc, Tav32sc, tag::C64_32sc)

// The version record: one static constant, the same pointer for every call.
#include "internal/body.h"

namespace {
constexpr TavLibVersion kVersion = {8, 2, 3, 48108, {'m', 'x', '\0', '\0'},
                                    "tavSP PX (mx)", "8.2.3 (r48108)", "Jul 23 2015"};
}

extern "C" const TavLibVersion* tavsGetLibVersion_body(void) { return &kVersion; }

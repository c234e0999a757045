// Included by every file that defines bodies: the public prototypes, the
// library's types, and the body declarations generated from the export
// table. A body named <export>_body is declared with the exact type of its
// public prototype, so any mismatch is a compile error.
#pragma once

#include "tavs.h"
#include "internal/types.h"
#include "tavs_bodies.h"

// Element types, Status and the status constants, for the library's own code.
#pragma once

#include <cstddef>
#include <cstdint>

#include "tavsdefs.h"

// Bodies are plain C functions, hidden inside the module; only the entries
// of the export frame are visible.
#define TAVS_BODY __attribute__((visibility("hidden")))

namespace tavs {

// Integer limits of each element type, as 64-bit values.
template <class T> struct Limits;
template <> struct Limits<Tav8u> { static constexpr int64_t min = 0, max = 255; };
template <> struct Limits<Tav8s> { static constexpr int64_t min = -128, max = 127; };
template <> struct Limits<Tav16u> { static constexpr int64_t min = 0, max = 65535; };
template <> struct Limits<Tav16s> { static constexpr int64_t min = -32768, max = 32767; };
template <> struct Limits<Tav32u> { static constexpr int64_t min = 0, max = 4294967295LL; };
template <> struct Limits<Tav32s> { static constexpr int64_t min = INT32_MIN, max = INT32_MAX; };
template <> struct Limits<Tav64s> { static constexpr int64_t min = INT64_MIN, max = INT64_MAX; };

// The 24-bit types have no C type of their own; these tags name their limits.
struct Int24u {};
struct Int24s {};
template <> struct Limits<Int24u> { static constexpr int64_t min = 0, max = 16777215; };
template <> struct Limits<Int24s> { static constexpr int64_t min = -8388608, max = 8388607; };

// Part type of a complex element.
template <class C> struct PartOf;
template <> struct PartOf<Tav8sc> { using type = Tav8s; };
template <> struct PartOf<Tav16sc> { using type = Tav16s; };
template <> struct PartOf<Tav32sc> { using type = Tav32s; };
template <> struct PartOf<Tav64sc> { using type = Tav64s; };
template <> struct PartOf<Tav32fc> { using type = Tav32f; };
template <> struct PartOf<Tav64fc> { using type = Tav64f; };
template <class C> using part_t = typename PartOf<C>::type;

static_assert(sizeof(Tav16f) == 2 && sizeof(Tav16sc) == 4 && sizeof(Tav32fc) == 8 && sizeof(Tav64fc) == 16);

} // namespace tavs

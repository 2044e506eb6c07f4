#pragma once

/// The operations on vectors for this processor; vectors/Plain.h says what each does. kHasVectors: whether the
/// processor has instructions for them.
#if defined(__x86_64__)
#include "image/jpeg/vectors/SSE2.h"
namespace vantorium::image::jpeg {
using namespace sse2;
inline constexpr bool kHasVectors = true;
}  // namespace vantorium::image::jpeg
#elif defined(__aarch64__)
#include "image/jpeg/vectors/NEON.h"
namespace vantorium::image::jpeg {
using namespace neon;
inline constexpr bool kHasVectors = true;
}  // namespace vantorium::image::jpeg
#else
#include "image/jpeg/vectors/Plain.h"
namespace vantorium::image::jpeg {
using namespace plain;
inline constexpr bool kHasVectors = false;
}  // namespace vantorium::image::jpeg
#endif

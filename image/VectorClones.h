#pragma once

/// VANTORIUM_VECTOR_CLONES before a function compiles it twice from the same source, for all processors and for those
/// with 256-bit vectors; the program chooses one at start. The results are identical: no rounding differs. Where this
/// is not supported the macro is empty. The sanitizers do not work with the choice at start.
#if defined(__x86_64__) && defined(__GNUC__) && !defined(__clang__) && defined(__GLIBC__) && \
    !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
#define VANTORIUM_VECTOR_CLONES __attribute__((target_clones("default", "avx2")))
#else
#define VANTORIUM_VECTOR_CLONES
#endif

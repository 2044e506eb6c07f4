#pragma once

/// VANTORIUM_VECTOR_CLONES before a function has the compiler make it twice from the same source, for every processor
/// and for those with 256-bit vectors; the right one is chosen at start. The results are equal: no rounding
/// differs. Where that is not to be had it means nothing. The sanitizers do not get along with the choice at start.
#if defined(__x86_64__) && defined(__GNUC__) && !defined(__clang__) && defined(__GLIBC__) && \
    !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
#define VANTORIUM_VECTOR_CLONES __attribute__((target_clones("default", "avx2")))
#else
#define VANTORIUM_VECTOR_CLONES
#endif

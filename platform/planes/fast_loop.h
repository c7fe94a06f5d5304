#pragma once

// Private to the platform.

/**
 * For a function that is nothing but a loop over many numbers: the compiler generates one version for the vector
 * instructions of every processor and one for those common today, and the program chooses at its start. Results are the
 * same if the numbers are integers. Files with such functions are compiled with -O3, since only then are loops
 * vectorised; see platform/CMakeLists.txt.
 */
#if defined(__x86_64__) && defined(__GNUC__) && !defined(__clang__) && !defined(__SANITIZE_ADDRESS__)
#define QUORLIN_FAST_LOOP __attribute__((target_clones("avx2", "default")))
#else
#define QUORLIN_FAST_LOOP
#endif

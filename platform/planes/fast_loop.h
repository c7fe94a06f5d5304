#pragma once

// Private to the platform.

/**
 * Before a function that is nothing but a loop over many numbers: the compiler makes one for the vectors that every processor has and
 * one for those that most have today, and the program takes, at its start, the one that fits. Results are the same where the numbers
 * are whole ones. Files with such functions are compiled with -O3, since loops become vectors only then; see platform/CMakeLists.txt.
 */
#if defined(__x86_64__) && defined(__GNUC__) && !defined(__clang__) && !defined(__SANITIZE_ADDRESS__)
#define QUORLIN_FAST_LOOP __attribute__((target_clones("avx2", "default")))
#else
#define QUORLIN_FAST_LOOP
#endif

# Everything is instrumented for libFuzzer, so this is for a build folder of its own: cmake --preset fuzz.
if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
  message(FATAL_ERROR "QUORLIN_FUZZ needs clang++ (-DCMAKE_CXX_COMPILER=clang++)")
endif()
target_compile_options(quorlin-common INTERFACE
  -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
target_link_options(quorlin-common INTERFACE -fsanitize=address,undefined)

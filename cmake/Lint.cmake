# tidy: clang-tidy 14 over every source file of the rooms. A target for people; what it finds fails no build.
find_program(QUORLIN_RUN_CLANG_TIDY NAMES run-clang-tidy-14 run-clang-tidy)
if(QUORLIN_RUN_CLANG_TIDY)
  list(JOIN QUORLIN_ROOMS "|" rooms)
  add_custom_target(tidy
    COMMAND ${QUORLIN_RUN_CLANG_TIDY} -quiet -p ${CMAKE_BINARY_DIR} "${CMAKE_SOURCE_DIR}/(${rooms}|tools)/.*\\.cpp$$"
    WORKING_DIRECTORY ${CMAKE_SOURCE_DIR} USES_TERMINAL VERBATIM)
endif()

# tidy: clang-tidy 14 over every source file of the rooms. A target for people; what it finds fails no build.
find_program(QUORLIN_RUN_CLANG_TIDY NAMES run-clang-tidy-14 run-clang-tidy)
if(QUORLIN_RUN_CLANG_TIDY)
  list(JOIN QUORLIN_ROOMS "|" rooms)
  add_custom_target(tidy
    COMMAND ${QUORLIN_RUN_CLANG_TIDY} -quiet -p ${CMAKE_BINARY_DIR} "${CMAKE_SOURCE_DIR}/(${rooms}|tools)/.*\\.cpp$$"
    WORKING_DIRECTORY ${CMAKE_SOURCE_DIR} USES_TERMINAL VERBATIM)
endif()

# The texts that users read: build/texts.json holds them with their places, made anew by each build that changed one;
# update_translations brings the tables of interface/texts into line with them, for translators.
find_package(Python3 3.9 REQUIRED COMPONENTS Interpreter)
set(texts ${Python3_EXECUTABLE} -B ${CMAKE_SOURCE_DIR}/tools/texts.py)
file(GLOB_RECURSE text_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/interface/*.js ${CMAKE_SOURCE_DIR}/interface/*.ui
  ${CMAKE_SOURCE_DIR}/app/*.cpp ${CMAKE_SOURCE_DIR}/files/*.cpp)
add_custom_command(OUTPUT ${CMAKE_BINARY_DIR}/texts.json
  COMMAND ${texts} extract ${CMAKE_SOURCE_DIR} ${CMAKE_BINARY_DIR}/texts.json
  DEPENDS ${text_sources} ${CMAKE_SOURCE_DIR}/tools/texts.py COMMENT "Collecting the texts of scripts, forms and classes" VERBATIM)
add_custom_target(texts ALL DEPENDS ${CMAKE_BINARY_DIR}/texts.json)
add_custom_target(update_translations COMMAND ${texts} update ${CMAKE_SOURCE_DIR} USES_TERMINAL VERBATIM)

# The texts that users read: build/texts.json holds them with their places and follows every build that changed one;
# update_translations brings the tables of interface/texts into line with them, for translators.
find_package(Python3 3.9 REQUIRED COMPONENTS Interpreter)
set(texts ${Python3_EXECUTABLE} -B ${CMAKE_SOURCE_DIR}/tools/texts.py)
set(text_sources)
foreach(room ${QUORLIN_ROOMS})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/${room}/*.cpp ${CMAKE_SOURCE_DIR}/${room}/*.h)
  list(APPEND text_sources ${sources})
endforeach()
file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/interface/*.js ${CMAKE_SOURCE_DIR}/interface/*.ui)
list(APPEND text_sources ${sources})
add_custom_command(OUTPUT ${CMAKE_BINARY_DIR}/texts.json
  COMMAND ${texts} extract ${CMAKE_SOURCE_DIR} ${CMAKE_BINARY_DIR}/texts.json
  DEPENDS ${text_sources} ${CMAKE_SOURCE_DIR}/tools/texts.py COMMENT "Collecting the texts of scripts, forms and classes" VERBATIM)
add_custom_target(texts ALL DEPENDS ${CMAKE_BINARY_DIR}/texts.json)
add_custom_target(update_translations COMMAND ${texts} update ${CMAKE_SOURCE_DIR} USES_TERMINAL VERBATIM)

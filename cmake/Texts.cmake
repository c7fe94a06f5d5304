# The texts that users read, and their translations. build/texts.ts holds all texts and follows every build that changed one;
# build/texts/quorlin_*.qm are what the programs load; update_translations brings interface/texts/quorlin_*.ts into line with
# the texts, for translators.
find_package(Python3 3.9 REQUIRED COMPONENTS Interpreter)
find_package(Qt6 6.4 REQUIRED COMPONENTS LinguistTools)
set(texts ${Python3_EXECUTABLE} -B ${CMAKE_SOURCE_DIR}/tools/texts.py)
set(text_sources)
foreach(room ${QUORLIN_ROOMS})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/${room}/*.cpp ${CMAKE_SOURCE_DIR}/${room}/*.h)
  list(APPEND text_sources ${sources})
endforeach()
file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/interface/*.js ${CMAKE_SOURCE_DIR}/interface/*.ui)
list(APPEND text_sources ${sources})
add_custom_command(OUTPUT ${CMAKE_BINARY_DIR}/texts.ts
  COMMAND ${texts} extract ${CMAKE_SOURCE_DIR} ${CMAKE_BINARY_DIR}/texts.ts
  DEPENDS ${text_sources} ${CMAKE_SOURCE_DIR}/tools/texts.py COMMENT "Collecting the texts of scripts, forms and classes" VERBATIM)
add_custom_target(texts ALL DEPENDS ${CMAKE_BINARY_DIR}/texts.ts)
add_custom_target(update_translations COMMAND ${texts} update ${CMAKE_SOURCE_DIR} USES_TERMINAL VERBATIM)

set(compiled_texts)
foreach(language en de fr nl)
  set(source ${CMAKE_SOURCE_DIR}/interface/texts/quorlin_${language}.ts)
  set(compiled ${CMAKE_BINARY_DIR}/texts/quorlin_${language}.qm)
  add_custom_command(OUTPUT ${compiled}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/texts
    COMMAND Qt6::lrelease -silent ${source} -qm ${compiled}
    DEPENDS ${source} VERBATIM)
  list(APPEND compiled_texts ${compiled})
endforeach()
add_custom_target(translations ALL DEPENDS ${compiled_texts})
# Whoever builds a program gets them with it.
add_dependencies(quorlin_script translations)

# quorlin_tests(program LABELS ... FOLDER ... LINKS ... DEFINITIONS ...): all QTest files tst_*.cpp below a folder, each known to
# ctest under the name of its file. They share one program, which does the test under whose name it is called (see
# tests/support/test_program.h); a file with a main of its own (QTEST_MAIN and its kin) is a program of its own. A file that
# asks whether the run is a slow one has a second entry, NAME-slow, with the label slow, in which it does all it can.
# Tests find the pictures they share through QUORLIN_TEST_CORPUS and their own data through QUORLIN_TEST_DATA.
set(QUORLIN_TEST_CORPUS "${CMAKE_SOURCE_DIR}/../shared/corpus" CACHE PATH "Real pictures that tests may read")

# A test says what is right; how fast it says so does not matter, how fast it is built does.
function(quorlin_test_options name)
  target_compile_options(${name} PRIVATE -O0)
  target_compile_definitions(${name} PRIVATE
    QUORLIN_TEST_CORPUS="${QUORLIN_TEST_CORPUS}"
    QUORLIN_TEST_DATA="${CMAKE_SOURCE_DIR}/tests/data")
endfunction()

# Makes the target whose precompiled headers all tests of one kind in one folder share (Qt6::Test tells each program its
# folder in a definition, so those of two folders cannot).
function(quorlin_test_headers name)
  cmake_parse_arguments(arg "" "" "LINKS;PRECOMPILED" ${ARGN})
  file(CONFIGURE OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp CONTENT "// Only its headers matter.\n")
  add_library(${name} OBJECT ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp)
  set_target_properties(${name} PROPERTIES AUTOMOC OFF)
  target_link_libraries(${name} PRIVATE quorlin-common ${arg_LINKS} Qt6::Test)
  target_precompile_headers(${name} PRIVATE ${arg_PRECOMPILED} <QTemporaryDir> <QTest>)
  quorlin_test_options(${name})
endfunction()

function(quorlin_share_test_headers name)
  get_filename_component(folder ${CMAKE_CURRENT_SOURCE_DIR} NAME)
  if("app" IN_LIST ARGN OR "seam-harness" IN_LIST ARGN OR "gui-harness" IN_LIST ARGN)
    set(shared ${folder}-window-headers)
    set(linked LINKS app PRECOMPILED ${QUORLIN_WINDOW_HEADERS})
  else()
    set(shared ${folder}-room-headers)
    set(linked LINKS Qt6::Gui PRECOMPILED ${QUORLIN_CORE_HEADERS} <QImage>)
  endif()
  if(NOT TARGET ${shared})
    quorlin_test_headers(${shared} ${linked})
  endif()
  target_precompile_headers(${name} REUSE_FROM ${shared})
endfunction()

# A program of one test or several.
function(quorlin_test_program name)
  cmake_parse_arguments(arg "" "" "SOURCES;LINKS;DEFINITIONS" ${ARGN})
  add_executable(${name} ${arg_SOURCES})
  target_link_libraries(${name} PRIVATE ${arg_LINKS} Qt6::Test)
  target_compile_definitions(${name} PRIVATE ${arg_DEFINITIONS})
  quorlin_test_options(${name})
  if(QUORLIN_PRECOMPILE)
    quorlin_share_test_headers(${name} ${arg_LINKS})
  endif()
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
endfunction()

function(quorlin_register_test name source labels)
  add_test(NAME ${name} COMMAND ${CMAKE_BINARY_DIR}/tests/${name})
  set_tests_properties(${name} PROPERTIES LABELS "${labels}" TIMEOUT 300 SKIP_RETURN_CODE 77)
  quorlin_test_environment(${name})
  file(STRINGS ${source} asks REGEX "tests::(repetitions|isSlowRun)\\(")
  if(asks)
    add_test(NAME ${name}-slow COMMAND ${CMAKE_BINARY_DIR}/tests/${name})
    set_tests_properties(${name}-slow PROPERTIES LABELS "${labels};slow" TIMEOUT 1800 SKIP_RETURN_CODE 77
      ENVIRONMENT "QUORLIN_SLOW=1;QTEST_FUNCTION_TIMEOUT=1500000")
    quorlin_test_environment(${name}-slow)
  endif()
endfunction()

function(quorlin_tests program)
  cmake_parse_arguments(arg "" "FOLDER" "LABELS;LINKS;DEFINITIONS" ${ARGN})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${arg_FOLDER}/tst_*.cpp)
  set(shared)
  foreach(source ${sources})
    get_filename_component(name ${source} NAME_WE)
    file(STRINGS ${source} own_main REGEX "^(QTEST_[A-Z]*_?MAIN|int main)\\(")
    if(own_main)
      quorlin_test_program(${name} SOURCES ${source} LINKS ${arg_LINKS} DEFINITIONS ${arg_DEFINITIONS})
    else()
      list(APPEND shared ${source})
      # The name of the test is an alias of the program that contains it: for make, and as a command.
      add_custom_target(${name} DEPENDS ${program})
      file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
      file(CREATE_LINK ${program} ${CMAKE_BINARY_DIR}/tests/${name} SYMBOLIC)
    endif()
    quorlin_register_test(${name} ${source} "${arg_LABELS}")
  endforeach()
  if(shared)
    quorlin_test_program(${program} SOURCES ${shared} ${CMAKE_SOURCE_DIR}/tests/support/test_program.cpp
      LINKS ${arg_LINKS} DEFINITIONS ${arg_DEFINITIONS})
  endif()
endfunction()

# Every test has a home of its own, so that tests may run side by side and none sees the settings of the user.
function(quorlin_test_environment name)
  set(home ${CMAKE_BINARY_DIR}/tests/home/${name})
  file(MAKE_DIRECTORY ${home})
  set_property(TEST ${name} APPEND PROPERTY ENVIRONMENT
    QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8 HOME=${home}
    XDG_CONFIG_HOME=${home}/.config XDG_DATA_HOME=${home}/.local/share XDG_CACHE_HOME=${home}/.cache)
  if(QUORLIN_SANITIZE)
    set_property(TEST ${name} APPEND PROPERTY ENVIRONMENT QUORLIN_SANITIZED=1
      ASAN_OPTIONS=detect_stack_use_after_return=1:strict_init_order=1
      LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/tests/support/lsan.supp:print_suppressions=0
      UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1)
  endif()
endfunction()

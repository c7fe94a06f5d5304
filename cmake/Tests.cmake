# quorlin_test(name LABELS ... SOURCES ... LINKS ...): one QTest program, known to ctest under its name and labels.
# Tests find the pictures they share through QUORLIN_TEST_CORPUS and their own data through QUORLIN_TEST_DATA.
set(QUORLIN_TEST_CORPUS "${CMAKE_SOURCE_DIR}/../shared/corpus" CACHE PATH "Real pictures that tests may read")

function(quorlin_test name)
  cmake_parse_arguments(arg "" "" "LABELS;SOURCES;LINKS" ${ARGN})
  add_executable(${name} ${arg_SOURCES})
  target_link_libraries(${name} PRIVATE ${arg_LINKS} Qt6::Test)
  target_compile_definitions(${name} PRIVATE
    QUORLIN_TEST_CORPUS="${QUORLIN_TEST_CORPUS}"
    QUORLIN_TEST_DATA="${CMAKE_SOURCE_DIR}/tests/data")
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES
    LABELS "${arg_LABELS}" TIMEOUT 300 SKIP_RETURN_CODE 77)
  quorlin_test_environment(${name})
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
